#include "tests/support/translationFile.h"

#include <QFile>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

TranslationMessage readMessage(QXmlStreamReader& xml, const QString& context)
{
    TranslationMessage message;
    message.context = context;
    message.numerus = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.type = xml.attributes().value(QLatin1String("type")).toString();
            if (!message.numerus)
                message.translations = {xml.readElementText()};
            while (message.numerus && xml.readNextStartElement())
                message.translations.append(xml.readElementText());
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

} // namespace

std::vector<TranslationMessage> readTranslations(const QString& text)
{
    std::vector<TranslationMessage> messages;
    QXmlStreamReader xml(text);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            messages.push_back(readMessage(xml, context));
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

std::vector<TranslationMessage> translationsOf(const QString& name)
{
    QFile file(QStringLiteral(ZK_SOURCE_DIR "/translations/%1.ts").arg(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return readTranslations(QString::fromUtf8(file.readAll()));
}
