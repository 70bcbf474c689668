#pragma once

#include "zkcore/base/export.h"

#include <QMetaType>
#include <QString>
#include <memory>

class Value;

/// A unit of measure, converted with UDUNITS-2. Values are stored in SI units (metre, radian, ohm, second, volt, ...)
/// and converted for display. Copied by value.
class ZKCORE_EXPORT Unit
{
public:
    /// The null unit: the value has no unit.
    Unit() = default;

    /// The unit of a symbol or name of the UDUNITS-2 data base ("mm", "in", "degree", "kohm"). The null unit when the
    /// text is not known. An abbreviation for display may be given where the symbol is not what people write
    /// ("Ω" for "ohm"); otherwise well-known units have theirs and others have none.
    static Unit fromText(const QString& text);
    static Unit fromText(const QString& text, const QString& abbreviation);

    bool isNull() const { return !m_data; }
    /// The full name for display ("millimetres"); the text the unit was made from where there is no better.
    QString name() const;
    /// The short form for display ("mm"); a null string when there is none.
    QString abbreviatedName() const;
    /// The text that makes this unit again with fromText.
    QString symbol() const;

    /// Value in this unit to SI. INT, DOUBLE, POINT and the lists of them are converted (INT is rounded half up and
    /// stays INT); every other type, and every value of the null unit, is returned unchanged.
    Value convertToSI(const Value& value) const;
    Value convertFromSI(const Value& value) const;
    double convertToSI(double value) const;
    double convertFromSI(double value) const;
    /// Whether values of one can be converted into the other (both lengths, say). Null units: only with each other.
    bool isConvertibleTo(const Unit& other) const;

    /// Equal when both are null or both were made from the same symbol.
    friend ZKCORE_EXPORT bool operator==(const Unit& a, const Unit& b);

private:
    struct Data;
    explicit Unit(std::shared_ptr<const Data> data) : m_data(std::move(data)) {}

    std::shared_ptr<const Data> m_data;
};

Q_DECLARE_METATYPE(Unit)
