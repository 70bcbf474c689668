#pragma once

#include <QByteArray>
#include <QString>

class DocumentImpl;

/// What the fuzz targets share. An application without a display, in plain English, is there before the first input;
/// messages are swallowed, fatal ones excepted.
namespace fuzz {

/// Ends the program with the sentence, which makes the input a finding, unless the condition holds.
void require(bool condition, const char* sentence, const QString& detail = {});
/// Requires that a message says where something is wrong (LINE:COLUMN behind the prefix) and what.
void requirePlaceAndReason(const QString& message, const QString& prefix);

/// The document as it would be saved.
QByteArray bytesOf(const DocumentImpl& document);
/// Loads a document; what it says otherwise is required to have place and reason.
bool load(DocumentImpl& document, const QByteArray& bytes);

/// A folder of this process for files, removed at the end.
QString folder();
void writeFile(const QString& fileName, const QByteArray& bytes);

} // namespace fuzz
