#pragma once
#include "format/unitutil.h"
#include "support/xmltext.h"
#include "table/rowcolumndata.h"

// The XML form of the table's rows and columns, over any of the XML sinks and sources.
namespace tablexml {

QString heightsText(const QList<double> &heights);
QList<double> heights(const XmlText &text);

// With the given heights instead of the table's own.
template <typename Sink>
void write(Sink &sink, const RowColumnData &table, const QList<double> &rowHeights)
{
    sink.open("RowHeightList");
    sink.attribute("RowHeight", heightsText(rowHeights));
    sink.close();
    sink.open("ColumnList");
    for (const RowColumnData::ColumnData *column : table.columns()) {
        sink.open("Column");
        sink.attribute("IsHide", column->isHide.value());
        sink.attribute("Key", qint32(RowColumnData::typeOfTitle(column->title)));
        sink.attribute("Width", column->width / UnitUtil::dpiScale96());
        sink.close();
    }
    sink.close();
}

template <typename Sink>
void write(Sink &sink, const RowColumnData &table)
{
    write(sink, table, table.rowHeights());
}

template <typename Source>
void readColumn(Source &source, RowColumnData::ColumnData &column)
{
    const XmlText isHide = source.text("IsHide");
    if (!isHide.isEmpty())
        column.isHide = isHide.toInt() != 0;
    const XmlText key = source.text("Key");
    if (!key.isEmpty())
        column.title = RowColumnData::s_columnNames.value(key.toInt());
    xmltext::read(source.text("Width"), column.width);
    column.width *= UnitUtil::dpiScale96();
}

// Replaces the columns by those of a "ColumnList".
template <typename Source>
void readColumns(const Source &list, RowColumnData &table)
{
    table.clearColDataList();
    for (Source each = list.firstChild(); !each.isNull(); each = each.nextSibling()) {
        auto *column = new RowColumnData::ColumnData;
        readColumn(each, *column);
        table.appendColumnData(column);
    }
}

template <typename Source>
void read(const Source &source, RowColumnData &table, bool skipRowHeights)
{
    for (Source child = source.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.is("RowHeightList")) {
            if (!skipRowHeights)
                table.setRowHeights(heights(child.text("RowHeight")));
        } else if (child.is("ColumnList")) {
            readColumns(child, table);
        }
    }
}
}
