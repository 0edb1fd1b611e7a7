#include "dialogs/pagesetupdialog.h"
#include "documents/session.h"
#include "export/ganttpdfexport.h"
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPageSize>
#include <QRadioButton>
#include <cmath>

namespace {

constexpr unsigned int millimetre = 1;
constexpr QPageSize::PageSizeId papers[] = {QPageSize::A4,     QPageSize::A3,    QPageSize::A2,
                                            QPageSize::A1,     QPageSize::A0,    QPageSize::A5,
                                            QPageSize::Letter, QPageSize::Legal, QPageSize::Tabloid};

QSizeF sizeOf(QPageSize::PageSizeId paper)
{
    return QPageSize::size(paper, QPageSize::Millimeter);
}
}

PageSetupDialog::PageSetupDialog(Session &session, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_paper(new QComboBox)
    , m_orientation(new QComboBox)
    , m_left(new QDoubleSpinBox)
    , m_top(new QDoubleSpinBox)
    , m_fits(new QRadioButton(tr("&Fit to")))
    , m_zooms(new QRadioButton(tr("&Scale to")))
    , m_across(new QSpinBox)
    , m_down(new QSpinBox)
    , m_zoom(new QSpinBox)
    , m_background(new QCheckBox(tr("Days off and lines behind the bars")))
    , m_marks(new QCheckBox(tr("Fold marks of summaries")))
    , m_outcome(new QLabel)
{
    setWindowTitle(tr("Page set-up"));
    for (const QPageSize::PageSizeId paper : papers)
        m_paper->addItem(QPageSize::name(paper), int(paper));
    m_orientation->addItems({tr("Landscape"), tr("Portrait")});
    for (QDoubleSpinBox *margin : {m_left, m_top}) {
        margin->setRange(0, 100);
        margin->setDecimals(1);
        margin->setSuffix(tr(" mm"));
        connect(margin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &PageSetupDialog::showOutcome);
    }
    constexpr int mostSheets = 100, leastZoom = 10, mostZoom = 400;
    m_across->setRange(1, mostSheets);
    m_down->setRange(1, mostSheets);
    m_zoom->setRange(leastZoom, mostZoom);
    m_zoom->setSuffix(QStringLiteral(" %"));
    m_across->setAccessibleName(tr("Sheets across"));
    m_down->setAccessibleName(tr("Sheets down"));
    m_zoom->setAccessibleName(tr("&Scale to").remove(QLatin1Char('&')));
    auto *sheets = new QHBoxLayout;
    sheets->addWidget(m_fits);
    sheets->addWidget(m_across);
    sheets->addWidget(new QLabel(tr("sheets across and")));
    sheets->addWidget(m_down);
    sheets->addWidget(new QLabel(tr("down")));
    sheets->addStretch(1);
    auto *scale = new QHBoxLayout;
    scale->addWidget(m_zooms);
    scale->addWidget(m_zoom);
    scale->addStretch(1);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *form = new QFormLayout(this);
    form->addRow(tr("&Paper"), m_paper);
    form->addRow(tr("&Orientation"), m_orientation);
    form->addRow(tr("Margins &left and right"), m_left);
    form->addRow(tr("Margins &above and below"), m_top);
    form->addRow(sheets);
    form->addRow(scale);
    form->addRow(m_background);
    form->addRow(m_marks);
    form->addRow(m_outcome);
    form->addRow(buttons);
    for (QComboBox *box : {m_paper, m_orientation})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &PageSetupDialog::showOutcome);
    for (QSpinBox *box : {m_across, m_down, m_zoom})
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &PageSetupDialog::showOutcome);
    connect(m_fits, &QRadioButton::toggled, this, &PageSetupDialog::showOutcome);
    fill(session.document().printConfig);
}

void PageSetupDialog::fill(const KWPrintConfig &config)
{
    m_isFilling = true;
    int nearest = 0;
    double least = 1e9;
    for (int i = 0; i < m_paper->count(); ++i) {
        const QSizeF size = sizeOf(QPageSize::PageSizeId(m_paper->itemData(i).toInt()));
        const double width = qMin(config.Width, config.Height), height = qMax(config.Width, config.Height);
        const double distance = std::abs(size.width() - width) + std::abs(size.height() - height);
        if (distance < least) {
            least = distance;
            nearest = i;
        }
    }
    m_paper->setCurrentIndex(config.Unit == millimetre ? nearest : 0);
    m_orientation->setCurrentIndex(config.Portrait);
    m_left->setValue(config.Left);
    m_top->setValue(config.Top);
    (config.FittoSheet ? m_fits : m_zooms)->setChecked(true);
    m_across->setValue(config.HSheet);
    m_down->setValue(config.VSheet);
    m_zoom->setValue(config.Zoom);
    m_background->setChecked(config.Background);
    m_marks->setChecked(config.Toggle);
    m_isFilling = false;
    showOutcome();
}

KWPrintConfig PageSetupDialog::config() const
{
    KWPrintConfig config;
    const QSizeF paper = sizeOf(QPageSize::PageSizeId(m_paper->currentData().toInt()));
    config.Unit = millimetre;
    config.Width = paper.width();
    config.Height = paper.height();
    config.Portrait = m_orientation->currentIndex() == 1;
    config.Left = m_left->value();
    config.Top = m_top->value();
    config.FittoSheet = m_fits->isChecked();
    config.HSheet = qint16(m_across->value());
    config.VSheet = qint16(m_down->value());
    config.Zoom = m_zoom->value();
    config.Background = m_background->isChecked();
    config.Toggle = m_marks->isChecked();
    return config;
}

// On the plan itself, which gets its own set-up back.
void PageSetupDialog::showOutcome()
{
    if (m_isFilling)
        return;
    for (QWidget *widget : {static_cast<QWidget *>(m_across), static_cast<QWidget *>(m_down)})
        widget->setEnabled(m_fits->isChecked());
    m_zoom->setEnabled(m_zooms->isChecked());
    KWDocument &document = m_session.document();
    const KWPrintConfig before = document.printConfig;
    document.printConfig = config();
    GanttPdfExport drawing(&document);
    const QSize sheets = drawing.sheetCounts();
    const double points = sheets.isEmpty() ? 0 : drawing.smallestText();
    document.printConfig = before;
    constexpr double readable = 4.5;
    if (sheets.isEmpty())
        m_outcome->setText(drawing.findings().isEmpty() ? QString() : drawing.findings().list().first().what);
    else if (sheets == QSize(1, 1))
        m_outcome->setText(tr("One sheet, smallest text %1 pt%2")
                               .arg(points, 0, 'f', 1)
                               .arg(points < readable ? tr(": hard to read") : QString()));
    else
        m_outcome->setText(tr("%1 × %2 sheets, smallest text %3 pt%4")
                               .arg(sheets.width())
                               .arg(sheets.height())
                               .arg(points, 0, 'f', 1)
                               .arg(points < readable ? tr(": hard to read") : QString()));
}

QString PageSetupDialog::outcome() const
{
    return m_outcome->text();
}

void PageSetupDialog::accept()
{
    m_session.document().printConfig = config();
    m_session.changeBesideSteps();
    QDialog::accept();
}
