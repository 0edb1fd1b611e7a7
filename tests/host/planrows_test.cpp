// From cells to typed rows.
#include "planrows.h"
#include "support/findings.h"
#include "texts.h"
#include <gtest/gtest.h>

namespace {

// One line a task: level, name, duration, predecessors; then what was found.
std::string picture(const char *text)
{
    texts::fillLibraryTables();
    csv::Table table;
    csv::Fault fault;
    planrows::Rows rows;
    Findings errors;
    Findings warnings;
    if (!csv::parse(text, table, fault))
        return "no table";
    const bool isRead = planrows::read(table, rows, errors, warnings);
    QStringList lines;
    for (const planrows::Row &row : isRead ? rows.rows : std::vector<planrows::Row>()) {
        QStringList links;
        for (const planrows::Link &link : row.predecessors)
            links.append(link.refusal.isEmpty() ? QString::number(link.number) : QStringLiteral("-"));
        const QString length = row.hasDuration ? datetext::durationText(row.duration.value, row.duration.unit)
                                               : QStringLiteral("?");
        lines.append(QStringLiteral("%1 %2 %3 %4")
                         .arg(QString::number(row.level), row.name, length, links.join(QLatin1Char(';')))
                         .trimmed());
    }
    for (const Findings *findings : {&errors, &warnings})
        for (const Finding &finding : findings->list())
            lines.append(finding.place + QLatin1String(": ") + finding.what);
    return lines.join(QLatin1String(" / ")).toStdString();
}

struct RowsCase
{
    const char *name, *text, *picture;
};

TEST(PlanRows, areReadFromTitledColumns)
{
    const RowsCase cases[] = {
        {"titlesInAnyOrderAndCase", "DURATION,task name,Depends on\n2d,A,\n1w,B,1\n", "1 A 2d / 1 B 1w 1"},
        {"unitInTheTitle", "id,name,duration_days,predecessors\n1,A,8,\n2,B,3,1\n", "1 A 8d / 1 B 3d 1"},
        {"titlesOfTheTaskTable", "Task Name,Duration,Predecessors,Level\nA,1d,,1\nB,1d,1,2\n",
         "1 A 1d / 2 B 1d 1"},
        {"secondColumnOfATitle", "Name,Task,Duration\nA,X,1d\n",
         "1 A 1d / column 2: 'Task' is a second 'Name' and is not read"},
        {"wbsDecides", "Name,WBS,Level,Duration\nA,1,0,\nB,1.1,7,1d\n", "1 A ? / 2 B 1d"},
        {"wbsThatIsNoneLeavesItToTheLevel", "Name,WBS,Level,Duration\nA,X-1,1,\nB,X-2,2,1d\n",
         "1 A ? / 2 B 1d"},
        {"shortRowsHaveEmptyCells", "Name,Duration,Predecessors\nA,1d\nB\n", "1 A 1d / 1 B ?"},
        {"linksWithBlanksAndCommas", "Name,Duration,Predecessors\nA,1d,\nB,1d,\nC,1d,\" 1, 2FS ; \"\n",
         "1 A 1d / 1 B 1d / 1 C 1d 1;2"},
        {"otherKindsOfLinksAreMarked", "Name,Duration,Predecessors\nA,1d,2SS;3FS+1d;x;4\n", "1 A 1d -;-;-;4"},
        {"percentIsClamped", "Name,Duration,Done\nA,1d,150%\n",
         "1 A 1d / row 1, 'Done': '150%' is read as 100%"},
        {"errorsNameRowAndColumn", "Name,Start,Dauer,Duration\nA,2026-01-05,,1d\nB,soon,,9 ells\n",
         "row 2, 'Start': 'soon' is not a date / row 2, 'Duration': '9 ells' is not a duration"},
        {"badLevelAndNumber", "ID,Name,Level,Duration\nx,A,deep,1d\n",
         "row 1, 'ID': 'x' is not a task number / row 1, 'Level': 'deep' is not an outline level"},
        {"noTimes", "Name,Owner\nA,me\n", "line 1: not a plan: no title 'Duration'"}};
    for (const RowsCase &row : cases) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(picture(row.text), row.picture);
    }
}

}
