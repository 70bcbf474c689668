#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/instanceId.h"
#include "zkcore/media/resource.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/role.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/rowsModel.h"

#include <QPointer>
#include <QSet>
#include <QString>
#include <memory>
#include <set>

/// A subpart of the selected parts: with several parts, those that have its id and class in each of them.
struct SubpartRow
{
    std::shared_ptr<const std::vector<InstanceId>> nodes; // one of each part; never empty
    ClassId cid = INVALID_CID;
    QString label;
    Resource icon;
    bool prescribed = false; // by the part's class

    InstanceId key() const { return nodes->front(); }
    friend bool operator==(const SubpartRow& a, const SubpartRow& b)
    {
        return a.cid == b.cid && a.label == b.label && a.icon == b.icon && a.prescribed == b.prescribed &&
               *a.nodes == *b.nodes;
    }
};

/// The subparts of a role of some parts, in the order of the first part. Follows what is added, removed, renamed and
/// moved, a moment later: many changes are one.
class ZKEDITOR_EXPORT SubpartModel : public RowsModel<SubpartRow>
{
    Q_OBJECT

public:
    explicit SubpartModel(QObject* parent = nullptr);
    ~SubpartModel() override;

    /// Which subparts: roles, or with a "/" a class.
    void setSelector(const QString& selector);
    QString selector() const { return m_selector; }
    /// Shows the subparts of the parts from now on; nodes that are no parts are passed over.
    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes);
    void unbind();
    /// Looks at the document now if anything has changed.
    void sync();

    DocumentImpl* document() const { return m_document; }
    /// The parts that are still there.
    std::vector<PartImpl*> parts() const;
    /// The subparts of a row that are still there.
    std::set<NodeImpl*> nodesOf(int row) const;
    /// Whether subparts with these roles belong here.
    bool selects(const ElementImpl* subpart) const;
    /// The classes of which subparts can be added to every part; each once, in the order of the first part's rules.
    std::vector<ClassId> addableClasses() const;

    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* content, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* content, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

    /// Whether names can be edited and rows moved.
    void setEditable(bool editable) { m_editable = editable; }

Q_SIGNALS:
    /// The user wants the row to have another name.
    void renameAsked(int row, const QString& name);
    /// The user dropped rows before another; the number of rows stands for the end.
    void moveAsked(const QList<int>& rows, int before);
    /// After the rows were looked at again.
    void synced();

private:
    void changed();
    void syncSoon();
    void updateLabel(InstanceId id);
    void onValueChanged(NodeImpl* node, PropertyKey key);
    bool concerns(const NodeImpl* node) const;
    std::vector<SubpartRow> findRows() const;

    QPointer<DocumentImpl> m_document;
    QString m_selector;
    ClassId m_class = INVALID_CID;   // of the selector
    RoleSet m_roles;                 // of the selector
    std::vector<InstanceId> m_parts; // in the order of their making
    QSet<InstanceId> m_partSet;
    QSet<InstanceId> m_renamed; // since the last sync()
    bool m_stale = false;       // more than names changed
    bool m_pending = false;
    bool m_editable = false;
};
