#pragma once

#include <QChar>
#include <QString>
#include <QStringView>
#include <optional>

/// Numbers as text: the exact, language-independent form of files, and the rounded form for people.
namespace numberText {

/// Appends the shortest text that reads back as the same double ("0.1", "1e+20"), decimal point '.'.
void appendShortest(QString& text, double value);
void appendInt(QString& text, int value);

/// Reads what the functions above write: decimal or scientific notation, an optional sign, white space around it.
/// Nothing when anything else stands in the text, when the number is out of range, or for NaN and infinity.
std::optional<double> parseDouble(QStringView text);
std::optional<int> parseInt(QStringView text);

/// Rounded half up and held within the range of int; 0 for a NaN.
int roundToInt(double value);

/// Fixed notation with that many decimals; with a negative number, as many as needed up to 6. Decimal point of the
/// locale, no group separators; never a negative zero.
QString fixed(double value, int decimals);

/// Reads a number that a user typed: the decimal point may be the locale's or '.'. The locale's group separators may
/// stand where they cannot be taken for a decimal point: "1.234,5" in German, but "1.234" is a little more than one.
std::optional<double> parseTyped(QStringView text);

} // namespace numberText
