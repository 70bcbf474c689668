#include "zkcore/printing/elementGeometry.h"

#include "tests/support/testDocument.h"
#include "zkcore/printing/scenePainter.h"

#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr double millimetre = 0.001;

class ElementGeometryTest : public testing::Test
{
protected:
    static ElementImpl* pinOf(PartImpl* part, const char* id)
    {
        for (ElementImpl* subpart : part->allSubparts())
            if (subpart->valueOfProperty(PropertyKey::fromString("id")).toQString() == QLatin1String(id))
                return subpart;
        ADD_FAILURE() << id;
        return nullptr;
    }

    PartImpl* addWire(const char* cid, NodeImpl* from, NodeImpl* to)
    {
        PartImpl* wire = addPart(m_document, cid);
        EXPECT_TRUE(set(property(wire, "from"), Value(Node(from))));
        EXPECT_TRUE(set(property(wire, "to"), Value(Node(to))));
        return wire;
    }

    static QPointF placeOf(const ElementImpl& element) { return elementTransform(element).map(QPointF()); }

    DocumentImpl m_document;
};

void expectNear(const QPointF& actual, const QPointF& expected)
{
    EXPECT_NEAR(actual.x(), expected.x(), 1e-9);
    EXPECT_NEAR(actual.y(), expected.y(), 1e-9);
}

/// The corner points of the line, without the rounding.
QPolygonF cornersOf(const QPainterPath& path)
{
    QPolygonF corners;
    const auto at = [&path](int i) { return QPointF(path.elementAt(i).x, path.elementAt(i).y); };
    for (int i = 0; i < path.elementCount(); ++i) {
        // A quadratic curve is kept as a cubic one, whose first handle is two thirds of the way to the corner.
        if (path.elementAt(i).type == QPainterPath::CurveToElement)
            corners.append(at(i - 1) + (at(i) - at(i - 1)) * 1.5);
        else if (i == 0 || i + 1 == path.elementCount())
            corners.append(at(i));
    }
    return corners;
}

} // namespace

TEST_F(ElementGeometryTest, SubpartsStandWhereTheTurnedPartPutsThem)
{
    PartImpl* battery = addPart(m_document, "electronics/battery", {0.1, 0.05});
    expectNear(placeOf(*pinOf(battery, "positive")), QPointF(0.115, 0.05));
    ASSERT_TRUE(set(property(battery, "orientation"), Value(M_PI / 2)));
    // Clockwise, with y down: what was on the right is below now.
    expectNear(placeOf(*pinOf(battery, "positive")), QPointF(0.1, 0.065));
    const QRectF area = elementArea(*battery).boundingRect();
    EXPECT_NEAR(area.width(), 0.015, 1e-9);
    EXPECT_NEAR(area.height(), 0.03, 1e-9);
    expectNear(area.center(), QPointF(0.1, 0.05));
}

TEST_F(ElementGeometryTest, SquareLinesLeaveTheirPinsOutwardsAndTurnAtRightAngles)
{
    PartImpl* left = addPart(m_document, "electronics/resistor", {0.05, 0.05});
    for (const zk::Point& place :
         {zk::Point{0.15, 0.05}, zk::Point{0.15, 0.1}, zk::Point{0.02, 0.12}, zk::Point{0.05, 0.06}}) {
        PartImpl* right = addPart(m_document, "electronics/resistor", place);
        for (const double turn : {0.0, M_PI / 2, M_PI, -M_PI / 2}) {
            set(property(right, "orientation"), Value(turn));
            ElementImpl* from = pinOf(left, "b");
            ElementImpl* to = pinOf(right, "a");
            PartImpl* link = addWire("flowcharts/link", from, to);
            const QPolygonF corners = cornersOf(connectionPath(*link));
            ASSERT_GE(corners.size(), 2);
            expectNear(corners.first(), placeOf(*from));
            expectNear(corners.last(), placeOf(*to));
            EXPECT_GT(corners[1].x(), corners[0].x()); // the pin is on the right of its part
            for (qsizetype i = 1; i < corners.size(); ++i) {
                const QPointF step = corners[i] - corners[i - 1];
                EXPECT_LT(std::min(std::abs(step.x()), std::abs(step.y())), 1e-9) << i;
                EXPECT_GT(step.manhattanLength(), 0) << i;
            }
        }
    }
}

TEST_F(ElementGeometryTest, RoutesAndBendsAreFollowed)
{
    PartImpl* left = addPart(m_document, "electronics/resistor", {0.05, 0.05});
    PartImpl* right = addPart(m_document, "electronics/resistor", {0.15, 0.1});
    PartImpl* wire = addWire("electronics/wire", pinOf(left, "b"), pinOf(right, "a"));
    set(property(wire, "route"), Value(QStringLiteral("straight")));
    EXPECT_EQ(cornersOf(connectionPath(*wire)).size(), 2);
    set(property(wire, "bends"), Value(std::vector<zk::Point>{{0.1, 0.02}}));
    const QPolygonF corners = cornersOf(connectionPath(*wire));
    ASSERT_EQ(corners.size(), 3);
    expectNear(corners[1], QPointF(0.1, 0.02));

    // As thick as it is drawn, no thicker.
    set(property(wire, "width"), Value(2 * millimetre));
    const QPainterPath area = elementArea(*wire);
    const QPointF middle = (corners[0] + corners[1]) / 2;
    const QPointF along = corners[1] - corners[0];
    const QPointF across = QPointF(-along.y(), along.x()) / std::hypot(along.x(), along.y());
    EXPECT_TRUE(area.contains(middle + across * 0.9 * millimetre));
    EXPECT_FALSE(area.contains(middle + across * 1.1 * millimetre));
}

TEST_F(ElementGeometryTest, ALineWithoutBothEndsIsNone)
{
    PartImpl* part = addPart(m_document, "electronics/resistor", {0.05, 0.05});
    PartImpl* wire = addPart(m_document, "electronics/wire");
    EXPECT_TRUE(connectionPath(*wire).isEmpty());
    set(property(wire, "from"), Value(Node(pinOf(part, "a"))));
    EXPECT_TRUE(connectionPath(*wire).isEmpty());
    EXPECT_TRUE(elementBounds(*wire).isEmpty());
    set(property(wire, "to"), Value::fromInstanceId(123456));
    EXPECT_TRUE(connectionPath(*wire).isEmpty());
}

TEST_F(ElementGeometryTest, LabelsAreTitlesThenReferencesThenClasses)
{
    PartImpl* led = addPart(m_document, "electronics/led");
    EXPECT_EQ(elementLabel(*led), QStringLiteral("LED"));
    set(property(led, "reference"), Value(QStringLiteral("D1")));
    EXPECT_EQ(elementLabel(*led), QStringLiteral("D1"));
    set(property(led, "show-reference"), Value(false));
    EXPECT_EQ(elementLabel(*led), QStringLiteral("LED"));
    set(property(led, "title"), Value(QStringLiteral("Stop")));
    EXPECT_EQ(elementLabel(*led), QStringLiteral("Stop"));
    EXPECT_EQ(elementLabel(*addPart(m_document, "core/info")), QString());
    PartImpl* text = addPart(m_document, "core/text");
    set(property(text, "title"), Value(QStringLiteral("Heading")));
    EXPECT_EQ(elementLabel(*text), QString());
}

// What a view repaints and what a page leaves out goes by the bounds.
TEST_F(ElementGeometryTest, NothingIsPaintedOutsideTheBounds)
{
    for (const char* sample : {"nightlight", "crossing"}) {
        ASSERT_TRUE(m_document.load(QStringLiteral(ZK_SOURCE_DIR "/samples/%1.zkdoc").arg(QLatin1String(sample))));
        for (SceneImpl* scene : m_document.getModel()->getScenes()) {
            for (const PartImpl* part : scene->parts()) {
                constexpr double scale = 2000.0;
                constexpr int margin = 10;
                const QRectF bounds = elementBounds(*part);
                const QSize inner = (bounds.size() * scale).toSize() + QSize(2, 2);
                QImage image(inner + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
                image.fill(Qt::transparent);
                QPainter painter(&image);
                painter.translate(margin, margin);
                painter.scale(scale, scale);
                painter.translate(-bounds.topLeft());
                ScenePainter(painter).paintElement(*part);
                painter.end();
                bool inked = false;
                const QRect allowed = QRect(QPoint(margin, margin), inner).adjusted(-1, -1, 1, 1);
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x) {
                        if (qAlpha(image.pixel(x, y)) == 0)
                            continue;
                        inked = true;
                        ASSERT_TRUE(allowed.contains(x, y)) << part->displayName().toStdString() << " at " << x << ", "
                                                            << y << " of " << image.width() << " by " << image.height();
                    }
                }
                EXPECT_TRUE(inked) << part->displayName().toStdString();
            }
        }
    }
}
