#pragma once
#include "kwgantt_export.h"
#include <QList>
#include <QString>

// One thing a host should tell its user: where, what, and what to do about it.
struct KWGANTT_EXPORT Finding
{
    QString place; // "row 17, 'Finish'"
    QString what;  // "'31/02/2026' is not a date"
    QString hint;  // may be empty
};

// What loading, importing and linking found wrong; a bool cannot say it.
class KWGANTT_EXPORT Findings
{
public:
    void add(const QString &place, const QString &what, const QString &hint = QString());
    const QList<Finding> &list() const { return m_list; }
    bool isEmpty() const { return m_list.isEmpty(); }
    int count() const { return m_list.size() + m_dropped; } // those past the limit included
    void clear();

    static constexpr int limit = 1000; // a hostile file gets no longer list

private:
    QList<Finding> m_list;
    int m_dropped = 0;
};
