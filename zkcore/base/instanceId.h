#pragma once

/// Names a node within its document, kept across saving, loading, undo and redo. 0 names nothing.
using InstanceId = unsigned int;
constexpr InstanceId highestInstanceId = 4294967294; ///< No node has a higher one.
