#pragma once

#include "zkcore/values/unit.h"

#include <QChar>
#include <QString>
#include <QStringView>
#include <string>
#include <vector>

/// Turns what a user typed into an expression that the evaluator understands: one kind of decimal point, blanks gone,
/// signs of the keyboard's upper reaches replaced, and numbers that carry a unit converted to the unit shown.
class ExpressionText
{
public:
    ExpressionText(QStringView typed, const Unit& shown);

    /// Why the text cannot be an expression, translated; null when it may be one.
    QString fault() const { return m_fault; }
    /// Seven-bit characters only; nesting and length are limited.
    const std::string& expression() const { return m_expression; }
    /// The place in the typed text, counted from 1, of a place in the expression, counted from 0.
    int typedPosition(int position) const;

    /// Whether the character can stand somewhere in a typed number, expression or unit.
    static bool isPlausible(QChar c);

private:
    static constexpr size_t noOperand = static_cast<size_t>(-1);

    void translate();
    bool readNumber();
    void readName();
    void readUnit();
    bool readSign(QChar c);
    void emitText(const std::string& text, qsizetype from);
    void applyUnit(const Unit& unit);
    Unit unitTyped(const QString& text) const;
    bool isDecimalPoint(qsizetype position) const;
    qsizetype skipBlanks(qsizetype position) const;
    QChar at(qsizetype position) const { return position < m_typed.size() ? m_typed[position] : QChar(); }
    void fail(const QString& reason);
    void failUnexpected(qsizetype position, qsizetype length);

    QStringView m_typed;
    const Unit& m_shown;
    QChar m_decimalPoint;
    qsizetype m_position = 0;
    std::string m_expression;
    std::vector<qsizetype> m_origins; // for each character of the expression, its place in the typed text
    std::vector<size_t> m_groups;     // where in the expression each open bracket's operand begins
    size_t m_operand = noOperand;     // where the operand that was just completed begins
    bool m_hasUnit = false;           // whether that operand carries a unit already
    size_t m_function = noOperand;    // where the function name that was just read begins
    QString m_fault;
};
