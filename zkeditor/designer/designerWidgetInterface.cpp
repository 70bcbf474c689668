#include "zkeditor/designer/designerWidgetInterface.h"

#include "zkeditor/designer/coreWidgetPlugin.h"
#include "zkeditor/designer/widgetTable.h"

#include <QIcon>
#include <QMetaObject>
#include <QMetaProperty>
#include <QXmlStreamWriter>

namespace {

/// The toolkit's class that a class of ours is made from; what forms fall back to where ours are not known.
QString toolkitBaseOf(const QMetaObject* metaObject)
{
    const QMetaObject* base = metaObject;
    while (base->superClass() && base->className()[0] != 'Q')
        base = base->superClass();
    return QString::fromLatin1(base->className());
}

void writeProperty(QXmlStreamWriter& writer, const char* name, const char* type, const QString& value)
{
    writer.writeStartElement(QStringLiteral("property"));
    writer.writeAttribute(QStringLiteral("name"), QLatin1String(name));
    writer.writeTextElement(QLatin1String(type), value);
    writer.writeEndElement();
}

void writeGeometry(QXmlStreamWriter& writer, const QSize& size)
{
    writer.writeStartElement(QStringLiteral("property"));
    writer.writeAttribute(QStringLiteral("name"), QStringLiteral("geometry"));
    writer.writeStartElement(QStringLiteral("rect"));
    writer.writeTextElement(QStringLiteral("x"), QStringLiteral("0"));
    writer.writeTextElement(QStringLiteral("y"), QStringLiteral("0"));
    writer.writeTextElement(QStringLiteral("width"), QString::number(size.width()));
    writer.writeTextElement(QStringLiteral("height"), QString::number(size.height()));
    writer.writeEndElement();
    writer.writeEndElement();
}

/// A text that tells widgets in a form apart until the author gives them their own.
const char* captionProperty(const QMetaObject* metaObject)
{
    for (const char* name : {"label", "title", "text"}) {
        const int index = metaObject->indexOfProperty(name);
        if (index >= 0 && metaObject->property(index).metaType().id() == QMetaType::QString &&
            metaObject->property(index).isDesignable())
            return name;
    }
    return nullptr;
}

} // namespace

DesignerWidgetInterface::DesignerWidgetInterface(const QString& key, CoreWidgetPlugin* plugin)
    : QObject(plugin), m_key(key), m_plugin(plugin)
{
}

QString DesignerWidgetInterface::group() const
{
    return m_plugin->group(m_key);
}

QString DesignerWidgetInterface::toolTip() const
{
    return m_plugin->toolTip(m_key);
}

QString DesignerWidgetInterface::whatsThis() const
{
    return m_plugin->whatsThis(m_key);
}

QString DesignerWidgetInterface::includeFile() const
{
    return m_plugin->includeFile(m_key);
}

QIcon DesignerWidgetInterface::icon() const
{
    return m_plugin->iconSet(m_key);
}

bool DesignerWidgetInterface::isContainer() const
{
    return m_plugin->isContainer(m_key);
}

QWidget* DesignerWidgetInterface::createWidget(QWidget* parent)
{
    return m_plugin->create(m_key, parent, QString());
}

QString DesignerWidgetInterface::domXml() const
{
    const DesignerWidget* row = widgetTable::find(m_key);
    QString instance = m_key;
    instance[0] = instance[0].toLower();
    QString xml;
    QXmlStreamWriter writer(&xml);
    writer.writeStartElement(QStringLiteral("ui"));
    writer.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
    writer.writeStartElement(QStringLiteral("widget"));
    writer.writeAttribute(QStringLiteral("class"), m_key);
    writer.writeAttribute(QStringLiteral("name"), instance);
    writeGeometry(writer, row->size);
    const char* caption = captionProperty(row->metaObject);
    if (caption && m_key != QLatin1String("ObserverLineEdit") && m_key != QLatin1String("ObserverLabel"))
        writeProperty(writer, caption, "string", m_key);
    writer.writeEndElement();
    writer.writeStartElement(QStringLiteral("customwidgets"));
    writer.writeStartElement(QStringLiteral("customwidget"));
    writer.writeTextElement(QStringLiteral("class"), m_key);
    writer.writeTextElement(QStringLiteral("extends"), toolkitBaseOf(row->metaObject));
    writer.writeEndElement();
    writer.writeEndElement();
    writer.writeEndElement();
    return xml;
}
