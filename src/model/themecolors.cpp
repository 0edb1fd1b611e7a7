#include "model/kwdocument.h"

namespace {

constexpr int colorCount = 12;

const char *const colorNames[colorCount] = {"dk1",     "lt1",     "dk2",     "lt2",
                                            "accent1", "accent2", "accent3", "accent4",
                                            "accent5", "accent6", "hlink",   "folHlink"};

struct Theme
{
    const char *name;
    QRgb colors[colorCount];
};

// The order is stored in documents: their theme is an index into this table.
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

void KWDocument::initThemeColor()
{
    m_themeColors.clear();
    for (const Theme &theme : themes) {
        ThemeColor palette;
        palette.name = QString::fromLatin1(theme.name);
        for (const QRgb color : theme.colors)
            palette.colors.append(QColor(color));
        m_themeColors.append(palette);
    }
}

// A theme that is not in the palette, as a file may name it, shows as the first one.
QColor KWDocument::themeColor(int index) const
{
    if (m_themeColors.isEmpty())
        return QColor();
    const bool known = ThemeIndex >= 0 && ThemeIndex < m_themeColors.size();
    return m_themeColors.at(known ? ThemeIndex : 0).colors.value(index);
}

const QStringList &KWDocument::themeColorNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const char *name : colorNames)
            list.append(QString::fromLatin1(name));
        return list;
    }();
    return names;
}
