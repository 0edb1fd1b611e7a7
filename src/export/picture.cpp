#include "export/picture.h"
#include "chart/elide.h"
#include <algorithm>
#include <iterator>
#include <numeric>

using chart::Align;
using chart::Kind;
using chart::Mark;
using chart::Marks;
using chart::Plan;
using chart::Shape;
using chart::Style;

namespace picture {

namespace {

constexpr double legendGap = 10;
constexpr double frameGap = 6; // between the picture and the texts around it
constexpr double padding = 12; // around a picture that is no sheet
constexpr double titleHeight = 34;

Mark frameText(const Plan &plan, Style style, int font, Align align, double x, double middle, double room,
               const QString &words)
{
    double width = 0;
    Mark mark;
    mark.kind = Kind::HeadText;
    mark.shape = Shape::Text;
    mark.style = style;
    mark.font = quint8(font);
    mark.align = align;
    mark.text = chart::elided(
        chart::oneLine(words), room, [&](const QString &part) { return plan.measure(part, font); }, &width);
    const double height = chart::pixelsOf(plan.fonts[std::size_t(font)]) * 1.4;
    const double left = align == Align::Left    ? x
                        : align == Align::Right ? x + room - width
                                                : x + (room - width) / 2;
    mark.rect = QRectF(left, middle - height / 2, width, height);
    return mark;
}

Mark upright(double x, double top, double bottom)
{
    Mark mark;
    mark.kind = Kind::Grid;
    mark.style = Style::MajorLine;
    mark.shape = Shape::Line;
    mark.points = {QPointF(x, top), QPointF(x, bottom)};
    mark.rect = QRectF(x, top, 0, bottom - top);
    return mark;
}

// Table and chart of some rows, the table's left edge at (left, top).
struct Part
{
    int firstRow, lastRow;
    std::vector<int> columns;
    double x0, x1;
    bool isSheet; // the lines under the rows are blocks of their own
};

// The lines that stand under everything else, as if their first row were the plan's first.
Marks takeLines(Marks &marks, double top)
{
    const auto end = std::find_if(marks.begin(), marks.end(), [](const Mark &mark) {
        return mark.kind != Kind::Grid && mark.kind != Kind::Shade;
    });
    Marks lines(std::make_move_iterator(marks.begin()), std::make_move_iterator(end));
    marks.erase(marks.begin(), end);
    for (Mark &line : lines) {
        line.rect.translate(0, chart::headHeight - top);
        for (QPointF &point : line.points)
            point.ry() += chart::headHeight - top;
    }
    return lines;
}

double tableWidth(const Plan &plan, const std::vector<int> &columns)
{
    return std::accumulate(columns.begin(), columns.end(), 0.0, [&](double sum, int column) {
        return sum + plan.columns[std::size_t(column)].width;
    });
}

void addPart(std::vector<Block> &blocks, const chart::Layout &layout, const Part &part, const QPointF &place,
             double scale)
{
    const Plan &plan = layout.plan();
    const double table = tableWidth(plan, part.columns), chartWidth = part.x1 - part.x0;
    const bool hasRows = part.lastRow >= part.firstRow;
    const double top = hasRows ? plan.at(part.firstRow).top : chart::headHeight;
    const double rows = hasRows ? plan.at(part.lastRow).bottom() - top : 0;
    const double headBottom = place.y() + chart::headHeight * scale;
    // Half a line hangs over the lower edges.
    const double overhang = 0.5 * scale;
    const auto add = [&](Marks marks, const QPointF &offset, double x, double y, double width, double height,
                         bool mayRepeat) {
        blocks.push_back({std::move(marks), offset, QRectF(x, y, width * scale, height * scale + overhang),
                          scale, mayRepeat});
    };
    const auto addRows = [&](Marks marks, const QPointF &offset, double x, double width) {
        if (part.isSheet)
            add(takeLines(marks, top), offset, x, headBottom, width, rows, true);
        add(std::move(marks), offset + QPointF(0, (chart::headHeight - top) * scale), x, headBottom, width,
            rows, false);
    };
    if (!part.columns.empty()) {
        addRows(layout.table(part.firstRow, part.lastRow, part.columns, 0), place, place.x(), table);
        add(layout.tableHead(part.columns, 0), place, place.x(), place.y(), table, chart::headHeight, true);
    }
    if (chartWidth > 0) {
        const double x = place.x() + table * scale;
        const QPointF chartPlace = place + QPointF((table - part.x0) * scale, 0);
        addRows(layout.body(part.firstRow, part.lastRow, part.x0, part.x1), chartPlace, x, chartWidth);
        add(layout.head(part.x0, part.x1), chartPlace, x, place.y(), chartWidth,
            chart::headHeight + chart::headOverhang, true);
        if (!part.columns.empty())
            blocks.push_back({{upright(table, 0, chart::headHeight + rows)},
                              place,
                              QRectF(x - scale, place.y(), 2 * scale, (chart::headHeight + rows) * scale),
                              scale,
                              true});
    }
}

void addLegend(std::vector<Block> &blocks, const Plan &plan, const chart::Used &used, const QPointF &place,
               double width, double scale)
{
    double height = 0;
    Marks marks = chart::legend(plan, used, 0, legendGap, width, &height);
    if (!marks.empty())
        blocks.push_back({std::move(marks), place,
                          QRectF(place.x(), place.y(), width * scale, (height + legendGap) * scale), scale});
}
}

double legendHeight(const Plan &plan, const chart::Used &used, double width)
{
    double height = 0;
    chart::legend(plan, used, 0, 0, width, &height);
    return height > 0 ? height + legendGap : 0;
}

std::vector<Block> sheet(const chart::Layout &layout, const chart::Sheets &sheets,
                         const chart::SheetPart &part, const printsheet::Paper &paper,
                         const chart::Used &used, const Frame &frame, bool hasLegend)
{
    const Plan &plan = layout.plan();
    std::vector<Block> blocks;
    const QPointF place(paper.marginX, paper.marginY);
    addPart(blocks, layout, {part.firstRow, part.lastRow, part.columns, part.x0, part.x1, true}, place,
            sheets.scale);
    if (hasLegend && part.isLastDown && part.across == 0) {
        const double rows =
            part.lastRow < part.firstRow ? 0 : plan.at(part.lastRow).bottom() - plan.at(part.firstRow).top;
        addLegend(blocks, plan, used, place + QPointF(0, (chart::headHeight + rows) * sheets.scale),
                  (paper.width - 2 * paper.marginX) / sheets.scale, sheets.scale);
    }
    // In the margins, unscaled.
    const double width = paper.width - 2 * paper.marginX;
    const auto height = [&](int font) { return chart::pixelsOf(plan.fonts[std::size_t(font)]); };
    const double headMiddle =
        std::max(height(chart::TitleFont) / 2, paper.marginY - frameGap - height(chart::TitleFont) / 2);
    const double footMiddle = std::min(paper.height - height(chart::FootFont) / 2,
                                       paper.height - paper.marginY + frameGap + height(chart::FootFont));
    Block around{{}, QPointF(), QRectF(0, 0, paper.width, paper.height), 1};
    const double headRoom = frame.head.isEmpty() ? 0 : width / 3;
    around.marks.push_back(frameText(plan, Style::PageTitle, chart::TitleFont, Align::Left, paper.marginX,
                                     headMiddle, width - headRoom, frame.title));
    around.marks.push_back(frameText(plan, Style::PageText, chart::FootFont, Align::Right,
                                     paper.marginX + width - headRoom, headMiddle, headRoom, frame.head));
    around.marks.push_back(frameText(plan, Style::PageText, chart::FootFont, Align::Left, paper.marginX,
                                     footMiddle, width / 3, frame.foot));
    around.marks.push_back(frameText(plan, Style::PageText, chart::FootFont, Align::Centre,
                                     paper.marginX + width / 3, footMiddle, width / 3, frame.number));
    blocks.push_back(std::move(around));
    return blocks;
}

Whole whole(const chart::Layout &layout, double from, double to, const QString &title, bool hasLegend)
{
    const Plan &plan = layout.plan();
    Whole result;
    std::vector<int> columns(plan.columns.size());
    std::iota(columns.begin(), columns.end(), 0);
    const double width = plan.tableWidth() + (to - from);
    const double below = plan.bottom;
    const double top = title.isEmpty() ? padding : padding + titleHeight;
    const QPointF place(padding, top);
    addPart(result.blocks, layout, {0, int(plan.rows.size()) - 1, columns, from, to, false}, place, 1);
    result.width = width + 2 * padding;
    result.height = top + below + padding;
    if (hasLegend) {
        const chart::Used used = chart::usedIn(plan);
        addLegend(result.blocks, plan, used, place + QPointF(0, below), width, 1);
        result.height += legendHeight(plan, used, width);
    }
    if (!title.isEmpty())
        result.blocks.push_back({{frameText(plan, Style::PageTitle, chart::TitleFont, Align::Left, padding,
                                            padding + titleHeight / 2 - 4, width, title)},
                                 QPointF(),
                                 QRectF(0, 0, result.width, top),
                                 1});
    return result;
}
}
