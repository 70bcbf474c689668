#pragma once

#include "zkcore/base/export.h"
#include "zkcore/values/value.h"

#include <QByteArray>
#include <QString>

/// Writes a value (maps, lists, texts, numbers, bools, colours as texts) as an XML property list file, replacing the
/// old file only when all is written. False when it cannot be written or holds what a property list cannot.
ZKCORE_EXPORT bool writePlst(const QString& fileName, const Value& value);

/// Reads a property list, XML or binary: dictionaries become value maps, arrays lists of values. Invalid value when the
/// data is damaged.
ZKCORE_EXPORT Value parsePlstData(const QByteArray& data);
