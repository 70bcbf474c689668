#pragma once

#include "observerFixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

/// A document with classes of the package "choices", and an active window with a field before and after the control
/// that is tested.
class ChoicesTest : public ObserverTest
{
protected:
    static void SetUpTestSuite()
    {
        if (Package::findByClassID(getCidForString("choices/chooser")))
            return;
        Package::all();
        QString error;
        ASSERT_TRUE(Package::load(QStringLiteral(ZK_SOURCE_DIR "/tests/zkeditor/data/choices"), error))
            << error.toStdString();
    }

    void SetUp() override { new QVBoxLayout(&window); }

    /// Adds the widget to the window and shows it, with the focus elsewhere.
    template <typename Widget> Widget& place(Widget* widget, const char* key)
    {
        widget->setObjectName(QString::fromLatin1(key));
        widget->setModelProperty(QString::fromLatin1(key));
        window.layout()->addWidget(before = new QLineEdit);
        window.layout()->addWidget(widget);
        window.layout()->addWidget(after = new QLineEdit);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        before->setFocus();
        return *widget;
    }

    static Value number(double value) { return Value(value); }
    static double real(NodeImpl* node, const char* key) { return property(node, key)->getValue().toDouble(); }
    static int whole(NodeImpl* node, const char* key) { return property(node, key)->getValue().toInt(); }

    QWidget window;
    QLineEdit* before = nullptr;
    QLineEdit* after = nullptr;
};

/// How many pixels of the area differ from the one in their row that stands at `ground`.
inline int inkIn(const QImage& image, const QRect& area, int ground)
{
    int ink = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            ink += image.pixel(x, y) != image.pixel(ground, y);
    return ink;
}
