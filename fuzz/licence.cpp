// Licence codes. The first byte chooses what the rest is: a text that is typed (and must be refused unless it is the
// one good code), how the good code is mistyped, the bytes behind a signature that is right, or a licence to be signed.
#include "fuzz/support/harness.h"
#include "zkeditor/license/licenceCode.h"
#include "zkeditor/license/licenceText.h"

#include <QCoreApplication>
#include <sodium.h>

namespace {

const QString licensedProduct = QStringLiteral("zkauthor");
const QDate usedOn(2026, 6, 1);

const licenceCode::KeyPair& fixedKeys()
{
    static const licenceCode::KeyPair keys = [] {
        fuzz::require(sodium_init() >= 0, "the signatures work");
        licenceCode::KeyPair made{QByteArray(crypto_sign_PUBLICKEYBYTES, '\0'),
                                  QByteArray(crypto_sign_SECRETKEYBYTES, '\0')};
        const QByteArray seed(crypto_sign_SEEDBYTES, 'z');
        crypto_sign_seed_keypair(reinterpret_cast<uchar*>(made.publicKey.data()),
                                 reinterpret_cast<uchar*>(made.secretKey.data()),
                                 reinterpret_cast<const uchar*>(seed.constData()));
        return made;
    }();
    return keys;
}

Licence goodLicence()
{
    Licence licence;
    licence.holder = QStringLiteral("Ada");
    licence.product = licensedProduct;
    licence.issued = QDate(2026, 1, 1);
    licence.seats = 3;
    return licence;
}

licenceCode::Check checked(const QString& code)
{
    const licenceCode::Check check = licenceCode::check(code, fixedKeys().publicKey, licensedProduct, usedOn);
    fuzz::require((check.fault == licenceCode::Check::None) == check.message.isEmpty(),
                  "a code that is refused is refused with a reason", code);
    return check;
}

const QString& goodCode()
{
    static const QString good = licenceCode::sign(goodLicence(), fixedKeys().secretKey);
    return good;
}

void checkTyped(const QString& code)
{
    const licenceCode::Check check = checked(code);
    fuzz::require(checked(licenceText::normalised(code)).fault == check.fault, "a code may be written in any shape",
                  code);
    if (check.fault > licenceCode::Check::Signature || check.fault == licenceCode::Check::None) {
        fuzz::require(licenceText::toBytes(code).bytes == licenceText::toBytes(goodCode()).bytes,
                      "a code that nobody signed does not count", code);
    }
}

/// The good code with letters replaced, doubled, left out or exchanged: three bytes for each slip.
QString mistyped(const QByteArray& slips)
{
    QString code = goodCode();
    for (qsizetype i = 0; i + 2 < slips.size() && !code.isEmpty(); i += 3) {
        const qsizetype place = uchar(slips[i + 1]) % code.size();
        switch (slips[i]) {
        case '+':
            code.insert(place, code[place]);
            break;
        case '-':
            code.remove(place, 1);
            break;
        case '~':
            code.append(code[place]);
            code.remove(place, 1);
            break;
        default:
            code[place] = QLatin1Char(slips[i + 2]);
        }
    }
    return code;
}

void checkSigned(const QByteArray& content)
{
    const QByteArray message = "licence code\n" + content;
    QByteArray signature(crypto_sign_BYTES, '\0');
    crypto_sign_detached(reinterpret_cast<uchar*>(signature.data()), nullptr,
                         reinterpret_cast<const uchar*>(message.constData()), static_cast<size_t>(message.size()),
                         reinterpret_cast<const uchar*>(fixedKeys().secretKey.constData()));
    checked(licenceText::fromBytes(content + signature));
}

void checkLicence(const QByteArray& bytes)
{
    const auto number = [&bytes](qsizetype position) {
        return position + 1 < bytes.size() ? uchar(bytes[position]) << 8 | uchar(bytes[position + 1]) : 0;
    };
    const QStringList texts = QString::fromUtf8(bytes.mid(6)).split(QLatin1Char('\n'));
    Licence licence;
    licence.issued = QDate(2000, 1, 1).addDays(number(0));
    if (number(2) != 0)
        licence.expires = QDate(2000, 1, 1).addDays(number(2));
    licence.seats = number(4);
    licence.holder = texts.value(0);
    licence.product = texts.value(1, licensedProduct);
    licence.edition = texts.value(2);
    QString error;
    const QString code = licenceCode::sign(licence, fixedKeys().secretKey, &error);
    fuzz::require(code.isEmpty() != error.isEmpty(), "a licence that cannot be signed says why", error);
    if (code.isEmpty())
        return;
    const licenceCode::Check check = checked(code);
    const bool isRight = check.licence.holder == licence.holder && check.licence.product == licence.product &&
                         check.licence.edition == licence.edition && check.licence.seats == licence.seats &&
                         check.licence.issued == licence.issued && check.licence.expires == licence.expires;
    fuzz::require(isRight, "a licence that was signed can be read", check.message + u'\n' + code);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray rest(reinterpret_cast<const char*>(data) + 1, qsizetype(size) - 1);
    switch (data[0]) {
    case 'S':
        fixedKeys();
        checkSigned(rest);
        break;
    case 'L':
        checkLicence(rest);
        break;
    case 'M':
        checkTyped(mistyped(rest));
        break;
    default:
        checkTyped(QString::fromUtf8(rest));
    }
    return 0;
}
