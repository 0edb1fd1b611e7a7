#include "table/customtable.h"
#include "engine/text/celltext.h"
#include "engine/text/columntypes.h"
#include "format/dataformat.h"
#include "format/unitutil.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "table/documenttexts.h"
#include "table/resourcetext.h"
#include "table/rowcolumndata.h"
#include <algorithm>
#include <cmath>

using columntypes::Kind;

namespace {

bool isNumber(Kind kind)
{
    switch (kind) {
    case Kind::Whole:
    case Kind::Duration:
    case Kind::Percent:
    case Kind::Money:
    case Kind::Work:
    case Kind::Flag:
    case Kind::NumberText:
        return true;
    case Kind::Text:
    case Kind::StartDate:
    case Kind::FinishDate:
    case Kind::Priority:
    case Kind::Hyperlinks:
    case Kind::Predecessors:
        break;
    }
    return false;
}

struct ResourceColumn
{
    double width; // pixels at 96 dpi
    bool isNumber;
};

// In the order of resourcetext::Key.
constexpr ResourceColumn resourceColumns[resourcetext::keyCount] = {
    {30, true}, {200, false}, {80, true},   {80, false},  {80, true},
    {80, true}, {80, true},   {128, false}, {200, false}, {200, false}};
}

CustomTable::CustomTable(KWDocument *document)
    : CustomTable(document, Tasks)
{
    if (!document)
        return;
    const RowColumnData &table = *document->rowColumnData();
    const int count = table.columnCount();
    for (int column = 0; column < count; ++column) {
        const RowColumnData::ColumnData &data = *table.getColumnDataByColumn(column);
        addTaskColumn(RowColumnData::typeOfTitle(data.title), data.title, data.width);
    }
}

CustomTable::CustomTable(KWDocument *document, const QMap<int, QString> &titles)
    : CustomTable(document, Resources)
{
    for (auto title = titles.cbegin(); document && title != titles.cend(); ++title) {
        if (title.key() < 0 || title.key() >= resourcetext::keyCount)
            continue;
        const ResourceColumn &column = resourceColumns[title.key()];
        HeadItem head;
        head.title = title.value();
        head.type = title.key();
        head.width = column.width * m_scale;
        head.isRightAligned = column.isNumber;
        add(head);
    }
}

CustomTable::CustomTable(KWDocument *document, const std::vector<int> &columnTypes)
    : CustomTable(document, Tasks)
{
    constexpr double usualWidth = 128; // of a column that the document does not have
    for (const int type : columnTypes) {
        const QString title = RowColumnData::s_columnNames.value(type);
        if (!document || !columntypes::find(type) || title.isEmpty())
            continue;
        const RowColumnData::ColumnData *data = document->rowColumnData()->getColumnDataByName(title);
        addTaskColumn(type, title, data ? data->width : usualWidth * m_scale);
    }
}

CustomTable::CustomTable(KWDocument *document, Kind kind)
    : m_document(document)
    , m_kind(kind)
    , m_scale(UnitUtil::dpiScale96())
    , m_style(std::make_unique<celltext::Style>())
{
    if (document) {
        *m_style = {DataFormat::dateFormat(), false};
        m_calendar = &document->workCalendar();
    }
}

CustomTable::~CustomTable() = default;

QMap<QString, QString> CustomTable::s_shownTitles;

void CustomTable::addTaskColumn(int type, const QString &title, double width)
{
    const columntypes::ColumnType *column = columntypes::find(type);
    HeadItem head;
    head.title = title;
    head.type = type;
    head.width = width;
    head.isRightAligned = column && isNumber(column->kind);
    add(head);
}

void CustomTable::add(HeadItem head)
{
    head.x = width();
    constexpr double maximumWidth = 10000;
    head.width = head.width > minimumWidth * m_scale ? std::min(head.width, maximumWidth * m_scale)
                                                     : minimumWidth * m_scale;
    m_heads.push_back(head);
}

QString CustomTable::shownTitleOf(int column) const
{
    const HeadItem &head = m_heads[std::size_t(column)];
    const bool isCounted = m_countsTasks && m_kind == Tasks && head.type == columntypes::Id;
    return shownTitle(isCounted ? QString::fromLatin1(placeTitle) : head.title);
}

QString CustomTable::placesOf(const KWDocument &document, const QList<quint32> &tasks)
{
    QStringList places;
    for (const quint32 id : tasks) {
        const int pos = document.getPosByID(id);
        if (pos >= 0)
            places.append(QString::number(pos + 1));
    }
    return places.join(QLatin1String("; "));
}

int CustomTable::columnAtX(double x) const
{
    if (!(x >= 0 && x < width()))
        return -1;
    const auto behind = std::upper_bound(m_heads.begin(), m_heads.end(), x,
                                         [](double value, const HeadItem &head) { return value < head.x; });
    return int(behind - m_heads.begin()) - 1;
}

int CustomTable::rowCount() const
{
    if (!m_document)
        return 0;
    return m_kind == Tasks ? m_document->rowColumnData()->rowCount()
                           : m_document->resourceInfoData()->infos.size();
}

double CustomTable::headBottom() const
{
    return headHeight * m_scale;
}

double CustomTable::bottom() const
{
    const int count = rowCount();
    return count == 0 ? headBottom() : rowBottom(count - 1);
}

double CustomTable::rowTop(int row) const
{
    return row <= 0 ? headBottom() : rowBottom(row - 1);
}

double CustomTable::rowBottom(int row) const
{
    if (row < 0 || row >= rowCount())
        return headBottom();
    return m_kind == Tasks ? m_document->getRowYByRow(row, false)
                           : headBottom() + (row + 1) * resourceHeight * m_scale;
}

int CustomTable::rowAtY(double y) const
{
    if (!m_document)
        return -1;
    if (m_kind == Tasks)
        return m_document->getRowByPtY(y, false);
    // top < y <= bottom here, too.
    if (!(y > headBottom() && y <= bottom()))
        return -1;
    return std::min(int(std::ceil((y - headBottom()) / (resourceHeight * m_scale))), rowCount()) - 1;
}

RowPlace CustomTable::placeOf(int row) const
{
    return {row, rowTop(row), rowBottom(row)};
}

TableRow CustomTable::taskRow(int row) const
{
    TableRow found;
    const KWTaskInfo *task = m_document && m_kind == Tasks ? m_document->getTaskInfoByRow(row) : nullptr;
    if (!task)
        return found;
    static_cast<RowPlace &>(found) = placeOf(row);
    found.task = task;
    return found;
}

ResourceTableRow CustomTable::resourceRow(int row) const
{
    ResourceTableRow found;
    const ResourceInfo *resource =
        m_document && m_kind == Resources ? m_document->resourceInfoData()->getResourceInfoAt(row) : nullptr;
    if (!resource)
        return found;
    static_cast<RowPlace &>(found) = placeOf(row);
    found.resource = resource;
    return found;
}

Cell CustomTable::cell(int row, int column) const
{
    return m_kind == Tasks ? cell(taskRow(row), column) : cell(resourceRow(row), column);
}

Cell CustomTable::emptyCell(const RowPlace &row, int column) const
{
    const HeadItem &head = m_heads[std::size_t(column)];
    Cell cell;
    cell.rect = QRectF(head.x, row.top, head.width, row.height());
    cell.type = head.type;
    cell.isRightAligned = head.isRightAligned;
    return cell;
}

Cell CustomTable::cell(const TableRow &row, int column) const
{
    if (!row.task || column < 0 || column >= columnCount())
        return Cell();
    const KWTaskInfo &task = *row.task;
    Cell cell = emptyCell(row, column);
    cell.text = celltext::ofType(DocumentTexts(*m_document, m_calendar), task, cell.type, *m_style);
    if (m_countsTasks && cell.type == columntypes::Id)
        cell.text = placesOf(*m_document, {task.ID});
    if (m_countsTasks && cell.type == columntypes::Predecessors)
        cell.text = placesOf(*m_document, task.Predecessors);
    const columntypes::ColumnType *type = columntypes::find(cell.type);
    cell.isMuted = cell.type == 0 || (type && type->kind == columntypes::Kind::Percent && task.Percent == 0);
    cell.isBold = task.isParent() && cell.type == columntypes::Name;
    if (cell.type == columntypes::Name) {
        const int level = std::clamp(task.Level - 1, 0, maxIndentLevels);
        cell.indent = (level * indentWidth + foldMarkWidth) * m_scale;
        if (task.isParent())
            cell.fold = task.IsToggler ? Cell::Folded : Cell::Open;
    }
    return cell;
}

Cell CustomTable::cell(const ResourceTableRow &row, int column) const
{
    if (!row.resource || column < 0 || column >= columnCount())
        return Cell();
    Cell cell = emptyCell(row, column);
    cell.text = resourcetext::ofField(*m_document->resourceInfoData(), *row.resource, cell.type);
    return cell;
}
