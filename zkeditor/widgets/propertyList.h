#pragma once

#include "zkeditor/export.h"

#include <QHash>
#include <cstddef>
#include <iterator>
#include <optional>
#include <vector>

class PropertyImpl;
class QObject;

/// The properties that an observer is bound to, each at most once, in the order in which they were added. Does not own
/// them. A destroyed property leaves a hole that every visit skips, so that taking properties out one by one stays
/// cheap however many there are.
class ZKEDITOR_EXPORT PropertyList
{
    struct Slot
    {
        PropertyImpl* property; // null: a hole
        unsigned int tag;
    };

public:
    /// Visits the properties in order; must not be kept across a change of the list.
    class const_iterator
    {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = PropertyImpl*;
        using difference_type = std::ptrdiff_t;
        using pointer = PropertyImpl* const*;
        using reference = PropertyImpl*;

        PropertyImpl* operator*() const { return m_slot->property; }
        const_iterator& operator++()
        {
            ++m_slot;
            skipHoles();
            return *this;
        }
        const_iterator operator++(int)
        {
            const const_iterator before = *this;
            ++*this;
            return before;
        }
        friend bool operator==(const const_iterator& a, const const_iterator& b) { return a.m_slot == b.m_slot; }

    private:
        friend class PropertyList;
        const_iterator(const Slot* slot, const Slot* end) : m_slot(slot), m_end(end) { skipHoles(); }
        void skipHoles()
        {
            while (m_slot != m_end && !m_slot->property)
                ++m_slot;
        }
        const Slot* m_slot;
        const Slot* m_end;
    };

    /// The tag is the caller's and is given back when the property is taken out.
    void append(PropertyImpl* property, unsigned int tag);
    /// Takes a property out, which may be on its way of being destroyed: the pointer is only compared. Gives its tag,
    /// or nothing when it is not in the list. Amortised constant time.
    std::optional<unsigned int> remove(const QObject* property);
    void clear();
    void reserve(size_t count) { m_slots.reserve(count); }

    size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    /// The first property and its tag; the list must not be empty.
    PropertyImpl* front() const { return m_slots[m_first].property; }
    unsigned int frontTag() const { return m_slots[m_first].tag; }

    const_iterator begin() const { return {m_slots.data() + m_first, m_slots.data() + m_slots.size()}; }
    const_iterator end() const { return {m_slots.data() + m_slots.size(), m_slots.data() + m_slots.size()}; }

    /// The first property for which the predicate holds, beginning at `place` and wrapping round; null when it holds
    /// for none. `place` is a hint, at first 0, that is set to where the property stands.
    template <typename Predicate> PropertyImpl* findFrom(size_t& place, Predicate predicate) const
    {
        const size_t count = m_slots.size();
        if (place >= count)
            place = 0;
        for (size_t i = 0; i < count; ++i) {
            const size_t at = place + i < count ? place + i : place + i - count;
            if (PropertyImpl* property = m_slots[at].property; property && predicate(property)) {
                place = at;
                return property;
            }
        }
        return nullptr;
    }

private:
    void buildIndex();
    void compact();

    std::vector<Slot> m_slots;
    QHash<const QObject*, size_t> m_index; // built when the first property is taken out
    size_t m_size = 0;
    size_t m_first = 0; // slot of the first property; the number of slots when there is none
};
