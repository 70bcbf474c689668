#pragma once

#include "zkcore/media/resource.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/rowsModel.h"

#include <QSize>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

/// A resource in a list, which may hold it more than once.
struct ResourceRow
{
    Resource resource;
    QString label;
    int number = 0; // among the rows of the same resource

    std::pair<QString, int> key() const { return {resource.toString(), number}; }
    friend bool operator==(const ResourceRow& a, const ResourceRow& b)
    {
        return a.number == b.number && a.label == b.label && a.resource == b.resource;
    }
};

/// Resources with their names and pictures. Pictures are made when a view asks for them.
class ZKEDITOR_EXPORT ResourceModel : public RowsModel<ResourceRow>
{
    Q_OBJECT

public:
    explicit ResourceModel(QObject* parent = nullptr);
    ~ResourceModel() override;

    /// Under their own names, or under labels of the same number.
    void setResources(const std::vector<Resource>& resources, const std::vector<QString>& labels = {});
    std::vector<Resource> resources() const;
    void setPictureSize(const QSize& size) { m_pictureSize = size; }
    /// Whether names can be edited (of the document's own resources), rows moved, and files dropped.
    void setEditable(bool editable) { m_editable = editable; }

    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* content, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* content, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    void renameAsked(int row, const QString& name);
    /// The user dropped rows, or files, before a row; the number of rows stands for the end.
    void moveAsked(const QList<int>& rows, int before);
    void filesDropped(const QStringList& fileNames, int before);

private:
    QSize m_pictureSize{24, 24};
    bool m_editable = false;
};

/// Whether a resource is the document's own.
ZKEDITOR_EXPORT bool isLocalResource(const Resource& resource);
