#include "zkcore/values/expressionParser.h"

#include "zkcore/values/expressionText.h"
#include "zkcore/values/numberText.h"

#include <QCoreApplication>
#include <cmath>
#include <limits>
#include <numbers>

#include <muParser.h>

namespace {

QString translatedExpressionReason(const char* text)
{
    return QCoreApplication::translate("ExpressionParser", text);
}

/// The evaluator; made once, since defining its functions costs more than most evaluations. It reads '.' as decimal
/// point whatever the locale.
mu::Parser& evaluator()
{
    static mu::Parser parser = [] {
        mu::Parser made;
        made.DefineConst("pi", std::numbers::pi);
        made.DefineConst("e", std::numbers::e);
        return made;
    }();
    return parser;
}

QString reasonForError(const mu::Parser::exception_type& error, const ExpressionText& text)
{
    const int position = text.typedPosition(static_cast<int>(error.GetPos()));
    switch (error.GetCode()) {
    case mu::ecUNEXPECTED_EOF:
    case mu::ecEMPTY_EXPRESSION:
        return translatedExpressionReason(QT_TRANSLATE_NOOP("ExpressionParser", "The expression is not complete."));
    case mu::ecMISSING_PARENS:
        return translatedExpressionReason(QT_TRANSLATE_NOOP("ExpressionParser", "A closing bracket is missing."));
    case mu::ecUNASSIGNABLE_TOKEN:
        return translatedExpressionReason(QT_TRANSLATE_NOOP("ExpressionParser", "\"%1\" at position %2 is not known."))
            .arg(QString::fromStdString(error.GetToken()))
            .arg(position);
    case mu::ecTOO_FEW_PARAMS:
    case mu::ecTOO_MANY_PARAMS:
        return translatedExpressionReason(
                   QT_TRANSLATE_NOOP("ExpressionParser",
                                     "The function before position %1 takes another number of arguments."))
            .arg(position);
    default:
        return translatedExpressionReason(
                   QT_TRANSLATE_NOOP("ExpressionParser", "The expression is not correct at position %1."))
            .arg(position);
    }
}

} // namespace

ExpressionParser::ExpressionResult ExpressionParser::ExpressionResult::failed(const QString& reason)
{
    ExpressionResult result(std::numeric_limits<double>::quiet_NaN());
    result.m_reason = reason.isNull() ? QLatin1String("") : reason;
    return result;
}

ExpressionParser::ExpressionResult ExpressionParser::eval(const QString& text)
{
    return eval(text, Unit());
}

ExpressionParser::ExpressionResult ExpressionParser::eval(const QString& text, const Unit& shown)
{
    if (const std::optional<double> number = numberText::parseTyped(text))
        return ExpressionResult(*number);
    const ExpressionText translated(text, shown);
    if (!translated.fault().isNull())
        return ExpressionResult::failed(translated.fault());

    double value = 0.0;
    try {
        evaluator().SetExpr(translated.expression());
        int count = 0;
        const double* const values = evaluator().Eval(count);
        value = count > 0 ? values[count - 1] : std::numeric_limits<double>::quiet_NaN();
    } catch (const mu::Parser::exception_type& error) {
        return ExpressionResult::failed(reasonForError(error, translated));
    } catch (const std::exception& error) {
        return ExpressionResult::failed(QString::fromUtf8(error.what()));
    }
    if (std::isnan(value))
        return ExpressionResult::failed(
            translatedExpressionReason(QT_TRANSLATE_NOOP("ExpressionParser", "The result is not a number.")));
    if (std::isinf(value))
        return ExpressionResult::failed(translatedExpressionReason(
            QT_TRANSLATE_NOOP("ExpressionParser", "The result is too large, or something is divided by zero.")));
    return ExpressionResult(value);
}
