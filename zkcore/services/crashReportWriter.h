#pragma once

#include <cstddef>
#include <ctime>

/// Writes the text of a crash report straight to a file descriptor. Nothing here takes memory or a lock, so all of it
/// may be called from a signal handler in a process that is damaged.
class CrashReportWriter
{
public:
    explicit CrashReportWriter(int descriptor) : m_descriptor(descriptor) {}

    CrashReportWriter& operator<<(const char* text);
    CrashReportWriter& operator<<(long number);
    /// The address as "0x..." in hexadecimal digits.
    CrashReportWriter& operator<<(const void* address);
    CrashReportWriter& bytes(const char* bytes, size_t length);
    /// The time as "2024-02-29 12:30:00 UTC".
    CrashReportWriter& time(time_t seconds);

private:
    CrashReportWriter& padded(long number, int digits);

    int m_descriptor;
};

/// Appends to a text of limited room, always ended by a zero; what does not fit is left out. For paths put together in
/// a signal handler.
void appendText(char* text, size_t room, const char* more);
void appendNumber(char* text, size_t room, unsigned long number);

/// "SIGSEGV" and so on; "signal" for others.
const char* fatalSignalName(int signal);
