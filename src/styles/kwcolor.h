#pragma once
#include "kwgantt_export.h"
#include <QColor>
#include <QDomElement>

class KWDocument;
struct ThemePalette;

// A colour by its value or as one of the theme's, which follows when the document takes another theme.
class KWGANTT_EXPORT KWColor
{
public:
    enum Type { None, Rgb, Theme };

    Type type = None;
    QRgb rgb = 0;          // 0xrrggbb
    qint32 themeIndex = 0; // 0..11, see ThemePalette
    double tint = 0;       // -1..1, see ColorUtil::tinted; for colours of both kinds
    double alpha = 1;      // 0..1

    KWColor() = default;
    KWColor(const QColor &color); // with its alpha; none for an invalid one
    static KWColor fromTheme(int index, double tint = 0);

    bool isNone() const { return type == None; }
    // What is to be seen; invalid for none, for a place that the palette does not have and, without a palette
    // or a document, for a theme's colour.
    QColor color(const ThemePalette &palette) const;
    QColor color(const KWDocument *document) const; // of the chosen theme (model/themecolors.cpp)
    QColor color() const;

    // Appends an element: "Type", "Rgb" or "Index" as that type needs, "Tint" and "Alpha".
    void saveTo(QDomElement &parent, const char *element = "Color") const;
    // Absent attributes, and types and values that there are not, leave their field as it was.
    void parse(const QDomElement &element);

    bool operator==(const KWColor &other) const;
    bool operator!=(const KWColor &other) const { return !(*this == other); }

private:
    QColor finished(QColor base) const;
};
