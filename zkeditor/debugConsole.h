#pragma once

#include "zkeditor/export.h"

#include <QWidget>

class DebugConsoleHighlighter;
class QTextEdit;

/// A window that lists messages, coloured by level. One per process; the program shows it when it wants to. For the
/// thread of the user interface only.
class ZKEDITOR_EXPORT DebugConsole : public QWidget
{
    Q_OBJECT

public:
    /// Made, hidden, at the first call; never destroyed.
    static DebugConsole& getDebugConsole();

    /// Each appends one paragraph " LEVEL: text". The text is shown as it is, markup included; nothing is ever removed.
    void pushDebugMsg(const QString& text) const;
    void pushWarningMsg(const QString& text) const;
    void pushFatalMsg(const QString& text) const;

private:
    DebugConsole(QWidget* parent, const QString& name, Qt::WindowFlags flags);

    void pushLine(const QString& level, QString text) const;

    QTextEdit* m_textView;
    DebugConsoleHighlighter* m_highlighter;
};
