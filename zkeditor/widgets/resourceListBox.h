#pragma once

#include "zkcore/media/resource.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/listEditor.h"
#include "zkeditor/widgets/propertyObserver.h"

#include <QStringList>
#include <vector>

class QLabel;
class ResourceModel;
class UndoGroup;

/// Edits a list of resources: files are added, several at once, by the button or by dropping them; rows are removed,
/// moved by dragging and by keys, and renamed in place; below stands a preview. Empty while the selected nodes have
/// different lists; what is added then becomes the list of all.
class ZKEDITOR_EXPORT ResourceListBox : public ListEditor, public PropertyObserver
{
    Q_OBJECT
    Q_PROPERTY(QString modelProperty READ modelProperty WRITE setModelProperty)
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)
    Q_PROPERTY(QString resourceType READ resourceType WRITE setResourceType)

public:
    explicit ResourceListBox(QWidget* parent = nullptr, const QString& name = {});

    void unbind() override;

    QString subpart() const { return subpartId(); }
    void setSubpart(const QString& selector) { setSubpartId(selector); }
    /// "image", "sound" and so on; when empty the kind of the first resource in the list, else images.
    QString resourceType() const { return m_typeName; }
    void setResourceType(const QString& name) { m_typeName = name; }

    /// Whether the list is empty because the nodes have different ones.
    bool showsNoValue() const { return m_noValue; }
    ResourceModel* model() const { return m_model; }

public Q_SLOTS:
    /// Asks for files and adds them behind the selected row.
    void addFiles();
    /// Takes files into the document and into the list, before a row, in one undo step: all of them, or none with a
    /// message when one cannot be used or the user breaks off.
    void addFiles(const QStringList& fileNames, int before);
    void removeSelected();
    /// Does not enable the box over a read-only property.
    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

protected:
    void setupWidget() override;
    void onPropertyValueChanged(Property property, Value value) override;
    void updateActions() override;
    void showMixed() override;
    void changeEvent(QEvent* event) override;

private:
    Resource::Type wantedType() const;
    void write(const std::vector<Resource>& resources, const QList<int>& toSelect);
    void moveSelected(int by);
    void moveRows(const QList<int>& rows, int before);
    QString refusalOf(int row, const QString& name) const;
    void rename(int row, const QString& name);
    void showPreview();

    ResourceModel* m_model;
    QLabel* m_preview;
    QAction* m_add;
    QAction* m_remove;
    QString m_typeName;
    bool m_noValue = false;
};
