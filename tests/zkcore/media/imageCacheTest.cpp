#include "zkcore/media/imageCache.h"

#include "tests/support/messageCapture.h"
#include "zkcore/media/resource.h"
#include "zkcore/media/resourceEntry.h"

#include <QBuffer>
#include <QImage>
#include <gtest/gtest.h>
#include <memory>

namespace {

Resource resourceOf(const QString& name, const QByteArray& bytes, const QString& extension)
{
    return Resource(std::make_shared<LocalREntry>(name, Resource::IMAGE, bytes, extension));
}

QByteArray pngOf(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

/// Left half of one colour, right half of another.
QByteArray twoColoredSvg()
{
    return QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"20\" viewBox=\"0 0 40 20\">"
                      "<rect id=\"#\" width=\"20\" height=\"20\" fill=\"#FF0000\"/>"
                      "<rect x=\"20\" width=\"20\" height=\"20\" style=\"fill:#0000ff\"/></svg>");
}

QColor colorAt(const QPixmap& pixmap, int x, int y)
{
    return pixmap.toImage().pixelColor(x, y);
}

class ImageCacheTest : public testing::Test
{
protected:
    void SetUp() override { ImageCache::clear(); }
};

} // namespace

TEST_F(ImageCacheTest, DecodesPicturesInTheirOwnSizeAndInOthers)
{
    const Resource png = resourceOf(QStringLiteral("local/red"), pngOf(QSize(30, 10), Qt::red), QStringLiteral("png"));
    const Resource svg = resourceOf(QStringLiteral("local/two"), twoColoredSvg(), QStringLiteral("svg"));
    EXPECT_EQ(ImageCache::getPixmap(png).size(), QSize(30, 10));
    EXPECT_EQ(ImageCache::getPixmap(svg).size(), QSize(40, 20));
    EXPECT_EQ(colorAt(ImageCache::getPixmap(svg), 30, 10), QColor(Qt::blue));

    // Into the box with its proportions, in the pixels of the device.
    const QPixmap larger = ImageCache::getPixmap(png, QSize(60, 60), 2.0);
    EXPECT_EQ(larger.size(), QSize(120, 40));
    EXPECT_EQ(larger.devicePixelRatio(), 2.0);
    const QPixmap smaller = ImageCache::getPixmap(svg, QSize(10, 100), 1.5);
    EXPECT_EQ(smaller.size(), QSize(15, 8));
    EXPECT_EQ(smaller.devicePixelRatio(), 1.5);
    EXPECT_TRUE(ImageCache::getPixmap(png, QSize(), 1.0).isNull());
    EXPECT_TRUE(ImageCache::getPixmap(png, QSize(5, 5), 0.0).isNull());
}

TEST_F(ImageCacheTest, TheSamePictureIsMadeOnce)
{
    const Resource red = resourceOf(QStringLiteral("local/photo"), pngOf(QSize(4, 4), Qt::red), QStringLiteral("png"));
    const Resource blue =
        resourceOf(QStringLiteral("local/photo"), pngOf(QSize(4, 4), Qt::blue), QStringLiteral("png"));
    const QPixmap first = ImageCache::getPixmap(red);
    EXPECT_EQ(ImageCache::getPixmap(red).cacheKey(), first.cacheKey());
    EXPECT_NE(ImageCache::getPixmap(red, false).cacheKey(), first.cacheKey());
    EXPECT_NE(ImageCache::getPixmap(red, QSize(2, 2), 1.0).cacheKey(), first.cacheKey());
    EXPECT_NE(ImageCache::getPixmap(red, QSize(2, 2), 1.0).cacheKey(),
              ImageCache::getPixmap(red, QSize(2, 2), 2.0).cacheKey());
    // Another document's resource of the same name is another picture.
    EXPECT_EQ(colorAt(ImageCache::getPixmap(blue), 1, 1), QColor(Qt::blue));
    EXPECT_EQ(colorAt(ImageCache::getPixmap(red), 1, 1), QColor(Qt::red));
}

TEST_F(ImageCacheTest, WhatWasNotUsedForLongestGoesFirst)
{
    std::vector<Resource> pictures; // of 16 MB each: four are as many as are kept
    pictures.reserve(5);
    for (int i = 0; i < 5; ++i)
        pictures.push_back(
            resourceOf(QStringLiteral("local/%1").arg(i), pngOf(QSize(2048, 2048), Qt::red), QStringLiteral("png")));
    std::vector<qint64> keys;
    keys.reserve(4);
    for (int i = 0; i < 4; ++i)
        keys.push_back(ImageCache::getPixmap(pictures[static_cast<size_t>(i)]).cacheKey());
    EXPECT_EQ(ImageCache::getPixmap(pictures[0]).cacheKey(), keys[0]);
    ImageCache::getPixmap(pictures[4]);
    EXPECT_LE(ImageCache::bytes(), ImageCache::byteLimit);
    EXPECT_EQ(ImageCache::getPixmap(pictures[0]).cacheKey(), keys[0]);
    EXPECT_NE(ImageCache::getPixmap(pictures[1]).cacheKey(), keys[1]);
}

TEST_F(ImageCacheTest, WhatIsNoPictureIsNullAndSaidOnce)
{
    QByteArray truncated = pngOf(QSize(300, 300), Qt::red);
    truncated.truncate(20);
    // A header that promises more than is there.
    const QByteArray huge("P6\n30000 30000\n255\n");
    const auto warning = [](const char* name, const char* reason) {
        return QStringLiteral("ImageCache: cannot show \"local/%1\": %2")
            .arg(QString::fromLatin1(name), QString::fromLatin1(reason));
    };
    const MessageCapture capture;
    EXPECT_TRUE(ImageCache::getPixmap(Resource()).isNull());
    EXPECT_TRUE(capture.isEmpty());

    const Resource broken = resourceOf(QStringLiteral("local/broken"), truncated, QStringLiteral("png"));
    EXPECT_TRUE(ImageCache::getPixmap(broken).isNull());
    EXPECT_TRUE(ImageCache::getPixmap(broken).isNull());
    ASSERT_EQ(capture.warnings().size(), 1);
    EXPECT_TRUE(capture.warnings()[0].startsWith(warning("broken", "")));

    EXPECT_TRUE(ImageCache::getPixmap(resourceOf(QStringLiteral("local/huge"), huge, QStringLiteral("ppm"))).isNull());
    EXPECT_EQ(capture.warnings().last(), warning("huge", "its size is 30000 by 30000"));
    EXPECT_TRUE(ImageCache::getPixmap(Resource("local/missing")).isNull());
    EXPECT_EQ(capture.warnings().last(), warning("missing", "there is no such resource"));
    const Resource png = resourceOf(QStringLiteral("local/red"), pngOf(QSize(4, 4), Qt::red), QStringLiteral("png"));
    EXPECT_TRUE(ImageCache::getPixmap(png, QSize(20000, 20000), 1.0).isNull());
    EXPECT_EQ(capture.warnings().last(), warning("red", "its size is 20000 by 20000"));

    const Resource noSvg = resourceOf(QStringLiteral("local/plain"), "no picture", QStringLiteral("svg"));
    EXPECT_FALSE(ImageCache::svgRenderer(noSvg));
    EXPECT_TRUE(capture.warnings().contains(warning("plain", "its bytes are no SVG picture")));
    EXPECT_TRUE(ImageCache::getPixmap(noSvg).isNull());
}

TEST_F(ImageCacheTest, RenderersAreSharedByPictureAndColors)
{
    const Resource svg = resourceOf(QStringLiteral("local/two"), twoColoredSvg(), QStringLiteral("svg"));
    const std::vector<ImageCache::ColorChange> toGreen = {{Qt::red, Qt::green}};
    EXPECT_EQ(ImageCache::svgRenderer(svg), ImageCache::svgRenderer(svg));
    EXPECT_EQ(ImageCache::svgRenderer(svg, toGreen), ImageCache::svgRenderer(svg, toGreen));
    EXPECT_NE(ImageCache::svgRenderer(svg, toGreen), ImageCache::svgRenderer(svg));
    EXPECT_NE(ImageCache::svgRenderer(svg, toGreen), ImageCache::svgRenderer(svg, {{Qt::green, Qt::red}}));
    EXPECT_FALSE(ImageCache::svgRenderer(resourceOf(QStringLiteral("local/a"), "a", QStringLiteral("png"))));
}

TEST(GrayScaleTest, KeepsTransparencyAndScale)
{
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(255, 0, 0, 128));
    image.setPixelColor(1, 0, Qt::transparent);
    QPixmap colored = QPixmap::fromImage(image);
    colored.setDevicePixelRatio(2.0);
    const QPixmap gray = convertToGrayScale(colored);
    EXPECT_EQ(gray.devicePixelRatio(), 2.0);
    const QColor left = colorAt(gray, 0, 0);
    EXPECT_EQ(left.red(), left.blue());
    EXPECT_EQ(left.red(), left.green());
    EXPECT_NEAR(left.red(), qGray(255, 0, 0), 2);
    EXPECT_EQ(left.alpha(), 128);
    EXPECT_EQ(colorAt(gray, 1, 0).alpha(), 0);
    EXPECT_TRUE(convertToGrayScale(QPixmap()).isNull());
}

TEST_F(ImageCacheTest, PicturesOfFewColorsKeepThemWhenTheyAreMadeSmaller)
{
    QImage image(QSize(60, 40), QImage::Format_Mono);
    image.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
    image.fill(0u);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(image.save(&buffer, "PNG"));
    const Resource red = resourceOf(QStringLiteral("local/mono"), buffer.data(), QStringLiteral("png"));
    const QImage small = ImageCache::getPixmap(red, QSize(24, 24), 1.0).toImage();
    for (int x = 0; x < small.width(); ++x)
        EXPECT_EQ(small.pixelColor(x, 5), QColor(Qt::red)) << x;
}
