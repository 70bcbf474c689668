#pragma once

#include <QObject>

class QWidget;

/// Keeps everything in a container disabled while the gate is closed, whoever enables it meanwhile, the observers in it
/// included. What was disabled for a reason of its own stays so when the gate opens.
class ChildrenGate : public QObject
{
    Q_OBJECT

public:
    /// Open at first. The container owns the gate.
    explicit ChildrenGate(QWidget* container);

    bool isOpen() const { return m_open; }
    void setOpen(bool open);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void guard(QWidget* child);
    static void close(QWidget* child);

    QWidget* const m_container;
    bool m_open = true;
};
