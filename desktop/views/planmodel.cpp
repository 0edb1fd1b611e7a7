#include "views/planmodel.h"
#include "documents/session.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include "texts.h"
#include <QTextDocument>
#include <algorithm>

PlanModel::PlanModel(Session &session, QObject *parent)
    : QAbstractTableModel(parent)
    , m_session(session)
    , m_table(newTable())
    , m_ids(visibleIds())
{
    connect(&session, &Session::replaced, this, &PlanModel::restart);
    connect(&session, &Session::edited, this, &PlanModel::follow);
}

std::unique_ptr<CustomTable> PlanModel::newTable() const
{
    KWDocument *document = &m_session.document();
    auto table = std::make_unique<CustomTable>(document);
    table->setCountsTasks(true);
    if (!m_showsPredecessors)
        return table;
    std::vector<int> types;
    for (const HeadItem &head : table->heads())
        types.push_back(head.type);
    if (std::find(types.begin(), types.end(), cellinput::predecessorsType) == types.end())
        types.push_back(cellinput::predecessorsType);
    table = std::make_unique<CustomTable>(document, types);
    table->setCountsTasks(true);
    return table;
}

std::vector<int> PlanModel::columnTypes() const
{
    std::vector<int> types;
    for (const HeadItem &head : m_table->heads())
        types.push_back(head.type);
    return types;
}

void PlanModel::setShowsPredecessors(bool isShown)
{
    m_showsPredecessors = isShown;
    restart();
}

std::vector<quint32> PlanModel::visibleIds() const
{
    std::vector<quint32> ids;
    ids.reserve(std::size_t(m_session.document().visibleRowCount()));
    for (const KWTaskInfo *task : m_session.document().taskList())
        if (task->HideID == 0 && (m_hidden.isEmpty() || !m_hidden.contains(task->ID)))
            ids.push_back(task->ID);
    return ids;
}

// The document knows the places of rows that are not folded away; of some of them it is counted here.
void PlanModel::placeRows()
{
    m_rows.clear();
    m_tops.clear();
    if (m_hidden.isEmpty())
        return;
    const KWDocument &document = m_session.document();
    double top = 0;
    for (const quint32 id : m_ids) {
        const int row = document.getRowByTaskID(id);
        m_rows.push_back(row);
        m_tops.push_back(top);
        top += m_table->rowBottom(row) - m_table->rowTop(row);
    }
    m_tops.push_back(top);
}

void PlanModel::hide(const QSet<quint32> &ids)
{
    m_hidden = ids;
    follow();
    Q_EMIT filtered();
}

void PlanModel::restart()
{
    const bool wasFiltered = isFiltered();
    beginResetModel();
    m_table = newTable();
    m_hidden.clear();
    m_ids = visibleIds();
    placeRows();
    endResetModel();
    if (wasFiltered)
        Q_EMIT filtered();
}

void PlanModel::follow()
{
    auto table = newTable();
    const auto isSameHead = [](const HeadItem &a, const HeadItem &b) { return a.type == b.type; };
    const bool sameColumns =
        table->columnCount() == m_table->columnCount() &&
        std::equal(table->heads().begin(), table->heads().end(), m_table->heads().begin(), isSameHead);
    if (!sameColumns) {
        restart();
        return;
    }
    m_table = std::move(table);
    // What is equal at both ends stays.
    std::vector<quint32> ids = visibleIds();
    const std::size_t shorter = std::min(ids.size(), m_ids.size());
    std::size_t head = 0, tail = 0;
    while (head < shorter && ids[head] == m_ids[head])
        ++head;
    while (tail < shorter - head && ids[ids.size() - 1 - tail] == m_ids[m_ids.size() - 1 - tail])
        ++tail;
    const int first = int(head), gone = int(m_ids.size() - head - tail), come = int(ids.size() - head - tail);
    if (gone > 0) {
        beginRemoveRows(QModelIndex(), first, first + gone - 1);
        m_ids.erase(m_ids.begin() + first, m_ids.begin() + first + gone);
        placeRows();
        endRemoveRows();
    }
    if (come > 0) {
        beginInsertRows(QModelIndex(), first, first + come - 1);
        m_ids = std::move(ids);
        placeRows();
        endInsertRows();
    }
    placeRows();
    if (taskRows() > 0 && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(taskRows() - 1, columnCount() - 1));
}

int PlanModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : taskRows() + 1;
}

int PlanModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_table->columnCount();
}

quint32 PlanModel::taskAt(int row) const
{
    return row >= 0 && row < taskRows() ? m_ids[std::size_t(row)] : 0;
}

int PlanModel::rowOf(quint32 id) const
{
    const KWTaskInfo *task = m_session.document().getTaskInfoByID(id);
    if (!task || task->HideID != 0)
        return -1;
    const int row = m_session.document().getRowByTaskID(id);
    if (!isFiltered())
        return row;
    const auto shown = std::lower_bound(m_rows.begin(), m_rows.end(), row);
    return shown != m_rows.end() && *shown == row ? int(shown - m_rows.begin()) : -1;
}

int PlanModel::typeOf(int column) const
{
    return column >= 0 && column < m_table->columnCount() ? m_table->heads()[std::size_t(column)].type : -1;
}

int PlanModel::columnOf(int type) const
{
    for (int column = 0; column < m_table->columnCount(); ++column)
        if (typeOf(column) == type)
            return column;
    return -1;
}

double PlanModel::rowTop(int row) const
{
    if (isFiltered())
        return m_tops[std::size_t(qBound(0, row, taskRows()))];
    const double top = m_table->headBottom();
    return (row >= taskRows() ? m_table->bottom() : m_table->rowTop(row)) - top;
}

double PlanModel::rowBottom(int row) const
{
    if (isFiltered() && row < taskRows())
        return rowTop(row + 1);
    return row >= taskRows() ? rowTop(row) + RowColumnData::defaultRowHeight
                             : m_table->rowBottom(row) - m_table->headBottom();
}

int PlanModel::rowAtY(double y) const
{
    if (y < 0)
        return -1;
    const int row = isFiltered() ? int(std::upper_bound(m_tops.begin(), m_tops.end(), y) - m_tops.begin()) - 1
                                 : m_table->rowAtY(y + m_table->headBottom() + 0.5);
    if (row >= 0 && row < taskRows())
        return row;
    return y < rowBottom(taskRows()) ? taskRows() : -1;
}

Cell PlanModel::cell(const QModelIndex &index) const
{
    TableRow row;
    row.row = index.row();
    row.task = m_session.document().getTaskInfoByID(taskAt(index.row()));
    return m_table->cell(row, index.column());
}

QVariant PlanModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount())
        return QVariant();
    const quint32 id = taskAt(index.row());
    const KWTaskInfo *task = m_session.document().getTaskInfoByID(id);
    switch (role) {
    case Qt::EditRole:
        return task ? cellinput::text(m_session, *task, typeOf(index.column())) : QString();
    case Qt::ToolTipRole: {
        constexpr int longestTip = 600;
        return task ? Qt::convertFromPlainText(cell(index).text.left(longestTip)) : QString();
    }
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        if (task)
            return cell(index).text;
        return role == Qt::AccessibleTextRole ? QVariant(tr("New task")) : QVariant();
    case Qt::TextAlignmentRole:
        return int(
            (m_table->heads()[std::size_t(index.column())].isRightAligned ? Qt::AlignRight : Qt::AlignLeft) |
            Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

QVariant PlanModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || section < 0)
        return QVariant();
    if (orientation == Qt::Vertical)
        return section + 1;
    return section < columnCount() ? QVariant(m_table->shownTitleOf(section)) : QVariant();
}

Qt::ItemFlags PlanModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return cellinput::isEditable(typeOf(index.column())) ? flags | Qt::ItemIsEditable : flags;
}

bool PlanModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    m_outcome = cellinput::enter(m_session, taskAt(index.row()), typeOf(index.column()), value.toString());
    const bool isDone = m_outcome.isDone;
    Q_EMIT entered();
    return isDone;
}
