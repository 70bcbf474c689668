// What a recorded session holds, and faulty ones. Random sessions are replayed in the tests of the commands.
#include "zkcore/storage/commandLog.h"
#include "tests/support/documentGenerator.h"
#include "tests/support/messageCapture.h"
#include "tests/support/qtPrinting.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/deleteNodeCommand.h"

#include <gtest/gtest.h>

namespace {

PropertyImpl* titleOf(DocumentImpl& document)
{
    return property(firstScene(document), "title");
}

QString faultOf(const QByteArray& entries)
{
    DocumentImpl document;
    QString error;
    EXPECT_FALSE(CommandLog::replay("<zksession version=\"1\">\n" + entries + "</zksession>", &document, error));
    return error;
}

TEST(CommandLogTest, recordsWhatSucceededFromItsMakingToItsEnd)
{
    DocumentImpl document;
    loadGeneratedDocument(document, 100);
    set(titleOf(document), Value(QStringLiteral("before")));
    const QByteArray before = bytesOf(document);
    QByteArray session;
    {
        const CommandLog log(&document);
        set(titleOf(document), Value(QStringLiteral("one \"two\"\n<three>\r\x01")));
        // The only scene: refused.
        document.executeCommand(new DeleteNodeCommand(Node(firstScene(document)), Command::PushUndo));
        document.executeCommand(new DeleteNodeCommand(Node(firstScene(document)->parts()[2]), Command::PushUndo));
        document.undo();
        document.undo();
        document.redo();
        session = log.toXML();
    }
    const QByteArray after = bytesOf(document);
    set(titleOf(document), Value(QStringLiteral("not recorded")));
    EXPECT_EQ(session.count("<delete-node"), 1);
    EXPECT_EQ(session.count("<undo/>"), 2);

    DocumentImpl other;
    loadGeneratedDocument(other, 100);
    set(titleOf(other), Value(QStringLiteral("before")));
    ASSERT_TRUE(bytesOf(other) == before);
    QString error;
    EXPECT_TRUE(CommandLog::replay(session, &other, error)) << error.toStdString();
    EXPECT_TRUE(bytesOf(other) == after);
}

TEST(CommandLogTest, saysWhatIsWrongWithASession)
{
    DocumentImpl document;
    QString error;
    EXPECT_FALSE(CommandLog::replay("<session/>", &document, error));
    EXPECT_EQ(error, "1:10: this is no recorded session");
    EXPECT_FALSE(CommandLog::replay("", &document, error));
    EXPECT_EQ(error, "1:1: Premature end of document.");
    EXPECT_FALSE(CommandLog::replay("<zksession version=\"1\">", &document, error));
    EXPECT_EQ(error, "1:23: Premature end of document.");
    EXPECT_EQ(faultOf("<erase-all/>"), "2:12: there is no command <erase-all>");
    EXPECT_EQ(faultOf("\n<undo/>"), "3:7: there is nothing to undo");
    EXPECT_EQ(faultOf("<redo/>"), "2:7: there is nothing to redo");
    EXPECT_TRUE(faultOf("<delete-node><unexpected/></delete-node>").startsWith("2:"));
}

TEST(CommandLogTest, stopsAtTheFirstEntryThatFails)
{
    DocumentImpl document;
    QByteArray session;
    {
        const CommandLog log(&document);
        set(titleOf(document), Value(QStringLiteral("kept")));
        session = log.toXML();
    }
    const QByteArray entry =
        session.mid(session.indexOf("<set-value"), session.indexOf("</zks") - session.indexOf("<set-value"));
    const QByteArray gone = QByteArray(entry).replace("node=\"2\"", "node=\"2000\"").replace("kept", "lost");
    ASSERT_NE(gone.indexOf("2000"), -1) << entry.toStdString();
    DocumentImpl other;
    QString error;
    EXPECT_FALSE(
        CommandLog::replay("<zksession version=\"1\">\n" + entry + gone + entry + "</zksession>", &other, error));
    EXPECT_TRUE(error.contains("<set-value> failed: ")) << error.toStdString();
    EXPECT_EQ(titleOf(other)->getValue(), Value(QStringLiteral("kept")));
}

} // namespace
