#include "zkeditor/widgets/paletteBoxSection.h"

#include "zkcore/media/resource.h"
#include "zkcore/media/resourceEntry.h"
#include "zkeditor/loadUIFromResource.h"
#include "zkeditor/widgets/paletteButtonBar.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <gtest/gtest.h>
#include <memory>

TEST(PaletteBoxSectionTest, FormSaysHowItStarts)
{
    const QByteArray xml =
        "<?xml version=\"1.0\"?><ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
        "<layout class=\"QVBoxLayout\"><item><widget class=\"PaletteBoxSection\" name=\"more\">"
        "<property name=\"open\"><bool>false</bool></property><property name=\"label\"><string>More</string></property>"
        "<layout class=\"QVBoxLayout\"><property name=\"topMargin\"><number>24</number></property>"
        "<item><widget class=\"QLabel\" name=\"a\"/></item><item><widget class=\"QLabel\" name=\"b\"/></item></layout>"
        "</widget></item></layout></widget></ui>";
    const Resource resource(std::make_shared<LocalREntry>("local/form", Resource::FORM, xml, "ui"));
    const std::unique_ptr<QWidget> form(loadUIFromResource(resource, nullptr));
    ASSERT_TRUE(form);
    auto* section = form->findChild<PaletteBoxSection*>();
    ASSERT_TRUE(section);
    EXPECT_FALSE(section->open());
    EXPECT_EQ(section->label(), QString("More"));
    const auto* header = section->findChild<PaletteButtonBar*>();
    EXPECT_EQ(header->text(), QString("More    [closed]"));

    // Lifted out of a form that was never shown, the contents still stand in their order.
    QWidget pane;
    const QWidget* contents = section->getSectionWidget(&pane);
    ASSERT_EQ(contents->layout()->count(), 2);
    EXPECT_EQ(contents->layout()->itemAt(0)->widget()->objectName(), QString("a"));
    EXPECT_EQ(contents->size(), contents->sizeHint());
}

TEST(PaletteBoxSectionTest, BuiltInPicturesFollowThePalette)
{
    const auto left = [](QIcon::State state) { return PaletteBoxSection::getLeftIcon(QIcon::Normal, state); };
    EXPECT_EQ(left(QIcon::On).size(), QSize(21, 17));
    EXPECT_EQ(left(QIcon::Off).size(), QSize(21, 17));
    EXPECT_NE(left(QIcon::On).toImage(), left(QIcon::Off).toImage());
    EXPECT_EQ(PaletteBoxSection::getRightIcon(QIcon::Active, QIcon::Off).size(), QSize(18, 17));
    const QPixmap center = PaletteBoxSection::getCenterIcon(QIcon::Active, QIcon::Off);
    EXPECT_EQ(center.size(), QSize(135, 17));
    EXPECT_EQ(center.toImage(), PaletteBoxSection::getCenterIcon(QIcon::Normal, QIcon::On).toImage());

    const QPalette before = QApplication::palette();
    PaletteButtonBar bar(4);
    bar.resize(100, 17);
    const auto ground = [&bar] { return bar.grab().toImage().pixelColor(60, 8).lightness(); };
    EXPECT_GT(ground(), 128);
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    bar.setPalette(QApplication::palette()); // a running application tells its widgets itself
    EXPECT_LT(ground(), 128);
    QApplication::setPalette(before);
    bar.setPalette(before);
    EXPECT_GT(ground(), 128);
}
