// Decodes pictures within limits and keeps what was used last.
#include "zkcore/media/imageCache.h"

#include "zkcore/media/resource.h"
#include "zkcore/media/resourceEntry.h"
#include "zkcore/storage/xmlGuard.h"

#include <QBuffer>
#include <QCache>
#include <QCoreApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>

namespace {

/// The entry rather than the name tells pictures apart: two documents may both have a "local/photo". Cached items hold
/// their resource, so that an entry's address is not given to another while it stands in a key.
struct PictureKey
{
    const ResourceEntry* entry;
    QString name; // where there is no entry
    QSize size;   // empty for the picture's own
    int percent;  // device pixel ratio in hundredths
    QByteArray colors;

    friend bool operator==(const PictureKey&, const PictureKey&) = default;
};

size_t qHash(const PictureKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.entry, key.name, key.size.width(), key.size.height(), key.percent, key.colors);
}

struct RendererKey
{
    const ResourceEntry* entry;
    QByteArray colors;

    friend bool operator==(const RendererKey&, const RendererKey&) = default;
};

size_t qHash(const RendererKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.entry, key.colors);
}

struct CachedPicture
{
    Resource resource;
    QPixmap pixmap;
};

struct CachedRenderer
{
    Resource resource;
    std::shared_ptr<QSvgRenderer> renderer;
};

struct PictureStore
{
    QCache<PictureKey, CachedPicture> pictures{ImageCache::byteLimit};
    QCache<RendererKey, CachedRenderer> renderers{1000};
};

PictureStore& pictureStore()
{
    static PictureStore store;
    // Pixmaps must not outlive the application.
    static const bool cleared = (qAddPostRoutine(&ImageCache::clear), true);
    Q_UNUSED(cleared)
    return store;
}

constexpr qsizetype costOfFailure = 64;

bool isSvg(const Resource& resource)
{
    return resource.entry() && resource.entry()->extension() == QLatin1String("svg");
}

qsizetype pixelBytes(const QPixmap& pixmap)
{
    return qsizetype(pixmap.width()) * pixmap.height() * 4;
}

bool isWithinLimits(const QSize& size)
{
    return size.width() <= ImageCache::sideLimit && size.height() <= ImageCache::sideLimit &&
           qint64(size.width()) * size.height() <= ImageCache::pixelLimit;
}

QPixmap failedPicture(const Resource& resource, const QString& reason)
{
    qWarning("ImageCache: cannot show \"%s\": %s", qPrintable(resource.toString()), qPrintable(reason));
    return QPixmap();
}

std::shared_ptr<QSvgRenderer> makeRenderer(const Resource& resource, const QByteArray& bytes)
{
    if (XmlAttributeCounter::isHarmless(bytes)) {
        auto renderer = std::make_shared<QSvgRenderer>(bytes);
        if (renderer->isValid())
            return renderer;
    }
    failedPicture(resource, QStringLiteral("its bytes are no SVG picture"));
    return nullptr;
}

QSize pixelSize(const QSize& natural, const QSize& wanted, double devicePixelRatio)
{
    if (wanted.isEmpty())
        return natural;
    const QSizeF box = QSizeF(wanted) * devicePixelRatio;
    const QSizeF fitted = QSizeF(natural).scaled(box, Qt::KeepAspectRatio);
    return fitted.toSize().expandedTo(QSize(1, 1));
}

QPixmap oversizedPicture(const Resource& resource, const QSize& size)
{
    return failedPicture(resource, QStringLiteral("its size is %1 by %2").arg(size.width()).arg(size.height()));
}

using ColorChanges = std::vector<ImageCache::ColorChange>;

QPixmap renderedSvg(const Resource& resource, const QSize& wanted, double devicePixelRatio, bool useCache,
                    const ColorChanges& changes)
{
    const std::shared_ptr<QSvgRenderer> renderer =
        useCache ? ImageCache::svgRenderer(resource, changes) : makeRenderer(resource, resource.data());
    if (!renderer)
        return QPixmap(); // it has been warned about
    const QSize natural = renderer->defaultSize();
    const QSize size = natural.isEmpty() ? natural : pixelSize(natural, wanted, devicePixelRatio);
    if (size.isEmpty() || !isWithinLimits(size))
        return oversizedPicture(resource, size);
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    renderer->render(&painter, QRectF(QPointF(), QSizeF(size)));
    return pixmap;
}

QPixmap decodedImage(const Resource& resource, const QSize& wanted, double devicePixelRatio)
{
    QByteArray bytes = resource.data();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    // Not every format tells its size before it is decoded; those are held back by the toolkit's own allocation limit.
    const QSize natural = reader.size();
    if (!isWithinLimits(natural))
        return oversizedPicture(resource, natural);
    QImage image = reader.read();
    if (image.isNull())
        return failedPicture(resource, reader.errorString());
    if (!wanted.isEmpty()) {
        const QSize size = pixelSize(image.size(), wanted, devicePixelRatio);
        if (!isWithinLimits(size))
            return oversizedPicture(resource, size);
        // A picture with a few colours of its own, made smaller among these, would turn into a pattern of dots.
        if (image.pixelFormat().colorModel() == QPixelFormat::Indexed)
            image = std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return QPixmap::fromImage(std::move(image));
}

QPixmap makePicture(const Resource& resource, const QSize& wanted, double devicePixelRatio, bool useCache,
                    const ColorChanges& changes)
{
    if (!resource.isValid())
        return failedPicture(resource, QStringLiteral("there is no such resource"));
    QPixmap pixmap = isSvg(resource) ? renderedSvg(resource, wanted, devicePixelRatio, useCache, changes)
                                     : decodedImage(resource, wanted, devicePixelRatio);
    if (!pixmap.isNull() && !wanted.isEmpty())
        pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QByteArray colorSignature(const ColorChanges& changes)
{
    QByteArray signature;
    for (const auto& [from, to] : changes)
        signature += from.name(QColor::HexArgb).toLatin1() + to.name(QColor::HexArgb).toLatin1();
    return signature;
}

QPixmap findPicture(const Resource& resource, const QSize& wanted, double devicePixelRatio, bool useCache,
                    const ColorChanges& changes)
{
    if (resource.isNull())
        return QPixmap();
    if (!useCache)
        return makePicture(resource, wanted, devicePixelRatio, false, changes);
    const PictureKey key{resource.entry(), resource.isValid() ? QString() : resource.toString(), wanted,
                         static_cast<int>(std::lround(devicePixelRatio * 100.0)), colorSignature(changes)};
    auto& pictures = pictureStore().pictures;
    if (const CachedPicture* cached = pictures.object(key))
        return cached->pixmap;
    const QPixmap pixmap = makePicture(resource, wanted, devicePixelRatio, true, changes);
    pictures.insert(key, new CachedPicture{resource, pixmap}, pixmap.isNull() ? costOfFailure : pixelBytes(pixmap));
    return pixmap;
}

/// Puts the new colours into the text of the picture. All places are found before any is changed, so that two colours
/// can change places.
QByteArray recolored(const QByteArray& svg, const ColorChanges& changes)
{
    QByteArray result;
    result.reserve(svg.size());
    qsizetype position = 0;
    while (position < svg.size()) {
        const qsizetype hash = svg.indexOf('#', position);
        if (hash < 0 || hash + 7 > svg.size())
            break;
        result += QByteArrayView(svg).sliced(position, hash - position);
        QByteArray word = svg.mid(hash, 7);
        for (const auto& [from, to] : changes) {
            if (word.compare(from.name().toLatin1(), Qt::CaseInsensitive) == 0) {
                word = to.name().toLatin1();
                break;
            }
        }
        // Only what was a colour of seven characters is taken whole; after any other '#' the search goes on.
        const bool changed = word != QByteArrayView(svg).sliced(hash, 7);
        result += changed ? word : QByteArray("#");
        position = hash + (changed ? 7 : 1);
    }
    result += QByteArrayView(svg).sliced(position);
    return result;
}

} // namespace

QPixmap ImageCache::getPixmap(const Resource& resource, bool useCache)
{
    return findPicture(resource, QSize(), 1.0, useCache, {});
}

QPixmap ImageCache::getPixmap(const Resource& resource, const QSize& size, double devicePixelRatio, bool useCache)
{
    if (size.isEmpty() || !(devicePixelRatio > 0.0))
        return QPixmap();
    return findPicture(resource, size, devicePixelRatio, useCache, {});
}

QPixmap ImageCache::getPixmap(const Resource& resource, const QSize& size, double devicePixelRatio,
                              const std::vector<ColorChange>& changes)
{
    if (size.isEmpty() || !(devicePixelRatio > 0.0))
        return QPixmap();
    return findPicture(resource, size, devicePixelRatio, true, changes);
}

std::shared_ptr<QSvgRenderer> ImageCache::svgRenderer(const Resource& resource)
{
    return svgRenderer(resource, {});
}

std::shared_ptr<QSvgRenderer> ImageCache::svgRenderer(const Resource& resource, const std::vector<ColorChange>& changes)
{
    if (!isSvg(resource))
        return nullptr;
    const RendererKey key{resource.entry(), colorSignature(changes)};
    auto& renderers = pictureStore().renderers;
    if (const CachedRenderer* cached = renderers.object(key))
        return cached->renderer;
    const QByteArray bytes = resource.data();
    const auto renderer = makeRenderer(resource, changes.empty() ? bytes : recolored(bytes, changes));
    renderers.insert(key, new CachedRenderer{resource, renderer});
    return renderer;
}

void ImageCache::clear()
{
    pictureStore().pictures.clear();
    pictureStore().renderers.clear();
}

qsizetype ImageCache::bytes()
{
    return pictureStore().pictures.totalCost();
}

QPixmap convertToGrayScale(const QPixmap& pixmap)
{
    if (pixmap.isNull())
        return QPixmap();
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int gray = qGray(line[x]);
            line[x] = qRgba(gray, gray, gray, qAlpha(line[x]));
        }
    }
    QPixmap result = QPixmap::fromImage(std::move(image));
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    return result;
}
