// Interned identifiers: class ids and property keys.
#include "zkcore/base/classId.h"
#include "zkcore/base/propertyKey.h"

#include <QString>
#include <gtest/gtest.h>

namespace {

// Asked for before main() runs, as property keys of widgets are.
const PropertyKey earlyKey = PropertyKey::fromString("early-key");
const ClassId earlyClass = getCidForString("early/class");

TEST(ClassIdTest, SameTextGivesSameNumberAndBack)
{
    const ClassId block = getCidForString("electronics/block");
    EXPECT_NE(block, INVALID_CID);
    EXPECT_EQ(getCidForString(QStringLiteral("electronics/block")), block);
    EXPECT_NE(getCidForString("electronics/Block"), block);
    EXPECT_EQ(findStringForCid(block), QStringLiteral("electronics/block"));
    EXPECT_EQ(getCidForString("early/class"), earlyClass);
}

TEST(ClassIdTest, NothingAndUnknownNumbers)
{
    EXPECT_EQ(getCidForString(""), INVALID_CID);
    EXPECT_EQ(getCidForString(static_cast<const char*>(nullptr)), INVALID_CID);
    for (const ClassId cid : {INVALID_CID, 4000000000u}) {
        EXPECT_TRUE(findStringForCid(cid).isEmpty());
        EXPECT_EQ(getDomain(cid), INVALID_CID);
        EXPECT_TRUE(getDomainAsString(cid).isEmpty());
        EXPECT_FALSE(isDomain(cid));
    }
}

TEST(ClassIdTest, DomainIsFirstComponent)
{
    const ClassId step = getCidForString("flowcharts/loops/step");
    const ClassId domain = getDomain(step);
    EXPECT_EQ(findStringForCid(domain), QStringLiteral("flowcharts/*"));
    EXPECT_EQ(getDomainAsString(step), QStringLiteral("flowcharts"));
    EXPECT_TRUE(isDomain(domain));
    EXPECT_FALSE(isDomain(step));
    EXPECT_EQ(getDomain(domain), domain);
    EXPECT_FALSE(isDomain(getCidForString("flowcharts/loops/*")));
    EXPECT_FALSE(isDomain(getCidForString("/*")));
    EXPECT_EQ(getDomain(getCidForString("lonely")), getCidForString("lonely/*"));
}

TEST(ClassIdTest, NumbersHoldWhileTheTableGrows)
{
    const ClassId first = getCidForString("growth/0");
    for (int i = 0; i < 5000; ++i)
        getDomain(getCidForString(QStringLiteral("growth%1/x").arg(i)));
    EXPECT_EQ(getCidForString("growth/0"), first);
    EXPECT_EQ(findStringForCid(getDomain(getCidForString("growth4999/x"))), QStringLiteral("growth4999/*"));
}

TEST(PropertyKeyTest, TextAndBack)
{
    const PropertyKey key = PropertyKey::fromString("orientation-constraint");
    EXPECT_TRUE(key.isValid());
    EXPECT_EQ(key, PropertyKey::fromString(QStringLiteral("orientation-constraint")));
    EXPECT_EQ(key.toString(), QStringLiteral("orientation-constraint"));
    EXPECT_NE(key, PropertyKey::fromString("orientation"));
    EXPECT_EQ(PropertyKey::fromString("early-key"), earlyKey);
    EXPECT_FALSE(PropertyKey::fromString("").isValid());
    EXPECT_TRUE(PropertyKey().toString().isEmpty());
}

} // namespace
