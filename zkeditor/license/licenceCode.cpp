// Signed licences.
//
// The bytes of a code, before its signature: the format (1), the number of bytes that follow before the signature, the
// date of issue, the date of expiry (days since 2000-01-01 in two bytes each; 0: never), the seats in two bytes, then
// holder, product and edition in UTF-8, each after a byte with its length. The signature covers all of that behind a
// word that keeps it from being taken for a signature of anything else.
#include "zkeditor/license/licenceCode.h"

#include "zkeditor/license/licenceText.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <optional>
#include <sodium.h>

namespace {

constexpr char codeFormat = 1;
constexpr int longestLicenceText = 80;
constexpr int mostSeats = 65535;
constexpr qsizetype headLength = 2;
const QDate firstDay(2000, 1, 1);

struct LicenceTexts
{
    Q_DECLARE_TR_FUNCTIONS(Licence)
};

bool sodiumIsReady()
{
    static const bool ready = sodium_init() >= 0;
    return ready;
}

QByteArray signedBytes(const QByteArray& content)
{
    return QByteArrayLiteral("licence code\n") + content;
}

void appendNumber(QByteArray& bytes, int number)
{
    bytes.append(static_cast<char>(number >> 8));
    bytes.append(static_cast<char>(number & 255));
}

bool fitsTwoBytes(qint64 number)
{
    return number >= 0 && number <= 65535;
}

/// Reads what the signature vouches for; still never beyond the end.
class LicenceReader
{
public:
    explicit LicenceReader(const QByteArray& bytes) : m_bytes(bytes) {}

    int number()
    {
        const QByteArray two = take(2);
        return two.size() < 2 ? 0 : static_cast<uchar>(two.at(0)) << 8 | static_cast<uchar>(two.at(1));
    }
    QString text()
    {
        const QByteArray length = take(1);
        return length.isEmpty() ? QString() : QString::fromUtf8(take(static_cast<uchar>(length.at(0))));
    }
    bool atEnd() const { return m_ok && m_position == m_bytes.size(); }

private:
    QByteArray take(qsizetype count)
    {
        m_ok = m_ok && count <= m_bytes.size() - m_position;
        if (!m_ok)
            return QByteArray();
        m_position += count;
        return m_bytes.mid(m_position - count, count);
    }

    const QByteArray& m_bytes;
    qsizetype m_position = 0;
    bool m_ok = true;
};

std::optional<Licence> licenceFromContent(const QByteArray& content)
{
    const QByteArray fields = content.mid(headLength);
    LicenceReader reader(fields);
    Licence licence;
    licence.issued = firstDay.addDays(reader.number());
    if (const int expiry = reader.number(); expiry > 0)
        licence.expires = firstDay.addDays(expiry);
    licence.seats = reader.number();
    licence.holder = reader.text();
    licence.product = reader.text();
    licence.edition = reader.text();
    if (!reader.atEnd())
        return std::nullopt;
    return licence;
}

QString typingMessage(const licenceText::Reading& reading)
{
    using Reading = licenceText::Reading;
    switch (reading.fault) {
    case Reading::Empty:
        return LicenceTexts::tr("Please enter the licence code.");
    case Reading::WrongCharacter:
        return LicenceTexts::tr("Typing error in group %1: \"%2\" does not occur in licence codes.")
            .arg(reading.group)
            .arg(reading.character.isPrint() ? QString(reading.character) : QStringLiteral("?"));
    case Reading::WrongLength:
        return LicenceTexts::tr("Typing error in group %1: it has %2 characters instead of %3.")
            .arg(reading.group)
            .arg(reading.found)
            .arg(licenceText::groupLength);
    case Reading::TooLong:
        return LicenceTexts::tr("The code is too long: no licence code has so many groups.");
    default:
        return LicenceTexts::tr("Typing error in group %1: please compare it letter by letter. "
                                "Groups may also be missing, doubled or exchanged.")
            .arg(reading.group);
    }
}

QString shortDate(QDate date)
{
    return QLocale().toString(date, QLocale::ShortFormat);
}

} // namespace

QByteArray licenceCode::builtInPublicKey()
{
    return QByteArray::fromHex(ZK_LICENCE_PUBLIC_KEY);
}

licenceCode::KeyPair licenceCode::makeKeyPair()
{
    KeyPair pair;
    if (!sodiumIsReady())
        return pair;
    pair.publicKey.resize(crypto_sign_PUBLICKEYBYTES);
    pair.secretKey.resize(crypto_sign_SECRETKEYBYTES);
    crypto_sign_keypair(reinterpret_cast<uchar*>(pair.publicKey.data()),
                        reinterpret_cast<uchar*>(pair.secretKey.data()));
    return pair;
}

QString licenceCode::sign(const Licence& licence, const QByteArray& secretKey, QString* error)
{
    const auto fail = [&](const QString& reason) {
        if (error)
            *error = reason;
        return QString();
    };
    if (!sodiumIsReady() || secretKey.size() != qsizetype(crypto_sign_SECRETKEYBYTES))
        return fail(LicenceTexts::tr("The secret key cannot be used."));
    if (licence.holder.trimmed().isEmpty() || licence.product.isEmpty())
        return fail(LicenceTexts::tr("A licence needs a holder and a product."));
    const qint64 issued = licence.issued.isValid() ? firstDay.daysTo(licence.issued) : -1;
    const qint64 expires = licence.expires.isValid() ? firstDay.daysTo(licence.expires) : 0;
    if (!fitsTwoBytes(issued) || !fitsTwoBytes(expires) || (licence.expires.isValid() && expires < issued))
        return fail(LicenceTexts::tr(
            "The dates of a licence lie between 2000 and 2179, and it does not expire before it is issued."));
    if (licence.seats < 1 || licence.seats > mostSeats)
        return fail(LicenceTexts::tr("A licence has from 1 to 65535 seats."));

    QByteArray fields;
    appendNumber(fields, static_cast<int>(issued));
    appendNumber(fields, static_cast<int>(expires));
    appendNumber(fields, licence.seats);
    for (const QString& text : {licence.holder, licence.product, licence.edition}) {
        const QByteArray utf8 = text.toUtf8();
        if (utf8.size() > longestLicenceText)
            return fail(LicenceTexts::tr("Holder, product and edition have at most 80 letters each."));
        fields.append(static_cast<char>(utf8.size()));
        fields.append(utf8);
    }
    if (fields.size() > 255)
        return fail(LicenceTexts::tr("Holder, product and edition are too long together."));
    QByteArray content;
    content.append(codeFormat);
    content.append(static_cast<char>(fields.size()));
    content.append(fields);

    const QByteArray message = signedBytes(content);
    QByteArray signature(crypto_sign_BYTES, '\0');
    crypto_sign_detached(reinterpret_cast<uchar*>(signature.data()), nullptr,
                         reinterpret_cast<const uchar*>(message.constData()), static_cast<size_t>(message.size()),
                         reinterpret_cast<const uchar*>(secretKey.constData()));
    return licenceText::fromBytes(content + signature);
}

licenceCode::Check licenceCode::check(const QString& code, const QByteArray& publicKey, const QString& product,
                                      QDate today)
{
    Check result;
    const auto fail = [&](Check::Fault fault, const QString& message) {
        result.fault = fault;
        result.message = message;
        return result;
    };
    const licenceText::Reading reading = licenceText::toBytes(code);
    if (reading.fault != licenceText::Reading::None) {
        result.group = reading.group;
        return fail(Check::Typing, typingMessage(reading));
    }

    const QString notMade = LicenceTexts::tr("This code was not made for this program: its signature is not right. "
                                             "Please ask whoever gave it to you.");
    const QByteArray& bytes = reading.bytes;
    if (bytes.size() < headLength || bytes.at(0) != codeFormat)
        return fail(Check::Signature, notMade);
    const qsizetype contentLength = headLength + static_cast<uchar>(bytes.at(1));
    const qsizetype wholeLength = contentLength + qsizetype(crypto_sign_BYTES);
    const qsizetype groups = (wholeLength * 8 + 24) / 25;
    if (reading.groups != groups)
        return fail(Check::Length,
                    LicenceTexts::tr("The code has %1 groups, but %2 were entered.").arg(groups).arg(reading.groups));
    const QByteArray content = bytes.left(contentLength);
    const QByteArray signature = bytes.mid(contentLength, qsizetype(crypto_sign_BYTES));
    const QByteArray message = signedBytes(content);
    const bool genuine = sodiumIsReady() && publicKey.size() == qsizetype(crypto_sign_PUBLICKEYBYTES) &&
                         signature.size() == qsizetype(crypto_sign_BYTES) &&
                         crypto_sign_verify_detached(reinterpret_cast<const uchar*>(signature.constData()),
                                                     reinterpret_cast<const uchar*>(message.constData()),
                                                     static_cast<size_t>(message.size()),
                                                     reinterpret_cast<const uchar*>(publicKey.constData())) == 0;
    // What fills up the last group is nothing, and must say nothing.
    const QByteArray rest = bytes.mid(wholeLength);
    const bool clean = std::all_of(rest.begin(), rest.end(), [](char byte) { return byte == 0; });
    const std::optional<Licence> licence = genuine && clean ? licenceFromContent(content) : std::nullopt;
    if (!licence)
        return fail(Check::Signature, notMade);

    result.licence = *licence;
    if (licence->product != product)
        return fail(
            Check::Product,
            LicenceTexts::tr("This code is for the product %1; this program is %2.").arg(licence->product, product));
    if (today < licence->issued)
        return fail(Check::NotYet,
                    LicenceTexts::tr("This code was issued on %1, but the clock of this computer says that "
                                     "today is %2. Please set the clock.")
                        .arg(shortDate(licence->issued), shortDate(today)));
    if (licence->expires.isValid() && today > licence->expires)
        return fail(Check::Expired, LicenceTexts::tr("This licence expired on %1.").arg(shortDate(licence->expires)));
    return result;
}
