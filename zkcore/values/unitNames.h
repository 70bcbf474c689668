#pragma once

#include <QString>

/// How people write a well-known unit.
struct UnitName
{
    /// Symbol in the data base of units.
    const char* symbol;
    /// What else it is called, separated by blanks, in UTF-8.
    const char* aliases;
    /// The full name in the plural, untranslated.
    const char* name;
    /// The short form in UTF-8; null when people write the full name.
    const char* abbreviation;
};

/// The well-known unit of that symbol or alias; null when the text is none.
const UnitName* findUnitName(const QString& text);
