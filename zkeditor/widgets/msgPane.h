#pragma once

#include "zkeditor/export.h"

#include <QWidget>

class QLabel;

/// A pane that shows one message and nothing to edit.
class ZKEDITOR_EXPORT MsgPane : public QWidget
{
    Q_OBJECT

public:
    explicit MsgPane(const QString& message = {}, QWidget* parent = nullptr);

    /// Plain text.
    QString message() const;
    void setMessage(const QString& message);

private:
    QLabel* m_label;
};
