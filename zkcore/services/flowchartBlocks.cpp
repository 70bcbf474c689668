// What the blocks of a running flowchart do.
#include "zkcore/model/documentImpl.h"
#include "zkcore/model/propertyImpl.h"
#include "zkcore/services/flowchartKeys.h"
#include "zkcore/services/flowchartOutputs.h"
#include "zkcore/services/flowchartRunner.h"
#include "zkcore/services/flowchartWiring.h"

#include <algorithm>

namespace {

// Seconds from one question of a block that asks until yes to the next.
constexpr double askingTime = 0.1;
// A procedure that calls itself, over a link out of its pop-up, would go on for ever.
constexpr size_t deepestCall = 50;

const QString wayOut = QStringLiteral("out");

int levelOf(const Value& value)
{
    return value.type() == Value::BOOL ? (value.toBool() ? 100 : 0) : std::clamp(value.toInt(), 0, 100);
}

bool isChartBlock(const NodeImpl& node)
{
    const FlowchartKeys& keys = flowchartKeys();
    return node.instanceOf(keys.start) || node.instanceOf(keys.step) || node.instanceOf(keys.decision) ||
           node.instanceOf(keys.procedure) || node.instanceOf(keys.stop);
}

} // namespace

double FlowchartRunner::paceAt(NodeImpl* node) const
{
    const FlowchartKeys& keys = flowchartKeys();
    SpaceImpl* space = node ? node->space() : nullptr;
    // The chart of a procedure goes as fast as the one that calls it, unless its pop-up has a speed of its own.
    while (space && space->kind() == NodeKind::Popup && space->parentNode() && !space->hasDomainValues(keys.domain)) {
        const PropertyImpl* speed = space->getProperty(keys.speed, keys.domain);
        if (speed && speed->isProxy())
            break;
        space = space->parentNode()->space();
    }
    const QString speed = space ? space->valueOfProperty(keys.speed, keys.domain).toQString() : QString();
    if (speed == QLatin1String("Manual step"))
        return 0.0;
    return speed == QLatin1String("Fast") ? 4.0 : speed == QLatin1String("Slow") ? 0.5 : 1.0;
}

void FlowchartRunner::advanceChart(Chart& chart, double seconds)
{
    NodeImpl* start = nodeOf(chart.start);
    if (chart.state == Chart::Waiting || chart.state == Chart::Ended) {
        if (!start)
            return;
        const bool asksInputs = !start->valueOfProperty(flowchartKeys().inputs).toStringVector().empty();
        const bool on =
            asksInputs ? inputsAreOn(*start)
                       : chart.state == Chart::Waiting && start->valueOfProperty(flowchartKeys().selfStarting).toBool();
        if (on && chart.inputsSeenOff)
            enter(chart, chart.start);
        else if (!on)
            chart.inputsSeenOff = true;
        return;
    }
    if (chart.state == Chart::Halted)
        return;
    NodeImpl* block = nodeOf(chart.block);
    if (!block) {
        endRun(chart, true);
        return;
    }
    chart.remaining -= seconds * paceAt(block);
    while (chart.state == Chart::Running && chart.remaining < 1e-9 && paceAt(nodeOf(chart.block)) > 0.0) {
        const double late = chart.remaining;
        leave(chart);
        chart.remaining += late;
    }
}

void FlowchartRunner::stepCharts(const QSet<InstanceId>& spaces)
{
    const auto isIn = [&](InstanceId id) {
        NodeImpl* node = nodeOf(id);
        return node && node->space() && spaces.contains(node->space()->instanceId());
    };
    for (Chart& chart : m_charts) {
        if (!spaces.isEmpty() && !isIn(chart.start) && !isIn(chart.block))
            continue;
        if (chart.state == Chart::Halted)
            enter(chart, chart.block, true);
        else if (chart.state == Chart::Running && paceAt(nodeOf(chart.block)) == 0.0)
            leave(chart);
        else if (chart.state == Chart::Waiting && paceAt(nodeOf(chart.start)) == 0.0)
            enter(chart, chart.start);
    }
}

bool FlowchartRunner::isOn(const NodeImpl& component) const
{
    return m_outputs->isOn(component) || m_rememberedPresses.contains(component.instanceId());
}

bool FlowchartRunner::inputsAreOn(const NodeImpl& start)
{
    const bool any = start.valueOfProperty(flowchartKeys().startWhen).toQString() == QLatin1String("any input");
    const std::vector<QString> names = start.valueOfProperty(flowchartKeys().inputs).toStringVector();
    const auto nameIsOn = [&](const QString& name) {
        const std::vector<InstanceId> components = wiring().components(name);
        if (components.empty())
            reportProblem(start, tr("The block \"%1\" waits for \"%2\", but nothing has that output name.")
                                     .arg(QStringLiteral("%1"), name));
        return std::any_of(components.begin(), components.end(), [this](InstanceId id) {
            const NodeImpl* component = nodeOf(id);
            const bool on = component && isOn(*component);
            m_rememberedPresses.remove(id);
            return on;
        });
    };
    return any ? std::any_of(names.begin(), names.end(), nameIsOn) : std::all_of(names.begin(), names.end(), nameIsOn);
}

void FlowchartRunner::enter(Chart& chart, InstanceId id, bool passBreakpoint)
{
    const FlowchartKeys& keys = flowchartKeys();
    const NodeImpl* block = nodeOf(id);
    if (!block || !isChartBlock(*block)) {
        if (block)
            reportProblem(*block, tr("The chart leads to \"%1\", which is no block."));
        endRun(chart, true);
        return;
    }
    chart.block = id;
    if (!passBreakpoint && block->valueOfProperty(keys.breakpoint).toBool()) {
        chart.state = Chart::Halted;
        m_events.push_back({Event::HaltedAt, id, QString()});
        return;
    }
    chart.state = Chart::Running;
    chart.remaining = blockTime;
    m_events.push_back({Event::Entered, id, QString()});
    if (block->instanceOf(keys.start)) {
        chart.remaining = std::max(blockTime, block->valueOfProperty(keys.delay).toDouble());
    } else if (block->instanceOf(keys.step)) {
        chart.remaining = std::max(blockTime, runStep(*block));
    } else if (block->instanceOf(keys.stop)) {
        if (block->valueOfProperty(keys.atEnd).toQString() == QLatin1String("switch off"))
            for (const InstanceId output : wiring().outputs())
                m_outputs->setLevel(output, 0);
        const QString message = block->valueOfProperty(keys.message).toQString();
        if (!message.isEmpty())
            m_events.push_back({Event::Message, id, message});
    }
}

/// Seconds for which the chart waits.
double FlowchartRunner::runStep(const NodeImpl& block)
{
    const FlowchartKeys& keys = flowchartKeys();
    const double duration = block.valueOfProperty(keys.duration).toDouble();
    const double wait = block.valueOfProperty(keys.waitForEnd).toBool() ? duration : 0.0;
    const QString action = block.valueOfProperty(keys.action).toQString();
    if (action == QLatin1String("Wait"))
        return wait;

    FlowchartOutputs::Levels levels;
    FlowchartOutputs::Levels moreLevels;
    const auto collect = [&](const QString& name, int level, FlowchartOutputs::Levels& into) {
        const std::vector<InstanceId> components = wiring().components(name);
        for (const InstanceId id : components)
            into.emplace_back(id, level);
        if (components.empty() && !name.isEmpty())
            reportProblem(block, tr("The block \"%1\" switches \"%2\", but nothing has that output name.")
                                     .arg(QStringLiteral("%1"), name));
    };
    const bool on = block.valueOfProperty(keys.switchOn).toBool();
    collect(block.valueOfProperty(keys.outputName).toQString(), on ? block.valueOfProperty(keys.strength).toInt() : 0,
            levels);
    for (const auto& [name, value] : block.valueOfProperty(keys.moreOutputs).toValueMap())
        collect(name, levelOf(value), moreLevels);

    if (block.valueOfProperty(keys.others).toQString() == QLatin1String("off")) {
        QSet<InstanceId> named;
        for (const auto& [id, level] : levels)
            named.insert(id);
        for (const auto& [id, level] : moreLevels)
            named.insert(id);
        for (const InstanceId output : wiring().outputs())
            if (!named.contains(output))
                m_outputs->setLevel(output, 0);
    }
    for (const auto& [id, level] : moreLevels)
        m_outputs->setLevel(id, level);
    if (action == QLatin1String("Flash") && duration > 0.0) {
        m_outputs->startCourse(*m_document, block.instanceId(), FlowchartOutputs::Course::Flash, levels, duration);
    } else if (action == QLatin1String("Fade") && duration > 0.0) {
        m_outputs->startCourse(*m_document, block.instanceId(), FlowchartOutputs::Course::Fade, levels, duration);
    } else {
        for (const auto& [id, level] : levels)
            m_outputs->setLevel(id, level);
    }
    return wait;
}

void FlowchartRunner::leave(Chart& chart)
{
    const FlowchartKeys& keys = flowchartKeys();
    NodeImpl* block = nodeOf(chart.block);
    if (!block) {
        endRun(chart, true);
    } else if (block->instanceOf(keys.decision)) {
        const bool yes = ask(*block);
        if (!yes && block->valueOfProperty(keys.keepAsking).toBool()) {
            chart.remaining = askingTime;
            return;
        }
        const bool down = (block->valueOfProperty(keys.yesBranch).toQString() == QLatin1String("down")) == yes;
        leaveTo(chart, *block, down ? QStringLiteral("down") : QStringLiteral("right"));
    } else if (block->instanceOf(keys.procedure)) {
        callProcedure(chart, *block);
    } else if (block->instanceOf(keys.stop)) {
        leaveStop(chart, *block);
    } else {
        if (block->valueOfProperty(keys.waitForEnd).toBool())
            m_outputs->finishCourses(chart.block);
        leaveTo(chart, *block, wayOut);
    }
}

void FlowchartRunner::leaveTo(Chart& chart, const NodeImpl& block, const QString& way)
{
    if (const InstanceId next = wiring().blockAfter(block, way)) {
        enter(chart, next);
        return;
    }
    reportProblem(block, way == wayOut ? tr("Nothing follows the block \"%1\": the chart ends there.")
                                       : tr("Nothing follows one of the answers of \"%1\": the chart ends there."));
    endRun(chart, false);
}

void FlowchartRunner::leaveStop(Chart& chart, const NodeImpl& block)
{
    const FlowchartKeys& keys = flowchartKeys();
    const NodeImpl* procedure = chart.calls.empty() ? nullptr : nodeOf(chart.calls.back().procedure);
    if (block.valueOfProperty(keys.startAgain).toBool()) {
        const auto* part = qobject_cast<const PartImpl*>(procedure);
        enter(chart, part && part->popup() ? wiring().startIn(*part->popup()) : chart.start);
    } else {
        endRun(chart, procedure && !procedure->valueOfProperty(keys.stopInside).toBool());
    }
}

void FlowchartRunner::callProcedure(Chart& chart, NodeImpl& procedure)
{
    const auto* part = qobject_cast<const PartImpl*>(&procedure);
    const InstanceId first = part && part->popup() ? wiring().startIn(*part->popup()) : 0;
    if (first == 0) {
        reportProblem(procedure, tr("The procedure \"%1\" has no start block in its pop-up."));
        leaveTo(chart, procedure, wayOut);
    } else if (chart.calls.size() >= deepestCall) {
        reportProblem(procedure, tr("The procedure \"%1\" calls itself again and again."));
        endRun(chart, true);
    } else {
        chart.calls.push_back({procedure.instanceId(), procedure.valueOfProperty(flowchartKeys().calls).toInt()});
        followProcedure(procedure, true);
        enter(chart, first);
    }
}

void FlowchartRunner::endRun(Chart& chart, bool wholeChart)
{
    if (!wholeChart && !chart.calls.empty()) {
        Call& call = chart.calls.back();
        const NodeImpl* procedure = nodeOf(call.procedure);
        const auto* part = qobject_cast<const PartImpl*>(procedure);
        if (part && part->popup() && --call.remaining > 0) {
            enter(chart, wiring().startIn(*part->popup()));
            return;
        }
        chart.calls.pop_back();
        if (procedure) {
            followProcedure(*procedure, false);
            leaveTo(chart, *procedure, wayOut);
            return;
        }
    }
    for (const Call& call : chart.calls)
        if (const NodeImpl* procedure = nodeOf(call.procedure))
            followProcedure(*procedure, false);
    chart.calls.clear();
    chart.block = 0;
    chart.state = Chart::Ended;
    chart.inputsSeenOff = false;
}

void FlowchartRunner::followProcedure(const NodeImpl& procedure, bool open)
{
    const auto* part = qobject_cast<const PartImpl*>(&procedure);
    if (!part || !part->popup())
        return;
    const InstanceId popup = part->popup()->instanceId();
    if (open && procedure.valueOfProperty(flowchartKeys().follow).toBool()) {
        m_openedPopups.insert(popup);
        m_popupsToOpen.insert(popup, true);
    } else if (!open && m_openedPopups.remove(popup)) {
        m_popupsToOpen.insert(popup, false);
    }
}

bool FlowchartRunner::ask(const NodeImpl& decision)
{
    const FlowchartKeys& keys = flowchartKeys();
    const QString name = decision.valueOfProperty(keys.inputName).toQString();
    std::vector<InstanceId> ids;
    if (!name.isEmpty())
        ids = wiring().components(name);
    else if (const InstanceId watched = decision.valueOfProperty(keys.watched).toInstanceId())
        ids.push_back(watched);
    std::erase_if(ids, [this](InstanceId id) { return !nodeOf(id); });
    if (ids.empty()) {
        reportProblem(decision, name.isEmpty()
                                    ? tr("The decision \"%1\" does not say what it asks.")
                                    : tr("The decision \"%1\" asks \"%2\", but nothing has that output name.")
                                          .arg(QStringLiteral("%1"), name));
        return false;
    }
    const auto anyOf = [&](auto&& test) {
        return std::any_of(ids.begin(), ids.end(), [&](InstanceId id) { return test(*nodeOf(id)); });
    };
    const QString comparison = decision.valueOfProperty(keys.comparison).toQString();
    const double threshold = decision.valueOfProperty(keys.threshold).toDouble();
    bool yes = false;
    if (comparison == QLatin1String("is on"))
        yes = anyOf([this](const NodeImpl& node) { return isOn(node); });
    else if (comparison == QLatin1String("is off"))
        yes = !anyOf([this](const NodeImpl& node) { return isOn(node); });
    else if (comparison == QLatin1String("is greater than"))
        yes = anyOf([&](const NodeImpl& node) { return m_outputs->level(node) > threshold; });
    else
        yes = anyOf([&](const NodeImpl& node) { return m_outputs->level(node) < threshold; });
    // A press has been asked for; the next question waits for the next one.
    for (const InstanceId id : ids)
        m_rememberedPresses.remove(id);
    return yes;
}

/// The place of the block's name in the text is "%1".
void FlowchartRunner::reportProblem(const NodeImpl& block, const QString& text)
{
    const QString report = QStringLiteral("%1 %2").arg(block.instanceId()).arg(text);
    if (m_reported.contains(report))
        return;
    m_reported.insert(report);
    m_events.push_back({Event::Problem, block.instanceId(), text.arg(block.displayName())});
}
