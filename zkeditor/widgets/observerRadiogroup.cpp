#include "zkeditor/widgets/observerRadiogroup.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/nodeImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/validator.h"
#include "zkeditor/widgets/groupRadioButton.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/validatorSet.h"

#include <QApplication>
#include <QButtonGroup>
#include <QKeyEvent>
#include <algorithm>

namespace {

QString withoutMnemonics(const QString& text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && ++i == text.size())
            break;
        plain += text[i];
    }
    return plain;
}

QString nameOfChoice(const QRadioButton& button)
{
    const QString name = button.property("value").toString();
    return name.isNull() ? withoutMnemonics(button.text()) : name;
}

} // namespace

ObserverRadioGroup::ObserverRadioGroup(QWidget* parent, const QString& name)
    : QGroupBox(parent), PropertyObserver(this), m_contents(this), m_group(new QButtonGroup(this))
{
    setObjectName(name);
    connect(m_group, &QButtonGroup::buttonClicked, this, &ObserverRadioGroup::onWidgetValueChanged);
}

ObserverRadioGroup::~ObserverRadioGroup()
{
    for (const Choice& choice : m_choices) {
        if (choice.button)
            choice.button->removeEventFilter(this);
    }
}

// Binding

void ObserverRadioGroup::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    const QPointer<POReceiver> alive(m_receiver);
    PropertyObserver::bind(document, nodes);
    if (alive)
        m_contents.bind(document, nodes);
}

void ObserverRadioGroup::unbind()
{
    const QPointer<POReceiver> alive(m_receiver);
    // What is in the group may still have something to write.
    m_contents.unbind();
    if (alive)
        PropertyObserver::unbind();
}

void ObserverRadioGroup::setupWidget()
{
    ZK_ASSERT(!m_props.empty());
    collectButtons(this);
    buildChoices();
    PropertyObserver::setupWidget();
}

void ObserverRadioGroup::collectButtons(const QWidget* container)
{
    const auto children = container->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        if (auto* button = qobject_cast<QRadioButton*>(child)) {
            const bool known = std::any_of(m_choices.begin(), m_choices.end(),
                                           [button](const Choice& choice) { return choice.button.data() == button; });
            if (known)
                continue;
            m_choices.push_back({button, {}, false});
            m_group->addButton(button);
            button->installEventFilter(this);
        } else if (!dynamic_cast<PaneWidget*>(child)) {
            collectButtons(child);
        }
    }
}

void ObserverRadioGroup::buildChoices()
{
    std::erase_if(m_choices, [](const Choice& choice) { return !choice.button; });
    for (Choice& choice : m_choices) {
        const QString name = nameOfChoice(*choice.button);
        choice.value = valueNamed(name);
        if (!choice.value.isValid())
            qWarning("ObserverRadioGroup(%s): Button \"%s\" stands for no value of property \"%s\"",
                     PropertyObserver::name(), qPrintable(name), qPrintable(modelProperty()));
        const bool allowed = choice.value.isValid() && validators().allow(choice.value);
        if (allowed && choice.refused)
            choice.button->setEnabled(true);
        else if (!allowed)
            choice.button->setEnabled(false);
        choice.refused = !allowed;
    }
}

Value ObserverRadioGroup::valueNamed(const QString& name) const
{
    const PropertyImpl* property = m_props.front();
    const Formatter* formatter = property->getFormatter();
    if (const auto* set = dynamic_cast<const SetValidator*>(property->getValidator())) {
        const std::vector<Value> allowed = set->getValidValues().toValueVector();
        const auto find = [&](auto textOf) {
            const auto found =
                std::find_if(allowed.begin(), allowed.end(), [&](const Value& v) { return textOf(v) == name; });
            return found == allowed.end() ? Value() : *found;
        };
        if (const Value value = find([](const Value& v) { return v.toQString(); }); value.isValid())
            return value;
        if (m_valueType == Value::STRING) {
            const auto translated = [&](const Value& v) { return property->translated(v.toQString()); };
            if (const Value value = find(translated); value.isValid())
                return value;
        }
        const auto shown = [&](const Value& v) { return formatter ? formatter->toText(v) : formatValueAsString(v); };
        if (const Value value = find(shown); value.isValid())
            return value;
    }
    if (m_valueType == Value::STRING)
        return Value(name);
    if (const Value value = valueFromText(m_valueType, name); value.isValid())
        return value;
    const Value typed = formatter ? formatter->fromText(name) : Value();
    return typed.type() == m_valueType ? typed : Value();
}

// Showing

void ObserverRadioGroup::onPropertyValueChanged(Property, Value value)
{
    QRadioButton* chosen = nullptr;
    if (hasCompatibleValues()) {
        for (const Choice& choice : m_choices) {
            if (choice.button && choice.value.isValid() && choice.value == value) {
                chosen = choice.button;
                break;
            }
        }
    }
    showChoice(chosen);
}

void ObserverRadioGroup::showChoice(QRadioButton* chosen)
{
    if (chosen) {
        chosen->setChecked(true);
        return;
    }
    const QPointer<POReceiver> alive(m_receiver);
    if (QAbstractButton* checked = m_group->checkedButton()) {
        // The checked button of an exclusive group cannot be unchecked.
        m_group->setExclusive(false);
        checked->setChecked(false);
        if (!alive)
            return;
        m_group->setExclusive(true);
    }
    // Only the checked button is reached by Tab; now there is none.
    for (const Choice& choice : m_choices) {
        if (choice.button && choice.button->isEnabled()) {
            choice.button->setFocusPolicy(Qt::StrongFocus);
            break;
        }
    }
}

void ObserverRadioGroup::onValidatorChanged()
{
    ZK_ASSERT(!m_props.empty());
    buildChoices();
    PropertyObserver::onValidatorChanged();
}

// Choosing

void ObserverRadioGroup::onWidgetValueChanged(QAbstractButton* button)
{
    if (m_props.empty() || isShowingValue())
        return;
    const auto choice = std::find_if(m_choices.begin(), m_choices.end(),
                                     [button](const Choice& entry) { return entry.button.data() == button; });
    if (choice == m_choices.end())
        return;
    const Value value = choice->value; // the choices may change while it is written
    if (value.isValid() && validateValue(value))
        setPropertyValue(value);
    else
        showFirstValue();
}

// The arrow keys follow the order of the form and go round. Where no button is checked they move without choosing, so
// that different values are not made the same by looking around.
bool ObserverRadioGroup::moveBy(QObject* from, int step)
{
    const auto at = std::find_if(m_choices.begin(), m_choices.end(),
                                 [from](const Choice& choice) { return choice.button.data() == from; });
    if (at == m_choices.end())
        return false;
    const auto count = static_cast<std::ptrdiff_t>(m_choices.size());
    std::ptrdiff_t index = at - m_choices.begin();
    for (std::ptrdiff_t i = 1; i < count; ++i) {
        index = (index + step + count) % count;
        const QPointer<QRadioButton> next = m_choices[static_cast<size_t>(index)].button;
        if (!next || !next->isEnabled() || !next->isVisibleTo(this))
            continue;
        const bool choose = at->button->isChecked();
        next->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        if (choose && next)
            next->click();
        break;
    }
    return true;
}

bool ObserverRadioGroup::eventFilter(QObject* object, QEvent* event)
{
    followGesture(event);
    // Keys that a widget inside a button left alone come by as well.
    if (event->type() == QEvent::KeyPress && static_cast<QWidget*>(object)->hasFocus()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool mirrored = layoutDirection() == Qt::RightToLeft;
        switch (key->key()) {
        case Qt::Key_Up:
            return moveBy(object, -1);
        case Qt::Key_Down:
            return moveBy(object, 1);
        case Qt::Key_Left:
            return moveBy(object, mirrored ? 1 : -1);
        case Qt::Key_Right:
            return moveBy(object, mirrored ? -1 : 1);
        default:
            break;
        }
    }
    return QGroupBox::eventFilter(object, event);
}

// What a held arrow key runs through is one undo step; the focus moves from button to button meanwhile.
void ObserverRadioGroup::followGesture(const QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (!static_cast<const QKeyEvent*>(event)->isAutoRepeat())
            beginGesture();
        break;
    case QEvent::KeyRelease:
        if (!static_cast<const QKeyEvent*>(event)->isAutoRepeat())
            endGesture();
        break;
    case QEvent::MouseButtonPress:
        endGesture();
        break;
    case QEvent::FocusOut:
        if (const QWidget* focus = QApplication::focusWidget(); !focus || !isAncestorOf(focus))
            endGesture();
        break;
    default:
        break;
    }
}

void ObserverRadioGroup::setEnabled(bool enabled)
{
    QGroupBox::setEnabled(enabled && isPropertyWriteable());
}

void ObserverRadioGroup::setDisabled(bool disabled)
{
    QGroupBox::setDisabled(disabled || !isPropertyWriteable());
}

void ObserverRadioGroup::changeEvent(QEvent* event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}
