#pragma once
#include "engine/cost/names.h"
#include "exchange/cellvalues.h"
#include "exchange/sheetreader.h"
#include "exchange/stagedplan.h"
#include <QHash>
#include <QSet>
#include <vector>

// The resource sheet and the assignment sheet of a file, read into records that no document holds yet.
namespace planimport {

class ResourceSheet : public sheetrows::Reader
{
public:
    // The document's sheet tells the texts of types and units, and is not changed.
    ResourceSheet(const ResourceInfoData &texts, const sheetrows::Reading &reading, Findings *findings,
                  const QString &name);
    ~ResourceSheet() override;

    // Hands the entries over; only once.
    void finish(staged::Plan &plan);

protected:
    void addRow(const sheetrows::Row &row, const std::vector<sheetrows::KnownCell> &cells) override;

private:
    void apply(int row, const sheetrows::KnownCell &known, ResourceInfo &info);
    int typeOf(const QString &text) const; // -1: none
    void readRate(int row, const sheetrows::Cell &cell, double &money, qint32 &unit);
    void readMaxUnits(int row, const sheetrows::KnownCell &known, double &units);
    void readAmount(int row, const sheetrows::Cell &cell, double &amount);
    int freeId();

    const ResourceInfoData &m_texts;
    std::vector<std::unique_ptr<ResourceInfo>> m_infos;
    names::Unique m_names;
    QSet<int> m_ids;
    int m_lowestFreeId = 1;
};

class AssignmentSheet : public sheetrows::Reader
{
public:
    AssignmentSheet(const sheetrows::Reading &reading, Findings *findings, const QString &name);
    ~AssignmentSheet() override;

    // Before reading: the rows of tasks with these names, trimmed, say nothing.
    void leaveOut(const QSet<QString> &tasks) { m_leftOut = tasks; }
    // Before reading: the tasks that rows may name by their IDs.
    void findTasks(const staged::Plan &plan);
    void finish(staged::Plan &plan);

protected:
    void addRow(const sheetrows::Row &row, const std::vector<sheetrows::KnownCell> &cells) override;

private:
    // Workbooks repeat the same few amounts in every row.
    struct Amount
    {
        std::optional<double> value;
        unsigned int unit = 0;
    };
    Amount amountOf(int row, const sheetrows::KnownCell &known);
    bool isLeftOut(const QString &task);

    const cellvalues::UnitNames m_unitNames;
    std::vector<staged::Assignment> m_assignments;
    QHash<QString, Amount> m_amounts[2][3]; // of work and of units, each from texts, numbers and percentages
    QHash<quint32, int> m_placeOfId;
    QSet<QString> m_leftOut;
    QString m_lastTask; // its rows follow each other
    bool m_isLastLeftOut = false;
};
}
