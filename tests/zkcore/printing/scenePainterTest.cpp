#include "zkcore/printing/scenePainter.h"
#include "zkcore/printing/elementGeometry.h"

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkcore/commands/reflectCommand.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

namespace {

constexpr double dotsPerMetre = 4000.0;

class ScenePainterTest : public testing::Test
{
protected:
    using Setup = std::function<void(ScenePainter&)>;

    QImage paintScene(const Setup& setup = {})
    {
        return paint([&](ScenePainter& painter) {
            if (setup)
                setup(painter);
            painter.paintSpace(*firstScene(m_document));
        });
    }

    static QImage paintAlone(const ElementImpl& element)
    {
        return paint([&](ScenePainter& painter) {
            painter.setLabelsShown(false);
            painter.paintElement(element);
        });
    }

    static QImage paint(const Setup& paintIt)
    {
        QImage image(400, 400, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(dotsPerMetre, dotsPerMetre);
        ScenePainter scenePainter(painter);
        const QTransform before = painter.transform();
        paintIt(scenePainter);
        EXPECT_EQ(painter.transform(), before);
        EXPECT_EQ(painter.opacity(), 1.0);
        return image;
    }

    /// The colour at a place in metres.
    static QColor at(const QImage& image, double x, double y)
    {
        return image.pixelColor(QPoint(static_cast<int>(x * dotsPerMetre), static_cast<int>(y * dotsPerMetre)));
    }

    static int inkIn(const QImage& image, const QRectF& metres)
    {
        int ink = 0;
        const QRect rect =
            QRectF(metres.topLeft() * dotsPerMetre, metres.size() * dotsPerMetre).toRect() & image.rect();
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            for (int x = rect.left(); x <= rect.right(); ++x)
                ink += image.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
        return ink;
    }

    DocumentImpl m_document;
};

} // namespace

TEST_F(ScenePainterTest, HiddenPartsAreLeftOutOrFaint)
{
    PartImpl* battery = addPart(m_document, "electronics/battery", {0.05, 0.05});
    const QImage shown = paintScene();
    set(property(battery, "visible"), Value(false));
    const QImage hidden = paintScene();
    EXPECT_EQ(inkIn(hidden, QRectF(0, 0, 0.1, 0.1)), 0);
    const QImage faint = paintScene([](ScenePainter& painter) { painter.setHiddenOpacity(0.3); });
    EXPECT_GT(inkIn(faint, QRectF(0, 0, 0.1, 0.1)), 1000);
    EXPECT_GT(at(faint, 0.052, 0.045).lightness(), at(shown, 0.052, 0.045).lightness() + 30);
}

TEST_F(ScenePainterTest, BodiesFollowSizeOrientationAndColor)
{
    PartImpl* block = addPart(m_document, "flowcharts/step", {0.05, 0.05});
    set(property(block, "size"), Value(zk::Point{0.08, 0.02}));
    const QColor fill(0xdf, 0xf3, 0xe0);
    ASSERT_TRUE(set(property(block, "fill"), Value(fill)));
    QImage image = paintAlone(*block);
    EXPECT_EQ(at(image, 0.02, 0.05), fill);
    EXPECT_EQ(at(image, 0.05, 0.02), QColor(Qt::white));
    set(property(block, "orientation"), Value(M_PI / 2));
    image = paintAlone(*block);
    EXPECT_EQ(at(image, 0.02, 0.05), QColor(Qt::white));
    EXPECT_EQ(at(image, 0.05, 0.02), fill);

    // So do parts of the user's own classes, which have the picture of the part they were made of.
    set(property(block, "orientation"), Value(0.0));
    const ClassId custom = getCidForString("flowcharts/pale-step");
    ASSERT_TRUE(m_document.addCustomPartDefinition(custom, block, QStringLiteral("Pale step")));
    image = paintAlone(*addPart(m_document, "flowcharts/pale-step", {0.05, 0.05}));
    EXPECT_EQ(at(image, 0.02, 0.05), fill);
}

TEST_F(ScenePainterTest, ConnectionsHaveTheirColorWidthAndArrow)
{
    PartImpl* upper = addPart(m_document, "electronics/resistor", {0.02, 0.03});
    PartImpl* lower = addPart(m_document, "electronics/resistor", {0.08, 0.03});
    PartImpl* link = addPart(m_document, "flowcharts/link");
    set(property(link, "from"), Value(Node(upper->allSubparts()[1])));
    set(property(link, "to"), Value(Node(lower->allSubparts()[0])));
    set(property(link, "color"), Value(QColor(Qt::red)));
    set(property(link, "width"), Value(0.002));
    set(property(link, "arrow"), Value(false));
    const QRectF between(0.045, 0.02, 0.002, 0.02);
    QImage image = paintAlone(*link);
    EXPECT_EQ(at(image, 0.05, 0.03), QColor(Qt::red));
    const int lineInk = inkIn(image, between);
    EXPECT_NEAR(lineInk, 0.002 * 0.002 * dotsPerMetre * dotsPerMetre, 10.0);

    set(property(link, "dashed"), Value(true));
    const QRectF whole = elementBounds(*link);
    EXPECT_LT(inkIn(paintAlone(*link), whole), inkIn(image, whole) * 9 / 10);
    set(property(link, "dashed"), Value(false));
    set(property(link, "width"), Value(0.0005));
    const int thin = inkIn(paintAlone(*link), whole);
    set(property(link, "arrow"), Value(true));
    EXPECT_GT(inkIn(paintAlone(*link), whole), thin + 40);
}

TEST_F(ScenePainterTest, ReflectionsShowOnlyTheirKind)
{
    PartImpl* button = addPart(m_document, "electronics/switch", {0.02, 0.02});
    const auto reflected = [&](Command* command) {
        auto* reflection = qobject_cast<PartImpl*>(m_document.executeCommand(command).toNode().impl());
        EXPECT_TRUE(reflection) << m_document.lastError().toStdString();
        set(property(reflection, "position"), Value(zk::Point{0.05, 0.05}));
        return paintAlone(*reflection);
    };
    const Node scene(firstScene(m_document));
    const QRectF all(0.03, 0.03, 0.04, 0.04);
    const QRectF pin(0.0595, 0.0525, 0.001, 0.001);
    const QImage controls = reflected(new ReflectControlsCommand(Part(button), scene));
    const QImage body = reflected(new ReflectBodyCommand(Part(button), scene));
    set(property(button, "position"), Value(zk::Point{0.05, 0.05}));
    const QImage original = paintAlone(*button);
    EXPECT_GT(inkIn(original, pin), 0);
    EXPECT_GT(inkIn(controls, all), 0);
    EXPECT_LT(inkIn(controls, all), inkIn(original, all));
    EXPECT_GT(inkIn(body, all), inkIn(controls, all));
    EXPECT_LT(inkIn(body, all), inkIn(original, all)); // without the pins
    EXPECT_NE(controls, body);
}

TEST_F(ScenePainterTest, PartsOfUnknownClassesAreDashedBoxesWithTheirName)
{
    QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("unknown.zkdoc"));
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<zkdoc version=\"1\" next-id=\"9\"><model "
               "class=\"core/model\" id=\"1\">"
               "<scene class=\"core/scene\" id=\"2\"><part class=\"sewing/needle\" id=\"3\"><value "
               "key=\"position\">0.05 0.05</value>"
               "<value key=\"size\">0.08 0.04</value></part></scene></model></zkdoc>");
    file.close();
    {
        const MessageCapture capture;
        ASSERT_TRUE(m_document.load(fileName)) << m_document.lastError().toStdString();
    }
    const QImage image = paintScene();
    const QRectF top(0.01, 0.0295, 0.08, 0.001);
    const int edge = inkIn(image, top);
    EXPECT_GT(edge, 0);
    int gaps = 0;
    for (double x = 0.012; x < 0.088; x += 0.00025)
        gaps += inkIn(image, QRectF(x, 0.0295, 0.0003, 0.001)) == 0 ? 1 : 0;
    EXPECT_GT(gaps, 10);
    EXPECT_GT(inkIn(image, QRectF(0.04, 0.045, 0.02, 0.01)), 50); // the name in the middle
    EXPECT_EQ(inkIn(image, QRectF(0.01, 0.075, 0.08, 0.01)), 0);  // and no label under it
}

TEST_F(ScenePainterTest, TextsAreWrittenInTheirColorAndPlace)
{
    PartImpl* text = addPart(m_document, "core/text", {0.05, 0.05});
    set(property(text, "size"), Value(zk::Point{0.08, 0.02}));
    set(property(text, "text"), Value(QStringLiteral("II")));
    set(property(text, "color"), Value(QColor(Qt::blue)));
    const QRectF leftHalf(0.01, 0.04, 0.04, 0.02);
    const QRectF rightHalf(0.05, 0.04, 0.04, 0.02);
    QImage image = paintAlone(*text);
    const int ink = inkIn(image, leftHalf);
    EXPECT_GT(ink, 0);
    EXPECT_EQ(inkIn(image, rightHalf), 0);
    set(property(text, "alignment"), Value(QStringLiteral("right")));
    set(property(text, "font-size"), Value(0.008));
    image = paintAlone(*text);
    EXPECT_EQ(inkIn(image, leftHalf), 0);
    EXPECT_GT(inkIn(image, rightHalf), ink * 2);
}

TEST_F(ScenePainterTest, OnlyWhatTouchesTheAreaIsPainted)
{
    addPart(m_document, "electronics/battery", {0.02, 0.02});
    addPart(m_document, "electronics/battery", {0.075, 0.075});
    const QImage image = paint(
        [&](ScenePainter& painter) { painter.paintSpace(*firstScene(m_document), QRectF(0.06, 0.06, 0.02, 0.02)); });
    EXPECT_EQ(inkIn(image, QRectF(0, 0, 0.045, 0.045)), 0);
    EXPECT_GT(inkIn(image, QRectF(0.055, 0.055, 0.045, 0.045)), 1000);
}
