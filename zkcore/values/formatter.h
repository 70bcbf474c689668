#pragma once

#include "zkcore/base/export.h"
#include "zkcore/values/unit.h"
#include "zkcore/values/value.h"

#include <functional>
#include <memory>
#include <vector>

/// Turns a value into text and text into a value. A formatter belongs to one property and is light: what a class says
/// about its format is shared.
class ZKCORE_EXPORT Formatter
{
public:
    explicit Formatter(Value::Type type) : m_type(type) {}
    virtual ~Formatter();
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    Value::Type type() const { return m_type; }
    /// The text of a value (in SI) for people.
    virtual QString toText(const Value& value) const;
    /// The value (in SI) that a text stands for; a value of another type (the invalid value, or the text itself as
    /// STRING) when the text does not stand for one of this formatter's type.
    virtual Value fromText(const QString& text) const;

private:
    Value::Type m_type;
};

/// What a class says about the format of a numeric property; shared by all its nodes.
struct NumericalFormat
{
    /// Digits after the decimal point; negative means automatic.
    int decimals = -1;
    /// The units offered to the user; empty when the value has none.
    std::vector<Unit> units;
    /// The unit used until the user chooses another; the null unit when the value has none.
    Unit unit;
};

/// Formats INT, DOUBLE and POINT values in a unit. Text is read with the locale's decimal point and with '.', with or
/// without the unit behind it, and as an expression ("2 in + 3 mm").
class ZKCORE_EXPORT NumericalFormatter : public Formatter
{
public:
    NumericalFormatter(Value::Type type, std::shared_ptr<const NumericalFormat> format);

    /// Whether values of that type are numbers to it: INT, DOUBLE and POINT.
    static bool formats(Value::Type type);

    /// Negative means automatic.
    int decimals() const { return m_format->decimals; }
    /// The unit shown now; the null unit when the value has none.
    Unit currentUnit() const { return m_unit; }
    std::vector<Unit> units() const { return m_format->units; }
    /// Chooses the unit shown for this property. Units that are not offered are refused (returns false). A change is
    /// told to the property, which emits formatterChanged().
    bool setCurrentUnit(const Unit& unit);
    /// Begins anew with the preferred units, if one of the preferred, or of those preferred before, is offered here.
    /// A change is told as by setCurrentUnit().
    void followPreferredUnits(const std::vector<Unit>& before);

    /// Set by the property that owns the formatter; called after the current unit changed.
    void setChangeHandler(std::function<void()> handler) { m_changed = std::move(handler); }

    /// Numbers without unit text: fixed notation with decimals() digits or, automatic, as many as needed up to 6,
    /// trailing zeros removed, the locale's decimal point. Points as "x, y" ("x; y" where the decimal point is ',').
    QString toText(const Value& value) const override;
    Value fromText(const QString& text) const override;

private:
    void change(const Unit& unit);

    std::shared_ptr<const NumericalFormat> m_format;
    Unit m_unit;
    std::function<void()> m_changed;
};
