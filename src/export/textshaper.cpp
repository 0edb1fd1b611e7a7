#include "export/textshaper.h"
#include <algorithm>
#include <fontconfig/fontconfig.h>

namespace {

constexpr int generationSize = 2048; // texts; two generations are kept
constexpr double dotsPerInch = 96;
constexpr const char *anySans = "Sans";

// Characters that Chinese shares with Japanese and Korean look differently in each.
bool isChinese(const QString &text)
{
    bool hasHan = false;
    for (const QChar c : text) {
        switch (c.script()) {
        case QChar::Script_Hiragana:
        case QChar::Script_Katakana:
        case QChar::Script_Hangul:
            return false;
        case QChar::Script_Han:
            hasHan = true;
            break;
        default:
            break;
        }
    }
    return hasHan;
}

// Letters and signs of the European scripts, which stand in the order in which they are read. Whatever may
// need more than a look into a font is left to pango's layout.
bool isPlain(const QString &text)
{
    constexpr ushort blank = 0x20, del = 0x7f, noBreakBlank = 0xa0, softHyphen = 0xad, marks = 0x300,
                     greek = 0x370, hebrew = 0x590, ellipsis = 0x2026, dash = 0x2013;
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        const ushort code = c.unicode();
        return (code >= blank && code < del) ||
               (code >= noBreakBlank && code < marks && code != softHyphen) ||
               (code >= greek && code < hebrew) || code == ellipsis || code == dash;
    });
}

// Kept as long as the process: on a machine with many fonts it takes longer to sort them than to draw a plan.
PangoFontMap *fontMap()
{
    static PangoFontMap *const map = pango_cairo_font_map_new();
    return map;
}
}

bool TextShaper::hasFonts()
{
    const FcFontSet *fonts = FcConfigGetFonts(nullptr, FcSetSystem);
    return fonts && fonts->nfont > 0;
}

TextShaper::TextShaper(const std::vector<chart::Font> &fonts, const QString &family)
    : m_context(pango_font_map_create_context(fontMap()))
    , m_family(family)
{
    pango_cairo_context_set_resolution(m_context, dotsPerInch);
    cairo_font_options_t *options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(m_context, options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(m_context, false);
    // The language decides between glyphs of shared characters; the environment must not.
    pango_context_set_language(m_context, pango_language_from_string("en"));
    for (const chart::Font &font : fonts)
        append(font);
}

TextShaper::~TextShaper()
{
    forget(m_young);
    forget(m_old);
    for (PangoFontDescription *font : m_descriptions)
        pango_font_description_free(font);
    g_object_unref(m_context);
}

int TextShaper::addFont(const chart::Font &font)
{
    constexpr std::size_t most = 200; // marks number them by a byte
    for (std::size_t i = 0; i < m_fonts.size(); ++i) {
        chart::Font known = m_fonts[i];
        known.color = font.color;
        if (known == font)
            return int(i);
    }
    if (m_fonts.size() >= most)
        return 0;
    append(font);
    return int(m_fonts.size()) - 1;
}

void TextShaper::append(const chart::Font &font)
{
    PangoFontDescription *description = pango_font_description_new();
    const QString family = !font.family.isEmpty() ? font.family : m_family;
    pango_font_description_set_family(description, family.isEmpty() ? anySans : family.toUtf8().constData());
    constexpr double least = 1, most = 400;
    pango_font_description_set_size(description, int(qBound(least, font.pointSize, most) * PANGO_SCALE));
    pango_font_description_set_weight(description, font.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(description, font.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    m_descriptions.push_back(description);
    m_fonts.push_back(font);
}

void TextShaper::forget(Generation &generation)
{
    for (const Shaped &each : qAsConst(generation)) {
        if (each.layout)
            g_object_unref(each.layout);
        else
            cairo_scaled_font_destroy(each.plain.font);
    }
    generation.clear();
}

// Without the search for places to break lines, which takes longer than the shaping of a cell's text.
bool TextShaper::shapePlain(Shaped &shaped, const QString &text, int font) const
{
    const chart::Font &format = m_fonts[std::size_t(font)];
    if (format.underline || format.strikeOut || !isPlain(text))
        return false;
    Glyphs &plain = shaped.plain;
    plain.bytes = text.toUtf8();
    pango_context_set_font_description(m_context, m_descriptions[std::size_t(font)]);
    PangoAttrList *none = pango_attr_list_new();
    GList *items = pango_itemize_with_base_dir(m_context, PANGO_DIRECTION_LTR, plain.bytes.constData(), 0,
                                               plain.bytes.size(), none, nullptr);
    pango_attr_list_unref(none);
    bool isDone = false;
    if (items && !items->next) {
        const PangoItem *item = static_cast<const PangoItem *>(items->data);
        PangoGlyphString *glyphs = pango_glyph_string_new();
        pango_shape_full(plain.bytes.constData(), plain.bytes.size(), plain.bytes.constData(),
                         plain.bytes.size(), &item->analysis, glyphs);
        isDone = glyphs->num_glyphs == text.size() && PANGO_IS_CAIRO_FONT(item->analysis.font);
        int x = 0, place = 0; // pango's units and bytes
        for (int i = 0; i < glyphs->num_glyphs && isDone; ++i) {
            const PangoGlyphInfo &glyph = glyphs->glyphs[i];
            const int bytes = text.at(i).unicode() < 0x80 ? 1 : text.at(i).unicode() < 0x800 ? 2 : 3;
            isDone = glyphs->log_clusters[i] == place && glyph.glyph != PANGO_GLYPH_EMPTY &&
                     !(glyph.glyph & PANGO_GLYPH_UNKNOWN_FLAG);
            plain.glyphs.push_back({glyph.glyph, double(x + glyph.geometry.x_offset) / PANGO_SCALE,
                                    double(glyph.geometry.y_offset) / PANGO_SCALE});
            plain.clusters.push_back({bytes, 1});
            x += glyph.geometry.width;
            place += bytes;
        }
        shaped.width = double(x) / PANGO_SCALE;
        if (isDone)
            plain.font = cairo_scaled_font_reference(
                pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(item->analysis.font)));
        pango_glyph_string_free(glyphs);
    }
    g_list_free_full(items, [](gpointer item) { pango_item_free(static_cast<PangoItem *>(item)); });
    if (!isDone)
        plain = Glyphs();
    return isDone;
}

const TextShaper::Shaped &TextShaper::shaped(const QString &text, int font)
{
    const Key key{text, font};
    const auto young = m_young.constFind(key);
    if (young != m_young.constEnd())
        return *young;
    if (m_young.size() >= generationSize) {
        forget(m_old);
        m_old.swap(m_young);
    }
    const auto old = m_old.find(key);
    if (old != m_old.end()) {
        const Shaped kept = *old;
        m_old.erase(old);
        return *m_young.insert(key, kept);
    }
    Shaped fresh;
    if (!shapePlain(fresh, text, font))
        shapeAny(fresh, text, font);
    return *m_young.insert(key, fresh);
}

void TextShaper::shapeAny(Shaped &fresh, const QString &text, int font)
{
    fresh.layout = pango_layout_new(m_context);
    pango_layout_set_font_description(fresh.layout, m_descriptions[std::size_t(font)]);
    pango_layout_set_single_paragraph_mode(fresh.layout, true);
    const QByteArray bytes = text.toUtf8();
    pango_layout_set_text(fresh.layout, bytes.constData(), bytes.size());
    const chart::Font &format = m_fonts[std::size_t(font)];
    const bool chinese = isChinese(text);
    if (format.underline || format.strikeOut || chinese) {
        PangoAttrList *attributes = pango_attr_list_new();
        if (chinese)
            pango_attr_list_insert(attributes, pango_attr_language_new(pango_language_from_string("zh-cn")));
        if (format.underline)
            pango_attr_list_insert(attributes, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
        if (format.strikeOut)
            pango_attr_list_insert(attributes, pango_attr_strikethrough_new(true));
        pango_layout_set_attributes(fresh.layout, attributes);
        pango_attr_list_unref(attributes);
    }
    PangoRectangle logical;
    pango_layout_line_get_extents(pango_layout_get_line_readonly(fresh.layout, 0), nullptr, &logical);
    fresh.width = double(logical.width) / PANGO_SCALE;
    if (pango_layout_get_unknown_glyphs_count(fresh.layout) > 0 && m_textsWithGaps++ == 0)
        m_firstTextWithGaps = text;
}

double TextShaper::width(const QString &text, int font)
{
    return text.isEmpty() ? 0 : shaped(text, font).width;
}

void TextShaper::draw(cairo_t *context, double x, double y, const QString &text, int font)
{
    if (text.isEmpty())
        return;
    const Shaped &its = shaped(text, font);
    if (its.layout) {
        finish(context);
        cairo_move_to(context, x, y);
        pango_cairo_show_layout_line(context, pango_layout_get_line_readonly(its.layout, 0));
        return;
    }
    if (m_waiting.font != its.plain.font)
        finish(context);
    if (!m_waiting.font)
        m_waiting.font = cairo_scaled_font_reference(its.plain.font);
    for (const cairo_glyph_t &glyph : its.plain.glyphs)
        m_waiting.glyphs.push_back({glyph.index, x + glyph.x, y + glyph.y});
    m_waiting.clusters.insert(m_waiting.clusters.end(), its.plain.clusters.begin(), its.plain.clusters.end());
    m_waiting.bytes += its.plain.bytes;
}

void TextShaper::finish(cairo_t *context)
{
    if (!m_waiting.font)
        return;
    cairo_set_scaled_font(context, m_waiting.font);
    cairo_show_text_glyphs(context, m_waiting.bytes.constData(), m_waiting.bytes.size(),
                           m_waiting.glyphs.data(), int(m_waiting.glyphs.size()), m_waiting.clusters.data(),
                           int(m_waiting.clusters.size()), cairo_text_cluster_flags_t(0));
    cairo_scaled_font_destroy(m_waiting.font);
    m_waiting.font = nullptr;
    m_waiting.glyphs.clear();
    m_waiting.clusters.clear();
    m_waiting.bytes.resize(0);
}
