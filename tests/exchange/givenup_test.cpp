// Reading that is given up on the way, file by file.
#include "exchange/CSVDataEngine.h"
#include "exchange/MSPDIDataEngine.h"
#include "exchange/XLSDataEngine.h"
#include "exchange/XLSXDataEngine.h"
#include "model/kwtaskinfo.h"
#include "support/longwork.h"
#include "support/savedtext.h"
#include "support/workbooktitles.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Format
{
    const char *file;
    bool (*write)(KWDocument &, const QString &);
    bool (*read)(KWDocument &, const QString &);
};

template <typename Engine>
Format formatOf(const char *file)
{
    return {file,
            [](KWDocument &document, const QString &path) { return Engine(&document).exportFile(path); },
            [](KWDocument &document, const QString &path) { return Engine(&document).importFile(path); }};
}

const Format formats[] = {
    {"plan.kwpx", [](KWDocument &document, const QString &path) { return document.save(path); },
     [](KWDocument &document, const QString &path) { return document.loadFromKWGT(path); }},
    formatOf<CSVDataEngine>("plan.csv"),
    formatOf<MSPDIDataEngine>("plan.xml"),
    formatOf<XLSDataEngine>("plan.xls"),
    formatOf<XLSXDataEngine>("plan.xlsx"),
};

void fill(KWDocument &document, int tasks)
{
    for (int i = 0; i < tasks; ++i) {
        auto *task = new KWTaskInfo;
        task->ID = quint32(i + 1);
        task->Name = QStringLiteral("Task %1").arg(i + 1);
        task->Start = 1767571200;
        task->Finish = task->Start + 86400;
        document.appendTaskInfoList(task);
    }
}
}

TEST(LongWork, readingThatIsGivenUpLeavesTheDocumentAsItWas)
{
    const WorkbookTitles titles;
    const QTemporaryDir dir;
    for (const Format &format : formats) {
        const QString path = dir.filePath(QLatin1String(format.file));
        {
            KWDocument large;
            fill(large, 1500);
            ASSERT_TRUE(format.write(large, path)) << format.file;
        }
        KWDocument document;
        fill(document, 3);
        document.setModified(false);
        const std::string before = savedText(document);
        for (int patience = 0;; ++patience) {
            int left = patience;
            qint64 last = -1;
            const LongWork work([&](LongWork::Stage stage, qint64 done, qint64 total) {
                EXPECT_EQ(stage, LongWork::Reading) << format.file;
                EXPECT_TRUE(total == 0 || done <= total) << format.file;
                EXPECT_GE(done, last == total ? 0 : last) << format.file;
                last = done;
                return left-- > 0;
            });
            const bool isRead = format.read(document, path);
            ASSERT_EQ(isRead, !work.isGivenUp()) << format.file << " after " << patience;
            if (isRead) {
                EXPECT_GT(patience, 3) << format.file << " tells of too few steps";
                break;
            }
            ASSERT_EQ(savedText(document), before) << format.file << " after " << patience;
            ASSERT_FALSE(document.isModified());
        }
        EXPECT_EQ(document.taskCount(), 1500) << format.file;
    }
}
