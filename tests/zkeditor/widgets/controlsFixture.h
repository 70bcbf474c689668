#pragma once

#include "observerFixture.h"
#include "zkcore/commands/setUILockedCommand.h"

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

/// A document with classes of the package "controls", and an active window for the control that is tested.
class ControlsTest : public ObserverTest
{
protected:
    static void SetUpTestSuite()
    {
        if (Package::findByClassID(getCidForString("controls/gauge")))
            return;
        Package::all();
        QString error;
        ASSERT_TRUE(Package::load(QStringLiteral(ZK_SOURCE_DIR "/tests/zkeditor/data/controls"), error))
            << error.toStdString();
    }

    void SetUp() override
    {
        new QVBoxLayout(&window);
        window.layout()->addWidget(other = new QLineEdit);
    }

    void show()
    {
        window.resize(300, 200);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        other->setFocus();
    }

    /// Adds the widget to the window and shows it, with the focus elsewhere.
    template <typename Widget> Widget& place(Widget* widget, const char* key)
    {
        widget->setObjectName(QString::fromLatin1(key));
        widget->setModelProperty(QString::fromLatin1(key));
        window.layout()->addWidget(widget);
        show();
        return *widget;
    }

    PartImpl* gauge() { return add("controls/gauge"); }
    void lock(NodeImpl* node) { run<SetUILockedCommand>(document, std::vector{Node(node)}, LockPropertyValues, true); }
    static double real(NodeImpl* node, const char* key) { return property(node, key)->getValue().toDouble(); }
    static Value number(double value) { return Value(value); }
    static Value whole(int value) { return Value(value); }

    QWidget window;
    QLineEdit* other = nullptr;
};
