#include "zkauthor/aboutBox.h"

#include "zkauthor/helpWindow.h"
#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkcore/storage/package.h"
#include "zkeditor/license/licenceManager.h"
#include "zkeditor/widgets/hyperLink.h"
#include "zkeditor/widgets/linkLabel.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct AboutTexts
{
    Q_DECLARE_TR_FUNCTIONS(AboutBox)
};

} // namespace

void showAboutBox(QWidget* parent, const LicenceManager& licence)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("about"));
    dialog.setWindowTitle(AboutTexts::tr("About zkauthor"));
    auto* layout = new QVBoxLayout(&dialog);
    auto* picture = new QLabel;
    picture->setPixmap(ImageCache::getPixmap(Resource("editor/app"), QSize(96, 96), dialog.devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    layout->addWidget(picture);
    const auto addText = [layout](const QString& text) {
        auto* label = new QLabel(text);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        layout->addWidget(label);
    };
    addText(AboutTexts::tr("zkauthor %1").arg(QStringLiteral(ZK_VERSION)));
    addText(AboutTexts::tr(
        "Shows and edits interactive teaching models: scenes with parts, their connections and properties."));
    addText(licence.statusText());
    auto* folder = new HyperLink(Package::userFolder(), nullptr);
    folder->setDisplayText(AboutTexts::tr("Folder of your own parts"));
    layout->addWidget(folder);
    if (!QDir(Package::userFolder()).exists())
        folder->hide(); // it comes with the first part
    layout->addWidget(makeHelpLink(AboutTexts::tr("How things are done"), QStringLiteral("help")));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    buttons->button(QDialogButtonBox::Close)->setFocus();
    dialog.exec();
}
