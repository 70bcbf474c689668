#pragma once

#include "zkcore/base/export.h"

#include <QColor>
#include <QPixmap>
#include <memory>
#include <utility>
#include <vector>

class QSvgRenderer;
class Resource;

/// Turns image resources into pixmaps and keeps the ones used last. GUI thread only.
class ZKCORE_EXPORT ImageCache
{
public:
    /// Bytes of pixels kept; what was not used for longest goes first.
    static constexpr qsizetype byteLimit = 64 * 1024 * 1024;
    /// Greatest width and height, in pixels, of a picture that is decoded.
    static constexpr int sideLimit = 16384;
    /// Greatest number of pixels of a picture that is decoded.
    static constexpr qint64 pixelLimit = 64 * 1024 * 1024;

    /// The picture in its own size. Null, with a warning, when there is no such resource or its bytes are no picture or
    /// a larger one than the limits allow; null without a warning for the null resource. With `useCache` the picture
    /// (or the failure) is remembered, without it the bytes are read anew and nothing is kept.
    static QPixmap getPixmap(const Resource& resource, bool useCache = true);
    /// The picture scaled to fit into `size`, in device-independent pixels, with its aspect ratio kept; sharp at the
    /// device pixel ratio, which the pixmap carries. An empty size gives a null pixmap.
    static QPixmap getPixmap(const Resource& resource, const QSize& size, double devicePixelRatio,
                             bool useCache = true);
    /// A colour that stands in an SVG picture as "#rrggbb", and the one to paint in its place.
    using ColorChange = std::pair<QColor, QColor>;
    /// The same of an SVG picture with colours changed; other pictures keep theirs.
    static QPixmap getPixmap(const Resource& resource, const QSize& size, double devicePixelRatio,
                             const std::vector<ColorChange>& changes);
    /// For painting an SVG resource at any size; shared by all who ask for the same one. Null when the resource is not
    /// SVG; null, with a warning, when its bytes cannot be read as SVG.
    static std::shared_ptr<QSvgRenderer> svgRenderer(const Resource& resource);
    /// The same with colours changed.
    static std::shared_ptr<QSvgRenderer> svgRenderer(const Resource& resource, const std::vector<ColorChange>& changes);
    /// Forgets everything; for tests and for a host that is short of memory.
    static void clear();
    /// Bytes of pixels kept now.
    static qsizetype bytes();
};

/// The same picture in shades of gray, with the same transparency and device pixel ratio.
ZKCORE_EXPORT QPixmap convertToGrayScale(const QPixmap& pixmap);
