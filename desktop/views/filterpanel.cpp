#include "views/filterpanel.h"
#include "documents/session.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include <QAbstractListModel>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QVBoxLayout>

namespace {

constexpr int waitMilliseconds = 150;
}

// The IDs alone; what is told of a task is asked when it is seen.
class FilterPanel::Rows : public QAbstractListModel
{
public:
    Rows(Session &session, QObject *parent)
        : QAbstractListModel(parent)
        , m_session(session)
    {
    }

    void fill(const taskfilter::Filter &filter)
    {
        beginResetModel();
        m_filter = filter;
        m_ids.clear();
        for (const KWTaskInfo *task : m_session.document().taskList())
            if (taskfilter::matches(m_session.document(), *task, filter))
                m_ids.append(task->ID);
        endResetModel();
    }
    const QVector<quint32> &ids() const { return m_ids; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_ids.size();
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        KWDocument &document = m_session.document();
        const KWTaskInfo *task = document.getTaskInfoByID(m_ids.value(index.row()));
        if (!task || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
            return QVariant();
        const QString remark = taskfilter::remark(document, *task, m_filter);
        const QString name =
            QStringLiteral("%1  %2").arg(document.getPosByID(task->ID) + 1).arg(shortened(task->Name));
        return remark.isEmpty() ? name : name + QStringLiteral("   ") + remark;
    }

private:
    Session &m_session;
    taskfilter::Filter m_filter;
    QVector<quint32> m_ids;
};

FilterPanel::FilterPanel(Session &session, QWidget *parent)
    : QDockWidget(tr("Filter"), parent)
    , m_session(session)
    , m_filters(new QComboBox)
    , m_hides(new QCheckBox(tr("Hide the other tasks")))
    , m_list(new QListView)
    , m_count(new QLabel)
    , m_rows(new Rows(session, this))
{
    setObjectName(QStringLiteral("filter"));
    m_filters->setAccessibleName(tr("Which tasks"));
    m_list->setAccessibleName(tr("Tasks found"));
    m_list->setUniformItemSizes(true);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setModel(m_rows);
    auto *inside = new QWidget;
    auto *layout = new QVBoxLayout(inside);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_filters);
    layout->addWidget(m_hides);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_count);
    setWidget(inside);
    m_wait.setSingleShot(true);
    m_wait.setInterval(waitMilliseconds);
    connect(&m_wait, &QTimer::timeout, this, &FilterPanel::filterNow);
    connect(&session, &Session::edited, this, &FilterPanel::follow);
    connect(&session, &Session::replaced, this, &FilterPanel::follow);
    const auto narrow = [this] {
        filterNow();
        Q_EMIT narrowed();
    };
    connect(this, &QDockWidget::visibilityChanged, this, [this, narrow] {
        follow();
        if (m_hides->isChecked())
            narrow();
    });
    connect(m_filters, QOverload<int>::of(&QComboBox::activated), this, narrow);
    connect(m_hides, &QCheckBox::toggled, this, narrow);
    const auto jump = [this](const QModelIndex &index) { Q_EMIT jumped(m_rows->ids().value(index.row())); };
    connect(m_list, &QListView::activated, this, jump);
    connect(m_list, &QListView::clicked, this, jump);
    hide();
}

FilterPanel::~FilterPanel() = default;

bool FilterPanel::hidesOthers() const
{
    return m_hides->isChecked() && !isHidden();
}

void FilterPanel::setHidesOthers(bool hides)
{
    m_hides->setChecked(hides);
}

void FilterPanel::follow()
{
    if (!isHidden())
        m_wait.start();
}

void FilterPanel::fillFilters()
{
    const QString before = m_filters->currentText();
    m_all = taskfilter::all(m_session.document());
    QStringList titles;
    for (const taskfilter::Filter &filter : qAsConst(m_all))
        titles.append(taskfilter::title(filter));
    m_filters->clear();
    m_filters->addItems(titles);
    m_filters->setCurrentIndex(qMax(0, titles.indexOf(before)));
}

void FilterPanel::choose(const taskfilter::Filter &filter)
{
    fillFilters();
    m_filters->setCurrentIndex(qMax(0, m_filters->findText(taskfilter::title(filter))));
    filterNow();
    if (m_hides->isChecked())
        Q_EMIT narrowed();
}

void FilterPanel::filterNow()
{
    m_wait.stop();
    fillFilters();
    m_rows->fill(m_all.value(m_filters->currentIndex()));
    const int count = m_rows->ids().size();
    m_count->setText(count == 1 ? tr("1 task") : tr("%1 tasks").arg(count));
}

QVector<quint32> FilterPanel::found() const
{
    return m_rows->ids();
}
