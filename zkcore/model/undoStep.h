#pragma once

#include "zkcore/base/instanceId.h"
#include "zkcore/model/changeSet.h"
#include "zkcore/services/translate.h"

#include <QUndoCommand>
#include <memory>
#include <vector>

class DocumentImpl;

/// One step of a document's undo history: changes, and what was selected before and after them.
class UndoStep : public QUndoCommand
{
public:
    using Selection = std::shared_ptr<const std::vector<InstanceId>>;

    UndoStep(DocumentImpl& document, LiveText text, ChangeSet&& changes, Selection before, Selection after, bool joins);

    /// What the step did, in the language of now.
    QString description() const { return m_text(); }
    void undo() override;
    /// Does nothing when the step enters the history: its changes are done already.
    void redo() override;
    /// Makes undo() take the step out of the history. Const, as a history shows its steps to everybody.
    void forgetWhenUndone() const { m_forgotten = true; }
    int id() const override { return 1; }
    /// Takes in a step that joins this one.
    bool mergeWith(const QUndoCommand* other) override;

private:
    DocumentImpl& m_document;
    LiveText m_text;
    ChangeSet m_changes;
    Selection m_before;
    Selection m_after;
    bool m_joins;
    bool m_done = true;
    mutable bool m_forgotten = false;
};
