#include "zkcore/model/changeMarks.h"

#include <algorithm>
#include <utility>

namespace {

constexpr size_t leastLimit = 4096;

} // namespace

ChangeMarks::ChangeMarks(std::function<void()> onFirst)
    : m_onFirst(std::move(onFirst)), m_valueLimit(leastLimit), m_shapeLimit(leastLimit)
{
}

void ChangeMarks::append(std::vector<InstanceId>& nodes, size_t& limit, InstanceId node)
{
    if (nodes.size() >= limit) {
        std::sort(nodes.begin(), nodes.end());
        nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
        limit = std::max(leastLimit, 2 * nodes.size());
    }
    nodes.push_back(node);
    noteFirst();
}

void ChangeMarks::noteFirst()
{
    if (m_any)
        return;
    m_any = true;
    m_onFirst();
}

void ChangeMarks::addAll()
{
    m_marked = Marked();
    m_marked.all = true;
    noteFirst();
}

ChangeMarks::Marked ChangeMarks::take()
{
    m_any = false;
    m_valueLimit = leastLimit;
    m_shapeLimit = leastLimit;
    return std::exchange(m_marked, Marked());
}

ChangeMarks::Marked ChangeMarks::takeShapes()
{
    Marked taken;
    taken.all = std::exchange(m_marked.all, false);
    std::swap(taken.shapes, m_marked.shapes);
    std::swap(taken.added, m_marked.added);
    m_shapeLimit = leastLimit;
    m_any = !m_marked.values.empty();
    return taken;
}
