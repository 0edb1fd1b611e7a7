// Each limit for files from others, at it and one past it.
#include "support/folder.h"
#include "support/kwlimits.h"
#include "support/xmlguard.h"
#include "support/xmltree.h"
#include "support/ziprules.h"
#include "xmlparser.h"
#include <QDomDocument>
#include <QTemporaryDir>
#include <climits>
#include <gtest/gtest.h>

namespace {

bool takesAll(const QList<kwzip::Entry> &entries)
{
    kwzip::Inventory inventory(LLONG_MAX);
    for (const kwzip::Entry &entry : entries) {
        if (!inventory.add(entry).isEmpty())
            return false;
    }
    return inventory.finish().isEmpty();
}

bool entries(int past)
{
    QList<kwzip::Entry> all;
    for (qint64 i = 0; i < kwzip::maxEntries + past; ++i)
        all.append({QByteArray::number(i), 1, 1});
    return takesAll(all);
}

bool entryBytes(int past)
{
    const qint64 bytes = kwzip::maxEntryBytes + past;
    return takesAll({{"a", bytes, bytes}});
}

bool archiveBytes(int past)
{
    constexpr qint64 third = kwzip::maxArchiveBytes / 3;
    const qint64 rest = kwzip::maxArchiveBytes - 2 * third + past;
    return takesAll({{"a", third, third}, {"b", third, third}, {"c", rest, rest}});
}

bool ratio(int past)
{
    constexpr qint64 packed = kwzip::ratioFreeBytes / kwzip::maxRatio + 1;
    return takesAll({{"a", packed * kwzip::maxRatio + past, packed}});
}

bool bytesOfAnyRatio(int past)
{
    return takesAll({{"a", kwzip::ratioFreeBytes + past, 1}});
}

bool nodes(int past)
{
    // A root, and a child with an attribute for every two of the rest.
    constexpr int children = xmlguard::maxNodes / 2 - 1;
    return xmlguard::isSafe("<a b=''>" + QByteArray("<c d='1'/>").repeated(children) +
                            QByteArray("<e/>").repeated(past) + "</a>");
}

bool depth(int past)
{
    const int levels = xmlguard::maxDepth + past;
    return xmlguard::isSafe(QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels));
}

bool domBytes(int past)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.xml"));
    const QByteArray blanks(int(xmlguard::maxDomBytes) - 7 + past, ' ');
    QDomDocument document;
    return folder::put(path, "<a>" + blanks + "</a>") && XmlParser::loadFile(path, document);
}

bool treeBytes(int past)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.xml"));
    constexpr qint64 maxBytes = 4;
    XmlTree tree;
    return folder::put(path, "<a/>" + QByteArray(past, ' ')) && tree.load(path, maxBytes);
}

struct Limit
{
    const char *name;
    bool (*isTaken)(int past);
};

TEST(Limits, areReachedAndNotPassed)
{
    const Limit cases[] = {{"entries", entries},
                           {"entryBytes", entryBytes},
                           {"archiveBytes", archiveBytes},
                           {"ratio", ratio},
                           {"bytesOfAnyRatio", bytesOfAnyRatio},
                           {"nodes", nodes},
                           {"depth", depth},
                           {"domBytes", domBytes},
                           {"treeBytes", treeBytes}};
    for (const Limit &row : cases) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(row.isTaken(0));
        EXPECT_FALSE(row.isTaken(1));
    }
}

}
