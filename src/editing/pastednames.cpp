#include "editing/pastednames.h"
#include "engine/record/taskahead.h"
#include "model/kwtaskinfo.h"
#include "support/kwlimits.h"
#include <QHash>
#include <QSet>
#include <QStringView>
#include <unordered_map>
#include <vector>

namespace pasted {

namespace {

// A name without the ones at its end, and how many they are.
struct Stem
{
    QStringView text;
    int ones = 0;
};

Stem stemOf(QStringView name)
{
    Stem stem{name, 0};
    while (!stem.text.isEmpty() && stem.text.back() == QLatin1Char('1')) {
        stem.text.chop(1);
        ++stem.ones;
    }
    return stem;
}

// The name that counts when ones are added behind it: blanks at the end are then inside.
QStringView withoutLeadingBlanks(QStringView name)
{
    while (!name.isEmpty() && name.front().isSpace())
        name = name.mid(1);
    return name;
}

// The names of one stem that are in use. One that is in use stays so: a task gives its name up only when
// another has it too.
class Family
{
public:
    void add(int ones) { ++m_taken[ones].tasks; }
    void remove(int ones) { --m_taken[ones].tasks; }
    int tasks(int ones) const
    {
        const auto found = m_taken.find(ones);
        return found == m_taken.end() ? 0 : found->second.tasks;
    }
    // The least number of ones from there on that nobody has.
    int firstFree(int ones)
    {
        int free = ones;
        for (auto at = m_taken.find(free); at != m_taken.end(); at = m_taken.find(free))
            free = std::max(at->second.next, free + 1);
        // Whoever comes here again goes straight there.
        for (auto at = m_taken.find(ones); at != m_taken.end(); at = m_taken.find(ones))
            ones = std::max(std::exchange(at->second.next, free), ones + 1);
        return free;
    }

private:
    struct Taken
    {
        int tasks = 0;
        int next = 0; // nothing is free before that
    };
    std::unordered_map<int, Taken> m_taken;
};

class Names
{
public:
    Names(const QList<KWTaskInfo *> &list, const QList<KWTaskInfo *> &tasks)
        : m_list(list)
    {
        for (const KWTaskInfo *task : tasks) {
            m_families.insert(stemOf(QStringView(task->Name).trimmed()).text.toString(), Family());
            m_families.insert(stemOf(withoutLeadingBlanks(task->Name)).text.toString(), Family());
        }
        for (auto stem = m_families.keyBegin(); stem != m_families.keyEnd(); ++stem)
            m_hashes[hashOf(*stem)] = true;
        for (int pos = 0; pos < list.size(); ++pos) {
            fetchNamesAhead(list, pos);
            add(list[pos]->Name);
        }
    }

    void makeDifferent(KWTaskInfo &task)
    {
        const Stem old = stemOf(QStringView(task.Name).trimmed());
        Family &family = *familyOf(old);
        if (family.tasks(old.ones) < 2)
            return;
        const Stem stem = stemOf(withoutLeadingBlanks(task.Name));
        const int ones = familyOf(stem)->firstFree(stem.ones + 1) - stem.ones;
        family.remove(old.ones);
        task.Name += ones <= maxOnes ? QString(ones, QLatin1Char('1')) : number(task.Name);
        add(task.Name);
    }

private:
    Family *familyOf(const Stem &stem)
    {
        // Most names have no family here, and mostly one bit tells that. Looking one up is not to make a copy
        // of its text.
        if (!m_hashes[hashOf(stem.text)])
            return nullptr;
        const auto found = m_families.find(QString::fromRawData(stem.text.data(), int(stem.text.size())));
        return found == m_families.end() ? nullptr : &*found;
    }

    void add(const QString &name)
    {
        const Stem stem = stemOf(QStringView(name).trimmed());
        if (Family *family = familyOf(stem))
            family->add(stem.ones);
    }

    // A number that makes the name one of its own.
    QString number(const QString &name)
    {
        if (m_all.isEmpty()) {
            for (const KWTaskInfo *task : m_list)
                m_all.insert(task->Name.trimmed());
        }
        for (;;) {
            const QString text = QString::number(++m_lastNumber);
            const QString wanted = (name + text).trimmed();
            const Stem stem = stemOf(wanted);
            const Family *family = familyOf(stem);
            if (m_all.contains(wanted) || (family && family->tasks(stem.ones) > 0))
                continue;
            m_all.insert(wanted);
            return text;
        }
    }

    static constexpr uint hashCount = 1 << 16;
    static std::size_t hashOf(QStringView text) { return qHash(text) % hashCount; }

    const QList<KWTaskInfo *> &m_list;
    std::vector<bool> m_hashes = std::vector<bool>(hashCount); // that a family has
    QHash<QString, Family> m_families; // by the stems of the tasks that may be renamed
    QSet<QString> m_all;               // filled when numbers are needed
    int m_lastNumber = maxOnes;
};
}

void makeNamesDifferent(const QList<KWTaskInfo *> &list, const QList<KWTaskInfo *> &tasks)
{
    Names names(list, tasks);
    for (int pos = tasks.size() - 1; pos >= 0; --pos)
        names.makeDifferent(*tasks[pos]);
}
}
