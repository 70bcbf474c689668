// Formatting without the C library's formatting, which may take locks and memory.
#include "zkcore/services/crashReportWriter.h"

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <unistd.h>

namespace {

constexpr size_t mostDigits = 24;

/// The digits of a number, ended by a zero, in the end of a buffer.
const char* digitsOf(unsigned long number, unsigned long base, char (&buffer)[mostDigits])
{
    char* digit = buffer + mostDigits - 1;
    *digit = '\0';
    do {
        *--digit = "0123456789abcdef"[number % base];
        number /= base;
    } while (number != 0);
    return digit;
}

} // namespace

CrashReportWriter& CrashReportWriter::bytes(const char* bytes, size_t length)
{
    while (length > 0) {
        const ssize_t written = write(m_descriptor, bytes, length);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            break;
        bytes += written;
        length -= static_cast<size_t>(written);
    }
    return *this;
}

CrashReportWriter& CrashReportWriter::operator<<(const char* text)
{
    return bytes(text, strlen(text));
}

CrashReportWriter& CrashReportWriter::operator<<(long number)
{
    char buffer[mostDigits];
    if (number < 0)
        bytes("-", 1);
    return *this << digitsOf(number < 0 ? 0ul - static_cast<unsigned long>(number) : static_cast<unsigned long>(number),
                             10, buffer);
}

CrashReportWriter& CrashReportWriter::operator<<(const void* address)
{
    char buffer[mostDigits];
    return *this << "0x" << digitsOf(reinterpret_cast<uintptr_t>(address), 16, buffer);
}

CrashReportWriter& CrashReportWriter::padded(long number, int digits)
{
    for (long limit = 10; digits > 1; --digits, limit *= 10)
        if (number < limit)
            bytes("0", 1);
    return *this << number;
}

CrashReportWriter& CrashReportWriter::time(time_t seconds)
{
    const long day = static_cast<long>(seconds / 86400);
    const long second = static_cast<long>(seconds % 86400);
    // Days are counted from 1 March of the year 0, so that the leap day is the last of its year.
    const long shifted = day + 719468;
    const long era = shifted / 146097;
    const long dayOfEra = shifted % 146097;
    const long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long shiftedMonth = (5 * dayOfYear + 2) / 153;
    const long month = shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9;
    const long year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    padded(year, 4) << "-";
    padded(month, 2) << "-";
    padded(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1, 2) << " ";
    padded(second / 3600, 2) << ":";
    padded(second / 60 % 60, 2) << ":";
    return padded(second % 60, 2) << " UTC";
}

void appendText(char* text, size_t room, const char* more)
{
    size_t length = strlen(text);
    while (length + 1 < room && *more)
        text[length++] = *more++;
    text[length] = '\0';
}

void appendNumber(char* text, size_t room, unsigned long number)
{
    char buffer[mostDigits];
    appendText(text, room, digitsOf(number, 10, buffer));
}

const char* fatalSignalName(int signal)
{
    switch (signal) {
    case SIGSEGV:
        return "SIGSEGV";
    case SIGABRT:
        return "SIGABRT";
    case SIGFPE:
        return "SIGFPE";
    case SIGILL:
        return "SIGILL";
    case SIGBUS:
        return "SIGBUS";
    default:
        return "signal";
    }
}
