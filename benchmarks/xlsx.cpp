// Writes spreadsheet packages on one core: bare rows of texts, and whole plans.
//
// Every line gives the best of several runs and the most memory the process has held so far; run one
// operation at a time to see its own:  kwgantt_bench_xlsx rows | pack | export | rich  [rows]
#include "costs.h"
#include "exchange/XLSXDataEngine.h"
#include "exchange/exceltitles.h"
#include "exchange/sheetwriter.h"
#include "generator.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "plantitles.h"
#include "report.h"
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <sys/resource.h>

namespace {

constexpr int columns = 12;

// A package whose task sheet has the same texts that other libraries are measured with.
class Bare : public XLSXDataBase
{
public:
    Bare()
        : XLSXDataBase(nullptr)
    {
    }
    void write(const QString &folder, int rows)
    {
        startExport();
        initExport(folder);
        writePart(QStringLiteral("xl/worksheets/sheet1.xml"), [&](PartWriter &part) {
            SheetWriter sheet(
                part, [this](const QString &text) { return sharedStringIndex(text); }, nullptr, true);
            std::vector<planexport::Cell> cells(columns);
            sheet.begin(rows, columns);
            for (int row = 1; row <= rows; ++row) {
                for (int column = 0; column < columns; ++column)
                    cells[std::size_t(column)].text = textOf(row, column);
                sheet.row(row, 0, cells);
            }
            sheet.end();
            m_stringCells = sheet.stringCells();
        });
        createSharedString();
    }

private:
    // A quarter of the texts differ from row to row, as the names of tasks do; the others repeat.
    static QString textOf(int row, int column)
    {
        return column % 4 == 0 ? QStringLiteral("text %1 of column %2").arg(row).arg(column)
                               : QStringLiteral("repeated %1").arg(row * column % 1000);
    }
};

void sayMemory(const QString &file)
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("    (%.1f MB on disk; the most memory so far is %ld MB)\n",
                double(QFileInfo(file).size()) / 1e6, usage.ru_maxrss / 1024);
}

void measureRows(Report &report, int rows, bool isPacked)
{
    const QTemporaryDir folder;
    const QString package = folder.filePath(QStringLiteral("package"));
    const QString file = folder.filePath(QStringLiteral("rows.xlsx"));
    Bare bare;
    report.line(isPacked ? "12 columns of texts, packed" : "12 columns of texts", rows,
                best(
                    3, [] {},
                    [&] {
                        bare.write(package, rows);
                        if (isPacked && !KWZip::zip(file, package))
                            std::printf("not packed: %s\n", qPrintable(KWZip::lastError()));
                    }));
    sayMemory(isPacked ? file : package + QLatin1String("/xl/worksheets/sheet1.xml"));
}

void measureExport(Report &report, int tasks, bool isRich)
{
    generator::Shape shape;
    shape.tasks = tasks;
    const auto document = generator::document(generator::plan(shape), shape);
    constexpr int resources = 100;
    constexpr int perLeaf = 2;
    costs::assign(*document, resources, perLeaf);
    sayMemory(QString());
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("plan.xlsx"));
    XLSXDataEngine engine(document.get());
    engine.setRich(isRich);
    report.line(isRich ? "export, readable" : "export", tasks,
                best(
                    3, [] {},
                    [&] {
                        if (!engine.exportFile(file))
                            std::printf("not written: %s\n",
                                        qPrintable(engine.findings().list().value(0).what));
                    }));
    sayMemory(file);
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const std::string operation = argc > 1 ? argv[1] : "all";
    const int rows = argc > 2 ? std::atoi(argv[2]) : 100000;
    plantitles::fill();
    Report report;
    for (int size = rows / 10; size <= rows; size += rows - rows / 10) {
        for (const bool isPacked : {false, true}) {
            if (operation == (isPacked ? "pack" : "rows") || operation == "all")
                measureRows(report, size, isPacked);
        }
        for (const bool isRich : {false, true}) {
            if (operation == (isRich ? "rich" : "export") || operation == "all")
                measureExport(report, size, isRich);
        }
    }
    return 0;
}
