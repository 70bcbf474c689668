#pragma once

#include <QByteArray>

/// Looks property-list data over before they are handed to libplist, which takes them on trust: nesting that would
/// overflow the stack and references that multiply the data many times over are refused.
class PropertyListGuard
{
public:
    static bool isSafe(const QByteArray& data);
};
