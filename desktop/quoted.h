#pragma once
#include <QString>

// A name on one short line: a file may have a megabyte of it.
inline QString shortened(const QString &name)
{
    constexpr int longest = 80;
    const QString line = name.left(4 * longest).simplified();
    return line.size() <= longest ? line : line.left(longest - 1) + QStringLiteral("…");
}

// The same in a sentence.
inline QString quoted(const QString &name)
{
    return QStringLiteral("“%1”").arg(shortened(name));
}
