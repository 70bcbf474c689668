#include "fuzz/support/harness.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/storage/documentFile.h"
#include "zkcore/storage/package.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

namespace {

QTemporaryDir& processFolder()
{
    static QTemporaryDir made;
    return made;
}

/// The toolkit ends the program after a fatal message; before, it is printed. Printing others would cost most of the
/// time.
void swallowMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    static const bool loud = qEnvironmentVariableIsSet("ZK_FUZZ_LOUD");
    if (type == QtFatalMsg || loud)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* variable : {"HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, processFolder().path().toLocal8Bit());
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        qunsetenv(variable);
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale::c());
    static int count = 1;
    static_cast<void>(argc);
    static auto* const application = new QApplication(count, *argv);
    static_cast<void>(application);
    QApplication::setApplicationName(QStringLiteral("zkfuzz"));
    qInstallMessageHandler(swallowMessage);
    Package::all();
    // Classes that have one of everything
    QString error;
    fuzz::require(Package::load(QStringLiteral(ZK_SOURCE_DIR "/tests/data/testkit"), error),
                  "the package of the tests is right", error);
    return 0;
}

void fuzz::require(bool condition, const char* sentence, const QString& detail)
{
    if (condition)
        return;
    std::fprintf(stderr, "not so: %s\n%s\n", sentence, qPrintable(detail));
    std::abort();
}

void fuzz::requirePlaceAndReason(const QString& message, const QString& prefix)
{
    static const QRegularExpression form(QStringLiteral("^[1-9][0-9]*:[0-9]+: ?\\S"));
    require(message.startsWith(prefix) && form.match(message.mid(prefix.size())).hasMatch(),
            "a message says what is wrong and where", message);
}

QByteArray fuzz::bytesOf(const DocumentImpl& document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QString error;
    require(DocumentFile::write(buffer, document, error), "what was loaded can be saved", error);
    return buffer.data();
}

bool fuzz::load(DocumentImpl& document, const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    if (document.loadFrom(buffer, QStringLiteral("fuzz.zkdoc")))
        return true;
    requirePlaceAndReason(document.lastError(), QStringLiteral("fuzz.zkdoc:"));
    return false;
}

QString fuzz::folder()
{
    return processFolder().path();
}

void fuzz::writeFile(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    require(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size(),
            "files of the fuzz target can be written", fileName);
}
