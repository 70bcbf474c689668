#pragma once

#include "zkeditor/export.h"

#include <QValidator>
#include <memory>

class DoubleSpinBox;

/// Judges the text of a spin box: takes prefix and suffix off and hands the rest to a numeric validator, whose range it
/// keeps in step with the spin box's. Parts of the special text may be typed.
class ZKEDITOR_EXPORT DoubleSpinBoxValidator : public QValidator
{
    Q_OBJECT

public:
    /// Any double may be typed; numbers out of range and with more decimals are intermediate.
    explicit DoubleSpinBoxValidator(DoubleSpinBox* spinBox);
    /// Takes ownership of the validator.
    DoubleSpinBoxValidator(DoubleSpinBox* spinBox, QValidator* validator);
    ~DoubleSpinBoxValidator() override;

    State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;

private:
    void followRange() const;
    State orSpecialText(State verdict, const QString& stripped) const;

    DoubleSpinBox* m_spinBox;
    std::unique_ptr<QValidator> m_validator;
};
