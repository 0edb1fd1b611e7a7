#pragma once
#include "engine/network/linkrefusal.h"
#include "engine/record/taskindex.h"
#include "exchange/cellvalues.h"
#include "exchange/sheetreader.h"
#include "model/kwtaskinfo.h"
#include <QHash>
#include <QSet>
#include <memory>
#include <vector>

class KWDocument;

// The task sheet of a workbook, read into tasks that no document holds yet.
namespace planimport {

// As the document names them.
cellvalues::UnitNames unitNames();

// Names that no other task has, as KWDocument::differentSuffixTaskName makes them one after the other.
class UniqueNames
{
public:
    // The name, or a free one in its place; either is taken from then on.
    QString take(const QString &name);
    void addNameless() { ++m_count; }

private:
    QSet<QString> m_taken; // trimmed
    // Behind each name, the numbers below this one that were looked at are taken.
    QHash<QString, qint64> m_nextNumber;
    int m_count = 0; // of tasks, since numbers begin after it
};

// IDs that no other task has.
class UniqueIds
{
public:
    bool take(quint32 id); // false for 0 and for one that is taken
    quint32 takeNext();    // one more than the greatest, the lowest free one when there is none

private:
    TaskIndex m_taken;
    quint32 m_greatest = 0;
    quint32 m_lowestFree = 1;
};

class TaskSheet : public sheetrows::Reader
{
public:
    // Reads the working time of the document and changes nothing in it.
    TaskSheet(KWDocument &document, bool is1904, Findings *findings);
    ~TaskSheet() override;

    // After reading, once: puts the tasks in the order of their rows and gives them their places in the
    // outline.
    void arrange();
    QSet<QString> summaryNames() const; // trimmed
    // Hands the tasks over; only once.
    QList<KWTaskInfo *> takeTasks();
    // The links between the tasks that were handed over: by ID, without those to rows that hold no task.
    QList<KWTaskLink> links() const;
    // Tells of the links that could not be made.
    void reportRefused(const QList<KWTaskLink> &links) const;

protected:
    int fieldOf(const QString &title) const override;
    void addRow(int row, const std::vector<sheetrows::KnownCell> &cells) override;

private:
    struct Moment
    {
        quint32 secs = 0;     // as a task has it
        qint64 shownSecs = 0; // as the cell has it
    };
    struct Staged
    {
        std::unique_ptr<KWTaskInfo> task;
        quint32 id = 0;
        int row = 0;
        Moment start;
        Moment finish;
        bool takesNoTime = false;
        std::size_t wantedEnd = 0; // the entries of m_wantedTags up to here, from those of the task before
        std::size_t wantedBegin = 0;
    };
    enum MomentUse { StartOnWorkday, StartAsShown, Finish, momentUses };

    void apply(const sheetrows::KnownCell &known, Staged &staged);
    void readId(const sheetrows::Cell &cell, Staged &staged);
    void readName(const sheetrows::Cell &cell, Staged &staged);
    void readDuration(const sheetrows::Cell &cell, Staged &staged);
    void readHyperlinks(const sheetrows::Cell &cell, Staged &staged);
    void readTags(const sheetrows::Cell &cell, Staged &staged);
    void readNumber(const sheetrows::KnownCell &known, Staged &staged);
    void complete(Staged &staged);
    void endWithMilestones();
    void readMoment(const sheetrows::KnownCell &known, MomentUse use, Staged &staged);
    Moment momentOf(const sheetrows::Cell &cell, MomentUse use, int row);
    quint32 stored(const QDateTime &shown, MomentUse use) const;
    bool endsItsDate(const QTime &finish) const;
    int posOfTag(quint32 tag) const; // -1 when the row holds no task

    KWDocument &m_document;
    const bool m_is1904;
    cellvalues::UnitNames m_unitNames;
    std::vector<Staged> m_tasks;
    std::vector<quint32> m_wantedTags;
    UniqueNames m_names;
    UniqueIds m_ids;
    QHash<QString, Moment> m_moments[momentUses][2]; // by text; the second is for numbers
    qint64 m_tagUnits = 0;                           // of text that was searched for tags
    int m_hyperlinks = 0;
};
}
