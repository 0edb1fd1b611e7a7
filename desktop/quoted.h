#pragma once
#include <QString>

// A name in a sentence.
inline QString quoted(const QString &name)
{
    return QStringLiteral("“%1”").arg(name.simplified());
}
