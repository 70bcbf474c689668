#include "zkcore/widgetSupport/fonts.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

/// Gives the application its font back.
class FontsTest : public testing::Test
{
protected:
    void TearDown() override { QApplication::setFont(m_before); }
    QFont m_before = QApplication::font();
};

} // namespace

TEST_F(FontsTest, SizesFollowTheApplicationsFont)
{
    for (const double points : {10.0, 16.0}) {
        QFont font = m_before;
        font.setPointSizeF(points);
        QApplication::setFont(font);
        EXPECT_EQ(Fonts::getWidgetFont(Fonts::Normal).pointSizeF(), points);
        EXPECT_EQ(Fonts::getWidgetFont(Fonts::Tiny).pointSizeF(), points * 0.75);
        for (int size = Fonts::Tiny; size < Fonts::Title; ++size)
            EXPECT_LT(Fonts::getWidgetFont(Fonts::Size(size)).pointSizeF(),
                      Fonts::getWidgetFont(Fonts::Size(size + 1)).pointSizeF());
    }
    QFont pixels = m_before;
    pixels.setPixelSize(20);
    QApplication::setFont(pixels);
    EXPECT_EQ(Fonts::getWidgetFont(Fonts::Title).pixelSize(), 30);
    EXPECT_EQ(Fonts::getWidgetFont(Fonts::Size(7)), Fonts::getWidgetFont(Fonts::Title));
}

TEST_F(FontsTest, AllWidgetsOfATreeGetTheSizeAndKeepTheirStress)
{
    QWidget pane;
    auto* layout = new QVBoxLayout(&pane);
    auto* inner = new QWidget(&pane);
    layout->addWidget(inner);
    auto* heading = new QLabel(inner);
    QFont bold = heading->font();
    bold.setBold(true);
    bold.setPointSizeF(40.0);
    heading->setFont(bold);
    Fonts::setFontRecursively(&pane, Fonts::Small);
    const double size = Fonts::getWidgetFont(Fonts::Small).pointSizeF();
    for (const QWidget* widget : {&pane, inner, static_cast<QWidget*>(heading)})
        EXPECT_EQ(widget->font().pointSizeF(), size);
    EXPECT_TRUE(heading->font().bold());
    EXPECT_FALSE(inner->font().bold());
    Fonts::setFontRecursively(nullptr, Fonts::Small);
}
