#pragma once

#include <QFrame>
#include <functional>

class QHBoxLayout;
class QPushButton;

/// A message above the document, with buttons; the document can be used meanwhile. Escape presses the last button.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    NoticeBar(const QString& title, const QString& details, QWidget* parent);

    /// Buttons stand in the order in which they are added.
    void addButton(const QString& text, const char* name, const std::function<void()>& function);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QHBoxLayout* m_row;
    QPushButton* m_last = nullptr;
};
