#include "support/ziprules.h"
#include "support/kwlimits.h"
#include <cctype>
#include <climits>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

bool isTooDense(qint64 bytes, qint64 packedBytes)
{
    // bytes > maxRatio * packedBytes, where the product may be past 64 bits.
    return bytes > kwzip::ratioFreeBytes && (bytes - 1) / kwzip::maxRatio >= packedBytes;
}

bool isSoundUtf8(const QByteArray &name)
{
    // A round trip also catches overlong forms and surrogates; a mark at the start would be swallowed.
    return QString::fromUtf8(name).toUtf8() == name;
}
}

QString kwzip::nameFault(const QByteArray &name)
{
    if (name.isEmpty())
        return text("the name is empty");
    // What another system reads as its root, or as a way out of the folder, is refused here, too: the package
    // travels.
    const bool hasDrive = name.size() > 1 && name[1] == ':' && std::isalpha(uchar(name[0]));
    if (name.startsWith('/') || hasDrive)
        return text("the name is absolute");
    if (name.contains('\\'))
        return text("the name holds a backslash");
    for (const char c : name) {
        if (uchar(c) < 0x20 || c == 0x7f)
            return text("the name holds a control character");
    }
    if (!isSoundUtf8(name))
        return text("the name is no sound UTF-8");
    if (name.size() > PATH_MAX)
        return text("the name is too long");
    // Part by part: nothing is resolved, for what a name resolves to depends on the disk it is unpacked to.
    const QByteArray path = name.endsWith('/') ? name.chopped(1) : name;
    int begin = 0;
    while (begin <= path.size()) {
        const int slash = path.indexOf('/', begin);
        const int end = slash < 0 ? path.size() : slash;
        const QByteArray part = QByteArray::fromRawData(path.constData() + begin, end - begin);
        if (part.isEmpty() || part == "." || part == "..")
            return text("the name leaves its folder or goes round in it");
        if (part.size() > NAME_MAX)
            return text("the name is too long");
        begin = end + 1;
    }
    return QString();
}

QString kwzip::shownName(const QByteArray &name)
{
    constexpr int shownLength = 80;
    QString shown = QString::fromUtf8(name.left(4 * shownLength)).left(shownLength);
    for (QChar &c : shown) {
        if (!c.isPrint())
            c = QLatin1Char('?');
    }
    return QLatin1Char('\'') + shown + QLatin1Char('\'');
}

// Stops at the first folder that is known: the ones above it are known too. False past the limit.
bool kwzip::Inventory::addFoldersAbove(const QByteArray &path)
{
    for (int slash = path.lastIndexOf('/'); slash > 0; slash = path.lastIndexOf('/', slash - 1)) {
        const QByteArray folder = path.left(slash);
        if (m_folders.contains(folder))
            return true;
        if (m_folders.size() >= maxEntries)
            return false;
        m_folders.insert(folder);
    }
    return true;
}

// Everything is checked by what the entries declare, before one byte of them is unpacked; the unpacking holds
// them to it.
QString kwzip::Inventory::add(const Entry &entry)
{
    const QString fault = nameFault(entry.name);
    if (!fault.isEmpty())
        return fault;
    if (m_entries.size() >= maxEntries)
        return text("there are too many entries");
    if (entry.bytes < 0 || entry.packedBytes < 0 || entry.bytes > maxEntryBytes)
        return text("the entry is too large");
    // An entry that claims more packed bytes than the file has would make any size look well packed.
    if (entry.packedBytes > m_archiveBytes || isTooDense(entry.bytes, entry.packedBytes))
        return text("the entry unpacks to far more than it holds");
    if (entry.isFolder() && entry.bytes > 0)
        return text("a folder has content");

    // Without the slash, so that a file and a folder of one name meet.
    const QByteArray path = entry.isFolder() ? entry.name.chopped(1) : entry.name;
    if (m_entries.contains(path))
        return text("the name stands there twice");
    m_entries.insert(path);
    (entry.isFolder() ? m_folders : m_files).insert(path);
    if (!addFoldersAbove(path))
        return text("there are too many folders");

    m_bytes += entry.bytes;
    m_packedBytes += entry.packedBytes;
    if (m_bytes > maxArchiveBytes)
        return text("the archive unpacks to too much");
    // Entries that share their packed bytes would pass the check above one by one.
    if (m_packedBytes > m_archiveBytes || isTooDense(m_bytes, m_archiveBytes))
        return text("the archive unpacks to far more than it holds");
    return QString();
}

// Not asked entry by entry: a file may come before the longer name that makes a folder of it.
QString kwzip::Inventory::finish() const
{
    for (const QByteArray &file : m_files) {
        if (m_folders.contains(file))
            return text("%1: the name stands for a file and for a folder").arg(shownName(file));
    }
    return QString();
}
