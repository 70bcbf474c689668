#include "zkcore/services/openUrl.h"
#include "zkcore/services/productPackage.h"
#include "zkcore/services/statGraph.h"
#include "zkcore/services/statistic.h"
#include "zkcore/services/translate.h"

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"

#include <QCoreApplication>
#include <QImage>
#include <QMap>
#include <QPainter>
#include <QTranslator>
#include <QUrl>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

/// Translations by context and text.
class TableTranslator : public QTranslator
{
public:
    explicit TableTranslator(QMap<QString, QString> table) : m_table(std::move(table))
    {
        QCoreApplication::installTranslator(this);
    }
    ~TableTranslator() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return m_table.value(QString::fromUtf8(context) + QLatin1Char('|') + QString::fromUtf8(text));
    }

private:
    QMap<QString, QString> m_table;
};

} // namespace

TEST(ProductPackageTest, NamesTheProductAndItsFiles)
{
    ProductPackage& product = ProductPackage::instance();
    EXPECT_EQ(product.productCode(), QStringLiteral("ZK"));
    EXPECT_EQ(product.getLoadFilters().section(QStringLiteral(";;"), 0, 0), QStringLiteral("Models (*.zkdoc)"));
    EXPECT_EQ(product.version().count(QLatin1Char('.')), 2);
    product.setProductCode(QStringLiteral("QX"));
    EXPECT_EQ(ProductPackage::instance().productCode(), QStringLiteral("QX"));
    product.setProductCode(QStringLiteral("ZK"));
}

TEST(StatisticTest, SumsUpWhatIsAdded)
{
    Statistic& statistic = Statistic::get(QStringLiteral("test paint"), QStringLiteral("ms"));
    EXPECT_EQ(&Statistic::get(QStringLiteral("test paint")), &statistic);
    for (const double sample : {4.0, -2.0, 7.0})
        statistic.add(sample);
    statistic.add(std::numeric_limits<double>::quiet_NaN());
    statistic.add(std::numeric_limits<double>::infinity());
    EXPECT_EQ(statistic.count(), 3u);
    EXPECT_EQ(statistic.last(), 7.0);
    EXPECT_EQ(statistic.min(), -2.0);
    EXPECT_EQ(statistic.max(), 7.0);
    EXPECT_EQ(statistic.total(), 9.0);
    EXPECT_EQ(statistic.mean(), 3.0);
    EXPECT_EQ(statistic.toString(), QStringLiteral("test paint: last 7 ms, mean 3 (-2 to 7), 3 samples"));

    // After a reset no minimum is left of the time before.
    Statistic::resetAll();
    EXPECT_EQ(statistic.mean(), 0.0);
    statistic.add(5.0);
    EXPECT_EQ(statistic.min(), 5.0);

    {
        const Statistic::ScopedTimer timer(Statistic::get(QStringLiteral("a test timer")));
    }
    EXPECT_EQ(Statistic::get(QStringLiteral("a test timer")).count(), 1u);
    EXPECT_EQ(Statistic::all().front()->name(), QStringLiteral("a test timer"));
}

TEST(StatGraphTest, KeepsTheNewestSamplesAndDrawsThem)
{
    Statistic& statistic = Statistic::get(QStringLiteral("test graph"));
    {
        StatGraph gone(statistic);
    }
    StatGraph graph(statistic, 4);
    graph.setColor(Qt::red);
    EXPECT_TRUE(graph.samples().empty());
    for (const double sample : {100.0, 1.0, 1.0, 1.0, 9.0})
        statistic.add(sample);
    EXPECT_EQ(graph.samples(), (std::vector<double>{1.0, 1.0, 1.0, 9.0}));

    QImage image(100, 80, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    graph.paint(painter, QRectF(10, 10, 80, 60));
    painter.end();
    const auto hasRed = [&image](const QRect& area) {
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (image.pixelColor(x, y).green() < 128 && image.pixelColor(x, y).red() > 200)
                    return true;
        return false;
    };
    EXPECT_TRUE(hasRed(QRect(80, 25, 10, 15)));  // the newest, largest sample at the top right
    EXPECT_TRUE(hasRed(QRect(10, 55, 40, 15)));  // the small ones below
    EXPECT_FALSE(hasRed(QRect(10, 25, 50, 15))); // the one that left the ring is gone
    EXPECT_FALSE(hasRed(QRect(0, 0, 100, 10)));  // nothing outside the rectangle
}

TEST(OpenUrlTest, OpensHarmlessSchemesOnly)
{
    QStringList opened;
    bool works = true;
    setUrlOpener([&](const QUrl& url) {
        opened.append(url.toString());
        return works;
    });
    const MessageCapture capture;
    const QStringList good = {QStringLiteral("http://example.org/a"), QStringLiteral("https://example.org"),
                              QStringLiteral("mailto:a@example.org"), QStringLiteral("file:///tmp/help.html")};
    for (const QString& url : good)
        EXPECT_TRUE(openUrl(QUrl(url)));
    EXPECT_EQ(opened, good);
    EXPECT_TRUE(capture.isEmpty());

    for (const char* url : {"javascript:alert(1)", "ftp://example.org", "help.html", "", "http://[broken"})
        EXPECT_FALSE(openUrl(QUrl(QString::fromLatin1(url)))) << url;
    EXPECT_EQ(opened, good);
    EXPECT_EQ(capture.warnings().size(), 5);
    EXPECT_EQ(capture.warnings().value(0),
              QStringLiteral("openUrl: \"javascript:alert(1)\" is not opened, only http, https, mailto and file are"));

    works = false;
    EXPECT_FALSE(openUrl(QUrl(good[0])));
    EXPECT_EQ(capture.warnings().last(), QStringLiteral("openUrl: \"http://example.org/a\" could not be opened"));
    EXPECT_TRUE(setUrlOpener({}));
}

TEST(TranslateTest, LooksFromTheClassToItsBasesToItsDomain)
{
    ASSERT_TRUE(loadTestKit());
    DocumentImpl document;
    const PartImpl* box = addPart(document, "testkit/box");
    const QString on = QStringLiteral("On");
    EXPECT_EQ(translateStringFromContext(box, on), on);
    EXPECT_EQ(translateStringFromContext(nullptr, on), on);
    const TableTranslator domain({{QStringLiteral("testkit/*|On"), QStringLiteral("domain")}});
    EXPECT_EQ(translateStringFromContext(box, on), QStringLiteral("domain"));
    const TableTranslator root({{QStringLiteral("core/part|On"), QStringLiteral("root")}});
    EXPECT_EQ(translateStringFromContext(box, on), QStringLiteral("root"));
    const TableTranslator base({{QStringLiteral("testkit/base|On"), QStringLiteral("base")}});
    EXPECT_EQ(translateStringFromContext(box, on), QStringLiteral("base"));
    const TableTranslator own({{QStringLiteral("testkit/box|On"), QStringLiteral("own")}});
    EXPECT_EQ(translateStringFromContext(box, on), QStringLiteral("own"));
    EXPECT_EQ(translateStringFromContext(box, QStringLiteral("Off")), QStringLiteral("Off"));
}
