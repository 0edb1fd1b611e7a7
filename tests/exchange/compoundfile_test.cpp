#include "exchange/biff/compoundfile.h"
#include "support/filesizelimit.h"
#include "support/folder.h"
#include <QBuffer>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

using YCompoundFiles::CompoundFile;
using SectorSize = CompoundFile::SectorSize;

QByteArray content(int size, int seed = 1)
{
    QByteArray bytes(size, Qt::Uninitialized);
    char *to = bytes.data();
    for (int i = 0; i < size; ++i)
        to[i] = char(seed + i * 7 + i / 251);
    return bytes;
}

QByteArray written(const CompoundFile &file)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return file.WriteTo(buffer) ? buffer.data() : QByteArray();
}

// "a=12 b/ b/c=5": every storage and stream with its size, or "(damaged)" for a stream that cannot be read.
std::string tree(const CompoundFile &file, const QString &storage = QStringLiteral("/"))
{
    std::string all;
    const QStringList names = file.List(storage);
    for (const QString &name : names) {
        const QString path = storage + name;
        QByteArray bytes;
        all += path.toStdString();
        if (name.endsWith(QLatin1Char('/')))
            all += " " + tree(file, path);
        else
            all += "=" + (file.ReadFile(path, &bytes) ? std::to_string(bytes.size()) : "(damaged)") + " ";
    }
    return all;
}

std::string treeOf(const QByteArray &bytes)
{
    CompoundFile file;
    return file.OpenBytes(bytes) ? tree(file) : "(closed)";
}

TEST(CompoundFile, streamsOfEverySizeComeBack)
{
    for (const SectorSize sectors : {CompoundFile::Sectors512, CompoundFile::Sectors4096}) {
        CompoundFile file, again;
        file.Create(QString(), sectors);
        ASSERT_TRUE(file.MakeDirectory(QStringLiteral("/Store")));
        // Around a mini sector, the cut-off of the mini stream and a sector.
        const std::vector<int> sizes{0, 1, 63, 64, 65, 511, 512, 4095, 4096, 4097, 8192, 100000};
        for (const int size : sizes) {
            const QString path = QStringLiteral("/Store/%1").arg(size);
            ASSERT_TRUE(file.MakeFile(path) && file.WriteFile(path, content(size, size)));
        }
        ASSERT_TRUE(again.OpenBytes(written(file))) << again.ErrorText().toStdString();
        for (const int size : sizes) {
            QByteArray bytes;
            EXPECT_TRUE(again.ReadFile(QStringLiteral("/Store/%1").arg(size), &bytes)) << size;
            EXPECT_EQ(bytes, content(size, size)) << size;
        }
        EXPECT_EQ(written(again), written(file));
    }
}

TEST(CompoundFile, tableGoesOnBehindTheHeader)
{
    // 109 table sectors of 128 numbers fit the header; one sector is the directory's.
    const struct
    {
        int bytes;
        quint32 tableSectors, listSectors;
    } cases[] = {{(109 * 127 - 1) * 512, 109, 0},
                 {109 * 127 * 512, 110, 1},
                 {(237 * 128 - 1 - 237 - 2) * 512, 237, 2}};
    for (const auto &one : cases) {
        CompoundFile file, again;
        file.Create(QString());
        file.MakeFile(QStringLiteral("large"));
        file.WriteFile(QStringLiteral("large"), content(one.bytes));
        QByteArray bytes = written(file), large;
        CompoundFile::Header header;
        ASSERT_TRUE(header.Read(biff::Bytes(bytes)));
        EXPECT_EQ(header.tableSectors, one.tableSectors);
        EXPECT_EQ(header.listSectors, one.listSectors);
        // The table lies in one piece. The list names each of its sectors, and goes on behind every 127.
        const QByteArray listBytes = bytes.mid(int(header.firstListSector + 1) * 512);
        biff::Bytes list(listBytes);
        for (quint32 i = 109; i < one.tableSectors; ++i) {
            EXPECT_EQ(list.u32(), header.tableSectorList[0] + i);
            if ((i - 109) % 127 == 126)
                list.skip(4);
        }
        ASSERT_TRUE(again.OpenBytes(bytes) && again.ReadFile(QStringLiteral("large"), &large));
        EXPECT_EQ(large, content(one.bytes));
    }
}

// Names below a directory entry in the order in which they are found, and the black entries on each way down,
// -1 where their number differs or a red one stands below a red one.
int blackHeight(biff::Bytes directory, quint32 entry, bool isBelowRed, QStringList *names)
{
    if (entry == CompoundFile::Property::none)
        return 0;
    biff::Bytes at = directory;
    at.skip(entry * CompoundFile::Property::sizeBytes);
    CompoundFile::Property property;
    property.Read(at, false);
    const int left = blackHeight(directory, property.left, !property.isBlack, names);
    names->append(property.name);
    const int right = blackHeight(directory, property.right, !property.isBlack, names);
    const bool isSound = left >= 0 && left == right && (property.isBlack || !isBelowRed);
    return isSound ? left + property.isBlack : -1;
}

TEST(CompoundFile, directoryIsABalancedTreeInTheOrderOfTheFormat)
{
    for (int streams = 1; streams <= 40; ++streams) {
        CompoundFile file;
        file.Create(QString());
        for (int i = 0; i < streams; ++i)
            file.MakeFile((i % 2 ? QStringLiteral("b") : QStringLiteral("AA")) +
                          QString::number(i * 37 % 101));
        const QByteArray bytes = written(file);
        CompoundFile::Header header;
        CompoundFile::Property root;
        header.Read(biff::Bytes(bytes));
        const QByteArray directory = bytes.mid(int(header.firstDirectorySector + 1) * 512); // in one piece
        root.Read(biff::Bytes(directory), false);
        QStringList names;
        EXPECT_GE(blackHeight(biff::Bytes(directory), root.child, false, &names), 0) << streams;
        EXPECT_EQ(names.size(), streams);
        EXPECT_TRUE(std::is_sorted(names.begin(), names.end(), CompoundFile::PropertyTree::NameOrder()));
    }
}

TEST(CompoundFile, pathsLeadThroughStorages)
{
    CompoundFile file;
    file.Create(QString());
    EXPECT_TRUE(file.MakeDirectory(QStringLiteral("Outer")));
    EXPECT_TRUE(file.ChangeDirectory(QStringLiteral("outer"))); // case does not matter
    EXPECT_TRUE(file.MakeDirectory(QStringLiteral("Inner")));
    EXPECT_TRUE(file.MakeFile(QStringLiteral("Inner/data")));
    EXPECT_TRUE(file.WriteFile(QStringLiteral("/OUTER/INNER/DATA"), "12345"));
    EXPECT_EQ(file.PresentWorkingDirectory(), QStringLiteral("/Outer"));
    EXPECT_EQ(tree(file), "/Outer/ /Outer/Inner/ /Outer/Inner/data=5 ");
    EXPECT_EQ(file.FileSize(QStringLiteral("../Outer/Inner/data")), 5);
    EXPECT_EQ(file.FileSize(QStringLiteral("Inner")), -1);
    EXPECT_EQ(file.FindProperty(QStringLiteral("data")), nullptr);

    EXPECT_FALSE(file.MakeFile(QStringLiteral("Inner/Data"))) << "is there already";
    EXPECT_FALSE(file.MakeFile(QStringLiteral("Nowhere/data")));
    EXPECT_FALSE(file.MakeFile(QStringLiteral("a:b")));
    EXPECT_FALSE(file.MakeFile(QString(32, QLatin1Char('n'))));
    EXPECT_FALSE(file.WriteFile(QStringLiteral("Inner"), "text"));
    EXPECT_FALSE(file.RemoveFile(QStringLiteral("Inner")));
    EXPECT_FALSE(file.RemoveDirectory(QStringLiteral("/")));
    EXPECT_FALSE(file.ChangeDirectory(QStringLiteral("Inner/data")));
    EXPECT_EQ(treeOf(written(file)), tree(file));

    EXPECT_TRUE(file.ChangeDirectory(QStringLiteral("Inner")));
    EXPECT_TRUE(file.RemoveDirectory(QStringLiteral("/Outer/Inner")));
    EXPECT_EQ(file.PresentWorkingDirectory(), QStringLiteral("/Outer"));
    EXPECT_EQ(treeOf(written(file)), "/Outer/ ");
    EXPECT_TRUE(file.MakeFile(QStringLiteral("/x")) && file.RemoveFile(QStringLiteral("/x")));
    EXPECT_EQ(tree(file), "/Outer/ ");
}

TEST(CompoundFile, changesReachTheDiskAtOnceOrNotAtAll)
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a.cfb"));
    CompoundFile file;
    file.Create(path);
    file.MakeFile(QStringLiteral("s"));
    file.WriteFile(QStringLiteral("s"), content(9000));
    EXPECT_FALSE(QFile::exists(path));
    ASSERT_TRUE(file.Close());
    const QByteArray before = folder::get(path);
    EXPECT_EQ(treeOf(before), "/s=9000 ");

    ASSERT_TRUE(file.Open(path));
    ASSERT_TRUE(file.MakeFile(QStringLiteral("t")) && file.WriteFile(QStringLiteral("t"), content(50000)));
    {
        const FileSizeLimit fullDisk(20000);
        EXPECT_FALSE(file.Flush());
        EXPECT_FALSE(file.ErrorText().isEmpty());
    }
    EXPECT_EQ(folder::get(path), before);
    EXPECT_TRUE(file.Flush());
    EXPECT_EQ(treeOf(folder::get(path)), "/s=9000 /t=50000 ");
    EXPECT_FALSE(file.Open(dir.path())) << "a folder";
    EXPECT_FALSE(file.Open(dir.filePath(QStringLiteral("none"))));
}

// A file of one sector each: stream "big" in sectors 0 to 9, mini stream with "tiny" in 10, mini table in 11,
// directory in 12, table in 13.
QByteArray sample()
{
    CompoundFile file;
    file.Create(QString());
    file.MakeFile(QStringLiteral("big"));
    file.WriteFile(QStringLiteral("big"), content(5000));
    file.MakeFile(QStringLiteral("tiny"));
    file.WriteFile(QStringLiteral("tiny"), content(200));
    return written(file);
}

constexpr int sectorAt(int sector)
{
    return (sector + 1) * 512;
}
constexpr int tableAt = sectorAt(13), miniTableAt = sectorAt(11), directoryAt = sectorAt(12);
constexpr int bigEntryAt = directoryAt + 128, tinyEntryAt = directoryAt + 256;

TEST(CompoundFile, damageIsMetByACleanNo)
{
    const QByteArray whole = sample();
    ASSERT_EQ(whole.size(), sectorAt(14));
    constexpr const char *sound = "/big=5000 /tiny=200 ";
    ASSERT_EQ(treeOf(whole), sound);
    constexpr const char *closed = "(closed)";
    constexpr const char *bigDamaged = "/big=(damaged) /tiny=200 ";
    constexpr const char *tinyDamaged = "/big=5000 /tiny=(damaged) ";
    const struct
    {
        const char *name;
        int at;
        quint32 value; // of 32 bits
        const char *tree;
    } cases[] = {{"signature", 0, 0, closed},
                 {"byte order reversed", 28, 0x0009FEFF, closed},
                 {"sectors of 1024 bytes", 28, 0x000AFFFE, closed},
                 {"sectors of 2 to 65535 bytes", 28, 0xFFFFFFFE, closed},
                 {"table sectors counted wrong", 44, 0xFFFFFFFF, sound},
                 {"directory outside", 48, 14, closed},
                 {"directory in data", 48, 0, closed},
                 {"mini table outside", 60, 1000, tinyDamaged},
                 {"list not needed", 68, 3, sound},
                 {"table outside", 76, 14, closed},
                 {"no table", 76, 0xFFFFFFFF, closed},
                 {"chain meets itself", tableAt + 4 * 2, 2, bigDamaged},
                 {"chain goes back", tableAt + 4 * 8, 0, bigDamaged},
                 {"chain goes back behind the end", tableAt + 4 * 9, 0, sound},
                 {"chain ends early", tableAt + 4 * 5, 0xFFFFFFFE, bigDamaged},
                 {"chain runs into a free sector", tableAt + 4 * 5, 0xFFFFFFFF, bigDamaged},
                 {"chain leaves the file", tableAt + 4 * 5, 14, bigDamaged},
                 {"chain of the directory meets itself", tableAt + 4 * 12, 12, closed},
                 {"chain of the mini stream ends early", directoryAt + 116, 0xFFFFFFFE, tinyDamaged},
                 {"small chain meets itself", miniTableAt, 0, tinyDamaged},
                 {"small chain leaves the mini stream", miniTableAt + 4, 4, tinyDamaged},
                 {"size beyond the file", bigEntryAt + 120, 0x7FFFFFFF, bigDamaged},
                 {"size of four gigabytes", bigEntryAt + 120, 0xFFFFFFFF, bigDamaged},
                 {"size beyond the chain", bigEntryAt + 120, 5121, bigDamaged},
                 {"upper half of the size is ignored", bigEntryAt + 124, 7, sound},
                 {"start outside", bigEntryAt + 116, 14, bigDamaged},
                 {"mini stream counted too short", directoryAt + 120, 128, sound},
                 {"left is itself", bigEntryAt + 68, 1, sound},
                 {"right is the root", bigEntryAt + 72, 0, sound},
                 {"child is outside", directoryAt + 76, 99, ""},
                 {"root is a stream", directoryAt + 64, 0x01020016, closed},
                 {"second is unused", tinyEntryAt + 64, 0x01000000, "/big=5000 "},
                 {"second has no name", tinyEntryAt + 64, 0x01020002, "/big=5000 "},
                 {"second is named like a path", tinyEntryAt, 0x0069002F, "/big=5000 "}};
    for (const auto &one : cases) {
        QByteArray bytes = whole;
        qToLittleEndian(one.value, bytes.data() + one.at);
        EXPECT_EQ(treeOf(bytes), one.tree) << one.name;
    }
}

// A file with its table in front, then the directory, then one stream "s".
QByteArray withTableInFront(const QByteArray &stream)
{
    const quint32 dataSectors = quint32(stream.size() + 511) / 512;
    const quint32 tableSectors = (dataSectors + 1 + 126) / 127;
    CompoundFile::Header header;
    header.tableSectors = tableSectors;
    header.firstDirectorySector = tableSectors;
    for (quint32 i = 0; i < qMin(109u, tableSectors); ++i)
        header.tableSectorList[i] = i;
    biff::Sink to;
    header.Write(to);
    const quint32 firstDataSector = tableSectors + 1;
    for (quint32 i = 0; i < tableSectors * 128; ++i)
        to.u32(i < tableSectors                         ? YCompoundFiles::tableMark
               : i == tableSectors                      ? YCompoundFiles::endOfChain
               : i + 1 < firstDataSector + dataSectors  ? i + 1
               : i + 1 == firstDataSector + dataSectors ? YCompoundFiles::endOfChain
                                                        : YCompoundFiles::freeSector);
    CompoundFile::Property root, entry;
    root.name = QStringLiteral("Root Entry");
    root.kind = CompoundFile::Property::Root;
    root.child = 1;
    root.start = YCompoundFiles::endOfChain;
    entry.name = QStringLiteral("s");
    entry.kind = CompoundFile::Property::Stream;
    entry.start = firstDataSector;
    entry.size = quint64(stream.size());
    root.Write(to);
    entry.Write(to);
    CompoundFile::Property().Write(to);
    CompoundFile::Property().Write(to);
    to.raw(stream.constData(), size_t(stream.size()));
    to.zeros(dataSectors * 512 - quint32(stream.size()));
    return to.takeBytes();
}

TEST(CompoundFile, anIncompleteLastSectorIsEnoughForWhatItHolds)
{
    const QByteArray bytes = withTableInFront(content(5000));
    EXPECT_EQ(treeOf(bytes), "/s=5000 ");
    EXPECT_EQ(treeOf(bytes.left(bytes.size() - 120)), "/s=5000 ");
    EXPECT_EQ(treeOf(bytes.left(bytes.size() - 121)), "/s=(damaged) ");
}

TEST(CompoundFile, tableSectorsBeyondTheHeaderAreKnownByTheirMarks)
{
    const QByteArray stream =
        content(120 * 128 * 512); // needs twelve table sectors more than the header lists
    CompoundFile file;
    QByteArray read;
    ASSERT_TRUE(file.OpenBytes(withTableInFront(stream)));
    EXPECT_TRUE(file.ReadFile(QStringLiteral("s"), &read));
    EXPECT_EQ(read, stream);
}
}
