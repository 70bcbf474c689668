#include "zkeditor/widgets/validatorSet.h"

#include "zkcore/values/validator.h"

#include <QObject>
#include <algorithm>

ValidatorSet::ValidatorSet(QObject* receiver) : m_receiver(receiver), m_entries(1) {}

ValidatorSet::~ValidatorSet()
{
    clear();
}

unsigned int ValidatorSet::add(const std::shared_ptr<interface::Validator>& validator)
{
    unsigned int number = 0;
    if (validator) {
        number = m_numbers.value(validator.get(), 0);
        if (number == 0) {
            number = static_cast<unsigned int>(m_entries.size());
            m_entries.push_back({validator, 0});
            m_numbers.insert(validator.get(), number);
            validator->connect(m_receiver, SLOT(onValidatorChanged()));
        }
    }
    ++m_entries[number].uses;
    return number;
}

void ValidatorSet::release(unsigned int number)
{
    Entry& entry = m_entries[number];
    if (--entry.uses > 0 || !entry.validator)
        return;
    entry.validator->disconnect(m_receiver);
    m_numbers.remove(entry.validator.get());
    entry.validator.reset();
}

void ValidatorSet::clear()
{
    for (const Entry& entry : m_entries) {
        if (entry.validator)
            entry.validator->disconnect(m_receiver);
    }
    m_entries.assign(1, {});
    m_numbers.clear();
}

bool ValidatorSet::allow(const Value& value) const
{
    return std::all_of(m_entries.begin(), m_entries.end(),
                       [&value](const Entry& entry) { return !entry.validator || entry.validator->isValid(value); });
}

interface::Validator* ValidatorSet::commonTo(unsigned int number) const
{
    interface::Validator* common = m_entries[number].validator.get();
    if (!common || m_entries.front().uses > 0)
        return nullptr;
    const bool same = std::all_of(m_entries.begin(), m_entries.end(), [common](const Entry& entry) {
        return !entry.validator || entry.validator.get() == common || entry.validator->isEqual(*common);
    });
    return same ? common : nullptr;
}
