#include "zkeditor/widgets/propertyList.h"

#include "zkcore/model/propertyImpl.h"

#include <algorithm>

void PropertyList::append(PropertyImpl* property, unsigned int tag)
{
    if (!m_index.isEmpty())
        m_index.insert(property, m_slots.size());
    m_slots.push_back({property, tag});
    ++m_size;
}

std::optional<unsigned int> PropertyList::remove(const QObject* property)
{
    if (m_index.isEmpty())
        buildIndex();
    const auto found = m_index.constFind(property);
    if (found == m_index.cend())
        return {};
    Slot& slot = m_slots[*found];
    m_index.erase(found);
    slot.property = nullptr;
    const unsigned int tag = slot.tag;
    --m_size;
    if (m_size < m_slots.size() / 2) {
        compact();
    } else {
        while (m_first < m_slots.size() && !m_slots[m_first].property)
            ++m_first;
    }
    return tag;
}

void PropertyList::clear()
{
    m_slots.clear();
    m_index.clear();
    m_size = 0;
    m_first = 0;
}

void PropertyList::buildIndex()
{
    m_index.reserve(static_cast<qsizetype>(m_slots.size()));
    for (size_t i = 0; i < m_slots.size(); ++i) {
        if (m_slots[i].property)
            m_index.insert(m_slots[i].property, i);
    }
}

// The order stays, so places that callers remember are at worst less good guesses.
void PropertyList::compact()
{
    std::erase_if(m_slots, [](const Slot& slot) { return !slot.property; });
    m_first = 0;
    m_index.clear();
    buildIndex();
}
