#include "zkeditor/widgets/readableColors.h"

#include "zkeditor/widgets/errorLabel.h"
#include "zkeditor/widgets/readablePalette.h"

#include <QApplication>
#include <gtest/gtest.h>

using readableColors::contrast;

TEST(ReadableColors, ChangeAsLittleAsIsNeeded)
{
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
    EXPECT_EQ(readableColors::on(Qt::white, Qt::blue), QColor(Qt::blue));
    for (const QColor& ground : {QColor(Qt::white), QColor(0x26, 0x28, 0x2b), QColor(0x80, 0x80, 0x80)}) {
        for (const QColor& color : {QColor(Qt::blue), QColor(Qt::red), QColor(0, 0, 0, 128), QColor(Qt::yellow)}) {
            const QColor changed = readableColors::on(ground, color);
            EXPECT_GE(contrast(changed, ground), 4.5);
            EXPECT_EQ(changed.alpha(), 255);
        }
        EXPECT_LT(contrast(readableColors::on(ground, ground), ground), 5.5);
    }
}

TEST(ReadablePalette, MendsWhatTheDesktopAndTheProgramChooseAndGivesItBack)
{
    const QPalette before = QApplication::palette();
    const auto readable = [] {
        const QPalette now = QApplication::palette();
        EXPECT_GE(contrast(now.color(QPalette::PlaceholderText), now.color(QPalette::Base)), 4.5);
        EXPECT_GE(contrast(now.color(QPalette::HighlightedText), now.color(QPalette::Highlight)), 4.5);
        EXPECT_GE(contrast(now.color(QPalette::Link), now.color(QPalette::Window)), 4.5);
    };
    {
        const ReadablePalette keeper;
        readable();
        EXPECT_EQ(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
        QPalette dark(QColor(0x30, 0x30, 0x30)); // leaves the links dark blue
        QApplication::setPalette(dark);
        readable();
        EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0x30, 0x30, 0x30));
        const QColor link = QApplication::palette().color(QPalette::Link);
        QApplication::setPalette(before);
        readable();
        EXPECT_NE(QApplication::palette().color(QPalette::Link), link);
    }
    EXPECT_EQ(QApplication::palette(), before);
}

TEST(ErrorLabel, IsRedOnTheGroundThatThereIs)
{
    const QPalette before = QApplication::palette();
    const auto setColors = [](const QPalette& palette) {
        QApplication::setPalette(palette);
        QApplication::processEvents(); // which brings it to the widgets
    };
    ErrorLabel label;
    label.show();
    const auto color = [&label] { return label.palette().color(QPalette::WindowText); };
    const auto ground = [&label] { return label.palette().color(QPalette::Window); };
    const QColor light = color();
    EXPECT_GE(contrast(light, ground()), 4.5);
    setColors(QPalette(QColor(0x30, 0x30, 0x30)));
    EXPECT_NE(color(), light);
    EXPECT_GE(contrast(color(), ground()), 4.5);
    EXPECT_GT(color().red(), color().green());
    label.setWrong(false);
    EXPECT_EQ(color(), QApplication::palette().color(QPalette::WindowText));
    setColors(before);
    EXPECT_EQ(color(), before.color(QPalette::WindowText));
    label.setWrong(true);
    EXPECT_EQ(color(), light);
}
