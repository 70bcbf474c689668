#include "zkeditor/commandLogPane.h"

#include "zkcore/commands/command.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/storage/commandLog.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QTime>
#include <QVBoxLayout>

namespace {

// A drag gives a hundred commands a second.
constexpr int commandShowDelay = 50;

} // namespace

CommandLogPane::CommandLogPane(QWidget* parent)
    : QWidget(parent), m_text(new QPlainTextEdit), m_record(new QPushButton(tr("Re&cord"))),
      m_save(new QPushButton(tr("&Save Recording...")))
{
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setMaximumBlockCount(lineLimit);
    m_text->setAccessibleName(tr("Commands"));
    m_text->setPlaceholderText(tr("No command was given yet."));
    m_text->setMinimumHeight(fontMetrics().height() * 6);
    m_record->setCheckable(true);
    m_record->setToolTip(tr("Record what is done to the document from now on"));
    connect(m_record, &QPushButton::toggled, this, &CommandLogPane::setRecording);
    connect(m_save, &QPushButton::clicked, this, &CommandLogPane::saveRecording);
    auto* clear = new QPushButton(tr("C&lear"));
    connect(clear, &QPushButton::clicked, this, [this] {
        m_waiting.clear();
        m_text->clear();
    });
    m_show.setSingleShot(true);
    m_show.setInterval(commandShowDelay);
    connect(&m_show, &QTimer::timeout, this, &CommandLogPane::showNewLines);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_record);
    buttons->addWidget(m_save);
    buttons->addStretch(1);
    buttons->addWidget(clear);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_text, 1);
    layout->addLayout(buttons);
    updateButtons();
}

CommandLogPane::~CommandLogPane() = default;

void CommandLogPane::setDocument(DocumentImpl* document)
{
    if (document == m_document)
        return;
    setRecording(false);
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    if (document)
        connect(document, &DocumentImpl::commandExecuted, this, &CommandLogPane::onCommand);
    updateButtons();
}

void CommandLogPane::onCommand(const Command* command, const QString& word)
{
    const QString what = command ? command->logStatus() : word;
    m_waiting.append(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz ")) + what.simplified());
    if (m_waiting.size() > 2 * lineLimit)
        m_waiting.remove(0, lineLimit);
    if (isVisible() && !m_show.isActive())
        m_show.start();
}

void CommandLogPane::showNewLines()
{
    if (m_waiting.isEmpty())
        return;
    m_text->appendPlainText(m_waiting.join(QLatin1Char('\n')));
    m_waiting.clear();
}

void CommandLogPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showNewLines();
}

void CommandLogPane::setRecording(bool recording)
{
    if (recording && m_document && !m_log) {
        m_recorded.clear();
        m_log = std::make_unique<CommandLog>(m_document);
    } else if (!recording && m_log) {
        m_recorded = m_log->toXML();
        m_log.reset();
    }
    m_record->setChecked(m_log != nullptr);
    updateButtons();
}

void CommandLogPane::passRecordingTo(CommandLogPane& other)
{
    if (!m_log && m_recorded.isEmpty())
        return;
    other.m_log = std::move(m_log);
    other.m_recorded = std::exchange(m_recorded, {});
    for (CommandLogPane* pane : {this, &other}) {
        pane->m_record->setChecked(pane->m_log != nullptr);
        pane->updateButtons();
    }
}

QByteArray CommandLogPane::recording() const
{
    return m_log ? m_log->toXML() : m_recorded;
}

void CommandLogPane::updateButtons()
{
    m_record->setEnabled(m_document);
    m_save->setEnabled(m_log || !m_recorded.isEmpty());
}

void CommandLogPane::saveRecording()
{
    setRecording(false);
    const QString name = QFileDialog::getSaveFileName(this, tr("Save Recording"), QStringLiteral("session.xml"),
                                                      tr("Recorded sessions (*.xml)"));
    if (name.isEmpty())
        return;
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(m_recorded) != m_recorded.size() || !file.commit())
        QMessageBox::warning(this, tr("Save Recording"), tr("%1 cannot be written: %2").arg(name, file.errorString()));
}
