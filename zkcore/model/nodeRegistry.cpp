#include "zkcore/model/nodeRegistry.h"

#include "zkcore/model/coreKeys.h"

#include <algorithm>
#include <iterator>

void NodeRegistry::enter(NodeImpl* node)
{
    const InstanceId id = node->instanceId();
    ++m_count;
    if (id < m_dense.size()) {
        m_dense[id] = node;
    } else if (id < 4 * m_count + 1024) {
        m_dense.resize(std::max<size_t>(id + 1, std::min<size_t>(m_dense.size() * 2, 4 * m_count + 1024)));
        m_dense[id] = node;
        // Ids that were beyond the dense range may be inside it now.
        if (!m_sparse.empty()) {
            for (auto it = m_sparse.begin(); it != m_sparse.end();) {
                if (it->first < m_dense.size()) {
                    m_dense[it->first] = it->second;
                    it = m_sparse.erase(it);
                } else {
                    ++it;
                }
            }
        }
    } else {
        m_sparse[id] = node;
    }
    if (hasRegisteredId(node)) {
        const QString text = node->valueOfProperty(coreKeys::id()).toQString();
        if (!text.isEmpty())
            enterTextId(text, id);
    }
    if (node->kind() == NodeKind::Part && node->hasProperty(coreKeys::from()) && node->hasProperty(coreKeys::to()))
        m_connections.insert(id);
}

void NodeRegistry::leave(NodeImpl* node)
{
    const InstanceId id = node->instanceId();
    --m_count;
    if (id < m_dense.size())
        m_dense[id] = nullptr;
    else
        m_sparse.erase(id);
    if (hasRegisteredId(node)) {
        const QString text = node->valueOfProperty(coreKeys::id()).toQString();
        if (!text.isEmpty())
            leaveTextId(text, id);
    }
    m_connections.erase(id);
}

std::vector<NodeImpl*> NodeRegistry::all() const
{
    std::vector<NodeImpl*> nodes;
    nodes.reserve(m_count);
    std::copy_if(m_dense.begin(), m_dense.end(), std::back_inserter(nodes), [](const NodeImpl* node) { return node; });
    for (const auto& [id, node] : m_sparse)
        nodes.push_back(node);
    return nodes;
}

InstanceId NodeRegistry::highestId() const
{
    InstanceId highest = 0;
    for (const auto& [id, node] : m_sparse)
        highest = std::max(highest, id);
    for (size_t id = m_dense.size(); highest == 0 && id-- > 1;) {
        if (m_dense[id])
            highest = static_cast<InstanceId>(id);
    }
    return highest;
}

NodeImpl* NodeRegistry::bySparseId(InstanceId id) const
{
    const auto it = m_sparse.find(id);
    return it == m_sparse.end() ? nullptr : it->second;
}

void NodeRegistry::enterTextId(const QString& text, InstanceId id)
{
    InstanceId& first = m_textIds[text];
    if (first == 0)
        first = id;
    else
        m_laterTextIds[text].push_back(id);
}

void NodeRegistry::leaveTextId(const QString& text, InstanceId id)
{
    const auto it = m_textIds.find(text);
    if (it == m_textIds.end())
        return;
    const auto later = m_laterTextIds.find(text);
    if (later == m_laterTextIds.end()) {
        if (*it == id)
            m_textIds.erase(it);
        return;
    }
    if (*it == id) {
        *it = later->front();
        later->erase(later->begin());
    } else {
        std::erase(*later, id);
    }
    if (later->empty())
        m_laterTextIds.erase(later);
}

InstanceId NodeRegistry::byTextId(const QString& text) const
{
    const auto it = m_textIds.find(text);
    return it == m_textIds.end() ? 0 : *it;
}

QString NodeRegistry::freeTextId(const QString& prefix)
{
    // Numbers below the remembered one may be free again; they are not looked for, so that this stays cheap.
    unsigned int& number = m_nextNumber[prefix];
    QString text;
    do {
        text = prefix + QString::number(++number);
    } while (m_textIds.contains(text));
    --number; // free until somebody takes it
    return text;
}

void NodeRegistry::enterReflection(InstanceId original, InstanceId reflection)
{
    m_reflections[original].push_back(reflection);
}

void NodeRegistry::leaveReflection(InstanceId original, InstanceId reflection)
{
    const auto it = m_reflections.find(original);
    if (it == m_reflections.end())
        return;
    std::erase(*it, reflection);
    if (it->empty())
        m_reflections.erase(it);
}

const std::vector<InstanceId>& NodeRegistry::reflectionsOf(InstanceId original) const
{
    static const std::vector<InstanceId> none;
    const auto it = m_reflections.find(original);
    return it == m_reflections.end() ? none : *it;
}
