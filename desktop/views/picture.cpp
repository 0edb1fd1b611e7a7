#include "views/picture.h"
#include "documents/session.h"
#include "export/ganttpdfexport.h"
#include "support/kwclock.h"
#include <QFileInfo>
#include <QPaintDevice>
#include <QPainter>
#include <cmath>

Picture::Picture(Session &session)
    : m_session(session)
{
    options.highlight = true;
    options.countTasks = true;
    restart();
}

Picture::~Picture() = default;

void Picture::restart()
{
    m_export = std::make_unique<GanttPdfExport>(&m_session.document());
}

KWExportOptions Picture::onPaper() const
{
    KWExportOptions paper = options;
    paper.theme = KWExportOptions::Light;
    paper.highlight = false;
    paper.title = QFileInfo(m_session.name()).completeBaseName();
    return paper;
}

void Picture::paint(QPainter &painter, const QRect &target, const QPointF &topLeft, Part part)
{
    const double ratio = painter.device()->devicePixelRatioF();
    if (target.isEmpty())
        return;
    // Where a pixel is no whole number of the screen's, a widget may reach one further than its size says.
    const int beyond = ratio == std::floor(ratio) ? 0 : 1;
    const QSize size(int(std::ceil(target.width() * ratio)) + beyond,
                     int(std::ceil(target.height() * ratio)) + beyond);
    if (m_image.width() < size.width() || m_image.height() < size.height())
        m_image = QImage(m_image.size().expandedTo(size), QImage::Format_RGB32);
    // A view of the corner that is needed.
    QImage image(m_image.bits(), size.width(), size.height(), m_image.bytesPerLine(), QImage::Format_RGB32);
    m_export->options = options;
    m_export->options.now = KWClock::now();
    if (part == Table)
        m_export->options.links = m_export->options.baseline = m_export->options.slack = false;
    if (!m_export->paint(image, QRectF(topLeft, QSizeF(size) / ratio), ratio)) {
        painter.fillRect(target, Qt::white);
        return;
    }
    image.setDevicePixelRatio(ratio);
    painter.drawImage(target.topLeft(), image);
}
