#pragma once
#include "styles/chartstyle.h"
#include "support/said.h"
#include <QDate>
#include <QLocale>
#include <QString>
#include <QVector>
#include <functional>
#include <limits>
#include <vector>

// What a chart is drawn from: plain values, filled from a document by whoever draws.
//
// The chart's left edge is x = 0 and its first row begins at headHeight; the table stands left of it, at
// negative x. All lengths are pixels at 96 dpi.
namespace chart {

constexpr double headHeight = 40;  // two lines of 20
constexpr double headOverhang = 6; // of the mark of today below it
constexpr double barHeight = 15;
constexpr double diamondSize = 15;

// A font of the picture. The first ones are the chart's own, in this order; rows may bring more.
enum FontRole : quint8 {
    CellFont,
    BoldCellFont,
    AxisFont,
    PeriodFont,
    LabelFont,
    TitleFont,
    FootFont,
    fontRoles
};
using Font = KWTextFormat; // its colour is left to the style of a text
// What the styles of a sheet ask for.
std::vector<Font> standardFonts(const chartstyle::Sheet &sheet);
inline double pixelsOf(const Font &font)
{
    return font.pointSize * 96 / 72;
}

enum class RowKind : quint8 { Task, Summary, Milestone };

// One row, with its bar. What does not occur is `nowhere`.
constexpr double nowhere = std::numeric_limits<double>::infinity();
struct Row
{
    quint32 id = 0;
    RowKind kind = RowKind::Task;
    bool isCritical = false;
    bool isActive = false; // the selected task
    bool isLinked = false; // linked to the selected one
    bool isCollapsed = false;
    quint8 font = CellFont;      // of the name
    quint8 plainFont = CellFont; // of the other cells
    qint32 level = 1;            // 1 = top level
    double top = headHeight;
    double height = 30;
    double x1 = 0, x2 = 0; // the bar; a milestone's unit
    double done = 0;       // the finished part from x1, in pixels
    double baseX1 = nowhere, baseX2 = nowhere;
    double slackEnd = nowhere; // where the slack behind x2 ends

    bool hasBaseline() const { return baseX1 < nowhere; }
    bool hasSlack() const { return slackEnd < nowhere; }
    double bottom() const { return top + height; }
    double middle() const { return top + height / 2; }
};

// From one row to another, by row number of the whole plan.
struct Link
{
    int from = 0;
    int to = 0;
    bool isCritical = false;
    bool isHighlighted = false;
};

struct Column
{
    QString title;
    double width = 0;
    bool alignsRight = false;
    bool isName = false;
    bool isNumber = false; // of the row
};

// What stands in a cell.
struct CellView
{
    QString text;
    double indent = 0; // of the outline
    bool isSummary = false;
    bool isQuiet = false; // nothing worth a look
};

// The codes of the scale's units.
enum Unit : quint8 { Year, Quarter, Month, Week, Day, Hour, Minute };

// The time axis. A unit below the day counts only the hours of work, so its days have gaps in time but none
// in pixels.
struct Axis
{
    Unit minor = Day;
    Unit major = Week;
    double unitWidth = 60;
    double width = 0;
    int firstDay = 0; // days since 1970-01-01
    int lastDay = -1; // the last one on the chart
    int startHour = 8;
    int finishHour = 17;
    std::function<double(int day)> xOfDay; // its left edge; rises with the day
    std::function<bool(int day)> isWorkday;

    static QDate dateOf(int day) { return QDate::fromJulianDay(day + julianOf1970); }
    static int dayOf(const QDate &date) { return int(date.toJulianDay() - julianOf1970); }
    static constexpr int julianOf1970 = 2440588;
};

// The words of the picture, for hosts that speak another language.
struct Texts
{
    QString done = KW_TEXT("done");
    QString toDo = KW_TEXT("to do");
    QString critical = KW_TEXT("critical");
    QString slack = KW_TEXT("slack");
    QString baseline = KW_TEXT("baseline");
    QString summary = KW_TEXT("summary");
    QString milestone = KW_TEXT("milestone");
    QString link = KW_TEXT("link");
    QString dayOff = KW_TEXT("day off");
    QString today = KW_TEXT("today");
    QString sheet = KW_TEXT("%1 of %2 (%3)"); // page, pages, place such as B1

    QVector<QString *> all()
    {
        return {&done,      &toDo, &critical, &slack, &baseline, &summary,
                &milestone, &link, &dayOff,   &today, &sheet};
    }
};

struct Plan
{
    std::vector<Row> rows; // those that are at hand, from firstRow on
    int firstRow = 0;
    int rowCount = 0;           // of the whole plan
    double bottom = headHeight; // of its last row
    std::vector<Link> links;
    std::vector<Column> columns;
    std::vector<Font> fonts; // the roles', then others
    Axis axis;
    QLocale locale;
    Texts texts;
    double least = 4; // pixels between two lines of the grid; nearer ones are left out
    double today = nowhere;
    double room = 0;                // right of the axis, for labels
    std::vector<double> sheetEdges; // where sheets end, in order: labels do not cross them
    bool showsFoldMarks = true;
    bool showsBackground = true;
    bool showsLabels = true;

    // Texts by row number of the whole plan, and a column.
    std::function<CellView(int row, int column)> cell;
    std::function<QString(int row)> label;
    std::function<QString(int row)> address; // of a web page; empty: none
    // Pixels of a line of text in fonts[font].
    std::function<double(const QString &text, int font)> measure;

    bool has(int row) const { return row >= firstRow && row < firstRow + int(rows.size()); }
    const Row &at(int row) const { return rows[std::size_t(row - firstRow)]; }
    double width() const { return axis.width + room; }
    double tableWidth() const
    {
        double sum = 0;
        for (const Column &column : columns)
            sum += column.width;
        return sum;
    }
};
}
