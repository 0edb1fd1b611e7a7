#include "quarkmanager.h"
#include <QHash>
#include <QVector>

namespace {

// Pixels, the metric and the inch units, points and didots: the index is the unit code.
const char *const unitNames[QuarkManager::unitQuarkCount] = {"px",    "mm", "cm", "m",  "km", "in", "ft",
                                                             "ft-in", "yd", "mi", "pt", "pc", "dd", "cc"};

struct Table
{
    Table()
    {
        for (const char *name : unitNames)
            add(QString::fromLatin1(name));
    }
    int add(const QString &text)
    {
        const int quark = texts.size();
        texts.append(text);
        quarks.insert(text, quark);
        return quark;
    }
    QVector<QString> texts;
    QHash<QString, int> quarks;
};

Table &table()
{
    static Table instance;
    return instance;
}
}

int QuarkManager::quarkFromString(const QString &text)
{
    if (text.isEmpty())
        return -1;
    const int known = findQuark(text);
    return known >= 0 ? known : table().add(text);
}

int QuarkManager::findQuark(const QString &text)
{
    return table().quarks.value(text, -1);
}

QString QuarkManager::quarkToString(int quark)
{
    return table().texts.value(quark);
}
