#pragma once
#include <QtCore/qglobal.h>

#if defined(KWBASE_BUILDING_LIBRARY)
#define KWBASE_EXPORT Q_DECL_EXPORT
#else
#define KWBASE_EXPORT Q_DECL_IMPORT
#endif
