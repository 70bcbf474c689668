#pragma once

#include "zkcore/values/unit.h"

#include <QString>

class Formatter;

/// How spin boxes over properties write and read numbers.
namespace numberDisplay {

/// Fixed notation with the decimals that the formatter prescribes; where it prescribes none (or is null) two, and more
/// for numbers below 1, which are "0" when they would need more than four. Trailing zeros are left out; the locale's
/// decimal point.
QString text(double value, const Formatter* formatter);

/// The number that a text stands for, as a number or as an expression in the unit; a NaN when it stands for none.
double number(const QString& text, const Unit& unit);

} // namespace numberDisplay
