#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/containerPaneWidget.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QGroupBox>
#include <QPointer>
#include <vector>

class QAbstractButton;
class QButtonGroup;
class QRadioButton;

/// A group box whose radio buttons each stand for one value of a property; usually one with a set of allowed values.
/// All radio buttons in the box belong to it, also those in containers, but not those inside a GroupRadioButton or in a
/// pane widget, which binds its own contents. While the selected nodes have different values, or one that no button
/// stands for, none is checked. Binds the observers in the box as well.
///
/// The value of a button is named by its property "value", or by its text without the marks of shortcuts. The name is
/// that of an allowed value: as documents write it (in SI, lists with ", "), or as the user reads it (in the unit
/// shown, or translated). Without a set of allowed values it is any value of the type, written in one of these ways. A
/// button that stands for no value that is allowed is disabled.
class ZKEDITOR_EXPORT ObserverRadioGroup : public QGroupBox, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit ObserverRadioGroup(QWidget* parent = nullptr, const QString& name = {});
    ~ObserverRadioGroup() override;

    /// A button whose value cannot be made out is a warning.
    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }

public Q_SLOTS:
    /// Does not enable the group over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    /// After the user chose a button.
    void onWidgetValueChanged(QAbstractButton* button);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void onValidatorChanged() override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void followGesture(const QEvent* event);
    struct Choice
    {
        QPointer<QRadioButton> button;
        Value value;
        bool refused = false; // disabled because the value is not allowed
    };

    void collectButtons(const QWidget* container);
    void buildChoices();
    Value valueNamed(const QString& name) const;
    void showChoice(QRadioButton* chosen);
    bool moveBy(QObject* from, int step);

    ContainerPaneWidget m_contents;
    QButtonGroup* m_group;
    std::vector<Choice> m_choices;
};
