#pragma once

/// What a lock keeps the user from changing. A lock of PropertyValues implies the others.
enum LockGroup { LockPosition = 0, LockSize = 1, LockOrientation = 2, LockPropertyValues = 3 };
/// How many locks there are.
constexpr int lockGroupCount = 4;
