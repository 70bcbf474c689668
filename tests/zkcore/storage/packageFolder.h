#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// Package folders in a temporary place, and an empty user folder. Every test begins and ends with no package loaded.
class PackageFolderTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Writes a file, and the folders it needs, below the temporary place.
    QString write(const QString& path, const QByteArray& content);
    /// Writes NAME/package.xml with the classes, the first one in the second line.
    QString writePackage(const QString& name, const QByteArray& classes);
    /// As writePackage, among the user's packages.
    static void writeUserPackage(const QString& name, const QByteArray& classes);
    QString path(const QString& relative) const { return m_place.filePath(relative); }

    static QByteArray packageText(const QString& name, const QByteArray& classes);
    /// An SVG picture.
    static QByteArray picture();

private:
    QTemporaryDir m_place;
};
