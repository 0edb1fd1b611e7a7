#pragma once
#include "documents/cellinput.h"
#include "table/customtable.h"
#include <QAbstractTableModel>
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
    void entered(); // a text was taken or refused: see lastOutcome()

private:
    void restart();
    void follow();
    std::vector<quint32> visibleIds() const;
    std::unique_ptr<CustomTable> newTable() const;

    Session &m_session;
    bool m_showsPredecessors = true; // before the table, which is made by it
    std::unique_ptr<CustomTable> m_table;
    std::vector<quint32> m_ids;
    cellinput::Outcome m_outcome;
};
