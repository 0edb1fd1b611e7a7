// The table's rows and columns as XML.
#include "table/rowcolumndata_xml.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"
#include <cmath>

QString tablexml::heightsText(const QList<double> &heights)
{
    constexpr int digits = 6;
    QString text;
    for (int pos = 0; pos < heights.size(); ++pos) {
        if (pos > 0)
            text += QLatin1Char(';');
        const double height = heights[pos];
        text += QString::number(std::isfinite(height) ? height : 0.0, 'g', digits);
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
