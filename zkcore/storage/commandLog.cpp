#include "zkcore/storage/commandLog.h"

#include "zkcore/commands/command.h"
#include "zkcore/model/documentImpl.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

constexpr const char sessionStart[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<zksession version=\"1\">\n";
constexpr const char sessionEnd[] = "</zksession>\n";

/// Does the entries of a recorded session one by one.
class SessionPlayer
{
    Q_DECLARE_TR_FUNCTIONS(CommandLog)

public:
    SessionPlayer(const QByteArray& session, DocumentImpl* document) : m_xml(session), m_document(document) {}

    bool play(QString& error)
    {
        if (playAll())
            return true;
        error = QStringLiteral("%1:%2: %3")
                    .arg(m_xml.lineNumber())
                    .arg(std::max<qint64>(m_xml.columnNumber(), 1))
                    .arg(m_xml.errorString());
        return false;
    }

private:
    bool fail(const QString& reason)
    {
        if (!m_xml.hasError())
            m_xml.raiseError(reason);
        return false;
    }

    bool playAll()
    {
        m_xml.setNamespaceProcessing(false);
        while (!m_xml.atEnd() && m_xml.readNext() != QXmlStreamReader::StartElement) {
            if (m_xml.isDTD())
                return fail(tr("document type declarations are not allowed"));
        }
        if (m_xml.hasError() || m_xml.qualifiedName() != u"zksession")
            return fail(tr("this is no recorded session"));
        if (m_xml.attributes().value(QLatin1String("version")) != u"1")
            return fail(tr("the format version is missing or not known"));
        while (m_xml.readNextStartElement()) {
            if (!playEntry())
                return false;
        }
        while (!m_xml.atEnd())
            m_xml.readNext();
        return !m_xml.hasError();
    }

    bool playEntry()
    {
        const QString name = m_xml.qualifiedName().toString();
        if (name == u"undo" || name == u"redo")
            return playHistory(name == u"undo");
        std::unique_ptr<Command> command = Command::create(name);
        if (!command)
            return fail(tr("there is no command <%1>").arg(name));
        if (!command->fromXML(m_xml) || m_xml.hasError())
            return fail(tr("the content of <%1> is faulty").arg(name));
        m_document->executeCommand(command.release());
        const QString reason = m_document->lastError();
        return reason.isEmpty() || fail(tr("<%1> failed: %2").arg(name, reason));
    }

    bool playHistory(bool undo)
    {
        if (!(undo ? m_document->canUndo() : m_document->canRedo()))
            return fail(undo ? tr("there is nothing to undo") : tr("there is nothing to redo"));
        if (undo)
            m_document->undo();
        else
            m_document->redo();
        m_xml.skipCurrentElement();
        return !m_xml.hasError();
    }

    QXmlStreamReader m_xml;
    DocumentImpl* m_document;
};

} // namespace

CommandLog::CommandLog(DocumentImpl* document) : m_document(document)
{
    m_document->setCommandListener([this](const Command* command, const QString& word) {
        if (command && !command->error().isEmpty())
            return;
        QByteArray entry; // a writer on the whole record would begin it anew
        QXmlStreamWriter xml(&entry);
        if (command)
            command->toXML(xml);
        else
            xml.writeEmptyElement(word);
        xml.writeCharacters(QStringLiteral("\n"));
        m_entries += entry;
    });
}

CommandLog::~CommandLog()
{
    if (m_document)
        m_document->setCommandListener({});
}

QByteArray CommandLog::toXML() const
{
    return sessionStart + m_entries + sessionEnd;
}

bool CommandLog::replay(const QByteArray& session, DocumentImpl* document, QString& error)
{
    error.clear();
    return SessionPlayer(session, document).play(error);
}
