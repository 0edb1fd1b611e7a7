// The table's columns.
#include "format/unitutil.h"
#include "model/kwdocument.h"
#include "table/rowcolumndata.h"

namespace {

constexpr int idType = 0;
constexpr int nameType = 1;

struct DefaultColumn
{
    int type;
    double width; // pixels at 96 dpi
    bool isHide;
};

constexpr DefaultColumn defaultColumns[] = {
    {idType, 30, false}, {nameType, 240, false}, {2, 128, false}, {3, 128, false}, {4, 80, false},
    {5, 80, false},      {6, 80, true},          {7, 200, false}, {8, 200, true},  {9, 128, true},
    {10, 128, true},     {11, 80, true},         {12, 128, true}, {13, 128, true}, {14, 128, true},
    {15, 128, true},     {16, 80, true},         {17, 80, true},  {18, 80, true},  {19, 200, true},
    {20, 128, true},     {21, 128, true},        {22, 128, true}, {23, 80, true},
};
}

int RowColumnData::typeOfTitle(const QString &title)
{
    return s_columnNames.key(title, idType);
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
    return type != idType && type != nameType;
}
