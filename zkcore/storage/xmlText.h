#pragma once

#include <QString>

class QXmlStreamReader;
class QXmlStreamWriter;

/// Elements that nothing here understands, kept as XML.
namespace xmlText {

/// Greatest length of one value's text, in characters.
constexpr qsizetype maximumLength = 64 * 1024 * 1024;

/// Adds to `out`, as XML, the element on whose start the reader stands, with everything in it, and leaves the reader on
/// its end. False when that raised an error (too deep, too long, damaged).
bool appendElement(QXmlStreamReader& reader, QString& out);
/// Adds the start tag of an element, without the closing bracket.
void appendOpenTag(QString& out, QStringView name);
void appendAttribute(QString& out, QStringView name, QStringView value);
void appendText(QString& out, QStringView text);
/// Writes elements that appendElement read. Their inner white space stays as it is.
void writeElements(QXmlStreamWriter& writer, const QString& elements);

} // namespace xmlText
