// Recovery files, the places they stand in, and what is known of other files.
#include "zkcore/storage/recoveryFile.h"
#include "tests/support/documentGenerator.h"
#include "tests/support/testDocument.h"
#include "zkcore/storage/documentPieces.h"
#include "zkcore/storage/recoveryPlace.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <limits>

namespace {

void put(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << fileName.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray bytesIn(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fileName.toStdString();
    return file.readAll();
}

class RecoveryFileTest : public testing::Test
{
protected:
    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    void write(const QString& fileName, RecoveryFile file)
    {
        DocumentImpl document;
        loadGeneratedDocument(document, 200);
        DocumentPieces pieces(document);
        ASSERT_TRUE(pieces.update(std::numeric_limits<int>::max()));
        file.written = QDateTime::currentDateTimeUtc();
        QString error;
        ASSERT_TRUE(file.write(fileName, {pieces.list(), {}, document.nextFreeId()}, error)) << error.toStdString();
    }

    QTemporaryDir m_folder;
};

TEST_F(RecoveryFileTest, saysWhatItBelongsTo)
{
    const QString original = path("a & b's \"x\" <%41?> %1 \u00e4\u0645.zkdoc");
    put(original, "something");
    RecoveryFile file;
    file.original = original;
    file.stamp = FileStamp::of(original);
    file.process = 17;
    write(path("r.zkdoc"), file);

    RecoveryFile read;
    ASSERT_TRUE(read.read(path("r.zkdoc")));
    EXPECT_EQ(read.original, original);
    EXPECT_EQ(read.process, 17);
    EXPECT_LT(read.written.secsTo(QDateTime::currentDateTimeUtc()), 60);
    EXPECT_EQ(read.stamp.compare(original), FileStamp::State::Same);
    put(original, "another 1");
    EXPECT_EQ(read.stamp.compare(original), FileStamp::State::Changed);

    write(path("r.zkdoc"), RecoveryFile());
    ASSERT_TRUE(read.read(path("r.zkdoc")));
    EXPECT_TRUE(read.original.isEmpty());
    EXPECT_FALSE(read.stamp.valid);

    EXPECT_FALSE(read.read(path("missing")));
    put(path("other"), "<?xml version=\"1.0\"?>\n<zkdoc/>\n");
    EXPECT_FALSE(read.read(path("other")));
}

TEST_F(RecoveryFileTest, cutOffItIsRefused)
{
    write(path("r.zkdoc"), RecoveryFile());
    const QByteArray whole = bytesIn(path("r.zkdoc"));
    for (qsizetype length = 0; length < whole.size() - 1; length += 97) {
        put(path("torn.zkdoc"), whole.left(length));
        DocumentImpl document;
        EXPECT_FALSE(document.recover(path("torn.zkdoc"), QString())) << length;
        EXPECT_FALSE(document.lastError().isEmpty());
        EXPECT_FALSE(document.isModified());
    }
}

TEST_F(RecoveryFileTest, placesOfRunningProgramsAreNotOffered)
{
    const QString folder = path("recovery");
    QString error;
    std::unique_ptr<RecoveryPlace> own = RecoveryPlace::make(folder, error);
    ASSERT_TRUE(own) << error.toStdString();
    write(own->fileName(), RecoveryFile());
    EXPECT_TRUE(RecoveryPlace::leftOvers(folder).empty());

    const QString name = own->fileName();
    own.reset();
    put(name + QStringLiteral(".Kx3hTq"), "half"); // as replacing a file leaves it when it is killed
    {
        const auto found = RecoveryPlace::leftOvers(folder);
        ASSERT_EQ(found.size(), 1u);
        EXPECT_EQ(found.front()->fileName(), name);
        EXPECT_TRUE(RecoveryPlace::leftOvers(folder).empty()) << "one program only offers it";
        EXPECT_FALSE(QFile::exists(name + QStringLiteral(".Kx3hTq")));
    }
    const auto again = RecoveryPlace::leftOvers(folder);
    ASSERT_EQ(again.size(), 1u);
    const QString aside = again.front()->setAside();
    EXPECT_TRUE(QFile::exists(aside));
    EXPECT_TRUE(RecoveryPlace::leftOvers(folder).empty());

    put(path("file"), {});
    EXPECT_FALSE(RecoveryPlace::make(path("file/in the way"), error));
    EXPECT_FALSE(error.isEmpty());
}

TEST_F(RecoveryFileTest, aFileIsChangedWhenItsContentIs)
{
    put(path("a"), "one");
    FileStamp stamp = FileStamp::of(path("a"));
    EXPECT_EQ(stamp.compare(path("a")), FileStamp::State::Same);
    const auto touch = [this](int seconds) {
        QFile file(path("a"));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(seconds), QFileDevice::FileModificationTime));
    };
    touch(10);
    EXPECT_EQ(stamp.compare(path("a")), FileStamp::State::Same);
    put(path("a"), "two");
    touch(20);
    EXPECT_EQ(stamp.compare(path("a")), FileStamp::State::Changed);
    QFile::remove(path("a"));
    EXPECT_EQ(stamp.compare(path("a")), FileStamp::State::Gone);
    EXPECT_FALSE(FileStamp::of(path("a")).valid);
}

TEST_F(RecoveryFileTest, savingKeepsLinksAndPermissions)
{
    ASSERT_TRUE(QDir().mkpath(path("there")));
    DocumentImpl document;
    ASSERT_TRUE(document.save(path("there/real.zkdoc")));
    const QFile::Permissions only = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    ASSERT_TRUE(QFile::setPermissions(path("there/real.zkdoc"), only));
    ASSERT_TRUE(QFile::link(QStringLiteral("real.zkdoc"), path("there/inner.zkdoc")));
    ASSERT_TRUE(QFile::link(QStringLiteral("there/inner.zkdoc"), path("outer.zkdoc")));

    ASSERT_TRUE(document.load(path("outer.zkdoc")));
    ASSERT_TRUE(set(property(document.getModel(), "title"), Value(QStringLiteral("Linked"))));
    ASSERT_TRUE(document.save(path("outer.zkdoc"))) << document.lastError().toStdString();
    EXPECT_TRUE(QFileInfo(path("outer.zkdoc")).isSymLink());
    EXPECT_TRUE(QFileInfo(path("there/inner.zkdoc")).isSymLink());
    EXPECT_FALSE(QFileInfo(path("there/real.zkdoc")).isSymLink());
    EXPECT_EQ(bytesIn(path("there/real.zkdoc")), bytesOf(document));
    EXPECT_EQ(QFile::permissions(path("there/real.zkdoc")), only);
    EXPECT_EQ(document.getUrl().toLocalFile(), path("outer.zkdoc"));
}

} // namespace
