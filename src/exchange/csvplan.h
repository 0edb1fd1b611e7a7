#pragma once
#include "engine/text/showndates.h"
#include "exchange/importedplan.h"
#include "kwgantt_export.h"
#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class KWDocument;
class KWTaskInfo;
class ResourceInfo;

// What a plan's CSV files say, cell by cell.
namespace csvplan {

// A column of the tasks; other forms of the same values call it by its name, and know by `isNumber` what
// needs no quotes.
struct Column
{
    const char *title;
    const char *name;
    bool isNumber;
};
KWGANTT_EXPORT const std::vector<Column> &columns();

// The tasks as they stand; valid while they do not change.
class KWGANTT_EXPORT Rows
{
public:
    Rows(KWDocument &document, const ImportedPlan &imported);
    QString text(int pos, std::size_t column) const;
    // The same in UTF-8, behind what the bytes hold.
    void add(int pos, std::size_t column, QByteArray &bytes) const;
    // The file, titles first, piece by piece; ends where `take` answers false.
    bool write(const std::function<bool(const QByteArray &)> &take) const;
    QByteArray bytes() const;
    const ShownDates &dates() const { return m_dates; }

private:
    bool isCritical(int pos) const;

    KWDocument &m_document;
    const ImportedPlan m_imported;
    const quint32 m_start; // of the project
    const ShownDates m_dates;
    const std::vector<int> m_tightest; // for each task the leaf that decides whether it is critical
};

// The resource sheet and the assignments:
//   ID,Name,Type,MaxUnitsPercent,Rate,OvertimeRate,CostPerUse,Group,Email,Notes
//   TaskID,Resource,UnitsPercent,WorkHours,Cost
KWGANTT_EXPORT QByteArray resources(KWDocument &document);
KWGANTT_EXPORT QByteArray assignments(KWDocument &document);
// "Ann[50%];Crane", as the column of resources says it; units of 100% are left out, and so are the names of a
// summary that come from the tasks below it.
KWGANTT_EXPORT QString resourceNames(KWDocument &document, const KWTaskInfo &task);
// Numbers of the outline, "1.2.3", by ID.
KWGANTT_EXPORT QHash<quint32, QString> outlineCodes(const KWDocument &document);

// Where a file has the columns that scheduling changes; -1: it has no such column.
struct Places
{
    int start = -1;
    int finish = -1;
    int length = -1;
};
KWGANTT_EXPORT Places placesIn(const QStringList &titles);

// "2026-01-05T08:00"; a day that ends at midnight ends at 24:00.
KWGANTT_EXPORT QString momentText(const shownmoment::Moment &moment);
// The shortest text of the number, up to 12 digits.
KWGANTT_EXPORT QString numberText(double number);
// "50/h"; the number alone without a unit that there is.
KWGANTT_EXPORT QString rateText(double money, int unit);
// "3d", "12h", with as many decimals as tell minutes apart.
KWGANTT_EXPORT QString lengthText(double value, unsigned int unit);
}
