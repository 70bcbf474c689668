// Elements with very many attributes, which the toolkit would compare with one another for hours.
#include "zkcore/storage/xmlGuard.h"

#include "zkcore/storage/fragmentXmlWriter.h"
#include "zkcore/storage/propertyList.h"

#include <QBuffer>
#include <gtest/gtest.h>

namespace {

QByteArray manyAttributes(int count, const QByteArray& value = "''")
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += " a" + QByteArray::number(i) + "=" + value;
    return text;
}

QByteArray wide(const QByteArray& bytes)
{
    QByteArray result("\xff\xfe");
    for (const char byte : bytes)
        result += QByteArray(1, byte) + QByteArray(1, '\0');
    return result;
}

} // namespace

TEST(XmlGuard, CountsTheAttributesOfEachElement)
{
    const int most = XmlAttributeCounter::maximum;
    const QByteArray fits = "<a" + manyAttributes(most) + ">" + "<b" + manyAttributes(most) + "/></a>";
    EXPECT_TRUE(XmlAttributeCounter::isHarmless(fits));
    for (const char* value : {"''", "\">\"", "'\"<=>'"}) {
        const QByteArray element = "<a" + manyAttributes(most + 1, value) + "/>";
        for (const char* start :
             {"", "<?xml version='1.0'?>", "<!-- ' -- > -->", "<!-- !- [ --->", "<b><![CDATA[ !- ]] <c d=' ]]]></b>"}) {
            const QByteArray before(start);
            EXPECT_FALSE(XmlAttributeCounter::isHarmless(before + element)) << start << value;
            EXPECT_FALSE(XmlAttributeCounter::isHarmless(wide(before + element)));
        }
    }
}

TEST(XmlGuard, TakesNothingElseForAttributes)
{
    const QByteArray many = manyAttributes(5000);
    for (const QByteArray& harmless :
         {QByteArray("<a>") + many + "</a>", "<!-- <a " + many + "-->", "<![CDATA[<a " + many + "]]>",
          "<?pi <a " + many + "?>", "<a b='" + QByteArray(5000, '=') + "'/>", QByteArray()})
        EXPECT_TRUE(XmlAttributeCounter::isHarmless(harmless)) << harmless.left(20).constData();

    // Cut anywhere
    const QByteArray whole = "<!-- <a " + many + "--><b>" + many + "</b>";
    for (int length = 1; length < 100; ++length) {
        XmlAttributeCounter counter;
        for (qsizetype i = 0; i < whole.size(); i += length)
            ASSERT_TRUE(counter.feed(QByteArrayView(whole).sliced(i, std::min<qsizetype>(length, whole.size() - i))));
    }
}

TEST(XmlGuard, StandsBeforeWhateverComesFromOutside)
{
    const QByteArray many = manyAttributes(200'000);
    const QString reason = QStringLiteral("an element has more than 1000 attributes");
    DocumentImpl document;
    QBuffer buffer;
    buffer.setData("<?xml version='1.0'?>\n<zkdoc version='1'" + many + "/>");
    buffer.open(QIODevice::ReadOnly);
    EXPECT_FALSE(document.loadFrom(buffer, QStringLiteral("wide.zkdoc")));
    EXPECT_TRUE(document.lastError().startsWith(QLatin1String("wide.zkdoc:2:"))) << document.lastError().toStdString();
    EXPECT_TRUE(document.lastError().endsWith(reason)) << document.lastError().toStdString();

    std::vector<NodeSnapshot> nodes;
    QString error;
    EXPECT_FALSE(FragmentXMLWriter::read("<zkfragment version='1'><part" + many + "/></zkfragment>",
                                         *document.getNodeDb(), nodes, error));
    EXPECT_TRUE(error.startsWith(QLatin1String("1:")) && error.endsWith(reason)) << error.toStdString();

    EXPECT_FALSE(parsePlstData("<plist version='1.0'><dict" + many + "/></plist>").isValid());
}
