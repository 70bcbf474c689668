#include "zkeditor/formFaultSection.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr size_t shownFindings = 8;

/// A label whose text can be selected and copied by keys that mean something else to the window.
class FaultText : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ShortcutOverride) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll)) {
                event->accept();
                return true;
            }
        }
        return QLabel::event(event);
    }
};

} // namespace

FormFaultSection::FormFaultSection(const QString& form, const std::vector<FormFinding>& findings, QWidget* parent)
    : PaletteBoxSection(parent, QStringLiteral("faultyForm"))
{
    setLabel(tr("Faulty Form"));
    const QString heading =
        tr("The form \"%1\" is faulty and is not shown. What its author has to mend:").arg(form.left(60));
    QString text = heading;
    for (size_t i = 0; i < findings.size() && i < shownFindings; ++i)
        text += QStringLiteral("\n\n") + tr("Line %1: %2").arg(findings[i].line).arg(findings[i].description());
    if (findings.size() > shownFindings)
        text += QStringLiteral("\n\n") + tr("and %n more", nullptr, static_cast<int>(findings.size() - shownFindings));
    auto* label = new FaultText(text, this);
    label->setObjectName(QStringLiteral("formFaults"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::StrongFocus);
    label->setAccessibleName(heading);
    label->setAccessibleDescription(text);
    // Names in the text must not widen the pane.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
}

bool FormFaultSection::hasSections(QWidget* form)
{
    return qobject_cast<PaletteBoxSection*>(form) ||
           form->findChild<PaletteBoxSection*>(QString(), Qt::FindDirectChildrenOnly);
}
