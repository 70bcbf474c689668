#pragma once

#include "zkeditor/statGraphView.h"

#include <QElapsedTimer>
#include <QTimer>

class Statistic;

/// A small live graph of how long the turns of the event loop take, the selection changes and the commands. Turns are
/// measured only while it is on the screen: by how late a timer comes.
class ZKEDITOR_EXPORT PerfMeter : public StatGraphView
{
    Q_OBJECT

public:
    explicit PerfMeter(QWidget* parent = nullptr);
    ~PerfMeter() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void takeSample();

    Statistic& m_turns;
    QTimer m_timer;
    QElapsedTimer m_sinceStart;
};
