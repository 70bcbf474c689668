#include "zkcore/media/resource.h"

#include "zkcore/media/resourceEntry.h"
#include "zkcore/media/resourceTable.h"
#include "zkcore/storage/package.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QByteArray pngBytes()
{
    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray svgBytes()
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"8\"/>";
}

Resource resourceOf(Resource::Type type, const QByteArray& bytes, const char* extension)
{
    return Resource(
        std::make_shared<const LocalREntry>(QStringLiteral("local/x"), type, bytes, QLatin1String(extension)));
}

class ResourceFiles : public testing::Test
{
protected:
    void SetUp() override
    {
        Package::all();
        m_before = ResourceTable::instance().snapshot();
        ASSERT_TRUE(m_place.isValid());
    }
    void TearDown() override { ResourceTable::instance().restore(m_before); }

    QString write(const char* path, const QByteArray& bytes)
    {
        const QString file = m_place.filePath(QLatin1String(path));
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size()) << path;
        return file;
    }
    QString folder(const char* name) const { return m_place.filePath(QLatin1String(name)); }

private:
    QTemporaryDir m_place;
    ResourceTable::Snapshot m_before;
};

} // namespace

TEST_F(ResourceFiles, AreNamedByTheirPathAndTypedByTheirExtension)
{
    write("zoo/images/lion.SVG", svgBytes());
    write("zoo/images/big/lion.png", pngBytes());
    write("zoo/forms/cage.ui", "<ui/>");
    write("zoo/roar.mp3", "ID3");
    write("zoo/v1.2.txt", "text");
    write("zoo/package.xml", "<package/>");
    write("zoo/notes.bak", "old");
    ASSERT_TRUE(ResourceTable::instance().addFolder(folder("zoo") + QLatin1Char('/')));

    const Resource lion("zoo/images/lion");
    EXPECT_EQ(lion.type(), Resource::IMAGE);
    EXPECT_EQ(lion.data(), svgBytes());
    EXPECT_EQ(lion.entry()->extension(), QStringLiteral("svg"));
    EXPECT_EQ(Resource("zoo/images/big/lion").type(), Resource::IMAGE);
    EXPECT_EQ(Resource("zoo/forms/cage").type(), Resource::FORM);
    EXPECT_EQ(Resource("zoo/roar").type(), Resource::SOUND);
    EXPECT_EQ(Resource("zoo/v1.2").type(), Resource::TEXT);
    EXPECT_FALSE(Resource("zoo/package").isValid()) << "the description is no resource of its own";
    EXPECT_FALSE(Resource("zoo/notes").isValid());
    EXPECT_TRUE(ResourceTable::instance().names(Resource::IMAGE).contains(QStringLiteral("zoo/images/big/lion")));

    // What vanishes later leaves a reference without bytes.
    QFile::remove(folder("zoo/roar.mp3"));
    EXPECT_TRUE(Resource("zoo/roar").isValid());
    EXPECT_TRUE(Resource("zoo/roar").data().isEmpty());
}

TEST_F(ResourceFiles, OfTheSameNameAreAFaultInOneFolderAndReplacedByALaterOne)
{
    write("a/zoo/lion.svg", svgBytes());
    write("a/zoo/lion.ui", "<ui/>");
    write("a/zoo/bear.svg", svgBytes());
    QString file;
    QString reason;
    EXPECT_FALSE(ResourceTable::instance().addFolder(folder("a/zoo"), &file, &reason));
    EXPECT_EQ(file, folder("a/zoo/lion.ui"));
    EXPECT_EQ(reason, QStringLiteral("it differs from \"lion.svg\" only by its extension"));
    EXPECT_FALSE(Resource("zoo/bear").isValid()) << "nothing of the folder is kept";

    QFile::remove(folder("a/zoo/lion.ui"));
    ASSERT_TRUE(ResourceTable::instance().addFolder(folder("a/zoo")));
    const Resource before("zoo/lion");
    write("b/zoo/lion.png", pngBytes());
    ASSERT_TRUE(ResourceTable::instance().addFolder(folder("b/zoo")));
    EXPECT_EQ(Resource("zoo/lion").data(), pngBytes());
    EXPECT_TRUE(Resource("zoo/bear").isValid());
    EXPECT_FALSE(before == Resource("zoo/lion")) << "the same name, but not the same picture";
    EXPECT_EQ(before.data(), svgBytes());
}

TEST(ResourceReference, KeepsTheNameOfWhatIsNotThere)
{
    EXPECT_TRUE(Resource().isNull());
    EXPECT_TRUE(Resource("").isNull());
    const Resource missing("nowhere/nothing");
    EXPECT_FALSE(missing.isNull());
    EXPECT_FALSE(missing.isValid());
    EXPECT_EQ(missing.type(), Resource::INVALID);
    EXPECT_EQ(missing.toString(), QStringLiteral("nowhere/nothing"));
    EXPECT_TRUE(missing.data().isEmpty());
    EXPECT_EQ(missing, Resource("nowhere/nothing"));
    EXPECT_FALSE(missing == Resource("nowhere/else"));
    EXPECT_FALSE(missing == Resource());
    // A name that was read before its picture was there means that picture.
    const Resource named(
        std::make_shared<const LocalREntry>(QStringLiteral("nowhere/nothing"), Resource::TEXT, "x", QString()));
    EXPECT_EQ(missing, named);
    // The library's own pictures are there without anybody having loaded packages.
    EXPECT_TRUE(Resource("editor/actions/undo").isValid());
}

TEST(ResourceReference, TypesHaveTextsAndFileFilters)
{
    for (int number = 1; number <= 8; ++number) {
        const auto type = static_cast<Resource::Type>(number);
        EXPECT_EQ(Resource::typeFromString(Resource::typeAsString(type)), type);
    }
    EXPECT_EQ(Resource::typeAsString(Resource::FORM), QStringLiteral("form"));
    EXPECT_EQ(Resource::typeAsString(static_cast<Resource::Type>(15)), QStringLiteral("invalid"));
    EXPECT_EQ(Resource::typeFromString(QStringLiteral("Image")), Resource::INVALID);
    EXPECT_EQ(getFileFilterForResourceType(Resource::IMAGE),
              QStringLiteral("Images (*.svg *.png *.jpg *.jpeg *.gif *.bmp)"));
    EXPECT_EQ(getFileFilterForResourceType(Resource::FORM), QStringLiteral("Forms (*.ui)"));
    EXPECT_EQ(getFileFilterForResourceType(Resource::INVALID), QStringLiteral("All files (*)"));
    EXPECT_EQ(resourceTypeForExtension(QStringLiteral("JPG")), Resource::IMAGE);
    EXPECT_EQ(resourceTypeForExtension(QStringLiteral("exe")), Resource::INVALID);
}

TEST(ResourceData, IsCheckedAgainstTheType)
{
    EXPECT_TRUE(isResourceDataValid(resourceOf(Resource::IMAGE, pngBytes(), "png")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::IMAGE, pngBytes().left(60), "png")));
    EXPECT_TRUE(isResourceDataValid(resourceOf(Resource::IMAGE, svgBytes(), "svg")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::IMAGE, svgBytes().chopped(3), "svg")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::IMAGE, "<ui/>", "svg")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::IMAGE, "", "png")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::MOVIE, pngBytes(), "gif")));
    EXPECT_TRUE(isResourceDataValid(resourceOf(Resource::FORM, "<ui version=\"4.0\"><widget/></ui>", "ui")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::FORM, "<ui version=\"4.0\"><widget>", "ui")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::FORM, svgBytes(), "ui")));
    EXPECT_TRUE(isResourceDataValid(resourceOf(Resource::SOUND, QByteArray("RIFF\0\0\0\0WAVEfmt ", 16), "wav")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::SOUND, pngBytes(), "wav")));
    EXPECT_TRUE(isResourceDataValid(resourceOf(Resource::TEXT, "gr\xC3\xBC\xC3\x9F", "txt")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::TEXT, "gr\xFC\xDF", "txt")));
    EXPECT_FALSE(isResourceDataValid(resourceOf(Resource::FONT, "<ui/>", "ttf")));
    EXPECT_TRUE(isResourceDataValid(resourceOf(Resource::DATA, "", "dat")));
    EXPECT_FALSE(isResourceDataValid(Resource("nowhere/nothing")));
}

TEST_F(ResourceFiles, BecomeLocalResourcesWhenTheyHoldTheType)
{
    const QString photo = write("my photo.v2.PNG", pngBytes());
    QFile file(photo);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    file.seek(20);
    const Resource local = defineLocalResource(Resource::IMAGE, file);
    EXPECT_EQ(local.toString(), QStringLiteral("local/my photo.v2"));
    EXPECT_EQ(local.type(), Resource::IMAGE);
    EXPECT_EQ(local.data(), pngBytes());
    EXPECT_EQ(local.entry()->extension(), QStringLiteral("png"));
    EXPECT_EQ(file.pos(), 20) << "the caller's file is left alone";
    EXPECT_FALSE(Resource(QStringLiteral("local/my photo.v2")).isValid()) << "it belongs to no package";

    EXPECT_TRUE(defineLocalResource(Resource::FORM, QFile(photo)).isNull());
    EXPECT_TRUE(defineLocalResource(Resource::INVALID, QFile(photo)).isNull());
    EXPECT_TRUE(defineLocalResource(Resource::IMAGE, QFile(folder("none.png"))).isNull());
    EXPECT_TRUE(defineLocalResource(Resource::DATA, QFile(folder("."))).isNull()) << "a folder";

    QFile large(folder("large.dat"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(64 * 1024 * 1024 + 1)); // sparse
    EXPECT_TRUE(defineLocalResource(Resource::DATA, large).isNull());
}
