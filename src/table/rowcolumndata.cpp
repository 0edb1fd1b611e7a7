#include "table/rowcolumndata.h"
#include "editing/undoitems.h"
#include "engine/record/outline.h"
#include "format/dataformat.h"
#include "format/unitutil.h"
#include "model/kwdocument.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"
#include "table/documenttexts.h"
#include "table/rowcolumndata_xml.h"
#include <cmath>

namespace {

void setModified(KWDocument *document)
{
    if (document)
        document->setModified(true);
}
}

QMap<int, QString> RowColumnData::s_columnNames;
QMap<int, QString> RowColumnData::s_priorityNames;

RowColumnData::RowColumnData(KWDocument *document)
    : m_document(document)
{
    if (m_document)
        initColumnDataList();
}

RowColumnData::~RowColumnData()
{
    clearColDataList();
}

int RowColumnData::rowCount() const
{
    return m_document ? m_document->visibleRowCount() : 0;
}

double RowColumnData::getRowHeightByPos(int pos, bool scaled) const
{
    return m_rowHeights.value(pos, 0.0) * (scaled ? UnitUtil::dpiScale96() : 1.0);
}

double RowColumnData::getRowHeightByRow(int row) const
{
    constexpr bool scaled = false;
    return getRowHeightByPos(posOfRow(row), scaled);
}

void RowColumnData::replaceRowHeight(int pos, double height)
{
    if (pos < 0 || pos >= m_rowHeights.size())
        return;
    m_rowHeights[pos] = height;
    ++m_revision;
    setModified(m_document);
}

void RowColumnData::replaceRowHeightByRow(int row, double height)
{
    replaceRowHeight(posOfRow(row), height);
}

void RowColumnData::insertRowHeightByPos(int pos, double height)
{
    const int place = qBound(0, pos, m_rowHeights.size());
    if (place < m_rowHeights.size())
        ++m_revision;
    m_rowHeights.insert(place, height);
    setModified(m_document);
}

void RowColumnData::insertRowHeights(int pos, const QList<double> &heights)
{
    const int place = qBound(0, pos, m_rowHeights.size());
    setRowHeights(m_rowHeights.mid(0, place) + heights + m_rowHeights.mid(place));
}

// Heights are kept by pos: with hidden tasks above, the row's number would be another task's place.
void RowColumnData::insertRowHeightByRow(int row, double height)
{
    const int pos = posOfRow(qMax(row, 0));
    insertRowHeightByPos(pos < 0 ? m_rowHeights.size() : pos, height);
}

void RowColumnData::appendRowHeight(double height)
{
    m_rowHeights.append(height);
    setModified(m_document);
}

void RowColumnData::removeRowHeightAt(int pos)
{
    if (pos < 0 || pos >= m_rowHeights.size())
        return;
    m_rowHeights.removeAt(pos);
    ++m_revision;
    setModified(m_document);
}

void RowColumnData::moveRowHeights(int from, int to, int count)
{
    outline::moveEntries(m_rowHeights, from, to, count);
    ++m_revision;
    setModified(m_document);
}

void RowColumnData::setRowHeights(const QList<double> &heights)
{
    m_rowHeights = heights;
    ++m_revision;
    setModified(m_document);
}

void RowColumnData::setRowHeightCount(int count)
{
    if (count < m_rowHeights.size()) {
        m_rowHeights.erase(m_rowHeights.begin() + qMax(count, 0), m_rowHeights.end());
        ++m_revision;
        setModified(m_document);
    }
    m_rowHeights.reserve(count);
    while (m_rowHeights.size() < count)
        appendRowHeight(defaultRowHeight);
}

int RowColumnData::posOfRow(int row) const
{
    return m_document ? m_document->getPosByRow(row) : -1;
}

// ---- Cells
// -------------------------------------------------------------------------------------------------

QString RowColumnData::itemText(int row, int column) const
{
    const TaskRecord *task = m_document ? m_document->getTaskInfoByRow(row) : nullptr;
    const ColumnData *data = getColumnDataByColumn(column);
    if (!task || !data)
        return QString();
    return celltext::ofType(DocumentTexts(*m_document), *task, typeOfTitle(data->title),
                            {DataFormat::dateFormat(), false});
}

// ---- Undo records -----------------------------------------------------------------------------------------

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

// ---- XML --------------------------------------------------------------------------------------------------

QString tablexml::heightsText(const QList<double> &heights)
{
    constexpr int digits = 6;
    QString text;
    QString last; // mostly they are the same
    for (int pos = 0; pos < heights.size(); ++pos) {
        if (pos > 0)
            text += QLatin1Char(';');
        const double height = heights[pos];
        if (pos == 0 || height != heights[pos - 1] || height == 0)
            last = QString::number(std::isfinite(height) ? height : 0.0, 'g', digits);
        text += last;
    }
    return text;
}

QList<double> tablexml::heights(const XmlText &text)
{
    QList<double> heights;
    text.split(';', Qt::SkipEmptyParts, [&heights](const XmlText &part) { heights.append(part.toDouble()); });
    return heights;
}

void RowColumnData::save(QDomElement &parent) const
{
    DomSink sink(parent);
    tablexml::write(sink, *this);
}

void RowColumnData::parse(const QDomElement &element, bool skipRowHeights)
{
    tablexml::read(DomSource(element), *this, skipRowHeights);
}
