#pragma once

#include "zkeditor/export.h"

#include "zkcore/model/documentImpl.h"

#include <QPointer>
#include <QString>

class Command;

class PropertyList;
class QUndoCommand;
class Value;

/// Runs several commands that are one thing to the user: they make one undo step, and when one fails what the others
/// did is taken back.
class ZKEDITOR_EXPORT UndoGroup
{
public:
    explicit UndoGroup(DocumentImpl* document);

    /// What to construct the next command with: true for the one that opens the step.
    bool pushUndo() const { return !m_opened; }
    /// The same as the flags of commands that take those.
    int flags() const;
    /// Takes ownership and runs the command. False when it failed, or the document is gone; then nothing of the group
    /// is left in the document, and the group must not be used any more.
    bool run(Command* command);
    /// Sets those of the properties that have another value; the same as run() otherwise.
    bool setAll(const PropertyList& properties, const Value& value);
    /// Why a command failed, translated; empty when none did.
    QString error() const { return m_error; }

private:
    QPointer<DocumentImpl> m_document;
    const QUndoCommand* m_before; // only compared
    bool m_opened = false;
    QString m_error;
};
