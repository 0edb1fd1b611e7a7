#pragma once
#include <QtCore/qglobal.h>

// Marks what a host may call. Everything else in the shared library is hidden.
#if defined(KWGANTT_BUILDING_LIBRARY)
#define KWGANTT_EXPORT Q_DECL_EXPORT
#else
#define KWGANTT_EXPORT Q_DECL_IMPORT
#endif
