#include "zkcore/model/takeBack.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/model/undoStep.h"

#include <QUndoStack>

void takeBackLastStep(DocumentImpl& document)
{
    const QUndoStack* history = document.undoStack();
    const QUndoCommand* last = history->command(history->index() - 1);
    if (!last || document.isUndoRedoActive())
        return;
    static_cast<const UndoStep*>(last)->forgetWhenUndone();
    document.undo();
}
