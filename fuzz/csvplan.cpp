// The CSV files of a plan - tasks, resources, assignments - parted by NUL: whatever they hold, reading ends,
// a refused plan leaves the document alone, and what was imported saves and reads back the same and is
// written as CSV again.
#include "exchange/csvplan.h"
#include "document.h"
#include "engine/time/localclock.h"
#include "exchange/CSVDataEngine.h"
#include "exchange/csvtext.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "table/rowcolumndata.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    startApplication(fillTwoTitles);
    KWClock::set(QDateTime(QDate(2026, 3, 2), QTime(12, 0)));

    const QList<QByteArray> parts = QByteArray(reinterpret_cast<const char *>(data), int(size)).split('\0');
    csv::Text texts[3];
    for (int i = 0; i < 3; ++i) {
        csv::Fault fault;
        if (!csv::check(parts.value(i), texts[i], fault))
            return 0;
    }
    KWDocument document;
    document.DocGuid = QStringLiteral("same");
    const QByteArray before = textOf(document);
    CSVDataEngine engine(&document);
    if (!engine.importTexts(texts[0], parts.size() > 1 ? &texts[1] : nullptr,
                            parts.size() > 2 ? &texts[2] : nullptr)) {
        FUZZ_CHECK(textOf(document) == before);
        return 0;
    }
    FUZZ_CHECK(document.rowColumnData()->rowHeights().size() == document.taskCount());
    FUZZ_CHECK(document.taskCollection()->linkRings().isEmpty());
    for (const KWTaskInfo *task : document.taskList())
        FUZZ_CHECK(task->Start > 0 && task->Finish > task->Start);
    checkThatItReadsBack(document);

    csv::Table written;
    csv::Fault fault;
    FUZZ_CHECK(csv::parse(csvplan::Rows(document, engine.imported()).bytes(), written, fault));
    FUZZ_CHECK(int(written.rows.size()) == document.taskCount() + 1);
    return 0;
}
