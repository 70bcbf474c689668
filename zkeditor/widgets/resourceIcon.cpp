#include "zkeditor/widgets/resourceIcon.h"

#include "zkcore/media/imageCache.h"
#include "zkcore/media/resource.h"

#include <QPixmap>
#include <QString>
#include <QWidget>

QIcon resourceIcon(const QString& name, int side, const QWidget* widget)
{
    const Resource resource(name);
    if (!resource.isValid())
        return {};
    return QIcon(ImageCache::getPixmap(resource, QSize(side, side), widget->devicePixelRatioF()));
}
