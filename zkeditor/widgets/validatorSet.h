#pragma once

#include <QHash>
#include <cstddef>
#include <memory>
#include <vector>

class QObject;
class Value;

namespace interface {
class Validator;
}

/// The distinct validators of the properties that an observer is bound to. Nodes of a class share their validators, so
/// each is connected and asked once, not once per property. Counts the properties that have no validator as well.
class ValidatorSet
{
public:
    /// The receiver's slot onValidatorChanged() is told when one of the validators changes. The receiver must outlive
    /// the set.
    explicit ValidatorSet(QObject* receiver);
    ~ValidatorSet();
    ValidatorSet(const ValidatorSet&) = delete;
    ValidatorSet& operator=(const ValidatorSet&) = delete;

    /// Counts one property with this validator, which may be null, and gives the validator's number.
    unsigned int add(const std::shared_ptr<interface::Validator>& validator);
    /// Ends what add() began; the last property of a validator ends the connection to it.
    void release(unsigned int number);
    /// Ends all connections.
    void clear();

    /// Whether every validator allows the value.
    bool allow(const Value& value) const;
    /// Whether the predicate holds for every validator (null never comes).
    template <typename Predicate> bool all(Predicate predicate) const
    {
        for (const Entry& entry : m_entries) {
            if (entry.validator && !predicate(*entry.validator))
                return false;
        }
        return true;
    }
    /// The validator of that number if all others compare equal to it and every property has one; else null.
    interface::Validator* commonTo(unsigned int number) const;

private:
    struct Entry
    {
        std::shared_ptr<interface::Validator> validator; // kept alive as long as it is connected
        size_t uses = 0;
    };

    QObject* const m_receiver;
    std::vector<Entry> m_entries; // the first stands for no validator
    QHash<const interface::Validator*, unsigned int> m_numbers;
};
