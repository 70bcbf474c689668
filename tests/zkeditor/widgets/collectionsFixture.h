#pragma once

#include "controlsFixture.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/elementImpl.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QTemporaryDir>

/// A document with classes of the package "collections", and an active window for the editor that is tested.
class CollectionsTest : public ControlsTest
{
protected:
    static void SetUpTestSuite()
    {
        if (Package::findByClassID(getCidForString("collections/rack")))
            return;
        Package::all();
        QString error;
        ASSERT_TRUE(Package::load(QStringLiteral(ZK_SOURCE_DIR "/tests/zkeditor/data/collections"), error))
            << error.toStdString();
    }

    PartImpl* rack() { return add("collections/rack"); }

    /// Adds a widget that has no model property to the window.
    template <typename Widget> Widget& placeAs(Widget* widget, const char* name)
    {
        widget->setObjectName(QString::fromLatin1(name));
        window.layout()->addWidget(widget);
        show();
        return *widget;
    }

    static QString idOf(const NodeImpl* node) { return node->valueOfProperty(coreKeys::id()).toQString(); }
    static QStringList subpartIds(const PartImpl* part)
    {
        QStringList ids;
        for (const ElementImpl* subpart : part->allSubparts())
            ids.append(idOf(subpart));
        return ids;
    }
    /// Undoes one step, checks that it was the only one since the bytes were taken, and does it again.
    void expectOneStepSince(const QByteArray& before, int steps)
    {
        EXPECT_EQ(undoSteps(), steps + 1);
        const QByteArray after = bytesOf(document);
        EXPECT_NE(after, before);
        document.undo();
        EXPECT_EQ(bytesOf(document), before);
        document.redo();
        EXPECT_EQ(bytesOf(document), after);
        document.undo();
        QCoreApplication::processEvents();
    }

    /// A picture file of that name in the test's folder.
    QString picture(const QString& name, const QColor& color = Qt::red) const
    {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(color);
        const QString file = folder.filePath(name);
        EXPECT_TRUE(image.save(file));
        return file;
    }

    QTemporaryDir folder;
};

/// Lets everything happen that was put off, deletions included.
inline void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Types a text into the editor that is open in a list.
inline void typeInPlace(QWidget* view, const QString& text, Qt::Key end = Qt::Key_Return)
{
    auto* edit = view->findChild<QLineEdit*>();
    ASSERT_TRUE(edit);
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, end);
    settle();
}
