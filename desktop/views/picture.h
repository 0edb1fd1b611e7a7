#pragma once
#include "export/exportoptions.h"
#include <QImage>
#include <QPointF>
#include <QRect>
#include <memory>

class GanttPdfExport;
class QPainter;
class Session;

// The plan's picture on the screen: the same marks and the same painter as in a file.
class Picture
{
public:
    explicit Picture(Session &session);
    ~Picture();

    KWExportOptions options; // scale, rows and columns are the document's

    // The same on paper, which is white and has no cursor.
    KWExportOptions onPaper() const;

    enum Part { Table, Chart };
    // The part of the picture that begins at `topLeft` (the chart's left edge is 0, the table stands left of
    // it, the head begins at 0) into a rectangle of a widget.
    void paint(QPainter &painter, const QRect &target, const QPointF &topLeft, Part part);
    // Another document has taken the place of the one before.
    void restart();

private:
    Session &m_session;
    std::unique_ptr<GanttPdfExport> m_export;
    QImage m_image; // kept from frame to frame
};
