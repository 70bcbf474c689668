// Groups of letters with check characters.
#include "zkeditor/license/licenceText.h"

#include <QStringList>
#include <array>
#include <vector>

namespace {

constexpr char codeLetters[] = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";
constexpr int payloadOfGroup = licenceText::groupLength - 1;
constexpr int bitsOfLetter = 5;
constexpr int groupsOfLine = 5;

/// -1 for what is no letter of codes.
int digitOfLetter(QChar letter)
{
    letter = letter.toUpper();
    if (letter == QLatin1Char('O'))
        return 0;
    if (letter == QLatin1Char('I') || letter == QLatin1Char('L'))
        return 1;
    for (int i = 0; i < 32; ++i)
        if (letter == QLatin1Char(codeLetters[i]))
            return i;
    return -1;
}

bool isSeparator(QChar character)
{
    return character.isSpace() || character.category() == QChar::Punctuation_Dash || character == QChar(0xad);
}

/// Product in the field of 32 elements (x^5 + x^2 + 1).
int multiplyDigits(int a, int b)
{
    int product = 0;
    for (; b != 0; b >>= 1) {
        if (b & 1)
            product ^= a;
        a <<= 1;
        if (a & 32)
            a ^= 0b100101;
    }
    return product;
}

/// Each letter counts with another factor, so a wrong letter and two exchanged ones always change the sum.
int checkDigit(const std::array<int, payloadOfGroup>& digits, int group)
{
    int sum = multiplyDigits(7, group & 31) ^ multiplyDigits(11, (group >> 5) & 31);
    for (int i = 0; i < payloadOfGroup; ++i)
        sum ^= multiplyDigits(i + 2, digits[static_cast<size_t>(i)]);
    return sum;
}

/// The groups as they were typed, or cut out of a text that is not divided.
QStringList groupsOfText(const QString& text)
{
    QStringList groups;
    QString group;
    bool divided = false;
    for (const QChar character : text.trimmed()) {
        if (!isSeparator(character)) {
            group += character;
        } else if (!group.isEmpty()) {
            divided = true;
            groups.append(group);
            group.clear();
        }
    }
    if (!group.isEmpty())
        groups.append(group);
    if (divided || groups.isEmpty())
        return groups;
    QStringList cut;
    for (qsizetype i = 0; i < group.size(); i += licenceText::groupLength)
        cut.append(group.mid(i, licenceText::groupLength));
    return cut;
}

QString joinedGroups(const QStringList& groups)
{
    QString text;
    for (qsizetype i = 0; i < groups.size(); ++i) {
        if (i > 0)
            text += QLatin1Char(i % groupsOfLine == 0 ? '\n' : '-');
        text += groups.at(i);
    }
    return text;
}

} // namespace

QString licenceText::fromBytes(const QByteArray& bytes)
{
    QStringList groups;
    const qsizetype bits = bytes.size() * 8;
    for (qsizetype position = 0; position < bits;) {
        std::array<int, payloadOfGroup> digits{};
        for (int& digit : digits) {
            for (int i = 0; i < bitsOfLetter; ++i, ++position) {
                const bool bit =
                    position < bits && (static_cast<uchar>(bytes.at(position / 8)) >> (7 - position % 8)) & 1;
                digit = digit << 1 | (bit ? 1 : 0);
            }
        }
        QString group;
        for (const int digit : digits)
            group += QLatin1Char(codeLetters[digit]);
        group += QLatin1Char(codeLetters[checkDigit(digits, static_cast<int>(groups.size()) + 1)]);
        groups.append(group);
    }
    return joinedGroups(groups);
}

QString licenceText::normalised(const QString& text)
{
    return joinedGroups(groupsOfText(text.toUpper()));
}

licenceText::Reading licenceText::toBytes(const QString& text)
{
    Reading reading;
    const QStringList groups = groupsOfText(text);
    reading.groups = static_cast<int>(groups.size());
    if (groups.isEmpty())
        return reading;
    const auto fail = [&](Reading::Fault fault, qsizetype group) {
        reading.fault = fault;
        reading.group = static_cast<int>(group) + 1;
        reading.bytes.clear();
        return reading;
    };
    constexpr qsizetype mostGroups =
        (maximumBytes * 8 + payloadOfGroup * bitsOfLetter - 1) / (payloadOfGroup * bitsOfLetter);
    if (groups.size() > mostGroups)
        return fail(Reading::TooLong, mostGroups);

    std::vector<bool> bits;
    for (qsizetype i = 0; i < groups.size(); ++i) {
        const QString& group = groups.at(i);
        for (const QChar letter : group) {
            if (digitOfLetter(letter) < 0) {
                reading.character = letter;
                return fail(Reading::WrongCharacter, i);
            }
        }
        if (group.size() != groupLength) {
            reading.found = static_cast<int>(group.size());
            return fail(Reading::WrongLength, i);
        }
        std::array<int, payloadOfGroup> digits{};
        for (int j = 0; j < payloadOfGroup; ++j)
            digits[static_cast<size_t>(j)] = digitOfLetter(group.at(j));
        if (digitOfLetter(group.back()) != checkDigit(digits, static_cast<int>(i) + 1))
            return fail(Reading::WrongCheck, i);
        for (const int digit : digits)
            for (int bit = bitsOfLetter - 1; bit >= 0; --bit)
                bits.push_back((digit >> bit) & 1);
    }
    while (bits.size() % 8 != 0)
        bits.push_back(false);
    for (size_t i = 0; i < bits.size(); i += 8) {
        int byte = 0;
        for (size_t j = 0; j < 8; ++j)
            byte = byte << 1 | (bits[i + j] ? 1 : 0);
        reading.bytes.append(static_cast<char>(byte));
    }
    reading.fault = Reading::None;
    return reading;
}
