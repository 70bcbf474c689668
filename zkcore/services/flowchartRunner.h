#pragma once

#include "zkcore/base/export.h"
#include "zkcore/model/handles.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <memory>
#include <vector>

class DocumentImpl;
class FlowchartOutputs;
class FlowchartWiring;

/// Runs the flowcharts of a document: goes from block to block, switches the components that steps name, and asks those
/// that decisions name, at the speed chosen for the space. It stands still while the model's "paused" is true, and at
/// the speed "Manual step" goes on by one block whenever the space's "step-pressed" becomes true.
///
/// What runs is shown through properties that are neither saved nor recorded: "active" of blocks and "running-level" of
/// components. So running never changes the file and never adds an undo step. The document may be changed meanwhile;
/// charts whose blocks go away end.
class ZKCORE_EXPORT FlowchartRunner : public QObject
{
    Q_OBJECT

public:
    /// Seconds that a block is seen at least, at the speed "Normal".
    static constexpr double blockTime = 0.25;

    /// The document is not owned, may be null, and may be deleted at any time.
    explicit FlowchartRunner(DocumentImpl* document = nullptr, QObject* parent = nullptr);
    ~FlowchartRunner() override;

    /// Stops what runs in the document before.
    void setDocument(DocumentImpl* document);
    DocumentImpl* document() const;
    bool isRunning() const { return m_running; }
    /// Whether the document has any chart that start() would run.
    bool hasCharts() const;

    /// The model's time goes on by that many seconds, unless it is paused. A timer does it while charts run; tests and
    /// programs without an event loop do it themselves.
    void advance(double seconds);

    /// Presses or lets go a switch as a reader would: a momentary one is on while it is pressed, and a short press is
    /// remembered until a decision has asked; another one changes with every press. False when the part is no named
    /// switch or nothing runs.
    bool press(const Part& part, bool down);
    /// The same for all switches that the key (a capital letter or digit) works. False when there are none.
    bool pressKey(QChar key, bool down);

public Q_SLOTS:
    /// Begins all charts anew. Does nothing without a document, and while they run.
    void start();
    /// Everything looks again as at the start.
    void stop();
    /// One block further for each chart that waits for that: at the speed "Manual step" or before a block that stops.
    void step();

Q_SIGNALS:
    void runningChanged(bool running);
    /// A chart came to a block; for views that follow it.
    void blockEntered(Node block);
    /// A chart halts before a block that is marked to stop there.
    void halted(Node block);
    /// A stop block has something to say to the reader.
    void messageShown(const QString& text);
    /// Something in the chart cannot work as it is drawn, translated: what and where. Once per fault and run.
    void problemFound(const QString& text);
    /// All charts have come to their end. Outputs stay as they are until stop().
    void finished();

private:
    struct Call
    {
        InstanceId procedure;
        int remaining; // runs of its chart, this one included
    };
    /// One run along one chart.
    struct Chart
    {
        enum State { Waiting, Running, Halted, Ended };

        InstanceId start = 0;
        InstanceId block = 0;
        std::vector<Call> calls;
        double remaining = 0.0; // seconds in this block at the speed "Normal"
        State state = Waiting;
        bool inputsSeenOff = true; // since it ended: it starts again only then
    };

    /// What is told when the charts have come to rest, as a receiver may do anything.
    struct Event
    {
        enum Kind { Entered, HaltedAt, Message, Problem };

        Kind kind;
        InstanceId node;
        QString text;
    };

    void onValueChanged(NodeImpl* node, PropertyKey key);
    void onUndoRedoStarted() { m_inUndoRedo = true; }
    void onLoaded();
    void onTimer();
    void onStepPressed();
    void forgetWiring();
    void dropState();
    const FlowchartWiring& wiring();
    void ensureTimer();
    bool needsTime() const;
    bool isPaused() const;
    void tick(double seconds);
    /// Writes what changed, then tells it.
    void publish();

    NodeImpl* nodeOf(InstanceId id) const;
    /// How much faster than "Normal" time goes for what stands in the space of the node; 0 at "Manual step".
    double paceAt(NodeImpl* node) const;
    void advanceChart(Chart& chart, double seconds);
    /// Of all spaces when none are given.
    void stepCharts(const QSet<InstanceId>& spaces);
    /// Whether the inputs that the start block names let the chart begin.
    bool inputsAreOn(const NodeImpl& start);
    bool isOn(const NodeImpl& component) const;
    void enter(Chart& chart, InstanceId block, bool passBreakpoint = false);
    void leave(Chart& chart);
    void leaveTo(Chart& chart, const NodeImpl& block, const QString& wayOut);
    /// The chart, or the procedure that it is in, is at its end.
    void endRun(Chart& chart, bool wholeChart);
    double runStep(const NodeImpl& block);
    void callProcedure(Chart& chart, NodeImpl& procedure);
    void leaveStop(Chart& chart, const NodeImpl& block);
    /// Whether the answer is yes.
    bool ask(const NodeImpl& decision);
    void reportProblem(const NodeImpl& block, const QString& text);
    void followProcedure(const NodeImpl& procedure, bool open);
    void writeState();

    QPointer<DocumentImpl> m_document;
    std::unique_ptr<FlowchartWiring> m_wiring; // null: to be made anew
    std::unique_ptr<FlowchartOutputs> m_outputs;
    std::vector<Chart> m_charts;
    QSet<InstanceId> m_shownActive;
    QSet<InstanceId> m_onceActive;          // since the document was loaded
    QHash<InstanceId, bool> m_popupsToOpen; // or to close
    QSet<InstanceId> m_openedPopups;
    std::vector<Event> m_events;
    QSet<InstanceId> m_rememberedPresses;
    QSet<InstanceId> m_steppedSpaces;
    QSet<QString> m_reported;
    QTimer m_timer;
    QElapsedTimer m_clock;
    bool m_running = false;
    bool m_finished = false;
    bool m_inUndoRedo = false;
    bool m_showAllActive = false;
    bool m_writing = false;
};
