#include "model/kwdocument.h"
#include "styles/kwcolor.h"

void KWDocument::initThemeColor()
{
    m_themeColors = ThemePalette::builtIn();
}

// A theme that is not in the palette, as a file may name it, shows as the first one.
const KWDocument::ThemeColor &KWDocument::chosenTheme() const
{
    static const ThemeColor none;
    if (m_themeColors.isEmpty())
        return none;
    const bool known = ThemeIndex >= 0 && ThemeIndex < m_themeColors.size();
    return m_themeColors.at(known ? ThemeIndex : 0);
}

QColor KWDocument::themeColor(int index) const
{
    return chosenTheme().color(index);
}

const QStringList &KWDocument::themeColorNames()
{
    return ThemePalette::colorNames();
}

QColor KWColor::color(const KWDocument *document) const
{
    return document ? color(document->chosenTheme()) : color();
}
