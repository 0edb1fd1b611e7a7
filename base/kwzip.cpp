#include "kwzip.h"
#include "kwfilepathmanager.h"
#include "quickdeflate.h"
#include "support/atomicfile.h"
#include "support/kwlimits.h"
#include "support/ziprules.h"
#include "zipnulscan.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QVector>
#include <algorithm>
#include <climits>
#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <zip.h>

namespace {

constexpr zip_uint16_t dosMidnight = 0;
constexpr zip_uint16_t dosFirstDay =
    (0 << 9) | (1 << 5) | 1; // 1 January 1980, so that equal content gives equal bytes

QString &lastErrorText()
{
    static QString instance;
    return instance;
}

bool fail(const QString &what)
{
    lastErrorText() = what;
    return false;
}

// texts: "%1: %2"
bool fail(const QByteArray &entryName, const QString &what)
{
    return fail(kwzip::shownName(entryName) + QLatin1String(": ") + what);
}

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// Why, in words that hosts' catalogues can have: those of the packing library change with its version.
struct Reason
{
    int code;
    const char *words;
};
constexpr Reason texts[] = {
    {ZIP_ER_NOZIP, "it is no ZIP file"},
    {ZIP_ER_INCONS, "its parts contradict each other"},
    {ZIP_ER_EOF, "it ends too early"},
    {ZIP_ER_CRC, "the bytes do not have their checksum (CRC)"},
    {ZIP_ER_ZLIB, "the packed bytes are damaged"},
    {ZIP_ER_COMPRESSED_DATA, "the packed bytes are damaged"},
    {ZIP_ER_COMPNOTSUPP, "the way it is packed is not known"},
    {ZIP_ER_ENCRNOTSUPP, "it is encrypted"},
    {ZIP_ER_NOPASSWD, "it is encrypted"},
    {ZIP_ER_MULTIDISK, "it is one of several parts"},
    {ZIP_ER_MEMORY, "there is not enough memory"},
    {ZIP_ER_NOENT, "No such file or directory"},
    {ZIP_ER_OPEN, "it cannot be opened"},
    {ZIP_ER_READ, "it cannot be read"},
    {ZIP_ER_WRITE, "it cannot be written"},
    {ZIP_ER_CLOSE, "it cannot be written"},
    {ZIP_ER_TMPOPEN, "no file can be made in the folder"},
    {ZIP_ER_RENAME, "the new file cannot take its place"},
};

// texts: "%1: %2"
QString reasonOf(zip_error_t *error)
{
    const int code = zip_error_code_zip(error);
    for (const Reason &reason : texts) {
        if (reason.code != code)
            continue;
        if (zip_error_system_type(error) != ZIP_ET_SYS)
            return text(reason.words);
        const char *system = std::strerror(zip_error_code_system(error));
        return text(reason.words) + QLatin1String(": ") + QString::fromLocal8Bit(system);
    }
    return QString::fromUtf8(zip_error_strerror(error));
}

struct Discard
{
    void operator()(zip_t *archive) const { zip_discard(archive); }
};
struct CloseEntry
{
    void operator()(zip_file_t *entry) const { zip_fclose(entry); }
};
using Archive = std::unique_ptr<zip_t, Discard>;
using OpenEntry = std::unique_ptr<zip_file_t, CloseEntry>;

Archive openArchive(const QString &path, int flags)
{
    int code = 0;
    Archive archive(zip_open(QFile::encodeName(path).constData(), flags, &code));
    if (!archive) {
        QFile file(path);
        const bool isCut =
            code == ZIP_ER_NOZIP && file.open(QIODevice::ReadOnly) && file.read(4) == "PK\x03\x04";
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        if (isCut)
            fail(text("the archive is cut off at byte %1: the list of its entries is missing")
                     .arg(file.size()));
        else
            fail(text("no archive: %1").arg(reasonOf(&error)));
        zip_error_fini(&error);
    }
    return archive;
}

// Outside a UTF-8 locale a name may have no form on disk, and two names the same one.
bool fitsOnDisk(const QString &name)
{
    return QFile::decodeName(QFile::encodeName(name)) == name;
}

// ---- Reading
// ---------------------------------------------------------------------------------------------------

bool isPlainKind(zip_t *archive, zip_uint64_t index, bool isFolder)
{
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    if (zip_file_get_external_attributes(archive, index, 0, &system, &attributes) != 0)
        return false;
    // Systems without such modes leave these bits empty.
    const zip_uint32_t kind = (attributes >> 16) & S_IFMT;
    return kind == 0 || kind == zip_uint32_t(isFolder ? S_IFDIR : S_IFREG);
}

// Lists the entries of an archive that keeps all rules; what they unpack to is checked when it is read.
bool inspect(const QString &path, zip_t *archive, QVector<kwzip::Entry> &entries)
{
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    if (count < 0 || count > kwzip::maxEntries)
        return fail(text("there are too many entries"));
    kwzip::Inventory inventory(QFileInfo(path).size());
    bool hasBlank = false;
    for (zip_uint64_t i = 0; i < zip_uint64_t(count); ++i) {
        zip_stat_t stat;
        constexpr zip_uint64_t needed = ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE |
                                        ZIP_STAT_COMP_METHOD | ZIP_STAT_ENCRYPTION_METHOD;
        if (zip_stat_index(archive, i, ZIP_FL_ENC_RAW, &stat) != 0 || (stat.valid & needed) != needed)
            return fail(text("an entry cannot be read"));
        constexpr zip_uint64_t maxBytes = LLONG_MAX;
        const kwzip::Entry entry{QByteArray(stat.name), qint64(std::min<zip_uint64_t>(stat.size, maxBytes)),
                                 qint64(std::min<zip_uint64_t>(stat.comp_size, maxBytes))};
        hasBlank |= entry.name.contains(' ');
        const QString fault = inventory.add(entry);
        if (!fault.isEmpty())
            return fail(entry.name, fault);
        if (stat.encryption_method != ZIP_EM_NONE)
            return fail(entry.name, text("the entry is encrypted"));
        if (stat.comp_method != ZIP_CM_STORE && stat.comp_method != ZIP_CM_DEFLATE)
            return fail(entry.name, text("the entry is packed in an unknown way"));
        if (!isPlainKind(archive, i, entry.isFolder()))
            return fail(entry.name, text("the entry is neither a plain file nor a plain folder"));
        entries.append(entry);
    }
    const QString fault = inventory.finish();
    if (!fault.isEmpty())
        return fail(fault);
    if (hasBlank && kwzip::hasNulInName(path))
        return fail(text("a name holds a control character"));
    return true;
}

// Writes into a folder and takes back what it wrote, unless it is kept.
class Unpacker
{
public:
    explicit Unpacker(const QString &folder)
        : m_folder(folder)
    {
    }
    ~Unpacker();
    bool hasRoomFor(const kwzip::Entry &entry) const;
    bool unpack(zip_t *archive, zip_uint64_t index, const kwzip::Entry &entry);
    void keep() { m_isKept = true; }

private:
    QString placeOf(const kwzip::Entry &entry) const;
    bool makeFolder(const QString &path);

    const QString m_folder;
    QStringList m_made;           // in the order of making
    QSet<QString> m_soundFolders; // plain folders, as are all above them
    bool m_isKept = false;
};

Unpacker::~Unpacker()
{
    if (m_isKept)
        return;
    // From the last to the first: a folder is empty again when its turn comes.
    for (auto path = m_made.crbegin(); path != m_made.crend(); ++path)
        QFileInfo(*path).isDir() ? QDir().rmdir(*path) : QFile::remove(*path);
}

QString Unpacker::placeOf(const kwzip::Entry &entry) const
{
    return m_folder + QLatin1Char('/') +
           QString::fromUtf8(entry.isFolder() ? entry.name.chopped(1) : entry.name);
}

// Whether the entry can be put into the folder as it is now: nothing is overwritten, and nothing goes through
// a link.
bool Unpacker::hasRoomFor(const kwzip::Entry &entry) const
{
    const QString place = placeOf(entry);
    if (!fitsOnDisk(place) || QFile::encodeName(place).size() >= PATH_MAX)
        return fail(entry.name, text("the name cannot be used on this machine"));
    const QFileInfo info(place);
    if (info.isSymLink() || (info.exists() && !(entry.isFolder() && info.isDir())))
        return fail(entry.name, text("something stands there already"));
    return true;
}

bool Unpacker::makeFolder(const QString &path)
{
    QStringList unknown;
    for (QString folder = path; folder.size() > m_folder.size() && !m_soundFolders.contains(folder);
         folder.truncate(folder.lastIndexOf(QLatin1Char('/'))))
        unknown.append(folder);
    for (auto folder = unknown.crbegin(); folder != unknown.crend(); ++folder) {
        const QFileInfo info(*folder);
        // A link inside our folder leads out of it.
        if (info.isSymLink())
            return false;
        if (!info.isDir()) {
            if (!QDir().mkdir(*folder))
                return false;
            m_made.append(*folder);
        }
        m_soundFolders.insert(*folder);
    }
    return true;
}

// The whole entry at once; nothing where that is not possible, or there is something wrong with it: reading
// it piece by piece tells what.
std::optional<QByteArray> wholeEntry(zip_t *archive, zip_uint64_t index, const kwzip::Entry &entry)
{
    zip_stat_t stat;
    constexpr zip_uint64_t needed = ZIP_STAT_COMP_METHOD | ZIP_STAT_CRC;
    if (entry.bytes <= 0 || entry.bytes > kwzip::maxUnpackedAtOnce ||
        entry.packedBytes > kwzip::maxUnpackedAtOnce || zip_stat_index(archive, index, 0, &stat) != 0 ||
        (stat.valid & needed) != needed || stat.comp_method != ZIP_CM_DEFLATE)
        return std::nullopt;
    const OpenEntry packed(zip_fopen_index(archive, index, ZIP_FL_COMPRESSED));
    QByteArray bytes(int(entry.packedBytes), Qt::Uninitialized);
    if (!packed || zip_fread(packed.get(), bytes.data(), zip_uint64_t(bytes.size())) != bytes.size())
        return std::nullopt;
    return kwzip::unpackWhole(bytes, entry.bytes, stat.crc);
}

bool Unpacker::unpack(zip_t *archive, zip_uint64_t index, const kwzip::Entry &entry)
{
    const QString place = placeOf(entry);
    const QString folder = entry.isFolder() ? place : place.left(place.lastIndexOf(QLatin1Char('/')));
    if (!makeFolder(folder))
        return fail(entry.name, text("its folder cannot be made"));
    if (entry.isFolder())
        return true;

    const OpenEntry packed(zip_fopen_index(archive, index, 0));
    if (!packed)
        return fail(entry.name, reasonOf(zip_get_error(archive)));
    QFile file(place);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return fail(entry.name, file.errorString());
    m_made.append(place);
    if (const std::optional<QByteArray> whole = wholeEntry(archive, index, entry)) {
        if (file.write(*whole) != whole->size())
            return fail(entry.name, file.errorString());
        file.close();
        return file.error() == QFileDevice::NoError || fail(entry.name, file.errorString());
    }
    QByteArray buffer(64 << 10, Qt::Uninitialized);
    qint64 bytes = 0;
    while (true) {
        const zip_int64_t got = zip_fread(packed.get(), buffer.data(), zip_uint64_t(buffer.size()));
        if (got < 0)
            return fail(entry.name, reasonOf(zip_file_get_error(packed.get())));
        if (got == 0)
            break;
        bytes += got;
        // The limits were checked against the size the entry declares, so it must not give a byte more.
        if (bytes > entry.bytes)
            break;
        if (file.write(buffer.constData(), got) != got)
            return fail(entry.name, file.errorString());
    }
    if (bytes != entry.bytes)
        return fail(entry.name, text("the entry does not have the size it declares"));
    file.close();
    return file.error() == QFileDevice::NoError || fail(entry.name, file.errorString());
}

// ---- Writing
// ---------------------------------------------------------------------------------------------------

struct Source
{
    QByteArray name; // as kwzip::Entry
    QString path;
};

// All files below a folder and the folders that hold nothing, in the order of their names.
bool collect(const QString &folder, QVector<Source> &sources)
{
    // Unlike Qt's own, this iterator tells when a folder cannot be read.
    namespace fs = std::filesystem;
    const fs::path root(QFile::encodeName(folder).constData());
    const int rootLength = QFile::decodeName(root.c_str()).size();
    std::error_code error;
    for (fs::recursive_directory_iterator entry(root, error), end; !error && entry != end;
         entry.increment(error)) {
        const QString path = QFile::decodeName(entry->path().c_str());
        const QFileInfo info(path);
        const QByteArray name = path.mid(rootLength + 1).toUtf8();
        if (info.isSymLink() || (!info.isDir() && !info.isFile()))
            return fail(name, text("neither a plain file nor a plain folder"));
        if (!info.isDir())
            sources.append({name, path});
        else if (fs::is_empty(entry->path(), error))
            sources.append({name + '/', path});
        if (error)
            break;
    }
    if (error)
        return fail(text("a folder cannot be read: %1").arg(QString::fromLocal8Bit(error.message().c_str())));
    if (sources.isEmpty())
        return fail(text("there is nothing to pack"));
    // The reader's rules, as far as they can be known before packing.
    kwzip::Inventory inventory(LLONG_MAX);
    for (const Source &source : qAsConst(sources)) {
        const qint64 bytes = source.name.endsWith('/') ? 0 : QFileInfo(source.path).size();
        const QString fault = inventory.add({source.name, bytes, bytes});
        if (!fault.isEmpty())
            return fail(source.name, fault);
    }
    std::sort(sources.begin(), sources.end(),
              [](const Source &a, const Source &b) { return a.name < b.name; });
    return true;
}

// Bytes that are packed already, for the library that writes the archive. It owns the object.
class PackedSource
{
public:
    static zip_source_t *make(zip_t *archive, const kwzip::Packed &packed)
    {
        auto *state = new PackedSource(packed);
        zip_source_t *const source = zip_source_function(archive, call, state);
        if (!source)
            delete state;
        return source;
    }

private:
    explicit PackedSource(const kwzip::Packed &packed)
        : m_packed(packed)
    {
    }

    static zip_int64_t call(void *state, void *data, zip_uint64_t size, zip_source_cmd_t command)
    {
        auto &self = *static_cast<PackedSource *>(state);
        switch (command) {
        case ZIP_SOURCE_OPEN:
            self.m_at = 0;
            return 0;
        case ZIP_SOURCE_READ: {
            const int count =
                int(qMin<zip_uint64_t>(size, zip_uint64_t(self.m_packed.bytes.size() - self.m_at)));
            std::memcpy(data, self.m_packed.bytes.constData() + self.m_at, size_t(count));
            self.m_at += count;
            return count;
        }
        case ZIP_SOURCE_CLOSE:
            return 0;
        case ZIP_SOURCE_STAT: {
            auto &stat = *static_cast<zip_stat_t *>(data);
            zip_stat_init(&stat);
            stat.size = zip_uint64_t(self.m_packed.unpackedBytes);
            stat.comp_size = zip_uint64_t(self.m_packed.bytes.size());
            stat.crc = self.m_packed.crc;
            stat.comp_method = ZIP_CM_DEFLATE;
            stat.encryption_method = ZIP_EM_NONE;
            stat.valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC | ZIP_STAT_COMP_METHOD |
                         ZIP_STAT_ENCRYPTION_METHOD;
            return sizeof(stat);
        }
        case ZIP_SOURCE_ERROR: {
            constexpr int none[] = {ZIP_ER_OK, 0};
            std::memcpy(data, none, sizeof(none));
            return sizeof(none);
        }
        case ZIP_SOURCE_FREE:
            delete &self;
            return 0;
        case ZIP_SOURCE_SUPPORTS:
            return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
                                                  ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE,
                                                  ZIP_SOURCE_SUPPORTS, -1);
        default:
            return -1;
        }
    }

    const kwzip::Packed m_packed;
    int m_at = 0;
};

// Null where the file has to be packed piece by piece. `room` is how many packed bytes may still be held in
// memory. A large file is not read but mapped: it was just written, and nobody else writes to what is being
// packed.
zip_source_t *packedFile(zip_t *archive, const QString &path, qint64 &room)
{
    QFile file(path);
    if (room <= 0 || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        file.size() > kwzip::maxPackedAtOnce)
        return nullptr;
    QByteArray bytes;
    if (file.size() > kwzip::maxPackedBytesHeld) {
        const auto size = int(file.size());
        if (const uchar *const mapped = file.map(0, size))
            bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(mapped), size);
    } else {
        bytes = file.readAll();
    }
    if (file.error() != QFileDevice::NoError)
        return nullptr;
    const std::optional<kwzip::Packed> packed = kwzip::packWhole(bytes);
    if (!packed)
        return nullptr;
    room -= packed->bytes.size();
    return PackedSource::make(archive, *packed);
}

bool addTo(zip_t *archive, const Source &source, zip_int32_t method, qint64 &room)
{
    const bool isFolder = source.name.endsWith('/');
    zip_int64_t index = -1;
    if (isFolder) {
        index = zip_dir_add(archive, source.name.constData(), ZIP_FL_ENC_UTF_8);
    } else {
        constexpr zip_int64_t toTheEnd = 0;
        zip_source_t *content = method == ZIP_CM_DEFLATE ? packedFile(archive, source.path, room) : nullptr;
        if (!content)
            content = zip_source_file(archive, QFile::encodeName(source.path).constData(), 0, toTheEnd);
        if (content)
            index = zip_file_add(archive, source.name.constData(), content, ZIP_FL_ENC_UTF_8);
        if (content && index < 0)
            zip_source_free(content);
    }
    if (index < 0)
        return false;
    const auto entry = zip_uint64_t(index);
    constexpr zip_uint32_t quickest = 1; // a quarter of the usual level's time, for a file a fifth larger
    const zip_uint32_t mode = isFolder ? S_IFDIR | 0755 : S_IFREG | 0644;
    return (isFolder || zip_set_file_compression(archive, entry, method, quickest) == 0) &&
           zip_file_set_dostime(archive, entry, dosMidnight, dosFirstDay, 0) == 0 &&
           zip_file_set_external_attributes(archive, entry, 0, ZIP_OPSYS_UNIX, mode << 16) == 0;
}

bool write(const QString &path, const QVector<Source> &sources, zip_int32_t method)
{
    Archive archive = openArchive(path, ZIP_CREATE | ZIP_TRUNCATE);
    if (!archive)
        return false;
    qint64 room = kwzip::maxPackedBytesHeld;
    for (const Source &source : sources) {
        if (!addTo(archive.get(), source, method, room))
            return fail(source.name, reasonOf(zip_get_error(archive.get())));
    }
    // Everything is read, packed and written here.
    if (zip_close(archive.get()) != 0)
        return fail(reasonOf(zip_get_error(archive.get())));
    static_cast<void>(archive.release()); // closed and freed
    return true;
}

// An archive that our own reader would refuse must not take the place of a good one.
bool isReadable(const QString &path)
{
    QVector<kwzip::Entry> entries;
    const Archive archive = openArchive(path, ZIP_RDONLY);
    return archive && inspect(path, archive.get(), entries);
}
}

bool KWZip::zip(const QString &archive, const QString &folder)
{
    lastErrorText().clear();
    const QString source = QDir(folder).absolutePath();
    const QString target = atomicfile::realPath(QFileInfo(archive).absoluteFilePath());
    if (!QFileInfo(source).isDir())
        return fail(text("there is no such folder"));
    if (target.startsWith(source + QLatin1Char('/')))
        return fail(text("the archive lies in the folder that it packs"));
    QVector<Source> sources;
    if (!collect(source, sources))
        return false;

    const QString unfinished =
        QFileInfo(target).absolutePath() + QLatin1String("/.kwzip-") + KWFilePathManager::shortRandName();
    // Text that repeats itself can pack so well that it looks like an attack when it is read: then it is only
    // stored.
    const bool isWritten = (write(unfinished, sources, ZIP_CM_DEFLATE) && isReadable(unfinished)) ||
                           (write(unfinished, sources, ZIP_CM_STORE) && isReadable(unfinished));
    QString error;
    if (isWritten && atomicfile::replaceWith(target, unfinished, &error)) {
        lastErrorText().clear();
        return true;
    }
    QFile::remove(unfinished);
    return isWritten ? fail(error) : false;
}

bool KWZip::unZip(const QString &archive, const QString &folder)
{
    lastErrorText().clear();
    if (!QFileInfo(folder).isDir())
        return fail(text("there is no such folder"));
    // A pipe would block.
    if (!QFileInfo(archive).isFile())
        return fail(text("there is no such archive"));
    const Archive packed = openArchive(archive, ZIP_RDONLY);
    QVector<kwzip::Entry> entries;
    if (!packed || !inspect(archive, packed.get(), entries))
        return false;
    Unpacker unpacker(QDir(folder).absolutePath());
    for (const kwzip::Entry &entry : qAsConst(entries)) {
        if (!unpacker.hasRoomFor(entry))
            return false;
    }
    for (int i = 0; i < entries.size(); ++i) {
        if (!unpacker.unpack(packed.get(), zip_uint64_t(i), entries[i]))
            return false;
    }
    unpacker.keep();
    return true;
}

QString KWZip::lastError()
{
    return lastErrorText();
}
