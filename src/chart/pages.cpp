#include "chart/pages.h"
#include "chart/axis.h"
#include <algorithm>
#include <cmath>

namespace chart {

namespace {

constexpr double rounding = 1e-6; // pixels

struct Across
{
    std::vector<int> columns;
    double x0 = 0, x1 = 0;
};

double widthOf(const Plan &plan, const std::vector<int> &columns)
{
    double width = 0;
    for (const int column : columns)
        width += plan.columns[std::size_t(column)].width;
    return width;
}

// The sheets side by side; stops once there are more than `most`.
std::vector<Across> cutAcross(const Plan &plan, const SheetSetup &setup, double pageWidth, int most)
{
    std::vector<Across> sheets;
    std::vector<int> repeated = setup.repeated;
    if (widthOf(plan, repeated) > pageWidth / 2)
        repeated.clear();
    std::size_t column = 0;
    double x = setup.from;
    double end = std::max(setup.from, setup.to);
    do {
        Across sheet;
        sheet.x0 = sheet.x1 = x;
        if (!sheets.empty())
            sheet.columns = repeated;
        double used = widthOf(plan, sheet.columns);
        bool isEmpty = true;
        for (; column < plan.columns.size(); ++column) {
            const double width = plan.columns[column].width;
            if (used + width > pageWidth + rounding) {
                if (!isEmpty)
                    break;
                // A column wider than what the repeated ones leave stands alone.
                sheet.columns.clear();
                used = 0;
            }
            used += width;
            sheet.columns.push_back(int(column));
            isEmpty = false;
        }
        const double room = pageWidth - used;
        if (column == plan.columns.size() && x < end) {
            if (x + room >= end - rounding)
                sheet.x1 = end;
            else if (!setup.fits && x + room >= plan.axis.width) // all but a part of the labels' room
                sheet.x1 = end = x + room;
            else {
                const double edge = unitEdgeBefore(plan.axis, x + room + rounding);
                if (edge > x + rounding)
                    sheet.x1 = edge;
                else if (isEmpty) // a unit wider than the sheet
                    sheet.x1 = room > 1 ? x + room : end;
            }
            x = sheet.x1;
        }
        sheets.push_back(std::move(sheet));
    } while ((column < plan.columns.size() || x < end - rounding) && int(sheets.size()) <= most);
    return sheets;
}

// First and last row of the sheets one below the other.
std::vector<std::pair<int, int>> cutDown(const Plan &plan, double room, double legendHeight, int most)
{
    std::vector<std::pair<int, int>> sheets;
    const int count = int(plan.rows.size());
    for (int first = 0; first < count && int(sheets.size()) <= most;) {
        const double bottom = plan.rows[std::size_t(first)].top + room + rounding;
        const auto begin = plan.rows.begin();
        int next = int(std::partition_point(begin + first, plan.rows.end(),
                                            [&](const Row &row) { return row.bottom() <= bottom; }) -
                       begin);
        // The legend stands under the last row and never alone.
        if (next == count && plan.rows.back().bottom() + legendHeight > bottom && count - first > 1)
            --next;
        next = std::max(next, first + 1);
        sheets.push_back({first, next - 1});
        first = next;
    }
    if (sheets.empty())
        sheets.push_back({0, -1});
    return sheets;
}

struct Cut
{
    std::vector<Across> across;
    std::vector<std::pair<int, int>> down;
};

Cut cut(const Plan &plan, const SheetSetup &setup, double scale, int mostAcross, int mostDown)
{
    const double width = setup.width / scale;
    const double legend = setup.legendHeight ? setup.legendHeight(width) : 0;
    return {cutAcross(plan, setup, width, mostAcross),
            cutDown(plan, setup.height / scale - headHeight, legend, mostDown)};
}
}

Sheets cutAtScale(const Plan &plan, const SheetSetup &setup, double scale)
{
    const Cut parts = cut(plan, setup, scale, mostSheets, mostSheets);
    Sheets sheets;
    sheets.scale = scale;
    sheets.across = int(parts.across.size());
    sheets.down = int(parts.down.size());
    if (qint64(sheets.across) * sheets.down > mostSheets)
        return sheets;
    for (int across = 0; across < sheets.across; ++across) {
        const Across &part = parts.across[std::size_t(across)];
        for (int down = 0; down < sheets.down; ++down) {
            const auto [first, last] = parts.down[std::size_t(down)];
            sheets.parts.push_back(
                {across, down, first, last, part.columns, part.x0, part.x1, down + 1 == sheets.down});
        }
        if (part.x1 > part.x0)
            sheets.edges.push_back(part.x1);
    }
    return sheets;
}

Sheets cutIntoSheets(const Plan &plan, const SheetSetup &setup)
{
    if (!setup.fits)
        return cutAtScale(plan, setup, setup.zoom);
    const int across = std::max(1, setup.across), down = std::max(1, setup.down);
    const auto fits = [&](double scale) {
        const Cut parts = cut(plan, setup, scale, across, down);
        return int(parts.across.size()) <= across && int(parts.down.size()) <= down;
    };
    if (fits(1))
        return cutAtScale(plan, setup, 1);
    double good = 0, bad = 1;
    for (double tried = 0.5; tried > 1e-7 && good == 0; tried /= 2) {
        if (fits(tried))
            good = tried;
        else
            bad = tried;
    }
    if (good == 0)
        good = bad;
    constexpr double precision = 1e-4;
    while (bad - good > good * precision) {
        const double middle = (good + bad) / 2;
        (fits(middle) ? good : bad) = middle;
    }
    return cutAtScale(plan, setup, good);
}

QString placeName(int across, int down)
{
    QString letters;
    for (int number = across + 1; number > 0; number = (number - 1) / 26)
        letters.prepend(QLatin1Char(char('A' + (number - 1) % 26)));
    return letters + QString::number(down + 1);
}
}
