#pragma once

#include <QtGlobal>

#ifdef ZKCORE_BUILD
#define ZKCORE_EXPORT Q_DECL_EXPORT
#else
#define ZKCORE_EXPORT Q_DECL_IMPORT
#endif
