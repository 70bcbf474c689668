#pragma once

#include <QtGlobal>

#ifdef ZKEDITOR_BUILD
#define ZKEDITOR_EXPORT Q_DECL_EXPORT
#else
#define ZKEDITOR_EXPORT Q_DECL_IMPORT
#endif
