#pragma once

#include <QByteArray>
#include <QObject>
#include <QRect>
#include <QTimer>

class QMainWindow;

/// Has the settings service write the place of the main window, its docks and tool bars a moment after the user changed
/// them, so that they are the same again after a crash.
class LayoutKeeper : public QObject
{
    Q_OBJECT

public:
    /// The docks and tool bars are those that the window has by now.
    explicit LayoutKeeper(QMainWindow* window);

    static constexpr int defaultDelay = 2000;
    /// How long, in milliseconds, nothing may have changed before it is written.
    void setDelay(int delay) { m_timer.setInterval(delay); }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void keep();

    QMainWindow* m_window;
    QTimer m_timer;
    QRect m_geometry; // as written last
    bool m_maximized = false;
    QByteArray m_state;
    bool m_refused = false; // telling once that nothing can be written is enough
};
