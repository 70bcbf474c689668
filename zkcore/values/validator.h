#pragma once

#include "zkcore/base/export.h"
#include "zkcore/values/value.h"

#include <QObject>
#include <QSet>
#include <limits>

class ValidatorNotifier;

namespace interface {

/// Decides which values a property may take. One validator serves all nodes of a class and belongs to the class.
class ZKCORE_EXPORT Validator
{
public:
    Validator();
    virtual ~Validator();
    Validator(const Validator&) = delete;
    Validator& operator=(const Validator&) = delete;

    /// Whether the value is allowed. A value of a type that the validator is not for is not.
    virtual bool isValid(const Value& value) const = 0;
    /// The nearest allowed value where there is one; an invalid value where there is none.
    virtual Value fixup(const Value& value) const = 0;
    /// Whether both allow the same values, as far as their kind and settings tell.
    virtual bool isEqual(const Validator& other) const = 0;

    /// Connects a slot (SLOT(onValidatorChanged())) to the change notification, which is sent after the allowed values
    /// changed. A receiver is connected at most once, however often it asks and however many properties share the
    /// validator; the connection ends by itself with the receiver. Constant time.
    virtual void connect(QObject* receiver, const char* slot);
    /// Ends the receiver's connection; does nothing when there is none. Constant time.
    virtual void disconnect(QObject* receiver);

    /// Why a value is refused, for tool tips: one translated sentence.
    virtual QString reason(const Value& value) const = 0;

protected:
    void notifyChanged();

private:
    ValidatorNotifier* m_notifier;
};

} // namespace interface

/// Allows the values of a list. fixup gives an invalid value.
class ZKCORE_EXPORT SetValidator : public interface::Validator
{
public:
    /// The list of allowed values: one of the list kinds of Value.
    explicit SetValidator(const Value& validValues);

    Value getValidValues() const { return m_validValues; }
    /// Replaces the list and notifies when it differs.
    void setValidValues(const Value& validValues);

    bool isValid(const Value& value) const override;
    Value fixup(const Value& value) const override;
    bool isEqual(const interface::Validator& other) const override;
    QString reason(const Value& value) const override;

private:
    Value m_validValues;
};

/// Allows doubles from minimum to maximum, both included, never a NaN; DOUBLE values only, and POINT and list-of-double
/// values whose every number is in range. fixup clamps; a NaN has no fixup.
class ZKCORE_EXPORT DoubleValidator : public interface::Validator
{
public:
    DoubleValidator() = default;
    DoubleValidator(double minimum, double maximum);

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    /// Changes the range (exchanged when the wrong way round) and notifies when it differs.
    void setRange(double minimum, double maximum);

    bool isValid(const Value& value) const override;
    Value fixup(const Value& value) const override;
    bool isEqual(const interface::Validator& other) const override;
    QString reason(const Value& value) const override;

private:
    double m_minimum = std::numeric_limits<double>::lowest();
    double m_maximum = std::numeric_limits<double>::max();
};

/// Allows integers from minimum to maximum, both included; INT values only. fixup clamps.
class ZKCORE_EXPORT IntValidator : public interface::Validator
{
public:
    IntValidator() = default;
    IntValidator(int minimum, int maximum);

    int minimum() const { return m_minimum; }
    int maximum() const { return m_maximum; }
    void setRange(int minimum, int maximum);

    bool isValid(const Value& value) const override;
    Value fixup(const Value& value) const override;
    bool isEqual(const interface::Validator& other) const override;
    QString reason(const Value& value) const override;

private:
    int m_minimum = std::numeric_limits<int>::min();
    int m_maximum = std::numeric_limits<int>::max();
};

/// Allows texts that as a whole match a regular expression. fixup trims white space where that is enough.
class ZKCORE_EXPORT StringValidator : public interface::Validator
{
public:
    StringValidator();
    ~StringValidator() override;

    QString regularExpression() const;
    /// An empty expression allows every text; an expression that is malformed is refused with a warning and the old
    /// one stays.
    void setRegularExpression(const QString& expression);

    bool isValid(const Value& value) const override;
    Value fixup(const Value& value) const override;
    bool isEqual(const interface::Validator& other) const override;
    QString reason(const Value& value) const override;

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

/// Allows the resources of a list, each with a label.
class ZKCORE_EXPORT ResourceValidator : public interface::Validator
{
public:
    ResourceValidator(const std::vector<Resource>& resources, const std::vector<QString>& labels);

    std::vector<QString> labels() const { return m_labels; }
    /// Null resource when the index is out of range.
    Resource resourceAtIndex(unsigned int index) const;
    /// -1 when the value is not one of the resources.
    int indexForResource(const Value& value) const;
    /// Null string when the value is not one of the resources.
    QString labelForResource(const Value& value) const;
    const std::vector<Resource>& resources() const { return m_resources; }
    void setResources(const std::vector<Resource>& resources, const std::vector<QString>& labels);

    bool isValid(const Value& value) const override;
    Value fixup(const Value& value) const override;
    bool isEqual(const interface::Validator& other) const override;
    QString reason(const Value& value) const override;

private:
    std::vector<Resource> m_resources;
    std::vector<QString> m_labels;
};
