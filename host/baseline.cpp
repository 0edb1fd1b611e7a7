#include "baseline.h"
#include "format/dataformat.h"
#include "machine.h"
#include "model/kwtaskinfo.h"
#include "sheettext.h"
#include "shown.h"
#include "texts.h"
#include "texttable.h"
#include "textwidth.h"

namespace baseline {

bool has(const KWTaskInfo &task)
{
    return task.BaseStart != 0 || task.BaseFinish != 0;
}

Variance varianceOf(const Plan &plan, const KWTaskInfo &task)
{
    return {task.BaseStart ? plan::workingMinutes(plan, task.BaseStart, task.Start) : 0,
            task.BaseFinish ? plan::workingMinutes(plan, task.BaseFinish, task.Finish) : 0,
            task.BaselineCost.isEmpty() ? 0 : task.Cost - task.BaselineCost.toDouble()};
}

QString daysText(const Plan &plan, qint64 minutes)
{
    const double perDay = plan.document->workCalendar().hoursPerDay() * 60.0;
    if (minutes == 0 || perDay <= 0)
        return QStringLiteral("0");
    return (minutes > 0 ? QStringLiteral("+") : QString()) +
           DataFormat::formatNumber(double(minutes) / perDay, 0, 2, 1) + QLatin1Char('d');
}

QString moneyText(double amount)
{
    return (amount > 0 ? QStringLiteral("+") : QString()) + sheettext::moneyText(amount);
}

QString text(const Plan &plan, const Style &style)
{
    constexpr int longestName = 40;
    TextTable table({QStringLiteral(">#"), t("Task"), t("Baseline finish"), t("Finish"), t(">Start by"),
                     t(">Finish by"), t(">Cost by")});
    const shown::Times times(plan);
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo &task = *plan.task(pos);
        if (!has(task))
            continue;
        const Variance variance = varianceOf(plan, task);
        const QString name =
            textwidth::elided(textwidth::oneLine(task.Name.trimmed(), style.ascii), longestName, style.cut);
        table.add({QString::number(pos + 1), name,
                   variance.finishMinutes == 0 ? times.finish(pos).text()
                                               : shown::endOf(plan, task.BaseFinish).text(),
                   times.finish(pos).text(), daysText(plan, variance.startMinutes),
                   daysText(plan, variance.finishMinutes), moneyText(variance.cost)});
    }
    return table.isEmpty() ? t("no baseline: 'kwgantt baseline FILE set' remembers one") + QLatin1Char('\n')
                           : table.text();
}

QByteArray json(const Plan &plan)
{
    QByteArray bytes = "{\n  \"baseline\": [";
    bool first = true;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo &task = *plan.task(pos);
        if (!has(task))
            continue;
        const Variance variance = varianceOf(plan, task);
        bytes += (first ? "\n" : ",\n") + QByteArray("    {\"id\": ") + QByteArray::number(task.ID.value()) +
                 ", \"name\": " + machine::jsonText(task.Name) +
                 ", \"baseStart\": " + machine::jsonText(shown::startOf(plan, task.BaseStart).iso()) +
                 ", \"baseFinish\": " + machine::jsonText(shown::endOf(plan, task.BaseFinish).iso()) +
                 ", \"baseCost\": " + sheettext::numberText(task.BaselineCost.toDouble()).toUtf8() +
                 ", \"startByMin\": " + QByteArray::number(variance.startMinutes) +
                 ", \"finishByMin\": " + QByteArray::number(variance.finishMinutes) +
                 ", \"costBy\": " + sheettext::numberText(variance.cost).toUtf8() + "}";
        first = false;
    }
    return bytes + "\n  ]\n}\n";
}
}
