#include "zkcore/model/undoStep.h"

#include "zkcore/model/modelMutator.h"

UndoStep::UndoStep(DocumentImpl& document, LiveText text, ChangeSet&& changes, Selection before, Selection after,
                   bool joins)
    : m_document(document), m_text(std::move(text)), m_before(std::move(before)), m_after(std::move(after)),
      m_joins(joins)
{
    m_changes.append(std::move(changes));
}

void UndoStep::undo()
{
    ModelMutator mutator(m_document, ModelMutator::Raw());
    m_changes.undo(mutator);
    m_document.m_selectionToRestore = m_before;
    m_done = false;
    if (m_forgotten)
        setObsolete(true);
}

void UndoStep::redo()
{
    if (m_done)
        return;
    ModelMutator mutator(m_document, ModelMutator::Raw());
    m_changes.redo(mutator);
    m_document.m_selectionToRestore = m_after;
    m_done = true;
}

bool UndoStep::mergeWith(const QUndoCommand* other)
{
    // The history hands the newcomer over only to be merged and then deletes it.
    auto* next = const_cast<UndoStep*>(static_cast<const UndoStep*>(other));
    if (!next->m_joins)
        return false;
    m_changes.append(std::move(next->m_changes));
    m_after = next->m_after;
    return true;
}
