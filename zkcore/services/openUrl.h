#pragma once

#include "zkcore/base/export.h"

#include <functional>

class QUrl;

/// Opens the URL in the system's browser, mail program or whatever handles it. Only http, https, mailto and file are
/// opened; false, with a warning, for any other, for a relative or malformed URL, and when the system has no handler.
ZKCORE_EXPORT bool openUrl(const QUrl& url);

/// What openUrl hands accepted URLs to; false when it could not open one.
using UrlOpener = std::function<bool(const QUrl&)>;

/// Replaces the system's handler, for tests and for hosts that show pages themselves; an empty function restores it.
/// Returns what was set before.
ZKCORE_EXPORT UrlOpener setUrlOpener(UrlOpener opener);
