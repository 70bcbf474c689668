#pragma once

#include "zkcore/base/export.h"
#include "zkcore/values/value.h"

class QXmlStreamReader;
class QXmlStreamWriter;

/// Values of every type as XML: scalars as text, the other kinds as nested `<item>` elements.
class ZKCORE_EXPORT ValueXml
{
public:
    /// Whether values of the type are written as nested elements rather than as one text.
    static bool isWrittenAsItems(Value::Type type);
    /// Writes the content of the element that the writer has open.
    static void writeContent(QXmlStreamWriter& writer, const Value& value);
    /// Reads the content of the element on whose start the reader stands, up to its end. Invalid value, with an error
    /// raised on the reader, when the content is not a value of the type.
    static Value readContent(QXmlStreamReader& reader, Value::Type type);
};
