#pragma once
#include "styles/colorutil.h"
#include "styles/kwlineformat.h"
#include "styles/kwpaint.h"
#include "styles/kwtextformat.h"
#include "styles/themepalette.h"
#include <array>
#include <optional>
#include <vector>

// How everything on a chart looks: named styles for each of four themes, in the colours of a document's
// palette.
//
// Palettes come from anywhere, so no colour is taken on trust: each is made darker or lighter until it stands
// out from every ground that it may be drawn on. Lengths are pixels at 96 dpi.
namespace chartstyle {

enum class Theme { Light, Dark, Print, Contrast };
constexpr int themeCount = 4;

enum class Role {
    // Grounds and grid
    Paper,
    HeadGround,
    DayOff,
    ActiveRow, // the row that is worked on
    HeadLine,  // under the head and between its lines
    RowLine,
    UnitLine,
    MajorLine,
    // Marks
    Bar,
    BarDone,
    CriticalBar,
    CriticalDone,
    Summary,
    SummaryDone, // the line inside
    Milestone,
    CriticalMilestone,
    Baseline,
    BaselineMilestone,
    Slack,
    Link,
    CriticalLink,
    Today,
    ActiveHalo, // round the active task
    LinkedHalo, // round those linked to it
    FoldMark,
    // Texts
    HeadMajor,
    HeadUnit,
    HeadUnitOff, // of a day off
    TableTitle,
    TableText,
    TableSummary,
    TableMuted, // nothing worth a look: no percent, no value
    TableLink,
    Label, // beside a bar
    Legend,
    PageTitle,
    PageText, // head and foot of a sheet
    Count
};
constexpr std::size_t roleCount = std::size_t(Role::Count);

// "critical-bar", for style sheets and messages.
const char *name(Role role);
const char *name(Theme theme);
std::optional<Theme> themeOf(const QString &name);

struct Style
{
    KWPaint fill;
    KWLineFormat line; // the outline of a shape, or the line itself
    KWLineFormat edge; // along the lower edge: what tells a critical task without colour
    double radius = 0; // of corners
    KWTextFormat text;
};

// What a role is held against.
struct Requirement
{
    double contrast = 0; // at least, against each of the grounds; 0: whatever
    std::vector<Role> grounds;
};
Requirement requirement(Theme theme, Role role);

class Sheet
{
public:
    // An empty family leaves the choice to whoever draws.
    Sheet(Theme theme, const ThemePalette &palette, const QString &family = QString());

    Theme theme() const { return m_theme; }
    // All colours in it are values; none is a place of the palette.
    const Style &style(Role role) const { return m_styles[std::size_t(role)]; }
    // What of a role meets the eye first: a text's colour, else the stronger one of line and fill.
    QColor color(Role role) const;
    // The least contrast of a role with what it may be drawn on; 21 for one that needs none.
    double contrast(Role role) const;
    // How different a critical bar looks from another one.
    double criticalDistance(ColorUtil::Vision vision) const;

private:
    struct Inks;
    Style &at(Role role) { return m_styles[std::size_t(role)]; }
    void makeGrounds(const Inks &inks);
    void makeMarks(const Inks &inks);
    void makeTexts(const Inks &inks, const QString &family);
    QColor standingOut(const QColor &color, double contrast) const;

    Theme m_theme;
    std::array<Style, roleCount> m_styles;
};
}
