#include "styles/themepalette.h"
#include "styles/colorutil.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"

namespace {

constexpr const char *names[ThemePalette::colorCount] = {"dk1",     "lt1",     "dk2",     "lt2",
                                                         "accent1", "accent2", "accent3", "accent4",
                                                         "accent5", "accent6", "hlink",   "folHlink"};

struct Theme
{
    const char *name;
    QRgb colors[ThemePalette::colorCount];
};

constexpr Theme themes[] = {
    {"Office",
     {0x000000, 0xffffff, 0x44546a, 0xe7e6e6, 0x4472c4, 0xed7d31, 0xa5a5a5, 0xffc000, 0x5b9bd5, 0x70ad47,
      0x0563c1, 0x954f72}},
    {"Slate",
     {0x1c2430, 0xffffff, 0x37475a, 0xe9edf1, 0x3b6ea5, 0xc8623a, 0x7a8794, 0xd9a520, 0x4fa3a5, 0x7b9e4b,
      0x1f5fae, 0x6b4a86}},
    {"Forest",
     {0x17211a, 0xffffff, 0x2e4a36, 0xedf2e8, 0x3f7d4e, 0xb5762a, 0x8a8f78, 0xd8b13a, 0x3f8f8a, 0x93a93c,
      0x23698f, 0x77527a}},
    {"Sunset",
     {0x261a1d, 0xffffff, 0x5a3340, 0xf7ece6, 0xc44e52, 0xe08a3c, 0x9c8a84, 0xf0c04a, 0x7d6bb0, 0x5f9a78,
      0x2f66b3, 0x8c4775}},
};
}

const QStringList &ThemePalette::colorNames()
{
    static const QStringList list = [] {
        QStringList all;
        for (const char *each : names)
            all.append(QString::fromLatin1(each));
        return all;
    }();
    return list;
}

const QList<ThemePalette> &ThemePalette::builtIn()
{
    static const QList<ThemePalette> list = [] {
        QList<ThemePalette> all;
        for (const Theme &theme : themes) {
            ThemePalette palette;
            palette.name = QString::fromLatin1(theme.name);
            for (const QRgb color : theme.colors)
                palette.colors.append(QColor(color));
            all.append(palette);
        }
        return all;
    }();
    return list;
}

void ThemePalette::saveTo(QDomElement &parent) const
{
    DomSink sink(parent);
    sink.open("Theme");
    sink.attribute("Name", name);
    for (int i = 0; i < colorCount && i < colors.size(); ++i)
        sink.attribute(names[i], ColorUtil::toHex(colors[i]));
    sink.close();
}

void ThemePalette::parse(const QDomElement &element)
{
    DomSource source(element);
    xmltext::read(source.text("Name"), name);
    while (colors.size() < colorCount)
        colors.append(QColor(Qt::black));
    for (int i = 0; i < colorCount; ++i) {
        const QColor color = ColorUtil::fromHex(source.text(names[i]).toString());
        if (color.isValid())
            colors[i] = color;
    }
}
