#pragma once
#include "kwgantt_export.h"
#include <QList>
#include <QString>
#include <array>

// One thing a host should tell its user: where, what, and what to do about it.
struct KWGANTT_EXPORT Finding
{
    // What became of the thing in the file.
    enum Kind {
        Read,    // taken as it stands, though it cannot be meant so
        Changed, // another value was taken
        Lost,    // not taken: a file saved from the document will not hold it
        Refused  // cannot be worked with: no such link, no such file, no working time
    };

    QString place; // "row 17, 'Finish'"
    QString what;  // "'31/02/2026' is not a date"
    QString hint;  // may be empty
    Kind kind = Changed;

    static const char *kindName(Kind kind); // "read", "changed", "lost", "refused"
    // Lost when nothing was taken ("left out", "not read; ..."), else changed.
    static Kind kindOf(const QString &taken);
};

// What loading, importing and linking found wrong; a bool cannot say it.
class KWGANTT_EXPORT Findings
{
public:
    void add(Finding::Kind kind, const QString &place, const QString &what, const QString &hint = QString());
    // Readers of rows and of project XML say in a few fixed words what they took; these tell the kind.
    void add(const QString &place, const QString &what, const QString &taken = QString())
    {
        add(Finding::kindOf(taken), place, what, taken);
    }
    // All of another's, those that it dropped counted.
    void append(const Findings &others);
    const QList<Finding> &list() const { return m_list; }
    bool isEmpty() const { return m_list.isEmpty(); }
    int count() const { return m_list.size() + m_dropped; }        // those past the limit included
    int count(Finding::Kind kind) const { return m_counts[kind]; } // likewise
    void clear();

    static constexpr int limit = 1000; // a hostile file gets no longer list

private:
    QList<Finding> m_list;
    int m_dropped = 0;
    std::array<int, 4> m_counts = {};
};
