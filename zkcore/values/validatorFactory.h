#pragma once

#include "zkcore/base/export.h"
#include "zkcore/values/value.h"

class QObject;
class QValidator;

/// Makes the toolkit's validator for text typed as a value of a type.
class ZKCORE_EXPORT QValidatorFactory
{
public:
    /// Owned by the parent. For INT, DOUBLE and POINT: numbers, expressions and units may be typed; text that is not
    /// yet a number is Intermediate, only characters that can stand in none of these are Invalid, and fixup never
    /// blocks. For COLOR: names and "#" forms. For every other type: any text.
    static QValidator* createByType(Value::Type type, QObject* parent);
};
