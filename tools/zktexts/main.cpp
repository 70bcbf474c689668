// zktexts: prints the texts of packages that users read as a source in which lupdate finds them, each under the
// context that the program looks it up in: the class id, "PartsTree" for groups, "Package" for labels of packages.
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>
#include <cstdio>

namespace {

/// Text in a literal; all but plain ASCII is written by its bytes.
QByteArray quoted(const QString& text)
{
    QByteArray result = "\"";
    for (const char c : text.toUtf8()) {
        const auto byte = static_cast<uchar>(c);
        if (c == '"' || c == '\\')
            result.append('\\').append(c);
        else if (c == '\n')
            result.append("\\n");
        else if (byte < 32 || byte == 127)
            result.append(' ');
        else
            result.append(c);
    }
    return result.append('"');
}

/// What has no letter needs no translation.
bool hasLetter(const QString& text)
{
    for (const QChar c : text) {
        if (c.isLetter())
            return true;
    }
    return false;
}

void offer(const QString& context, const QString& text, const QString& note)
{
    if (hasLetter(text))
        std::printf("//: %s\nQT_TRANSLATE_NOOP(%s, %s)\n", note.toUtf8().constData(), quoted(context).constData(),
                    quoted(text).constData());
}

/// Reads one package; the elements that it is in stand in members.
class PackageTexts
{
public:
    bool read(const QString& fileName)
    {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "zktexts: %s: %s\n", qPrintable(fileName), qPrintable(file.errorString()));
            return false;
        }
        m_xml.setDevice(&file);
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                begin();
                break;
            case QXmlStreamReader::EndElement:
                if (m_xml.name() == QLatin1String("property"))
                    m_property.clear();
                else if (m_xml.name() == QLatin1String("validator"))
                    m_validator.clear();
                break;
            default:
                break;
            }
        }
        if (m_xml.hasError())
            std::fprintf(stderr, "zktexts: %s:%lld: %s\n", qPrintable(fileName), m_xml.lineNumber(),
                         qPrintable(m_xml.errorString()));
        return !m_xml.hasError();
    }

private:
    QString attribute(const char* name) const { return m_xml.attributes().value(QLatin1String(name)).toString(); }

    void begin()
    {
        const QStringView element = m_xml.name();
        if (element == QLatin1String("package")) {
            offer(QStringLiteral("Package"), attribute("label"), QStringLiteral("Name of a package of parts"));
        } else if (element == QLatin1String("class")) {
            if (m_xml.attributes().hasAttribute(QLatin1String("id")))
                m_class = attribute("id");
            offer(m_class, attribute("label"), QStringLiteral("Kind of part"));
            offer(QStringLiteral("PartsTree"), attribute("group"), QStringLiteral("Folder of the parts tree"));
        } else if (element == QLatin1String("property")) {
            m_property = attribute("key");
            m_isText = attribute("type") == QLatin1String("string");
            offer(m_class, attribute("label"),
                  QStringLiteral("Property \"%1\", beside a field: short").arg(m_property));
            offer(m_class, attribute("help"), QStringLiteral("Help on \"%1\"").arg(attribute("label")));
        } else if (element == QLatin1String("validator")) {
            m_validator = attribute("kind");
        } else if (element == QLatin1String("item")) {
            offer(m_class, attribute("label"), QStringLiteral("Choice for the property \"%1\"").arg(m_property));
            if (m_validator == QLatin1String("set") && m_isText)
                offer(m_class, m_xml.readElementText(),
                      QStringLiteral("Choice for the property \"%1\"").arg(m_property));
        } else if (element == QLatin1String("substitution")) {
            offer(m_class, attribute("text"), QStringLiteral("Shown in place of \"%1\"").arg(attribute("string")));
        }
    }

    QXmlStreamReader m_xml;
    QString m_class;
    QString m_property;
    QString m_validator;
    bool m_isText = false;
};

} // namespace

int main(int argc, char** argv)
{
    bool fine = argc > 1;
    if (!fine)
        std::fputs("usage: zktexts PACKAGE.XML...\n", stderr);
    for (int i = 1; i < argc; ++i)
        fine = PackageTexts().read(QString::fromLocal8Bit(argv[i])) && fine;
    return fine ? 0 : 1;
}
