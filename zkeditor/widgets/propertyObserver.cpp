#include "zkeditor/widgets/propertyObserver.h"

#include "zkcore/base/assert.h"
#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/model/spaceImpl.h"
#include "zkcore/model/takeBack.h"
#include "zkcore/services/productPackage.h"
#include "zkcore/values/validator.h"
#include "zkeditor/widgets/poReceiver.h"
#include "zkeditor/widgets/validatorSet.h"

#include <QAbstractButton>
#include <QColor>
#include <QLineEdit>
#include <QUndoStack>
#include <QWidget>
#include <algorithm>

namespace {

const QUndoCommand* lastStep(const DocumentImpl* document)
{
    const QUndoStack* history = document->undoStack();
    return history->command(history->index() - 1);
}

} // namespace

PropertyObserver::PropertyObserver(QWidget* widget) : PropertyObserver(widget, Value::INVALID) {}

PropertyObserver::PropertyObserver(QWidget* widget, Value::Type type)
    : m_valueType(type), m_widget(widget), m_receiver(new POReceiver(this)),
      m_validators(std::make_unique<ValidatorSet>(m_receiver))
{
}

PropertyObserver::~PropertyObserver()
{
    m_validators.reset();
    delete m_receiver;
}

const char* PropertyObserver::name() const
{
    m_name = m_widget->objectName().toUtf8();
    return m_name.constData();
}

const QColor& PropertyObserver::invalidColor()
{
    static const QColor color(Qt::red);
    return color;
}

// Binding

void PropertyObserver::bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes)
{
    ZK_ASSERT(document);
    ZK_ASSERT(m_widget);
    unbind();
    if (m_modelProperty.isEmpty() && ProductPackage::instance().productCode() == QLatin1String("QX")) {
        qWarning("PropertyObserver( %s ): trying to bind but m_modelProperty is NULL.", name());
        return;
    }
    m_document = document;
    if (!m_supportsMultipleProps && nodes.size() > 1) {
        m_widget->setEnabled(false);
        return;
    }
    if (m_spacePropertyCid == INVALID_CID)
        bindElementProperty(nodes);
    else
        bindSpaceProperty(nodes);
    ZK_ASSERT_MESSAGE(!m_props.empty(),
                      QStringLiteral("Failed to find any properties with key %1").arg(m_modelProperty));
    nameWidgetAfterProperty();
    const ShowingValue showing(this);
    setupWidget();
}

void PropertyObserver::unbind()
{
    for (PropertyImpl* property : m_props) {
        ZK_ASSERT_TEXT(PropertyImpl::valid(property), "PropertyImpl::valid( *P )");
        QObject::disconnect(property, nullptr, m_receiver, nullptr);
    }
    m_validators->clear();
    m_props.clear();
    m_agreedValue.reset();
    m_allWriteable = false;
    m_noneHidden = false;
    endGesture();
    ++m_bindingNumber;
}

void PropertyObserver::bindElementProperty(const std::set<NodeImpl*>& nodes)
{
    const Property::Key key = Property::getKeyForString(m_modelProperty);
    if (m_subpartId.isEmpty()) {
        m_props.reserve(nodes.size());
        for (NodeImpl* node : nodes)
            bindElementNode(node, key);
        return;
    }
    const std::shared_ptr<const BindPass::Nodes> subparts = matchingSubparts(nodes);
    m_props.reserve(subparts->size());
    for (NodeImpl* node : *subparts)
        bindElementNode(node, key);
}

void PropertyObserver::bindElementNode(NodeImpl* node, Property::Key key)
{
    // An observer bound before this one in the same form may have run a slot that deleted nodes.
    if (!NodeImpl::valid(node))
        return;
    if (!node->hasProperty(key)) {
        qWarning("PropertyObserver(%s): Part (%s) does not have property \"%s\"", name(),
                 qPrintable(findStringForCid(node->classId())), qPrintable(key.toString()));
        return;
    }
    PropertyImpl* property = node->getProperty(key);
    ZK_ASSERT(property);
    addProperty(property);
}

void PropertyObserver::bindSpaceProperty(const std::set<NodeImpl*>& nodes)
{
    ZK_ASSERT(spacePropertyCid() != INVALID_CID);
    const Property::Key key = Property::getKeyForString(m_modelProperty);
    const bool ofDomain = isDomain(m_spacePropertyCid);
    for (NodeImpl* node : nodes) {
        if (!NodeImpl::valid(node))
            continue;
        auto* space = qobject_cast<SpaceImpl*>(node);
        ZK_ASSERT(space);
        if (PropertyImpl* property = ofDomain ? space->getProperty(key, m_spacePropertyCid) : space->getProperty(key))
            addProperty(property);
        else
            qWarning("PropertyObserver(%s): Domain (%s) does not have property \"%s\"", name(),
                     qPrintable(findStringForCid(m_spacePropertyCid)), qPrintable(key.toString()));
    }
}

void PropertyObserver::getMatchingSubparts(const std::set<NodeImpl*>& nodes, std::set<NodeImpl*>& out) const
{
    const std::shared_ptr<const BindPass::Nodes> found = matchingSubparts(nodes);
    for (NodeImpl* node : *found)
        out.insert(out.end(), node);
}

std::shared_ptr<const BindPass::Nodes> PropertyObserver::matchingSubparts(const std::set<NodeImpl*>& nodes) const
{
    const BindPass* pass = BindPass::current(nodes);
    if (pass) {
        if (std::shared_ptr<const BindPass::Nodes> known = pass->subparts(m_subpartId))
            return known;
    }
    auto found = std::make_shared<BindPass::Nodes>();
    if (m_subpartId.contains(QLatin1Char('/'))) {
        const ClassId cid = getCidForString(m_subpartId);
        for (const NodeImpl* node : nodes) {
            if (!NodeImpl::valid(node))
                continue;
            for (NodeImpl* child : node->children()) {
                if (child->classId() == cid)
                    found->push_back(child);
            }
        }
    } else {
        const RoleSet roles(m_subpartId);
        for (NodeImpl* node : nodes) {
            if (!NodeImpl::valid(node))
                continue;
            if (const auto* part = qobject_cast<PartImpl*>(node)) {
                const std::vector<ElementImpl*> children = part->getChildrenWithRole(roles);
                found->insert(found->end(), children.begin(), children.end());
            }
        }
    }
    std::sort(found->begin(), found->end(), std::less<>());
    found->erase(std::unique(found->begin(), found->end()), found->end());
    if (pass)
        pass->keepSubparts(m_subpartId, found);
    return found;
}

void PropertyObserver::addProperty(PropertyImpl* property)
{
    const Value::Type type = property->type();
    if (m_valueType == Value::INVALID)
        m_valueType = type;
    if (m_valueType != type) {
        qWarning("PropertyObserver: Building a %s with properties of in-consistent types", name());
        return;
    }
    // The receiver is the context of every connection: all end with it, and with unbind().
    QObject::connect(property, &PropertyImpl::ValueChanged, m_receiver, &POReceiver::onPropertyValueChanged);
    QObject::connect(property, &PropertyImpl::ProxyTargetChanged, m_receiver, &POReceiver::onProxyTargetChanged);
    watchProperty(property, property->definition().validator);
}

void PropertyObserver::watchProperty(PropertyImpl* property, const std::shared_ptr<interface::Validator>& validator)
{
    QObject::connect(property, &PropertyImpl::userCanEditChanged, m_receiver,
                     [this, property] { followState(property); });
    QObject::connect(property, &PropertyImpl::userVisibilityChanged, m_receiver,
                     [this, property] { followState(property); });
    QObject::connect(property, &QObject::destroyed, m_receiver, &POReceiver::onPropertyDeleted);
    m_props.append(property, m_validators->add(validator));
    m_agreedValue.reset();
    m_allWriteable = false;
    m_noneHidden = false;
}

void PropertyObserver::setupWidget()
{
    ZK_ASSERT(!m_props.empty());
    const QPointer<POReceiver> alive(m_receiver);
    showFirstValue();
    if (alive)
        onStateChanged();
}

// Showing

PropertyObserver::ShowingValue::ShowingValue(PropertyObserver* observer)
    : m_observer(observer), m_alive(observer->m_receiver)
{
    ++m_observer->m_showingValue;
}

PropertyObserver::ShowingValue::~ShowingValue()
{
    if (m_alive)
        --m_observer->m_showingValue;
}

void PropertyObserver::showValue(const Property& property, const Value& value)
{
    const ShowingValue showing(this);
    onPropertyValueChanged(property, value);
}

void PropertyObserver::showFirstValue()
{
    if (!m_props.empty())
        showValue(Property(m_props.front()), m_props.front()->getValue());
}

void PropertyObserver::followValue(const Property& property, const Value& value)
{
    // A slot that was told before this one may have set the property again: only the value it has now is worth showing.
    const Value now = property.isValid() ? property.getValue() : value;
    if (m_agreedValue && !(*m_agreedValue == comparableValue(now)))
        m_agreedValue.reset();
    showValue(property, now);
}

void PropertyObserver::onStateChanged()
{
    const QPointer<POReceiver> alive(m_receiver);
    m_widget->setEnabled(isPropertyWriteable());
    if (alive && isPropertyUIHidden())
        m_widget->hide();
}

void PropertyObserver::followState(PropertyImpl* property)
{
    const QPointer<POReceiver> alive(m_receiver);
    PropertyImpl* const outer = std::exchange(m_stateTeller, property);
    onStateChanged();
    if (alive)
        m_stateTeller = outer;
}

void PropertyObserver::onProxyTargetChanged(Property property)
{
    if (property.isValid())
        followState(property.impl());
}

bool PropertyObserver::isPropertyWriteable() const
{
    const auto readOnly = [](const PropertyImpl* property) { return !property->userCanEdit(); };
    if (m_allWriteable && m_stateTeller && !readOnly(m_stateTeller))
        return true;
    m_allWriteable = m_props.findFrom(m_readOnlyAt, readOnly) == nullptr;
    return m_allWriteable;
}

bool PropertyObserver::isPropertyUIHidden() const
{
    const auto hidden = [](const PropertyImpl* property) { return property->isUIHidden(); };
    if (m_noneHidden && m_stateTeller && !hidden(m_stateTeller))
        return false;
    m_noneHidden = m_props.findFrom(m_hiddenAt, hidden) == nullptr;
    return !m_noneHidden;
}

void PropertyObserver::refuseEnabling()
{
    if (m_widget->isEnabled() && !isPropertyWriteable())
        m_widget->setEnabled(false);
}

void PropertyObserver::onValidatorChanged()
{
    ZK_ASSERT(!m_props.empty());
    showFirstValue();
}

void PropertyObserver::setDisplayValid(bool valid)
{
    if (valid == m_displayValid)
        return;
    m_displayValid = valid;
    if (valid) {
        m_widget->setPalette(m_ownPalette.value_or(QPalette()));
        m_ownPalette.reset();
    } else {
        if (m_widget->testAttribute(Qt::WA_SetPalette))
            m_ownPalette = m_widget->palette();
        QPalette palette = m_widget->palette();
        palette.setColor(QPalette::WindowText, invalidColor());
        palette.setColor(QPalette::Text, invalidColor());
        m_widget->setPalette(palette);
    }
    m_widget->repaint();
}

void PropertyObserver::setDisplayReason(const QString& reason)
{
    if (!reason.isEmpty()) {
        if (!m_ownTexts)
            m_ownTexts = OwnTexts{m_widget->toolTip(), m_widget->accessibleDescription()};
        m_widget->setToolTip(reason);
        m_widget->setAccessibleDescription(reason);
    } else if (m_ownTexts) {
        m_widget->setToolTip(m_ownTexts->toolTip);
        m_widget->setAccessibleDescription(m_ownTexts->description);
        m_ownTexts.reset();
    } else {
        return;
    }
    // A screen reader tells what it knows of the widget that has the focus, which may be an inner one.
    const auto editors = m_widget->findChildren<QLineEdit*>();
    for (QLineEdit* editor : editors)
        editor->setAccessibleDescription(reason);
}

QString PropertyObserver::refusalReason(const Value& value) const
{
    QString reason;
    m_validators->all([&](const interface::Validator& validator) {
        if (!validator.isValid(value))
            reason = validator.reason(value);
        return reason.isEmpty();
    });
    return reason;
}

void PropertyObserver::setWidgetName(const QString& name)
{
    m_widget->setAccessibleName(name);
    m_widgetNamed = true;
}

// A widget that neither its text nor the form's author names is read out under the name of what it edits.
void PropertyObserver::nameWidgetAfterProperty()
{
    const auto* button = qobject_cast<QAbstractButton*>(m_widget);
    if (button && !button->text().isEmpty())
        return;
    if (m_widgetNamed || m_widget->accessibleName().isEmpty())
        setWidgetName(m_props.front()->getUserVisibleLabel());
}

// Values

bool PropertyObserver::isTypeCompatible(Value::Type type) const
{
    if (type == m_valueType)
        return true;
    qWarning("%s: Value type (%s) is in-compatible with this widget's type (%s)", name(),
             qPrintable(Value::typeAsString(type)), qPrintable(Value::typeAsString(m_valueType)));
    return false;
}

bool PropertyObserver::hasCompatibleValues() const
{
    if (m_props.size() < 2 || m_agreedValue)
        return true;
    const Value first = comparableValue(m_props.front()->getValue());
    const auto differs = [this, &first](const PropertyImpl* property) {
        return !(comparableValue(property->getValue()) == first);
    };
    if (m_props.findFrom(m_differenceAt, differs))
        return false;
    m_agreedValue = first;
    return true;
}

bool PropertyObserver::validateValue(Value value) const
{
    return isTypeCompatible(value.type()) && m_validators->allow(value);
}

Value PropertyObserver::fixupValue(Value value)
{
    ZK_ASSERT(!m_props.empty());
    if (const interface::Validator* validator = m_validators->commonTo(m_props.frontTag())) {
        const Value fixed = validator->fixup(value);
        if (m_props.size() == 1 || isTypeCompatible(fixed.type()))
            return fixed;
    }
    qWarning("PropertyObserver: Cannot fixup value, passing back unchanged value");
    return value;
}

void PropertyObserver::setPropertyValue(Value value)
{
    ZK_ASSERT(isTypeCompatible(value.type()));
    std::unique_ptr<SetValueCommand> command;
    for (PropertyImpl* property : m_props) {
        ZK_ASSERT(PropertyImpl::valid(property));
        if (property->getValue() == value)
            continue;
        if (!command)
            command = std::make_unique<SetValueCommand>(Property(property), value,
                                                        m_pushUndoOnSetProperty && !m_gestureWrote);
        else
            command->addProperty(Property(property), value);
    }
    if (!command)
        return;
    const QPointer<POReceiver> alive(m_receiver);
    const QPointer<DocumentImpl> document(m_document);
    const bool opensStep = m_inGesture && !m_gestureWrote;
    const QUndoCommand* const before = opensStep ? lastStep(document) : nullptr;
    const Value result = document->executeCommand(command.release());
    if (!alive)
        return;
    if (!result.isValid()) {
        showFirstValue();
        return;
    }
    m_gestureWrote = m_inGesture;
    if (opensStep && m_inGesture && document && lastStep(document) != before)
        m_gestureStep = lastStep(document);
}

void PropertyObserver::beginGesture()
{
    m_inGesture = true;
    m_gestureWrote = false;
    m_gestureStep = nullptr;
}

void PropertyObserver::endGesture()
{
    m_inGesture = false;
    m_gestureWrote = false;
    m_gestureStep = nullptr;
}

bool PropertyObserver::cancelGesture()
{
    const QUndoCommand* const step = m_gestureStep;
    endGesture();
    if (!step || m_props.empty() || lastStep(m_document) != step)
        return false;
    takeBackLastStep(*m_document);
    return true;
}

void PropertyObserver::onPropertyDeleted(QObject* object)
{
    if (object == m_stateTeller)
        m_stateTeller = nullptr;
    const std::optional<unsigned int> tag = m_props.remove(object);
    if (!tag)
        return;
    m_validators->release(*tag);
    if (m_props.empty())
        dropSharedConnections();
}

// Validators are shared by all nodes of a class: a change of one must not reach an observer that has nothing to show.
void PropertyObserver::dropSharedConnections()
{
    m_validators->clear();
}
