#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/instanceId.h"
#include "zkcore/model/node.h"
#include "zkeditor/export.h"
#include "zkeditor/widgets/listEditor.h"
#include "zkeditor/widgets/subpartSource.h"

#include <vector>

class Command;
class QMenu;
class SubpartModel;

/// Lists the subparts of a role of the selected part: they can be added, removed, renamed in place, moved by dragging
/// and by keys, each in one undo step. With several parts it lists the subparts that each of them has (same id and
/// class), and does to all parts what is done to a row. In an ObserverGroupBox all other observers are bound to the
/// selected subparts.
class ZKEDITOR_EXPORT SubpartListView : public ListEditor, public SubpartSource
{
    Q_OBJECT
    Q_PROPERTY(QString subpart READ subpart WRITE setSubpart)
    Q_PROPERTY(bool supportsMultipleProps READ supportsMultipleProps WRITE setSupportsMultipleProps)

public:
    explicit SubpartListView(QWidget* parent = nullptr, const QString& name = {});

    void bind(DocumentImpl* document, const std::set<NodeImpl*>& nodes) override;
    void unbind() override;

    // Settings take effect at the next bind().
    /// The roles of the subparts listed, or with a "/" their class; all subparts when empty.
    QString subpart() const;
    void setSubpart(const QString& selector);
    /// Without it nothing is listed while several parts are selected.
    bool supportsMultipleProps() const { return m_supportsMultipleProps; }
    void setSupportsMultipleProps(bool supports) { m_supportsMultipleProps = supports; }

    /// The first of the selected subparts, of the first part; invalid when none is selected.
    Node selectedSubpart() const;
    SubpartModel* model() const { return m_model; }

public Q_SLOTS:
    /// Adds a subpart of the only class that is allowed, or offers the allowed ones in a menu.
    void addSubpart();
    void removeSelected();

Q_SIGNALS:
    /// Another subpart is the first selected one (the invalid handle: none).
    void selectedSubpartChanged(Node subpart);

protected:
    QWidget* sourceWidget() override { return this; }
    std::set<NodeImpl*> chosenNodes() const override;
    DocumentImpl* chosenDocument() const override;
    void updateActions() override;

private:
    void addOfClass(ClassId cid);
    void rename(int row, const QString& name);
    QString refusalOf(int row, const QString& name) const;
    void moveSelected(int by);
    void moveRows(const QList<int>& rows, int before);
    bool execute(Command* command);
    bool isWriteable() const;
    void onSynced();
    void follow();

    SubpartModel* m_model;
    QMenu* m_classes;
    QAction* m_add;
    QAction* m_remove;
    std::vector<InstanceId> m_chosen;
    std::vector<InstanceId> m_toSelect; // when they appear
    bool m_supportsMultipleProps = true;
    bool m_bound = false;
    bool m_losing = false; // rows go, and what was chosen perhaps with them
};
