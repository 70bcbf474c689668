#include "zkeditor/widgets/undoGroup.h"

#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/model/takeBack.h"
#include "zkeditor/widgets/propertyList.h"

#include <QUndoStack>
#include <memory>

namespace {

const QUndoCommand* topStep(const DocumentImpl* document)
{
    const QUndoStack* history = document->undoStack();
    return history->command(history->index() - 1);
}

} // namespace

UndoGroup::UndoGroup(DocumentImpl* document) : m_document(document), m_before(topStep(document)) {}

int UndoGroup::flags() const
{
    return pushUndo() ? Command::PushUndo : Command::JoinUndo;
}

bool UndoGroup::run(Command* command)
{
    if (!m_document) {
        delete command;
        return false;
    }
    const Value result = m_document->executeCommand(command);
    if (!m_document)
        return false;
    if (!result.isValid()) {
        m_error = m_document->lastError();
        if (m_opened)
            takeBackLastStep(*m_document);
        return false;
    }
    // A command that changed nothing opened no step that the next one could join.
    m_opened = m_opened || topStep(m_document) != m_before;
    return true;
}

bool UndoGroup::setAll(const PropertyList& properties, const Value& value)
{
    auto command = std::make_unique<SetValueCommand>(pushUndo());
    bool differs = false;
    for (PropertyImpl* property : properties) {
        if (property->getValue() == value)
            continue;
        command->addProperty(Property(property), value);
        differs = true;
    }
    return !differs || run(command.release());
}
