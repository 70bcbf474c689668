#pragma once

/// Names a node within its document, kept across saving, loading, undo and redo. 0 names nothing.
using InstanceId = unsigned int;
/// No node has a higher one.
constexpr InstanceId highestInstanceId = 4294967294;
