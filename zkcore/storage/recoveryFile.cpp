#include "zkcore/storage/recoveryFile.h"

#include "zkcore/storage/documentFile.h"
#include "zkcore/storage/durableFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QUrl>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

constexpr char instruction[] = "zkrecovery";
// Of an instruction line: a file name's 4096 bytes, three characters each.
constexpr qint64 maximumLine = 16 * 1024;

QString timeText(const QDateTime& time)
{
    return time.toUTC().toString(Qt::ISODateWithMs);
}

QDateTime timeFrom(QStringView text)
{
    return QDateTime::fromString(text.toString(), Qt::ISODateWithMs).toUTC();
}

} // namespace

bool RecoveryFile::write(const QString& fileName, const DocumentPicture& picture, QString& error) const
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        error = file.errorString();
        return false;
    }
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    QXmlStreamWriter xml(&file);
    xml.writeStartDocument();
    xml.writeCharacters(QStringLiteral("\n"));
    // The texts are of characters that need no escapes: encoded URLs, times, numbers.
    QString data = QStringLiteral("written=\"%1\" process=\"%2\"").arg(timeText(written)).arg(process);
    if (!original.isEmpty())
        data += QStringLiteral(" url=\"%1\"")
                    .arg(QString::fromLatin1(QUrl::fromLocalFile(original).toEncoded()).toHtmlEscaped());
    if (stamp.valid)
        data += QStringLiteral(" size=\"%1\" modified=\"%2\" hash=\"%3\"")
                    .arg(stamp.size)
                    .arg(timeText(stamp.modified), QString::fromLatin1(stamp.hash.toHex()));
    xml.writeProcessingInstruction(QLatin1String(instruction), data);
    xml.writeCharacters(QStringLiteral("\n"));
    DocumentFile::writeStart(xml, picture.nextId);
    DocumentFile::writeResources(xml, picture.resources);
    xml.writeCharacters(QString()); // closes the start tag
    for (const QByteArray& piece : picture.pieces)
        file.write(piece);
    xml.writeEndDocument();
    if (!xml.hasError() && file.flush() && durableFile::commit(file))
        return true;
    error = file.errorString();
    return false;
}

bool RecoveryFile::read(const QString& fileName)
{
    *this = RecoveryFile();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    file.readLine(maximumLine);
    const QByteArray line = file.readLine(maximumLine).trimmed();
    QXmlStreamReader xml(line);
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::ProcessingInstruction) {
    }
    if (xml.processingInstructionTarget() != QLatin1String(instruction))
        return false;
    const QString element = QStringLiteral("<r %1/>").arg(xml.processingInstructionData());
    QXmlStreamReader data(element);
    if (!data.readNextStartElement())
        return false;
    const QXmlStreamAttributes attributes = data.attributes();
    written = timeFrom(attributes.value(QLatin1String("written")));
    process = attributes.value(QLatin1String("process")).toLongLong();
    const QUrl url = QUrl::fromEncoded(attributes.value(QLatin1String("url")).toLatin1());
    original = url.toLocalFile();
    stamp.size = attributes.value(QLatin1String("size")).toLongLong();
    stamp.modified = timeFrom(attributes.value(QLatin1String("modified")));
    stamp.hash = QByteArray::fromHex(attributes.value(QLatin1String("hash")).toLatin1());
    stamp.valid = !stamp.hash.isEmpty();
    return written.isValid();
}
