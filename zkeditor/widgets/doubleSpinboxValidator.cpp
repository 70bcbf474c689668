#include "zkeditor/widgets/doubleSpinboxValidator.h"

#include "zkcore/base/assert.h"
#include "zkeditor/widgets/doubleSpinbox.h"
#include "zkeditor/widgets/typedNumberValidators.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

int saturated(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, lowest, highest));
}

} // namespace

DoubleSpinBoxValidator::DoubleSpinBoxValidator(DoubleSpinBox* spinBox)
    : DoubleSpinBoxValidator(spinBox, new TypedDoubleValidator)
{
}

DoubleSpinBoxValidator::DoubleSpinBoxValidator(DoubleSpinBox* spinBox, QValidator* validator)
    : QValidator(spinBox), m_spinBox(spinBox), m_validator(validator)
{
    ZK_ASSERT(m_spinBox);
    ZK_ASSERT(m_validator.get());
}

DoubleSpinBoxValidator::~DoubleSpinBoxValidator() = default;

void DoubleSpinBoxValidator::followRange() const
{
    const double lowest = m_spinBox->minValue();
    const double highest = m_spinBox->maxValue();
    if (auto* integer = qobject_cast<QIntValidator*>(m_validator.get()))
        integer->setRange(saturated(std::ceil(lowest)), saturated(std::floor(highest)));
    else if (auto* real = qobject_cast<QDoubleValidator*>(m_validator.get()))
        real->setRange(lowest, highest, 0);
    else
        qWarning("DoubleSpinBoxValidator: Using a non-numeric validator.");
}

QValidator::State DoubleSpinBoxValidator::orSpecialText(State verdict, const QString& stripped) const
{
    if (verdict != Invalid)
        return verdict;
    const QString special = m_spinBox->specialValueText().trimmed();
    if (special.isEmpty() || !special.startsWith(stripped))
        return verdict;
    return special.size() == stripped.size() ? Acceptable : Intermediate;
}

QValidator::State DoubleSpinBoxValidator::validate(QString& text, int& position) const
{
    const QString prefix = m_spinBox->prefix();
    const QString suffix = m_spinBox->suffix();
    const QString strippedSuffix = suffix.trimmed();
    qsizetype overhead = prefix.size() + suffix.size();
    followRange();
    if (overhead == 0) {
        const QString stripped = text.trimmed();
        return orSpecialText(m_validator->validate(text, position), stripped);
    }
    const bool wholeSuffix = text.endsWith(suffix);
    if (text.size() >= overhead && text.startsWith(prefix) && (wholeSuffix || text.endsWith(strippedSuffix))) {
        if (!wholeSuffix)
            overhead = prefix.size() + strippedSuffix.size();
        QString core = text.mid(prefix.size(), text.size() - overhead);
        int corePosition = position - static_cast<int>(prefix.size());
        const State verdict = m_validator->validate(core, corePosition);
        position = corePosition + static_cast<int>(prefix.size());
        text.replace(prefix.size(), text.size() - overhead, core);
        return verdict;
    }
    if ((prefix + suffix).simplified() == text.simplified())
        return Intermediate; // the number was deleted
    QString stripped = text;
    while (!stripped.isEmpty() && stripped.front().isSpace()) {
        stripped.remove(0, 1);
        position = std::max(position - 1, 0);
    }
    stripped = stripped.trimmed();
    const QString typed = stripped;
    return orSpecialText(m_validator->validate(stripped, position), typed);
}

void DoubleSpinBoxValidator::fixup(QString& text) const
{
    m_validator->fixup(text);
}
