#pragma once
#include "editing/kwhyperlink.h"
#include "engine/record/resource.h"
#include "engine/record/resourcefields.h"
#include <QFont>
#include <QList>
#include <QString>
#include <algorithm>
#include <cstring>

// Whether values of tasks are the same to a user who gets them back.
namespace samevalues {

template <typename T>
bool isSame(const T &a, const T &b)
{
    return a == b;
}

// As files would show it: -0 is not 0, and no number equals itself.
inline bool isSame(double a, double b)
{
    return std::memcmp(&a, &b, sizeof(double)) == 0;
}

// Most values are shared and need not be looked at.
inline bool isSame(const QString &a, const QString &b)
{
    return a.isSharedWith(b) || a == b;
}

inline bool isSame(const QList<quint32> &a, const QList<quint32> &b)
{
    return a.isSharedWith(b) || a == b;
}

inline bool isSame(const QFont &a, const QFont &b)
{
    return a.isCopyOf(b) || (a == b && a.resolve() == b.resolve());
}

inline bool isSame(const Resource &a, const Resource &b)
{
    bool same = true;
    fields::forEach(fields::resourceFields, fields::Copy,
                    [&](const auto &row) { same = same && isSame(a.*row.member, b.*row.member); });
    return same;
}

inline bool isSame(const QList<Resource *> &a, const QList<Resource *> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const Resource *x, const Resource *y) { return isSame(*x, *y); });
}

inline bool isSame(const KWHyperlinkSheet &a, const KWHyperlinkSheet &b)
{
    if (a.count() != b.count())
        return false;
    for (int i = 0; i < a.count(); ++i) {
        if (*a.getAt(i) != *b.getAt(i))
            return false;
    }
    return true;
}
}
