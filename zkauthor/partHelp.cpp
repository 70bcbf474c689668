#include "zkauthor/partHelp.h"

#include "zkauthor/helpWindow.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/services/translate.h"
#include "zkeditor/widgets/linkLabel.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

QString helpText(const char* text)
{
    return QCoreApplication::translate("PartHelp", text);
}

QString describeClass(const ElementImpl* element, const QString& label)
{
    const NodePrototype& prototype = element->prototype();
    QString html = QStringLiteral("<h2>%1</h2>").arg(label.toHtmlEscaped());
    if (!prototype.group.isEmpty())
        html += QStringLiteral("<p>%1</p>")
                    .arg(helpText(QT_TRANSLATE_NOOP("PartHelp", "Group: %1"))
                             .arg(QCoreApplication::translate("PartsTree", prototype.group.toUtf8().constData())
                                      .toHtmlEscaped()));
    html += QStringLiteral("<dl>");
    for (const PropertyDefinition& property : prototype.properties()) {
        if (property.flags & (PropertyDefinition::Invisible | PropertyDefinition::UIHidden) || property.help.isEmpty())
            continue;
        html += QStringLiteral("<dt><b>%1</b></dt><dd>%2</dd>")
                    .arg(translateStringFromContext(element, property.label).toHtmlEscaped(),
                         translateStringFromContext(element, property.help).toHtmlEscaped());
    }
    return html + QStringLiteral("</dl>");
}

} // namespace

void showPartHelp(QWidget* parent, const DocumentImpl& document)
{
    const ElementImplSet selection = document.getSelection();
    if (selection.empty())
        return;
    const ElementImpl* element = *selection.begin();
    const QString label = document.getMetaLabelForCID(element->classId());

    auto* dialog = new QDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(QStringLiteral("partHelp"));
    dialog->setWindowTitle(helpText(QT_TRANSLATE_NOOP("PartHelp", "About %1")).arg(label));
    auto* layout = new QVBoxLayout(dialog);
    auto* text = new QTextBrowser;
    text->setAccessibleName(dialog->windowTitle());
    text->setHtml(describeClass(element, label));
    layout->addWidget(text);
    layout->addWidget(makeHelpLink(helpText(QT_TRANSLATE_NOOP("PartHelp", "How properties are changed")),
                                   QStringLiteral("palettes#the-property-pane")));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog->resize(420, 480);
    dialog->show();
}
