#include "format/unitutil.h"
#include "format/pagesizes.h"
#include "quarkmanager.h"
#include <cmath>

namespace {

constexpr double pixelsPerPoint = 96.0 / 72;
constexpr double pixelsPerMM = 96 / 25.4;
constexpr double pixelsPerMile = 96.0 * 63360;
constexpr double pixelsPerDidot = 0.375 * pixelsPerMM;
constexpr double inchesPerFoot = 12;
constexpr double smallestInches = 0.000001; // less is not written

double pixelsPerUnit(unsigned int code)
{
    switch (code) {
    case 1:
        return UnitUtil::s_pixPerMM;
    case 2:
        return 10 * UnitUtil::s_pixPerMM;
    case 3:
        return 1000 * UnitUtil::s_pixPerMM;
    case 4:
        return 1000000 * UnitUtil::s_pixPerMM;
    case 5:
        return UnitUtil::s_logicalDpi;
    case 6:
    case 7:
        return 12 * UnitUtil::s_logicalDpi;
    case 8:
        return 36 * UnitUtil::s_logicalDpi;
    case 9:
        return UnitUtil::s_pixPerMile;
    case 10:
        return UnitUtil::s_pixPerPt;
    case 11:
        return 12 * UnitUtil::s_pixPerPt;
    case 12:
        return UnitUtil::s_pixPerDidot;
    case 13:
        return 12 * UnitUtil::s_pixPerDidot;
    default:
        return 1; // pixels, and codes that convert nothing
    }
}

// A name nobody knows gives unitCount, a code that converts nothing. Asking for its key would register it.
unsigned int unitCode(const QString &unit)
{
    const QString name = unit.toLower();
    unsigned int code = 0;
    while (code < UnitUtil::unitCount && UnitUtil::unitStr(code) != name)
        ++code;
    return code;
}

int wholeOf(double value)
{
    return std::isfinite(value) ? static_cast<int>(qBound(-2147483648.0, value, 2147483647.0)) : 0;
}

int roundedHalfUp(double value)
{
    return wholeOf(std::floor(value + 0.5));
}
}

bool UnitUtil::s_inited = false;
double UnitUtil::s_pixelRatio = 1;
int UnitUtil::s_cacheWidth = 4800;
int UnitUtil::s_cacheHeight = 3200;
double UnitUtil::s_dpiScale = 1;
QSize UnitUtil::s_screenSize;
double UnitUtil::s_pixPerPt = pixelsPerPoint;
double UnitUtil::s_pixPerMM = pixelsPerMM;
double UnitUtil::s_pixPerMile = pixelsPerMile;
double UnitUtil::s_pixPerDidot = pixelsPerDidot;
double UnitUtil::s_logicalDpi = 96;

double UnitUtil::dpiScale96()
{
    return 1;
}

double UnitUtil::dpiScale()
{
    return 1;
}

double UnitUtil::pixelToUnit(double pixels, unsigned int code)
{
    return pixels / pixelsPerUnit(code);
}

double UnitUtil::unitToPixel(double value, unsigned int code)
{
    return value * pixelsPerUnit(code);
}

double UnitUtil::pixelToUnit(double pixels, const QString &unit)
{
    return pixelToUnit(pixels, unitCode(unit));
}

double UnitUtil::unitToPixel(double value, const QString &unit)
{
    return unitToPixel(value, unitCode(unit));
}

QString UnitUtil::unitStr(unsigned int code)
{
    return QuarkManager::quarkToString(static_cast<int>(code));
}

// Kept on purpose: s_inited is the host's to set, so a host that does not set it can set the screen again.
void UnitUtil::initScreen(double, double pixelRatio, const QSizeF &screenSize)
{
    if (s_inited)
        return;
    s_pixelRatio = pixelRatio;
    s_cacheWidth = pixelRatio == 0 ? 0 : wholeOf(4800 / pixelRatio);
    s_cacheHeight = pixelRatio == 0 ? 0 : wholeOf(3200 / pixelRatio);
    s_dpiScale = 1;
    s_screenSize = QSize(roundedHalfUp(screenSize.width()), roundedHalfUp(screenSize.height()));
    s_pixPerPt = pixelsPerPoint;
    s_pixPerMM = pixelsPerMM;
    s_pixPerMile = pixelsPerMile;
    s_pixPerDidot = pixelsPerDidot;
}

double UnitUtil::from7Val(double value)
{
    return value * s_pixPerMM * 0.25;
}

QString UnitUtil::incheValtoFeetIncheStr(double inches)
{
    const bool negative = inches < 0;
    double rest = std::fabs(inches);
    QString text;
    if (rest > inchesPerFoot) {
        const double feet = std::floor(rest / inchesPerFoot);
        rest -= feet * inchesPerFoot;
        text = QString::number(feet, 'f', 0) + QLatin1Char('\'');
    }
    if (rest > smallestInches)
        text += QString::number(rest) + QLatin1Char('"');
    if (text.isEmpty())
        return QStringLiteral("0'");
    return negative ? QLatin1Char('-') + text : text;
}

QString UnitUtil::feetValtoFeetIncheStr(double feet)
{
    return incheValtoFeetIncheStr(feet * inchesPerFoot);
}

unsigned int UnitUtil::preDefinedPage(unsigned int index, QSizeF &pixelSize, QSizeF &unitSize)
{
    const pagesizes::Page &page = pagesizes::page(index);
    unitSize = QSizeF(page.width, page.height);
    pixelSize = QSizeF(unitToPixel(page.width, page.unitCode), unitToPixel(page.height, page.unitCode));
    return page.unitCode;
}
