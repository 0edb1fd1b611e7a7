// The list of files opened last, and its file.
#include "settings/kwrecentfilemanager.h"
#include "support/folder.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

std::string shown(const KWRecentFileManager &recent)
{
    return (recent.recentFiles().join(QLatin1Char(' ')) + QLatin1String(" | ") +
            recent.recentFolders().join(QLatin1Char(' ')))
        .toStdString();
}

TEST(RecentFiles, newestFirstEachOnceAndNoMoreThanWanted)
{
    const QTemporaryDir folder;
    KWRecentFileManager recent(3);
    for (const char *path : {"/a/1", "/a/2", "/b/3", "", "/a/1", "/a/x/../2", "/c/&<\"4"})
        recent.addFile(QString::fromUtf8(path));
    EXPECT_EQ(shown(recent), "/c/&<\"4 /a/2 /a/1 | /c /a /b");
    recent.removeFile(QStringLiteral("/a/1"));
    ASSERT_TRUE(recent.save(folder.path()));

    KWRecentFileManager again(1);
    ASSERT_TRUE(again.load(folder.path()));
    EXPECT_EQ(shown(again), "/c/&<\"4 | /c");
    // What is no list of files leaves it alone.
    for (const char *text : {"", "<RecentFiles>", "<Config/>", "<!DOCTYPE a><RecentFiles/>"}) {
        ASSERT_TRUE(folder::put(folder.path() + QStringLiteral("/RecentFiles.xml"), text));
        EXPECT_FALSE(again.load(folder.path())) << text;
    }
    EXPECT_EQ(shown(again), "/c/&<\"4 | /c");
}
}
