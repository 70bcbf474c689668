// Property lists: what was read is written as a property list that reads the same.
#include "fuzz/support/harness.h"
#include "fuzz/support/xmlMutator.h"
#include "zkcore/storage/propertyList.h"

#include <QFile>

namespace {

QByteArray writeAsXml(const Value& value)
{
    const QString fileName = fuzz::folder() + QStringLiteral("/written.plist");
    if (!writePlst(fileName, value))
        return QByteArray();
    QFile file(fileName);
    fuzz::require(file.open(QIODevice::ReadOnly), "a property list that was written can be opened");
    return file.readAll();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const Value value = parsePlstData(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    if (!value.isValid())
        return 0;
    const QByteArray written = writeAsXml(value);
    if (written.isEmpty())
        return 0;
    const Value again = parsePlstData(written);
    fuzz::require(again.isValid(), "a property list that was written can be read", written);
    const QByteArray writtenAgain = writeAsXml(again);
    fuzz::require(writtenAgain == written, "reading a property list changes nothing",
                  written + "\n---\n" + writtenAgain);
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maximum, unsigned int seed)
{
    return fuzz::mutateXml(data, size, maximum, seed);
}
