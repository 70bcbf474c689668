#include "zkcore/values/unitNames.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>
#include <iterator>

namespace {

// Greek mu and omega have two code points each; both are listed.
constexpr UnitName wellKnownUnits[] = {
    {"m", "metre meter metres meters", QT_TRANSLATE_NOOP("Unit", "metres"), "m"},
    {"mm", "millimetre millimeter millimetres millimeters", QT_TRANSLATE_NOOP("Unit", "millimetres"), "mm"},
    {"cm", "centimetre centimeter centimetres centimeters", QT_TRANSLATE_NOOP("Unit", "centimetres"), "cm"},
    {"km", "kilometre kilometer kilometres kilometers", QT_TRANSLATE_NOOP("Unit", "kilometres"), "km"},
    {"um", "µm μm micrometre micrometer", QT_TRANSLATE_NOOP("Unit", "micrometres"), "µm"},
    {"in", "inch inches", QT_TRANSLATE_NOOP("Unit", "inches"), "in"},
    {"ft", "foot feet", QT_TRANSLATE_NOOP("Unit", "feet"), "ft"},
    {"degree", "degrees deg arc_degree °", QT_TRANSLATE_NOOP("Unit", "degrees"), "°"},
    {"radian", "radians rad", QT_TRANSLATE_NOOP("Unit", "radians"), nullptr},
    {"ohm", "ohms Ω Ω", QT_TRANSLATE_NOOP("Unit", "ohms"), "Ω"},
    {"mohm", "milliohm mΩ mΩ", QT_TRANSLATE_NOOP("Unit", "milliohms"), "mΩ"},
    {"kohm", "kiloohm kilohm kilohms kΩ kΩ", QT_TRANSLATE_NOOP("Unit", "kilohms"), "kΩ"},
    {"Mohm", "megaohm megohm megohms MΩ MΩ", QT_TRANSLATE_NOOP("Unit", "megohms"), "MΩ"},
    {"V", "volt volts", QT_TRANSLATE_NOOP("Unit", "volts"), "V"},
    {"mV", "millivolt millivolts", QT_TRANSLATE_NOOP("Unit", "millivolts"), "mV"},
    {"kV", "kilovolt kilovolts", QT_TRANSLATE_NOOP("Unit", "kilovolts"), "kV"},
    {"A", "ampere amperes amp amps", QT_TRANSLATE_NOOP("Unit", "amperes"), "A"},
    {"mA", "milliampere milliamperes", QT_TRANSLATE_NOOP("Unit", "milliamperes"), "mA"},
    {"uA", "µA μA microampere microamperes", QT_TRANSLATE_NOOP("Unit", "microamperes"), "µA"},
    {"W", "watt watts", QT_TRANSLATE_NOOP("Unit", "watts"), "W"},
    {"mW", "milliwatt milliwatts", QT_TRANSLATE_NOOP("Unit", "milliwatts"), "mW"},
    {"F", "farad farads", QT_TRANSLATE_NOOP("Unit", "farads"), "F"},
    {"uF", "µF μF microfarad microfarads", QT_TRANSLATE_NOOP("Unit", "microfarads"), "µF"},
    {"nF", "nanofarad nanofarads", QT_TRANSLATE_NOOP("Unit", "nanofarads"), "nF"},
    {"pF", "picofarad picofarads", QT_TRANSLATE_NOOP("Unit", "picofarads"), "pF"},
    {"s", "second seconds sec", QT_TRANSLATE_NOOP("Unit", "seconds"), "s"},
    {"ms", "millisecond milliseconds", QT_TRANSLATE_NOOP("Unit", "milliseconds"), "ms"},
    {"us", "µs μs microsecond microseconds", QT_TRANSLATE_NOOP("Unit", "microseconds"), "µs"},
    {"min", "minute minutes", QT_TRANSLATE_NOOP("Unit", "minutes"), "min"},
    {"h", "hour hours", QT_TRANSLATE_NOOP("Unit", "hours"), "h"},
    {"Hz", "hertz", QT_TRANSLATE_NOOP("Unit", "hertz"), "Hz"},
    {"kHz", "kilohertz", QT_TRANSLATE_NOOP("Unit", "kilohertz"), "kHz"},
    {"MHz", "megahertz", QT_TRANSLATE_NOOP("Unit", "megahertz"), "MHz"},
    {"kg", "kilogram kilograms kilogramme kilogrammes", QT_TRANSLATE_NOOP("Unit", "kilograms"), "kg"},
    {"g", "gram grams gramme grammes", QT_TRANSLATE_NOOP("Unit", "grams"), "g"},
    {"N", "newton newtons", QT_TRANSLATE_NOOP("Unit", "newtons"), "N"},
    {"J", "joule joules", QT_TRANSLATE_NOOP("Unit", "joules"), "J"},
    {"K", "kelvin kelvins", QT_TRANSLATE_NOOP("Unit", "kelvins"), "K"},
    {"degC", "celsius °C", QT_TRANSLATE_NOOP("Unit", "degrees Celsius"), "°C"},
    {"degF", "fahrenheit °F", QT_TRANSLATE_NOOP("Unit", "degrees Fahrenheit"), "°F"},
    {"m/s", "m.s-1", QT_TRANSLATE_NOOP("Unit", "metres per second"), "m/s"},
    {"rpm", "", QT_TRANSLATE_NOOP("Unit", "revolutions per minute"), "rpm"},
    {"%", "percent", QT_TRANSLATE_NOOP("Unit", "percent"), "%"},
};

QHash<QString, const UnitName*> unitNameIndex()
{
    QHash<QString, const UnitName*> index;
    for (const UnitName& unit : wellKnownUnits) {
        index.insert(QString::fromUtf8(unit.symbol), &unit);
        const QStringList aliases = QString::fromUtf8(unit.aliases).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString& alias : aliases)
            index.insert(alias, &unit);
    }
    return index;
}

} // namespace

const UnitName* findUnitName(const QString& text)
{
    static const QHash<QString, const UnitName*> index = unitNameIndex();
    return index.value(text);
}
