#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/instanceId.h"

#include <QString>
#include <QTreeWidgetItem>

class NodeImpl;

/// A row of the inspector. It keeps only what makes up its texts, so that a hundred thousand of them are made quickly.
class InspectorItem : public QTreeWidgetItem
{
public:
    enum Column { ClassColumn, IdColumn, InstanceIdColumn, ColumnCount };

    explicit InspectorItem(const NodeImpl* node);

    /// What the row stands for. Not necessarily alive: a key to look up, not to ask.
    const NodeImpl* node() const { return m_node; }
    InstanceId instanceId() const { return m_instanceId; }
    void setId(const QString& id);
    QVariant data(int column, int role) const override;

    /// Where the row was put among its siblings; they are found again without a search for as long as siblings only go.
    void noteRow(int row);
    /// Its place now, -1 when it has no parent item.
    int row() const;
    /// Takes the row out of its parent item; it is the caller's then.
    void takeFromParent();

private:
    const NodeImpl* m_node;
    QString m_id;
    ClassId m_cid;
    InstanceId m_instanceId;
    int m_noted = 0;
    int m_goneThen = 0;     // m_childrenGone of the parent when the row was noted
    int m_childrenGone = 0; // how many were ever taken out of this one
};
