#include "zkcore/model/role.h"

#include <gtest/gtest.h>

TEST(RoleSet, IsTheSameHoweverItIsWritten)
{
    const RoleSet set(QStringLiteral("pins, controls;pads"));
    EXPECT_EQ(set, RoleSet(QStringLiteral("  pads pins\n\tcontrols,, pins;")));
    EXPECT_EQ(set.roles().size(), 3u);
    EXPECT_EQ(RoleSet(set.toString()), set);
    EXPECT_TRUE(RoleSet(QStringLiteral(" ,; ")).empty());
    EXPECT_FALSE(set == RoleSet(QStringLiteral("pins controls Pads"))) << "names are case-sensitive";
}

TEST(RoleSet, Intersects)
{
    const Role pins(QStringLiteral("pins"));
    const RoleSet set(QStringLiteral("controls pins"));
    const RoleSet other(QStringLiteral("body pins pads"));
    EXPECT_EQ(set.intersect(other), RoleSet(pins));
    EXPECT_EQ(other.intersect(set), RoleSet(pins));
    EXPECT_TRUE(set.intersects(other));
    EXPECT_TRUE(set.contains(pins));
    EXPECT_FALSE(set.intersects(RoleSet(QStringLiteral("body"))));
    EXPECT_FALSE(set.intersects(RoleSet()));
    EXPECT_TRUE(set.intersect(RoleSet()).empty());
}

TEST(Role, WithoutNameIsInvalidAndInNoSet)
{
    EXPECT_FALSE(Role().isValid());
    EXPECT_FALSE(Role(QString()).isValid());
    EXPECT_TRUE(RoleSet(Role()).empty());
    EXPECT_EQ(Role(QStringLiteral("pins")).name(), QStringLiteral("pins"));
}
