// Proxies: following, chains, cycles, detaching, deletion of the target, and how all of it is undone.
#include "tests/support/testDocument.h"
#include "zkcore/commands/deleteNodeCommand.h"
#include "zkcore/commands/proxyCommands.h"
#include "zkcore/commands/setUILockedCommand.h"
#include "zkcore/model/propertyImpl.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

class ProxyTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(loadTestKit());
        m_document = std::make_unique<DocumentImpl>();
        m_a = addPart(*m_document, "testkit/box");
        m_b = addPart(*m_document, "testkit/box");
        m_c = addPart(*m_document, "testkit/box");
    }

    bool link(PropertyImpl* from, PropertyImpl* to)
    {
        return run<SetProxyCommand>(*m_document, Property(from), Property(to)).isValid();
    }

    std::unique_ptr<DocumentImpl> m_document;
    PartImpl* m_a = nullptr;
    PartImpl* m_b = nullptr;
    PartImpl* m_c = nullptr;
};

TEST_F(ProxyTest, aChainFollowsItsEndLive)
{
    PropertyImpl* a = property(m_a, "length");
    PropertyImpl* b = property(m_b, "length");
    PropertyImpl* c = property(m_c, "length");
    set(c, Value(0.5));
    ASSERT_TRUE(link(a, b));
    ASSERT_TRUE(link(b, c));
    EXPECT_EQ(a->getValue(), Value(0.5));
    EXPECT_EQ(m_a->valueOfProperty(a->key()), Value(0.5));
    EXPECT_TRUE(a->isProxyDependantOn(c));
    EXPECT_EQ(a->proxyRoot(), c);
    QSignalSpy changed(a, &PropertyImpl::ValueChanged);
    set(c, Value(0.25));
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][1].value<Value>(), Value(0.25));

    // Written through: "length" lets its followers write.
    ASSERT_TRUE(set(a, Value(0.125)));
    EXPECT_EQ(c->getValue(), Value(0.125));
    // A string property does not.
    ASSERT_TRUE(link(property(m_a, "name"), property(m_b, "name")));
    EXPECT_FALSE(set(property(m_a, "name"), Value(QStringLiteral("x"))));
    EXPECT_FALSE(property(m_a, "name")->userCanEdit());
}

TEST_F(ProxyTest, cyclesAndUnfitTargetsAreRefusedWithAReason)
{
    PropertyImpl* a = property(m_a, "length");
    PropertyImpl* b = property(m_b, "length");
    PropertyImpl* c = property(m_c, "length");
    ASSERT_TRUE(link(a, b));
    ASSERT_TRUE(link(b, c));
    EXPECT_FALSE(link(c, a));
    EXPECT_EQ(m_document->lastError(), QStringLiteral("The property follows this one already."));
    EXPECT_FALSE(link(c, c));
    EXPECT_FALSE(link(c, property(m_a, "name")));
    EXPECT_FALSE(link(property(m_a, "spot"), property(m_b, "spot"))) << "spot is no proxy target";
    EXPECT_TRUE(link(property(m_a, "count"), property(m_b, "length"))) << "numbers go together";
    set(c, Value(0.75));
    EXPECT_EQ(property(m_a, "count")->getValue(), Value(1)) << "rounded";
}

TEST_F(ProxyTest, detachingKeepsTheValueLastSeen)
{
    PropertyImpl* a = property(m_a, "length");
    PropertyImpl* b = property(m_b, "length");
    set(a, Value(0.01));
    set(b, Value(0.5));
    const QByteArray before = bytesOf(*m_document);
    link(a, b);
    const QByteArray linked = bytesOf(*m_document);
    QSignalSpy target(a, &PropertyImpl::ProxyTargetChanged);
    run<DetachProxyCommand>(*m_document, Property(a), true);
    EXPECT_EQ(target.count(), 1);
    EXPECT_FALSE(a->isProxy());
    EXPECT_EQ(a->getValue(), Value(0.5));
    set(b, Value(0.6));
    EXPECT_EQ(a->getValue(), Value(0.5));
    m_document->undo();
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), linked);
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), before);
    EXPECT_EQ(a->getValue(), Value(0.01)) << "its own value comes back";
}

TEST_F(ProxyTest, aTargetThatGoesLeavesItsValueAndComesBackWithUndo)
{
    PropertyImpl* a = property(m_a, "length");
    set(property(m_b, "length"), Value(0.5));
    link(a, property(m_b, "length"));
    const InstanceId b = m_b->instanceId();
    const QByteArray before = bytesOf(*m_document);
    run<DeleteNodeCommand>(*m_document, Node(m_b), Command::PushUndo);
    EXPECT_FALSE(a->isProxy());
    EXPECT_EQ(a->getValue(), Value(0.5));
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), before);
    ASSERT_TRUE(a->isProxy());
    EXPECT_EQ(a->proxySubject()->owner()->instanceId(), b);

    // Both ends in one command, in either order.
    for (const bool reversed : {false, true}) {
        std::vector<Node> both{Node(m_document->nodeById(b)), Node(m_document->nodeById(m_a->instanceId()))};
        const InstanceId aId = m_a->instanceId();
        if (reversed)
            std::swap(both[0], both[1]);
        run<DeleteNodeCommand>(*m_document, both, Command::PushUndo);
        m_document->undo();
        EXPECT_EQ(bytesOf(*m_document), before);
        m_a = static_cast<PartImpl*>(m_document->nodeById(aId));
    }
    m_document->redo();
    m_document->undo();
    EXPECT_EQ(bytesOf(*m_document), before);
}

TEST_F(ProxyTest, aLockedTargetCannotBeEditedThroughItsFollower)
{
    PropertyImpl* a = property(m_a, "length");
    link(a, property(m_b, "length"));
    ASSERT_TRUE(a->userCanEdit());
    QSignalSpy edit(a, &PropertyImpl::userCanEditChanged);
    run<SetUILockedCommand>(*m_document, std::vector<Node>{Node(m_b)}, LockPropertyValues, true);
    EXPECT_FALSE(a->userCanEdit());
    EXPECT_EQ(edit.count(), 1);
}

} // namespace
