#include "exchange/biff/compoundfile.h"
#include "support/atomicfile.h"
#include "support/said.h"
#include <QFile>
#include <QFileInfo>

using namespace YCompoundFiles;

namespace {

constexpr quint32 headerBytes = 512;
constexpr int longestName = 31;

bool isStorage(const CompoundFile::Property &property)
{
    return property.kind == CompoundFile::Property::Storage || property.kind == CompoundFile::Property::Root;
}

// Any other name would make a path lead elsewhere, for a walk through the storages in circles.
bool canStandInPath(const QString &name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QLatin1Char('/'));
}

// The table entries of one sector at the end of `table`.
void appendNumbers(biff::Bytes sector, std::vector<quint32> *table)
{
    while (sector.left() >= 4)
        table->push_back(sector.u32());
}
}

Block::Block(const QByteArray &bytes, int sectorShift)
    : m_bytes(bytes)
    , m_sectorShift(sectorShift)
{
    const quint64 size = quint64(bytes.size());
    if (size > SectorSize())
        m_sectorCount = quint32(divideUp(size - SectorSize(), SectorSize()));
}

biff::Bytes Block::Read(quint32 sector, quint32 count) const
{
    if (sector >= m_sectorCount)
        return {};
    const quint64 begin = (quint64(sector) + 1) << m_sectorShift;
    const quint64 size = qMin(quint64(count) << m_sectorShift, quint64(m_bytes.size()) - begin);
    return {reinterpret_cast<const uchar *>(m_bytes.constData()) + begin, size_t(size)};
}

bool CompoundFile::Header::Read(biff::Bytes from)
{
    const Header fresh;
    for (quint8 &byte : signature)
        byte = from.u8();
    from.skip(16);
    minorVersion = from.u16();
    majorVersion = from.u16();
    byteOrder = from.u16();
    sectorShift = from.u16();
    miniSectorShift = from.u16();
    from.skip(6);
    directorySectors = from.u32();
    tableSectors = from.u32();
    firstDirectorySector = from.u32();
    from.skip(4);
    miniCutoffBytes = from.u32();
    firstMiniTableSector = from.u32();
    miniTableSectors = from.u32();
    firstListSector = from.u32();
    listSectors = from.u32();
    for (quint32 &sector : tableSectorList)
        sector = from.u32();
    return from.ok() && signature == fresh.signature && byteOrder == fresh.byteOrder &&
           (sectorShift == Sectors512 || sectorShift == Sectors4096) &&
           miniSectorShift == fresh.miniSectorShift;
}

void CompoundFile::Header::Write(biff::Sink &to) const
{
    to.raw(signature.data(), signature.size());
    to.zeros(16);
    to.u16(minorVersion);
    to.u16(majorVersion);
    to.u16(byteOrder);
    to.u16(sectorShift);
    to.u16(miniSectorShift);
    to.zeros(6);
    to.u32(directorySectors);
    to.u32(tableSectors);
    to.u32(firstDirectorySector);
    to.zeros(4);
    to.u32(miniCutoffBytes);
    to.u32(firstMiniTableSector);
    to.u32(miniTableSectors);
    to.u32(firstListSector);
    to.u32(listSectors);
    for (const quint32 sector : tableSectorList)
        to.u32(sector);
    to.zeros((size_t(1) << sectorShift) - headerBytes);
}

void CompoundFile::Property::Read(biff::Bytes from, bool isVersion4)
{
    std::array<ushort, 32> units;
    for (ushort &unit : units)
        unit = from.u16();
    // The length counts bytes with the closing zero.
    const int length = qBound(0, from.u16() / 2 - 1, longestName);
    name = QString::fromUtf16(units.data(), length);
    kind = from.u8();
    isBlack = from.u8() != 0;
    left = from.u32();
    right = from.u32();
    child = from.u32();
    if (const uchar *bytes = from.take(classAndTimes.size()))
        std::copy_n(bytes, classAndTimes.size(), classAndTimes.begin());
    start = from.u32();
    size = from.u32();
    // Writers of version 3 leave anything in the upper half.
    const quint64 upperHalf = from.u32();
    if (isVersion4)
        size |= upperHalf << 32;
}

void CompoundFile::Property::Write(biff::Sink &to) const
{
    const int length = qMin(name.size(), longestName);
    for (int i = 0; i < length; ++i)
        to.u16(name.at(i).unicode());
    to.zeros(64 - 2 * size_t(length));
    to.u16(kind == Unused ? 0 : quint16(2 * (length + 1)));
    to.u8(kind);
    to.u8(kind != Unused && isBlack); // of an unused entry only the links are not zero
    to.u32(left);
    to.u32(right);
    to.u32(child);
    to.raw(classAndTimes.data(), classAndTimes.size());
    to.u32(start);
    to.write(size);
}

bool CompoundFile::PropertyTree::NameOrder::operator()(const QString &a, const QString &b) const
{
    if (a.size() != b.size())
        return a.size() < b.size();
    for (int i = 0; i < a.size(); ++i) {
        const QChar x = a.at(i).toUpper(), y = b.at(i).toUpper();
        if (x != y)
            return x < y;
    }
    return false;
}

CompoundFile::PropertyTree::PropertyTree()
    : m_nodes(1)
{
    m_nodes[0].property.name = QStringLiteral("Root Entry");
    m_nodes[0].property.kind = Property::Root;
    m_nodes[0].property.start = endOfChain;
}

bool CompoundFile::PropertyTree::Build(const QVector<Property> &entries)
{
    if (entries.isEmpty() || entries.first().kind != Property::Root)
        return false;
    m_nodes.clear();
    m_nodes.resize(1);
    m_nodes[0].property = entries.first();
    // Siblings may form a tree of any shape, even a list, and a spoilt file leads in circles: each entry is
    // taken where it is met first, and what is left to visit waits here instead of on the call stack.
    struct Visit
    {
        quint32 entry;
        int parent;
    };
    std::vector<bool> isTaken(size_t(entries.size()), false);
    isTaken[0] = true;
    std::vector<Visit> waiting{{entries.first().child, 0}};
    while (!waiting.empty()) {
        const Visit visit = waiting.back();
        waiting.pop_back();
        if (visit.entry >= quint32(entries.size()) || isTaken[visit.entry])
            continue;
        isTaken[visit.entry] = true;
        const Property &entry = entries.at(int(visit.entry));
        const bool isKnown = entry.kind == Property::Storage || entry.kind == Property::Stream;
        if (isKnown && canStandInPath(entry.name) && Child(visit.parent, entry.name) < 0) {
            const int node = Add(visit.parent, entry.name, Property::Kind(entry.kind));
            m_nodes[size_t(node)].property = entry;
            if (entry.kind == Property::Storage)
                waiting.push_back({entry.child, node});
        }
        waiting.push_back({entry.right, visit.parent});
        waiting.push_back({entry.left, visit.parent});
    }
    return true;
}

int CompoundFile::PropertyTree::Child(int node, const QString &name) const
{
    const auto &children = At(node).children;
    const auto found = children.find(name);
    return found == children.end() ? -1 : found->second;
}

int CompoundFile::PropertyTree::Add(int parent, const QString &name, Property::Kind kind)
{
    const int node = int(m_nodes.size());
    m_nodes.emplace_back();
    m_nodes.back().property.name = name;
    m_nodes.back().property.kind = kind;
    m_nodes.back().property.start = endOfChain;
    m_nodes.back().parent = parent;
    At(parent).children.emplace(name, node);
    return node;
}

void CompoundFile::PropertyTree::Remove(int node)
{
    At(At(node).parent).children.erase(At(node).property.name);
    std::vector<int> waiting{node};
    while (!waiting.empty()) {
        Node &gone = At(waiting.back());
        waiting.pop_back();
        for (const auto &child : gone.children)
            waiting.push_back(child.second);
        gone = Node();
    }
}

std::vector<int> CompoundFile::PropertyTree::Nodes() const
{
    std::vector<int> nodes{0};
    for (size_t i = 0; i < nodes.size(); ++i) {
        for (const auto &child : At(nodes[i]).children)
            nodes.push_back(child.second);
    }
    return nodes;
}

CompoundFile::CompoundFile() = default;

void CompoundFile::clear()
{
    *this = CompoundFile();
}

bool CompoundFile::fail(const QString &what) const
{
    m_error = m_path.isEmpty() ? what : m_path + QLatin1String(": ") + what;
    return false;
}

bool CompoundFile::Create(const QString &path, SectorSize sectors)
{
    clear();
    m_path = path;
    m_header.sectorShift = sectors;
    m_header.majorVersion = sectors == Sectors4096 ? 4 : 3;
    m_isOpen = m_isChanged = true;
    return true;
}

bool CompoundFile::Open(const QString &path)
{
    clear();
    m_path = path;
    // A pipe or a device has no size to hold the reading to.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return fail(KW_TEXT("is no plain file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    const qint64 size = file.size();
    if (size > qint64(biff::Sink::limitBytes))
        return fail(KW_TEXT("is larger than 2 GB"));
    const QByteArray bytes = file.read(size);
    if (file.error() != QFileDevice::NoError || bytes.size() != size)
        return fail(file.errorString());
    return parse(bytes);
}

bool CompoundFile::OpenBytes(const QByteArray &bytes)
{
    clear();
    return parse(bytes);
}

bool CompoundFile::parse(const QByteArray &bytes)
{
    if (!m_header.Read(biff::Bytes(bytes)))
        return fail(KW_TEXT("is no compound file"));
    m_block = Block(bytes, m_header.sectorShift);
    if (!readTable())
        return false;

    std::vector<quint32> sectors;
    constexpr bool mayEndEarly = true;
    if (!follow(m_table, m_header.firstDirectorySector, m_table.size(), mayEndEarly, &sectors))
        return fail(KW_TEXT("the chain of its directory is damaged"));
    QVector<Property> entries;
    for (const quint32 sector : sectors) {
        biff::Bytes bytesOfSector = m_block.Read(sector);
        while (const uchar *entry = bytesOfSector.take(Property::sizeBytes)) {
            entries.append(Property());
            entries.last().Read({entry, Property::sizeBytes}, m_header.IsVersion4());
        }
    }
    if (!m_tree.Build(entries))
        return fail(KW_TEXT("its directory has no root"));
    m_isOpen = true;
    return true;
}

// The table is as long as the file needs, whatever the header counts.
bool CompoundFile::readTable()
{
    const size_t sectorCount = m_block.SectorCount();
    const size_t numbersInSector = m_block.SectorSize() / 4;
    std::vector<bool> isListed(sectorCount, false);
    // False when it lies outside of the file.
    const auto appendTableSector = [&](quint32 sector) {
        if (m_block.Read(sector).left() < m_block.SectorSize())
            return false;
        isListed[sector] = true;
        appendNumbers(m_block.Read(sector), &m_table);
        return true;
    };
    const auto appendList = [&](const auto &list) {
        for (const quint32 sector : list) {
            if (m_table.size() >= sectorCount || sector == freeSector)
                return true;
            if (!appendTableSector(sector))
                return fail(KW_TEXT("its sector table lies outside of the file"));
        }
        return true;
    };
    m_table.reserve(sectorCount + numbersInSector);
    if (!appendList(m_header.tableSectorList))
        return false;
    // The last number of a list sector is the next list sector. Each adds to the table, so the loop ends with
    // it.
    quint32 listSector = m_header.firstListSector;
    while (m_table.size() >= m_header.tableSectorList.size() * numbersInSector &&
           m_table.size() < sectorCount && listSector < sectorCount) {
        std::vector<quint32> list;
        appendNumbers(m_block.Read(listSector), &list);
        if (list.size() < numbersInSector || list.front() == freeSector)
            break;
        listSector = list.back();
        list.pop_back();
        if (!appendList(list))
            return false;
    }
    // Where the list ends too early, the table still knows its own sectors.
    for (quint32 sector = 0; sector < m_table.size() && m_table.size() < sectorCount; ++sector) {
        if (m_table[sector] == tableMark && !isListed[sector])
            appendTableSector(sector);
    }
    m_table.resize(qMin(m_table.size(), sectorCount));
    return true;
}

// Follows a chain for `sectors` steps. One that ends before is damaged, or complete when it may end early;
// one that leaves the table or meets itself is damaged.
bool CompoundFile::follow(const std::vector<quint32> &table, quint32 start, size_t sectors, bool mayEndEarly,
                          std::vector<quint32> *chain) const
{
    if (sectors > table.size())
        return false;
    chain->clear();
    std::vector<bool> isVisited(table.size(), false);
    quint32 sector = start;
    while (chain->size() < sectors) {
        if (mayEndEarly && sector == endOfChain)
            return true;
        if (sector >= table.size() || isVisited[sector])
            return false;
        isVisited[sector] = true;
        chain->push_back(sector);
        sector = table[sector];
    }
    return true;
}

bool CompoundFile::gather(quint32 start, quint64 size, QByteArray *content) const
{
    constexpr bool mayEndEarly = false;
    std::vector<quint32> chain;
    if (size > quint64(m_block.FileBytes()) ||
        !follow(m_table, start, size_t(divideUp(size, m_block.SectorSize())), mayEndEarly, &chain))
        return false;
    content->clear();
    content->reserve(int(size));
    for (size_t i = 0; i < chain.size();) {
        size_t end = i + 1;
        while (end < chain.size() && chain[end] == chain[end - 1] + 1)
            ++end;
        const biff::Bytes run = m_block.Read(chain[i], quint32(end - i));
        const size_t wanted = size_t(size) - size_t(content->size());
        content->append(reinterpret_cast<const char *>(run.data()), int(qMin(run.left(), wanted)));
        i = end;
    }
    return quint64(content->size()) == size; // the last sector of the file may be cut
}

bool CompoundFile::openMiniStream() const
{
    if (m_isMiniOpen)
        return true;
    const Property &root = m_tree.At(0).property;
    std::vector<quint32> chain;
    constexpr bool mayEndEarly = true;
    // All sectors of its chain, whatever its size says: some writers count only what the last stream fills of
    // them, others end the file there.
    if (!follow(m_table, root.start, m_table.size(), mayEndEarly, &chain))
        return false;
    m_miniStream.clear();
    for (const quint32 sector : chain) {
        const biff::Bytes bytes = m_block.Read(sector);
        m_miniStream.append(reinterpret_cast<const char *>(bytes.data()), int(bytes.left()));
    }
    const quint64 miniSectors = divideUp(quint64(m_miniStream.size()), miniSectorBytes);
    if (!follow(m_table, m_header.firstMiniTableSector,
                qMin(m_table.size(), size_t(divideUp(miniSectors, m_block.SectorSize() / 4))), mayEndEarly,
                &chain))
        return false;
    m_miniTable.clear();
    for (const quint32 sector : chain)
        appendNumbers(m_block.Read(sector), &m_miniTable);
    m_miniTable.resize(qMin(m_miniTable.size(), size_t(miniSectors)));
    m_isMiniOpen = true;
    return true;
}

quint64 CompoundFile::contentSize(int node) const
{
    const PropertyTree::Node &stream = m_tree.At(node);
    return stream.written ? quint64(stream.written->size()) : stream.property.size;
}

bool CompoundFile::content(int node, QByteArray *content) const
{
    const PropertyTree::Node &stream = m_tree.At(node);
    content->clear();
    if (stream.written) {
        *content = *stream.written;
        return true;
    }
    const quint64 size = stream.property.size;
    if (size == 0)
        return true;
    if (size >= m_header.miniCutoffBytes)
        return gather(stream.property.start, size, content);
    constexpr bool mayEndEarly = false;
    std::vector<quint32> chain;
    if (!openMiniStream() || size > quint64(m_miniStream.size()) ||
        !follow(m_miniTable, stream.property.start, size_t(divideUp(size, miniSectorBytes)), mayEndEarly,
                &chain))
        return false;
    content->reserve(int(size));
    for (const quint32 sector : chain) {
        const int at = int(sector * miniSectorBytes);
        const int wanted = int(qMin(quint64(miniSectorBytes), size - quint64(content->size())));
        content->append(m_miniStream.constData() + at, qMin(wanted, m_miniStream.size() - at));
    }
    return quint64(content->size()) == size;
}

bool CompoundFile::Flush()
{
    return !m_isChanged || SaveAs(m_path);
}

bool CompoundFile::SaveAs(const QString &path)
{
    if (!m_isOpen)
        return fail(QStringLiteral("no compound file is open"));
    if (path.isEmpty())
        return fail(QStringLiteral("the compound file has no path"));
    QString error;
    if (!atomicfile::replace(
            path, [this](QIODevice &device) { return WriteTo(device); }, &error)) {
        m_error = KW_TEXT("cannot be written: %1").arg(error);
        return false;
    }
    m_path = path;
    m_isChanged = false;
    return true;
}

bool CompoundFile::Close()
{
    const bool isWritten = Flush();
    const QString error = m_error;
    clear();
    m_error = error;
    return isWritten;
}

CompoundFile::PathEnd CompoundFile::place(const QString &path) const
{
    QStringList names = path.split(QLatin1Char('/'));
    PathEnd at;
    at.node = path.startsWith(QLatin1Char('/')) ? 0 : m_directory;
    for (const QString &name : qAsConst(names)) {
        if (name.isEmpty() || name == QLatin1String("."))
            continue;
        if (at.node < 0 || !isStorage(m_tree.At(at.node).property))
            return {};
        at.parent = at.node;
        at.name = name;
        at.node =
            name == QLatin1String("..") ? qMax(0, m_tree.At(at.node).parent) : m_tree.Child(at.node, name);
    }
    if (!m_isOpen)
        return {};
    return at;
}

int CompoundFile::make(const QString &path, Property::Kind kind)
{
    const PathEnd at = place(path);
    static const QString forbidden = QStringLiteral("/\\:!");
    const bool isName =
        !at.name.isEmpty() && at.name.size() <= longestName &&
        std::none_of(at.name.begin(), at.name.end(), [](QChar c) { return forbidden.contains(c); });
    if (at.parent < 0 || at.node >= 0 || !isName) {
        fail(QStringLiteral("\"%1\" cannot be made").arg(path));
        return -1;
    }
    m_isChanged = true;
    return m_tree.Add(at.parent, at.name, kind);
}

bool CompoundFile::MakeDirectory(const QString &path)
{
    return make(path, Property::Storage) >= 0;
}

bool CompoundFile::MakeFile(const QString &path)
{
    const int node = make(path, Property::Stream);
    if (node >= 0)
        m_tree.At(node).written = QByteArray();
    return node >= 0;
}

bool CompoundFile::ReadFile(const QString &path, QByteArray *bytes) const
{
    const int node = place(path).node;
    if (node < 0 || m_tree.At(node).property.kind != Property::Stream)
        return fail(QStringLiteral("there is no stream \"%1\"").arg(path));
    if (!content(node, bytes)) {
        bytes->clear();
        return fail(QStringLiteral("the stream \"%1\" is damaged").arg(path));
    }
    return true;
}

bool CompoundFile::WriteFile(const QString &path, const QByteArray &bytes)
{
    const int node = place(path).node;
    if (node < 0 || m_tree.At(node).property.kind != Property::Stream)
        return fail(QStringLiteral("there is no stream \"%1\"").arg(path));
    m_tree.At(node).written = bytes;
    m_isChanged = true;
    return true;
}

bool CompoundFile::RemoveFile(const QString &path)
{
    const int node = place(path).node;
    if (node < 0 || m_tree.At(node).property.kind != Property::Stream)
        return fail(QStringLiteral("there is no stream \"%1\"").arg(path));
    m_tree.Remove(node);
    m_isChanged = true;
    return true;
}

bool CompoundFile::RemoveDirectory(const QString &path)
{
    const int node = place(path).node;
    if (node <= 0 || m_tree.At(node).property.kind != Property::Storage)
        return fail(QStringLiteral("there is no storage \"%1\"").arg(path));
    // Whoever stands in it is put beside it.
    for (int above = m_directory; above > 0; above = m_tree.At(above).parent) {
        if (above == node)
            m_directory = m_tree.At(node).parent;
    }
    m_tree.Remove(node);
    m_isChanged = true;
    return true;
}

QString CompoundFile::PresentWorkingDirectory() const
{
    QStringList names;
    for (int node = m_directory; node > 0; node = m_tree.At(node).parent)
        names.prepend(m_tree.At(node).property.name);
    return m_isOpen ? QLatin1Char('/') + names.join(QLatin1Char('/')) : QString();
}

bool CompoundFile::ChangeDirectory(const QString &path)
{
    const int node = place(path).node;
    if (node < 0 || !isStorage(m_tree.At(node).property))
        return fail(QStringLiteral("there is no storage \"%1\"").arg(path));
    m_directory = node;
    return true;
}

QStringList CompoundFile::List(const QString &path) const
{
    QStringList names;
    const int node = place(path).node;
    if (node >= 0) {
        for (const auto &child : m_tree.At(node).children)
            names.append(child.first +
                         (isStorage(m_tree.At(child.second).property) ? QStringLiteral("/") : QString()));
    }
    return names;
}

const CompoundFile::Property *CompoundFile::FindProperty(const QString &path) const
{
    const int node = place(path).node;
    return node < 0 ? nullptr : &m_tree.At(node).property;
}

qint64 CompoundFile::FileSize(const QString &path) const
{
    const int node = place(path).node;
    return node < 0 || m_tree.At(node).property.kind != Property::Stream ? -1 : qint64(contentSize(node));
}
