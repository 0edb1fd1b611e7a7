#include "dialogs/resourcesdialog.h"
#include "dialogs/fitting.h"
#include "documents/session.h"
#include "edit.h"
#include "look.h"
#include "resources/resourceinfodata.h"
#include "sheettext.h"
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace {

enum Column { Name, Type, Units, Rate, Overtime, PerUse, Group, Email, Notes, columnCount };
// How the command line calls them; the name is a field of its own.
constexpr const char *fields[columnCount] = {"",        "type",  "units", "rate", "overtime",
                                             "per-use", "group", "email", "notes"};
constexpr const char *types[] = {"work", "material"}; // likewise

QString typeText(int type)
{
    return type == 0 ? ResourcesDialog::tr("work") : ResourcesDialog::tr("material");
}

// The word of the command line for what the sheet shows; other texts are what they are.
QString typeWord(const QString &text)
{
    for (int type = 0; type < 2; ++type)
        if (text.compare(typeText(type), Qt::CaseInsensitive) == 0)
            return QLatin1String(types[type]);
    return text;
}
}

ResourcesDialog::ResourcesDialog(Session &session, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_sheet(new QTableWidget(0, columnCount))
    , m_complaint(new QLabel)
{
    setWindowTitle(tr("Resources"));
    m_sheet->setHorizontalHeaderLabels({tr("Name"), tr("Type"), tr("Units"), tr("Rate"), tr("Overtime"),
                                        tr("Per use"), tr("Group"), tr("Email"), tr("Notes")});
    m_sheet->horizontalHeader()->setStretchLastSection(true);
    m_sheet->verticalHeader()->hide();
    m_sheet->setColumnWidth(Name, 180);
    m_sheet->setAccessibleName(windowTitle());
    look::complains(*m_complaint);
    auto *add = new QPushButton(tr("&Add"));
    auto *remove = new QPushButton(tr("&Remove"));
    auto *close = new QPushButton(tr("&Close"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(remove);
    buttons->addWidget(m_complaint, 1);
    buttons->addWidget(close);
    auto *all = new QVBoxLayout(this);
    all->addWidget(m_sheet, 1);
    all->addLayout(buttons);
    connect(add, &QPushButton::clicked, this, &ResourcesDialog::addResource);
    connect(remove, &QPushButton::clicked, this, &ResourcesDialog::removeResource);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_sheet, &QTableWidget::cellChanged, this, &ResourcesDialog::changed);
    fitting::resize(*this, QSize(960, 420));
    fill();
}

void ResourcesDialog::fill()
{
    m_isFilling = true;
    const QVector<ResourceInfo *> &infos = m_session.document().resourceInfoData()->infos;
    m_sheet->setRowCount(infos.size());
    for (int row = 0; row < infos.size(); ++row) {
        const ResourceInfo &info = *infos.at(row);
        const QString texts[columnCount] = {info.name,
                                            typeText(info.type),
                                            sheettext::unitsText(info.unit),
                                            sheettext::rateText({info.cost, info.costUnit}),
                                            sheettext::rateText({info.overtimeCost, info.overtimeUnit}),
                                            sheettext::moneyText(info.costPer),
                                            info.group,
                                            info.email,
                                            info.notes};
        for (int column = 0; column < columnCount; ++column)
            m_sheet->setItem(row, column, new QTableWidgetItem(texts[column]));
    }
    m_isFilling = false;
}

void ResourcesDialog::say(const QString &text)
{
    m_complaint->setText(text);
}

QString ResourcesDialog::complaint() const
{
    return m_complaint->text();
}

void ResourcesDialog::changed(int row, int column)
{
    if (m_isFilling)
        return;
    const ResourceInfo *info = m_session.document().resourceInfoData()->getResourceInfoAt(row);
    QString text = m_sheet->item(row, column)->text().trimmed();
    if (column == Type)
        text = typeWord(text);
    if (!info)
        return;
    const QString name = info->name;
    options::Fault fault;
    const EditAnswer answer = m_session.edit(tr("Change resource"), [&](PlanEdits &edits) {
        if (column == Name)
            return edits.renameResource(name, text);
        // Read and judged as on the command line.
        editverbs::Outcome outcome;
        QStringList words{name, QLatin1String(fields[column]) + QLatin1Char('=') + text};
        Edit edit{m_session.plan(), m_session.document(), edits, {}, words, fault, outcome};
        EditAnswer done;
        if (!editverbs::setResource(edit))
            done.refusal = EditRefusal::BadAmount;
        return done;
    });
    say(answer.isDone() ? QString()
        : fault.what.isEmpty()
            ? answer.sentence()
            : fault.what + (fault.hint.isEmpty() ? QString() : QLatin1String(": ") + fault.hint));
    fill();
}

void ResourcesDialog::addResource()
{
    const QString name =
        m_session.document().resourceInfoData()->differentSuffixResourceName(tr("New resource"));
    m_session.edit(tr("Add resource"), [&](PlanEdits &edits) { return edits.addResource(name); });
    fill();
    m_sheet->setCurrentCell(m_sheet->rowCount() - 1, Name);
    m_sheet->editItem(m_sheet->item(m_sheet->rowCount() - 1, Name));
}

void ResourcesDialog::removeResource()
{
    const ResourceInfo *info =
        m_session.document().resourceInfoData()->getResourceInfoAt(m_sheet->currentRow());
    if (!info)
        return;
    const QString name = info->name;
    const EditAnswer answer =
        m_session.edit(tr("Remove resource"), [&](PlanEdits &edits) { return edits.removeResource(name); });
    say(answer.losses.isEmpty()     ? QString()
        : answer.losses.size() == 1 ? tr("One assignment went with it")
                                    : tr("%1 assignments went with it").arg(answer.losses.size()));
    fill();
}
