// What new nodes bring along that follows other properties, some of which are not there.
#include "zkcore/commands/addNodesCommand.h"

#include "tests/support/testDocument.h"
#include "zkcore/storage/fragmentXmlWriter.h"

#include <QBuffer>
#include <gtest/gtest.h>

namespace {

class PastedLinks : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(loadTestKit()); }

    static bool load(DocumentImpl& document, const QByteArray& bytes)
    {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        return document.loadFrom(buffer, QStringLiteral("pasted.zkdoc"));
    }

    /// The new parts of a fragment pasted into the first scene.
    static std::vector<NodeImpl*> paste(DocumentImpl& document, const QByteArray& parts)
    {
        std::vector<NodeSnapshot> nodes;
        QString error;
        EXPECT_TRUE(FragmentXMLWriter::read("<zkfragment version=\"1\">" + parts + "</zkfragment>",
                                            *document.getNodeDb(), nodes, error))
            << error.toStdString();
        std::vector<NodeImpl*> made;
        for (const Value& node :
             run<AddNodesCommand>(document, Node(firstScene(document)), std::move(nodes)).toValueVector())
            made.push_back(node.toNode().impl());
        return made;
    }

    static QByteArray following(int id, int target, const char* key)
    {
        const QByteArray number = QByteArray::number(id);
        return "<part class=\"testkit/box\" id=\"" + number + "\"><value key=\"id\">box" + number +
               "</value><value key=\"count\" proxy=\"" + QByteArray::number(target) + "\" proxy-key=\"" + key +
               "\">7</value></part>";
    }
};

} // namespace

TEST_F(PastedLinks, LeadFromThoseThatComeFirstToo)
{
    DocumentImpl document;
    const std::vector<NodeImpl*> boxes = paste(document, following(50, 51, "count") + following(51, 52, "count") +
                                                             "<part class=\"testkit/box\" id=\"52\"/>");
    ASSERT_EQ(boxes.size(), 3U);
    EXPECT_EQ(property(boxes[0], "count")->proxySubject(), property(boxes[1], "count"));
    EXPECT_EQ(property(boxes[1], "count")->proxySubject(), property(boxes[2], "count"));
    const QByteArray pasted = bytesOf(document);
    document.undo();
    document.redo();
    EXPECT_EQ(bytesOf(document), pasted);
    DocumentImpl loaded;
    EXPECT_TRUE(load(loaded, pasted)) << loaded.lastError().toStdString();
    EXPECT_EQ(bytesOf(loaded), pasted);
}

TEST_F(PastedLinks, LeadNowhereByChance)
{
    // Wherever the fragment comes from, 3 to 9 were other nodes than they will be here.
    for (int target = 3; target < 10; ++target) {
        for (const char* key : {"count", "length", "name", "free"}) {
            DocumentImpl document;
            const std::vector<NodeImpl*> boxes = paste(document, following(50, target, key));
            ASSERT_EQ(boxes.size(), 1U);
            EXPECT_FALSE(property(boxes[0], "count")->isProxy());
            EXPECT_EQ(property(boxes[0], "count")->getValue(), Value(7));
            for (int i = 0; i < 5; ++i)
                addPart(document, "testkit/box");
            DocumentImpl loaded;
            EXPECT_TRUE(load(loaded, bytesOf(document))) << loaded.lastError().toStdString();
            EXPECT_EQ(loaded.loadWarnings(), QStringList());
        }
    }
}

TEST_F(PastedLinks, OfDocumentsNeverComeToMeanANewNode)
{
    DocumentImpl document;
    ASSERT_TRUE(load(document, "<zkdoc version=\"1\"><model class=\"core/model\" id=\"1\">"
                               "<scene class=\"core/scene\" id=\"2\">" +
                                   following(3, 9, "name") + "</scene></model></zkdoc>"));
    for (int i = 0; i < 10; ++i)
        addPart(document, "testkit/box");
    EXPECT_EQ(document.nodeById(9), nullptr);
    DocumentImpl loaded;
    EXPECT_TRUE(load(loaded, bytesOf(document))) << loaded.lastError().toStdString();
}

TEST_F(PastedLinks, DocumentsWithoutFreeIdsTakeNothingNew)
{
    DocumentImpl document;
    ASSERT_TRUE(load(document, "<zkdoc version=\"1\"><model class=\"core/model\" id=\"1\">"
                               "<scene class=\"core/scene\" id=\"4294967294\"/></model></zkdoc>"));
    const QByteArray before = bytesOf(document);
    EXPECT_TRUE(paste(document, "<part class=\"testkit/box\"/>").empty());
    EXPECT_EQ(document.lastError(), QStringLiteral("The document has no more instance ids for new objects."));
    EXPECT_EQ(bytesOf(document), before);
}
