#pragma once

#include "zkeditor/export.h"

#include <QDoubleValidator>
#include <QIntValidator>

/// Judges a double while it is being typed. A number out of range, or with too many decimals, is intermediate, so that
/// it can be typed and then be held within the range; only what is no number at all, or a minus sign where the minimum
/// is not negative, is invalid.
class ZKEDITOR_EXPORT TypedDoubleValidator : public QDoubleValidator
{
    Q_OBJECT

public:
    using QDoubleValidator::QDoubleValidator;
    State validate(QString& text, int& position) const override;
    /// Leaves the text as it was typed: rounding it to the decimals shown would lose some.
    void fixup(QString&) const override {}
};

/// The same for integers.
class ZKEDITOR_EXPORT TypedIntValidator : public QIntValidator
{
    Q_OBJECT

public:
    using QIntValidator::QIntValidator;
    State validate(QString& text, int& position) const override;
    /// Leaves the text as it was typed: rounding it to the decimals shown would lose some.
    void fixup(QString&) const override {}
};
