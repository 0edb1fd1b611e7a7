#include "views/baselinepanel.h"
#include "baseline.h"
#include "documents/session.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include "shown.h"
#include <QAbstractTableModel>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int waitMilliseconds = 150;

enum Column { Number, Name, PlannedFinish, Finish, StartBy, FinishBy, CostBy, columnCount };
}

// The differences alone; texts are made when they are seen.
class BaselinePanel::Rows : public QAbstractTableModel
{
public:
    Rows(Session &session, QObject *parent)
        : QAbstractTableModel(parent)
        , m_session(session)
    {
    }

    void fill()
    {
        beginResetModel();
        m_rows.clear();
        m_hasBaseline = false;
        const Plan &plan = m_session.plan();
        for (int pos = 0; pos < plan.taskCount(); ++pos) {
            const KWTaskInfo &task = *plan.task(pos);
            if (!baseline::has(task))
                continue;
            m_hasBaseline = true;
            const baseline::Variance variance = baseline::varianceOf(plan, task);
            if (variance.startMinutes != 0 || variance.finishMinutes != 0 || variance.cost != 0)
                m_rows.push_back({task.ID, pos, variance});
        }
        arrange();
        endResetModel();
    }
    bool hasBaseline() const { return m_hasBaseline; }
    quint32 taskAt(int row) const { return row >= 0 && row < rowCount() ? m_rows[std::size_t(row)].task : 0; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : ::columnCount;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        const QString titles[] = {tr("No."),      tr("Task"),      tr("Baseline finish"), tr("Finish"),
                                  tr("Start by"), tr("Finish by"), tr("Cost by")};
        return role == Qt::DisplayRole && orientation == Qt::Horizontal && section < ::columnCount
                   ? QVariant(titles[section])
                   : QVariant();
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::TextAlignmentRole && (index.column() == Number || index.column() >= StartBy))
            return int(Qt::AlignRight | Qt::AlignVCenter);
        if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
            return QVariant();
        const Row &row = m_rows[std::size_t(index.row())];
        const Plan &plan = m_session.plan();
        const KWTaskInfo *task = m_session.document().getTaskInfoByID(row.task);
        if (!task)
            return QVariant(); // it goes as soon as the panel follows
        switch (index.column()) {
        case Number:
            return row.pos + 1;
        case Name:
            return shortened(task->Name);
        case PlannedFinish:
            return shown::endOf(plan, task->BaseFinish).text();
        case Finish:
            return shown::endOf(plan, task->Finish).text();
        case StartBy:
            return baseline::daysText(plan, row.variance.startMinutes);
        case FinishBy:
            return baseline::daysText(plan, row.variance.finishMinutes);
        default:
            return baseline::moneyText(row.variance.cost);
        }
    }
    void sort(int column, Qt::SortOrder order) override
    {
        m_column = column;
        m_order = order;
        Q_EMIT layoutAboutToBeChanged();
        arrange();
        Q_EMIT layoutChanged();
    }

private:
    struct Row
    {
        quint32 task;
        int pos;
        baseline::Variance variance;
    };

    double keyOf(const Row &row) const
    {
        const KWTaskInfo *task = m_session.document().getTaskInfoByID(row.task);
        switch (m_column) {
        case PlannedFinish:
            return task ? task->BaseFinish : 0;
        case Finish:
            return task ? task->Finish : 0;
        case StartBy:
            return double(row.variance.startMinutes);
        case FinishBy:
            return double(row.variance.finishMinutes);
        case CostBy:
            return row.variance.cost;
        default:
            return row.pos;
        }
    }
    QString nameOf(const Row &row) const
    {
        const KWTaskInfo *task = m_session.document().getTaskInfoByID(row.task);
        return task ? QString(task->Name) : QString();
    }
    void arrange()
    {
        const auto isBefore = [this](const Row &a, const Row &b) {
            return m_column == Name ? nameOf(a).localeAwareCompare(nameOf(b)) < 0 : keyOf(a) < keyOf(b);
        };
        std::stable_sort(m_rows.begin(), m_rows.end(), [&](const Row &a, const Row &b) {
            return m_order == Qt::AscendingOrder ? isBefore(a, b) : isBefore(b, a);
        });
    }

    Session &m_session;
    std::vector<Row> m_rows;
    bool m_hasBaseline = false;
    int m_column = Number;
    Qt::SortOrder m_order = Qt::AscendingOrder;
};

BaselinePanel::BaselinePanel(Session &session, QWidget *parent)
    : QDockWidget(tr("Compared with the baseline"), parent)
    , m_session(session)
    , m_table(new QTableView)
    , m_count(new QLabel)
    , m_rows(new Rows(session, this))
{
    setObjectName(QStringLiteral("baseline"));
    m_table->setAccessibleName(windowTitle());
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setModel(m_rows);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 8);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setSortIndicator(Number, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);
    for (const auto &[column, pixels] : {std::make_pair(Number, 56),
                                         {Name, 260},
                                         {PlannedFinish, 150},
                                         {Finish, 150},
                                         {StartBy, 100},
                                         {FinishBy, 100}})
        m_table->setColumnWidth(column, pixels);
    auto *inside = new QWidget;
    auto *layout = new QVBoxLayout(inside);
    layout->setContentsMargins(6, 2, 6, 2);
    layout->addWidget(m_count);
    layout->addWidget(m_table, 1);
    setWidget(inside);
    m_wait.setSingleShot(true);
    m_wait.setInterval(waitMilliseconds);
    connect(&m_wait, &QTimer::timeout, this, &BaselinePanel::compareNow);
    connect(&session, &Session::edited, this, &BaselinePanel::follow);
    connect(&session, &Session::replaced, this, &BaselinePanel::follow);
    connect(this, &QDockWidget::visibilityChanged, this, &BaselinePanel::follow);
    const auto jump = [this](const QModelIndex &index) { Q_EMIT jumped(m_rows->taskAt(index.row())); };
    connect(m_table, &QTableView::activated, this, jump);
    connect(m_table, &QTableView::clicked, this, jump);
    hide();
}

BaselinePanel::~BaselinePanel() = default;

void BaselinePanel::follow()
{
    if (!isHidden())
        m_wait.start();
}

void BaselinePanel::compareNow()
{
    m_wait.stop();
    m_rows->fill();
    const int tasks = count();
    m_count->setText(!m_rows->hasBaseline() ? tr("There is no baseline: Set baseline remembers one.")
                     : tasks == 0           ? tr("All tasks are where the baseline has them.")
                     : tasks == 1           ? tr("One task is not where the baseline has it.")
                                            : tr("%1 tasks are not where the baseline has them.").arg(tasks));
}

int BaselinePanel::count() const
{
    return m_rows->rowCount();
}

QString BaselinePanel::text(int row, int column) const
{
    return m_rows->index(row, column).data().toString();
}

void BaselinePanel::sort(int column, Qt::SortOrder order)
{
    m_table->sortByColumn(column, order);
}
