#pragma once

#include "zkeditor/export.h"

#include <QWidget>

class QPlainTextEdit;
class QTextDocument;

/// What the message console has collected, within another window: the console itself is one window for the process.
class ZKEDITOR_EXPORT MessagesPane : public QWidget
{
    Q_OBJECT

public:
    explicit MessagesPane(QWidget* parent = nullptr);
    ~MessagesPane() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void takeOverNewLines();
    void showConsole();

    const QTextDocument* m_source;
    QPlainTextEdit* m_text;
    int m_taken = 0; // blocks of the source
};
