#pragma once
#include "chart/plan.h"
#include <QHash>
#include <QString>
#include <pango/pangocairo.h>
#include <vector>

// Measures and draws single lines of text; the one place that knows how wide a text is.
//
// Sizes are pixels at 96 dpi and do not depend on what is drawn on: nothing is hinted. Short texts are kept
// as they were laid out, since the numbers and dates of a table repeat.
class TextShaper
{
public:
    // An empty family of a font means `family`, and where that is empty too the machine's sans serif.
    TextShaper(const std::vector<chart::Font> &fonts, const QString &family);
    ~TextShaper();
    TextShaper(const TextShaper &) = delete;
    TextShaper &operator=(const TextShaper &) = delete;

    static bool hasFonts(); // of the machine
    // The number of the font, of an equal one that is there. From some number on the first one.
    int addFont(const chart::Font &font);
    const std::vector<chart::Font> &fonts() const { return m_fonts; }

    double width(const QString &text, int font);
    // The baseline begins at (x, y); the colour is the context's. What it draws may be kept back until
    // `finish`, which comes before anything else is drawn or the colour changes: texts one after the other in
    // the same font are one operation.
    void draw(cairo_t *context, double x, double y, const QString &text, int font);
    void finish(cairo_t *context);

    // Characters without a picture in any font: how many texts had some, and the first of them.
    int textsWithGaps() const { return m_textsWithGaps; }
    const QString &firstTextWithGaps() const { return m_firstTextWithGaps; }

private:
    struct Key
    {
        QString text;
        int font;
        bool operator==(const Key &other) const { return font == other.font && text == other.text; }
    };
    friend uint qHash(const Key &key, uint seed)
    {
        return ::qHash(key.text, seed) ^ uint(key.font) * 2654435761u;
    }
    // What one call of cairo's draws.
    struct Glyphs
    {
        cairo_scaled_font_t *font = nullptr;
        std::vector<cairo_glyph_t> glyphs;
        std::vector<cairo_text_cluster_t> clusters;
        QByteArray bytes; // UTF-8
    };
    struct Shaped
    {
        Glyphs plain;                  // of a text in one font from left to right, a glyph for each character
        PangoLayout *layout = nullptr; // of any other
        double width = 0;
    };
    using Generation = QHash<Key, Shaped>;
    void append(const chart::Font &font);
    bool shapePlain(Shaped &shaped, const QString &text, int font) const;
    void shapeAny(Shaped &shaped, const QString &text, int font);
    const Shaped &shaped(const QString &text, int font);
    static void forget(Generation &generation);

    PangoContext *m_context;
    QString m_family;
    std::vector<chart::Font> m_fonts;
    std::vector<PangoFontDescription *> m_descriptions;
    // Texts used lately and those used before: a full generation takes the place of the older one.
    Generation m_young, m_old;
    Glyphs m_waiting; // to be drawn
    int m_textsWithGaps = 0;
    QString m_firstTextWithGaps;
};
