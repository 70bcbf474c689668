#pragma once

#include "zkeditor/export.h"

#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <memory>

class Command;
class CommandLog;
class DocumentImpl;
class QPlainTextEdit;
class QPushButton;

/// Lists the commands that are given to a document, with undo and redo, and records sessions that can be done again.
class ZKEDITOR_EXPORT CommandLogPane : public QWidget
{
    Q_OBJECT

public:
    /// Older lines go.
    static constexpr int lineLimit = 2000;

    explicit CommandLogPane(QWidget* parent = nullptr);
    ~CommandLogPane() override;

    /// The lines of an earlier document stay. Not owned; may be null.
    void setDocument(DocumentImpl* document);

    /// Begins or ends a recording of the document's session; a new one replaces the last.
    void setRecording(bool recording);
    /// Another pane for the same document goes on with the recording, or keeps the one that has ended.
    void passRecordingTo(CommandLogPane& other);
    /// What was recorded; empty when nothing was.
    QByteArray recording() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void onCommand(const Command* command, const QString& word);
    void showNewLines();
    void saveRecording();
    void updateButtons();

    QPointer<DocumentImpl> m_document;
    QPlainTextEdit* m_text;
    QPushButton* m_record;
    QPushButton* m_save;
    QStringList m_waiting; // lines that are not on view yet
    QTimer m_show;
    std::unique_ptr<CommandLog> m_log;
    QByteArray m_recorded;
};
