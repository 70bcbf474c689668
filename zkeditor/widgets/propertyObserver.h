#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/model/property.h"
#include "zkcore/values/value.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/bindPass.h"
#include "zkeditor/widgets/paneWidget.h"
#include "zkeditor/widgets/propertyList.h"

#include <QByteArray>
#include <QPalette>
#include <QPointer>
#include <QString>
#include <memory>
#include <optional>
#include <set>

class NodeImpl;
class POReceiver;
class PropertyImpl;
class QColor;
class QUndoCommand;
class QWidget;
class ValidatorSet;

namespace interface {
class Validator;
}

/// Binds a widget to one property of every selected node. bind() collects the properties, listens to them and shows
/// their common value; what the user enters is written to all of them in one command.
///
/// A concrete observer inherits a widget class first and this class second, shows values in onPropertyValueChanged()
/// and calls setPropertyValue() when the user changed something. Its widget may emit its signals while a value is being
/// shown; slots that write must then do nothing (isShowingValue()).
class ZKEDITOR_EXPORT PropertyObserver : public PaneWidget
{
public:
    /// The widget is not owned, and must live as long as this observer does anything.
    explicit PropertyObserver(QWidget* widget);
    /// Takes only properties of that type.
    PropertyObserver(QWidget* widget, Value::Type type);
    PropertyObserver(const PropertyObserver&) = delete;
    PropertyObserver& operator=(const PropertyObserver&) = delete;

    /// Binds the property of every node that has it; a node that has not is a warning, none that has it is fatal.
    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;
    virtual ~PropertyObserver();
    /// Whether the user may edit every bound property; also true when none is bound.
    virtual bool isPropertyWriteable() const;

    // Settings take effect at the next bind().
    /// The key of the property.
    void setModelProperty(const QString& key) { m_modelProperty = key; }
    QString modelProperty() const { return m_modelProperty; }
    /// Binds subparts of the nodes instead of the nodes: those that play one of the named roles, or with a text that
    /// has a
    /// "/" those of that class. Empty for the nodes themselves.
    void setSubpartId(const QString& selector) { m_subpartId = selector; }
    QString subpartId() const { return m_subpartId; }
    /// Unless INVALID_CID, the nodes are spaces: a domain's id takes the domain's property that the space holds, any
    /// other id the space's own.
    void setSpacePropertyCid(unsigned int cid) { m_spacePropertyCid = cid; }
    unsigned int spacePropertyCid() const { return m_spacePropertyCid; }
    /// Without it the widget is disabled, and nothing bound, when there is more than one node.
    void setSupportsMultipleProps(bool supports) { m_supportsMultipleProps = supports; }
    bool supportsMultipleProps() const { return m_supportsMultipleProps; }
    /// Whether each change makes an undo step of its own; without it, it joins the step on top of the history.
    void setPushUndoOnSetProperty(bool push) { m_pushUndoOnSetProperty = push; }
    bool getPushUndoOnSetProperty() const { return m_pushUndoOnSetProperty; }

    /// INVALID until a type was given or the first property bound.
    Value::Type valueType() const { return m_valueType; }
    /// The widget's object name, valid until the next call.
    const char* name() const;

protected:
    /// Shows the value of the first property and the state.
    virtual void setupWidget();
    /// Takes a property into the binding, each at most once. One of another type than the others is refused with a
    /// warning.
    virtual void addProperty(PropertyImpl* property);
    /// Shows a value of the bound properties in the widget, or that they differ (hasCompatibleValues()).
    virtual void onPropertyValueChanged(Property property, Value value) = 0;
    /// Writes the value to every bound property that has another, in one command; shows the model's value again when
    /// the command fails. The notifications may delete anything, this observer included.
    virtual void setPropertyValue(Value value);
    /// Whether the type is this observer's; warns when it is not.
    virtual bool isTypeCompatible(Value::Type type) const;
    /// Whether all bound properties have the same value.
    virtual bool hasCompatibleValues() const;
    /// Whether every bound property may take the value.
    virtual bool validateValue(Value value) const;
    /// Shows the widget's text in red while what the user entered is not valid.
    virtual void setDisplayValid(bool valid);
    /// While what the user entered is not valid, the reason stands in the widget's tool tip and accessible description;
    /// an empty text brings its own ones back.
    void setDisplayReason(const QString& reason);
    /// Why the properties may not take a value: one translated sentence; empty when they may.
    QString refusalReason(const Value& value) const;
    /// The nearest value that the properties may take; the value itself, with a warning, where they do not say the
    /// same.
    virtual Value fixupValue(Value value);
    /// Enables the widget as the properties allow; hides it, for good, when one is hidden.
    virtual void onStateChanged();
    /// Shows the first property's value again.
    virtual void onValidatorChanged();
    /// Lets go of a property that is being destroyed.
    virtual void onPropertyDeleted(QObject* object);
    /// What is compared of a value when mixed values are looked for: what the widget shows of it.
    virtual Value comparableValue(const Value& value) const { return value; }
    /// Takes a property into the list and follows what may be done with it, and its end, but not its value. The
    /// validator may be null for an observer that never writes.
    void watchProperty(PropertyImpl* property, const std::shared_ptr<interface::Validator>& validator);
    /// To be called when comparableValue() changed its mind (another unit, say).
    void forgetAgreement() { m_agreedValue.reset(); }
    /// The distinct validators of the bound properties.
    const ValidatorSet& validators() const { return *m_validators; }
    /// From here to endGesture() all that is written makes one undo step, the first write's. A gesture is what the user
    /// holds: a button, a key, the mouse.
    void beginGesture();
    void endGesture();
    /// Ends the gesture and takes back what it wrote, leaving nothing to redo. False when it wrote nothing that is the
    /// last step of the history; nothing is taken back then. The notifications may delete anything, this observer
    /// included.
    bool cancelGesture();

    /// Called after the last bound property was destroyed: ends connections to what outlives it.
    virtual void dropSharedConnections();

    /// What may be edited can change with what a property follows.
    void onProxyTargetChanged(Property property);

    /// Adds the subparts of the nodes that subpartId() selects.
    void getMatchingSubparts(const std::set<NodeImpl*>& nodes, std::set<NodeImpl*>& out) const;
    /// The colour of a text that is not valid.
    static const QColor& invalidColor();

    /// Whether the widget is just being made to show what the model has, so that its signals are no edits.
    bool isShowingValue() const { return m_showingValue > 0; }
    /// Shows the first property's value, as an answer to something other than a change of it.
    void showFirstValue();
    /// Changes whenever the binding does; tells after a question to the user whether the answer still belongs to it.
    unsigned int bindingNumber() const { return m_bindingNumber; }
    /// For changeEvent(EnabledChange) of the widget: keeps a widget over a read-only property disabled, whoever enabled
    /// it.
    void refuseEnabling();

    /// Marks the time during which the widget is made to follow the model. The observer may end before the mark does.
    class ZKEDITOR_EXPORT ShowingValue
    {
    public:
        explicit ShowingValue(PropertyObserver* observer);
        ~ShowingValue();
        ShowingValue(const ShowingValue&) = delete;
        ShowingValue& operator=(const ShowingValue&) = delete;

    private:
        PropertyObserver* m_observer;
        QPointer<POReceiver> m_alive;
    };

    DocumentImpl* m_document = nullptr; // of the last binding; alive while m_props is not empty
    PropertyList m_props;
    Value::Type m_valueType;
    bool m_displayValid = true;
    QWidget* m_widget;
    QString m_modelProperty;
    QString m_subpartId;
    ClassId m_spacePropertyCid = INVALID_CID;
    bool m_supportsMultipleProps = true;
    bool m_pushUndoOnSetProperty = true;
    POReceiver* m_receiver;

private:
    friend class POReceiver;

    void bindElementProperty(const std::set<NodeImpl*>& nodes);
    void bindElementNode(NodeImpl* node, Property::Key key);
    void bindSpaceProperty(const std::set<NodeImpl*>& nodes);
    bool isPropertyUIHidden() const;
    std::shared_ptr<const BindPass::Nodes> matchingSubparts(const std::set<NodeImpl*>& nodes) const;
    void setWidgetName(const QString& name);
    void nameWidgetAfterProperty();
    void followValue(const Property& property, const Value& value);
    void followState(PropertyImpl* property);
    void showValue(const Property& property, const Value& value);

    std::unique_ptr<ValidatorSet> m_validators;
    struct OwnTexts
    {
        QString toolTip;
        QString description;
    };
    std::optional<OwnTexts> m_ownTexts;   // the widget's, while a reason stands in their place
    std::optional<QPalette> m_ownPalette; // the widget's, where it has one of its own and shows red now
    mutable QByteArray m_name;
    bool m_widgetNamed = false;
    int m_showingValue = 0;
    bool m_inGesture = false;
    bool m_gestureWrote = false;
    const QUndoCommand* m_gestureStep = nullptr; // only compared, it may be gone
    unsigned int m_bindingNumber = 0;

    // Each property tells of its own changes one after the other; looking at all of them each time would take forever
    // with many. So the last answer is remembered: where a property was found that decides it, there the next search
    // begins; and while none was found, only the property that told something is looked at.
    mutable size_t m_differenceAt = 0;
    mutable std::optional<Value> m_agreedValue; // all properties have it
    mutable size_t m_readOnlyAt = 0;
    mutable bool m_allWriteable = false;
    mutable size_t m_hiddenAt = 0;
    mutable bool m_noneHidden = false;
    PropertyImpl* m_stateTeller = nullptr; // whose state notification is being followed
};
