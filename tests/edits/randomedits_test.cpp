// Random edits of every kind on one plan, with undo and redo between them: after each of them the plan is
// what a plain reading says, settling everything changes nothing, and every state comes back as it was saved.
//
// KW_EDIT_SEQUENCES says how many sequences are tried, KW_EDIT_SEED where they begin.
#include "editing/actionmanager.h"
#include "editing/kwhyperlink.h"
#include "edits/plainplan.h"
#include "edits/planedits.h"
#include "edits/settle.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include "support/longwork.h"
#include "support/savedtext.h"
#include "table/rowcolumndata.h"
#include <QClipboard>
#include <QGuiApplication>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr quint32 day = 86400;

class Session
{
public:
    explicit Session(unsigned int seed)
        : m_random(seed)
    {
        QGuiApplication::clipboard()->clear();
        if (any(4) == 0)
            m_document.MinorUnit = 1 + quint32(any(2)); // hours, minutes
        PlanEdits edits(m_document, QStringLiteral("Begin"));
        for (int i = 0; i < 3; ++i)
            edits.addResource(QStringLiteral("R%1").arg(i), rates());
        for (int i = 4 + any(14); i > 0; --i) {
            const EditAnswer added =
                i % 3 ? edits.add(values()) : edits.insert(task(), PlanEdits::LastChild, values());
            if (added.isDone() && chance(70))
                edits.link({task(), added.tasks.first()});
            if (added.isDone() && chance(40))
                edits.assign(added.tasks.first(), QStringLiteral("R1"));
        }
        edits.finish();
        m_document.actionManager().undo(1);
        m_states.push_back(savedText(m_document));
        m_document.actionManager().redo();
        m_now = 1;
        m_states.push_back(savedText(m_document));
    }

    // What went wrong; empty when all is well.
    std::string step()
    {
        if (m_now > 0 && any(8) == 0)
            return undoAndRedo();
        const int undoable = m_document.actionManager().undoActions().size();
        const int redoable = m_document.actionManager().redoActions().size();
        bool isDone = false;
        std::string found;
        {
            const std::string before = savedText(m_document);
            m_document.setModified(false);
            PlanEdits edits(m_document, QStringLiteral("Edit"));
            for (int calls = any(6) == 0 ? 2 : 1; calls > 0; --calls)
                isDone = call(edits, found) || isDone;
            if (any(12) == 0) {
                note("cancel");
                isDone = false;
                edits.cancel();
                if (savedText(m_document) != before)
                    found +=
                        "cancelled, and changed nevertheless: " + difference(before, savedText(m_document));
            }
        }
        const bool isStep = m_document.actionManager().undoActions().size() > undoable;
        if ((isStep && !isDone) || m_document.actionManager().redoActions().size() != (isStep ? 0 : redoable))
            found += "a step for nothing, or nothing to redo any more\n";
        const std::string after = savedText(m_document);
        if (isStep) {
            m_states.resize(++m_now);
            m_states.push_back(after);
        }
        found += plainplan::faults(m_document);
        settling::settle(m_document, {settling::Everything, {}, {}});
        if (savedText(m_document) != after)
            found += "settling everything changed:\n" + difference(after, savedText(m_document));
        return found;
    }

    // One call; whether it was done. What is refused changes nothing, and what changes something says so.
    bool call(PlanEdits &edits, std::string &found)
    {
        const std::string before = savedText(m_document);
        const bool wasModified = chance(50);
        m_document.setModified(wasModified);
        int stepsLeft = any(8) == 0 ? any(5) : -1;
        const LongWork impatient([&stepsLeft](LongWork::Stage, qint64, qint64) { return stepsLeft-- != 0; });
        const EditAnswer answer = edit(edits);
        if (impatient.isGivenUp() != (answer.refusal == EditRefusal::GivenUp))
            found += "given up without being refused, or the other way round\n";
        const bool isChanged = savedText(m_document) != before;
        if (!answer.isDone())
            m_log += "   refused: " + answer.sentence().toStdString() + "\n";
        if (!answer.isDone() && (isChanged || m_document.isModified() != wasModified))
            found += "refused, and changed nevertheless: " + difference(before, savedText(m_document));
        if (isChanged && !m_document.isModified())
            found += "changed without a word\n";
        return answer.isDone();
    }

    std::string undoAndRedo()
    {
        const int steps = 1 + any(int(m_now));
        m_log += "undo and redo " + std::to_string(steps) + "\n";
        std::string found;
        for (int i = 0; i < steps; ++i) {
            m_document.actionManager().undo(1);
            found += compare("undo", m_now - 1 - std::size_t(i));
        }
        if (any(4) == 0) {
            m_now -= std::size_t(steps);
            return found;
        }
        for (int i = steps; i > 0; --i) {
            m_document.actionManager().redo();
            found += compare("redo", m_now + 1 - std::size_t(i));
        }
        return found;
    }
    const std::string &log() const { return m_log; }

private:
    int any(int bound) { return int(m_random() % unsigned(bound)); }
    bool chance(int percent) { return any(100) < percent; }
    quint32 task()
    {
        if (m_document.taskCount() == 0 || any(100) == 0)
            return 9999; // there is none
        return m_document.getTaskInfoAt(any(m_document.taskCount()))->ID;
    }
    QVector<quint32> tasks()
    {
        QVector<quint32> ids{task()};
        while (chance(30))
            ids.append(task());
        return ids;
    }
    QString resource() { return any(50) == 0 ? QStringLiteral(" ") : QStringLiteral("R%1").arg(any(5)); }
    // Around a clock change of the western zones.
    quint32 moment()
    {
        return 1709510400u + quint32(any(60)) * day / 2 + (chance(20) ? quint32(any(24)) * 3600 : 0);
    }

    std::string compare(const char *what, std::size_t state)
    {
        const std::string now = savedText(m_document);
        return now == m_states[state] ? std::string()
                                      : std::string(what) + " differs:\n" + difference(m_states[state], now);
    }

    // The first lines that differ.
    static std::string difference(const std::string &expected, const std::string &actual)
    {
        const QStringList was = QString::fromStdString(expected).split(QLatin1Char('\n'));
        const QStringList is = QString::fromStdString(actual).split(QLatin1Char('\n'));
        QStringList lines;
        for (int i = 0; i < qMax(was.size(), is.size()) && lines.size() < 6; ++i) {
            if (was.value(i) != is.value(i))
                lines << QLatin1Char('-') + was.value(i) << QLatin1Char('+') + is.value(i);
        }
        return lines.join(QLatin1Char('\n')).toStdString() + '\n';
    }

    TaskValues values()
    {
        TaskValues values;
        if (chance(30))
            values.start = chance(20) ? 0 : moment();
        if (chance(25))
            values.length = TaskLength{any(9) / 2.0 * (chance(20) ? 7 : 1), quint32(2 + any(5))};
        if (chance(15))
            values.finish = moment();
        if (chance(5))
            values.isMilestone = chance(50);
        if (chance(5))
            values.unit = quint32(any(7));
        if (chance(20))
            values.percent = any(11) / 10.0;
        if (chance(10))
            values.baseStart = chance(30) ? 0 : moment();
        if (chance(10))
            values.baseCost = chance(30) ? QString() : QString::number(any(100000) / 8.0);
        if (chance(10))
            values.name = QStringLiteral("T%1").arg(any(20));
        if (chance(5))
            values.priority = any(1000);
        if (chance(5))
            values.notes = QStringLiteral("note %1").arg(any(9));
        if (chance(5))
            values.rowHeight = 20.0 + any(20);
        if (chance(5)) {
            KWHyperlink link;
            link.address = QStringLiteral("a%1.com").arg(any(9));
            values.hyperlinks = QVector<KWHyperlink>{link};
        }
        if (chance(5))
            spoil(values);
        return values;
    }

    // What no task can take.
    void spoil(TaskValues &values)
    {
        switch (any(6)) {
        case 0:
            values.percent = 1.5;
            break;
        case 1:
            values.length = TaskLength{-1, 4};
            break;
        case 2:
            values.length = TaskLength{1, 7};
            break;
        case 3:
            values.baseCost = QStringLiteral("much");
            break;
        case 4:
            values.rowHeight = 0;
            break;
        default:
            values.finish = 1;
        }
    }

    ResourceValues rates()
    {
        ResourceValues values;
        values.cost = any(100);
        values.costUnit = any(chance(95) ? 5 : 9);
        if (chance(20))
            values.type = any(2);
        if (chance(20))
            values.costPer = any(50);
        return values;
    }

    template <typename... Words>
    void note(const char *verb, const Words &...words)
    {
        m_log += verb;
        ((m_log += " " + text(words)), ...);
        m_log += "\n";
    }
    static std::string text(quint32 id) { return std::to_string(id); }
    static std::string text(int number) { return std::to_string(number); }
    static std::string text(const QString &words) { return words.toStdString(); }
    static std::string text(const QVector<quint32> &ids)
    {
        std::string all;
        for (const quint32 id : ids)
            all += std::to_string(id) + ",";
        return all;
    }
    static std::string text(const TaskValues &values)
    {
        std::string all;
        const auto add = [&all](const char *name, const auto &value) {
            if (value)
                all += std::string(name) + QString::number(double(*value), 'g', 12).toStdString() + " ";
        };
        add("start=", values.start);
        add("finish=", values.finish);
        add("unit=", values.unit);
        add("milestone=", values.isMilestone);
        add("percent=", values.percent);
        add("baseStart=", values.baseStart);
        if (values.baseCost)
            all += "baseCost=" + values.baseCost->toStdString() + " ";
        if (values.length)
            all +=
                "length=" + std::to_string(values.length->value) + "u" + std::to_string(values.length->unit);
        return all;
    }

    EditAnswer edit(PlanEdits &edits)
    {
        const auto place = PlanEdits::Place(any(4));
        const quint32 id = task();
        const QVector<quint32> ids = tasks();
        const TaskValues given = values();
        const bool isFull = m_document.taskCount() > 25;
        switch (isFull ? 4 + any(26) : any(30)) {
        case 0:
        case 1:
            note("add", given);
            return edits.add(given);
        case 2:
        case 3:
            note("insert", id, int(place), given);
            return edits.insert(id, place, given);
        case 4:
        case 5:
        case 6:
            note("indent", ids);
            return edits.indent(ids);
        case 7:
            note("outdent", ids);
            return edits.outdent(ids);
        case 8:
        case 9: {
            const int places = any(5) - 2;
            note("move", id, places);
            return places ? edits.move(id, places) : edits.expand({id});
        }
        case 10:
            note("remove", id);
            return chance(isFull ? 100 : 40) ? edits.remove({id}) : edits.expand({id});
        case 11:
            note("collapse", ids);
            return edits.collapse(ids);
        case 12:
            note("expand", ids);
            return edits.expand(ids);
        case 13:
        case 14:
        case 15:
            note("set", ids, given);
            return edits.set(ids, given);
        case 16:
        case 17:
        case 18: {
            const QVector<quint32> chain{id, task()};
            note("link", chain);
            return edits.link(chain);
        }
        case 19:
            note("unlinkAll", id);
            return chance(30) ? edits.unlinkAll({id}) : edits.link({id, task(), task(), task()});
        case 20:
        case 21: {
            const QString name = resource();
            note("assign", id, name);
            return chance(50) ? edits.assign(id, name) : edits.assign(id, name, any(8) / 4.0);
        }
        case 22: {
            const QString name = resource();
            note("unassign", id, name);
            return chance(80) ? edits.unassign(id, name) : edits.unassignAll({id});
        }
        case 23: {
            const QString name = resource();
            note("sheet", name);
            return chance(70) ? edits.addResource(name, rates()) : edits.removeResource(name);
        }
        case 24: {
            const QString name = resource();
            const QString other = resource();
            note("rates", name, other);
            return chance(60) ? edits.setResource(name, rates()) : edits.renameResource(name, other);
        }
        case 25:
            return calendar(edits);
        case 26:
            return plan(edits, ids);
        case 27:
        case 28:
            note("indent", id);
            return edits.indent({id});
        default:
            return branches(edits, id, ids, place);
        }
    }

    EditAnswer calendar(PlanEdits &edits)
    {
        const QDate date = QDate(2024, 3, 4).addDays(any(40));
        const int kind = any(4);
        note("calendar", kind, date.toString(Qt::ISODate));
        switch (kind) {
        case 0:
            return edits.setWorkDays(
                {chance(90), chance(80), chance(80), false, chance(80), chance(30), false});
        case 1:
            return edits.setWorkHours(chance(50)
                                          ? QVector<DayHours>{{28800, 43200}, {46800, 61200}}
                                          : QVector<DayHours>{{32400, 32400 + quint32(1 + any(9)) * 3600}});
        case 2:
            return edits.addException({QStringLiteral("x"), date, date.addDays(any(4)), chance(30),
                                       chance(30) ? QVector<DayHours>{{36000, 50400}} : QVector<DayHours>()});
        default:
            return edits.removeException(date);
        }
    }

    EditAnswer plan(PlanEdits &edits, const QVector<quint32> &ids)
    {
        const int kind = any(8);
        note("plan", kind, ids);
        switch (kind) {
        case 0:
            return edits.setBaseline();
        case 1:
            return edits.setBaseline(ids);
        case 2:
            return edits.clearBaseline(chance(50) ? ids : QVector<quint32>());
        case 3:
            return edits.schedule(PlanEdits::AsGiven);
        case 4:
            return chance(50) ? edits.schedule(PlanEdits::AsSoonAsPossible, chance(50) ? 0 : moment())
                              : edits.schedule(PlanEdits::WithoutGaps);
        case 5:
            return edits.setColumn(
                RowColumnData::s_columnNames.value(1 + any(5)),
                {chance(50) ? std::optional<bool>(chance(50)) : std::nullopt, 50.0 + any(90)});
        case 6:
            return edits.moveColumn(any(4), any(4));
        default: {
            PlanOptions options;
            options.minorUnit = quint32(any(8));
            options.unitWidth = any(200);
            options.autoProgress = chance(50);
            return edits.setOptions(options);
        }
        }
    }

    EditAnswer branches(PlanEdits &edits, quint32 id, const QVector<quint32> &ids, PlanEdits::Place place)
    {
        const int kind = any(5);
        note("branches", kind, id, ids);
        switch (kind) {
        case 0:
            return edits.copy(ids);
        case 1:
            return chance(40) ? edits.cut({id}) : edits.copy({id});
        case 2:
            return edits.paste();
        case 3:
            return edits.paste(id, place);
        default:
            return edits.copyBranches(m_document, ids, id, place);
        }
    }

    std::mt19937 m_random;
    KWDocument m_document;
    std::vector<std::string> m_states;
    std::size_t m_now = 0;
    std::string m_log;
};

unsigned int fromEnvironment(const char *name, unsigned int usual)
{
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue(name, &isSet);
    return isSet ? unsigned(value) : usual;
}

TEST(RandomEdits, leaveASettledPlanThatUndoBringsBack)
{
    const unsigned int first = fromEnvironment("KW_EDIT_SEED", 1);
    const unsigned int sequences = fromEnvironment("KW_EDIT_SEQUENCES", 20);
    constexpr int steps = 40;
    for (unsigned int seed = first; seed < first + sequences; ++seed) {
        Session session(seed);
        for (int step = 0; step < steps; ++step) {
            const std::string faults = session.step();
            if (!faults.empty()) {
                ADD_FAILURE() << "KW_EDIT_SEED=" << seed << "\n" << session.log() << faults;
                return;
            }
        }
    }
}
}
