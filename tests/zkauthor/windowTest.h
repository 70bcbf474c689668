#pragma once

#include "zkauthor/mainWindow.h"

#include <QMessageBox>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

class ElementImpl;
class PropPalette;
class PartImpl;
class SceneView;

/// A main window on the screen with a document of a few parts: "lamp1" and "lamp2" (LEDs) and "cell" (a battery) in a
/// row, 40 mm apart, and a wire from the cell to lamp1. Settings go to a folder of the test.
class WindowTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    DocumentImpl& document() { return *m_window->document(); }
    SceneView& view();
    PropPalette* properties();
    PartImpl* part(const char* id);
    /// The middle of the part, in the view's viewport.
    QPoint placeOf(const char* id);
    void clickPart(const char* id, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Presses on the part and moves in small steps, without the release.
    void dragPart(const char* id, const QPoint& by);
    /// What the current selection is called.
    QStringList selectedIds();
    int undoSteps();
    QAction* action(const char* name);
    void trigger(const char* name);
    /// Keys to the widget that has the focus.
    void keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    /// Answers the next message box when it opens; its text and details go where they can be looked at.
    void answer(QMessageBox::StandardButton button);
    QString boxText() const { return m_boxText; }

    QTemporaryDir m_folder;
    std::unique_ptr<MainWindow> m_window;

private:
    QString m_boxText;
};
