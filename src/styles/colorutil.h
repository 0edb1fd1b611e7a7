#pragma once
#include "kwgantt_export.h"
#include <QColor>
#include <QString>

// What colours have in common: sRGB throughout, opaque unless said otherwise.
class KWGANTT_EXPORT ColorUtil
{
public:
    struct Hsl
    {
        double hue = 0;        // degrees, 0..360
        double saturation = 0; // 0..1
        double lightness = 0;  // 0..1
    };
    // How somebody sees: as most do, without one kind of cones, or on a sheet printed in grey.
    enum class Vision { Full, NoRed, NoGreen, NoBlue, Grey };

    static Hsl toHsl(const QColor &color);
    static QColor fromHsl(const Hsl &hsl); // values out of range are clamped, the hue wraps
    // The spreadsheets' rule: a negative tint takes that share of the lightness away, a positive one goes
    // that share of the way to white. Clamped to -1..1; 0 changes nothing.
    static QColor tinted(const QColor &color, double tint);
    // `over` on `under`, as thick as `opacity` (0..1) times its own alpha; the result is opaque.
    static QColor blend(const QColor &over, const QColor &under, double opacity);

    static double luminance(const QColor &color);                 // 0..1, relative to white
    static double contrast(const QColor &one, const QColor &two); // 1..21
    // The one of the two that is easier to read on the ground.
    static QColor textOn(const QColor &ground, const QColor &dark = Qt::black,
                         const QColor &light = Qt::white);
    // The colour, made darker on a light ground and lighter on a dark one until it reaches the contrast;
    // black or white when nothing else does.
    static QColor withContrast(const QColor &color, const QColor &ground, double contrast);

    static QColor asSeen(const QColor &color, Vision vision);
    // How different two colours look: 2 is just noticeable, black and white are 100 apart.
    static double distance(const QColor &one, const QColor &two, Vision vision = Vision::Full);

    static QString
    toHex(const QColor &color); // "#4472c4", with the alpha behind it unless opaque; empty for none
    // "#rgb", "#rrggbb", "#rrggbbaa"; invalid for anything else.
    static QColor fromHex(const QString &text);
};
