#pragma once

#include "zkcore/base/instanceId.h"
#include "zkeditor/export.h"

#include <QPointer>
#include <QWidget>

class ComboBox;
class DocumentImpl;
class ElementImpl;
class PropertyImpl;
class PropertyListBox;

/// Makes any property of an element follow another one: the first list chooses the property, the box below what it is
/// to follow. A hidden pane looks at nothing.
class ZKEDITOR_EXPORT LinkPane : public QWidget
{
    Q_OBJECT

public:
    explicit LinkPane(QWidget* parent = nullptr);
    ~LinkPane() override;

    /// Null lets go of the document. The same element again changes nothing that is chosen or typed.
    void setElement(ElementImpl* element);

    ComboBox* properties() const { return m_properties; }
    PropertyListBox* targets() const { return m_targets; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void list(ElementImpl* element);
    void bindChosen();

    ComboBox* m_properties;
    PropertyListBox* m_targets;
    QPointer<DocumentImpl> m_document;
    InstanceId m_element = 0;
    InstanceId m_listed = 0; // whose properties the list holds
    QPointer<PropertyImpl> m_bound;
};
