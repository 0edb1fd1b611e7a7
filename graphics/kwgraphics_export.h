#pragma once
#include <QtCore/qglobal.h>

#if defined(KWGRAPHICS_BUILDING_LIBRARY)
#define KWGRAPHICS_EXPORT Q_DECL_EXPORT
#else
#define KWGRAPHICS_EXPORT Q_DECL_IMPORT
#endif
