#pragma once
#include "kwbase_export.h"
#include <QString>

// Texts as integer keys. The unit names hold the keys 0 to 13, in the order of the unit codes.
class KWBASE_EXPORT QuarkManager
{
public:
    static constexpr int unitQuarkCount = 14;
    static int quarkFromString(const QString &text); // a new text gets the next key; empty: -1
    static int findQuark(const QString &text);       // -1 when the text has no key
    static QString quarkToString(int quark);         // empty for an unknown key
};
