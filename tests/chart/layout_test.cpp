#include "chart/layout.h"
#include "chart/pages.h"
#include <gtest/gtest.h>
#include <random>
#include <set>

using namespace chart;

namespace {

// Six pixels a character, so that no test depends on a font.
double measured(const QString &text, int)
{
    return text.size() * 6.0;
}

Axis axisOf(Unit minor, Unit major, double unitWidth, int days)
{
    Axis axis;
    axis.minor = minor;
    axis.major = major;
    axis.unitWidth = unitWidth;
    axis.firstDay = Axis::dayOf(QDate(2025, 12, 1));
    axis.lastDay = axis.firstDay + days - 1;
    constexpr double daysOfUnit[] = {365, 91, 30, 7, 1};
    const double dayWidth = minor == Minute ? unitWidth * 540
                            : minor == Hour ? unitWidth * 9
                                            : unitWidth / daysOfUnit[minor];
    axis.width = days * dayWidth;
    axis.xOfDay = [first = axis.firstDay, dayWidth](int day) { return (day - first) * dayWidth; };
    axis.isWorkday = [](int day) { return Axis::dateOf(day).dayOfWeek() <= 5; };
    return axis;
}

// Rows with bars anywhere and links between any of them.
Plan randomPlan(std::mt19937 &random, int rows)
{
    const auto upTo = [&](int most) { return int(random() % unsigned(most + 1)); };
    Plan plan;
    plan.fonts = standardFonts(chartstyle::Sheet(chartstyle::Theme::Light, ThemePalette::builtIn().first()));
    plan.measure = measured;
    plan.axis = axisOf(Day, Week, 60, 40);
    plan.room = 160;
    double top = headHeight;
    for (int i = 0; i < rows; ++i) {
        Row row;
        row.id = quint32(i + 1);
        row.kind = RowKind(upTo(9) < 7 ? 0 : 1 + upTo(1));
        row.top = top;
        row.height = upTo(5) == 0 ? 20 + upTo(40) : 30;
        row.x1 = 60 * (1 + upTo(30));
        row.x2 = row.kind == RowKind::Milestone ? row.x1 + 60 : row.x1 + 30 * upTo(20);
        row.done = upTo(2) * (row.x2 - row.x1) / 2;
        row.isCritical = upTo(3) == 0;
        if (upTo(3) == 0 && row.kind == RowKind::Task)
            row.slackEnd = row.x2 + 10 + upTo(200);
        top += row.height;
        plan.rows.push_back(row);
    }
    plan.rowCount = rows;
    plan.bottom = top;
    for (int i = 0; i < rows * 3 / 2; ++i) {
        const int from = upTo(rows - 1), to = upTo(rows - 1);
        if (from != to)
            plan.links.push_back({from, to, upTo(2) == 0, false});
    }
    plan.label = [](int row) { return QString(row * 7 % 23, QLatin1Char('x')); };
    if (upTo(1) == 0)
        plan.sheetEdges = {600, 1260, plan.width()};
    return plan;
}

// What no link may strike through, by row.
std::vector<std::pair<int, QRectF>> obstacles(const Layout &layout)
{
    std::vector<std::pair<int, QRectF>> rects;
    for (int row = 0; row < layout.plan().rowCount; ++row) {
        rects.push_back({row, layout.barRect(row)});
        const LabelBox label = layout.label(row);
        if (label.isSet())
            rects.push_back({row, QRectF(label.x, layout.plan().at(row).middle() - 7, label.width, 14)});
    }
    return rects;
}

int strikes(const QVector<QPointF> &line, const std::vector<std::pair<int, QRectF>> &rects)
{
    int count = 0;
    for (const auto &[row, rect] : rects) {
        const QRectF inside = rect.adjusted(0.5, 0.5, -0.5, -0.5);
        for (int i = 1; i < line.size(); ++i) {
            const QPointF &a = line[i - 1], &b = line[i];
            const QRectF segment(QPointF(std::min(a.x(), b.x()), std::min(a.y(), b.y())),
                                 QPointF(std::max(a.x(), b.x()), std::max(a.y(), b.y())));
            count += inside.isValid() && segment.left() < inside.right() && segment.right() > inside.left() &&
                     segment.top() < inside.bottom() && segment.bottom() > inside.top();
        }
    }
    return count;
}
}

TEST(ChartLinks, strikeThroughNoBarAndNoLabel)
{
    std::mt19937 random(14);
    int shared = 0;
    for (int run = 0; run < 1000; ++run) {
        const Plan plan = randomPlan(random, 2 + run % 30);
        const Layout layout(plan);
        const auto rects = obstacles(layout);
        for (int link = 0; link < int(plan.links.size()); ++link) {
            const QVector<QPointF> &line = layout.route(link).line;
            const Link &which = plan.links[std::size_t(link)];
            ASSERT_GE(line.size(), 2);
            EXPECT_EQ(strikes(line, rects), 0) << "run " << run << ": " << which.from << " to " << which.to;
            const QRectF from = layout.barRect(which.from), to = layout.barRect(which.to);
            EXPECT_EQ(line.first(), QPointF(from.right(), from.center().y()));
            if (plan.at(which.to).kind == RowKind::Milestone) { // from above
                EXPECT_EQ(line.last(), QPointF(to.center().x(), to.top()));
                EXPECT_LT(line[line.size() - 2].y(), line.last().y());
            } else {
                EXPECT_EQ(line.last(), QPointF(to.left(), to.center().y()));
            }
            for (int i = 1; i < line.size(); ++i)
                EXPECT_TRUE(line[i].x() == line[i - 1].x() || line[i].y() == line[i - 1].y());
            shared += link > 0 && plan.links[std::size_t(link) - 1].from == which.from;
        }
    }
    EXPECT_GT(shared, 0);
}

TEST(ChartLinks, ofOnePredecessorShareTheirTrunk)
{
    std::mt19937 random(1);
    Plan plan = randomPlan(random, 6);
    plan.sheetEdges.clear();
    for (int row = 0; row < 6; ++row) {
        plan.rows[std::size_t(row)].kind = RowKind::Task;
        plan.rows[std::size_t(row)].slackEnd = nowhere;
        plan.rows[std::size_t(row)].x1 = 60 + row * 60;
        plan.rows[std::size_t(row)].x2 = 120 + row * 60;
    }
    plan.label = nullptr;
    plan.links = {{0, 2, false, false}, {0, 3, false, false}, {0, 5, false, false}};
    const Layout layout(plan);
    std::set<double> trunks;
    for (int link = 0; link < 3; ++link) {
        double longest = 0, x = 0;
        const QVector<QPointF> &line = layout.route(link).line;
        for (int i = 1; i < line.size(); ++i) {
            if (std::abs(line[i].y() - line[i - 1].y()) > longest) {
                longest = std::abs(line[i].y() - line[i - 1].y());
                x = line[i].x();
            }
        }
        trunks.insert(x);
    }
    EXPECT_EQ(trunks.size(), 1u);
}

TEST(ChartLinks, tooLongToBeDrawnEndInStubs)
{
    std::mt19937 random(1);
    Plan plan = randomPlan(random, 2200);
    plan.links = {{0, 2150, false, false}, {2150, 3, false, false}};
    const Layout layout(plan);
    for (int link = 0; link < 2; ++link) {
        const Layout::Route &route = layout.route(link);
        for (const QVector<QPointF> *part : {&route.line, &route.arrival}) {
            ASSERT_GE(part->size(), 2);
            EXPECT_LT(std::abs(part->first().y() - part->last().y()), 80);
        }
    }
}

TEST(ChartLabels, standBesideTheirBarAndInsideTheSheet)
{
    std::mt19937 random(7);
    for (int run = 0; run < 300; ++run) {
        const Plan plan = randomPlan(random, 20);
        const Layout layout(plan);
        const Marks marks = layout.body(0, plan.rowCount - 1, 0, plan.width());
        for (const Mark &mark : marks) {
            if (mark.kind != Kind::Label)
                continue;
            const int row = int(mark.task) - 1;
            EXPECT_FALSE(mark.rect.intersects(layout.barRect(row)));
            EXPECT_GE(mark.rect.left(), 0);
            EXPECT_LE(mark.rect.right(), plan.width());
            for (const double edge : plan.sheetEdges)
                EXPECT_FALSE(mark.rect.left() < edge && mark.rect.right() > edge)
                    << "run " << run << " row " << row;
            const QString whole = plan.label(row);
            EXPECT_TRUE(mark.text == whole ||
                        (mark.text.endsWith(QChar(0x2026)) && whole.startsWith(mark.text.chopped(1))));
            EXPECT_LE(measured(mark.text, 0), mark.rect.width() + 0.1);
        }
    }
}

// A part of the chart holds the same marks as the whole, for what lies in it.
TEST(ChartMarks, areTheSameWhateverElseIsVisible)
{
    std::mt19937 random(3);
    const Plan plan = randomPlan(random, 200);
    const Layout whole(plan), fresh(plan);
    const auto shown = [](const Marks &marks, double top, double bottom) {
        std::multiset<QString> found;
        for (const Mark &mark : marks)
            if (mark.kind != Kind::Grid && mark.kind != Kind::Shade && mark.rect.top() > top &&
                mark.rect.bottom() < bottom)
                found.insert(QStringLiteral("%1 %2 %3 %4 %5")
                                 .arg(int(mark.kind))
                                 .arg(mark.rect.x())
                                 .arg(mark.rect.y())
                                 .arg(mark.rect.width())
                                 .arg(mark.text));
        return found;
    };
    const double top = plan.at(90).top, bottom = plan.at(110).bottom();
    EXPECT_EQ(shown(whole.body(0, 199, 0, plan.width()), top, bottom),
              shown(fresh.body(90, 110, 0, plan.width()), top, bottom));
}

TEST(ChartHead, textsNeverOverlap)
{
    constexpr Unit majors[] = {Year, Year, Quarter, Month, Week, Week, Week};
    for (int minor = Year; minor <= Minute; ++minor) {
        for (const double width : {100.0, 60.0, 20.0}) {
            for (const char *language : {"en", "de", "zh"}) {
                for (const double start : {0.0, 130.0}) {
                    constexpr int days[] = {8000, 3000, 900, 300, 60, 8, 2};
                    Plan plan;
                    plan.measure = measured;
                    plan.locale = QLocale(QLatin1String(language));
                    plan.axis = axisOf(Unit(minor), majors[minor], width, days[minor]);
                    const Layout layout(plan);
                    int texts = 0;
                    std::vector<QRectF> taken;
                    for (const Mark &mark : layout.head(start, start + 2000)) {
                        if (mark.kind != Kind::HeadText)
                            continue;
                        ++texts;
                        EXPECT_FALSE(mark.text.contains(QChar(0x2026)));
                        for (const QRectF &other : taken)
                            ASSERT_FALSE(mark.rect.intersects(other))
                                << minor << " at " << width << " in " << language << ": "
                                << mark.text.toStdString();
                        taken.push_back(mark.rect);
                    }
                    EXPECT_GT(texts, 3) << minor << " at " << width << " in " << language;
                }
            }
        }
    }
}

TEST(ChartSheets, showEveryRowAndEveryColumnOnce)
{
    std::mt19937 random(9);
    for (int run = 0; run < 500; ++run) {
        Plan plan = randomPlan(random, 1 + run % 60);
        for (int column = 0; column < run % 8; ++column) {
            Column each;
            each.width = 20 + double(random() % 400);
            plan.columns.push_back(each);
        }
        SheetSetup setup;
        setup.width = 200 + double(random() % 1500);
        setup.height = 100 + double(random() % 1500);
        setup.fits = run % 2;
        setup.across = 1 + int(random() % 4);
        setup.down = 1 + int(random() % 4);
        setup.zoom = 0.1 + double(random() % 390) / 100;
        setup.to = plan.width();
        if (!plan.columns.empty() && run % 3)
            setup.repeated = {0};
        setup.legendHeight = [](double) { return 34.0; };
        const Sheets sheets = cutIntoSheets(plan, setup);
        ASSERT_EQ(sheets.parts.size(), std::size_t(sheets.across) * std::size_t(sheets.down));
        if (setup.fits) {
            EXPECT_LE(sheets.across, setup.across);
            EXPECT_LE(sheets.down, setup.down);
            EXPECT_LE(sheets.scale, 1);
        }
        std::set<int> shownColumns;
        double x = 0;
        for (int across = 0; across < sheets.across; ++across) {
            int row = 0;
            for (int down = 0; down < sheets.down; ++down) {
                const SheetPart &part = sheets.parts[std::size_t(across * sheets.down + down)];
                EXPECT_EQ(part.across, across);
                EXPECT_EQ(part.down, down);
                EXPECT_EQ(part.firstRow, row);
                row = part.lastRow + 1;
                double width = part.x1 - part.x0;
                for (const int column : part.columns)
                    width += plan.columns[std::size_t(column)].width;
                // What stands alone may be larger than the sheet.
                if (part.columns.size() != 1 || part.x1 > part.x0) {
                    EXPECT_LE(width * sheets.scale, setup.width * 1.001 + 1);
                }
                if (part.lastRow > part.firstRow) {
                    EXPECT_LE((headHeight + plan.at(part.lastRow).bottom() - plan.at(part.firstRow).top) *
                                  sheets.scale,
                              setup.height * 1.001);
                }
            }
            EXPECT_EQ(row, plan.rowCount);
            const SheetPart &part = sheets.parts[std::size_t(across * sheets.down)];
            shownColumns.insert(part.columns.begin(), part.columns.end());
            EXPECT_EQ(part.x0, x);
            x = part.x1;
        }
        EXPECT_EQ(shownColumns.size(), plan.columns.size());
        EXPECT_GE(x, plan.axis.width);
    }
}
