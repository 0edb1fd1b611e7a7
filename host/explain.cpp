#include "explain.h"
#include "datetext.h"
#include "edits/planreasons.h"
#include "machine.h"
#include "model/kwtaskinfo.h"
#include "shown.h"
#include "texts.h"
#include "textwidth.h"

namespace explain {

namespace {

constexpr int mostListed = 3;   // of things that a sentence counts up
constexpr int longestChain = 6; // tasks in "holds up"

class Explainer
{
public:
    Explainer(const Plan &plan, int pos)
        : m_plan(plan)
        , m_times(plan)
        , m_pos(pos)
        , m_task(plan.task(pos))
        , m_reasons(planreasons::of(*plan.document, m_task->ID, longestChain + 1))
    {
    }

    QVector<Line> run() const
    {
        QVector<Line> lines{{QString(), "task", heading()}};
        if (m_task->isParent()) {
            lines.append({t("spans"), "spans", spans()});
        } else {
            lines.append({t("starts when"), "startsWhen", startsWhen()});
            lines.append({t("could start"), "couldStart", couldStart()});
            lines.append({t("takes"), "takes", takes()});
        }
        if (!moved().isEmpty())
            lines.append({t("moved"), "moved", moved()});
        lines.append({t("critical"), "critical", critical()});
        if (!m_task->isParent() || m_reasons.successorCount > 0)
            lines.append({t("holds up"), "holdsUp", holdsUp()});
        return lines;
    }

private:
    QString named(int pos) const
    {
        return QStringLiteral("%1 \"%2\"").arg(pos + 1).arg(m_plan.task(pos)->Name.trimmed());
    }

    static QString moment(const shown::Clock &clock)
    {
        return datetext::dateText(clock.date, datetext::Weekday) + QLatin1Char(' ') +
               datetext::timeText(clock.secs);
    }

    // Working time in days, or in hours when it is a part of one.
    QString length(quint32 from, quint32 to) const
    {
        const double days = m_plan.document->getDurationValue(from, to, duration::Day, true);
        if (days != 0)
            return QString::number(days) + QLatin1String(" d");
        return QString::number(qAbs(plan::workingMinutes(m_plan, from, to))) + QLatin1String(" min");
    }

    QString heading() const
    {
        const shown::Clock start = m_times.start(m_pos);
        const shown::Clock finish = m_times.finish(m_pos);
        QString text = named(m_pos) + QLatin1String("   ") + moment(start);
        if (start != finish)
            text += QLatin1String(" - ") + moment(finish);
        const double value = KWTaskInfo::getDurValueByTaskInfo(m_plan.document.get(), m_task);
        text += QLatin1String("   ") + (m_task->Milestone && !m_task->isParent()
                                            ? t("milestone")
                                            : datetext::durationText(value, m_task->DurationUnits));
        if (m_task->Percent > 0)
            text += QLatin1String("   ") + t("%1% done").arg(qRound(m_task->Percent * 100));
        return text;
    }

    QString startsWhen() const
    {
        const shown::Clock start = m_times.start(m_pos);
        if (m_reasons.isDriven()) {
            const planreasons::Waiting &driver = m_reasons.waitsFor.first();
            const int pos = m_plan.posOf(driver.predecessor);
            QString text = t("%1 finishes (%2)").arg(named(pos), moment(m_times.finish(pos)));
            if (driver.summary != 0)
                text += t(", which its summary %1 waits for").arg(named(m_plan.posOf(driver.summary)));
            if (start != m_times.finish(pos))
                text += t("; next working moment is %1").arg(moment(start));
            return text;
        }
        if (m_task->Start == m_plan.start)
            return t("the project starts (%1)").arg(moment(start));
        return t("its own date says: %1").arg(moment(start));
    }

    QString couldStart() const
    {
        const QVector<planreasons::Waiting> &reasons = m_reasons.waitsFor;
        if (reasons.isEmpty())
            return t("at any time: it waits for no other task");
        const int last = m_plan.posOf(reasons.first().predecessor);
        if (!m_reasons.isDriven())
            return t("%1 earlier: %2 finishes on %3")
                .arg(length(m_plan.task(last)->Finish, m_task->Start), named(last),
                     moment(m_times.finish(last)));
        QString text = t("no earlier: %1 drives it").arg(named(last));
        for (int i = 1; i < reasons.size(); ++i) {
            if (i > mostListed) {
                text += t("; ") + t("%1 more").arg(reasons.size() - i);
                break;
            }
            const int pos = m_plan.posOf(reasons.at(i).predecessor);
            text += t("; ") + (reasons.at(i).isDriving
                                   ? t("%1 drives it, too").arg(named(pos))
                                   : t("%1 has %2 to spare")
                                         .arg(named(pos), length(m_plan.task(pos)->Finish, m_task->Start)));
        }
        return text;
    }

    QString takes() const
    {
        if (m_task->Milestone)
            return t("no time: it is a milestone");
        static const char *const one[] = {QT_TR_NOOP("%1 year"),          QT_TR_NOOP("%1 quarter"),
                                          QT_TR_NOOP("%1 month"),         QT_TR_NOOP("%1 working week"),
                                          QT_TR_NOOP("%1 working day"),   QT_TR_NOOP("%1 working hour"),
                                          QT_TR_NOOP("%1 working minute")};
        static const char *const many[] = {QT_TR_NOOP("%1 years"),          QT_TR_NOOP("%1 quarters"),
                                           QT_TR_NOOP("%1 months"),         QT_TR_NOOP("%1 working weeks"),
                                           QT_TR_NOOP("%1 working days"),   QT_TR_NOOP("%1 working hours"),
                                           QT_TR_NOOP("%1 working minutes")};
        const unsigned int unit = qMin(m_task->DurationUnits, 6u);
        const double value = KWTaskInfo::getDurValueByTaskInfo(m_plan.document.get(), m_task);
        const QString number = QString::number(value, 'g', 6);
        QString text = t(value == 1 ? one[unit] : many[unit]).arg(number);
        constexpr unsigned int month = 2;
        if (unit <= month)
            return text + t("; days off count as well");
        const QStringList off = daysOff();
        if (!off.isEmpty())
            text += t("; %1 do not count").arg(listed(off));
        return text;
    }

    // The runs of days off between start and finish: "17-18 Jan (weekend)".
    QStringList daysOff() const
    {
        QStringList runs;
        for (const planreasons::DaysOff &run : m_reasons.daysOff.mid(0, mostListed))
            runs.append(runText(run.from, run.to, run.isUsual));
        if (m_reasons.daysOff.size() > mostListed)
            runs.append(t("%1 more").arg(m_reasons.daysOff.size() - mostListed));
        return runs;
    }

    static QString listed(const QStringList &parts)
    {
        if (parts.size() < 2)
            return parts.join(QString());
        return t("%1 and %2")
            .arg(QStringList(parts.mid(0, parts.size() - 1)).join(QLatin1String(", ")), parts.last());
    }

    static QString runText(const QDate &first, const QDate &last, bool usual)
    {
        const QString to = datetext::dateText(last, datetext::Plain);
        QString text = to;
        if (first != last)
            text = (first.month() == last.month() ? QString::number(first.day())
                                                  : datetext::dateText(first, datetext::Plain)) +
                   QLatin1Char('-') + to;
        return text + QLatin1String(" (") + (usual ? t("weekend") : t("day off")) + QLatin1Char(')');
    }

    QString spans() const
    {
        if (m_reasons.firstChild == 0)
            return t("nothing: it holds no task");
        const QString count =
            counted(m_task->Childs.size(), "%1 task right below it", "%1 tasks right below it");
        if (m_reasons.firstChild == m_reasons.lastChild) // it begins and ends all that is below
            return t("%1; %2 is its first and its last")
                .arg(count, named(m_plan.posOf(m_reasons.firstChild)));
        return t("%1; from %2 to %3")
            .arg(count, named(m_plan.posOf(m_reasons.firstChild)), named(m_plan.posOf(m_reasons.lastChild)));
    }

    QString moved() const
    {
        const bool hadStart = !m_plan.imported.withoutStart.contains(m_task->ID);
        for (const Plan::Move &move : m_plan.moves) {
            if (move.pos != m_pos || !hadStart || m_task->isParent())
                continue;
            const QString before = moment(shown::startOf(m_plan, move.oldStart));
            const int by = move.pushedBy ? m_plan.posOf(move.pushedBy) : -1;
            return by < 0 ? t("the plan's date is %1").arg(before)
                          : t("the plan's date is %1; %2 pushes it").arg(before, named(by));
        }
        return QString();
    }

    QString critical() const
    {
        const int tightest = m_plan.tightest[std::size_t(m_pos)];
        const KWTaskInfo *urgent = m_plan.task(tightest);
        if (m_task->isParent())
            return (urgent->CriticalPath ? t("yes: %1 below it is (slack %2)")
                                         : t("no: %1 has the least to spare of the tasks below it, %2"))
                .arg(named(tightest), urgent->LateSlack);
        if (m_task->CriticalPath)
            return t("yes: finishing later moves the project finish (slack %1)").arg(m_task->LateSlack);
        return t("no: it can finish up to %1 later (%2) without moving the project finish")
            .arg(m_task->LateSlack, moment(m_times.lateFinish(m_pos)));
    }

    QString holdsUp() const
    {
        QStringList chain;
        for (const quint32 id : m_reasons.chain.mid(0, longestChain))
            chain.append(named(m_plan.posOf(id)));
        if (chain.isEmpty())
            return t("nothing: no task waits for it");
        QString text = chain.join(QLatin1String(" -> "));
        if (m_reasons.chain.size() > longestChain)
            text += QLatin1String(" -> ...");
        const int others = m_reasons.successorCount - 1;
        if (others > 0)
            text += counted(others, "; %1 more task waits for it", "; %1 more tasks wait for it");
        return text;
    }

    const Plan &m_plan;
    shown::Times m_times;
    int m_pos;
    const KWTaskInfo *m_task;
    planreasons::Reasons m_reasons;
};

QVector<int> withName(const Plan &plan, const std::function<bool(const QString &)> &fits)
{
    QVector<int> found;
    for (int pos = 0; pos < plan.taskCount(); ++pos)
        if (fits(plan.task(pos)->Name.trimmed()))
            found.append(pos);
    return found;
}
}

QVector<int> find(const Plan &plan, const QString &text)
{
    const QString wanted = text.trimmed();
    bool isNumber = false;
    const quint32 number = (wanted.startsWith(QLatin1Char('#')) ? wanted.mid(1) : wanted).toUInt(&isNumber);
    if (isNumber && wanted.startsWith(QLatin1Char('#'))) {
        const int pos = plan.posOf(number);
        return pos < 0 ? QVector<int>() : QVector<int>{pos};
    }
    if (isNumber && number >= 1 && number <= quint32(plan.taskCount()))
        return {int(number) - 1};
    QVector<int> found = withName(plan, [&wanted](const QString &name) { return name == wanted; });
    if (found.isEmpty())
        found = withName(plan,
                         [&](const QString &name) { return name.compare(wanted, Qt::CaseInsensitive) == 0; });
    if (found.isEmpty() && !wanted.isEmpty())
        found =
            withName(plan, [&](const QString &name) { return name.contains(wanted, Qt::CaseInsensitive); });
    return found;
}

QVector<Line> task(const Plan &plan, int pos)
{
    return Explainer(plan, pos).run();
}

QString text(const QVector<Line> &lines, const Style &style)
{
    int labelColumns = 15; // more where a language has longer words
    for (const Line &line : lines)
        labelColumns = qMax(labelColumns, textwidth::of(line.label) + 1);
    QString text;
    for (const Line &line : lines) {
        const QString words = textwidth::oneLine(line.text, style.ascii);
        if (line.label.isEmpty())
            text += style.toned(words, Style::Bold) + QLatin1Char('\n');
        else
            text +=
                QLatin1String("  ") + textwidth::padded(line.label, labelColumns) + words + QLatin1Char('\n');
    }
    return text;
}

QByteArray json(const QVector<Line> &lines)
{
    QByteArrayList members;
    for (const Line &line : lines)
        members.append("  \"" + QByteArray(line.key) + "\": " + machine::jsonText(line.text));
    return "{\n" + members.join(",\n") + "\n}\n";
}
}
