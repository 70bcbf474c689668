#include "zkeditor/designer/coreWidgetPlugin.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"
#include "zkeditor/coreWidgetFactory.h"
#include "zkeditor/designer/designerWidgetInterface.h"
#include "zkeditor/designer/widgetTable.h"

#include <QGuiApplication>
#include <QPixmap>

namespace {

constexpr QSize designerIconSize(32, 32);

} // namespace

CoreWidgetPlugin::CoreWidgetPlugin(QObject* parent) : QObject(parent)
{
    const QStringList all = keys();
    for (const QString& key : all)
        m_widgets.append(new DesignerWidgetInterface(key, this));
}

CoreWidgetPlugin::~CoreWidgetPlugin() = default;

QList<QDesignerCustomWidgetInterface*> CoreWidgetPlugin::customWidgets() const
{
    return m_widgets;
}

QStringList CoreWidgetPlugin::keys() const
{
    QStringList all;
    for (const DesignerWidget* row = widgetTable::begin(); row != widgetTable::end(); ++row)
        all.append(QString::fromLatin1(row->key));
    return all;
}

QWidget* CoreWidgetPlugin::create(const QString& key, QWidget* parent, const QString& name)
{
    if (!m_factory)
        m_factory = std::make_unique<CoreWidgetFactory>();
    return m_factory->createWidget(key, parent, name);
}

QString CoreWidgetPlugin::group(const QString&) const
{
    return QStringLiteral("Velmor");
}

QIcon CoreWidgetPlugin::iconSet(const QString&) const
{
    return QIcon(
        ImageCache::getPixmap(Resource("editor/designer/widget"), designerIconSize, qGuiApp->devicePixelRatio()));
}

QString CoreWidgetPlugin::includeFile(const QString& key) const
{
    const DesignerWidget* row = widgetTable::find(key);
    return row ? QString::fromLatin1(row->includeFile) : QString();
}

QString CoreWidgetPlugin::toolTip(const QString& key) const
{
    const DesignerWidget* row = widgetTable::find(key);
    return row ? QString::fromLatin1(row->toolTip) : QString();
}

QString CoreWidgetPlugin::whatsThis(const QString& key) const
{
    const DesignerWidget* row = widgetTable::find(key);
    return row ? QString::fromLatin1(row->whatsThis) : QString();
}

bool CoreWidgetPlugin::isContainer(const QString& key) const
{
    const DesignerWidget* row = widgetTable::find(key);
    return row && row->container;
}

QDesignerCustomWidgetCollectionInterface* ucm_instantiate()
{
    return new CoreWidgetPlugin;
}

const char* qt_ucm_query_verification_data()
{
    return "pattern=QT_UCM_VERIFICATION_DATA\nversion=3.3.2\nflags=11\nbuildkey=unspecified";
}
