#pragma once

#include "zkcore/base/classId.h"
#include "zkcore/base/propertyKey.h"

/// The classes and properties of charts and of the components that they switch; looked up once.
struct FlowchartKeys
{
    ClassId domain = getCidForString("flowcharts/*");
    ClassId start = getCidForString("flowcharts/start");
    ClassId step = getCidForString("flowcharts/step");
    ClassId decision = getCidForString("flowcharts/decision");
    ClassId procedure = getCidForString("flowcharts/procedure");
    ClassId stop = getCidForString("flowcharts/stop");
    ClassId link = getCidForString("flowcharts/link");

    // Of spaces and the model
    PropertyKey speed = PropertyKey::fromString("speed");
    PropertyKey stepPressed = PropertyKey::fromString("step-pressed");
    PropertyKey paused = PropertyKey::fromString("paused");

    // Of blocks
    PropertyKey active = PropertyKey::fromString("active");
    PropertyKey breakpoint = PropertyKey::fromString("breakpoint");
    PropertyKey selfStarting = PropertyKey::fromString("self-starting");
    PropertyKey startWhen = PropertyKey::fromString("start-when");
    PropertyKey inputs = PropertyKey::fromString("inputs");
    PropertyKey delay = PropertyKey::fromString("delay");
    PropertyKey action = PropertyKey::fromString("action");
    PropertyKey switchOn = PropertyKey::fromString("switch-on");
    PropertyKey waitForEnd = PropertyKey::fromString("wait-for-end");
    PropertyKey others = PropertyKey::fromString("others");
    PropertyKey duration = PropertyKey::fromString("duration");
    PropertyKey strength = PropertyKey::fromString("strength");
    PropertyKey moreOutputs = PropertyKey::fromString("more-outputs");
    PropertyKey inputName = PropertyKey::fromString("input-name");
    PropertyKey comparison = PropertyKey::fromString("comparison");
    PropertyKey threshold = PropertyKey::fromString("threshold");
    PropertyKey yesBranch = PropertyKey::fromString("yes-branch");
    PropertyKey keepAsking = PropertyKey::fromString("keep-asking");
    PropertyKey watched = PropertyKey::fromString("watched");
    PropertyKey calls = PropertyKey::fromString("calls");
    PropertyKey follow = PropertyKey::fromString("follow");
    PropertyKey stopInside = PropertyKey::fromString("stop-inside");
    PropertyKey startAgain = PropertyKey::fromString("start-again");
    PropertyKey atEnd = PropertyKey::fromString("outputs");
    PropertyKey message = PropertyKey::fromString("message");
    PropertyKey direction = PropertyKey::fromString("direction");

    // Of components
    PropertyKey outputName = PropertyKey::fromString("output-name");
    PropertyKey runningLevel = PropertyKey::fromString("running-level");
    PropertyKey momentary = PropertyKey::fromString("momentary");
    PropertyKey key = PropertyKey::fromString("key");
    PropertyKey lit = PropertyKey::fromString("lit");
    PropertyKey sounding = PropertyKey::fromString("sounding");
    PropertyKey running = PropertyKey::fromString("running");
    PropertyKey closed = PropertyKey::fromString("closed");
    PropertyKey lightLevel = PropertyKey::fromString("light-level");
    PropertyKey switchLevel = PropertyKey::fromString("switch-level");
    PropertyKey signalWhen = PropertyKey::fromString("signal-when");
};

inline const FlowchartKeys& flowchartKeys()
{
    static const FlowchartKeys keys;
    return keys;
}
