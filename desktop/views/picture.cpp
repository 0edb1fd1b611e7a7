#include "views/picture.h"
#include "documents/session.h"
#include "export/ganttpdfexport.h"
#include "support/kwclock.h"
#include <QPaintDevice>
#include <QPainter>

Picture::Picture(Session &session)
    : m_session(session)
{
    options.highlight = true;
    restart();
}

Picture::~Picture() = default;

void Picture::restart()
{
    m_export = std::make_unique<GanttPdfExport>(&m_session.document());
}

void Picture::paint(QPainter &painter, const QRect &target, const QPointF &topLeft, Part part)
{
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize size = (QSizeF(target.size()) * ratio).toSize();
    if (size.isEmpty())
        return;
    if (m_image.width() < size.width() || m_image.height() < size.height())
        m_image = QImage(m_image.size().expandedTo(size), QImage::Format_RGB32);
    // A view of the corner that is needed.
    QImage image(m_image.bits(), size.width(), size.height(), m_image.bytesPerLine(), QImage::Format_RGB32);
    m_export->options = options;
    m_export->options.now = KWClock::now();
    if (part == Table)
        m_export->options.links = m_export->options.baseline = m_export->options.slack = false;
    if (!m_export->paint(image, QRectF(topLeft, QSizeF(target.size())), ratio)) {
        painter.fillRect(target, Qt::white);
        return;
    }
    image.setDevicePixelRatio(ratio);
    painter.drawImage(target.topLeft(), image);
}
