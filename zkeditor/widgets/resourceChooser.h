#pragma once

#include "zkcore/media/resource.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QWidget>

class ComboBox;
class QAction;
class QHBoxLayout;
class QLabel;
class ResourceModel;

/// Edits a RESOURCE property: shows a preview and the name, offers the document's resources of the kind, imports and
/// exports files, and takes a file that is dropped on it. Without a preview and a name while the selected nodes have
/// different ones. What cannot be used is refused with the reason below.
class ZKEDITOR_EXPORT ResourceChooser : public QWidget, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(QString resourceType READ resourceType WRITE setResourceType)

public:
    explicit ResourceChooser(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    /// "image", "sound" and so on; when empty the kind that the property has, else has by default, else images. Takes
    /// effect at the next bind().
    QString resourceType() const { return m_typeName; }
    void setResourceType(const QString& name) { m_typeName = name; }

    ComboBox* list() const { return m_list; }
    /// Why the last file was refused; empty when none was.
    QString message() const;

public Q_SLOTS:
    /// Asks for a file and imports it.
    void importFile();
    /// Takes a file into the document and sets the properties to it, in one undo step. A file that cannot be used
    /// leaves everything as it was, with a message.
    void importFile(const QString& fileName);
    /// Asks for a file name and writes the resource there.
    void exportFile();
    void exportFile(const QString& fileName);
    /// Sets the properties to no resource.
    void clear();
    /// Does not enable the chooser over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected Q_SLOTS:
    /// After the user chose one of the document's resources.
    void onWidgetValueChanged(int index);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QAction* addButton(QHBoxLayout* row, const char* icon, const QString& text, const QKeySequence& keys);
    Resource::Type wantedType() const;
    void followResources();
    void buildList();
    void show(const Resource& resource);
    void setMessage(const QString& message);
    void choose(const Value& value);

    QLabel* m_preview;
    ComboBox* m_list;
    ResourceModel* m_model;
    QLabel* m_message;
    QAction* m_import;
    QAction* m_export;
    QAction* m_clear;
    QString m_typeName;
    Resource m_shown;
    bool m_listPending = false;
};
