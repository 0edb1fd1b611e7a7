// The table's columns.
#include "engine/record/codes.h"
#include "format/unitutil.h"
#include "model/kwdocument.h"
#include "table/rowcolumndata.h"

namespace {

struct DefaultColumn
{
    int type;
    double width; // pixels at 96 dpi
    bool isHide;
};

constexpr DefaultColumn defaultColumns[] = {
    {columntypes::Id, 30, false},
    {columntypes::Name, 240, false},
    {columntypes::Start, 128, false},
    {columntypes::Finish, 128, false},
    {columntypes::Duration, 80, false},
    {columntypes::Percent, 80, false},
    {columntypes::Priority, 80, true},
    {columntypes::ResourceNames, 200, false},
    {columntypes::Hyperlinks, 200, true},
    {columntypes::Cost, 128, true},
    {columntypes::RemainingCost, 128, true},
    {columntypes::Work, 80, true},
    {columntypes::EarlyStart, 128, true},
    {columntypes::EarlyFinish, 128, true},
    {columntypes::LateStart, 128, true},
    {columntypes::LateFinish, 128, true},
    {columntypes::StartSlack, 80, true},
    {columntypes::FinishSlack, 80, true},
    {columntypes::Critical, 80, true},
    {columntypes::Notes, 200, true},
    {columntypes::BaselineStart, 128, true},
    {columntypes::BaselineFinish, 128, true},
    {columntypes::BaselineCost, 128, true},
    {columntypes::Level, 80, true},
};
}

int RowColumnData::typeOfTitle(const QString &title)
{
    return s_columnNames.key(title, columntypes::Id);
}

void RowColumnData::initColumnDataList()
{
    clearColDataList();
    for (const DefaultColumn &each : defaultColumns) {
        auto *column = new ColumnData;
        column->isHide = each.isHide;
        column->title = s_columnNames.value(each.type);
        column->width = each.width * UnitUtil::dpiScale96();
        appendColumnData(column);
    }
}

void RowColumnData::columnsChanged()
{
    ++m_columnRevision;
    if (m_document)
        m_document->setModified(true);
}

void RowColumnData::appendColumnData(ColumnData *column)
{
    if (!column)
        return;
    column->isHide.attach(&m_columnRevision);
    column->title.attach(&m_columnRevision);
    m_columns.append(column);
    columnsChanged();
}

const RowColumnData::ColumnIndex &RowColumnData::columnIndex() const
{
    if (m_columnIndex.madeAt == m_columnRevision)
        return m_columnIndex;
    ColumnIndex index;
    index.madeAt = m_columnRevision;
    for (int pos = 0; pos < m_columns.size(); ++pos) {
        const ColumnData &column = *m_columns[pos];
        index.columnOfPos.push_back(column.isHide ? -1 : int(index.posOfColumn.size()));
        if (!column.isHide)
            index.posOfColumn.push_back(pos);
        if (!index.posOfTitle.contains(column.title))
            index.posOfTitle.insert(column.title, pos);
    }
    m_columnIndex = std::move(index);
    return m_columnIndex;
}

int RowColumnData::columnCount() const
{
    return int(columnIndex().posOfColumn.size());
}

RowColumnData::ColumnData *RowColumnData::getColumnDataByPos(int pos) const
{
    return m_columns.value(pos, nullptr);
}

RowColumnData::ColumnData *RowColumnData::getColumnDataByColumn(int column) const
{
    const std::vector<int> &posOfColumn = columnIndex().posOfColumn;
    return column >= 0 && column < int(posOfColumn.size()) ? m_columns[posOfColumn[size_t(column)]] : nullptr;
}

int RowColumnData::getPosByName(const QString &title) const
{
    return title.isEmpty() ? -1 : columnIndex().posOfTitle.value(title, -1);
}

int RowColumnData::getColumnByName(const QString &title) const
{
    const int pos = getPosByName(title);
    return pos < 0 ? -1 : columnIndex().columnOfPos[size_t(pos)];
}

RowColumnData::ColumnData *RowColumnData::getColumnDataByName(const QString &title) const
{
    return getColumnDataByPos(getPosByName(title));
}

void RowColumnData::moveColumnDataList(int from, int to)
{
    const ColumnData *moved = getColumnDataByColumn(from);
    if (!moved)
        return;
    const ColumnData *target = getColumnDataByColumn(qBound(0, to, columnCount() - 1));
    const int fromPos = getPosByName(moved->title);
    const int toPos = getPosByName(target->title);
    if (fromPos < 0 || toPos < 0)
        return;
    m_columns.move(fromPos, toPos);
    columnsChanged();
}

void RowColumnData::setAllColDataHide()
{
    for (ColumnData *column : qAsConst(m_columns))
        column->isHide = true;
    columnsChanged();
}

void RowColumnData::clearColDataList()
{
    qDeleteAll(m_columns);
    m_columns.clear();
    columnsChanged();
}

void RowColumnData::oldToNewColValue(const ColumnData *from, ColumnData *to)
{
    if (from && to)
        *to = *from;
}

bool RowColumnData::isReplaceColumn(int pos) const
{
    const ColumnData *column = getColumnDataByPos(pos);
    if (!column)
        return false;
    const int type = typeOfTitle(column->title);
    return type != columntypes::Id && type != columntypes::Name;
}
