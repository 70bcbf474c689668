#pragma once

#include <QSet>

/// The objects of a class that are alive, for testing stored pointers in constant time.
template <typename T> class LiveSet
{
public:
    void insert(const T* object) { m_objects.insert(object); }
    void remove(const T* object) { m_objects.remove(object); }
    bool contains(const T* object) const { return object && m_objects.contains(object); }

private:
    QSet<const T*> m_objects;
};
