#pragma once

#include "zkeditor/export.h"
#include "zkeditor/widgets/containerPaneWidget.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QGroupBox>

class ChildrenGate;

/// A group box that binds the observers in it. With a model property, a BOOL one, it is checkable and shows and sets
/// the property; what is in it is disabled while the box is not checked. Nodes that disagree show as partly checked; a
/// click then sets all of them.
///
/// A SubpartComboBox or SubpartListView in the box binds the other observers in it to the subpart that is chosen there.
class ZKEDITOR_EXPORT ObserverGroupBox : public QGroupBox, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit ObserverGroupBox(QWidget* parent = nullptr, const QString& name = {});

    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;

    /// Where the model property is looked for; the observers in the box have selectors of their own.
    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }

    /// Whether the nodes disagree.
    bool isMixed() const { return m_mixed; }

public Q_SLOTS:
    /// Does not enable the box over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    /// After the user clicked.
    void onWidgetValueChanged(bool checked);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void initStyleOption(QStyleOptionGroupBox* option) const override;
    void changeEvent(QEvent* event) override;

private:
    void updateGate();

    bool m_mixed = false; // first: making the others asks for the style
    ContainerPaneWidget m_contents;
    ChildrenGate* m_gate;
};
