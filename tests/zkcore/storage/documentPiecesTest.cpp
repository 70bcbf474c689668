// Whatever is done to a document, its pieces give the same document as a whole save.
#include "zkcore/storage/documentPieces.h"
#include "tests/support/documentGenerator.h"
#include "tests/support/randomSession.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/model/changeMarks.h"
#include "zkcore/storage/recoveryFile.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace {

/// A document whose pieces are kept up to date.
struct Kept
{
    Kept() : marks([] {}), pieces(document) { document.setChangeMarks(&marks); }

    /// Looks for changes and writes for so long; 0 is one piece.
    bool look(int milliseconds)
    {
        pieces.mark(marks.take());
        return pieces.update(milliseconds);
    }

    /// What would be recovered, as it would be saved.
    QByteArray recovered()
    {
        while (!look(1000)) {
        }
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("r.zkdoc"));
        RecoveryFile file;
        file.written = QDateTime::currentDateTimeUtc();
        QString error;
        EXPECT_TRUE(file.write(name, {pieces.list(), document.localResources(), document.nextFreeId()}, error))
            << error.toStdString();
        DocumentImpl other;
        EXPECT_TRUE(other.recover(name, QString())) << other.lastError().toStdString();
        EXPECT_TRUE(other.isModified());
        return bytesOf(other);
    }

    DocumentImpl document;
    ChangeMarks marks;
    DocumentPieces pieces;
};

TEST(DocumentPiecesTest, holdTheDocumentAfterRandomChangesLookedAtAtRandomMoments)
{
    ASSERT_TRUE(loadTestKit());
    using Steps = std::vector<std::tuple<unsigned int, unsigned int, unsigned int>>;
    const bool held = rc::check("sessions", [] {
        const auto size = *rc::gen::inRange(1, 120);
        const auto number = rc::gen::inRange(0u, 1000u);
        const auto steps =
            *rc::gen::container<Steps>(static_cast<size_t>(size), rc::gen::tuple(number, number, number));
        Kept kept;
        addPart(kept.document, "testkit/lamp");
        RandomSession session(kept.document);
        for (const auto& [what, x, y] : steps) {
            session.step(what, x, y);
            if ((x + y) % 3 == 0)
                kept.look(0);
            if ((x + y) % 16 == 0)
                RC_ASSERT(kept.recovered() == bytesOf(kept.document));
        }
        RC_ASSERT(kept.recovered() == bytesOf(kept.document));
    });
    EXPECT_TRUE(held);
}

TEST(DocumentPiecesTest, followPartsThatAreSplitAndPutTogetherAgain)
{
    Kept kept;
    PartImpl* part = addPart(kept.document, "core/collections"); // takes any number of controls
    const InstanceId id = part->instanceId();
    EXPECT_EQ(kept.recovered(), bytesOf(kept.document));
    const size_t before = kept.pieces.pieceCount();
    for (int i = 0; i < 100; ++i)
        run<AddSubpartCommand>(kept.document, Node(part), getCidForString("core/control"));
    EXPECT_EQ(kept.recovered(), bytesOf(kept.document));
    EXPECT_GE(kept.pieces.pieceCount(), before + 100);

    // Changed, removed before that was looked at, and there again.
    set(property(part->getChildAt(90), "id"), Value(QStringLiteral("changed")));
    run<DeleteNodeCommand>(kept.document, Node(part), Command::PushUndo);
    kept.look(1000);
    kept.document.undo();
    EXPECT_EQ(kept.recovered(), bytesOf(kept.document));
    ASSERT_TRUE(kept.document.nodeById(id));
    while (kept.document.canUndo())
        kept.document.undo();
    EXPECT_EQ(kept.recovered(), bytesOf(kept.document));
    EXPECT_LT(kept.pieces.pieceCount(), before);
}

TEST(DocumentPiecesTest, writeOnlyWhatChanged)
{
    Kept kept;
    loadGeneratedDocument(kept.document, 2000);
    EXPECT_EQ(kept.recovered(), bytesOf(kept.document));
    const std::vector<QByteArray> first = kept.pieces.list();
    NodeImpl* part = firstScene(kept.document)->getChildAt(3);
    ASSERT_TRUE(set(property(part, "title"), Value(QStringLiteral("Other"))));
    EXPECT_EQ(kept.recovered(), bytesOf(kept.document));
    const std::vector<QByteArray> second = kept.pieces.list();
    ASSERT_EQ(first.size(), second.size());
    size_t others = 0;
    for (size_t i = 0; i < first.size(); ++i)
        others += first[i].constData() != second[i].constData() ? 1u : 0u;
    EXPECT_EQ(others, 1u);
}

} // namespace
