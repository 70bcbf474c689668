#include "zkeditor/debugConsole.h"

#include "zkeditor/debugConsoleHighlighter.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextEdit>

DebugConsole& DebugConsole::getDebugConsole()
{
    static DebugConsole* const console = new DebugConsole(nullptr, {}, {});
    return *console;
}

DebugConsole::DebugConsole(QWidget* parent, const QString& name, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_textView(new QTextEdit(this)),
      m_highlighter(new DebugConsoleHighlighter(m_textView->document()))
{
    setObjectName(name);
    setWindowTitle(tr("Messages"));
    m_textView->setAccessibleName(windowTitle());
    m_textView->setReadOnly(true);
    m_textView->setUndoRedoEnabled(false); // would keep a second copy of every message
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_textView);
}

void DebugConsole::pushDebugMsg(const QString& text) const
{
    pushLine(QStringLiteral("DEBUG"), text);
}

void DebugConsole::pushWarningMsg(const QString& text) const
{
    pushLine(QStringLiteral("WARNING"), text);
}

void DebugConsole::pushFatalMsg(const QString& text) const
{
    pushLine(QStringLiteral("FATAL"), text);
}

void DebugConsole::pushLine(const QString& level, QString text) const
{
    // Not QTextEdit::append(), which would take markup in a message for its own. A message of several lines stays one
    // paragraph, so that all of it has the colour of its level.
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    const QScrollBar* bar = m_textView->verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    QTextCursor cursor(m_textView->document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    if (!m_textView->document()->isEmpty())
        cursor.insertBlock();
    cursor.insertText(QLatin1Char(' ') + level + QLatin1String(": ") + text);
    cursor.endEditBlock();
    if (atEnd)
        m_textView->verticalScrollBar()->setValue(bar->maximum());
}
