#pragma once

#include "zkcore/base/instanceId.h"

#include <QHash>
#include <QSet>
#include <vector>

class DocumentImpl;
class NodeImpl;
class SetValueCommand;

/// How strongly each component of a running model is switched on, in percent, and what goes on with them in the
/// background (flashing, fading). Components show it through the property "running-level", which is neither saved nor
/// recorded for undo; -1 stands for "as at the start".
class FlowchartOutputs
{
public:
    /// A component and the level that it is to take.
    using Levels = std::vector<std::pair<InstanceId, int>>;
    enum class Course { Flash, Fade };

    /// The level now: the one given here, or the one that the component has at the start.
    int level(const NodeImpl& component) const;
    /// Whether it counts as on when a chart asks; sensors are on while they give their signal.
    bool isOn(const NodeImpl& component) const;

    void setLevel(InstanceId component, int level);
    /// Back to what the component has at the start.
    void release(InstanceId component) { setLevel(component, -1); }

    /// Begins a course for the outputs, which ends with the levels given. `owner` is the block; a course of an output
    /// that is switched or gets another course ends there and then.
    void startCourse(const DocumentImpl& document, InstanceId owner, Course course, const Levels& levels,
                     double duration);
    /// Brings the courses of a block to their end.
    void finishCourses(InstanceId owner);
    bool hasCourses() const { return !m_courses.empty(); }
    /// Blocks that have courses.
    QSet<InstanceId> courseOwners() const;
    /// The courses of the block go on by that many seconds.
    void advanceCourses(InstanceId owner, double seconds);

    /// Adds to the command what the components do not show yet. Components that are gone are passed over.
    void collectWrites(const DocumentImpl& document, SetValueCommand& command, bool& any);
    /// Everything is to be written again, because undo made components anew.
    void writeAllAgain();
    /// All components go back to their start with the next writes.
    void releaseAll();
    void clear();

private:
    struct OutputCourse
    {
        InstanceId owner;
        InstanceId component;
        Course course;
        int from;
        int to;
        double elapsed;
        double duration;
    };

    static int startLevel(const NodeImpl& component);
    void storeLevel(InstanceId component, int level);

    QHash<InstanceId, int> m_levels;
    QSet<InstanceId> m_toWrite;
    std::vector<OutputCourse> m_courses;
};
