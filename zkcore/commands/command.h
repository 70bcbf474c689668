#pragma once

#include "zkcore/base/export.h"
#include "zkcore/services/translate.h"
#include "zkcore/values/value.h"

#include <QString>
#include <memory>

class DocumentImpl;
class ModelMutator;
class QXmlStreamReader;
class QXmlStreamWriter;

/// Something done to a document. Made by whoever wants it done and handed to DocumentImpl::executeCommand, which owns
/// it from then on. Commands name nodes by instance id, never by pointer.
///
/// The base class guards the order: a command runs once, and all its changes go through the ModelMutator it is given,
/// which takes them back when the command fails and remembers them for undo when it succeeds.
class ZKCORE_EXPORT Command
{
public:
    enum Flag {
        JoinUndo = 0, ///< changes join the step on top of the undo history
        PushUndo = 1  ///< the command makes an undo step of its own
    };

    explicit Command(int flags);
    virtual ~Command();
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    int flags() const { return m_flags; }
    bool pushesUndo() const { return (m_flags & PushUndo) != 0; }

    /// Runs the command on the document; called by DocumentImpl::executeCommand. Asserts that it runs for the first
    /// time. The command's value; an invalid value when it failed (see error()).
    Value execute(const DocumentImpl* document);
    /// Why it failed, translated; empty when it did not.
    QString error() const { return m_error; }
    bool hasRun() const { return m_ran; }

    /// What the undo menu item says after "Undo ": translated.
    QString getUndoDescription() const { return liveUndoDescription()(); }
    /// The same for the undo history, which outlives the command and a change of the language.
    virtual LiveText liveUndoDescription() const = 0;
    /// One line for logs: what the command did or why it failed.
    virtual QString logStatus() const;

    /// The element name under which the command is recorded ("set-value").
    virtual QString getXMLClass() const = 0;
    /// Writes the command as one element of that name, with the instance ids of what it made when it has run.
    void toXML(QXmlStreamWriter& writer) const;
    /// Reads what toXML wrote; the reader stands on the element's start and is left on its end. On failure returns
    /// false and raises an error on the reader. A command read back makes the same instance ids again when it runs.
    bool fromXML(QXmlStreamReader& reader);

    /// A command by its element name, not filled yet; null for an unknown name.
    static std::unique_ptr<Command> create(const QString& xmlClass);

protected:
    /// Does the work. Ends with a value, or with fail().
    virtual Value run(ModelMutator& mutator) = 0;
    virtual void writeContent(QXmlStreamWriter& writer) const = 0;
    virtual bool readContent(QXmlStreamReader& reader) = 0;

    /// Notes why the command failed and gives the invalid value.
    Value fail(const QString& error);

private:
    friend class DocumentImpl;

    int m_flags;
    bool m_ran = false;
    QString m_error;
};
