// A worksheet, its shared strings and its number formats, one after the other and parted by NUL: whatever
// they hold, reading ends, a refused book leaves the document alone, and what was imported saves and reads
// back the same.
#include "document.h"
#include "exchange/XLSXDataEngine.h"
#include "exchange/exceltitles.h"
#include "exchange/planimport.h"
#include "exchange/xlsxsheet.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include "support/xmlguard.h"
#include <QDomDocument>

namespace {

void fillTitles()
{
    const char *const titles[] = {"ID",       "Name",     "Start", "Finish", "Duration",
                                  "Complete", "Priority", "Who",   "Links"};
    for (int type = 0; type < int(std::size(titles)); ++type)
        RowColumnData::s_columnNames.insert(type, QString::fromLatin1(titles[type]));
    RowColumnData::s_columnNames.insert(23, QStringLiteral("Level"));
    RowColumnData::s_columnNames.insert(24, QStringLiteral("After"));
    ExcelTitles::s_resourcNames = {
        {0, QStringLiteral("ID")}, {1, QStringLiteral("Name")}, {4, QStringLiteral("Start")}};
    ExcelTitles::s_workAssignNames = {{0, QStringLiteral("Name")},
                                      {1, QStringLiteral("Who")},
                                      {3, QStringLiteral("Start")},
                                      {4, QStringLiteral("Complete")}};
}

// Every row without its blanks; whether the source ended without an error.
bool readAll(sheetrows::Source &source, QString &cells)
{
    sheetrows::Row row;
    while (source.next(row)) {
        cells += QString::number(row.number) + QLatin1Char(':');
        for (const sheetrows::Cell &cell : row.cells)
            cells += QStringLiteral("%1 %2 ").arg(cell.column).arg(cell.isNumber) +
                     cell.text.simplified().remove(QLatin1Char(' ')) + QLatin1Char('|');
    }
    return source.error().isEmpty();
}

// A part that both can read has the same cells in a DOM, but for blanks: a DOM leaves texts of nothing else
// out.
void compareWithDom(const QByteArray &part, const QStringList &strings)
{
    xlsx::SheetSource stream(part, strings);
    QString streamed, held;
    QDomDocument dom;
    if (!readAll(stream, streamed) || !stream.isWorksheet() || !dom.setContent(QString::fromUtf8(part)))
        return;
    const QDomNodeList children = dom.documentElement().childNodes();
    int sheets = 0;
    for (int i = 0; i < children.size(); ++i) {
        if (children.at(i).nodeName() == QLatin1String("sheetData") && ++sheets == 1) {
            xlsx::DomSheetSource source(children.at(i).childNodes(), strings);
            FUZZ_CHECK(readAll(source, held));
        }
    }
    FUZZ_CHECK(sheets != 1 || held == streamed);
}
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    startApplication(fillTitles);

    const QList<QByteArray> parts = QByteArray(reinterpret_cast<const char *>(data), int(size)).split('\0');
    QStringList strings;
    xlsx::readSharedStrings(XmlPull::toUtf8(parts.value(1)), strings, nullptr);
    QList<QPair<int, QString>> formats;
    xlsx::readNumberFormats(parts.value(2), formats);
    for (const auto &format : qAsConst(formats))
        XLSXDataEngine::parseFormatType(format.second);

    compareWithDom(parts.value(0), strings);

    // The one sheet is every sheet of the book, so that all readers see it.
    KWDocument document;
    document.DocGuid = QStringLiteral("same");
    const QByteArray before = textOf(document);
    xlsx::SheetSource tasks(parts.value(0), strings);
    xlsx::SheetSource resources(parts.value(0), strings);
    xlsx::SheetSource assignments(parts.value(0), strings);
    Findings findings;
    const bool isImported =
        planimport::importBook(document, {{&tasks, &resources, &assignments}, false}, &findings);
    if (!isImported) {
        FUZZ_CHECK(textOf(document) == before);
        return 0;
    }
    FUZZ_CHECK(document.rowColumnData()->rowHeights().size() == document.taskCount());
    FUZZ_CHECK(document.taskCollection()->linkRings().isEmpty());
    checkThatItReadsBack(document);
    return 0;
}
