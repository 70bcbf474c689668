// Clock, document and readers of running flowcharts; what the blocks do stands in flowchartBlocks.cpp.
#include "zkcore/services/flowchartRunner.h"

#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/coreKeys.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/services/flowchartKeys.h"
#include "zkcore/services/flowchartOutputs.h"
#include "zkcore/services/flowchartWiring.h"

#include <algorithm>

namespace {

constexpr int tickMilliseconds = 40;
// Time is cut into pieces of this length, in seconds, so that charts running side by side keep step.
constexpr double timeSlice = 0.05;
// After the machine slept, the model goes on where it was.
constexpr double longestTick = 0.5;

} // namespace

FlowchartRunner::FlowchartRunner(DocumentImpl* document, QObject* parent)
    : QObject(parent), m_outputs(std::make_unique<FlowchartOutputs>())
{
    m_timer.setInterval(tickMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &FlowchartRunner::onTimer);
    setDocument(document);
}

FlowchartRunner::~FlowchartRunner()
{
    const QSignalBlocker blocker(this);
    stop();
}

DocumentImpl* FlowchartRunner::document() const
{
    return m_document;
}

void FlowchartRunner::setDocument(DocumentImpl* document)
{
    if (document == m_document)
        return;
    stop();
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = document;
    forgetWiring();
    m_inUndoRedo = false;
    if (!document)
        return;
    connect(document, &DocumentImpl::nodeValueChanged, this, &FlowchartRunner::onValueChanged);
    connect(document, &DocumentImpl::undoRedoStarted, this, &FlowchartRunner::onUndoRedoStarted);
    connect(document, &DocumentImpl::Loaded, this, &FlowchartRunner::onLoaded);
    connect(document, &DocumentImpl::ElementAdded, this, &FlowchartRunner::forgetWiring);
    connect(document, &DocumentImpl::ElementRemoved, this, &FlowchartRunner::forgetWiring);
    connect(document, &DocumentImpl::SceneAdded, this, &FlowchartRunner::forgetWiring);
    connect(document, &DocumentImpl::SceneRemoved, this, &FlowchartRunner::forgetWiring);
    connect(document, &DocumentImpl::PopupAdded, this, &FlowchartRunner::forgetWiring);
    connect(document, &DocumentImpl::PopupRemoved, this, &FlowchartRunner::forgetWiring);
    connect(document, &QObject::destroyed, this, &FlowchartRunner::dropState);
}

bool FlowchartRunner::hasCharts() const
{
    return m_document && !FlowchartWiring(*m_document).starts().empty();
}

void FlowchartRunner::start()
{
    if (m_running || !m_document)
        return;
    m_running = true;
    m_finished = false;
    for (const InstanceId id : wiring().starts()) {
        Chart chart;
        chart.start = id;
        m_charts.push_back(chart);
    }
    // From now on it is seen what is off.
    for (const InstanceId id : wiring().outputs())
        if (const NodeImpl* component = nodeOf(id))
            m_outputs->setLevel(id, m_outputs->level(*component));
    const QPointer<FlowchartRunner> alive(this);
    Q_EMIT runningChanged(true);
    if (!alive || !m_running)
        return;
    if (!isPaused())
        tick(0.0);
    publish();
    if (alive)
        ensureTimer();
}

void FlowchartRunner::stop()
{
    if (!m_running)
        return;
    m_running = false;
    m_timer.stop();
    m_charts.clear();
    m_events.clear();
    m_outputs->releaseAll();
    for (const InstanceId popup : std::as_const(m_openedPopups))
        m_popupsToOpen.insert(popup, false);
    m_rememberedPresses.clear();
    m_steppedSpaces.clear();
    m_reported.clear();
    m_openedPopups.clear();
    const QPointer<FlowchartRunner> alive(this);
    writeState();
    if (alive && !m_running)
        Q_EMIT runningChanged(false);
}

/// Without writing anything: the nodes are gone.
void FlowchartRunner::dropState()
{
    const bool ran = m_running;
    m_running = false;
    m_timer.stop();
    m_charts.clear();
    m_events.clear();
    m_outputs->clear();
    m_shownActive.clear();
    m_onceActive.clear();
    m_popupsToOpen.clear();
    m_openedPopups.clear();
    m_rememberedPresses.clear();
    m_steppedSpaces.clear();
    m_reported.clear();
    forgetWiring();
    if (ran)
        Q_EMIT runningChanged(false);
}

void FlowchartRunner::forgetWiring()
{
    m_wiring.reset();
}

const FlowchartWiring& FlowchartRunner::wiring()
{
    if (!m_wiring)
        m_wiring = std::make_unique<FlowchartWiring>(*m_document);
    return *m_wiring;
}

NodeImpl* FlowchartRunner::nodeOf(InstanceId id) const
{
    return m_document ? m_document->nodeById(id) : nullptr;
}

bool FlowchartRunner::isPaused() const
{
    return m_document && m_document->getModel()->valueOfProperty(flowchartKeys().paused).toBool();
}

void FlowchartRunner::onLoaded()
{
    forgetWiring();
    if (!m_inUndoRedo) {
        dropState();
        return;
    }
    m_inUndoRedo = false;
    // What came back shows what it showed when it went.
    m_outputs->writeAllAgain();
    m_shownActive = m_onceActive;
    m_showAllActive = true;
    publish();
}

void FlowchartRunner::onValueChanged(NodeImpl* node, PropertyKey key)
{
    if (m_writing)
        return;
    const FlowchartKeys& keys = flowchartKeys();
    if (FlowchartWiring::dependsOn(key)) {
        forgetWiring();
    } else if (m_running && (key == keys.paused || key == keys.speed)) {
        ensureTimer();
    } else if (m_running && key == keys.stepPressed && node->kind() != NodeKind::Part) {
        auto* space = qobject_cast<SpaceImpl*>(node);
        if (!space || !space->valueOfProperty(key, keys.domain).toBool())
            return;
        // Later: this is told in the middle of a command.
        if (m_steppedSpaces.isEmpty())
            QTimer::singleShot(0, this, &FlowchartRunner::onStepPressed);
        m_steppedSpaces.insert(space->instanceId());
    }
}

void FlowchartRunner::onStepPressed()
{
    const QSet<InstanceId> spaces = std::exchange(m_steppedSpaces, {});
    if (!m_running || spaces.isEmpty() || isPaused())
        return;
    stepCharts(spaces);
    publish();
}

void FlowchartRunner::step()
{
    if (!m_running || isPaused())
        return;
    stepCharts({});
    publish();
}

void FlowchartRunner::onTimer()
{
    const double seconds = std::min(static_cast<double>(m_clock.restart()) / 1000.0, longestTick);
    advance(seconds);
}

bool FlowchartRunner::needsTime() const
{
    if (!m_running || isPaused())
        return false;
    if (m_outputs->hasCourses())
        return true;
    return std::any_of(m_charts.begin(), m_charts.end(), [this](const Chart& chart) {
        if (chart.state == Chart::Running)
            return paceAt(nodeOf(chart.block)) > 0.0;
        const NodeImpl* start = nodeOf(chart.start);
        if (!start || chart.state == Chart::Halted)
            return false;
        // It may be waiting for its inputs, or have been started while the model was paused.
        return !start->valueOfProperty(flowchartKeys().inputs).toStringVector().empty() ||
               (chart.state == Chart::Waiting && start->valueOfProperty(flowchartKeys().selfStarting).toBool());
    });
}

void FlowchartRunner::ensureTimer()
{
    if (!needsTime()) {
        m_timer.stop();
    } else if (!m_timer.isActive()) {
        m_clock.start();
        m_timer.start();
    }
}

void FlowchartRunner::advance(double seconds)
{
    if (!m_running || !m_document || isPaused())
        return;
    for (double rest = seconds; rest > 0.0; rest -= timeSlice)
        tick(std::min(rest, timeSlice));
    publish();
}

void FlowchartRunner::tick(double seconds)
{
    for (Chart& chart : m_charts)
        advanceChart(chart, seconds);
    for (const InstanceId owner : m_outputs->courseOwners()) {
        NodeImpl* block = nodeOf(owner);
        const double pace = block ? paceAt(block) : 1.0;
        m_outputs->advanceCourses(owner, seconds * (pace > 0.0 ? pace : 1.0));
    }
}

void FlowchartRunner::publish()
{
    const QPointer<FlowchartRunner> alive(this);
    writeState();
    if (!alive)
        return;
    const std::vector<Event> events = std::exchange(m_events, {});
    for (const Event& event : events) {
        if (!alive || !m_running)
            return;
        if (event.kind == Event::Message)
            Q_EMIT messageShown(event.text);
        else if (event.kind == Event::Problem)
            Q_EMIT problemFound(event.text);
        else if (NodeImpl* node = nodeOf(event.node)) {
            if (event.kind == Event::Entered)
                Q_EMIT blockEntered(Node(node));
            else
                Q_EMIT halted(Node(node));
        }
    }
    if (!alive || !m_running)
        return;
    ensureTimer();
    const bool ended =
        !m_outputs->hasCourses() &&
        std::all_of(m_charts.begin(), m_charts.end(), [](const Chart& chart) { return chart.state == Chart::Ended; });
    if (ended && !m_finished) {
        m_finished = true;
        Q_EMIT finished();
    } else if (!ended) {
        m_finished = false;
    }
}

void FlowchartRunner::writeState()
{
    if (!m_document)
        return;
    const FlowchartKeys& keys = flowchartKeys();
    auto command = std::make_unique<SetValueCommand>(false);
    bool any = false;
    m_outputs->collectWrites(*m_document, *command, any);

    QSet<InstanceId> active;
    for (const Chart& chart : m_charts) {
        if (chart.state == Chart::Running || chart.state == Chart::Halted)
            active.insert(chart.block);
        for (const Call& call : chart.calls)
            active.insert(call.procedure);
    }
    const auto write = [&](InstanceId id, PropertyKey key, bool value) {
        const NodeImpl* node = nodeOf(id);
        if (!node || !node->hasProperty(key))
            return;
        command->addAddress({id, INVALID_CID, key}, Value(value));
        any = true;
    };
    for (const InstanceId id : std::as_const(m_shownActive))
        if (!active.contains(id))
            write(id, keys.active, false);
    for (const InstanceId id : std::as_const(active))
        if (m_showAllActive || !m_shownActive.contains(id))
            write(id, keys.active, true);
    m_showAllActive = false;
    m_shownActive = active;
    m_onceActive.unite(active);
    for (auto it = m_popupsToOpen.cbegin(); it != m_popupsToOpen.cend(); ++it)
        write(it.key(), coreKeys::open(), it.value());
    m_popupsToOpen.clear();
    if (!any)
        return;

    const QPointer<FlowchartRunner> alive(this);
    m_writing = true;
    m_document->executeCommand(command.release());
    if (alive)
        m_writing = false;
}

bool FlowchartRunner::press(const Part& part, bool down)
{
    const FlowchartKeys& keys = flowchartKeys();
    const PartImpl* component = part.impl();
    if (!m_running || !component || component->document() != m_document || !component->hasProperty(keys.closed) ||
        component->valueOfProperty(keys.outputName).toQString().isEmpty())
        return false;
    const InstanceId id = component->instanceId();
    if (!component->valueOfProperty(keys.momentary).toBool()) {
        if (down)
            m_outputs->setLevel(id, m_outputs->level(*component) > 0 ? 0 : 100);
    } else if (!down) {
        m_outputs->release(id);
    } else if (component->valueOfProperty(keys.closed).toBool()) {
        m_outputs->setLevel(id, 0); // it is pressed open
    } else {
        m_outputs->setLevel(id, 100);
        m_rememberedPresses.insert(id);
    }
    publish();
    return true;
}

bool FlowchartRunner::pressKey(QChar key, bool down)
{
    if (!m_running || !m_document)
        return false;
    std::vector<Part> worked;
    for (const InstanceId id : wiring().switchesWithKey(key))
        if (auto* part = qobject_cast<PartImpl*>(nodeOf(id)))
            worked.emplace_back(part);
    bool any = false;
    for (const Part& part : worked)
        any |= press(part, down);
    return any;
}
