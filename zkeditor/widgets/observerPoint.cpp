#include "zkeditor/widgets/observerPoint.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/values/expressionParser.h"
#include "zkcore/values/formatter.h"
#include "zkcore/values/validatorFactory.h"
#include "zkeditor/widgets/lineEdit.h"
#include "zkeditor/widgets/numberDisplay.h"
#include "zkeditor/widgets/spinControls.h"

#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStyleOptionSpinBox>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr double lowestCoordinate = std::numeric_limits<double>::lowest();
constexpr double highestCoordinate = std::numeric_limits<double>::max();
constexpr double heightFactor = 1.0752688172043012; // 1 / 0.93: two boxes and the gap

} // namespace

PrivatePointSpinBox::PrivatePointSpinBox(int coordinate, ObserverPoint* owner, const QString& name)
    : DoubleSpinBox(owner, name), m_coordinate(coordinate), m_owner(owner)
{
    setRange(lowestCoordinate, highestCoordinate);
    controls()->installEventFilter(this);
}

void PrivatePointSpinBox::setNoValue(bool noValue)
{
    // Each of many nodes that differ says so.
    const bool isBlank = m_noValue && !isEdited() && editor()->text().isEmpty();
    m_noValue = noValue;
    if (!noValue || isBlank)
        return;
    editor()->setText(QString()); // not clear(), which Escape would undo
    setEdited(false);
}

void PrivatePointSpinBox::showNumber(double number)
{
    directSetValue(number);
    // Neither the text nor the cursor is taken from somebody who types.
    m_refreshPending = isTyping();
    if (!m_refreshPending)
        updateDisplay();
}

bool PrivatePointSpinBox::isTyping() const
{
    return isEdited() && editor()->hasFocus();
}

void PrivatePointSpinBox::commit()
{
    if (isEdited())
        interpretText();
}

void PrivatePointSpinBox::takeOver(double value)
{
    const bool unchanged = !differ(value, heldValue());
    const bool hadNoValue = m_noValue;
    m_noValue = false;
    if (m_peer->m_noValue) {
        m_peer->m_noValue = false;
        m_peer->updateDisplay();
    }
    const QPointer<PrivatePointSpinBox> alive(this);
    DoubleSpinBox::setValue(value);
    if (!alive)
        return;
    m_owner->setDisplayValid(true);
    m_owner->setDisplayReason({});
    // No change of the box's own value is told, but the nodes have different ones.
    if (hadNoValue && unchanged)
        Q_EMIT valueChanged(heldValue());
}

void PrivatePointSpinBox::setValue(double value)
{
    ZK_ASSERT(m_peer);
    if (m_owner->m_props.empty()) {
        DoubleSpinBox::setValue(value);
        return;
    }
    const double other = m_peer->heldValue();
    const zk::Point shown = m_coordinate == 0 ? zk::Point{value, other} : zk::Point{other, value};
    const Value wanted = m_owner->convertToSI(Value(shown));
    if (std::isfinite(value)) {
        if (m_owner->validateValue(wanted)) {
            takeOver(value);
            return;
        }
        const Value fixed = m_owner->fixupValue(wanted);
        if (fixed.type() == Value::POINT && !(fixed == wanted)) {
            const zk::Point point = m_owner->convertFromSI(fixed).toPoint();
            takeOver(m_coordinate == 0 ? point.x : point.y);
            return;
        }
    }
    qWarning("PrivatePointSpinBox: Can't fixup setting old value %f, %f", shown.x, shown.y);
    setEdited(false);
    if (m_noValue)
        setNoValue(true);
    else
        updateDisplay();
    m_owner->setDisplayValid(true);
    m_owner->setDisplayReason({});
}

QString PrivatePointSpinBox::mapValueToText(double value)
{
    return numberDisplay::text(value, m_owner->m_props.empty() ? nullptr : m_owner->m_props.front()->getFormatter());
}

double PrivatePointSpinBox::mapTextToValue(bool* ok)
{
    *ok = true;
    return numberDisplay::number(cleanText(), m_owner->shownUnit());
}

void PrivatePointSpinBox::interpretText()
{
    // A box that is left as it is changes nothing: what it shows may be rounded, or blank over different values.
    if (!isEdited() || (m_noValue && editor()->text().trimmed().isEmpty())) {
        setEdited(false);
        return;
    }
    DoubleSpinBox::interpretText();
}

void PrivatePointSpinBox::updateDisplay()
{
    if (m_refreshing)
        return;
    const QScopedValueRollback<bool> refreshing(m_refreshing, true);
    if (m_noValue) {
        editor()->setEnabled(isEnabled());
        return;
    }
    DoubleSpinBox::updateDisplay();
}

void PrivatePointSpinBox::textChanged()
{
    DoubleSpinBox::textChanged();
    if (m_owner->m_props.empty() || m_refreshing || (m_noValue && editor()->text().isEmpty()))
        return;
    bool ok = true;
    const double number = mapTextToValue(&ok);
    if (!std::isfinite(number)) {
        m_owner->setDisplayValid(false);
        m_owner->setDisplayReason(ExpressionParser::eval(cleanText(), m_owner->shownUnit()).reason());
        return;
    }
    const double other = m_peer->heldValue();
    const Value typed =
        m_owner->convertToSI(Value(m_coordinate == 0 ? zk::Point{number, other} : zk::Point{other, number}));
    const bool valid = m_owner->validateValue(typed);
    m_owner->setDisplayValid(valid);
    m_owner->setDisplayReason(valid ? QString() : m_owner->refusalReason(typed));
}

bool PrivatePointSpinBox::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (object == controls())
            m_owner->beginGesture();
        break;
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!key->isAutoRepeat() && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down))
            m_owner->beginGesture();
        if (key->key() == Qt::Key_Escape && object == editor() && std::exchange(m_refreshPending, false)) {
            setEdited(false);
            const QPointer<PrivatePointSpinBox> alive(this);
            m_owner->showFirstValue();
            if (alive) {
                updateDisplay();
                m_owner->setDisplayValid(true);
                m_owner->setDisplayReason({});
            }
            return true;
        }
        break;
    }
    case QEvent::KeyRelease:
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat())
            m_owner->endGesture();
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::FocusOut:
        m_owner->endGesture();
        break;
    default:
        break;
    }
    return DoubleSpinBox::eventFilter(object, event);
}

void PrivatePointSpinBox::letGo()
{
    editor()->removeEventFilter(this);
    controls()->removeEventFilter(this);
}

ObserverPoint::ObserverPoint(QWidget* parent, const QString& name)
    : QWidget(parent), NumericalObserver(this, Value::POINT),
      m_x(new PrivatePointSpinBox(0, this, QStringLiteral("x"))),
      m_y(new PrivatePointSpinBox(1, this, QStringLiteral("y")))
{
    setObjectName(name);
    m_x->setPeer(m_y);
    m_y->setPeer(m_x);
    for (PrivatePointSpinBox* box : {m_x, m_y})
        box->setValidator(QValidatorFactory::createByType(Value::DOUBLE, box));
    setSizePolicy(m_x->sizePolicy());
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_x);
    setTabOrder(m_x, m_y);
    setMinimumSize(m_x->minimumSizeHint().width(),
                   static_cast<int>(std::lround(2 * m_x->minimumSizeHint().height() * heightFactor)));
}

ObserverPoint::~ObserverPoint()
{
    // A field that has the focus loses it while the widget is being destroyed, when the observer is gone already.
    m_x->letGo();
    m_y->letGo();
}

void ObserverPoint::setupWidget()
{
    m_x->editor()->setAccessibleName(tr("%1, x").arg(accessibleName()));
    m_y->editor()->setAccessibleName(tr("%1, y").arg(accessibleName()));
    const QPointer<ObserverPoint> alive(this);
    NumericalObserver::setupWidget();
    if (!alive)
        return;
    connect(m_x, qOverload<double>(&DoubleSpinBox::valueChanged), this, &ObserverPoint::onXValueChanged,
            Qt::UniqueConnection);
    connect(m_y, qOverload<double>(&DoubleSpinBox::valueChanged), this, &ObserverPoint::onYValueChanged,
            Qt::UniqueConnection);
}

void ObserverPoint::unbind()
{
    // What was typed belongs to the nodes that were bound while it was typed.
    const QPointer<ObserverPoint> alive(this);
    if (!m_props.empty())
        m_x->commit();
    if (alive && !m_props.empty())
        m_y->commit();
    if (alive)
        NumericalObserver::unbind();
}

void ObserverPoint::onXValueChanged(double x)
{
    onWidgetValueChanged({x, m_y->heldValue()});
}

void ObserverPoint::onYValueChanged(double y)
{
    onWidgetValueChanged({m_x->heldValue(), y});
}

void ObserverPoint::onWidgetValueChanged(const zk::Point& point)
{
    if (m_props.empty() || isShowingValue())
        return;
    const Value wanted = convertToSI(Value(point));
    if (validateValue(wanted))
        setPropertyValue(wanted);
}

void ObserverPoint::onPropertyValueChanged(Property, Value value)
{
    const bool shown = value.isValid() && isTypeCompatible(value.type());
    const bool agree = shown && hasCompatibleValues();
    const zk::Point point = shown ? convertFromSI(value).toPoint() : zk::Point();
    if (agree && !m_x->showsNoValue() && !m_y->showsNoValue() && m_x->heldValue() == point.x &&
        m_y->heldValue() == point.y)
        return;
    for (PrivatePointSpinBox* box : {m_x, m_y}) {
        if (!box->isTyping())
            box->setNoValue(!agree);
        if (shown)
            box->showNumber(box == m_x ? point.x : point.y);
    }
    if (!m_x->isTyping() && !m_y->isTyping()) {
        setDisplayValid(true);
        setDisplayReason({});
    }
}

void ObserverPoint::setDisplayValid(bool valid)
{
    if (valid == m_displayValid)
        return;
    m_displayValid = valid;
    for (PrivatePointSpinBox* box : {m_x, m_y}) {
        QPalette palette;
        if (!valid) {
            palette = box->palette();
            palette.setColor(QPalette::Text, invalidColor());
            palette.setColor(QPalette::WindowText, invalidColor());
        }
        box->setPalette(palette);
        box->repaint();
    }
}

void ObserverPoint::resizeEvent(QResizeEvent*)
{
    const int boxHeight = height() / 2 - static_cast<int>(std::lround(s_percentGap * height()));
    m_x->setGeometry(0, 0, width(), boxHeight);
    m_y->setGeometry(0, height() - boxHeight, width(), boxHeight);
}

QSize ObserverPoint::sizeHint() const
{
    const QSize x = m_x->sizeHint();
    const QSize y = m_y->sizeHint();
    const int both = x.height() + y.height();
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    const QSize content(std::max(x.width(), y.width()), both + static_cast<int>(both * s_percentGap) + 2 * frame);
    QStyleOptionSpinBox option;
    option.initFrom(this);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

void ObserverPoint::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        refuseEnabling();
}

void ObserverPoint::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled && isPropertyWriteable());
}

void ObserverPoint::setDisabled(bool disabled)
{
    QWidget::setEnabled(!disabled && isPropertyWriteable());
}
