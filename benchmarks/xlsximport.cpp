// Reads an XLSX workbook of a generated plan: its cells, beside a bare pass of an XML library over the same
// parts, and the whole import.
//
//   kwgantt_bench_xlsximport rows | xml | import  [tasks]     one at a time shows its own memory
#include "costs.h"
#include "exchange/XLSXDataEngine.h"
#include "exchange/xlsxsheet.h"
#include "generator.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "plantitles.h"
#include "report.h"
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <pugixml.hpp>
#include <sys/resource.h>

namespace {

void sayMemory()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("    (the most memory so far is %ld MB)\n", usage.ru_maxrss / 1024);
}

void makeBook(const QString &file, int tasks)
{
    generator::Shape shape;
    shape.tasks = tasks;
    const auto document = generator::document(generator::plan(shape), shape);
    constexpr int resources = 100;
    constexpr int perLeaf = 2;
    costs::assign(*document, resources, perLeaf);
    if (!XLSXDataEngine(document.get()).exportFile(file))
        std::printf("not written\n");
}

// Every cell of the task sheet, with its text.
int readRows(const QString &folder)
{
    QStringList strings;
    xlsx::readSharedStrings(xlsx::readPart(folder + QLatin1String("/xl/sharedStrings.xml"), nullptr), strings,
                            nullptr);
    xlsx::SheetSource source(xlsx::readPart(folder + QLatin1String("/xl/worksheets/sheet1.xml"), nullptr),
                             strings);
    int cells = 0;
    sheetrows::Row row;
    while (source.next(row))
        cells += int(row.cells.size());
    return cells;
}

void parseParts(const QString &folder)
{
    for (const char *part : {"/xl/sharedStrings.xml", "/xl/worksheets/sheet1.xml"}) {
        QByteArray bytes = xlsx::readPart(folder + QLatin1String(part), nullptr);
        pugi::xml_document document;
        document.load_buffer_inplace(bytes.data(), std::size_t(bytes.size()));
    }
}

void measure(Report &report, const std::string &operation, int tasks)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("plan.xlsx"));
    makeBook(file, tasks);
    const QString unpacked = folder.filePath(QStringLiteral("unpacked"));
    QDir().mkpath(unpacked);
    KWZip::unZip(file, unpacked);
    std::printf("    (%.1f MB on disk)\n", double(QFileInfo(file).size()) / 1e6);
    sayMemory();

    constexpr int runs = 3;
    const auto nothing = [] {};
    double bare = 0;
    if (operation == "xml" || operation == "all") {
        bare = best(runs, nothing, [&] { parseParts(unpacked); });
        report.line("XML library over the task sheet", tasks, bare);
        sayMemory();
    }
    if (operation == "rows" || operation == "all") {
        report.line("cells of the task sheet", tasks, best(runs, nothing, [&] { readRows(unpacked); }), bare);
        sayMemory();
    }
    if (operation == "import" || operation == "all") {
        std::unique_ptr<KWDocument> document;
        report.line("import", tasks,
                    best(
                        runs, [&] { document = std::make_unique<KWDocument>(); },
                        [&] {
                            if (!XLSXDataEngine(document.get()).importData(file) ||
                                document->taskCount() != tasks)
                                std::printf("not imported\n");
                        }),
                    bare);
        sayMemory();
    }
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const std::string operation = argc > 1 ? argv[1] : "all";
    const int tasks = argc > 2 ? std::atoi(argv[2]) : 100000;
    plantitles::fill();
    Report report;
    for (int size = tasks / 10; size <= tasks; size += tasks - tasks / 10)
        measure(report, operation, size);
    return 0;
}
