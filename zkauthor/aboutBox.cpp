#include "zkauthor/aboutBox.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkcore/storage/package.h"
#include "zkeditor/license/licenceManager.h"
#include "zkeditor/widgets/hyperLink.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

void showAboutBox(QWidget* parent, const LicenceManager& licence)
{
    const auto tr = [](const char* text) { return QCoreApplication::translate("AboutBox", text); };
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("about"));
    dialog.setWindowTitle(tr("About zkauthor"));
    auto* layout = new QVBoxLayout(&dialog);
    auto* picture = new QLabel;
    picture->setPixmap(ImageCache::getPixmap(Resource("editor/app"), QSize(96, 96), dialog.devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    layout->addWidget(picture);
    const auto addText = [layout](const QString& text) {
        auto* label = new QLabel(text);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        layout->addWidget(label);
    };
    addText(tr("zkauthor %1").arg(QStringLiteral(ZK_VERSION)));
    addText(tr("Shows and edits interactive teaching models: scenes with parts, their connections and properties."));
    addText(licence.statusText());
    auto* folder = new HyperLink(Package::userFolder(), nullptr);
    folder->setDisplayText(tr("Folder of your own parts"));
    layout->addWidget(folder);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    buttons->button(QDialogButtonBox::Close)->setFocus();
    dialog.exec();
}
