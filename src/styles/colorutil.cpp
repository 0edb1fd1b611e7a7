#include "styles/colorutil.h"
#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Triple = std::array<double, 3>;

double unit(double value)
{
    return value > 0 ? std::min(value, 1.0) : 0; // not a number: 0
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double encoded(double light)
{
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

Triple linearOf(const QColor &color)
{
    return {linear(color.redF()), linear(color.greenF()), linear(color.blueF())};
}

QColor fromLinear(const Triple &light)
{
    return QColor::fromRgbF(unit(encoded(unit(light[0]))), unit(encoded(unit(light[1]))),
                            unit(encoded(unit(light[2]))));
}

double luminanceOf(const Triple &light)
{
    return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

Triple times(const double (&matrix)[3][3], const Triple &v)
{
    Triple result;
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = matrix[i][0] * v[0] + matrix[i][1] * v[1] + matrix[i][2] * v[2];
    return result;
}

// Light as it arrives when one kind of cones is missing altogether, after Machado, Oliveira and Fernandes
// (2009).
constexpr double withoutRed[3][3] = {
    {0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}};
constexpr double withoutGreen[3][3] = {
    {0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}};
constexpr double withoutBlue[3][3] = {
    {1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}};

// CIE L*a*b*, relative to the white of sRGB.
Triple labOf(const QColor &color)
{
    static constexpr double toXyz[3][3] = {{0.4124564, 0.3575761, 0.1804375},
                                           {0.2126729, 0.7151522, 0.0721750},
                                           {0.0193339, 0.1191920, 0.9503041}};
    static constexpr Triple white = {0.95047, 1.0, 1.08883};
    Triple xyz = times(toXyz, linearOf(color));
    for (std::size_t i = 0; i < 3; ++i) {
        const double share = xyz[i] / white[i];
        xyz[i] = share > 216.0 / 24389 ? std::cbrt(share) : (24389.0 / 27 * share + 16) / 116;
    }
    return {116 * xyz[1] - 16, 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
}
}

ColorUtil::Hsl ColorUtil::toHsl(const QColor &color)
{
    const double red = color.redF(), green = color.greenF(), blue = color.blueF();
    const double most = std::max({red, green, blue}), least = std::min({red, green, blue});
    const double range = most - least;
    Hsl hsl;
    hsl.lightness = (most + least) / 2;
    if (range == 0)
        return hsl;
    hsl.saturation = range / (1 - std::fabs(2 * hsl.lightness - 1));
    if (most == red)
        hsl.hue = 60 * (green - blue) / range;
    else if (most == green)
        hsl.hue = 60 * (blue - red) / range + 120;
    else
        hsl.hue = 60 * (red - green) / range + 240;
    if (hsl.hue < 0)
        hsl.hue += 360;
    return hsl;
}

QColor ColorUtil::fromHsl(const Hsl &hsl)
{
    const double lightness = unit(hsl.lightness);
    const double chroma = (1 - std::fabs(2 * lightness - 1)) * unit(hsl.saturation);
    const double hue = std::isfinite(hsl.hue) ? hsl.hue - 360 * std::floor(hsl.hue / 360) : 0;
    const double sector = hue / 60;
    const double second = chroma * (1 - std::fabs(std::fmod(sector, 2) - 1));
    static constexpr int order[6][3] = {{0, 1, 2}, {1, 0, 2}, {2, 0, 1}, {2, 1, 0}, {1, 2, 0}, {0, 2, 1}};
    const Triple parts = {chroma, second, 0};
    const int(&place)[3] = order[std::min(int(sector), 5)];
    const double base = lightness - chroma / 2;
    const auto channel = [&](int i) { return unit(parts[std::size_t(place[i])] + base); };
    return QColor::fromRgbF(channel(0), channel(1), channel(2));
}

QColor ColorUtil::tinted(const QColor &color, double tint)
{
    if (!color.isValid() || !(tint != 0))
        return color;
    const double share = std::max(-1.0, std::min(tint, 1.0));
    if (!std::isfinite(share))
        return color;
    Hsl hsl = toHsl(color);
    hsl.lightness = share < 0 ? hsl.lightness * (1 + share) : hsl.lightness * (1 - share) + share;
    QColor result = fromHsl(hsl);
    result.setAlpha(color.alpha());
    return result;
}

QColor ColorUtil::blend(const QColor &over, const QColor &under, double opacity)
{
    const double share = unit(opacity) * over.alphaF();
    const auto channel = [share](double above, double below) {
        return unit(above * share + below * (1 - share));
    };
    return QColor::fromRgbF(channel(over.redF(), under.redF()), channel(over.greenF(), under.greenF()),
                            channel(over.blueF(), under.blueF()));
}

double ColorUtil::luminance(const QColor &color)
{
    return luminanceOf(linearOf(color));
}

double ColorUtil::contrast(const QColor &one, const QColor &two)
{
    constexpr double glare = 0.05; // what a screen reflects of the room
    const double first = luminance(one) + glare, second = luminance(two) + glare;
    return std::max(first, second) / std::min(first, second);
}

QColor ColorUtil::textOn(const QColor &ground, const QColor &dark, const QColor &light)
{
    return contrast(dark, ground) >= contrast(light, ground) ? dark : light;
}

QColor ColorUtil::withContrast(const QColor &color, const QColor &ground, double wanted)
{
    if (contrast(color, ground) >= wanted)
        return color;
    const Hsl original = toHsl(color);
    const double end = textOn(ground) == QColor(Qt::black) ? 0 : 1;
    // The contrast grows with the way towards that end, once the colour is on the right side of the ground.
    const auto at = [&](double share) {
        Hsl hsl = original;
        hsl.lightness += (end - hsl.lightness) * share;
        return QColor(fromHsl(hsl).rgb()); // as it will be written, in eight bits a channel
    };
    double near = 0, far = 1;
    for (int i = 0; i < 20; ++i) {
        const double middle = (near + far) / 2;
        (contrast(at(middle), ground) >= wanted ? far : near) = middle;
    }
    return at(far);
}

QColor ColorUtil::asSeen(const QColor &color, Vision vision)
{
    const Triple light = linearOf(color);
    switch (vision) {
    case Vision::Full:
        break;
    case Vision::NoRed:
        return fromLinear(times(withoutRed, light));
    case Vision::NoGreen:
        return fromLinear(times(withoutGreen, light));
    case Vision::NoBlue:
        return fromLinear(times(withoutBlue, light));
    case Vision::Grey: {
        const double grey = luminanceOf(light);
        return fromLinear({grey, grey, grey});
    }
    }
    return color;
}

double ColorUtil::distance(const QColor &one, const QColor &two, Vision vision)
{
    const Triple a = labOf(asSeen(one, vision)), b = labOf(asSeen(two, vision));
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

QString ColorUtil::toHex(const QColor &color)
{
    if (!color.isValid())
        return QString();
    QString text = color.name(QColor::HexRgb);
    if (color.alpha() != 255)
        text += QString::number(color.alpha() + 256, 16).mid(1);
    return text;
}

QColor ColorUtil::fromHex(const QString &text)
{
    if (!text.startsWith(QLatin1Char('#')))
        return QColor();
    QString digits = text.mid(1);
    for (const QChar digit : qAsConst(digits)) {
        const ushort c = digit.unicode();
        if (!((c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F')))
            return QColor();
    }
    if (digits.size() == 3)
        digits = digits.mid(0, 1).repeated(2) + digits.mid(1, 1).repeated(2) + digits.mid(2, 1).repeated(2);
    if (digits.size() != 6 && digits.size() != 8)
        return QColor();
    const auto channel = [&](int i) { return digits.mid(2 * i, 2).toInt(nullptr, 16); };
    return QColor(channel(0), channel(1), channel(2), digits.size() == 8 ? channel(3) : 255);
}
