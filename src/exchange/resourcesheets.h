#pragma once
#include "engine/cost/names.h"
#include "exchange/cellvalues.h"
#include "exchange/sheetreader.h"
#include <QHash>
#include <QSet>
#include <memory>
#include <vector>

class ResourceInfo;
class ResourceInfoData;

// The resource sheet and the assignment sheet of a workbook, read into records that no document holds yet.
namespace planimport {

class ResourceSheet : public sheetrows::Reader
{
public:
    // The document's sheet tells the texts of types and units, and is not changed.
    ResourceSheet(const ResourceInfoData &texts, Findings *findings);
    ~ResourceSheet() override;

    // Hands the entries over; only once.
    std::vector<std::unique_ptr<ResourceInfo>> takeInfos() { return std::move(m_infos); }

protected:
    int fieldOf(const QString &title) const override;
    void addRow(int row, const std::vector<sheetrows::KnownCell> &cells) override;

private:
    void apply(int row, const sheetrows::KnownCell &known, ResourceInfo &info);
    void readRate(int row, const sheetrows::Cell &cell, double &money, qint32 &unit);
    void readAmount(int row, const sheetrows::Cell &cell, double least, double divisor, double &amount);
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
    struct Assignment
    {
        int row = 0;
        QString task;     // by name
        QString resource; // trimmed
        std::optional<double> work;
        unsigned int workUnit = 0; // see duration::Unit
        std::optional<double> units;
    };

    explicit AssignmentSheet(Findings *findings);
    ~AssignmentSheet() override;

    // Before reading: the rows of tasks with these names, trimmed, say nothing.
    void leaveOut(const QSet<QString> &tasks) { m_leftOut = tasks; }
    const std::vector<Assignment> &assignments() const { return m_assignments; }
    void reportRow(int row, const QString &what, const QString &instead) const;

protected:
    int fieldOf(const QString &title) const override;
    void addRow(int row, const std::vector<sheetrows::KnownCell> &cells) override;

private:
    // Workbooks repeat the same few amounts in every row.
    struct Amount
    {
        std::optional<double> value;
        unsigned int unit = 0;
    };
    Amount amountOf(int row, const sheetrows::Cell &cell, int field);
    bool isLeftOut(const QString &task);

    cellvalues::UnitNames m_unitNames;
    std::vector<Assignment> m_assignments;
    QHash<QString, Amount> m_amounts[2][2]; // of work and of units, each from texts and from numbers
    QSet<QString> m_leftOut;
    QString m_lastTask; // its rows follow each other
    bool m_isLastLeftOut = false;
};
}
