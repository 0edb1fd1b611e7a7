#pragma once
#include "kwgantt_export.h"
#include <QSize>
#include <QSizeF>
#include <QString>

// Lengths in the suite's units, the screen scale and the predefined pages.
class KWGANTT_EXPORT UnitUtil
{
public:
    static constexpr unsigned int unitCount = 14; // codes 0 to 13

    static bool s_inited;
    static double s_pixelRatio;
    static int s_cacheWidth;
    static int s_cacheHeight;
    static double s_dpiScale;
    static QSize s_screenSize;
    static double s_pixPerPt;
    static double s_pixPerMM;
    static double s_pixPerMile;
    static double s_pixPerDidot;
    static double s_logicalDpi;

    static double dpiScale96();
    static double dpiScale();
    static double pixelToUnit(double pixels, unsigned int code);
    static double unitToPixel(double value, unsigned int code);
    static double pixelToUnit(double pixels, const QString &unit);
    static double unitToPixel(double value, const QString &unit);
    static QString unitStr(unsigned int code);
    static void initScreen(double ratio, double pixelRatio, const QSizeF &screenSize);
    static double from7Val(double value);
    static QString incheValtoFeetIncheStr(double inches);
    static QString feetValtoFeetIncheStr(double feet);
    // Fills the size in pixels and in the page's own unit; returns that unit. An index above 60 is A4.
    static unsigned int preDefinedPage(unsigned int index, QSizeF &pixelSize, QSizeF &unitSize);
};
