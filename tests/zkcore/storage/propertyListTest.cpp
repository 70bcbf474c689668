// Property lists: there and back, what they cannot hold, and damaged data.
#include "zkcore/storage/propertyList.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

QByteArray plistBytes(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Value randomPlistValue(int depth)
{
    switch (*rc::gen::inRange(0, depth > 0 ? 6 : 4)) {
    case 0:
        return Value(*rc::gen::arbitrary<int>());
    case 1:
        return Value(*rc::gen::inRange(-100000, 100000) / 7.0);
    case 2:
        return Value(*rc::gen::arbitrary<bool>());
    case 3:
        return Value(
            *rc::gen::element(QString(""), QStringLiteral(" <a> & \"b\"\n"), QStringLiteral("\u00fc\U0001f600")));
    case 4:
        return Value(std::vector<Value>{randomPlistValue(depth - 1), randomPlistValue(depth - 1)});
    default:
        return Value(ValueMap{{QStringLiteral("<one>"), randomPlistValue(depth - 1)},
                              {QStringLiteral("zwei \u00fc"), randomPlistValue(depth - 1)}});
    }
}

class PropertyListTest : public testing::Test
{
protected:
    QString fileName() const { return m_folder.filePath(QStringLiteral("list.plist")); }

    QTemporaryDir m_folder;
};

TEST_F(PropertyListTest, ThereAndBack)
{
    EXPECT_TRUE(rc::check([this] {
        const Value value = randomPlistValue(3);
        RC_ASSERT(writePlst(fileName(), value));
        RC_ASSERT(parsePlstData(plistBytes(fileName())) == value);
    }));
}

TEST_F(PropertyListTest, WhatAListHoldsInItsOwnTerms)
{
    ASSERT_TRUE(
        writePlst(fileName(), Value(ValueMap{{QStringLiteral("colour"), Value(QColor(Qt::red))},
                                             {QStringLiteral("numbers"), Value(std::vector<int>{1, -2})},
                                             {QStringLiteral("texts"), Value(std::vector<QString>{QString()})}})));
    EXPECT_EQ(parsePlstData(plistBytes(fileName())),
              Value(ValueMap{{QStringLiteral("colour"), Value(QStringLiteral("#ff0000"))},
                             {QStringLiteral("numbers"), Value(std::vector<Value>{Value(1), Value(-2)})},
                             {QStringLiteral("texts"), Value(std::vector<Value>{Value(QStringLiteral(""))})}}));
}

TEST_F(PropertyListTest, WhatItCannotHoldLeavesTheOldFile)
{
    ASSERT_TRUE(writePlst(fileName(), Value(1)));
    const QByteArray before = plistBytes(fileName());
    for (const Value& value :
         {Value(), Value(zk::Point()), Value::fromInstanceId(3), Value(std::numeric_limits<double>::infinity()),
          Value(QString(QChar(u'\0'))), Value(std::vector<Value>{Value(1), Value()}),
          Value(ValueMap{{QStringLiteral("twice"), Value(1)}, {QStringLiteral("twice"), Value(2)}})})
        EXPECT_FALSE(writePlst(fileName(), value)) << Value::typeAsString(value.type()).toStdString();
    EXPECT_EQ(plistBytes(fileName()), before);
    EXPECT_FALSE(writePlst(m_folder.filePath(QStringLiteral("no/such/folder")), Value(1)));
}

/// A small binary property list: {"a": [true, 5], "b": "text"}.
QByteArray binaryPlist()
{
    QByteArray data("bplist00");
    const QByteArray objects[] = {QByteArray("\xd2\x01\x02\x03\x04", 5),
                                  QByteArray("\x51\x61"),
                                  QByteArray("\x51\x62"),
                                  QByteArray("\xa2\x05\x06", 3),
                                  QByteArray("\x54text"),
                                  QByteArray("\x09"),
                                  QByteArray("\x10\x05", 2)};
    QByteArray offsets;
    for (const QByteArray& object : objects) {
        offsets += static_cast<char>(data.size());
        data += object;
    }
    const auto offsetTable = static_cast<char>(data.size());
    return data + offsets + QByteArray(6, '\0') + "\x01\x01" + QByteArray(7, '\0') + "\x07" + QByteArray(8, '\0') +
           QByteArray(7, '\0') + offsetTable;
}

TEST_F(PropertyListTest, BinaryForm)
{
    EXPECT_EQ(parsePlstData(binaryPlist()),
              Value(ValueMap{{QStringLiteral("a"), Value(std::vector<Value>{Value(true), Value(5)})},
                             {QStringLiteral("b"), Value(QStringLiteral("text"))}}));
}

TEST_F(PropertyListTest, DamagedDataNeverCrash)
{
    ASSERT_TRUE(
        writePlst(fileName(), Value(ValueMap{{QStringLiteral("a"), Value(std::vector<Value>{Value(true), Value(5)})},
                                             {QStringLiteral("b"), Value(QStringLiteral("text"))}})));
    for (const QByteArray& whole : {plistBytes(fileName()), binaryPlist()}) {
        for (qsizetype length = 0; length < whole.size() - 3; ++length)
            EXPECT_FALSE(parsePlstData(whole.left(length)).isValid());
        for (qsizetype at = 0; at < whole.size(); ++at) {
            for (const int flip : {0x01, 0x10, 0x7f, 0xff}) {
                QByteArray damaged = whole;
                damaged[at] = static_cast<char>(damaged[at] ^ flip);
                parsePlstData(damaged);
            }
        }
    }
    EXPECT_FALSE(parsePlstData("<plist><array>" + QByteArray("<array>").repeated(200000)).isValid());
    EXPECT_FALSE(parsePlstData("<html/>").isValid());
}

TEST_F(PropertyListTest, ReferencesThatMultiplyAreRefused)
{
    // Forty arrays of which each holds the next one twice, and one that holds itself.
    constexpr char count = 40;
    QByteArray data("bplist00");
    QByteArray offsets;
    for (char i = 0; i < count; ++i) {
        offsets += static_cast<char>(data.size());
        const auto next = static_cast<char>(i + 1 < count ? i + 1 : i);
        data += i + 1 < count ? QByteArray("\xa2") + next + next : QByteArray("\x09");
    }
    const auto offsetTable = static_cast<char>(data.size());
    const QByteArray trailer = QByteArray(6, '\0') + "\x01\x01" + QByteArray(7, '\0') + count + QByteArray(8, '\0') +
                               QByteArray(7, '\0') + offsetTable;
    EXPECT_FALSE(parsePlstData(data + offsets + trailer).isValid());
    data[9] = '\0';
    EXPECT_FALSE(parsePlstData(data + offsets + trailer).isValid());
}

} // namespace
