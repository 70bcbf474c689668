// Everything a report needs is prepared while the program is healthy. When it crashes, the facts at hand are written
// first, with nothing but system calls; the readable back-trace, which takes memory and reads files, comes last.
#include "zkcore/services/crashHandler.h"

#include "zkcore/services/crashReportWriter.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QSysInfo>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <exception>
#include <execinfo.h>
#include <fcntl.h>
#include <mutex>
#include <ostream>
#include <pthread.h>
#include <streambuf>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>

#define BACKWARD_HAS_DW 1
#include <backward.hpp>

namespace {

constexpr std::array<int, 5> fatalSignals = {SIGSEGV, SIGABRT, SIGFPE, SIGILL, SIGBUS};
constexpr size_t alternateStackSize = 8 * 1024 * 1024;
constexpr size_t messageLimit = 16 * 1024;
constexpr int mostFrames = 64;
// Seconds after which a report that hangs, on a lock of the damaged program say, is given up.
constexpr unsigned reportTimeout = 20;

/// What reports are made of. Static and without constructors, so that it is there from the first to the last
/// instruction.
struct CrashState
{
    char application[256];
    char version[64];
    char system[128];
    char document[4096];
    char message[messageLimit + 1];
    char log[CrashHandler::logLimit];
    unsigned long long logged; // bytes ever appended to the log

    char folder[PATH_MAX];
    char pathStart[PATH_MAX]; // of the report; the process id and ".txt" follow
    size_t nameStart;         // of the file's name in it
    char markerPath[PATH_MAX];
    char surplusPath[PATH_MAX]; // a report that makes room for the new one; may be empty
};

constinit CrashState crashState = {};
constinit std::mutex crashTextMutex;
constinit std::atomic<pid_t> crashingThread = 0;
volatile sig_atomic_t crashSignal = 0;
volatile sig_atomic_t crashDescriptor = -1;

pid_t currentThread()
{
    return static_cast<pid_t>(syscall(SYS_gettid));
}

/// Copies as much of the text as fits, in whole characters.
void storeCrashText(char* target, size_t room, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    size_t length = std::min(room - 1, static_cast<size_t>(bytes.size()));
    if (length < static_cast<size_t>(bytes.size()))
        while (length > 0 && (bytes[static_cast<qsizetype>(length)] & 0xc0) == 0x80)
            --length;
    memcpy(target, bytes.constData(), length);
    target[length] = '\0';
}

bool isContinuationByte(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
}

/// The log's oldest part and its newest, one after the other in the ring.
struct LogParts
{
    const char* first;
    size_t firstLength;
    const char* second;
    size_t secondLength;
};

LogParts logParts()
{
    constexpr size_t size = CrashHandler::logLimit;
    const unsigned long long logged = crashState.logged;
    if (logged <= size)
        return {crashState.log, static_cast<size_t>(logged), crashState.log, 0};
    const size_t newest = static_cast<size_t>(logged % size);
    size_t start = newest;
    // Half a character may be left where the oldest text was overwritten.
    while (start < size && start < newest + 4 && isContinuationByte(crashState.log[start]))
        ++start;
    return {crashState.log + start, size - start, crashState.log, newest};
}

[[noreturn]] void dieBy(int signal)
{
    struct sigaction usual = {};
    usual.sa_handler = SIG_DFL;
    sigaction(signal, &usual, nullptr);
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, signal);
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    raise(signal);
    _exit(128 + signal);
}

void onReportTimeout(int)
{
    CrashReportWriter(crashDescriptor) << "\nThe back-trace was given up: it took too long.\n";
    dieBy(crashSignal);
}

void limitReportTime()
{
    struct sigaction action = {};
    action.sa_handler = &onReportTimeout;
    action.sa_flags = SA_ONSTACK;
    sigaction(SIGALRM, &action, nullptr);
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGALRM);
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    alarm(reportTimeout);
}

/// Standard error when there is no place for the report.
int openReport(char (&path)[PATH_MAX])
{
    path[0] = '\0';
    if (crashState.pathStart[0] == '\0')
        return STDERR_FILENO;
    appendText(path, sizeof path, crashState.pathStart);
    appendNumber(path, sizeof path, static_cast<unsigned long>(getpid()));
    appendText(path, sizeof path, ".txt");
    if (crashState.surplusPath[0] != '\0')
        unlink(crashState.surplusPath);
    constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
    int descriptor = open(path, flags, 0600);
    if (descriptor < 0 && errno == ENOENT && mkdir(crashState.folder, 0700) == 0)
        descriptor = open(path, flags, 0600);
    if (descriptor >= 0)
        return descriptor;
    path[0] = '\0';
    return STDERR_FILENO;
}

/// So that the next start can tell of the report.
void leaveMarker(const char* name)
{
    const int descriptor = open(crashState.markerPath, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return;
    CrashReportWriter(descriptor) << name;
    close(descriptor);
}

void writeFacts(CrashReportWriter& report, int signal, const siginfo_t* info)
{
    report << crashState.application << " " << crashState.version << " crashed\n";
    (report << "Time: ").time(::time(nullptr)) << "\n";
    report << "System: " << crashState.system << "\n";
    report << "Process: " << static_cast<long>(getpid()) << ", thread " << static_cast<long>(currentThread()) << "\n";
    report << "Signal: " << static_cast<long>(signal) << " (" << fatalSignalName(signal) << "), code "
           << static_cast<long>(info->si_code);
    if (signal != SIGABRT && info->si_code > 0)
        report << ", address " << static_cast<const void*>(info->si_addr);
    report << "\nDocument: " << (crashState.document[0] ? crashState.document : "none") << "\n";
    report << "Message: " << (crashState.message[0] ? crashState.message : "none") << "\n";
    const LogParts log = logParts();
    (report << "\nLog:\n").bytes(log.first, log.firstLength).bytes(log.second, log.secondLength);
}

/// Unwinds only; the addresses are enough to find the lines later.
void writeAddresses(CrashReportWriter& report, int descriptor)
{
    report << "\nAddresses:\n";
    void* frames[mostFrames];
    const int count = backtrace(frames, mostFrames);
    backtrace_symbols_fd(frames, count, descriptor);
}

/// Hands what is streamed to the descriptor at once.
class DescriptorBuffer : public std::streambuf
{
public:
    explicit DescriptorBuffer(int descriptor) : m_writer(descriptor) {}

protected:
    int_type overflow(int_type character) override
    {
        const char byte = traits_type::to_char_type(character);
        m_writer.bytes(&byte, 1);
        return character;
    }

    std::streamsize xsputn(const char* bytes, std::streamsize length) override
    {
        m_writer.bytes(bytes, static_cast<size_t>(length));
        return length;
    }

private:
    CrashReportWriter m_writer;
};

void* faultingInstruction(const void* context)
{
    const auto* user = static_cast<const ucontext_t*>(context);
#if defined(__x86_64__)
    return reinterpret_cast<void*>(user->uc_mcontext.gregs[REG_RIP]);
#elif defined(__aarch64__)
    return reinterpret_cast<void*>(user->uc_mcontext.pc);
#else
    Q_UNUSED(user)
    return nullptr;
#endif
}

/// With functions, files and lines. Takes memory, so it may fail in a damaged program.
void writeBackTrace(CrashReportWriter& report, int descriptor, const siginfo_t* info, void* context)
{
    report << "\nBack-trace:\n";
    backward::StackTrace trace;
    void* instruction = faultingInstruction(context);
    if (instruction)
        trace.load_from(instruction, mostFrames, context, info->si_addr);
    else
        trace.load_here(mostFrames, context, info->si_addr);
    DescriptorBuffer buffer(descriptor);
    std::ostream stream(&buffer);
    backward::Printer printer;
    printer.snippet = false;
    printer.address = true;
    printer.color_mode = backward::ColorMode::never;
    printer.print(trace, stream);
}

void onFatalSignal(int signal, siginfo_t* info, void* context)
{
    pid_t nobody = 0;
    if (!crashingThread.compare_exchange_strong(nobody, currentThread())) {
        // Another thread crashed as well: the one at work ends the process.
        while (crashingThread != currentThread())
            pause();
        // The report itself crashed; what is written stays.
        CrashReportWriter(crashDescriptor)
            << "\nThe report ends here: " << fatalSignalName(signal) << " while it was written.\n";
        dieBy(crashSignal);
    }
    crashSignal = signal;
    char path[PATH_MAX];
    const int descriptor = openReport(path);
    crashDescriptor = descriptor;
    CrashReportWriter report(descriptor);
    writeFacts(report, signal, info);
    if (path[0] != '\0') {
        leaveMarker(path + crashState.nameStart);
        CrashReportWriter(STDERR_FILENO) << crashState.application << " crashed. The report is in " << path << "\n";
    }
    limitReportTime();
    writeAddresses(report, descriptor);
    writeBackTrace(report, descriptor, info, context);
    dieBy(signal);
}

[[noreturn]] void onTerminate()
{
    QString reason = QStringLiteral("The program was terminated.");
    if (const std::exception_ptr exception = std::current_exception()) {
        try {
            std::rethrow_exception(exception);
        } catch (const std::exception& caught) {
            reason = QStringLiteral("Uncaught exception: ") + QString::fromLocal8Bit(caught.what());
        } catch (...) {
            reason = QStringLiteral("Uncaught exception of an unknown kind.");
        }
    }
    CrashHandler::setMessage(reason);
    std::abort();
}

/// A stack of its own lets the handler run when the crash was an overflow of the ordinary one.
void provideAlternateStack()
{
    static void* memory = nullptr;
    if (memory)
        return;
    void* mapped = mmap(nullptr, alternateStackSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED)
        return;
    memory = mapped;
    stack_t stack = {};
    stack.ss_sp = memory;
    stack.ss_size = alternateStackSize;
    sigaltstack(&stack, nullptr);
}

void takeOverSignals()
{
    provideAlternateStack();
    // The first call loads the unwinder, which must not happen in a handler.
    void* frame[1];
    backtrace(frame, 1);
    struct sigaction action = {};
    action.sa_sigaction = &onFatalSignal;
    // Not deferred: a crash within the handler comes back to it and ends the report instead of the process without a
    // word.
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
    sigemptyset(&action.sa_mask);
    for (const int signal : fatalSignals)
        sigaction(signal, &action, nullptr);
    std::set_terminate(&onTerminate);
}

constexpr QLatin1String markerName("untold");

/// Leaves the newest reports and names the one that has to go when another is written.
QString removeSurplusReports()
{
    const QStringList reports = CrashHandler::reports();
    for (qsizetype i = CrashHandler::reportLimit; i < reports.size(); ++i)
        QFile::remove(reports[i]);
    return reports.size() >= CrashHandler::reportLimit ? reports[CrashHandler::reportLimit - 1] : QString();
}

} // namespace

bool CrashHandler::install(const QString& applicationName, const QString& version)
{
    storeCrashText(crashState.application, sizeof crashState.application, applicationName);
    storeCrashText(crashState.version, sizeof crashState.version, version);
    storeCrashText(crashState.system, sizeof crashState.system,
                   QSysInfo::prettyProductName() + QStringLiteral(", Qt ") + QString::fromLatin1(qVersion()));
    crashState.pathStart[0] = '\0';
    const QString folder = reportFolder();
    const QString start = folder + QStringLiteral("/crash-") +
                          QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss-"));
    const bool ready = QDir().mkpath(folder) && QFile::encodeName(start).size() + 32 < PATH_MAX;
    if (ready) {
        const auto store = [](char(&target)[PATH_MAX], const QString& path) {
            target[0] = '\0';
            appendText(target, sizeof target, QFile::encodeName(path).constData());
        };
        store(crashState.surplusPath, removeSurplusReports());
        store(crashState.folder, folder);
        store(crashState.markerPath, folder + QLatin1Char('/') + markerName);
        crashState.nameStart = static_cast<size_t>(QFile::encodeName(folder).size()) + 1;
        store(crashState.pathStart, start);
    } else {
        qWarning("CrashHandler: reports cannot be written to %s", qPrintable(folder));
    }
    takeOverSignals();
    return ready;
}

void CrashHandler::setMessage(const QString& text)
{
    const std::lock_guard lock(crashTextMutex);
    storeCrashText(crashState.message, sizeof crashState.message, text);
}

QString CrashHandler::message()
{
    const std::lock_guard lock(crashTextMutex);
    return QString::fromUtf8(crashState.message);
}

void CrashHandler::log(const QString& text)
{
    QByteArray line = text.toUtf8();
    line += '\n';
    const std::lock_guard lock(crashTextMutex);
    for (const char byte : std::as_const(line)) {
        crashState.log[crashState.logged % logLimit] = byte;
        ++crashState.logged;
    }
}

QString CrashHandler::logText()
{
    const std::lock_guard lock(crashTextMutex);
    const LogParts parts = logParts();
    return QString::fromUtf8(QByteArray(parts.first, static_cast<qsizetype>(parts.firstLength)) +
                             QByteArray(parts.second, static_cast<qsizetype>(parts.secondLength)));
}

void CrashHandler::setOpenDocument(const QString& name)
{
    const std::lock_guard lock(crashTextMutex);
    storeCrashText(crashState.document, sizeof crashState.document, name);
}

// The sanitizers would report the write in their own way, and end the process in their own way.
__attribute__((no_sanitize("undefined"), no_sanitize("address"))) void CrashHandler::causeSegfault()
{
    int* volatile nowhere = nullptr;
    *static_cast<volatile int*>(nowhere) = 0;
    // Only where that address can be written.
    raise(SIGSEGV);
    std::abort();
}

QString CrashHandler::reportFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/crashes");
}

QStringList CrashHandler::reports()
{
    QStringList paths;
    QFileInfoList files = QDir(reportFolder()).entryInfoList({QStringLiteral("crash-*.txt")}, QDir::Files);
    // File systems tell times in steps of some milliseconds; within one, the later process has the higher number.
    std::sort(files.begin(), files.end(), [](const QFileInfo& a, const QFileInfo& b) {
        const QDateTime timeOfA = a.lastModified();
        const QDateTime timeOfB = b.lastModified();
        return timeOfA != timeOfB ? timeOfA > timeOfB : a.fileName() > b.fileName();
    });
    for (const QFileInfo& file : files)
        paths.append(file.absoluteFilePath());
    return paths;
}

QString CrashHandler::previousCrashReport()
{
    const QString folder = reportFolder();
    QFile marker(folder + QLatin1Char('/') + markerName);
    if (!marker.open(QIODevice::ReadOnly))
        return QString();
    const QString name = QFile::decodeName(marker.read(NAME_MAX));
    marker.remove();
    const QFileInfo report(folder + QLatin1Char('/') + QFileInfo(name).fileName());
    return report.isFile() ? report.absoluteFilePath() : QString();
}
