#include "model/randomdocument.h"
#include "engine/record/fieldxml.h"
#include "engine/record/resourcefields.h"
#include "engine/record/taskfields.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "table/rowcolumndata.h"
#include <cmath>
#include <limits>

namespace {

QString randomText(std::mt19937 &random)
{
    static const char *const pieces[] = {
        "a",    "Design phase", ";",    "<&>\"'", "\n",           "\t",
        "\r",   "%1%2",         "]]>",  "  ",     "\xe5\xb7\xa5", "\xf0\x9f\x93\x85",
        "\x01", "\x1f",         "&#1;", "=",      "\xef\xbf\xbd", "\x7f"};
    QString text;
    for (int count = int(random() % 5); count > 0; --count)
        text += QString::fromUtf8(pieces[random() % std::size(pieces)]);
    if (random() % 16 == 0)
        text += QChar(0xd800 + int(random() % 0x800));
    if (random() % 16 == 0)
        text += QChar(0xfffe + int(random() % 2));
    return text;
}

double randomNumber(std::mt19937 &random)
{
    static const double odd[] = {0.0,
                                 -0.0,
                                 0.1,
                                 1.0 / 3,
                                 1e-5,
                                 1e20,
                                 -1e308,
                                 5e-324,
                                 123456789.125,
                                 999999999.0,
                                 1e9,
                                 std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::infinity()};
    return random() % 2 ? odd[random() % std::size(odd)]
                        : std::ldexp(double(random()), int(random() % 80) - 60);
}

// Whatever the field table names, whatever its type.
template <typename Table, typename Record>
void fillFields(const Table &table, Record &record, std::mt19937 &random)
{
    fields::forEach(table, fields::Xml, [&](const auto &row) {
        using Value = std::decay_t<decltype(fields::plain(record.*row.member))>;
        if constexpr (std::is_same_v<Value, QString>)
            record.*row.member = randomText(random);
        else if constexpr (std::is_same_v<Value, double>)
            record.*row.member = randomNumber(random);
        else if constexpr (std::is_same_v<Value, QList<quint32>>)
            for (int count = int(random() % 4); count > 0; --count)
                (record.*row.member).append(quint32(random()));
        else
            record.*row.member = static_cast<Value>(quint32(random()));
    });
}

void fill(KWHyperlink &link, std::mt19937 &random)
{
    link.ID = qint32(random());
    link.type = qint32(random());
    link.isDefault = random() % 2;
    for (QString *text : {&link.name, &link.address, &link.subAddress, &link.relatAddress, &link.description,
                          &link.extraInfo})
        *text = randomText(random);
}

QList<KWDayTime *> randomIntervals(std::mt19937 &random)
{
    QList<KWDayTime *> intervals;
    for (int count = int(random() % 4); count > 0; --count)
        intervals.append(new KWDayTime(quint32(random()), quint32(random())));
    return intervals;
}

KWCalendar *randomCalendar(std::mt19937 &random)
{
    auto *calendar = new KWCalendar;
    calendar->name = randomText(random);
    calendar->startDate = QDate(2026, 1, 1).addDays(int(random() % 10000));
    calendar->finishDate = QDate(1975, 1, 1).addDays(int(random() % 10000));
    calendar->isException = random() % 2;
    calendar->isWork = random() % 2;
    calendar->dayTimes = randomIntervals(random);
    return calendar;
}

void fill(KWPrintConfig &config, std::mt19937 &random)
{
    for (bool *flag : {&config.Portrait, &config.FittoSheet, &config.Background, &config.Toggle})
        *flag = random() % 2;
    config.Zoom = qint32(random());
    config.HSheet = qint16(random());
    config.VSheet = qint16(random());
    for (double *measure : {&config.Left, &config.Top, &config.Width, &config.Height})
        *measure = randomNumber(random);
    config.Unit = 1 + quint32(random() % 3);
}

void fill(RowColumnData &table, std::mt19937 &random)
{
    table.clearColDataList();
    for (int count = int(random() % 30); count > 0; --count) {
        auto *column = new RowColumnData::ColumnData;
        column->title = RowColumnData::s_columnNames.value(int(random() % 25));
        column->isHide = bool(random() % 2);
        column->width = randomNumber(random);
        table.appendColumnData(column);
    }
}
}

void randomdocument::fill(KWTaskInfo &task, std::mt19937 &random)
{
    fillFields(fields::taskFields, task, random);
    task.font.setFamily(QLatin1Char('F') + randomText(random)); // an empty family cannot be told from none
    task.font.setPointSize(1 + int(random() % 40));
    task.font.setWeight(int(random() % 100));
    task.font.setItalic(random() % 2);
    task.font.setUnderline(random() % 2);
    task.font.setStrikeOut(random() % 2);
    for (int count = int(random() % 3); count > 0; --count) {
        task.hyperlinks.appendHyperlink(new KWHyperlink);
        ::fill(*task.hyperlinks.getAt(task.hyperlinks.count() - 1), random);
    }
    for (int count = int(random() % 3); count > 0; --count) {
        task.resourceList.append(new Resource);
        fillFields(fields::resourceFields, *task.resourceList.last(), random);
    }
}

void randomdocument::fill(KWDocument &document, std::mt19937 &random)
{
    for (bool &isWorking : document.WorkDay)
        isWorking = random() % 2;
    for (quint32 *number : {&document.MajorUnit, &document.MinorUnit, &document.ProjectUnit,
                            &document.StartDate, &document.FinishDate})
        *number = quint32(random());
    document.BaselineCost = randomNumber(random);
    document.UnitWidth = qint32(random());
    document.ThemeIndex = qint32(random());
    document.Auto = random() % 2;
    document.AutoZoom = random() % 2;
    qDeleteAll(document.workTimes);
    document.workTimes = randomIntervals(random);
    for (int count = int(random() % 6); count > 0; --count) {
        auto *task = new KWTaskInfo;
        fill(*task, random);
        document.appendTaskInfoList(task);
        document.rowColumnData()->appendRowHeight(randomNumber(random));
    }
    for (KWTaskInfo *task : document.taskList()) // below a task that is there
        task->HideID = random() % 2 ? document.taskList().first()->ID.value() : 0;
    for (int count = int(random() % 4); count > 0; --count) {
        document.resourceInfoData()->infos.append(new ResourceInfo);
        fillFields(fields::resourceInfoFields, *document.resourceInfoData()->infos.last(), random);
    }
    ::fill(*document.rowColumnData(), random);
    ::fill(document.printConfig, random);
    for (int count = int(random() % 4); count > 0; --count)
        document.calendars.append(randomCalendar(random));
}
