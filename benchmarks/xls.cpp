// Writes and reads a workbook as large as its format allows, and a plan, on one core.
//
// Run one operation at a time to see its memory:  kwgantt_bench_xls write | read | plan  [folder]
#include "costs.h"
#include "exchange/BasicExcel.h"
#include "exchange/XLSDataEngine.h"
#include "exchange/exceltitles.h"
#include "generator.h"
#include "model/kwdocument.h"
#include "report.h"
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <sys/resource.h>

namespace {

constexpr int rows = 65000;
constexpr int columns = 12;
constexpr int runs = 5;

// The best of several runs, and the most memory that the process has held so far.
void measure(const char *name, int size, const std::function<void()> &work)
{
    const double seconds = best(
        runs, [] {}, work);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%-34s %8d x %d %9.3f s %6ld MB at most\n", name, size, columns, seconds,
                usage.ru_maxrss / 1024);
}

// Half of the columns are of one kind that repeats, as names of people and units do.
std::wstring textOf(int row, int column)
{
    const std::string text = column % 2 == 0
                                 ? "text " + std::to_string(row) + " of column " + std::to_string(column)
                                 : "repeated " + std::to_string(row * column % 100);
    return {text.begin(), text.end()};
}

void write(const QByteArray &path)
{
    YExcel::BasicExcel book;
    book.New(1);
    YExcel::BasicExcelWorksheet *sheet = book.GetWorksheet(0);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            sheet->Cell(row, column)->SetWString(textOf(row, column).c_str());
    }
    if (!book.SaveAs(path.constData()))
        std::printf("not written: %s\n", qPrintable(book.ErrorText()));
}

size_t read(const QByteArray &path)
{
    YExcel::BasicExcel book;
    if (!book.Load(path.constData()))
        std::printf("not read: %s\n", qPrintable(book.ErrorText()));
    const YExcel::BasicExcelWorksheet *sheet = book.GetWorksheet(0);
    size_t characters = 0;
    for (int row = 0; sheet && row < sheet->GetTotalRows(); ++row) {
        for (int column = 0; column < sheet->GetTotalCols(); ++column)
            characters += sheet->Cell(row, column)->GetStringLength();
    }
    return characters;
}

// A plan with an assignment for each leaf, written with twelve columns of its tasks and read back. Its
// outline is flat: assignments stand below every summary again, and a sheet has no more than 65,536 rows.
void measurePlan(const QByteArray &path)
{
    generator::Shape shape;
    shape.tasks = 20000;
    shape.childrenPerSummary = 1000;
    const auto document = generator::document(generator::plan(shape), shape);
    constexpr int resources = 100, perLeaf = 1;
    costs::assign(*document, resources, perLeaf);
    for (const int type : {0, 1, 2, 3, 4, 5, 7, 9, 11, 18, 23, 24})
        RowColumnData::s_columnNames.insert(type, QStringLiteral("Field %1").arg(type));
    for (int key = 0; key < 10; ++key)
        ExcelTitles::s_resourcNames.insert(key, QStringLiteral("Of a resource %1").arg(key));
    for (int key = 0; key < 5; ++key)
        ExcelTitles::s_workAssignNames.insert(key, QStringLiteral("Of an assignment %1").arg(key));
    int sheet = 0;
    for (const auto &titles :
         {RowColumnData::s_columnNames, ExcelTitles::s_resourcNames, ExcelTitles::s_workAssignNames}) {
        for (const QString &title : titles)
            exceltitles::workbookTitles(exceltitles::Sheet(sheet)).append(new ExcelData{0, -1, title});
        ++sheet;
    }
    XLSDataEngine engine(document.get());
    bool isWhole = true;
    measure("xls: plan, export", shape.tasks,
            [&] { isWhole = engine.exportData(QFile::decodeName(path)) && isWhole; });
    measure("xls: plan, import", shape.tasks,
            [&] { isWhole = engine.importData(QFile::decodeName(path)) && isWhole; });
    if (!isWhole || document->taskCount() != shape.tasks)
        std::printf("not the whole plan: %s\n", qPrintable(engine.findings().list().value(0).what));
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const std::string operation = argc > 1 ? argv[1] : "all";
    QTemporaryDir folder;
    const QByteArray path = (argc > 2 ? QByteArray(argv[2]) : folder.path().toLocal8Bit()) + "/bench.xls";
    if (operation == "write" || operation == "all")
        measure("xls: fill and write", rows, [&] { write(path); });
    std::size_t characters = 1;
    if (operation == "read" || operation == "all")
        measure("xls: read and visit every cell", rows, [&] { characters = read(path); });
    if (operation == "plan" || operation == "all")
        measurePlan(path);
    return characters == 0 ? 1 : 0;
}
