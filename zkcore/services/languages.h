#pragma once

#include "zkcore/base/export.h"

#include <QString>
#include <QStringList>

/// The language of the program: translations of texts, the locale of numbers and dates, the direction of reading. What
/// libraries and packages say is compiled in (":/zk/translations"); a package in the user's folder may bring
/// translations of its own, "translations/NAME_LANGUAGE.qm" below its folder. GUI thread only.
class ZKCORE_EXPORT Languages
{
public:
    /// Codes of the languages that the texts are translated to ("ar", "de", ...), and "en", in which they are written.
    static QStringList available();

    /// Makes the program speak the language of a locale ("de_AT"; a null text stands for the system's): installs the
    /// translators in place of those that an earlier call installed, and sets the default locale and the direction of
    /// reading. A language that is not available, or none, is English, with the numbers of its locale.
    ///
    /// Widgets take most texts and their locale over when they are made. Those that are there get
    /// QEvent::LanguageChange, which few of them follow: make windows and forms anew after the call.
    static void use(const QString& localeName);
    /// The code of the language in use.
    static QString current();
};
