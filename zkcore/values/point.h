#pragma once

namespace zk {

/// Two doubles, in SI units where they are a place or a size.
struct Point
{
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const Point&, const Point&) = default;
};

} // namespace zk
