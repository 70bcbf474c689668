#include "zkeditor/messagesPane.h"

#include "zkeditor/debugConsole.h"
#include "zkeditor/debugConsoleHighlighter.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int messageLimit = 2000;

} // namespace

MessagesPane::MessagesPane(QWidget* parent)
    : QWidget(parent), m_source(DebugConsole::getDebugConsole().findChild<QTextEdit*>()->document()),
      m_text(new QPlainTextEdit)
{
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    m_text->setAccessibleName(tr("Messages"));
    m_text->setPlaceholderText(tr("There was no message yet."));
    m_text->setMaximumBlockCount(messageLimit);
    m_text->setMinimumHeight(fontMetrics().height() * 6);
    new DebugConsoleHighlighter(m_text->document());
    connect(m_source, &QTextDocument::contentsChanged, this, [this] {
        if (isVisible())
            takeOverNewLines();
    });
    auto* window = new QPushButton(tr("Open &Console Window"));
    connect(window, &QPushButton::clicked, this, &MessagesPane::showConsole);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_text, 1);
    layout->addWidget(window, 0, Qt::AlignTrailing);
}

MessagesPane::~MessagesPane() = default;

void MessagesPane::takeOverNewLines()
{
    const int count = m_source->isEmpty() ? 0 : m_source->blockCount();
    if (count < m_taken) {
        m_text->clear(); // somebody has cleared the console
        m_taken = 0;
    }
    for (int i = std::max(m_taken, count - messageLimit); i < count; ++i)
        m_text->appendPlainText(m_source->findBlockByNumber(i).text());
    m_taken = count;
}

void MessagesPane::showConsole()
{
    DebugConsole& console = DebugConsole::getDebugConsole();
    console.setAttribute(Qt::WA_QuitOnClose, false); // alone it must not keep the program running
    console.show();
    console.raise();
    console.activateWindow();
}

void MessagesPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    takeOverNewLines();
}
