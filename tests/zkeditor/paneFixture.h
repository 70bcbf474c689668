#pragma once

#include "tests/support/messageCapture.h"
#include "tests/support/testDocument.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/storage/package.h"

#include <QApplication>
#include <QMainWindow>
#include <QTest>
#include <QUndoStack>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

/// A document with classes of the package "panes", and an active window for a palette.
class PaneTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (Package::findByClassID(getCidForString("panes/tool")))
            return;
        Package::all();
        QString error;
        ASSERT_TRUE(Package::load(QStringLiteral(ZK_SOURCE_DIR "/tests/zkeditor/data/panes"), error))
            << error.toStdString();
    }

    PartImpl* add(const char* cid) { return addPart(*document, cid); }
    void select(const ElementImplSet& elements) { document->setSelection(elements); }
    static QString text(NodeImpl* node, const char* key) { return property(node, key)->getValue().toQString(); }
    int undoSteps() const { return document->undoStack()->count(); }
    static void loop() { QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    void show(QDockWidget* palette)
    {
        window.addDockWidget(Qt::LeftDockWidgetArea, palette);
        window.resize(500, 600);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    static void type(QWidget* field, const QString& text)
    {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }

    QMainWindow window;
    std::unique_ptr<DocumentImpl> document = std::make_unique<DocumentImpl>();
};
