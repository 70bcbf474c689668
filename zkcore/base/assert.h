#pragma once

#include <QtGlobal>

/// Reports a broken invariant through the fatal message channel; the installed message handler ends the program.
#define ZK_ASSERT(condition) ZK_ASSERT_TEXT(condition, #condition)

/// As ZK_ASSERT, with the condition text given explicitly where it differs from the expression.
#define ZK_ASSERT_TEXT(condition, text)                                                                                \
    do {                                                                                                               \
        if (!(condition))                                                                                              \
            qFatal("ZK_ASSERT: \"%s\" in %s (%d)", text, __FILE__, __LINE__);                                          \
    } while (false)

/// As ZK_ASSERT, with a message composed at run time (a QString) that says more than the condition.
#define ZK_ASSERT_MESSAGE(condition, message)                                                                          \
    do {                                                                                                               \
        if (!(condition))                                                                                              \
            qFatal("ZK_ASSERT: %s (in %s, line %d)", qPrintable(message), __FILE__, __LINE__);                         \
    } while (false)
