// Row heights and columns in and out of undo records.
#include "editing/undoitems.h"
#include "model/kwdocument.h"
#include "table/rowcolumndata.h"

void RowColumnData::getUndoRowVal(UndoItemData *item) const
{
    constexpr bool scaled = false;
    if (item && m_document)
        item->rowHeight = getRowHeightByPos(m_document->getPosByID(item->ID), scaled);
}

void RowColumnData::setUndoRowVal(const UndoItemData *item)
{
    if (!item || !m_document)
        return;
    const int pos = m_document->getPosByID(item->ID);
    constexpr bool scaled = false;
    // Most edits leave it alone, and a change moves every row below.
    if (getRowHeightByPos(pos, scaled) != item->rowHeight)
        replaceRowHeight(pos, item->rowHeight);
}

void RowColumnData::ColumnData::getUndoColVal(UndoColData *column) const
{
    if (!column)
        return;
    column->isHide = isHide;
    column->title = title;
    column->width = width;
}

void RowColumnData::ColumnData::setUndoColVal(const UndoColData *column)
{
    if (!column)
        return;
    isHide = column->isHide;
    title = column->title;
    width = column->width;
}
