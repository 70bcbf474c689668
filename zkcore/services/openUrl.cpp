// Opens addresses outside the program, but only those of harmless kinds.
#include "zkcore/services/openUrl.h"

#include <QDesktopServices>
#include <QStringList>
#include <QUrl>
#include <utility>

namespace {

UrlOpener& installedUrlOpener()
{
    static UrlOpener opener;
    return opener;
}

} // namespace

bool openUrl(const QUrl& url)
{
    static const QStringList schemes = {QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto"),
                                        QStringLiteral("file")};
    if (!url.isValid() || !schemes.contains(url.scheme())) {
        qWarning("openUrl: \"%s\" is not opened, only http, https, mailto and file are", qPrintable(url.toString()));
        return false;
    }
    const UrlOpener& opener = installedUrlOpener();
    const bool opened = opener ? opener(url) : QDesktopServices::openUrl(url);
    if (!opened)
        qWarning("openUrl: \"%s\" could not be opened", qPrintable(url.toString()));
    return opened;
}

UrlOpener setUrlOpener(UrlOpener opener)
{
    return std::exchange(installedUrlOpener(), std::move(opener));
}
