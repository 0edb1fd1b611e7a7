// Random edits of all kinds with undo and redo between them, compared with what each state was saved as.
//
// An edit is a line of a script: what fails is cut down and printed so that "kwgantt edit" can run it.
// KW_UNDO_SEQUENCES says how many sequences are tried, KW_UNDO_SEED where they begin.
#include "edit.h"
#include "editing/actionmanager.h"
#include "editing/taskaction.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "support/outlinecheck.h"
#include "support/savedtext.h"
#include "table/rowcolumndata.h"
#include "texts.h"
#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <vector>

namespace {

// ---- A plan that is edited line by line -------------------------------------------------------------------

class Session
{
public:
    Session()
    {
        QGuiApplication::clipboard()->clear();
        m_states.push_back(savedState());
    }

    // What went wrong; empty when all is well. A refused line changes nothing.
    std::string run(const QString &line)
    {
        QStringList words;
        options::Fault fault;
        if (!editline::split(line, words, fault) || words.isEmpty())
            return "no edit: " + fault.what.toStdString();
        ActionManager &actions = document().actionManager();
        const int before = actions.undoActions().size();
        m_isRefused = !editverbs::run(m_plan, words, fault);
        if (m_isRefused) {
            takeBack();
        } else if (words.first() == QLatin1String("undo") || words.first() == QLatin1String("redo")) {
            m_now += std::size_t(actions.undoActions().size()) - std::size_t(before);
        } else if (actions.undoActions().size() > before) {
            m_states.resize(++m_now);
            m_states.push_back(savedState());
        }
        return faults();
    }
    bool isRefused() const { return m_isRefused; }

    std::string undoAndRedoAll()
    {
        std::string found;
        for (const bool undoes : {true, false, true}) {
            if (undoes)
                document().actionManager().undo(int(m_now));
            while (!undoes && !document().actionManager().redoActions().isEmpty())
                document().actionManager().redo();
            m_now = undoes ? 0 : m_states.size() - 1;
            found += faults();
        }
        return found;
    }

    KWDocument &document() { return *m_plan.document; }

private:
    // An edit that fails half way leaves its record behind.
    static void takeBack()
    {
        if (TaskAction *action = ActionManager::pendingAction())
            action->unExecute();
        ActionManager::clearUndoAction();
    }

    // As a host shows and saves it: with the bars where they belong.
    std::string savedState()
    {
        document().taskCollection()->updateRageAndTaskPoint();
        return savedText(document());
    }

    std::string faults()
    {
        constexpr bool withLevels = false; // what is below a removed summary keeps its level
        constexpr bool withDates = false;  // 'add' does not ask the summary that it adds to
        std::string found = outlineFaults(document(), withLevels, withDates);
        const std::string state = savedState();
        if (state != m_states[m_now])
            found += "not the state that it was:\n" + difference(m_states[m_now], state);
        return found;
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

    Plan m_plan;
    std::vector<std::string> m_states; // after each edit that can be undone
    std::size_t m_now = 0;
    bool m_isRefused = false;
};

// ---- Random lines -----------------------------------------------------------------------------------------

class Writer
{
public:
    explicit Writer(unsigned int seed)
        : m_random(seed)
    {
    }

    QString line(const KWDocument &document)
    {
        m_document = &document;
        m_line = newLine();
        ++m_count;
        return m_line;
    }

private:
    QString newLine()
    {
        const KWDocument &document = *m_document;
        constexpr int mostTasks = 40;
        const QStringList beginning{QStringLiteral("resource add Ann rate=50/h"),
                                    QStringLiteral("resource add Cement type=material rate=2.5")};
        if (m_count < beginning.size())
            return beginning[m_count];
        if (document.visibleRowCount() == 0)
            return filled(pick({"add", "add N V"}));
        if (m_line.startsWith(QLatin1String("undo")) && below(2) == 0)
            return filled(pick({"redo", "redo", "redo K"}));
        const bool isSmall = document.taskCount() < 4;
        if (isSmall || (below(3) == 0 && document.taskCount() < mostTasks / 2))
            return filled(pick({"add", "add N V", "insert T N V", "sub T", "sub T N", "sub T V"}));
        const QString line = filled(pick({"indent T",
                                          "outdent T",
                                          "indent T",
                                          "outdent T",
                                          "remove T",
                                          "move T D",
                                          "move T D 2",
                                          "collapse T",
                                          "expand T",
                                          "rename T N",
                                          "set T V",
                                          "set T V",
                                          "set T V V",
                                          "link T T",
                                          "link T T T",
                                          "unlink T",
                                          "unlink T T",
                                          "assign T R",
                                          "assign T R 50%",
                                          "unassign T",
                                          "unassign T R",
                                          "resource add R",
                                          "resource add R S",
                                          "resource set R S",
                                          "resource remove R",
                                          "resource rename R R",
                                          "calendar days W",
                                          "calendar hours H",
                                          "calendar holiday C",
                                          "calendar workday C party",
                                          "calendar remove C",
                                          "option O",
                                          "column \"Task Name\" X",
                                          "column Start X",
                                          "baseline set",
                                          "baseline clear T",
                                          "schedule",
                                          "copy T",
                                          "cut T",
                                          "paste T",
                                          "paste",
                                          "paste under T",
                                          "copy T T",
                                          "undo",
                                          "undo",
                                          "undo K",
                                          "undo K",
                                          "redo",
                                          "redo",
                                          "redo K"}));
        const bool grows = line.startsWith(QLatin1String("paste"));
        return grows && document.taskCount() > mostTasks ? QStringLiteral("undo") : line;
    }

    int below(int bound) { return int(m_random() % unsigned(bound)); }
    QString pick(const std::vector<const char *> &choices)
    {
        return QString::fromUtf8(choices[std::size_t(below(int(choices.size())))]);
    }
    QString date()
    {
        return QStringLiteral("2026-%1-%2")
            .arg(3 + below(2), 2, 10, QLatin1Char('0'))
            .arg(1 + below(30), 2, 10, QLatin1Char('0'));
    }

    // A capital that stands alone is a place for a random value.
    QString filled(const QString &form)
    {
        QStringList words = form.split(QLatin1Char(' '));
        for (QString &word : words) {
            if (word.size() == 1 && word.front().isUpper())
                word = value(word.front().toLatin1());
        }
        return words.join(QLatin1Char(' '));
    }

    QString value(char what)
    {
        switch (what) {
        case 'T':
            return QLatin1Char('#') +
                   QString::number(m_document->getTaskInfoByRow(below(m_document->visibleRowCount()))->ID);
        case 'N':
            return pick({"Walls", "\"Roof & <gutter>\"", "'  '", "Tor", "\u00e9t\u00e9", "\"a\\nb\"", "x;y"});
        case 'V':
            return field();
        case 'R':
            return pick({"Ann", "Bob", "Cement", "\"Dr. Eve\""});
        case 'S':
            return pick({"type=material", "type=work", "rate=50/h", "rate=2.5", "per-use=20", "overtime=70/h",
                         "units=200%", "email=a@b", "rate=400/d"});
        case 'D':
            return pick({"up", "down"});
        case 'W':
            return pick({"Mon-Fri", "Mon-Sat", "Tue,Thu", "Sat,Sun"});
        case 'H':
            return pick({"08:00-12:00,13:00-17:00", "09:00-15:00", "00:00-24:00", "06:30-12:00"});
        case 'C':
            return below(2) == 0 ? date() : QStringLiteral("2026-03-09..2026-03-13");
        case 'O':
            return pick({"unit=h", "unit=d", "scale=week/day", "scale=month/week", "scale=week/hour",
                         "unit-width=55", "unit-width=7", "auto-zoom=no", "auto-zoom=yes",
                         "auto-progress=yes", "theme=2", "baseline-cost=0.1"});
        case 'X':
            return pick({"show", "hide", "77.5"});
        case 'K':
            return QString::number(1 + below(6));
        default:
            return QString(QLatin1Char(what));
        }
    }

    QString field()
    {
        switch (below(12)) {
        case 0:
        case 1:
            return QLatin1String("start=") + date();
        case 2:
            return QLatin1String("finish=") + date();
        case 3:
        case 4:
            return QLatin1String("duration=") + QString::number(1 + below(9)) + pick({"d", "h", "w", "min"});
        case 5:
            return QLatin1String("percent=") + QString::number(below(101));
        case 6:
            return QLatin1String("height=") + QString::number(20 + below(40) / 4.0);
        case 7:
            return QLatin1String("base-start=") + date();
        case 8:
            return QLatin1String("base-cost=") + QString::number(below(1000) / 8.0);
        default:
            return pick({"milestone=yes", "milestone=no", "priority=3", "notes=\"\"", "notes=damp",
                         "name=Door", "hyperlinks=a.com;b.txt", "hyperlinks=\"\""});
        }
    }

    std::mt19937 m_random;
    QString m_line; // the one before
    int m_count = 0;
    const KWDocument *m_document = nullptr;
};

// ---- One sequence -----------------------------------------------------------------------------------------

struct Failure
{
    QStringList lines; // those that were not refused
    std::string what;  // empty: everything held
};

Failure replayed(const QStringList &lines)
{
    Session session;
    Failure failure;
    for (const QString &line : lines) {
        failure.what = session.run(line);
        if (!session.isRefused() || !failure.what.empty())
            failure.lines.append(line);
        if (!failure.what.empty())
            return failure;
    }
    failure.what = session.undoAndRedoAll();
    return failure;
}

// The lines that are left when none of them can be spared.
Failure shrunk(Failure failure)
{
    for (int size = qMax(1, failure.lines.size() / 2); size > 0; size /= 2) {
        for (int at = failure.lines.size() - size; at >= 0; at -= size) {
            QStringList fewer = failure.lines;
            fewer.erase(fewer.begin() + at, fewer.begin() + qMin(at + size, fewer.size()));
            const Failure smaller = replayed(fewer);
            if (!smaller.what.empty())
                failure = smaller;
            at = qMin(at, failure.lines.size());
        }
    }
    return failure;
}

int numberFrom(const char *variable, int otherwise)
{
    const int number = qEnvironmentVariableIntValue(variable);
    return number > 0 ? number : otherwise;
}

TEST(RandomUndo, bringsEveryStateBack)
{
    texts::fillLibraryTables();
    editverbs::fillUndoNames();
    KWClock::set(QDateTime(QDate(2026, 3, 2), QTime(12, 0)));
    KWDocument::s_config.setValue(QStringLiteral("UndoLevel"), 10000);
    const int first = numberFrom("KW_UNDO_SEED", 1);
    const int sequences = numberFrom("KW_UNDO_SEQUENCES", 40);
    constexpr int linesInOne = 60;
    std::map<QString, int> done;
    for (int seed = first; seed < first + sequences; ++seed) {
        Writer writer{unsigned(seed)};
        Session session;
        Failure failure;
        for (int i = 0; i < linesInOne && failure.what.empty(); ++i) {
            const QString line = writer.line(session.document());
            failure.what = session.run(line);
            if (session.isRefused() && failure.what.empty())
                continue;
            failure.lines.append(line);
            ++done[line.section(QLatin1Char(' '), 0, 0)];
        }
        if (failure.what.empty())
            failure.what = session.undoAndRedoAll();
        if (!failure.what.empty()) {
            failure = shrunk(failure);
            FAIL() << "sequence " << seed << ":\n"
                   << failure.lines.join(QLatin1Char('\n')).toStdString() << "\n\n"
                   << failure.what;
        }
    }
    constexpr int enoughToCount = 40; // the rarest verb comes in every third sequence
    if (sequences >= enoughToCount) {
        for (const auto &[verb, count] : done)
            EXPECT_GT(count, sequences / 10 - 4) << verb.toStdString() << " is refused nearly always";
        EXPECT_EQ(done.size(), 26u);
    }
    KWClock::set(QDateTime());
}
}
