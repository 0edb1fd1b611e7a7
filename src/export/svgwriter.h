#pragma once
#include "chart/mark.h"
#include "chart/plan.h"
#include "styles/chartstyle.h"
#include <QByteArray>
#include <QPointF>
#include <QRectF>

// Marks as SVG: shapes and real texts whose look is a style sheet's, one class for each style.
//
// Texts are placed by their ends as the table wants them, so that another font on the reader's machine does
// little harm.
class SvgWriter
{
public:
    SvgWriter(const chartstyle::Sheet &sheet, const std::vector<chart::Font> &fonts, const QString &family);

    // The rules of a <style> element for all styles. `scope` stands before each selector, such as ".chart ".
    QByteArray styleSheet(const QByteArray &scope = QByteArray()) const;
    // The <pattern>s that the rules refer to.
    QByteArray patterns() const;
    // The marks as elements; those of one task follow each other with its number as data-task where
    // `namesTasks`.
    QByteArray elements(const chart::Marks &marks, bool namesTasks = false) const;
    // A group of them, moved and scaled, visible inside `clip` alone. Clips need a number of their own in a
    // file.
    QByteArray group(const chart::Marks &marks, const QPointF &offset, double scale, const QRectF &clip,
                     int number) const;

    static QByteArray escaped(const QString &text);
    static QByteArray number(double value); // at most two decimals

private:
    void addElement(QByteArray &out, const chart::Mark &mark) const;
    void addLine(QByteArray &out, const chart::Mark &mark, const QByteArray &name,
                 const KWLineFormat &line) const;

    const chartstyle::Sheet &m_sheet;
    const std::vector<chart::Font> &m_fonts;
    QString m_family;
};
