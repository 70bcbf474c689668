#include "packageFolder.h"

#include "zkcore/storage/package.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

void PackageFolderTest::SetUp()
{
    ASSERT_TRUE(m_place.isValid());
    QDir(Package::userFolder()).removeRecursively();
    Package::unloadAll();
}

void PackageFolderTest::TearDown()
{
    QDir(Package::userFolder()).removeRecursively();
    Package::unloadAll();
}

namespace {

void writePackageFile(const QString& fileName, const QByteArray& content)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(fileName).path()));
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

} // namespace

QString PackageFolderTest::write(const QString& path, const QByteArray& content)
{
    writePackageFile(m_place.filePath(path), content);
    return m_place.filePath(path);
}

QString PackageFolderTest::writePackage(const QString& name, const QByteArray& classes)
{
    write(name + QStringLiteral("/package.xml"), packageText(name, classes));
    return m_place.filePath(name);
}

void PackageFolderTest::writeUserPackage(const QString& name, const QByteArray& classes)
{
    writePackageFile(Package::userFolder() + u'/' + name + QStringLiteral("/package.xml"), packageText(name, classes));
}

QByteArray PackageFolderTest::packageText(const QString& name, const QByteArray& classes)
{
    return "<package format=\"1\" name=\"" + name.toUtf8() + "\">\n" + classes + "\n</package>\n";
}

QByteArray PackageFolderTest::picture()
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"8\"><rect width=\"8\" height=\"8\"/></svg>";
}
