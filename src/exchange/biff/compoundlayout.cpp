// Lays a compound file out and writes it in one pass: streams, mini stream, mini table, directory, sector
// table, and the list of table sectors that no longer fits the header.
#include "exchange/biff/compoundfile.h"
#include <QIODevice>
#include <algorithm>

using namespace YCompoundFiles;

namespace {

using Property = CompoundFile::Property;
using PropertyTree = CompoundFile::PropertyTree;

// Everything here is far below 2^32 sectors: the streams are bounded.
quint32 sectorsFor(quint64 bytes, quint64 sectorBytes)
{
    return quint32(divideUp(bytes, sectorBytes));
}

// A table with chains, each in consecutive sectors.
class Table
{
public:
    // First sector of the chain; the end mark when it is empty.
    quint32 chain(quint32 sectors)
    {
        const quint32 first = quint32(m_next.size());
        for (quint32 i = 1; i <= sectors; ++i)
            m_next.push_back(i < sectors ? first + i : endOfChain);
        return sectors > 0 ? first : endOfChain;
    }
    void mark(quint32 sectors, quint32 value) { m_next.insert(m_next.end(), sectors, value); }
    quint32 size() const { return quint32(m_next.size()); }
    void write(biff::Sink &to, quint32 multiple) const
    {
        for (const quint32 next : m_next)
            to.u32(next);
        for (quint32 i = size(); i % multiple != 0; ++i)
            to.u32(freeSector);
    }

private:
    std::vector<quint32> m_next;
};

// Siblings as a balanced search tree, which needs no recursion deeper than its height: every level but the
// last is full, so black nodes and a red last level satisfy the rules of a red-black tree.
class SiblingTree
{
public:
    SiblingTree(QVector<Property> *entries, const std::vector<quint32> &siblings)
        : m_entries(entries)
        , m_siblings(siblings)
    {
        while ((size_t(2) << m_fullLevels) - 1 <= siblings.size())
            ++m_fullLevels;
    }
    quint32 root() { return build(0, m_siblings.size(), 0); }

private:
    quint32 build(size_t begin, size_t end, int level)
    {
        if (begin == end)
            return Property::none;
        const size_t middle = begin + (end - begin) / 2;
        const quint32 entry = m_siblings[middle];
        const quint32 left = build(begin, middle, level + 1);
        const quint32 right = build(middle + 1, end, level + 1);
        Property &property = (*m_entries)[int(entry)];
        property.left = left;
        property.right = right;
        property.isBlack = level < m_fullLevels;
        return entry;
    }

    QVector<Property> *m_entries;
    const std::vector<quint32> &m_siblings;
    int m_fullLevels = 0;
};

bool put(QIODevice &device, const QByteArray &bytes)
{
    return device.write(bytes) == bytes.size();
}

// Writes the bytes and zeros up to a whole sector.
bool putPadded(QIODevice &device, const QByteArray &bytes, quint32 sectorBytes)
{
    const quint32 used = quint32(bytes.size()) % sectorBytes;
    return put(device, bytes) && (used == 0 || put(device, QByteArray(int(sectorBytes - used), '\0')));
}
}

bool CompoundFile::WriteTo(QIODevice &device) const
{
    if (!m_isOpen)
        return fail(QStringLiteral("no compound file is open"));
    Header header;
    header.majorVersion = m_header.majorVersion;
    header.sectorShift = m_header.sectorShift;
    const quint32 sectorBytes = 1u << header.sectorShift;
    const quint32 numbersInSector = sectorBytes / 4;

    // Where everything lies.
    const std::vector<int> nodes = m_tree.Nodes();
    Table table, miniTable;
    std::vector<int> largeStreams, smallStreams;
    QVector<Property> entries;
    quint64 largeBytes = 0;
    for (const int node : nodes) {
        Property entry = m_tree.At(node).property;
        entry.left = entry.right = entry.child = Property::none;
        entry.size = entry.kind == Property::Stream ? contentSize(node) : 0;
        entry.start = entry.kind == Property::Storage ? 0 : endOfChain;
        if (entry.size >= header.miniCutoffBytes) {
            largeBytes += entry.size;
            if (largeBytes > biff::Sink::limitBytes)
                return fail(QStringLiteral("is too large for a compound file"));
            entry.start = table.chain(sectorsFor(entry.size, sectorBytes));
            largeStreams.push_back(node);
        } else if (entry.size > 0) {
            entry.start = miniTable.chain(sectorsFor(entry.size, miniSectorBytes));
            smallStreams.push_back(node);
        }
        entries.append(entry);
    }
    Property &root = entries.first();
    root.size = quint64(miniTable.size()) * miniSectorBytes;
    root.start = table.chain(sectorsFor(root.size, sectorBytes));
    header.miniTableSectors = sectorsFor(miniTable.size(), numbersInSector);
    header.firstMiniTableSector = table.chain(header.miniTableSectors);
    const quint32 directorySectors = sectorsFor(quint64(entries.size()) * Property::sizeBytes, sectorBytes);
    header.firstDirectorySector = table.chain(directorySectors);
    header.directorySectors = header.IsVersion4() ? directorySectors : 0;

    // The table covers its own sectors and those of its list, so its length has to settle.
    const quint32 numbersInHeader = quint32(header.tableSectorList.size());
    for (;;) {
        const quint64 sectors = quint64(table.size()) + header.tableSectors + header.listSectors;
        const quint32 tableSectors = sectorsFor(sectors, numbersInSector);
        const quint32 listSectors = tableSectors > numbersInHeader
                                        ? sectorsFor(tableSectors - numbersInHeader, numbersInSector - 1)
                                        : 0;
        if (tableSectors == header.tableSectors && listSectors == header.listSectors)
            break;
        header.tableSectors = tableSectors;
        header.listSectors = listSectors;
    }
    const quint32 firstTableSector = table.size();
    const quint32 firstListSector = firstTableSector + header.tableSectors;
    table.mark(header.tableSectors, tableMark);
    table.mark(header.listSectors, listMark);
    if (header.listSectors > 0)
        header.firstListSector = firstListSector;
    for (quint32 i = 0; i < qMin(header.tableSectors, numbersInHeader); ++i)
        header.tableSectorList[i] = firstTableSector + i;

    // Nodes() lists parents before children and siblings side by side in order.
    std::vector<quint32> entryOfNode(size_t(*std::max_element(nodes.begin(), nodes.end())) + 1);
    for (size_t i = 0; i < nodes.size(); ++i)
        entryOfNode[size_t(nodes[i])] = quint32(i);
    for (size_t i = 0; i < nodes.size(); ++i) {
        std::vector<quint32> siblings;
        for (const auto &child : m_tree.At(nodes[i]).children)
            siblings.push_back(entryOfNode[size_t(child.second)]);
        entries[int(i)].child = SiblingTree(&entries, siblings).root();
    }
    while (entries.size() % int(sectorBytes / Property::sizeBytes) != 0)
        entries.append(Property());

    // One stream at a time is in memory beside what is open.
    biff::Sink head;
    header.Write(head);
    if (!put(device, head.takeBytes()))
        return false;
    QByteArray bytes;
    for (const int node : largeStreams) {
        if (!content(node, &bytes))
            return fail(QStringLiteral("the stream \"%1\" is damaged").arg(m_tree.At(node).property.name));
        if (!putPadded(device, bytes, sectorBytes))
            return false;
    }
    biff::Sink rest;
    for (const int node : smallStreams) {
        if (!content(node, &bytes))
            return fail(QStringLiteral("the stream \"%1\" is damaged").arg(m_tree.At(node).property.name));
        rest.raw(bytes.constData(), size_t(bytes.size()));
        rest.zeros((miniSectorBytes - rest.size() % miniSectorBytes) % miniSectorBytes);
    }
    rest.zeros((sectorBytes - rest.size() % sectorBytes) % sectorBytes);
    miniTable.write(rest, numbersInSector);
    for (const Property &entry : qAsConst(entries))
        entry.Write(rest);
    table.write(rest, numbersInSector);
    for (quint32 i = 0; i < header.listSectors; ++i) {
        for (quint32 k = 0; k < numbersInSector - 1; ++k) {
            const quint32 number = numbersInHeader + i * (numbersInSector - 1) + k;
            rest.u32(number < header.tableSectors ? firstTableSector + number : freeSector);
        }
        rest.u32(i + 1 < header.listSectors ? firstListSector + i + 1 : endOfChain);
    }
    return rest.ok() && put(device, rest.takeBytes());
}
