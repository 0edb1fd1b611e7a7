#include "kwzip.h"
#include "support/filesizelimit.h"
#include "support/folder.h"
#include "support/kwlimits.h"
#include "support/rawzip.h"
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using rawzip::Member;

using folder::get;
using folder::put;
using folder::tree;

// A scratch folder with an archive and an empty folder to unpack into.
class KWZipTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QDir(m_dir.path()).mkdir(QStringLiteral("out"))); }
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }
    bool unpack(const QByteArray &archive)
    {
        return put(path("a.zip"), archive) && KWZip::unZip(path("a.zip"), path("out"));
    }
    // All that a refusal may leave behind: the archive itself and the empty folder.
    void expectNothingWritten(const QByteArray &archive) const
    {
        EXPECT_EQ(tree(path("out")), "");
        EXPECT_EQ(get(path("a.zip")), archive);
        EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList({QStringLiteral("a.zip"), QStringLiteral("out")}));
    }
    QTemporaryDir m_dir;
};

TEST_F(KWZipTest, unpackedFolderEqualsThePackedOne)
{
    ASSERT_TRUE(put(path("in/document.xml"), QByteArray(100000, 'x')));
    ASSERT_TRUE(put(path("in/.hidden"), "dot"));
    ASSERT_TRUE(put(path("in/media/deep/.also"), "deep"));
    ASSERT_TRUE(put(path("in/empty.bin"), ""));
    ASSERT_TRUE(QDir().mkpath(path("in/page/.void")));
    ASSERT_TRUE(KWZip::zip(path("a.zip"), path("in"))) << KWZip::lastError().toStdString();
    ASSERT_TRUE(KWZip::unZip(path("a.zip"), path("out"))) << KWZip::lastError().toStdString();
    EXPECT_EQ(tree(path("out")), tree(path("in")));
    EXPECT_NE(tree(path("in")).find("media/deep/.also=deep"), std::string::npos);
}

TEST_F(KWZipTest, equalFoldersGiveEqualBytes)
{
    // Made in the other order and at another time; neither may show.
    ASSERT_TRUE(put(path("in/b"), "2") && put(path("in/a"), "1"));
    ASSERT_TRUE(put(path("again/a"), "1") && put(path("again/b"), "2"));
    QFile older(path("again/a"));
    ASSERT_TRUE(older.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        older.setFileTime(QDateTime::fromSecsSinceEpoch(1000000000), QFileDevice::FileModificationTime));
    older.close();
    ASSERT_TRUE(KWZip::zip(path("a.zip"), path("in")) && KWZip::zip(path("b.zip"), path("again")));
    EXPECT_EQ(get(path("a.zip")), get(path("b.zip")));
}

TEST_F(KWZipTest, textThatPacksTooWellCanStillBeReadBack)
{
    ASSERT_TRUE(put(path("in/blanks"), QByteArray(int(kwzip::ratioFreeBytes) + 1, ' ')));
    ASSERT_TRUE(KWZip::zip(path("a.zip"), path("in"))) << KWZip::lastError().toStdString();
    EXPECT_TRUE(KWZip::unZip(path("a.zip"), path("out"))) << KWZip::lastError().toStdString();
}

TEST_F(KWZipTest, failedPackingKeepsTheOldArchive)
{
    ASSERT_TRUE(put(path("a.zip"), "old"));
    ASSERT_TRUE(put(path("in/file"), "text"));
    ASSERT_TRUE(QFile::link(QStringLiteral("file"), path("in/link")));
    EXPECT_FALSE(KWZip::zip(path("a.zip"), path("in")));
    EXPECT_THAT(KWZip::lastError().toStdString(), testing::HasSubstr("link"));
    ASSERT_TRUE(QFile::remove(path("in/link")));

    {
        const FileSizeLimit limit(64);
        EXPECT_FALSE(KWZip::zip(path("a.zip"), path("in")));
    }

    EXPECT_FALSE(KWZip::zip(path("a.zip"), path("missing")));
    EXPECT_FALSE(KWZip::zip(path("missing/a.zip"), path("in")));
    EXPECT_FALSE(KWZip::zip(path("out"), path("in")));
    EXPECT_FALSE(KWZip::zip(path("in/a.zip"), path("in")));
    EXPECT_EQ(tree(m_dir.path()), "a.zip=old in/ in/file=text out/");
}

TEST_F(KWZipTest, diskThatFillsUpLeavesNothingBehind)
{
    const QByteArray archive = rawzip::archive({{"a/small", "x"}, {"b", QByteArray(100000, 'y')}});
    ASSERT_TRUE(put(path("a.zip"), archive));
    {
        const FileSizeLimit limit(50000);
        EXPECT_FALSE(KWZip::unZip(path("a.zip"), path("out")));
    }
    expectNothingWritten(archive);
}

TEST_F(KWZipTest, nothingThatStandsThereIsOverwrittenOrGoneThrough)
{
    ASSERT_TRUE(put(path("out/b"), "mine"));
    EXPECT_FALSE(unpack(rawzip::archive({{"a", "1"}, {"b", "2"}})));
    EXPECT_EQ(tree(path("out")), "b=mine");

    ASSERT_TRUE(QDir().mkdir(path("elsewhere")) && QFile::link(path("elsewhere"), path("out/link")));
    EXPECT_FALSE(unpack(rawzip::archive({{"a", "1"}, {"link/c", "2"}})));
    EXPECT_EQ(tree(path("elsewhere")), "");
    EXPECT_FALSE(QFile::exists(path("out/a")));
}

TEST_F(KWZipTest, foldersMayStandThereAlready)
{
    ASSERT_TRUE(put(path("out/media/old"), "1"));
    EXPECT_TRUE(unpack(rawzip::archive({{"media/", "", 0, S_IFDIR | 0755}, {"media/new", "2"}})))
        << KWZip::lastError().toStdString();
    EXPECT_EQ(tree(path("out")), "media/ media/new=2 media/old=1");
}

TEST_F(KWZipTest, everyTruncationIsRefusedAndLeavesNothing)
{
    const QByteArray whole = rawzip::archive({{"document.xml", "<Document/>"}, {"media/a b", "12", 0}});
    for (int bytes = 0; bytes < whole.size(); ++bytes) {
        SCOPED_TRACE(bytes);
        ASSERT_FALSE(unpack(whole.left(bytes)));
        expectNothingWritten(whole.left(bytes));
    }
    EXPECT_TRUE(unpack(whole)) << KWZip::lastError().toStdString();
}

TEST_F(KWZipTest, brokenBytesNeverLeaveHalfAFolder)
{
    const QByteArray whole = rawzip::archive({{"document.xml", "<Document/>"}, {"media/a", "12", 0}});
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray broken = whole;
        broken[at] = char(broken[at] ^ 0x41);
        SCOPED_TRACE(at);
        if (!unpack(broken))
            expectNothingWritten(broken);
        QDir(path("out")).removeRecursively();
        ASSERT_TRUE(QDir().mkdir(path("out")));
    }
}

TEST_F(KWZipTest, tooManyEntriesOrFoldersAreRefused)
{
    QList<Member> files;
    QList<Member> deep;
    for (int i = 0; i <= kwzip::maxEntries; ++i) {
        files.append({QByteArray::number(i), "", 0});
        if (i % 10 == 0)
            deep.append({QByteArray::number(i) + "/1/2/3/4/5/6/7/8/9/file", "", 0});
    }
    EXPECT_FALSE(unpack(rawzip::archive(files)));
    EXPECT_THAT(KWZip::lastError().toStdString(), testing::HasSubstr("too many entries"));
    EXPECT_FALSE(unpack(rawzip::archive(deep)));
    EXPECT_THAT(KWZip::lastError().toStdString(), testing::HasSubstr("too many folders"));
    EXPECT_EQ(tree(path("out")), "");
    files.removeLast();
    EXPECT_TRUE(unpack(rawzip::archive(files))) << KWZip::lastError().toStdString();
}

TEST_F(KWZipTest, longestNameThatFitsIsTaken)
{
    EXPECT_TRUE(unpack(rawzip::archive({{"media/" + QByteArray(255, 'n'), "x"}})));
}

struct Refusal
{
    const char *name;
    QList<Member> members;
    const char *why;
    QByteArray comment = QByteArray();
};

const QByteArray megabytes(10 << 20, ' ');

TEST_F(KWZipTest, badArchivesAreRefusedBeforeAnythingIsWritten)
{
    const Refusal cases[] = {
        {"parentFolder", {{"../out.txt", "x"}}, "leaves its folder"},
        {"parentFolderAsFolder", {{"../dir/", "", 0, S_IFDIR | 0755}}, "leaves its folder"},
        {"onlyADot", {{".", "x"}}, "leaves its folder"},
        {"doubledSlash", {{"a//b", "x"}}, "leaves its folder"},
        {"absolute", {{"/etc/x", "x"}}, "absolute"},
        {"driveLetter", {{"C:/x", "x"}}, "absolute"},
        {"backslash", {{"..\\x", "x"}}, "backslash"},
        {"emptyName", {{"", "x"}}, "empty"},
        {"nulInName", {{QByteArray("a\0b", 3), "x"}}, "control character"},
        {"nulInNameBehindAComment", {{QByteArray("a\0b", 3), "x"}}, "control character", "PK\5\6 comment"},
        {"nameInAnotherEncoding", {{"caf\x82", "x", 8, S_IFREG, 0}}, "no sound UTF-8"},
        {"nameTooLongForADisk", {{"media/" + QByteArray(256, 'n'), "x"}}, "too long"},
        {"foldersTooDeep", {{QByteArray("n/").repeated(3000) + "n", "x"}}, "too long"},
        {"linkToAFile", {{"link", "/etc/passwd", 0, S_IFLNK | 0777}}, "neither a plain file"},
        {"device", {{"device", "", 0, S_IFCHR | 0666}}, "neither a plain file"},
        {"folderNamedLikeAFile", {{"dir", "", 0, S_IFDIR | 0755}}, "neither a plain file"},
        {"folderWithContent", {{"dir/", "x", 0, S_IFDIR | 0755}}, "a folder has content"},
        {"nameTwice", {{"a", "1"}, {"a", "2"}}, "twice"},
        {"fileAndFolderEntry", {{"a", "1"}, {"a/", "", 0, S_IFDIR | 0755}}, "twice"},
        {"fileThenBelowIt", {{"a", "1"}, {"a/b", "2"}}, "for a file and for a folder"},
        {"encrypted", {{"a", "1", 8, S_IFREG | 0644, 0x0801}}, "encrypted"},
        {"unknownPacking", {{"a", "1", 12}}, ""},
        {"bomb", {{"a", megabytes}}, "far more than it holds"},
        {"bombOfSharedBytes",
         {{"a", megabytes.left(4 << 20)},
          {"b", megabytes.left(4 << 20), 8, S_IFREG, 0x800, -1, 1},
          {"c", megabytes.left(4 << 20), 8, S_IFREG, 0x800, -1, 1}},
         "far more than it holds"},
        {"storedBytesShared",
         {{"a", megabytes, 0}, {"b", megabytes, 0, S_IFREG, 0x800, -1, 1}},
         "far more than it holds"},
        {"declaresTooMuch", {{"a", "x", 8, S_IFREG, 0x800, (256LL << 20) + 1}}, "too large"},
        {"unpacksToMoreThanDeclared", {{"a", megabytes, 8, S_IFREG, 0x800, 10}}, "size it declares"},
        {"unpacksToLessThanDeclared", {{"a", "xyz", 8, S_IFREG, 0x800, 10}}, "size it declares"},
        {"wrongChecksum", {{"a", "xyz", 8, S_IFREG, 0x800, -1, -1, 1}}, "CRC"}};
    for (const Refusal &row : cases) {
        SCOPED_TRACE(row.name);
        // A sound entry stands in front: none of it may be left either.
        QList<Member> members = row.members;
        members.prepend({"first", "sound"});
        const QByteArray archive = rawzip::archive(members, row.comment);
        EXPECT_FALSE(unpack(archive));
        EXPECT_THAT(KWZip::lastError().toStdString(), testing::HasSubstr(row.why));
        expectNothingWritten(archive);
    }
}

}
