#include "support/atomicfile.h"
#include "support/filesizelimit.h"
#include "support/folder.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using folder::tree;

class AtomicFile : public testing::Test
{
protected:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }
    std::string after() const { return tree(m_dir.path()); }
    QTemporaryDir m_dir;
};

TEST_F(AtomicFile, newContentTakesThePlaceOfTheOld)
{
    ASSERT_TRUE(folder::put(path("plan"), "old and longer"));
    EXPECT_TRUE(atomicfile::replace(path("plan"), "new"));
    EXPECT_TRUE(atomicfile::replace(path("other"), "first"));
    EXPECT_EQ(after(), "other=first plan=new");
}

TEST_F(AtomicFile, writerThatGivesUpLeavesTheOldFile)
{
    ASSERT_TRUE(folder::put(path("plan"), "old"));
    QString error;
    EXPECT_FALSE(atomicfile::replace(
        path("plan"), [](QIODevice &device) { return device.write("half") < 0; }, &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(after(), "plan=old");
}

// Each size fails at another place: while the buffer is flushed at the end, or in the middle of writing.
TEST_F(AtomicFile, fullDiskLeavesTheOldFileEvenWhenTheWriterDoesNotLook)
{
    ASSERT_TRUE(folder::put(path("plan"), "old"));
    for (const int bytes : {100, 20000, 200000}) {
        SCOPED_TRACE(bytes);
        QString error;
        const FileSizeLimit limit(50);
        EXPECT_FALSE(atomicfile::replace(
            path("plan"),
            [bytes](QIODevice &device) {
                for (int i = 0; i < bytes; i += 10)
                    device.write("0123456789");
                return true;
            },
            &error));
        EXPECT_FALSE(error.isEmpty());
        EXPECT_EQ(after(), "plan=old");
    }
}

TEST_F(AtomicFile, placesThatCannotHoldAFileAreLeftAlone)
{
    ASSERT_TRUE(QDir().mkdir(path("dir")));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    ASSERT_TRUE(folder::put(path("done"), "finished"));
    for (const char *name : {"dir", "pipe", "missing/plan", "done/plan"}) {
        SCOPED_TRACE(name);
        QString error;
        EXPECT_FALSE(atomicfile::replace(path(name), "new", &error));
        EXPECT_FALSE(error.isEmpty() || error.contains(path(name))) << error.toStdString();
        EXPECT_FALSE(atomicfile::replaceWith(path(name), path("done"), &error));
        EXPECT_EQ(after(), "dir/ done=finished pipe!");
    }
    EXPECT_FALSE(atomicfile::replaceWith(path("plan"), path("missing")));
    EXPECT_EQ(after(), "dir/ done=finished pipe!");
}

TEST_F(AtomicFile, linkStaysALinkAndItsFileIsReplaced)
{
    ASSERT_TRUE(folder::put(path("real/plan"), "old"));
    ASSERT_TRUE(QFile::link(path("real/plan"), path("link")));
    EXPECT_TRUE(atomicfile::replace(path("link"), "new"));
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    EXPECT_EQ(after(), "link=new real/ real/plan=new");

    ASSERT_TRUE(folder::put(path("real/done"), "newer"));
    EXPECT_TRUE(atomicfile::replaceWith(path("link"), path("real/done")));
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    EXPECT_EQ(after(), "link=newer real/ real/plan=newer");
}

TEST_F(AtomicFile, replacedFileKeepsItsPermissions)
{
    const auto mine =
        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadUser | QFileDevice::WriteUser;
    for (const char *name : {"written", "moved"}) {
        ASSERT_TRUE(folder::put(path(name), "old"));
        ASSERT_TRUE(QFile::setPermissions(path(name), mine));
    }
    ASSERT_TRUE(folder::put(path("done"), "new"));
    EXPECT_TRUE(atomicfile::replace(path("written"), "new"));
    EXPECT_TRUE(atomicfile::replaceWith(path("moved"), path("done")));
    EXPECT_EQ(QFile::permissions(path("written")), mine);
    EXPECT_EQ(QFile::permissions(path("moved")), mine);
    EXPECT_EQ(after(), "moved=new written=new");
}
}
