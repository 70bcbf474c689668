// Reads forms. By recursion, as deep as forms may be nested and no deeper.
#include "zkeditor/formDescription.h"

#include "zkcore/storage/xmlGuard.h"

#include <QCoreApplication>
#include <QSet>
#include <QXmlStreamReader>

namespace {

/// Lengths in pixels and points beyond this are no looks any more but memory; the toolkit's own "no limit" is larger.
constexpr double greatestLength = 10000;
const QSet<QString> lengthNames = {QStringLiteral("width"), QStringLiteral("height"), QStringLiteral("pointsize")};

class FormReader
{
    Q_DECLARE_TR_FUNCTIONS(FormDescription)

public:
    FormReader(const QByteArray& form, FormDescription& description) : m_xml(form), m_description(description) {}

    bool read(FormFinding& error)
    {
        readAll();
        if (m_xml.hasError() && !m_failed)
            fail(m_xml.lineNumber(), m_xml.errorString());
        error = m_error;
        return !m_failed;
    }

private:
    void readAll();
    void readUi();
    std::unique_ptr<FormObject> readObject(FormObject::Kind kind);
    void readObjectChild(FormObject& object);
    void readItem(FormObject& layout);
    void readProperty(FormObject& object);
    void readPropertyValue(FormProperty& property);
    void readValueText(FormProperty& property);
    void readCustomWidgets();
    void readConnections();
    void readTabStops();
    void readButtonGroups();
    void checkExtends();

    void countObject(qint64 line);
    bool next();
    void skip();
    QString readText();
    QString attribute(const char* name) const { return m_xml.attributes().value(QLatin1String(name)).toString(); }
    bool is(const char* name) const { return m_xml.name() == QLatin1String(name); }
    void fail(qint64 line, const QString& text);

    QXmlStreamReader m_xml;
    FormDescription& m_description;
    FormFinding m_error;
    bool m_failed = false;
    int m_depth = 0;
    int m_objects = 0;
    QHash<QString, qint64> m_customLines;
};

void FormReader::fail(qint64 line, const QString& text)
{
    if (m_failed)
        return;
    m_failed = true;
    m_error.severity = FormFinding::Error;
    m_error.line = qMax<qint64>(line, 1);
    m_error.text = text;
    m_xml.raiseError(text);
}

void FormReader::countObject(qint64 line)
{
    if (++m_objects > FormDescription::maximumObjects)
        fail(line,
             tr("the form has more than %1 widgets, layouts and connections").arg(FormDescription::maximumObjects));
}

/// Goes to the next element inside the one that is being read; false at that one's end.
bool FormReader::next()
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++m_depth > FormDescription::maximumDepth)
                fail(m_xml.lineNumber(),
                     tr("the elements are nested more than %1 deep").arg(FormDescription::maximumDepth));
            return !m_failed;
        case QXmlStreamReader::EndElement:
            --m_depth;
            return false;
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
            fail(m_xml.lineNumber(), tr("document types and entities are not understood"));
            return false;
        default:
            break;
        }
    }
    return false;
}

/// Leaves out the rest of the element that is being read.
void FormReader::skip()
{
    for (const int depth = m_depth; m_depth >= depth && !m_xml.atEnd();)
        next();
}

/// The characters directly in the element that is being read, and goes to its end.
QString FormReader::readText()
{
    QString text;
    for (const int depth = m_depth; !m_xml.atEnd();) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::Characters && m_depth == depth) {
            text += m_xml.text();
        } else if (token == QXmlStreamReader::StartElement) {
            ++m_depth;
            skip();
        } else if (token == QXmlStreamReader::EndElement) {
            --m_depth;
            break;
        }
    }
    return text;
}

void FormReader::readAll()
{
    if (!next())
        return;
    if (!is("ui")) {
        fail(m_xml.lineNumber(), tr("this is no form but <%1>").arg(m_xml.name().left(60).toString()));
        return;
    }
    readUi();
    // The end of the element is not the end of the file.
    while (!m_failed && !m_xml.atEnd())
        next();
    if (!m_failed && !m_xml.hasError()) {
        if (!m_description.top)
            fail(1, tr("the form has no widget"));
        checkExtends();
    }
}

void FormReader::readUi()
{
    if (const QString version = attribute("version"); !version.isEmpty() && version != QLatin1String("4.0"))
        fail(m_xml.lineNumber(), tr("the form has the version %1, 4.0 is needed").arg(version.left(60)));
    while (next()) {
        if (is("widget")) {
            if (m_description.top)
                fail(m_xml.lineNumber(), tr("a form has one top widget, this is the second"));
            m_description.top = readObject(FormObject::Widget);
        } else if (is("customwidgets")) {
            readCustomWidgets();
        } else if (is("connections")) {
            readConnections();
        } else if (is("tabstops")) {
            readTabStops();
        } else if (is("buttongroups")) {
            readButtonGroups();
        } else {
            skip();
        }
    }
}

std::unique_ptr<FormObject> FormReader::readObject(FormObject::Kind kind)
{
    auto object = std::make_unique<FormObject>();
    object->kind = kind;
    object->className = kind == FormObject::Spacer        ? QStringLiteral("Spacer")
                        : kind == FormObject::Action      ? QStringLiteral("QAction")
                        : kind == FormObject::ButtonGroup ? QStringLiteral("QButtonGroup")
                                                          : attribute("class");
    object->name = attribute("name");
    object->line = m_xml.lineNumber();
    countObject(object->line);
    while (next())
        readObjectChild(*object);
    return object;
}

void FormReader::readObjectChild(FormObject& object)
{
    if (is("widget"))
        object.children.push_back(readObject(FormObject::Widget));
    else if (is("layout"))
        object.children.push_back(readObject(FormObject::Layout));
    else if (is("spacer"))
        object.children.push_back(readObject(FormObject::Spacer));
    else if (is("action"))
        m_description.others.push_back(readObject(FormObject::Action));
    else if (is("item"))
        readItem(object);
    else if (is("property"))
        readProperty(object);
    else
        skip();
}

/// The place of a widget in a layout; tables and lists have items too, whose contents are texts.
void FormReader::readItem(FormObject& layout)
{
    for (const char* name : {"row", "column", "rowspan", "colspan"}) {
        const QString text = attribute(name);
        bool ok = true;
        const int number = text.isEmpty() ? 0 : text.toInt(&ok);
        if (!ok || number < (text.isEmpty() ? 0 : -1) || number > FormDescription::maximumGrid)
            fail(m_xml.lineNumber(), tr("\"%1\" is no %2 of a grid; at most %3 are possible")
                                         .arg(text.left(60), QLatin1String(name))
                                         .arg(FormDescription::maximumGrid));
    }
    while (next())
        readObjectChild(layout);
}

void FormReader::readProperty(FormObject& object)
{
    FormProperty property;
    property.name = attribute("name");
    property.isDynamic = attribute("stdset") == QLatin1String("0");
    property.line = m_xml.lineNumber();
    while (next()) {
        property.kind = m_xml.name().toString();
        readPropertyValue(property);
    }
    object.properties.push_back(std::move(property));
}

void FormReader::readPropertyValue(FormProperty& property)
{
    static const QSet<QString> compound = {
        QStringLiteral("rect"),       QStringLiteral("size"),    QStringLiteral("point"), QStringLiteral("font"),
        QStringLiteral("iconset"),    QStringLiteral("palette"), QStringLiteral("color"), QStringLiteral("brush"),
        QStringLiteral("sizepolicy"), QStringLiteral("sizef"),   QStringLiteral("rectf"), QStringLiteral("pointf"),
        QStringLiteral("stringlist"), QStringLiteral("date"),    QStringLiteral("time"),  QStringLiteral("datetime"),
        QStringLiteral("url"),        QStringLiteral("locale")};
    if (compound.contains(property.kind)) {
        if (property.kind == QLatin1String("iconset") && !attribute("theme").isEmpty())
            property.text = attribute("theme");
        readValueText(property);
        return;
    }
    const QString text = readText();
    if (property.kind == QLatin1String("pixmap"))
        property.files.append(text.trimmed());
    property.text += text;
}

void FormReader::readValueText(FormProperty& property)
{
    const bool isPicture = property.kind == QLatin1String("iconset");
    const bool isLength =
        lengthNames.contains(m_xml.name().toString()) && property.name != QLatin1String("maximumSize");
    const qint64 line = m_xml.lineNumber();
    QString text;
    for (const int inside = m_depth; !m_xml.atEnd();) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::Characters) {
            text += m_xml.text();
        } else if (token == QXmlStreamReader::StartElement) {
            if (++m_depth > FormDescription::maximumDepth)
                fail(m_xml.lineNumber(),
                     tr("the elements are nested more than %1 deep").arg(FormDescription::maximumDepth));
            else
                readValueText(property);
        } else if (token == QXmlStreamReader::EndElement) {
            if (--m_depth < inside)
                break;
        }
    }
    text = text.trimmed();
    if (text.isEmpty())
        return;
    if (isPicture)
        property.files.append(text);
    property.text += property.text.isEmpty() ? text : QLatin1Char(' ') + text;
    if (isLength && text.toDouble() > greatestLength)
        fail(line, tr("%1 is larger than anything that can be shown").arg(text.left(60)));
}

void FormReader::readCustomWidgets()
{
    while (next()) {
        const qint64 line = m_xml.lineNumber();
        countObject(line);
        QString name;
        QString base;
        while (next()) {
            if (is("class"))
                name = readText().trimmed();
            else if (is("extends"))
                base = readText().trimmed();
            else
                skip();
        }
        if (name.isEmpty())
            continue;
        m_description.customWidgets.insert(name, base);
        m_customLines.insert(name, line);
    }
}

/// The toolkit makes a widget of an unknown class as the class that it refines, and never asks whether that ends.
void FormReader::checkExtends()
{
    for (auto custom = m_description.customWidgets.cbegin(); custom != m_description.customWidgets.cend(); ++custom) {
        QSet<QString> passed;
        for (QString name = custom.key(); m_description.customWidgets.contains(name);
             name = m_description.customWidgets.value(name)) {
            if (passed.contains(name)) {
                fail(m_customLines.value(name), tr("the class \"%1\" refines itself").arg(name.left(60)));
                return;
            }
            passed.insert(name);
            if (passed.size() > FormDescription::maximumDepth) {
                fail(m_customLines.value(name), tr("the class \"%1\" refines too many others").arg(name.left(60)));
                return;
            }
        }
    }
}

void FormReader::readConnections()
{
    while (next()) {
        FormConnection connection;
        connection.line = m_xml.lineNumber();
        while (next()) {
            if (is("sender"))
                connection.sender = readText().trimmed();
            else if (is("signal"))
                connection.signal = readText().trimmed();
            else if (is("receiver"))
                connection.receiver = readText().trimmed();
            else if (is("slot"))
                connection.slot = readText().trimmed();
            else
                skip();
        }
        countObject(connection.line);
        m_description.connections.push_back(std::move(connection));
    }
}

void FormReader::readTabStops()
{
    while (next()) {
        const qint64 line = m_xml.lineNumber();
        m_description.tabStops.emplace_back(readText().trimmed(), line);
    }
}

void FormReader::readButtonGroups()
{
    while (next())
        m_description.others.push_back(readObject(FormObject::ButtonGroup));
}

} // namespace

const FormProperty* FormObject::property(const char* propertyName) const
{
    for (const FormProperty& given : properties)
        if (given.name == QLatin1String(propertyName))
            return &given;
    return nullptr;
}

QString FormObject::text(const char* propertyName) const
{
    const FormProperty* given = property(propertyName);
    return given && !given->text.isEmpty() ? given->text : QString();
}

bool FormDescription::read(const QByteArray& form, FormFinding& error)
{
    if (form.size() > maximumSize) {
        error = FormFinding();
        error.text = QCoreApplication::translate("FormDescription", "the form is larger than %1 MB")
                         .arg(maximumSize / (1024 * 1024));
        return false;
    }
    if (!XmlAttributeCounter::isHarmless(form)) {
        error = FormFinding();
        error.text = XmlGuardDevice::reason();
        return false;
    }
    return FormReader(form, *this).read(error);
}
