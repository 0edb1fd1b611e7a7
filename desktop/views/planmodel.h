#pragma once
#include "documents/cellinput.h"
#include "table/customtable.h"
#include <QAbstractTableModel>
#include <QSet>
#include <memory>
#include <vector>

class Session;

// The visible rows of the plan, flat, and one more row that takes a new task.
//
// It keeps the IDs of the rows alone; what stands in a cell is asked of the document. After a change it tells
// the smallest run of rows that came, went or changed.
class PlanModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit PlanModel(Session &session, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    int taskRows() const { return int(m_ids.size()); }
    quint32 taskAt(int row) const; // its ID; 0 for the last row
    int rowOf(quint32 id) const;   // -1: not visible
    const std::vector<quint32> &tasks() const { return m_ids; }
    Cell cell(const QModelIndex &index) const; // of a task
    // Leaves these tasks out beside those that are folded away; tasks that come later are shown.
    void hide(const QSet<quint32> &ids);
    bool isFiltered() const { return !m_tops.empty(); }
    bool isLeftOut(quint32 id) const { return m_hidden.contains(id); }
    const CustomTable &table() const { return *m_table; }
    // What each task waits for, as a last column: no column of the document, so the window remembers it.
    void setShowsPredecessors(bool isShown);
    bool showsPredecessors() const { return m_showsPredecessors; }
    std::vector<int> columnTypes() const;
    int typeOf(int column) const;
    int columnOf(int type) const; // -1: not shown
    double rowTop(int row) const; // pixels below the head, also of the row for a new task
    double rowBottom(int row) const;
    int rowAtY(double y) const; // below the head; -1 past the end
    // What became of the last text that was typed in.
    const cellinput::Outcome &lastOutcome() const { return m_outcome; }

Q_SIGNALS:
    void filtered(); // other rows are left out than before
    void entered();  // a text was taken or refused: see lastOutcome()

private:
    void restart();
    void follow();
    std::vector<quint32> visibleIds() const;
    void placeRows();
    std::unique_ptr<CustomTable> newTable() const;

    Session &m_session;
    bool m_showsPredecessors = true; // before the table, which is made by it
    std::unique_ptr<CustomTable> m_table;
    std::vector<quint32> m_ids;
    QSet<quint32> m_hidden;
    std::vector<int> m_rows;    // of the document, that of each row shown; when some are left out
    std::vector<double> m_tops; // below the head, and the end of the last one; likewise
    cellinput::Outcome m_outcome;
};
