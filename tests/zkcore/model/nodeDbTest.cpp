#include "zkcore/model/nodeDb.h"

#include "tests/support/testDocument.h"
#include "zkcore/commands/deleteNodeCommand.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<NodePrototype> classFor(const char* id, const char* base = "", NodeKind kind = NodeKind::Part)
{
    auto prototype = std::make_shared<NodePrototype>();
    prototype->cid = getCidForString(id);
    prototype->base = getCidForString(base);
    prototype->kind = kind;
    return prototype;
}

void addText(NodePrototype& prototype, const char* key)
{
    PropertyDefinition definition;
    definition.key = PropertyKey::fromString(key);
    definition.type = Value::STRING;
    definition.defaultValue = Value(QString());
    prototype.addProperty(definition);
}

} // namespace

TEST(NodeDb, FillsBasesAndRefusesIdsThatAreTaken)
{
    NodeDb db;
    std::vector<unsigned int> added;
    QObject::connect(&db, &NodeDb::prototypeAdded, [&added](unsigned int cid) { added.push_back(cid); });
    const auto a = classFor("dbtest/a");
    const auto b = classFor("dbtest/b", "dbtest/a");
    const auto c = classFor("other/c", "dbtest/b");
    EXPECT_TRUE(db.addPrototype(a) && db.addPrototype(b) && db.addPrototype(c));
    EXPECT_FALSE(db.addPrototype(classFor("dbtest/a")));
    EXPECT_FALSE(db.addPrototype(nullptr));
    EXPECT_FALSE(db.addPrototype(classFor("")));
    EXPECT_EQ(added, (std::vector<unsigned int>{a->cid, b->cid, c->cid}));
    EXPECT_EQ(c->bases, (std::vector<ClassId>{b->cid, a->cid}));
    EXPECT_TRUE(c->instanceOf(a->cid));
    EXPECT_TRUE(c->instanceOf(getCidForString("other/*")));
    EXPECT_FALSE(c->instanceOf(getCidForString("dbtest/*"))) << "a base does not change the domain";
    EXPECT_FALSE(c->instanceOf(INVALID_CID));
    EXPECT_EQ(db.prototypes(), (std::vector<const NodePrototype*>{a.get(), b.get(), c.get()}));
    EXPECT_FALSE(db.hasPrototype(getCidForString("dbtest/none")));
    EXPECT_EQ(db.lookupPrototype(INVALID_CID), nullptr);
}

TEST(NodeDb, KnowsTheDomainsThatSpacesHaveSomethingOf)
{
    NodeDb db;
    const auto base = classFor("core/domain", "", NodeKind::Domain);
    base->abstract = true;
    const auto empty = classFor("dbempty/*", "core/domain", NodeKind::Domain);
    empty->addMetaProperties();
    const auto full = classFor("dbfull/*", "core/domain", NodeKind::Domain);
    addText(*full, "speed");
    EXPECT_TRUE(db.addPrototype(base) && db.addPrototype(empty) && db.addPrototype(full));
    EXPECT_EQ(db.domains(), std::vector<ClassId>{full->cid});
}

TEST(NodeDb, StandsInForUnknownClasses)
{
    NodeDb db;
    const auto part = classFor("core/part");
    part->abstract = true;
    part->label = QStringLiteral("Part");
    part->group = QStringLiteral("Things");
    addText(*part, "title");
    part->addMetaProperties();
    ASSERT_TRUE(db.addPrototype(part));

    const ClassId unknown = getCidForString("future/gadget");
    const NodePrototype* placeholder = db.prototypeOrPlaceholder(unknown, NodeKind::Part);
    ASSERT_TRUE(placeholder);
    EXPECT_TRUE(placeholder->placeholder);
    EXPECT_FALSE(placeholder->abstract);
    EXPECT_EQ(placeholder->label, QStringLiteral("future/gadget"));
    EXPECT_EQ(placeholder->find(PropertyKey::fromString("meta-label"))->defaultValue,
              Value(QStringLiteral("future/gadget")));
    EXPECT_TRUE(placeholder->group.isEmpty()) << "not offered to users";
    EXPECT_TRUE(placeholder->find(PropertyKey::fromString("title")));
    EXPECT_TRUE(placeholder->instanceOf(part->cid));
    EXPECT_EQ(db.prototypeOrPlaceholder(unknown, NodeKind::Part), placeholder);
    EXPECT_EQ(db.prototypeOrPlaceholder(part->cid, NodeKind::Part), part.get());
    // Without a common class there is still something to hang a node on.
    EXPECT_EQ(db.prototypeOrPlaceholder(getCidForString("future/scene"), NodeKind::Scene)->kind, NodeKind::Scene);

    // The real class takes the place; who still holds the placeholder holds something that lives.
    const auto real = classFor("future/gadget", "core/part");
    EXPECT_TRUE(db.addPrototype(real));
    EXPECT_EQ(db.lookupPrototype(unknown), real.get());
    EXPECT_EQ(placeholder->label, QStringLiteral("future/gadget"));
    EXPECT_EQ(db.prototypes().size(), 3u);
}

TEST(NodeDb, KeepsAPlaceholderAsLongAsANodeUsesIt)
{
    DocumentImpl document;
    NodeDb& db = *document.getNodeDb();
    const NodePrototype* placeholder = db.prototypeOrPlaceholder(getCidForString("future/lever"), NodeKind::Part);
    PartImpl* part = addPart(document, "future/lever");
    ASSERT_TRUE(part);
    EXPECT_FALSE(db.addPrototype(classFor("future/lever", "core/part")));
    EXPECT_EQ(&part->prototype(), placeholder);
    run<DeleteNodeCommand>(document, Node(part), 0);
    EXPECT_TRUE(db.addPrototype(classFor("future/lever", "core/part")));
}

TEST(NodePrototype, RulesNameClassesOrWholeDomains)
{
    const auto prototype = classFor("dbtest/board");
    prototype->rules.push_back({Role(QStringLiteral("pads")), {getCidForString("dbtest/pad")}, 8});
    prototype->rules.push_back({Role(QStringLiteral("pins")), {getCidForString("dbpins/*")}, 0});
    ASSERT_TRUE(prototype->ruleFor(getCidForString("dbtest/pad")));
    EXPECT_EQ(prototype->ruleFor(getCidForString("dbtest/pad"))->maximum, 8u);
    ASSERT_TRUE(prototype->ruleFor(getCidForString("dbpins/long")));
    EXPECT_EQ(prototype->ruleFor(getCidForString("dbpins/long"))->role, Role(QStringLiteral("pins")));
    EXPECT_FALSE(prototype->ruleFor(getCidForString("dbtest/pin")));
    EXPECT_FALSE(prototype->ruleFor(INVALID_CID));
}

TEST(NodePrototype, ReplacesAPropertyInItsPlace)
{
    const auto prototype = classFor("dbtest/props");
    addText(*prototype, "one");
    addText(*prototype, "two");
    PropertyDefinition changed = *prototype->find(PropertyKey::fromString("one"));
    changed.defaultValue = Value(QStringLiteral("new"));
    prototype->addProperty(changed);
    ASSERT_EQ(prototype->properties().size(), 2u);
    EXPECT_EQ(prototype->indexOf(changed.key), 0);
    EXPECT_EQ(prototype->properties()[0].defaultValue, Value(QStringLiteral("new")));
    EXPECT_EQ(prototype->indexOf(PropertyKey::fromString("three")), -1);
}
