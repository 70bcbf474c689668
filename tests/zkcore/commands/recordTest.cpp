// Random sessions: undone completely they give the first document back byte for byte, redone the last one, and a record
// of them replayed on the first document gives the last one too.
#include "tests/support/randomSession.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/command.h"
#include "zkcore/storage/commandLog.h"

#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace {

using Steps = std::vector<std::tuple<unsigned int, unsigned int, unsigned int>>;

void undoAll(DocumentImpl& document)
{
    while (document.canUndo())
        document.undo();
}

TEST(RecordTest, randomSessionsAreUndoneRedoneAndReplayedToTheByte)
{
    ASSERT_TRUE(loadTestKit());
    const bool held = rc::check("sessions", [] {
        const auto size = *rc::gen::inRange(1, 60);
        const auto steps = *rc::gen::container<Steps>(
            static_cast<size_t>(size),
            rc::gen::tuple(rc::gen::inRange(0u, 1000u), rc::gen::inRange(0u, 1000u), rc::gen::inRange(0u, 1000u)));
        DocumentImpl document;
        addPart(document, "testkit/lamp");
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("start.zkdoc"));
        RC_ASSERT(document.save(file));
        RC_ASSERT(document.load(file));
        const QByteArray start = bytesOf(document);

        QByteArray record;
        {
            CommandLog log(&document);
            RandomSession session(document);
            for (const auto& [what, x, y] : steps) {
                // Changes that join no step are not recorded, so the first one makes a step.
                if (!document.canUndo() && what % RandomSession::kinds != 0)
                    continue;
                session.step(what, x, y);
            }
            record = log.toXML();
        }
        const QByteArray end = bytesOf(document);

        DocumentImpl other;
        RC_ASSERT(other.load(file));
        QString error;
        const bool replayed = CommandLog::replay(record, &other, error);
        if (!replayed)
            RC_FAIL(error.toStdString());
        RC_ASSERT(bytesOf(other) == end);

        undoAll(document);
        RC_ASSERT(bytesOf(document) == start);
        while (document.canRedo())
            document.redo();
        undoAll(document);
        RC_ASSERT(bytesOf(document) == start);

        // A document saved anywhere loads into the same bytes.
        const QString last = folder.filePath(QStringLiteral("end.zkdoc"));
        RC_ASSERT(other.save(last));
        RC_ASSERT(document.load(last));
        RC_ASSERT(bytesOf(document) == end);
    });
    EXPECT_TRUE(held);
}

TEST(RecordTest, faultyRecordsAreRefusedWithTheirPlace)
{
    ASSERT_TRUE(loadTestKit());
    const auto replay = [](const QByteArray& entries) {
        DocumentImpl target;
        QString error;
        EXPECT_FALSE(CommandLog::replay(entries, &target, error)) << entries.toStdString();
        return error;
    };
    DocumentImpl document;
    const QByteArray frame = CommandLog(&document).toXML();
    EXPECT_FALSE(replay("").isEmpty());
    EXPECT_FALSE(replay("<nonsense/>").isEmpty());
    EXPECT_FALSE(replay(frame.left(frame.size() / 2)).isEmpty());
    for (const QByteArray entry :
         {"<no-such-command/>", "<set-value><set node=\"x\" key=\"a\" type=\"int\">1</set></set-value>",
          "<set-value><set node=\"1\" key=\"title\" type=\"int\">one</set></set-value>", "<set-value flags=\"9\"/>",
          "<delete-node nodes=\"1 two\"/>", "<set-ui-locked group=\"7\" nodes=\"1\"/>", "<delete-node nodes=\"999\"/>",
          "<add-part parent=\"2\"><part class=\"testkit/box\" id=\"2\"/></add-part>"}) {
        QXmlStreamReader reader(entry);
        reader.readNextStartElement();
        const auto command = Command::create(reader.name().toString());
        if (!command)
            continue;
        DocumentImpl target;
        if (command->fromXML(reader))
            EXPECT_FALSE(command->execute(&target).isValid()) << entry.toStdString();
        else
            EXPECT_TRUE(reader.hasError());
    }
    EXPECT_EQ(Command::create(QStringLiteral("no-such-command")), nullptr);
}

} // namespace
