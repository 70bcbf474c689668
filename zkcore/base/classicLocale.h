#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <clocale>
#include <locale.h> // NOLINT: newlocale and uselocale are POSIX

/// While it lives, the C library reads and writes numbers with '.' in this thread, whatever the user's locale: for
/// libraries that read files with strtod.
class ClassicLocale
{
public:
    ClassicLocale() : m_previous(uselocale(classic())) {}
    ~ClassicLocale() { uselocale(m_previous); }
    ClassicLocale(const ClassicLocale&) = delete;
    ClassicLocale& operator=(const ClassicLocale&) = delete;

private:
    static locale_t classic()
    {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t m_previous;
};
#else
/// Programs start in the classic locale here, and nothing changes it.
class ClassicLocale
{
public:
    ClassicLocale() {}
    ~ClassicLocale() {}
};
#endif
