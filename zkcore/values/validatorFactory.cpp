#include "zkcore/values/validatorFactory.h"

#include "zkcore/values/expressionText.h"
#include "zkcore/values/numberText.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <algorithm>
#include <optional>
#include <utility>

namespace {

/// A line edit judges the text again after fixup, and swallows Return unless it is acceptable then. Whether what was
/// typed can be applied is for the observer of the line edit to say, so text that went through fixup passes once.
template <typename Base> class UnblockingValidator : public Base
{
public:
    using Judge = QValidator::State (*)(const QString&);

    UnblockingValidator(Judge judge, QObject* parent) : Base(parent), m_judge(judge) {}

    QValidator::State validate(QString& text, int&) const override
    {
        const bool passes = std::exchange(m_fixed, std::nullopt) == text;
        return passes ? QValidator::Acceptable : m_judge(text);
    }

    void fixup(QString& text) const override { m_fixed = text; }

private:
    Judge m_judge;
    mutable std::optional<QString> m_fixed;
};

QValidator::State judgeTyped(const QString& text, bool isComplete)
{
    if (isComplete)
        return QValidator::Acceptable;
    const bool isPlausible = std::all_of(text.begin(), text.end(), ExpressionText::isPlausible);
    return isPlausible ? QValidator::Intermediate : QValidator::Invalid;
}

QValidator::State judgeInt(const QString& text)
{
    return judgeTyped(text, numberText::parseInt(text).has_value());
}

QValidator::State judgeDouble(const QString& text)
{
    return judgeTyped(text, numberText::parseTyped(text).has_value());
}

QValidator::State judgePoint(const QString& text)
{
    const QChar separator = text.contains(u';') ? u';' : u',';
    const qsizetype position = text.indexOf(separator);
    const QStringView view(text);
    return judgeTyped(text, position >= 0 && numberText::parseTyped(view.first(position)) &&
                                numberText::parseTyped(view.sliced(position + 1)));
}

QValidator::State judgeColor(const QString& text)
{
    const QString word = text.trimmed();
    if (!word.isEmpty() && valueFromText(Value::COLOR, word).isValid())
        return QValidator::Acceptable;
    const bool isPlausible = std::all_of(word.begin(), word.end(), [&word](const QChar& c) {
        return c == u'#' ? &c == word.constData() : c.unicode() < 0x80 && c.isLetterOrNumber();
    });
    return isPlausible ? QValidator::Intermediate : QValidator::Invalid;
}

QValidator::State acceptAny(const QString&)
{
    return QValidator::Acceptable;
}

} // namespace

QValidator* QValidatorFactory::createByType(Value::Type type, QObject* parent)
{
    switch (type) {
    case Value::INT:
        return new UnblockingValidator<QIntValidator>(judgeInt, parent);
    case Value::DOUBLE:
        return new UnblockingValidator<QDoubleValidator>(judgeDouble, parent);
    case Value::POINT:
        return new UnblockingValidator<QValidator>(judgePoint, parent);
    case Value::COLOR:
        return new UnblockingValidator<QValidator>(judgeColor, parent);
    default:
        return new UnblockingValidator<QValidator>(acceptAny, parent);
    }
}
