#pragma once

#include <QString>

/// The text with marks around it that let it run in its own direction, whatever the direction of the form: "1, 0" and
/// "-5" must not become "0 ,1" and "5-" in languages that run to the left.
inline QString isolatedText(const QString& text)
{
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popDirectionalIsolate(0x2069);
    return text.isEmpty() ? text : firstStrongIsolate + text + popDirectionalIsolate;
}
