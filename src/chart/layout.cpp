#include "chart/layout.h"
#include "chart/elide.h"
#include <algorithm>
#include <cmath>

namespace chart {

namespace {

// Pixels.
constexpr double lineHeight = 20; // of the head
constexpr double cellInset = 8;
constexpr double numberInset = 12; // right of a number, so that it keeps off the next title
constexpr double foldRoom = 12;    // of a fold mark before a name
constexpr double foldSize = 7;
constexpr double labelGap = 11;
constexpr double widestLabel = 320;
constexpr double narrowestLabel = 24;
constexpr double labelHeight = 14;
constexpr double baselineHeight = 3;
constexpr double baselineGap = 1.5;
constexpr double baselineDiamond = 10;
constexpr double summaryHeight = 5;
constexpr double summaryTip = 7;
constexpr double summaryTipHeight = 10;
constexpr double periodInset = 8;
constexpr double haloGap = 2.5;

Mark shape(Kind kind, Style style, Shape form, const QRectF &rect, quint32 task = 0)
{
    Mark mark;
    mark.kind = kind;
    mark.style = style;
    mark.shape = form;
    mark.rect = rect;
    mark.task = task;
    return mark;
}

Mark points(Kind kind, Style style, Shape form, const QVector<QPointF> &corners, quint32 task = 0)
{
    QRectF bounds;
    if (!corners.isEmpty()) {
        double left = corners[0].x(), right = left, top = corners[0].y(), bottom = top;
        for (const QPointF &corner : corners) {
            left = std::min(left, corner.x());
            right = std::max(right, corner.x());
            top = std::min(top, corner.y());
            bottom = std::max(bottom, corner.y());
        }
        bounds = QRectF(QPointF(left, top), QPointF(right, bottom));
    }
    Mark mark = shape(kind, style, form, bounds, task);
    mark.points = corners;
    return mark;
}

Mark text(Kind kind, Style style, int font, Align align, const QRectF &rect, const QString &words,
          quint32 task = 0)
{
    Mark mark = shape(kind, style, Shape::Text, rect, task);
    mark.font = quint8(font);
    mark.align = align;
    mark.text = words;
    return mark;
}

Mark line(Kind kind, Style style, double x1, double y1, double x2, double y2)
{
    return points(kind, style, Shape::Line, {QPointF(x1, y1), QPointF(x2, y2)});
}

QVector<QPointF> diamond(const QPointF &centre, double size)
{
    const double half = size / 2;
    return {centre + QPointF(0, -half), centre + QPointF(half, 0), centre + QPointF(0, half),
            centre + QPointF(-half, 0)};
}

bool touches(const QRectF &rect, double x0, double x1)
{
    return rect.right() >= x0 && rect.left() <= x1;
}

// The text in the room from x on, elided where need be; its rect is as wide as it is.
Mark cellText(const Plan &plan, Kind kind, Style style, int font, Align align, double x, double width,
              double top, double height, const QString &words, quint32 task = 0)
{
    double measured = 0;
    const QString line = elided(
        oneLine(words), std::max(0.0, width), [&](const QString &part) { return plan.measure(part, font); },
        &measured);
    const double left = align == Align::Left    ? x
                        : align == Align::Right ? x + width - measured
                                                : x + (width - measured) / 2;
    return text(kind, style, font, align, QRectF(left, top, measured, height), line, task);
}

// Points down where the summary is open, right where it is collapsed.
QVector<QPointF> foldMark(const QPointF &centre, bool isCollapsed)
{
    const double half = foldSize / 2, flat = foldSize / 4, tip = flat + 1;
    if (isCollapsed)
        return {centre + QPointF(-flat, -half), centre + QPointF(tip, 0), centre + QPointF(-flat, half)};
    return {centre + QPointF(-half, -flat), centre + QPointF(half, -flat), centre + QPointF(0, tip)};
}

double barHeightOf(const Row &row)
{
    return std::max(1.0, std::min(barHeight, row.height - 2));
}

// As the document cuts it, to a whole pixel.
double barTop(const Row &row)
{
    return std::floor(row.top + (row.height - barHeightOf(row)) / 2);
}
}

std::vector<Font> standardFonts(const chartstyle::Sheet &sheet)
{
    std::vector<Font> fonts;
    for (const Style role : {Style::TableText, Style::TableSummary, Style::HeadUnit, Style::HeadMajor,
                             Style::Label, Style::PageTitle, Style::PageText})
        fonts.push_back(sheet.style(role).text);
    return fonts;
}

// ---- Bars -------------------------------------------------------------------------------------------------

QRectF Layout::barRect(int row) const
{
    const Row &at = m_plan.at(row);
    const double top = barTop(at);
    const double height = barHeightOf(at);
    if (at.kind == RowKind::Milestone) {
        const double unit = m_plan.axis.unitWidth;
        const double left = at.x1 + std::max(0.0, (unit - diamondSize) / 2);
        return QRectF(left, at.middle() - diamondSize / 2, diamondSize, diamondSize);
    }
    if (at.kind == RowKind::Summary) {
        const double offset = std::min(3.0, height / 4);
        return QRectF(at.x1, top + offset, std::max(0.0, at.x2 - at.x1),
                      std::min(summaryHeight, height - offset));
    }
    return QRectF(at.x1, top, std::max(0.0, at.x2 - at.x1), height);
}

void Layout::addBar(Marks &low, Marks &marks, int rowNumber) const
{
    const Row &row = m_plan.at(rowNumber);
    const QRectF bar = barRect(rowNumber);
    const auto inBar = [&](Kind kind, Style style, Shape form, double x, double y, double width,
                           double height) {
        return shape(kind, style, form, QRectF(x, y, width, height), row.id);
    };
    if (row.isActive || row.isLinked)
        low.push_back(shape(Kind::Highlight, row.isActive ? Style::ActiveHalo : Style::LinkedHalo,
                            Shape::RoundRect, bar.adjusted(-haloGap, -haloGap, haloGap, haloGap), row.id));
    if (row.hasBaseline()) {
        if (row.kind == RowKind::Milestone)
            low.push_back(points(
                Kind::Baseline, Style::BaselineMilestone, Shape::Polygon,
                diamond(QPointF((row.baseX1 + row.baseX2) / 2, row.middle()), baselineDiamond), row.id));
        else
            low.push_back(inBar(Kind::Baseline, Style::Baseline, Shape::Rect, row.baseX1,
                                barTop(row) + barHeightOf(row) + baselineGap,
                                std::max(0.0, row.baseX2 - row.baseX1), baselineHeight));
    }
    if (row.hasSlack()) {
        const double y = row.middle();
        low.push_back(points(Kind::Slack, Style::Slack, Shape::Line,
                             {QPointF(bar.right(), y), QPointF(row.slackEnd, y)}, row.id));
    }
    switch (row.kind) {
    case RowKind::Milestone:
        marks.push_back(points(Kind::Milestone, row.isCritical ? Style::CriticalMilestone : Style::Milestone,
                               Shape::Polygon, diamond(bar.center(), diamondSize), row.id));
        if (row.isCritical)
            marks.push_back(points(Kind::Critical, Style::CriticalMilestone, Shape::Line,
                                   {QPointF(bar.left() + 1.5, bar.center().y()),
                                    QPointF(bar.center().x(), bar.bottom() - 1.5),
                                    QPointF(bar.right() - 1.5, bar.center().y())},
                                   row.id));
        break;
    case RowKind::Summary: {
        const double tip = std::min(summaryTip, bar.width() / 2);
        const double tipBottom =
            bar.top() + std::min(summaryTipHeight, std::max(summaryHeight, barHeightOf(row)));
        marks.push_back(points(Kind::Summary, Style::Summary, Shape::Polygon,
                               {bar.topLeft(), bar.topRight(), QPointF(bar.right(), tipBottom),
                                QPointF(bar.right() - tip, bar.bottom()),
                                QPointF(bar.left() + tip, bar.bottom()), QPointF(bar.left(), tipBottom)},
                               row.id));
        if (row.done > 0)
            marks.push_back(inBar(Kind::Progress, Style::SummaryDone, Shape::Rect, bar.left(),
                                  bar.top() + (bar.height() - 2) / 2, row.done, 2));
        break;
    }
    case RowKind::Task:
        marks.push_back(inBar(Kind::Bar, row.isCritical ? Style::CriticalBar : Style::Bar, Shape::RoundRect,
                              bar.x(), bar.y(), bar.width(), bar.height()));
        if (row.done > 0)
            marks.push_back(inBar(Kind::Progress, row.isCritical ? Style::CriticalDone : Style::BarDone,
                                  row.done >= bar.width() ? Shape::RoundRect : Shape::LeftRoundRect, bar.x(),
                                  bar.y(), row.done, bar.height()));
        if (row.isCritical)
            marks.push_back(inBar(Kind::Critical, Style::CriticalBar, Shape::Rect, bar.x(), bar.bottom() - 2,
                                  bar.width(), 2));
        break;
    }
}

// ---- Labels -----------------------------------------------------------------------------------------------

std::pair<double, double> Layout::sheetAt(double x) const
{
    const std::vector<double> &edges = m_plan.sheetEdges;
    const auto right = std::upper_bound(edges.begin(), edges.end(), x);
    return {right == edges.begin() ? 0.0 : *(right - 1), right == edges.end() ? m_plan.width() : *right};
}

LabelBox Layout::placed(int row) const
{
    const QString words = m_plan.showsLabels && m_plan.label ? oneLine(m_plan.label(row)) : QString();
    if (words.isEmpty())
        return {};
    double width = 0;
    elided(
        words, widestLabel, [&](const QString &part) { return m_plan.measure(part, LabelFont); }, &width);
    const Row &at = m_plan.at(row);
    const QRectF bar = barRect(row);
    double behind = bar.right();
    if (at.hasSlack())
        behind = std::max(behind, at.slackEnd);
    double before = bar.left();
    if (at.hasBaseline() && at.kind == RowKind::Milestone) {
        // An old place of the diamond stands at the label's height.
        const double middle = (at.baseX1 + at.baseX2) / 2;
        if (middle + baselineDiamond > behind && middle - baselineDiamond < behind + labelGap + width)
            behind = middle + baselineDiamond / 2;
        if (middle - baselineDiamond < before && middle + baselineDiamond > before - labelGap - width)
            before = middle - baselineDiamond / 2;
    }
    constexpr double edgeGap = 3;
    const auto [sheetLeft, sheetRight] = sheetAt(behind);
    const double roomRight = sheetRight - edgeGap - (behind + labelGap);
    if (width <= roomRight && behind >= sheetLeft)
        return {behind + labelGap, width};
    const double leftEdge = sheetAt(before).first + edgeGap;
    if (before - labelGap - width >= leftEdge)
        return {before - labelGap - width, width};
    // Cut where there is more room.
    const double roomLeft = before - labelGap - leftEdge;
    const double room = std::max(roomRight, roomLeft);
    if (room < narrowestLabel)
        return {};
    elided(
        words, room, [&](const QString &part) { return m_plan.measure(part, LabelFont); }, &width);
    return {roomRight >= roomLeft ? behind + labelGap : before - labelGap - width, width};
}

LabelBox Layout::label(int row) const
{
    const std::size_t at = std::size_t(row - m_plan.firstRow);
    if (!m_isPlaced[at]) {
        m_labels[at] = placed(row);
        m_isPlaced[at] = true;
    }
    return m_labels[at];
}

QString Layout::labelText(int row) const
{
    constexpr double rounding = 0.01;
    return elided(oneLine(m_plan.label(row)), label(row).width + rounding,
                  [&](const QString &part) { return m_plan.measure(part, LabelFont); });
}

void Layout::addLabel(Marks &marks, int row) const
{
    const LabelBox box = label(row);
    if (!box.isSet())
        return;
    const Row &at = m_plan.at(row);
    marks.push_back(
        text(Kind::Label, Style::Label, LabelFont, box.x < barRect(row).left() ? Align::Right : Align::Left,
             QRectF(box.x, at.middle() - labelHeight / 2, box.width, labelHeight), labelText(row), at.id));
}

// ---- The chart --------------------------------------------------------------------------------------------

Marks Layout::body(int first, int last, double x0, double x1) const
{
    first = std::max(first, m_plan.firstRow);
    last = std::min(last, m_plan.firstRow + int(m_plan.rows.size()) - 1);
    Marks marks;
    if (first > last)
        return marks;
    const double top = m_plan.at(first).top;
    const double bottom = m_plan.at(last).bottom();
    const Axis &axis = m_plan.axis;
    if (m_plan.showsBackground) {
        for (const UnitSpan &span : daysOff(axis, x0, x1, std::max(3.0, m_plan.least)))
            marks.push_back(shape(Kind::Shade, Style::DayOff, Shape::Rect,
                                  QRectF(span.x1, top, span.x2 - span.x1, bottom - top)));
        double lastLine = top;
        for (int row = first; row <= last; ++row) {
            const double y = m_plan.at(row).bottom();
            if (row < last && y - lastLine < m_plan.least)
                continue;
            marks.push_back(line(Kind::Grid, Style::RowLine, x0, y, x1, y));
            lastLine = y;
        }
    }
    for (const double x : unitEdges(axis, x0, x1, m_plan.least))
        marks.push_back(line(Kind::Grid, Style::UnitLine, x, top, x, bottom));
    for (const UnitSpan &span : headPeriods(m_plan, m_head, x0, x1))
        if (span.x1 > x0 || span.x1 <= 0)
            marks.push_back(line(Kind::Grid, Style::MajorLine, span.x1, top, span.x1, bottom));
    if (x1 >= axis.width)
        marks.push_back(line(Kind::Grid, Style::UnitLine, axis.width, top, axis.width, bottom));

    Marks low, bars, labels;
    for (int row = first; row <= last; ++row) {
        addBar(low, bars, row);
        addLabel(labels, row);
    }
    const auto take = [&](Marks &part) {
        for (Mark &mark : part)
            if (touches(mark.rect, x0, x1))
                marks.push_back(std::move(mark));
    };
    // Rows do not overlap, so only the order within a row matters. What looks alike stands together: painters
    // make one path of it.
    const auto together = [](Marks &part) {
        const auto layer = [](const Mark &mark) {
            switch (mark.kind) {
            case Kind::Baseline:
            case Kind::Progress:
                return 1;
            case Kind::Slack:
            case Kind::Critical:
                return 2;
            default:
                return 0;
            }
        };
        std::stable_sort(part.begin(), part.end(), [&](const Mark &one, const Mark &other) {
            return layer(one) != layer(other) ? layer(one) < layer(other) : one.style < other.style;
        });
    };
    together(low);
    together(bars);
    take(low);
    take(bars);
    addLinks(marks, first, last, x0, x1);
    if (m_plan.today >= x0 && m_plan.today <= x1)
        marks.push_back(line(Kind::Today, Style::Today, m_plan.today, headHeight, m_plan.today, bottom));
    take(labels);
    return marks;
}

Marks Layout::head(double x0, double x1) const
{
    Marks marks;
    if (m_plan.showsBackground)
        marks.push_back(
            shape(Kind::Ground, Style::HeadGround, Shape::Rect, QRectF(x0, 0, x1 - x0, headHeight)));
    marks.push_back(line(Kind::Grid, Style::HeadLine, x0, headHeight, x1, headHeight));
    Marks texts; // after the lines, so that what looks alike stands together
    for (const UnitSpan &span : headUnits(m_plan, m_head, x0, x1)) {
        const double width = span.x2 - span.x1;
        if (span.x1 > x0 && width >= m_plan.least)
            marks.push_back(line(Kind::Grid, Style::UnitLine, span.x1, lineHeight, span.x1, headHeight));
        if (!span.text.isEmpty())
            texts.push_back(cellText(m_plan, Kind::HeadText,
                                     span.isOff ? Style::HeadUnitOff : Style::HeadUnit, AxisFont,
                                     Align::Centre, span.x1, width, lineHeight, lineHeight, span.text));
    }
    for (const UnitSpan &span : headPeriods(m_plan, m_head, x0, x1)) {
        if (span.x1 > x0 || span.x1 <= 0)
            marks.push_back(line(Kind::Grid, Style::MajorLine, span.x1, 0, span.x1, headHeight));
        if (!span.text.isEmpty())
            texts.push_back(cellText(m_plan, Kind::HeadText, Style::HeadMajor, PeriodFont, Align::Left,
                                     span.x1 + periodInset, span.x2 - span.x1 - periodInset, 0, lineHeight,
                                     span.text));
    }
    marks.insert(marks.end(), texts.begin(), texts.end());
    if (m_plan.today >= x0 && m_plan.today <= x1) {
        // Hangs below the head, where it covers none of its texts.
        constexpr double half = 4.5;
        marks.push_back(
            points(Kind::Today, Style::Today, Shape::Polygon,
                   {QPointF(m_plan.today - half, headHeight), QPointF(m_plan.today + half, headHeight),
                    QPointF(m_plan.today, headHeight + headOverhang)}));
    }
    return marks;
}

// ---- The table --------------------------------------------------------------------------------------------

Marks Layout::table(int first, int last, const std::vector<int> &columns, double left) const
{
    first = std::max(first, m_plan.firstRow);
    last = std::min(last, m_plan.firstRow + int(m_plan.rows.size()) - 1);
    Marks marks;
    double right = left;
    for (const int column : columns)
        right += m_plan.columns[std::size_t(column)].width;
    // All of them together, so that painters can take them in one stroke.
    for (int row = first; row <= last && m_plan.showsBackground; ++row)
        marks.push_back(
            line(Kind::Grid, Style::RowLine, left, m_plan.at(row).bottom(), right, m_plan.at(row).bottom()));
    for (int row = first; row <= last; ++row) {
        const Row &at = m_plan.at(row);
        double x = left;
        for (const int number : columns) {
            const Column &column = m_plan.columns[std::size_t(number)];
            const CellView cell = m_plan.cell ? m_plan.cell(row, number) : CellView();
            double from = x + cellInset;
            double width = column.width - cellInset - (column.alignsRight ? numberInset : cellInset);
            const double shift = std::min(cell.indent, std::max(0.0, width) / 2);
            if (m_plan.showsFoldMarks && cell.isSummary && shift >= foldRoom) {
                const QPointF centre(from + shift - foldRoom / 2 - 2, at.middle());
                marks.push_back(points(Kind::FoldMark, Style::FoldMark, Shape::Polygon,
                                       foldMark(centre, at.isCollapsed), at.id));
            }
            from += shift;
            width -= shift;
            const QString address = column.isName && m_plan.address ? m_plan.address(row) : QString();
            x += column.width;
            if (cell.text.isEmpty())
                continue;
            Mark mark = cellText(m_plan, Kind::CellText,
                                 !address.isEmpty() ? Style::TableLink
                                 : cell.isQuiet     ? Style::TableMuted
                                 : cell.isSummary   ? Style::TableSummary
                                                    : Style::TableText,
                                 column.isName ? at.font : at.plainFont,
                                 column.alignsRight ? Align::Right : Align::Left, from, width, at.top,
                                 at.height, cell.text, at.id);
            if (mark.text.isEmpty())
                continue;
            if (!address.isEmpty()) {
                Mark anchor = shape(Kind::WebLink, Style::TableLink, Shape::Anchor, mark.rect, at.id);
                anchor.text = address;
                marks.push_back(std::move(anchor));
            }
            marks.push_back(std::move(mark));
        }
    }
    return marks;
}

Marks Layout::tableHead(const std::vector<int> &columns, double left) const
{
    Marks marks;
    double right = left;
    for (const int column : columns)
        right += m_plan.columns[std::size_t(column)].width;
    if (m_plan.showsBackground)
        marks.push_back(
            shape(Kind::Ground, Style::HeadGround, Shape::Rect, QRectF(left, 0, right - left, headHeight)));
    marks.push_back(line(Kind::Grid, Style::HeadLine, left, headHeight, right, headHeight));
    double x = left;
    for (const int number : columns) {
        const Column &column = m_plan.columns[std::size_t(number)];
        const double shift =
            column.isName && m_plan.showsFoldMarks ? std::min(foldRoom, column.width / 4) : 0;
        const double inset = column.alignsRight ? numberInset : cellInset;
        marks.push_back(cellText(m_plan, Kind::HeadText, Style::TableTitle, BoldCellFont,
                                 column.alignsRight ? Align::Right : Align::Left, x + cellInset + shift,
                                 column.width - cellInset - inset - shift, lineHeight, lineHeight,
                                 column.title));
        x += column.width;
    }
    return marks;
}

Marks marks(const Plan &plan, int first, int last, double x0, double x1)
{
    const Layout layout(plan);
    Marks all;
    const auto take = [&all](const Marks &part) { all.insert(all.end(), part.begin(), part.end()); };
    if (x0 < 0) {
        std::vector<int> columns;
        double left = -plan.tableWidth();
        double start = left;
        for (int i = 0; i < int(plan.columns.size()); ++i) {
            const double right = left + plan.columns[std::size_t(i)].width;
            if (right < x0)
                start = right;
            else if (left <= x1)
                columns.push_back(i);
            left = right;
        }
        take(layout.tableHead(columns, start));
        take(layout.table(first, last, columns, start));
    }
    if (x1 > 0) {
        take(layout.head(std::max(0.0, x0), x1));
        take(layout.body(first, last, std::max(0.0, x0), x1));
    }
    return all;
}

// ---- The legend -------------------------------------------------------------------------------------------

Used usedIn(const Plan &plan)
{
    Used used;
    for (const Row &row : plan.rows) {
        const bool isTask = row.kind == RowKind::Task;
        used.done |= isTask && row.done > 0;
        used.toDo |= isTask && !row.isCritical && (row.done < row.x2 - row.x1 || !(row.done > 0));
        used.critical |= row.isCritical && row.kind != RowKind::Summary;
        used.slack |= row.hasSlack();
        used.baseline |= row.hasBaseline();
        used.summary |= row.kind == RowKind::Summary;
        used.milestone |= row.kind == RowKind::Milestone;
    }
    used.link = !plan.links.empty();
    used.dayOff =
        plan.showsBackground && !daysOff(plan.axis, 0, plan.axis.width, std::max(3.0, plan.least)).empty();
    used.today = plan.today < nowhere;
    return used;
}

Marks legend(const Plan &plan, const Used &used, double left, double top, double width, double *height)
{
    constexpr double rowHeight = 24, sampleWidth = 32, sampleGap = 8, entryGap = 24;
    const struct
    {
        bool isUsed;
        QString words;
        Style style;
    } entries[] = {
        {used.done, plan.texts.done, Style::BarDone},
        {used.toDo, plan.texts.toDo, Style::Bar},
        {used.critical, plan.texts.critical, Style::CriticalBar},
        {used.slack, plan.texts.slack, Style::Slack},
        {used.baseline, plan.texts.baseline, Style::Baseline},
        {used.summary, plan.texts.summary, Style::Summary},
        {used.milestone, plan.texts.milestone, Style::Milestone},
        {used.link, plan.texts.link, Style::Link},
        {used.dayOff, plan.texts.dayOff, Style::DayOff},
        {used.today, plan.texts.today, Style::Today},
    };
    Marks marks;
    double x = left, y = top;
    for (const auto &entry : entries) {
        if (!entry.isUsed)
            continue;
        const double textWidth = plan.measure(entry.words, LabelFont);
        if (x > left && x + sampleWidth + sampleGap + textWidth > left + width) {
            x = left;
            y += rowHeight;
        }
        const double middle = y + rowHeight / 2;
        const QRectF box(x, middle - 5, sampleWidth, 10);
        switch (entry.style) {
        case Style::Slack:
            marks.push_back(line(Kind::Legend, entry.style, box.left(), middle, box.right(), middle));
            break;
        case Style::Baseline:
            marks.push_back(shape(Kind::Legend, entry.style, Shape::Rect,
                                  QRectF(x, middle - baselineHeight / 2, sampleWidth, baselineHeight)));
            break;
        case Style::Summary:
            marks.push_back(points(Kind::Legend, entry.style, Shape::Polygon,
                                   {QPointF(x, middle - 4), QPointF(box.right(), middle - 4),
                                    QPointF(box.right(), middle + 5), QPointF(box.right() - 6, middle + 1),
                                    QPointF(x + 6, middle + 1), QPointF(x, middle + 5)}));
            break;
        case Style::Milestone:
            marks.push_back(points(Kind::Legend, entry.style, Shape::Polygon, diamond(box.center(), 13)));
            break;
        case Style::Link:
            marks.push_back(line(Kind::Legend, entry.style, x, middle, box.right(), middle));
            break;
        case Style::Today:
            marks.push_back(
                line(Kind::Legend, entry.style, box.center().x(), middle - 8, box.center().x(), middle + 8));
            break;
        case Style::DayOff:
            marks.push_back(
                shape(Kind::Legend, entry.style, Shape::Rect, QRectF(x, middle - 6, sampleWidth, 12)));
            break;
        case Style::CriticalBar:
            marks.push_back(shape(Kind::Legend, entry.style, Shape::RoundRect, box));
            marks.push_back(shape(Kind::Critical, Style::CriticalBar, Shape::Rect,
                                  QRectF(x, box.bottom() - 2, sampleWidth, 2)));
            break;
        default:
            marks.push_back(shape(Kind::Legend, entry.style, Shape::RoundRect, box));
        }
        marks.push_back(text(Kind::Legend, Style::Legend, LabelFont, Align::Left,
                             QRectF(x + sampleWidth + sampleGap, y, textWidth, rowHeight), entry.words));
        x += sampleWidth + sampleGap + textWidth + entryGap;
    }
    if (height)
        *height = marks.empty() ? 0 : y + rowHeight - top;
    return marks;
}
}
