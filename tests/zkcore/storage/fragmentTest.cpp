// Parts as fragments: what drags and the clipboard carry.
#include "documentText.h"

#include "tests/support/documentGenerator.h"
#include "tests/support/qtPrinting.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/addNodesCommand.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/storage/addPartDrag.h"
#include "zkcore/storage/fragmentXmlWriter.h"

#include <QMimeData>
#include <gtest/gtest.h>

namespace {

class FragmentTest : public testing::Test
{
protected:
    void SetUp() override { loadGeneratedDocument(m_document, 200); }

    std::vector<NodeSnapshot> read(const QByteArray& fragment)
    {
        std::vector<NodeSnapshot> nodes;
        EXPECT_TRUE(FragmentXMLWriter::read(fragment, *m_document.getNodeDb(), nodes, m_error))
            << m_error.toStdString();
        return nodes;
    }
    QString faultOf(const QByteArray& fragment)
    {
        std::vector<NodeSnapshot> nodes(1);
        EXPECT_FALSE(FragmentXMLWriter::read(fragment, *m_document.getNodeDb(), nodes, m_error));
        EXPECT_TRUE(nodes.empty());
        return m_error;
    }

    DocumentImpl m_document;
    QString m_error;
};

TEST_F(FragmentTest, holdsPartsAsTheyAre)
{
    std::vector<const ElementImpl*> parts;
    for (const PartImpl* part : firstScene(m_document)->parts())
        parts.push_back(part);
    const std::vector<NodeSnapshot> nodes = read(FragmentXMLWriter::writeElements(parts));
    ASSERT_EQ(nodes.size(), parts.size());
    for (size_t i = 0; i < nodes.size(); ++i)
        EXPECT_EQ(difference(NodeSnapshot::of(*parts[i]), nodes[i]), QString());
}

TEST_F(FragmentTest, holdsEveryPartOnceAndNoneThatIsGone)
{
    PartImpl* part = firstScene(m_document)->parts()[0];
    ElementImpl* gone = firstScene(m_document)->parts()[1];
    const ElementImpl* subpart = part->allSubparts().front();
    m_document.executeCommand(new DeleteNodeCommand(Node(gone), Command::PushUndo));
    const std::vector<NodeSnapshot> nodes =
        read(FragmentXMLWriter::writeElements({subpart, part, nullptr, gone, part}));
    ASSERT_EQ(nodes.size(), 1u);
    EXPECT_EQ(nodes[0].id, part->instanceId());
    EXPECT_EQ(read(FragmentXMLWriter::writeElement(subpart))[0].kind, NodeKind::Subpart);
    EXPECT_TRUE(read(FragmentXMLWriter::writeElement(gone)).empty());
}

TEST_F(FragmentTest, isAddedUnderFreshIdsWithItsReferences)
{
    // The wire and the lights it joins.
    const std::vector<PartImpl*> parts = firstScene(m_document)->parts();
    const auto wire = std::find_if(parts.begin(), parts.end(), [](PartImpl* part) {
        return part->instanceOf(getCidForString("electronics/wire"));
    });
    ASSERT_NE(wire, parts.end());
    std::vector<const ElementImpl*> chosen(parts.begin(), wire + 1);
    std::vector<NodeSnapshot> nodes = read(FragmentXMLWriter::writeElements(chosen));
    const Value added = m_document.executeCommand(new AddNodesCommand(Node(firstScene(m_document)), std::move(nodes)));
    const std::vector<Value> made = added.toValueVector();
    ASSERT_EQ(made.size(), chosen.size()) << m_document.lastError().toStdString();
    NodeImpl* copy = made.back().toNode().impl();
    EXPECT_NE(copy->instanceId(), (*wire)->instanceId());
    const NodeImpl* end = copy->valueOfProperty(PropertyKey::fromString("to")).toNode().impl();
    ASSERT_TRUE(end);
    const auto isItsPart = [end](const Value& value) { return value.toNode().impl() == end->parentNode(); };
    EXPECT_TRUE(std::any_of(made.begin(), made.end(), isItsPart));
}

TEST_F(FragmentTest, travelsInDrags)
{
    QObject source;
    PartImpl* part = firstScene(m_document)->parts()[0];
    const AddPartDrag copy(part, &source);
    const AddPartDrag fresh(getCidForString("electronics/led"), *m_document.getNodeDb(), &source);
    std::vector<NodeSnapshot> nodes;
    ASSERT_TRUE(AddPartDrag::decode(copy.mimeData(), *m_document.getNodeDb(), nodes));
    EXPECT_EQ(difference(nodes[0], NodeSnapshot::of(*part)), QString());
    ASSERT_TRUE(AddPartDrag::decode(fresh.mimeData(), *m_document.getNodeDb(), nodes));
    ASSERT_EQ(nodes.size(), 1u);
    EXPECT_EQ(difference(nodes[0], NodeSnapshot::ofPrototype(*m_document.getNodeDb(), nodes[0].cid)), QString());
    EXPECT_FALSE(nodes[0].children.empty());

    QMimeData other;
    other.setText("<zkfragment version=\"1\"/>");
    EXPECT_FALSE(AddPartDrag::canDecode(&other));
    EXPECT_FALSE(AddPartDrag::canDecode(nullptr));
    EXPECT_FALSE(AddPartDrag::decode(&other, *m_document.getNodeDb(), nodes));
    other.setData(FragmentXMLWriter::fragmentMimeType(), "<zkfragment version=\"1\">");
    EXPECT_TRUE(AddPartDrag::canDecode(&other));
    EXPECT_FALSE(AddPartDrag::decode(&other, *m_document.getNodeDb(), nodes));
    EXPECT_TRUE(nodes.empty());
}

TEST_F(FragmentTest, isRefusedWhenFaulty)
{
    EXPECT_EQ(faultOf("no fragment"), "1:1: Start tag expected.");
    EXPECT_EQ(faultOf("<zkdoc version=\"1\"/>"), "1:20: this is no fragment");
    EXPECT_EQ(faultOf("<zkfragment version=\"9\"/>"), "1:25: the format version is missing or not known");
    EXPECT_EQ(faultOf("<!DOCTYPE a [<!ENTITY b \"c\">]><zkfragment version=\"1\"/>"),
              "1:30: document type declarations are not allowed");
    EXPECT_EQ(faultOf("<zkfragment version=\"1\"><scene class=\"core/scene\"/></zkfragment>"),
              "1:51: <scene> cannot stand here");
    EXPECT_EQ(faultOf("<zkfragment version=\"1\">\n<part class=\"core/text\" id=\"4\"/>\n"
                      "<part class=\"core/text\" id=\"4\"/></zkfragment>"),
              "3:32: instance id 4 is used twice");
    EXPECT_EQ(faultOf("<zkfragment version=\"1\">\n<part class=\"core/text\" id=\"4\"><value key=\"bold\" proxy=\"4\" "
                      "proxy-key=\"bold\">true</value></part></zkfragment>"),
              "2:76: property \"bold\" of node 4 follows itself, directly or through others");
}

} // namespace
