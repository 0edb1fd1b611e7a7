#include "exchange/titletable.h"
#include "engine/record/codes.h"
#include "engine/text/columntypes.h"
#include "engine/time/duration.h"
#include "support/likeness.h"
#include <QHash>
#include <QPair>
#include <QStringList>
#include <algorithm>

using exceltitles::Sheet;

namespace titletable {
namespace {

enum ResourceKey {
    ResourceId,
    ResourceName,
    MaxUnits,
    Kind,
    Rate,
    OvertimeRate,
    CostPerUse,
    Group,
    Email,
    ResourceNotes
};
enum AssignmentKey { TaskName, Resource, Complete, Work, Units };

struct Words
{
    Sheet sheet;
    int field;
    const char *titles; // joined by blanks; lower case, letters and digits alone
    unsigned int bareUnit = duration::Day;
    bool isPercent = false;
};

constexpr Sheet tasks = exceltitles::TaskSheet;
constexpr Sheet resources = exceltitles::ResourceSheet;
constexpr Sheet assignments = exceltitles::AssignmentSheet;

const Words table[] = {
    {tasks, columntypes::Id,
     "id taskid tag no number uniqueid nr nummer vorgangsnr vorgangsnummer 标识号 编号 序号"},
    {tasks, OutlineCode, "wbs wbscode outlinenumber psp pspcode gliederungsnummer 大纲编号"},
    {tasks, columntypes::Level, "level outlinelevel ebene gliederungsebene 级别 大纲级别 层级"},
    {tasks, columntypes::Name,
     "name taskname task title vorgang vorgangsname aufgabe bezeichnung titel 名称 任务 任务名称"},
    {tasks, columntypes::Start,
     "start startdate begin begins starts anfang beginn startdatum anfangstermin 开始 开始时间 开始日期"},
    {tasks, columntypes::Finish,
     "finish finishdate end enddate ends due duedate ende enddatum endtermin fertigstellung 完成时间 "
     "完成日期 结束 结束时间 结束日期"},
    {tasks, columntypes::Duration, "duration durationdays dauer dauertage 工期 持续时间"},
    {tasks, columntypes::Duration, "durationhours dauerstunden", duration::Hour},
    {tasks, columntypes::Duration, "durationminutes dauerminuten", duration::Minute},
    {tasks, columntypes::Percent,
     "percent percentcomplete complete done progress abgeschlossen prozentabgeschlossen fortschritt "
     "erledigt 完成百分比 进度 完成 完成率"},
    {tasks, columntypes::Priority, "priority priorität 优先级"},
    {tasks, columntypes::Predecessors,
     "predecessors predecessor dependson dependencies after vorgänger 前置任务 前置 前导任务"},
    {tasks, columntypes::ResourceNames,
     "resources resource resourcenames ressourcen ressource ressourcennamen 资源 资源名称"},
    {tasks, columntypes::Hyperlinks, "hyperlinks hyperlink links 超链接"},
    {tasks, columntypes::Notes, "notes note notizen notiz bemerkung bemerkungen comment comments 备注"},
    {tasks, columntypes::BaselineStart,
     "baselinestart basestart geplanteranfang 基线开始时间 比较基准开始时间"},
    {tasks, columntypes::BaselineFinish,
     "baselinefinish basefinish geplantesende 基线完成时间 比较基准完成时间"},
    {tasks, columntypes::BaselineCost, "baselinecost basecost geplantekosten 基线成本 比较基准成本"},
    {tasks, MilestoneFlag, "milestone ismilestone meilenstein 里程碑"},
    {tasks, Ignored,
     "summary critical latestart latefinish startslack finishslack startmin finishmin latestartmin "
     "latefinishmin slackmin sammelvorgang 摘要"},
    {resources, ResourceId, "id no nr 标识号"},
    {resources, ResourceName, "name resource resourcename ressource ressourcenname 名称 资源名称 资源"},
    {resources, Kind, "type art typ 类型"},
    {resources, MaxUnits, "maxunitspercent maxunits maximumunits maximaleeinheiten maxeinheiten 最大单位",
     duration::Day, true},
    {resources, Rate, "rate standardrate stdrate standardsatz 标准费率"},
    {resources, OvertimeRate, "overtimerate ovtrate überstundensatz 加班费率"},
    {resources, CostPerUse, "costperuse costuse kostenproeinsatz kosteneinsatz 每次使用成本"},
    {resources, Group, "group gruppe 组 组名"},
    {resources, Email, "email emailaddress 电子邮件"},
    {resources, ResourceNotes, "notes note notizen 备注"},
    {assignments, TaskId, "taskid tasktag vorgangsnr 任务标识号"},
    {assignments, TaskName, "task taskname vorgang vorgangsname 任务 任务名称"},
    {assignments, Resource, "resource resourcename ressource ressourcenname 资源 资源名称"},
    {assignments, Complete, "complete percentcomplete abgeschlossen 完成百分比"},
    {assignments, Work, "work workhours arbeit arbeitstunden 工时"},
    {assignments, Units, "unitspercent", duration::Day, true},
    {assignments, Units, "units assignmentunits einheiten 单位"},
    {assignments, IgnoredAssignment, "cost kosten 成本"},
};

// What each word means, by the sheet and the word.
const QHash<QPair<int, QString>, Known> &synonyms()
{
    static const QHash<QPair<int, QString>, Known> all = [] {
        QHash<QPair<int, QString>, Known> byWord;
        for (const Words &words : table) {
            for (const QString &word : QString::fromUtf8(words.titles).split(QLatin1Char(' ')))
                byWord.insert({words.sheet, word}, {words.field, words.bareUnit, words.isPercent});
        }
        return byWord;
    }();
    return all;
}

QString plain(const QString &title)
{
    QString letters;
    for (const QChar sign : title) {
        if (sign.isLetterOrNumber())
            letters += sign.toLower();
    }
    // "#" is how many call their first column.
    return letters.isEmpty() && title.trimmed() == QLatin1String("#") ? QStringLiteral("id") : letters;
}

// The program's titles of a sheet by field.
QMap<int, QString> ownTitles(Sheet sheet)
{
    constexpr int keys[] = {columntypes::count, 10, 5};
    const QMap<int, QString> &all = sheet == tasks       ? RowColumnData::s_columnNames
                                    : sheet == resources ? ExcelTitles::s_resourcNames
                                                         : ExcelTitles::s_workAssignNames;
    QMap<int, QString> titles;
    for (auto each = all.begin(); each != all.end(); ++each) {
        if (each.key() >= 0 && each.key() < keys[sheet] && !each.value().isEmpty())
            titles.insert(each.key(), each.value());
    }
    return titles;
}
}

Known find(Sheet sheet, const QString &title, bool isExact)
{
    const QMap<int, QString> own = ownTitles(sheet);
    Known known;
    // Of the program's own titles the first key counts.
    known.field = own.key(title, -1);
    // What tells tasks of one name apart, as the task sheet calls it.
    if (known.field < 0 && sheet == assignments &&
        title == RowColumnData::s_columnNames.value(columntypes::Id))
        known.field = TaskId;
    if (known.field >= 0 || isExact)
        return known;
    const QString letters = plain(title);
    if (letters.isEmpty())
        return known;
    for (auto each = own.begin(); each != own.end(); ++each) {
        if (plain(each.value()) == letters) {
            known.field = each.key();
            return known;
        }
    }
    return synonyms().value({sheet, letters}, known);
}

QString nearest(Sheet sheet, const QString &title, bool isExact)
{
    QStringList candidates = ownTitles(sheet).values();
    for (auto word = synonyms().begin(); word != synonyms().end() && !isExact; ++word) {
        if (word.key().first == sheet)
            candidates += word.key().second;
    }
    std::sort(candidates.begin(), candidates.end());
    return likeness::nearest(plain(title), candidates, plain);
}

QStringList words(Sheet sheet)
{
    QStringList lines;
    for (const Words &words : table) {
        if (words.sheet == sheet)
            lines.append(QString::fromUtf8(words.titles));
    }
    return lines;
}
}
