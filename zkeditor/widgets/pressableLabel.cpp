#include "zkeditor/widgets/pressableLabel.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTextDocumentFragment>

namespace {

class PressableLabelAccessible : public QAccessibleWidget
{
public:
    PressableLabelAccessible(QLabel* label, QAccessible::Role role) : QAccessibleWidget(label, role) {}

    /// A unit without a choice is a text like any other.
    QAccessible::Role role() const override
    {
        return widget()->focusPolicy() == Qt::NoFocus ? QAccessible::StaticText : QAccessibleWidget::role();
    }
    QString text(QAccessible::Text kind) const override
    {
        const QString own = QAccessibleWidget::text(kind);
        const bool shown = kind == QAccessible::Value || (kind == QAccessible::Name && own.isEmpty());
        return shown ? shownText() : own;
    }
    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled() && role() != QAccessible::StaticText)
            names.prepend(action());
        return names;
    }
    void doAction(const QString& name) override
    {
        if (name != action() || !widget()->isEnabled())
            return QAccessibleWidget::doAction(name);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(widget(), &press);
    }

private:
    QString action() const { return role() == QAccessible::Link ? pressAction() : showMenuAction(); }
    QString shownText() const
    {
        const auto* label = static_cast<const QLabel*>(widget());
        return label->textFormat() == Qt::PlainText ? label->text()
                                                    : QTextDocumentFragment::fromHtml(label->text()).toPlainText();
    }
};

QAccessibleInterface* makePressableLabel(const QString& className, QObject* object)
{
    auto* label = qobject_cast<QLabel*>(object);
    if (label && className == QLatin1String("LinkLabel"))
        return new PressableLabelAccessible(label, QAccessible::Link);
    if (label && className == QLatin1String("UnitChooser"))
        return new PressableLabelAccessible(label, QAccessible::ButtonMenu);
    return nullptr;
}

} // namespace

void pressableLabel::install()
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makePressableLabel), true);
}
