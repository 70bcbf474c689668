#include "zkcore/storage/xmlUtils.h"

#include <QDomDocument>
#include <gtest/gtest.h>

TEST(XmlUtils, FindsTheFirstDirectChildElementOfThatName)
{
    QDomDocument document;
    ASSERT_TRUE(
        document.setContent(QStringLiteral("<a>b<c><b n='0'/></c><!-- b --><b n='1'/><b n='2'/><B n='3'/></a>")));
    const QDomElement root = document.documentElement();
    EXPECT_EQ(XMLUtils::findChildWithName(root, QStringLiteral("b")).toElement().attribute(QStringLiteral("n")),
              QStringLiteral("1"));
    EXPECT_TRUE(XMLUtils::findChildWithName(root, QStringLiteral("d")).isNull());
    EXPECT_TRUE(XMLUtils::findChildWithName(QDomNode(), QStringLiteral("b")).isNull());
}
