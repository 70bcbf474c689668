#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/propertyKey.h"

/// The properties and classes that decide how elements look; looked up once.
struct PaintKeys
{
    PropertyKey active = PropertyKey::fromString("active");
    PropertyKey align = PropertyKey::fromString("alignment");
    PropertyKey arrow = PropertyKey::fromString("arrow");
    PropertyKey background = PropertyKey::fromString("background");
    PropertyKey bends = PropertyKey::fromString("bends");
    PropertyKey bold = PropertyKey::fromString("bold");
    PropertyKey brightness = PropertyKey::fromString("brightness");
    PropertyKey color = PropertyKey::fromString("color");
    PropertyKey dashed = PropertyKey::fromString("dashed");
    PropertyKey fontSize = PropertyKey::fromString("font-size");
    PropertyKey framed = PropertyKey::fromString("framed");
    PropertyKey highlight = PropertyKey::fromString("highlight");
    PropertyKey italic = PropertyKey::fromString("italic");
    PropertyKey keepProportions = PropertyKey::fromString("keep-proportions");
    PropertyKey mirrored = PropertyKey::fromString("mirrored");
    PropertyKey picture = PropertyKey::fromString("picture");
    PropertyKey reference = PropertyKey::fromString("reference");
    PropertyKey route = PropertyKey::fromString("route");
    PropertyKey runningLevel = PropertyKey::fromString("running-level");
    PropertyKey showGrid = PropertyKey::fromString("show-grid");
    PropertyKey showReference = PropertyKey::fromString("show-reference");
    PropertyKey text = PropertyKey::fromString("text");
    PropertyKey width = PropertyKey::fromString("width");

    ClassId connectionClass = getCidForString("core/connection");
    ClassId textClass = getCidForString("core/text");
    ClassId coreDomain = getCidForString("core/*");
    /// Blocks carry their label in their middle rather than under them.
    ClassId blockClass = getCidForString("flowcharts/block");
};

inline const PaintKeys& paintKeys()
{
    static const PaintKeys keys;
    return keys;
}

/// Measures that painting and geometry share, in metres.
namespace paintMeasures {
/// Half the width of the outlines drawn round elements.
constexpr double outlineRoom = 0.00025;
constexpr double arrowLength = 0.003;
constexpr double arrowWidth = 0.0024;
} // namespace paintMeasures
