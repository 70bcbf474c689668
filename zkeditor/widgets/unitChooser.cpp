#include "zkeditor/widgets/unitChooser.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/values/formatter.h"
#include "zkcore/widgetSupport/fonts.h"
#include "zkcore/widgetSupport/richMenuItem.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/pressableLabel.h"
#include "zkeditor/widgets/readableColors.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <utility>

namespace {

NumericalFormatter* unitFormatterOf(const PropertyImpl* property)
{
    return dynamic_cast<NumericalFormatter*>(property->getFormatter());
}

} // namespace

UnitChooser::UnitChooser(QWidget* parent, const QString& name)
    : QLabel(QStringLiteral("units"), parent), PropertyObserver(this), m_popup(new QMenu(this))
{
    pressableLabel::install();
    setObjectName(name);
    setTextFormat(Qt::RichText);
    setCursor(Qt::ArrowCursor);
    m_popup->setFont(Fonts::getWidgetFont(m_popup, Fonts::Normal));
    connect(m_popup, &QMenu::triggered, this, [this](QAction* item) {
        const QPointer<UnitChooser> alive(this);
        m_menuAtWork = true;
        onPopupUnitChanged(item->data().toInt());
        if (alive)
            m_menuAtWork = false;
    });
    connect(m_popup, &QMenu::aboutToHide, this, [this] {
        m_closedByPress =
            QGuiApplication::mouseButtons() != Qt::NoButton && rect().contains(mapFromGlobal(QCursor::pos()));
    });
}

UnitChooser::~UnitChooser()
{
    if (!m_menuAtWork)
        return;
    // The choice led to this end; the menu still has to return from it.
    m_popup->disconnect(this);
    m_popup->setParent(nullptr, m_popup->windowFlags());
    m_popup->deleteLater();
}

// Binding

void UnitChooser::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    ZK_ASSERT(document);
    unbind();
    m_document = document;
    const Property::Key key = Property::getKeyForString(modelProperty());
    std::set<NodeImpl*> subparts;
    if (!subpart().isEmpty())
        getMatchingSubparts(nodes, subparts);
    for (NodeImpl* node : subpart().isEmpty() ? nodes : subparts) {
        if (!NodeImpl::valid(node))
            continue;
        PropertyImpl* property = propertyOf(node, key);
        if (!property) {
            qWarning("UnitChooser: Part/space (%s) does not have property \"%s\"",
                     qPrintable(findStringForCid(node->classId())), qPrintable(key.toString()));
            continue;
        }
        watchProperty(property, nullptr);
        QObject::connect(property, &PropertyImpl::formatterChanged, m_receiver, [this, property] {
            // The first one decides what is shown; however many change, the label is made once.
            if (property == m_props.front() || text().isEmpty())
                onFormatChanged();
        });
        addUnits(property);
    }
    if (m_units.empty()) {
        qWarning("UnitChooser: could not get a unit from any of the properties");
        clear();
        return;
    }
    setAccessibleName(tr("Unit of %1").arg(m_props.front()->getUserVisibleLabel()));
    onFormatChanged();
    onStateChanged();
}

PropertyImpl* UnitChooser::propertyOf(NodeImpl* node, Property::Key key) const
{
    if (auto* space = qobject_cast<SpaceImpl*>(node); space && isDomain(spacePropertyCid()))
        return space->getProperty(key, spacePropertyCid());
    return node->getProperty(key);
}

void UnitChooser::addUnits(const PropertyImpl* property)
{
    const NumericalFormatter* formatter = unitFormatterOf(property);
    if (!formatter)
        return;
    const std::vector<Unit> units = formatter->units();
    if (m_units.empty())
        m_units = units;
    else if (!(units == m_units))
        qWarning("UnitChooser: Building a unit chooser with Properties using in-compatible units");
}

void UnitChooser::unbind()
{
    PropertyObserver::unbind();
    m_settingUnit = false;
    reset();
}

void UnitChooser::dropSharedConnections()
{
    PropertyObserver::dropSharedConnections();
    reset();
}

void UnitChooser::reset()
{
    m_units.clear();
    m_currentUnit = Unit();
    rebuildPopup();
    setClickable(false);
}

// Showing

QString UnitChooser::getUnitName(const Unit& unit)
{
    const QString abbreviation = unit.abbreviatedName();
    return abbreviation.isNull() ? unit.name() : abbreviation;
}

void UnitChooser::showUnit(const Unit& unit)
{
    const QString name = unit.isNull() ? QString() : getUnitName(unit);
    setText(name);
    setAccessibleDescription(name);
}

void UnitChooser::onFormatChanged()
{
    ZK_ASSERT_TEXT(!m_props.empty(), "!m_props.empty()");
    if (m_settingUnit)
        return;
    const NumericalFormatter* formatter = unitFormatterOf(m_props.front());
    m_currentUnit = formatter ? formatter->currentUnit() : Unit();
    m_units = formatter ? formatter->units() : std::vector<Unit>();
    showUnit(m_currentUnit);
    setEnabled(!m_currentUnit.isNull());
    setClickable(m_units.size() > 1);
    rebuildPopup();
}

void UnitChooser::setClickable(bool clickable)
{
    QFont look = font();
    look.setUnderline(clickable);
    setFont(look);
    setCursor(clickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setFocusPolicy(clickable ? Qt::TabFocus : Qt::NoFocus);
    if (!clickable)
        setPalette({});
}

void UnitChooser::rebuildPopup()
{
    // A choice in the menu may be what changed the units: its item is still at work then.
    const QList<QAction*> old = m_popup->actions();
    for (QAction* item : old) {
        m_popup->removeAction(item);
        item->deleteLater();
    }
    for (size_t i = 0; i < m_units.size(); ++i) {
        if (m_units[i].isNull())
            continue;
        auto* item = new RichMenuItem(m_popup, getUnitName(m_units[i]));
        item->setData(static_cast<int>(i));
        m_popup->addAction(item);
    }
}

void UnitChooser::onPropertyValueChanged(Property, Value) {}

void UnitChooser::onValidatorChanged() {}

void UnitChooser::setEnabled(bool enabled)
{
    QLabel::setEnabled(enabled && isPropertyWriteable());
}

void UnitChooser::setDisabled(bool disabled)
{
    QLabel::setDisabled(disabled || !isPropertyWriteable());
}

void UnitChooser::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        refuseEnabling();
        if (!isEnabled())
            setPalette({});
    }
}

// Choosing

QMenu* UnitChooser::getPopup() const
{
    return m_popup->actions().size() > 1 ? m_popup : nullptr;
}

void UnitChooser::togglePopup(const QPoint& globalPosition)
{
    QMenu* popup = getPopup();
    if (!popup)
        return;
    if (popup->isVisible()) {
        popup->hide();
        return;
    }
    popup->popup(globalPosition);
    const auto current = std::find(m_units.begin(), m_units.end(), m_currentUnit);
    const auto index = static_cast<int>(current - m_units.begin());
    const QList<QAction*> items = popup->actions();
    for (QAction* item : items) {
        if (item->data().toInt() == index)
            popup->setActiveAction(item);
    }
}

void UnitChooser::onPopupUnitChanged(int uindex)
{
    ZK_ASSERT_TEXT(static_cast<size_t>(uindex) < m_units.size(), "uindex < m_units.size()");
    const Unit unit = m_units[static_cast<size_t>(uindex)];
    if (unit == m_currentUnit)
        return;
    m_currentUnit = unit;
    // Each formatter tells of its change at once, and whoever hears of it may change the binding.
    const QPointer<POReceiver> alive(m_receiver);
    const unsigned int binding = bindingNumber();
    const std::vector<Property> properties(m_props.begin(), m_props.end());
    m_settingUnit = true;
    for (const Property& property : properties) {
        if (!property.isValid())
            continue;
        if (NumericalFormatter* formatter = unitFormatterOf(property.impl()))
            formatter->setCurrentUnit(unit);
        if (!alive)
            return;
    }
    m_settingUnit = false;
    if (binding != bindingNumber() || m_props.empty())
        return;
    const NumericalFormatter* first = unitFormatterOf(m_props.front());
    Unit common = first ? first->currentUnit() : Unit();
    for (const PropertyImpl* property : m_props) {
        const NumericalFormatter* formatter = unitFormatterOf(property);
        if (formatter && !(formatter->currentUnit() == common)) {
            common = Unit();
            break;
        }
    }
    showUnit(common);
    Q_EMIT unitChanged();
}

// Events

void UnitChooser::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void UnitChooser::mouseReleaseEvent(QMouseEvent* event)
{
    if (std::exchange(m_closedByPress, false) || !rect().contains(event->position().toPoint()))
        return;
    togglePopup(event->globalPosition().toPoint());
}

void UnitChooser::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
    case Qt::Key_Down:
        if (getPopup()) {
            togglePopup(mapToGlobal(QPoint(0, height())));
            return;
        }
        break;
    default:
        break;
    }
    QLabel::keyPressEvent(event);
}

void UnitChooser::enterEvent(QEnterEvent* event)
{
    QLabel::enterEvent(event);
    m_closedByPress = false;
    if (!isEnabled() || m_units.size() < 2)
        return;
    QPalette hovered = palette();
    // Blue on light ground, a lighter one on dark.
    hovered.setColor(QPalette::WindowText, readableColors::on(hovered.color(QPalette::Window), Qt::blue));
    setPalette(hovered);
}

void UnitChooser::leaveEvent(QEvent* event)
{
    QLabel::leaveEvent(event);
    setPalette({});
}

void UnitChooser::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}
