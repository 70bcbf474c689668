#pragma once

#include "zkcore/base/export.h"
#include "zkcore/values/unit.h"

#include <QString>

/// Evaluates typed text as an arithmetic expression (muParser's operators and functions, pi and e).
class ZKCORE_EXPORT ExpressionParser
{
public:
    class ZKCORE_EXPORT ExpressionResult
    {
    public:
        ExpressionResult() = default;
        explicit ExpressionResult(double value) : m_value(value) {}
        static ExpressionResult failed(const QString& reason);

        /// Whether the text was an expression with a finite value.
        bool isValid() const { return m_reason.isNull(); }
        /// The value; a quiet NaN when the expression is malformed or its value is not finite.
        double toDouble() const { return m_value; }
        operator double() const { return m_value; } // NOLINT: a result yields a double
        /// Why there is no value, translated, with the position of the fault; null when there is one.
        QString reason() const { return m_reason; }

    private:
        double m_value = 0.0;
        QString m_reason;
    };

    /// Both the locale's decimal point and '.' are understood.
    static ExpressionResult eval(const QString& text);
    /// As above; a number may carry a unit that is convertible to the unit shown ("2 in + 3 mm"), and the value is in
    /// the unit shown. With the null unit, unit texts are malformed.
    static ExpressionResult eval(const QString& text, const Unit& shown);
};
