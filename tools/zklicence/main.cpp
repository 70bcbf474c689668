// Makes key pairs and licence codes, and says what a code holds.
#include "zkeditor/license/licenceCode.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QTextStream>
#include <cstdio>

namespace {

int failWith(const QString& text)
{
    std::fprintf(stderr, "zklicence: %s\n", qPrintable(text));
    return 1;
}

void print(const QString& text)
{
    QTextStream(stdout) << text << Qt::endl;
}

/// A file that nobody else may read, and that is never written over: a lost secret key cannot be made again.
int makeKeys(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        return failWith(QStringLiteral("%1 cannot be made: %2").arg(fileName, file.errorString()));
    const licenceCode::KeyPair pair = licenceCode::makeKeyPair();
    if (file.write(pair.secretKey.toHex() + '\n') < 0 || !file.flush())
        return failWith(QStringLiteral("%1 cannot be written: %2").arg(fileName, file.errorString()));
    print(QString::fromLatin1(pair.publicKey.toHex()));
    return 0;
}

bool readFile(const QString& fileName, QByteArray& content)
{
    QFile file(fileName);
    if (!(fileName == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly)))
        return false;
    content = file.readAll();
    return true;
}

/// No date for an empty text; false for what is none.
bool readDate(const QString& text, QDate& date)
{
    date = QDate::fromString(text, Qt::ISODate);
    return text.isEmpty() || date.isValid();
}

int makeCode(const QCommandLineParser& parser, const QString& keyFile)
{
    QByteArray key;
    if (!readFile(keyFile, key))
        return failWith(QStringLiteral("%1 cannot be read").arg(keyFile));
    Licence licence;
    licence.holder = parser.value(QStringLiteral("holder"));
    licence.product = parser.value(QStringLiteral("product"));
    licence.edition = parser.value(QStringLiteral("edition"));
    bool isNumber = false;
    licence.seats = parser.value(QStringLiteral("seats")).toInt(&isNumber);
    if (!isNumber)
        return failWith(QStringLiteral("--seats wants a number"));
    if (!readDate(parser.value(QStringLiteral("issued")), licence.issued) ||
        !readDate(parser.value(QStringLiteral("expires")), licence.expires))
        return failWith(QStringLiteral("dates are written as 2031-12-31"));
    if (!licence.issued.isValid())
        licence.issued = QDate::currentDate();
    QString error;
    const QString code = licenceCode::sign(licence, QByteArray::fromHex(key.trimmed()), &error);
    if (code.isEmpty())
        return failWith(error);
    print(code);
    return 0;
}

int checkCode(const QCommandLineParser& parser, const QString& codeFile)
{
    QByteArray code;
    if (!readFile(codeFile, code))
        return failWith(QStringLiteral("%1 cannot be read").arg(codeFile));
    const QByteArray key = parser.isSet(QStringLiteral("key"))
                               ? QByteArray::fromHex(parser.value(QStringLiteral("key")).toLatin1())
                               : licenceCode::builtInPublicKey();
    const licenceCode::Check check =
        licenceCode::check(QString::fromUtf8(code), key, parser.value(QStringLiteral("product")), QDate::currentDate());
    if (check.licence.issued.isValid()) {
        print(QStringLiteral("holder: %1\nproduct: %2\nedition: %3\nseats: %4\nissued: %5\nexpires: %6")
                  .arg(check.licence.holder, check.licence.product, check.licence.edition)
                  .arg(check.licence.seats)
                  .arg(check.licence.issued.toString(Qt::ISODate), check.licence.expires.isValid()
                                                                       ? check.licence.expires.toString(Qt::ISODate)
                                                                       : QStringLiteral("never")));
    }
    return check.fault == licenceCode::Check::None ? 0 : failWith(check.message);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zklicence"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Makes key pairs and licence codes.\n\n"
        "  zklicence keys FILE   writes a new secret key into FILE and prints the public one\n"
        "  zklicence code FILE   prints a code signed with the secret key in FILE\n"
        "  zklicence check FILE  says what the code in FILE holds and what is wrong with it (- reads from the input)"));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("keys, code or check"));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("of the secret key, or of the code"));
    parser.addOptions({
        {QStringLiteral("holder"), QStringLiteral("Who may use the product."), QStringLiteral("text")},
        {QStringLiteral("product"), QStringLiteral("The product's code."), QStringLiteral("text"),
         QStringLiteral("ZK")},
        {QStringLiteral("edition"), QStringLiteral("The edition, such as School."), QStringLiteral("text")},
        {QStringLiteral("seats"), QStringLiteral("How many may use it."), QStringLiteral("number"),
         QStringLiteral("1")},
        {QStringLiteral("issued"), QStringLiteral("Date of issue; today unless given."), QStringLiteral("date")},
        {QStringLiteral("expires"), QStringLiteral("Last day; never unless given."), QStringLiteral("date")},
        {QStringLiteral("key"), QStringLiteral("Public key to check with; the built-in one unless given."),
         QStringLiteral("hex")},
    });
    parser.process(application);
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() == 2 && arguments.first() == QLatin1String("keys"))
        return makeKeys(arguments.last());
    if (arguments.size() == 2 && arguments.first() == QLatin1String("code"))
        return makeCode(parser, arguments.last());
    if (arguments.size() == 2 && arguments.first() == QLatin1String("check"))
        return checkCode(parser, arguments.last());
    return failWith(QStringLiteral("say keys, code or check and a file; --help tells more"));
}
