#pragma once
#include "exchange/biff/bytes.h"
#include "kwgantt_export.h"
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>
#include <array>
#include <map>
#include <optional>
#include <vector>

class QIODevice;

// The compound file: storages and streams in one file, the way folders and files lie on a disk.
namespace YCompoundFiles {

constexpr quint32 miniSectorBytes = 64;
// What stands in a sector table in place of the sector that comes next.
constexpr quint32 freeSector = 0xFFFFFFFF;
constexpr quint32 endOfChain = 0xFFFFFFFE;
constexpr quint32 tableMark = 0xFFFFFFFD; // a sector of the table itself
constexpr quint32 listMark = 0xFFFFFFFC;  // a sector of the list of table sectors

// So many pieces of a size hold a number of bytes.
constexpr quint64 divideUp(quint64 number, quint64 by)
{
    return number / by + (number % by != 0);
}

// The bytes of a file as sectors of one size. Sector 0 follows the header, which takes the room of one
// sector.
class KWGANTT_EXPORT Block
{
public:
    Block() = default;
    Block(const QByteArray &bytes, int sectorShift);

    quint32 SectorSize() const { return 1u << m_sectorShift; }
    // The last one may be cut short.
    quint32 SectorCount() const { return m_sectorCount; }
    // `count` sectors in a row, as many bytes of them as the file has.
    biff::Bytes Read(quint32 sector, quint32 count = 1) const;
    qint64 FileBytes() const { return m_bytes.size(); }

private:
    QByteArray m_bytes;
    int m_sectorShift = 9;
    quint32 m_sectorCount = 0;
};

// An open compound file lies in memory as a whole. What is made, written and removed is kept there; Flush()
// and Close() put it on disk in one step, so that a failure leaves the old file.
//
// Paths name storages and end with a stream: "/Store/Data". Without the first "/" they start at the present
// working directory; ".." is the storage above. Names differ by more than case.
class KWGANTT_EXPORT CompoundFile
{
public:
    enum SectorSize { Sectors512 = 9, Sectors4096 = 12 };

    struct KWGANTT_EXPORT Header
    {
        std::array<quint8, 8> signature{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
        quint16 minorVersion = 0x003B;
        quint16 majorVersion = 3; // 4 has sectors of 4096 bytes
        quint16 byteOrder = 0xFFFE;
        quint16 sectorShift = Sectors512;
        quint16 miniSectorShift = 6;
        quint32 directorySectors = 0; // only counted in version 4
        quint32 tableSectors = 0;
        quint32 firstDirectorySector = 0;
        quint32 miniCutoffBytes = 0x1000; // shorter streams lie in the mini stream
        quint32 firstMiniTableSector = endOfChain;
        quint32 miniTableSectors = 0;
        quint32 firstListSector =
            endOfChain; // of the list of table sectors that goes on behind this header's
        quint32 listSectors = 0;
        std::array<quint32, 109> tableSectorList;

        Header() { tableSectorList.fill(freeSector); }
        // False for what is no compound file of a known layout.
        bool Read(biff::Bytes from);
        void Write(biff::Sink &to) const;
        bool IsVersion4() const { return sectorShift == Sectors4096; }
    };

    // One directory entry.
    struct KWGANTT_EXPORT Property
    {
        enum Kind : quint8 { Unused = 0, Storage = 1, Stream = 2, Root = 5 };
        static constexpr quint32 sizeBytes = 128;
        static constexpr quint32 none = 0xFFFFFFFF;

        QString name;
        quint8 kind = Unused;
        bool isBlack = true;
        quint32 left = none, right = none, child = none;
        std::array<uchar, 36> classAndTimes{}; // kept as they were found
        quint32 start = 0;
        quint64 size = 0;

        void Read(biff::Bytes from, bool isVersion4);
        void Write(biff::Sink &to) const;
    };

    // The directory. Nodes are known by number, the root is 0; the number of a removed node is not used
    // again.
    class KWGANTT_EXPORT PropertyTree
    {
    public:
        struct NameOrder // the published one: the shorter name first, then by upper-case characters
        {
            bool operator()(const QString &a, const QString &b) const;
        };
        struct Node
        {
            Property property;
            int parent = -1;
            std::map<QString, int, NameOrder> children;
            std::optional<QByteArray> written; // content of a stream that differs from the file's
        };

        PropertyTree();
        // Takes what the root leads to and a path can name. False when the first entry is no root.
        bool Build(const QVector<Property> &entries);
        const Node &At(int node) const { return m_nodes[size_t(node)]; }
        Node &At(int node) { return m_nodes[size_t(node)]; }
        // -1 when there is none.
        int Child(int node, const QString &name) const;
        int Add(int parent, const QString &name, Property::Kind kind);
        void Remove(int node);
        // Every node that the root leads to, parents before children, siblings in order.
        std::vector<int> Nodes() const;

    private:
        std::vector<Node> m_nodes;
    };

    CompoundFile();

    // An empty file, which takes its place on disk with the next Flush() or Close().
    bool Create(const QString &path, SectorSize sectors = Sectors512);
    bool Open(const QString &path);
    // A file without a path.
    bool OpenBytes(const QByteArray &bytes);
    bool IsOpen() const { return m_isOpen; }
    // Writes the file when something has changed. After a failure everything is still open and changed.
    bool Flush();
    bool SaveAs(const QString &path);
    // Flushes and forgets. After a failure everything is forgotten nevertheless.
    bool Close();
    // False without writing when a stream is damaged or the whole is too large for the format.
    bool WriteTo(QIODevice &device) const;

    bool MakeDirectory(const QString &path);
    bool MakeFile(const QString &path);
    bool ReadFile(const QString &path, QByteArray *content) const;
    // Replaces the content of a stream that exists.
    bool WriteFile(const QString &path, const QByteArray &content);
    bool RemoveFile(const QString &path);
    // With everything in it. The root cannot be removed.
    bool RemoveDirectory(const QString &path);

    QString PresentWorkingDirectory() const;
    bool ChangeDirectory(const QString &path);
    // Names in the storage, in the order of the format; storages end with "/".
    QStringList List(const QString &path = QString()) const;
    // Null when there is none; holds until the file changes.
    const Property *FindProperty(const QString &path) const;
    // -1 when there is no such stream.
    qint64 FileSize(const QString &path) const;
    // What went wrong last.
    QString ErrorText() const { return m_error; }

private:
    // Where a path leads. `node` is -1 when only the last name is missing, `parent` is -1 when more is.
    struct PathEnd
    {
        int parent = -1;
        int node = -1;
        QString name;
    };

    void clear();
    bool fail(const QString &what) const;
    bool parse(const QByteArray &bytes);
    bool readTable();
    bool follow(const std::vector<quint32> &table, quint32 start, size_t sectors, bool mayEndEarly,
                std::vector<quint32> *chain) const;
    bool gather(quint32 start, quint64 size, QByteArray *content) const;
    bool openMiniStream() const;
    bool content(int node, QByteArray *content) const;
    quint64 contentSize(int node) const;
    PathEnd place(const QString &path) const;
    int make(const QString &path, Property::Kind kind);

    bool m_isOpen = false;
    bool m_isChanged = false;
    QString m_path;
    Header m_header;
    Block m_block;
    std::vector<quint32> m_table; // the sector that follows each sector
    PropertyTree m_tree;
    int m_directory = 0;
    // Read when the first small stream is asked for.
    mutable bool m_isMiniOpen = false;
    mutable QByteArray m_miniStream;
    mutable std::vector<quint32> m_miniTable;
    mutable QString m_error;
};
}
