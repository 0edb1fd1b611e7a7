#include "taskref.h"
#include "engine/network/linkrefusal.h"
#include "explain.h"
#include "model/kwtaskinfo.h"
#include "texts.h"

namespace taskref {

int find(const Plan &plan, const QString &words, options::Fault &fault)
{
    constexpr int mostListed = 10;
    const QVector<int> found = explain::find(plan, words);
    if (found.size() == 1)
        return found.first();
    if (found.isEmpty()) {
        fault = {t("no task '%1'").arg(words),
                 t("TASK is a row number from 1 to %1, #ID, or a name").arg(plan.taskCount())};
        return -1;
    }
    QStringList rows;
    for (const int pos : found.mid(0, mostListed))
        rows.append(QStringLiteral("%1 \"%2\"").arg(pos + 1).arg(plan.task(pos)->Name.trimmed()));
    if (found.size() > mostListed)
        rows.append(t("%1 more").arg(found.size() - mostListed));
    fault = {t("'%1' may be any of %2 tasks").arg(words, QString::number(found.size())),
             t("say which by its row number: %1").arg(rows.join(QLatin1String(", ")))};
    return -1;
}

QString named(const KWDocument &document, quint32 id)
{
    const int pos = document.getPosByID(id);
    return QStringLiteral("%1 \"%2\"")
        .arg(pos + 1)
        .arg(pos < 0 ? QString() : document.getTaskInfoAt(pos)->Name.trimmed());
}

QString ring(const KWDocument &document, const QList<quint32> &ids)
{
    constexpr int longest = 12;
    QStringList names;
    for (int i = 0; i < ids.size(); ++i) {
        if (ids.size() > longest && i == longest / 2) {
            const int left = ids.size() - longest;
            names.append(counted(left, "(%1 more task)", "(%1 more tasks)"));
            i += left;
        }
        names.append(named(document, ids.at(i)));
    }
    if (!ids.isEmpty())
        names.append(named(document, ids.first()));
    return names.join(QString::fromUtf8(" \u2192 "));
}

options::Fault refusal(const KWDocument &document, const KWTaskLink &link)
{
    const QString other = named(document, link.predecessor);
    const QString below = t("link the tasks below the summary");
    switch (link.refusal) {
    case LinkRefusal::Self:
        return {t("the task is its own predecessor"), QString()};
    case LinkRefusal::Twice:
        return {t("predecessor %1 stands twice").arg(other), QString()};
    case LinkRefusal::OwnSummary:
        return {t("predecessor %1 lies below this summary, which ends with it").arg(other), below};
    case LinkRefusal::OwnSubtask:
        return {t("predecessor %1 is the summary that holds this task").arg(other), below};
    case LinkRefusal::Loop:
        return {t("tasks would wait for each other: %1").arg(ring(document, link.ring)),
                t("remove one of these links")};
    case LinkRefusal::Missing:
    case LinkRefusal::None:
        break;
    }
    return {t("predecessor %1 does not exist").arg(link.predecessor), QString()};
}
}
