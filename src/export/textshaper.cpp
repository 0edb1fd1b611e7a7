#include "export/textshaper.h"
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
    for (const Shaped &each : qAsConst(generation))
        g_object_unref(each.layout);
    generation.clear();
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
    return *m_young.insert(key, fresh);
}

double TextShaper::width(const QString &text, int font)
{
    return text.isEmpty() ? 0 : shaped(text, font).width;
}

void TextShaper::draw(cairo_t *context, double x, double y, const QString &text, int font)
{
    if (text.isEmpty())
        return;
    cairo_move_to(context, x, y);
    pango_cairo_show_layout_line(context, pango_layout_get_line_readonly(shaped(text, font).layout, 0));
}
