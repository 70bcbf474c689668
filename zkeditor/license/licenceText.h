#pragma once

#include "zkeditor/export.h"

#include <QByteArray>
#include <QString>

/// Bytes as a text that can be read over the telephone: groups of six letters and digits of which none looks like
/// another. The last character of each group is a check over the others and the group's place, so that a wrong letter,
/// two exchanged letters, and exchanged, missing or doubled groups are found, and it is known which group is wrong.
///
/// Small letters, O for 0, and I or L for 1 are understood; groups are separated by blanks, hyphens or line breaks, or
/// not at all.
namespace licenceText {

constexpr int groupLength = 6;
/// Bytes that a text may stand for.
constexpr int maximumBytes = 400;

/// Groups separated by hyphens, a line break after every fifth.
ZKEDITOR_EXPORT QString fromBytes(const QByteArray& bytes);

/// Puts a text in the shape that fromBytes() gives, as far as it goes; for texts that are pasted.
ZKEDITOR_EXPORT QString normalised(const QString& text);

/// What became of reading a text, and where it is wrong.
struct ZKEDITOR_EXPORT Reading
{
    enum Fault {
        None,
        Empty,
        WrongCharacter, ///< `character` in the group cannot be part of a code
        WrongLength,    ///< the group has `found` characters
        WrongCheck,     ///< a typing error in the group, or the group stands in another's place
        TooLong,
    };

    Fault fault = Empty;
    int group = 0; ///< the first wrong group, counted from 1
    int found = 0;
    QChar character;
    int groups = 0;   ///< in the whole text
    QByteArray bytes; ///< when there is no fault; what fills up the last group follows the real ones, up to 4 bytes
};

ZKEDITOR_EXPORT Reading toBytes(const QString& text);

} // namespace licenceText
