#include "styles/chartstyle.h"
#include <algorithm>

namespace chartstyle {
namespace {

using Vision = ColorUtil::Vision;

constexpr const char *roleNames[roleCount] = {"paper",         "head-ground",
                                              "day-off",       "active-row",
                                              "head-line",     "row-line",
                                              "unit-line",     "major-line",
                                              "bar",           "bar-done",
                                              "critical-bar",  "critical-done",
                                              "summary",       "summary-done",
                                              "milestone",     "critical-milestone",
                                              "baseline",      "baseline-milestone",
                                              "slack",         "link",
                                              "critical-link", "today",
                                              "active-halo",   "linked-halo",
                                              "fold-mark",     "head-major",
                                              "head-unit",     "head-unit-off",
                                              "table-title",   "table-text",
                                              "table-summary", "table-muted",
                                              "table-link",    "label",
                                              "legend",        "page-title",
                                              "page-text"};
constexpr const char *themeNames[themeCount] = {"light", "dark", "print", "contrast"};

// What does not come from the palette.
struct Neutrals
{
    QRgb paper, head, dayOff;
    QRgb headLine, rowLine, unitLine, majorLine;
    QRgb text, secondary;
    QRgb baseline, link, today;
    double activeTint;   // share of the accent in the active row
    double outlineWidth; // of bars
    double linkWidth;
    double criticalLinkWidth;
    double textContrast;
    double markContrast;
};

constexpr Neutrals neutralsOf[themeCount] = {
    {0xffffff, 0xf3f5f8, 0xf2f4f7, 0xcbd2d9, 0xeef1f4, 0xe3e7ec, 0xcbd2d9, 0x1f2933, 0x5f6b7a, 0xa7afb8,
     0x7c8896, 0x2e7d32, 0.07, 1, 1, 1.5, 4.5, 3},
    {0x1e232b, 0x272d37, 0x252b34, 0x475262, 0x2a313b, 0x2f3742, 0x475262, 0xe6eaf0, 0x9aa6b5, 0x7d8794,
     0x8d99a8, 0x7fc684, 0.14, 1, 1, 1.5, 4.5, 3},
    {0xffffff, 0xf4f4f4, 0xf1f1f1, 0x9a9a9a, 0xe4e4e4, 0xdadada, 0xb4b4b4, 0x000000, 0x4a4a4a, 0x949494,
     0x6e6e6e, 0x1b5e20, 0.06, 1, 1, 1.5, 4.5, 3},
    {0xffffff, 0xececec, 0xe8e8e8, 0x000000, 0xb8b8b8, 0xb8b8b8, 0x000000, 0x000000, 0x262626, 0x595959,
     0x404040, 0x0b5a12, 0.10, 2, 1.5, 2.5, 7, 4.5}};

const Neutrals &neutrals(Theme theme)
{
    return neutralsOf[std::size_t(theme)];
}

// Bars: the share of the full colour in the part that is to do, and what the done part has to stand out from
// it.
constexpr double mostRest = 0.45;
constexpr double doneContrast = 3;
constexpr double barContrast = 4.5; // so that there is room for the part to do between bar and paper
constexpr double barRadius = 2.5;
constexpr double edgeWidth = 2;
constexpr double arrowPixels = 6;
constexpr double tickPixels = 8;
constexpr double wantedDistance = 20; // between critical bars and others

bool isText(Role role)
{
    return role >= Role::HeadMajor;
}

bool isOnHead(Role role)
{
    return role == Role::HeadMajor || role == Role::HeadUnit || role == Role::HeadUnitOff ||
           role == Role::TableTitle;
}

// The colour of a fill as a whole; of a hatch that of its lines.
QColor fillColor(const KWPaint &paint)
{
    return paint.isNone() ? QColor() : paint.color.color();
}
}

const char *name(Role role)
{
    return role < Role::Count ? roleNames[std::size_t(role)] : "";
}

const char *name(Theme theme)
{
    return themeNames[std::size_t(theme)];
}

std::optional<Theme> themeOf(const QString &name)
{
    for (int i = 0; i < themeCount; ++i) {
        if (name == QLatin1String(themeNames[i]))
            return Theme(i);
    }
    return std::nullopt;
}

Requirement requirement(Theme theme, Role role)
{
    const Neutrals &fixed = neutrals(theme);
    if (role < Role::Bar)
        return {};
    switch (role) {
    case Role::BarDone:
        return {doneContrast, {Role::Bar}};
    case Role::CriticalDone:
        // Under a hatch there is no one colour to differ from: full and hatched differ by themselves.
        if (theme == Theme::Print)
            return {barContrast, {Role::Paper}};
        return {doneContrast, {Role::CriticalBar}};
    case Role::SummaryDone:
        return {fixed.markContrast, {Role::Summary}};
    default:
        break;
    }
    if (isOnHead(role))
        return {fixed.textContrast, {Role::HeadGround}};
    if (isText(role))
        return {fixed.textContrast, {Role::Paper, Role::DayOff, Role::ActiveRow}};
    std::vector<Role> grounds = {Role::Paper, Role::DayOff, Role::ActiveRow};
    if (role == Role::Today)
        grounds.push_back(Role::HeadGround);
    return {fixed.markContrast, grounds};
}

// The colours that are drawn with, each fit for its grounds.
struct Sheet::Inks
{
    QColor text, secondary, baseline, link, today, bar, critical, summary, accent, hyperlink, edge;
};

QColor Sheet::standingOut(const QColor &color, double contrast) const
{
    // All grounds of a theme are light, or all of them dark: what was reached for one is not lost for the
    // next.
    QColor result(color.rgb()); // in eight bits a channel, as it will be kept
    for (const Role ground : {Role::Paper, Role::HeadGround, Role::DayOff, Role::ActiveRow})
        result = ColorUtil::withContrast(result, style(ground).fill.color.color(), contrast);
    return result;
}

Sheet::Sheet(Theme theme, const ThemePalette &palette, const QString &family)
    : m_theme(theme)
{
    const Neutrals &fixed = neutrals(theme);
    const ThemePalette &spare = ThemePalette::builtIn().first();
    const auto place = [&](int index, double tint = 0) {
        const KWColor color = KWColor::fromTheme(index, tint);
        const QColor own = color.color(palette);
        return own.isValid() ? own : color.color(spare);
    };

    Inks inks;
    inks.accent = place(ThemePalette::Accent1);
    makeGrounds(inks);
    const auto text = [&](const QColor &color) { return standingOut(color, fixed.textContrast); };
    const auto mark = [&](const QColor &color) { return standingOut(color, fixed.markContrast); };
    inks.text = text(QColor(fixed.text));
    inks.secondary = text(QColor(fixed.secondary));
    inks.hyperlink = text(place(ThemePalette::Link));
    inks.baseline = mark(QColor(fixed.baseline));
    inks.link = mark(QColor(fixed.link));
    inks.today = mark(QColor(fixed.today));
    inks.accent = mark(inks.accent);
    const double strong = std::max(barContrast, fixed.markContrast);
    inks.bar = standingOut(place(ThemePalette::Accent1), strong);
    inks.summary = standingOut(place(ThemePalette::Dark2), strong);

    // The second accent is the critical one, a shade darker. Where some reader could hardly tell it from the
    // first, another shade of it is tried.
    double best = -1;
    for (const double tint : {-0.25, -0.4, -0.55, 0.0, 0.3, 0.6, -0.7}) {
        const QColor tried = standingOut(place(ThemePalette::Accent2, tint), strong);
        double distance = 1000;
        for (const Vision vision : {Vision::Full, Vision::NoRed, Vision::NoGreen, Vision::NoBlue})
            distance = std::min(distance, ColorUtil::distance(inks.bar, tried, vision));
        if (distance > best) {
            best = distance;
            inks.critical = tried;
        }
        if (best >= wantedDistance)
            break;
    }
    inks.edge =
        theme == Theme::Dark ? ColorUtil::tinted(inks.critical, 0.5) : ColorUtil::tinted(inks.critical, -0.5);
    makeMarks(inks);
    makeTexts(inks, family);
}

void Sheet::makeGrounds(const Inks &inks)
{
    const Neutrals &fixed = neutrals(m_theme);
    const auto ground = [&](Role role, const QColor &color) {
        at(role).fill = KWPaint::solid(QColor(color.rgb()));
    };
    ground(Role::Paper, QColor(fixed.paper));
    ground(Role::HeadGround, QColor(fixed.head));
    ground(Role::DayOff, QColor(fixed.dayOff));
    ground(Role::ActiveRow, ColorUtil::blend(inks.accent, QColor(fixed.paper), fixed.activeTint));
    const auto line = [&](Role role, QRgb color, double width) {
        at(role).line = KWLineFormat(QColor(color), width);
    };
    line(Role::HeadLine, fixed.headLine, 1);
    line(Role::RowLine, fixed.rowLine, 1);
    line(Role::UnitLine, fixed.unitLine, 0.5);
    line(Role::MajorLine, fixed.majorLine, 1);
}

void Sheet::makeMarks(const Inks &inks)
{
    const Neutrals &fixed = neutrals(m_theme);
    const QColor paper(fixed.paper);
    const auto bar = [&](Role role, Role done, const QColor &full) {
        double share = mostRest;
        QColor rest;
        do {
            rest = QColor(ColorUtil::blend(full, paper, share).rgb());
            share -= 0.05;
        } while (share > 0 && ColorUtil::contrast(full, rest) < doneContrast);
        at(role).fill = KWPaint::solid(rest);
        at(role).line = KWLineFormat(full, fixed.outlineWidth);
        at(role).radius = barRadius;
        at(done).fill = KWPaint::solid(full);
        at(done).radius = barRadius;
    };
    bar(Role::Bar, Role::BarDone, inks.bar);
    bar(Role::CriticalBar, Role::CriticalDone, inks.critical);
    const KWLineFormat edge(inks.edge, edgeWidth * fixed.outlineWidth);
    at(Role::CriticalBar).edge = edge;
    at(Role::CriticalDone).edge = edge;
    if (m_theme == Theme::Print) // a sheet may be printed in grey
        at(Role::CriticalBar).fill = KWPaint::hatch(inks.critical, paper);

    at(Role::Summary).fill = KWPaint::solid(inks.summary);
    at(Role::SummaryDone).line = KWLineFormat(paper, 2);
    at(Role::Milestone).fill = KWPaint::solid(inks.summary);
    at(Role::CriticalMilestone).fill = KWPaint::solid(inks.critical);
    at(Role::CriticalMilestone).edge = edge;
    at(Role::Baseline).fill = KWPaint::solid(inks.baseline);
    at(Role::BaselineMilestone).line = KWLineFormat(inks.baseline, 1);
    at(Role::FoldMark).fill = KWPaint::solid(inks.secondary);

    KWLineFormat slack(inks.secondary, 1);
    slack.dash = KWLineDash::dots();
    slack.end.type = KWArrowHead::Tick;
    slack.end.length = 0;
    slack.end.width = tickPixels / slack.width;
    at(Role::Slack).line = slack;

    const auto link = [&](Role role, const QColor &color, double width) {
        KWLineFormat line(color, width);
        line.end.type = KWArrowHead::Triangle;
        line.end.length = line.end.width = arrowPixels / width;
        at(role).line = line;
    };
    link(Role::Link, inks.link, fixed.linkWidth);
    link(Role::CriticalLink, inks.critical, fixed.criticalLinkWidth);

    at(Role::Today).line = KWLineFormat(inks.today, 1.25);
    at(Role::Today).line.dash = KWLineDash::dashes();
    at(Role::Today).fill = KWPaint::solid(inks.today); // its triangle in the head
    at(Role::ActiveHalo).line = KWLineFormat(inks.accent, 2);
    at(Role::LinkedHalo).line = KWLineFormat(inks.accent, 1);
    at(Role::ActiveHalo).radius = at(Role::LinkedHalo).radius = barRadius + 2;
}

void Sheet::makeTexts(const Inks &inks, const QString &family)
{
    struct Row
    {
        Role role;
        const QColor Inks::*ink;
        double points;
        bool isBold;
    };
    static constexpr Row rows[] = {
        {Role::HeadMajor, &Inks::text, 9, true},           {Role::HeadUnit, &Inks::text, 8.5, false},
        {Role::HeadUnitOff, &Inks::secondary, 8.5, false}, {Role::TableTitle, &Inks::secondary, 9, true},
        {Role::TableText, &Inks::text, 9, false},          {Role::TableSummary, &Inks::text, 9, true},
        {Role::TableMuted, &Inks::secondary, 9, false},    {Role::TableLink, &Inks::hyperlink, 9, false},
        {Role::Label, &Inks::secondary, 8.5, false},       {Role::Legend, &Inks::secondary, 8.5, false},
        {Role::PageTitle, &Inks::text, 13, true},          {Role::PageText, &Inks::secondary, 8, false}};
    for (const Row &row : rows) {
        KWTextFormat &text = at(row.role).text;
        text = KWTextFormat(row.points, inks.*row.ink, row.isBold);
        text.family = family;
        text.underline = row.role == Role::TableLink;
    }
}

QColor Sheet::color(Role role) const
{
    const Style &own = style(role);
    if (!own.text.color.isNone())
        return own.text.color.color();
    const QColor fill = fillColor(own.fill);
    if (own.line.isNone() || role < Role::HeadLine)
        return fill;
    const QColor line = own.line.color.color();
    const QColor paper = style(Role::Paper).fill.color.color();
    return fill.isValid() && ColorUtil::contrast(fill, paper) > ColorUtil::contrast(line, paper) ? fill
                                                                                                 : line;
}

double Sheet::contrast(Role role) const
{
    constexpr double most = 21;
    double least = most;
    for (const Role ground : requirement(m_theme, role).grounds)
        least = std::min(least, ColorUtil::contrast(color(role), fillColor(style(ground).fill)));
    return least;
}

double Sheet::criticalDistance(Vision vision) const
{
    return ColorUtil::distance(color(Role::Bar), color(Role::CriticalBar), vision);
}
}
