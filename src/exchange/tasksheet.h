#pragma once
#include "exchange/cellvalues.h"
#include "exchange/sheetreader.h"
#include "exchange/stagedplan.h"
#include <QHash>
#include <vector>

// The task sheet of a file, read into tasks that no document holds yet.
namespace planimport {

// As the program names them.
cellvalues::UnitNames unitNames();

class TaskSheet : public sheetrows::Reader
{
public:
    TaskSheet(const sheetrows::Reading &reading, Findings *findings, const QString &name);
    ~TaskSheet() override;

    // Whether there is a column of starts, finishes or lengths.
    bool hasTimes() const;
    // After reading, once: what only the whole sheet decides - the order of the rows, levels or outline
    // codes, day or month first, fractions or percentages, links - then the tasks and links go to the plan.
    void finish(staged::Plan &plan);

protected:
    void expectRows(std::size_t rows) override { m_tasks.reserve(rows); }
    bool isFieldRead(int field) const override;
    void addRow(const sheetrows::Row &row, const std::vector<sheetrows::KnownCell> &cells) override;

private:
    // A predecessor by a number: the place of its row below the titles, or its ID.
    struct Wanted
    {
        int task;
        quint32 number;
        bool isId;
    };
    // By its outline code or by its name.
    struct WantedText
    {
        int task;
        QString text;
        bool isCode;
    };
    struct EitherDate // of which day or month may stand first
    {
        int task;
        staged::MomentField field;
        cellvalues::Moment moment;
    };
    struct PlainPercent
    {
        int task;
        double value;
    };

    void apply(const sheetrows::KnownCell &known, staged::Task &staged);
    void readId(const sheetrows::Cell &cell, staged::Task &staged);
    void readLength(const sheetrows::KnownCell &known, staged::Task &staged);
    void readPercent(const sheetrows::Cell &cell, staged::Task &staged);
    void readNumber(const sheetrows::KnownCell &known, staged::Task &staged);
    void readHyperlinks(const sheetrows::Cell &cell, staged::Task &staged);
    void readPredecessors(const sheetrows::Cell &cell, staged::Task &staged);
    bool readNumbers(const QString &list);
    void leaveOutRepeated(std::size_t first, const sheetrows::Cell &cell, const staged::Task &staged);
    // Whether the part is one.
    bool readPredecessor(const QString &part, QString &refusal);
    void readMoment(const sheetrows::KnownCell &known, staged::MomentField field, staged::Task &staged);
    int placeOfNewTask() const { return int(m_tasks.size()); }

    void settleDates();
    void settlePercent();
    void settleLevels();
    void sortRows();
    void findLinks(staged::Plan &plan);
    QString titleOfDate(int field) const;

    const cellvalues::UnitNames m_unitNames;
    std::vector<staged::Task> m_tasks;
    std::vector<Wanted> m_wanted;
    std::vector<WantedText> m_wantedTexts;
    std::vector<EitherDate> m_eitherDates;
    std::vector<PlainPercent> m_plainPercents;
    struct Read // a moment of a text that was read before
    {
        bool isSound = false;
        cellvalues::Moment moment;
    };
    QHash<QString, Read> m_moments[2]; // by text; the second is for numbers
    // By the unit of a bare number, and by text.
    QHash<unsigned int, QHash<QString, std::optional<cellvalues::Length>>> m_lengths;
    qint64 m_linkUnits = 0; // of text that was searched for predecessors
    int m_hyperlinks = 0;
    int m_refusedLinks = 0;
    bool m_hasLevelZero = false;
};
}
