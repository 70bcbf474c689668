// Levels of the components that flowcharts switch.
#include "zkcore/services/flowchartOutputs.h"

#include "zkcore/commands/setValueCommand.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/services/flowchartKeys.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double flashPeriod = 0.5; // seconds from flash to flash
// What 100 percent of light mean, in lux.
constexpr double fullLight = 1000.0;

bool flashesNow(double elapsed)
{
    return std::fmod(elapsed, flashPeriod) < flashPeriod / 2.0;
}

} // namespace

int FlowchartOutputs::startLevel(const NodeImpl& component)
{
    const FlowchartKeys& keys = flowchartKeys();
    if (component.hasProperty(keys.lightLevel))
        return component.valueOfProperty(keys.lightLevel).toInt();
    for (const PropertyKey key : {keys.lit, keys.sounding, keys.running, keys.closed})
        if (component.valueOfProperty(key).toBool())
            return 100;
    return 0;
}

int FlowchartOutputs::level(const NodeImpl& component) const
{
    const int given = m_levels.value(component.instanceId(), -1);
    return given >= 0 ? given : startLevel(component);
}

bool FlowchartOutputs::isOn(const NodeImpl& component) const
{
    const FlowchartKeys& keys = flowchartKeys();
    const int now = level(component);
    if (!component.hasProperty(keys.signalWhen))
        return now > 0;
    const bool dark = now / 100.0 * fullLight < component.valueOfProperty(keys.switchLevel).toDouble();
    return dark == (component.valueOfProperty(keys.signalWhen).toQString() == QLatin1String("dark"));
}

void FlowchartOutputs::storeLevel(InstanceId component, int level)
{
    if (m_levels.value(component, -2) == level)
        return;
    m_levels.insert(component, level);
    m_toWrite.insert(component);
}

void FlowchartOutputs::setLevel(InstanceId component, int level)
{
    std::erase_if(m_courses, [&](const OutputCourse& course) { return course.component == component; });
    storeLevel(component, level);
}

void FlowchartOutputs::startCourse(const DocumentImpl& document, InstanceId owner, Course course, const Levels& levels,
                                   double duration)
{
    for (const auto& [component, to] : levels) {
        const NodeImpl* node = document.nodeById(component);
        if (!node)
            continue;
        const int from = level(*node);
        std::erase_if(m_courses, [&, id = component](const OutputCourse& other) { return other.component == id; });
        m_courses.push_back({owner, component, course, from, to, 0.0, duration});
    }
    advanceCourses(owner, 0.0);
}

void FlowchartOutputs::finishCourses(InstanceId owner)
{
    for (const OutputCourse& course : m_courses)
        if (course.owner == owner)
            storeLevel(course.component, course.to);
    std::erase_if(m_courses, [&](const OutputCourse& course) { return course.owner == owner; });
}

QSet<InstanceId> FlowchartOutputs::courseOwners() const
{
    QSet<InstanceId> owners;
    for (const OutputCourse& course : m_courses)
        owners.insert(course.owner);
    return owners;
}

void FlowchartOutputs::advanceCourses(InstanceId owner, double seconds)
{
    for (OutputCourse& course : m_courses) {
        if (course.owner != owner)
            continue;
        course.elapsed += seconds;
        if (course.elapsed >= course.duration)
            storeLevel(course.component, course.to);
        else if (course.course == Course::Fade)
            storeLevel(course.component,
                       static_cast<int>(
                           std::lround(course.from + (course.to - course.from) * course.elapsed / course.duration)));
        else
            storeLevel(course.component, flashesNow(course.elapsed) ? std::max(course.to, course.from) : 0);
    }
    std::erase_if(m_courses, [](const OutputCourse& course) { return course.elapsed >= course.duration; });
}

void FlowchartOutputs::collectWrites(const DocumentImpl& document, SetValueCommand& command, bool& any)
{
    for (const InstanceId id : std::as_const(m_toWrite)) {
        const NodeImpl* component = document.nodeById(id);
        if (!component || !component->hasProperty(flowchartKeys().runningLevel))
            continue;
        command.addAddress({id, INVALID_CID, flowchartKeys().runningLevel}, Value(m_levels.value(id, -1)));
        any = true;
    }
    m_toWrite.clear();
}

void FlowchartOutputs::writeAllAgain()
{
    for (auto it = m_levels.cbegin(); it != m_levels.cend(); ++it)
        m_toWrite.insert(it.key());
}

void FlowchartOutputs::releaseAll()
{
    m_courses.clear();
    for (auto it = m_levels.begin(); it != m_levels.end(); ++it) {
        it.value() = -1;
        m_toWrite.insert(it.key());
    }
}

void FlowchartOutputs::clear()
{
    m_levels.clear();
    m_toWrite.clear();
    m_courses.clear();
}
