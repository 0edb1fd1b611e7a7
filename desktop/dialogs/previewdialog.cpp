#include "dialogs/previewdialog.h"
#include "dialogs/fitting.h"
#include "documents/session.h"
#include "export/ganttpdfexport.h"
#include "texts.h"
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>

namespace {

constexpr int sheetPixels = 900; // of the longer side on the screen
constexpr double millimetresOfInch = 25.4;
}

PreviewDialog::PreviewDialog(Session &session, const KWExportOptions &options, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_options(options)
    , m_sheet(new QLabel)
    , m_count(new QLabel)
    , m_number(new QSpinBox)
{
    setWindowTitle(tr("Print preview"));
    m_sheet->setAlignment(Qt::AlignCenter);
    auto *area = new QScrollArea;
    area->setWidget(m_sheet);
    area->setAccessibleName(windowTitle());
    area->setWidgetResizable(true);
    area->setBackgroundRole(QPalette::Dark);
    auto *setup = new QPushButton(tr("Page &set-up…"));
    auto *write = new QPushButton(tr("&Save as PDF…"));
    auto *print = new QPushButton(tr("P&rint…"));
    auto *close = new QPushButton(tr("&Close"));
    m_number->setAccessibleName(tr("Sheet"));
    auto *bar = new QHBoxLayout;
    bar->addWidget(new QLabel(tr("Sheet")));
    bar->addWidget(m_number);
    bar->addWidget(m_count);
    bar->addStretch(1);
    bar->addWidget(setup);
    bar->addWidget(write);
    bar->addWidget(print);
    bar->addWidget(close);
    auto *all = new QVBoxLayout(this);
    all->addLayout(bar);
    all->addWidget(area, 1);
    connect(m_number, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int number) { showPage(number - 1); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(write, &QPushButton::clicked, this, &PreviewDialog::exportWanted);
    connect(print, &QPushButton::clicked, this, &PreviewDialog::printWanted);
    connect(setup, &QPushButton::clicked, this, [this] {
        Q_EMIT setupWanted();
        restart();
    });
    fitting::resize(*this, QSize(1000, 760));
    restart();
}

void PreviewDialog::restart()
{
    GanttPdfExport drawing(&m_session.document());
    drawing.options = m_options;
    m_pages = drawing.pageCount();
    m_count->setText(tr("of %1").arg(m_pages));
    m_number->setRange(qMin(1, m_pages), m_pages);
    if (m_pages == 0 && !drawing.findings().isEmpty())
        m_sheet->setText(texts::said(drawing.findings().list().first().what));
    showPage(qBound(0, m_number->value() - 1, qMax(0, m_pages - 1)));
}

void PreviewDialog::showPage(int page)
{
    GanttPdfExport drawing(&m_session.document());
    drawing.options = m_options;
    const QSizeF paper = drawing.pageSize();
    const double ratio = devicePixelRatioF();
    const double dpi =
        sheetPixels * ratio * millimetresOfInch / qMax(1.0, qMax(paper.width(), paper.height()));
    QImage image = drawing.pageImage(page, dpi);
    if (image.isNull())
        return;
    image.setDevicePixelRatio(ratio);
    m_sheet->setPixmap(QPixmap::fromImage(image));
}
