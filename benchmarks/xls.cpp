// Writes and reads a workbook as large as its format allows, on one core.
//
// Every line gives the best of several runs and the most memory the process has held so far; run one
// operation at a time to see its own:  kwgantt_bench_xls write | read  [folder]
#include "exchange/BasicExcel.h"
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <string>
#include <sys/resource.h>

namespace {

constexpr int rows = 65000;
constexpr int columns = 12;
constexpr int runs = 5;

double best(const std::function<void()> &work)
{
    double least = 1e9;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        least = std::min(least, double(timer.nsecsElapsed()) * 1e-9);
    }
    return least;
}

void report(const char *name, double seconds)
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%-34s %8d x %d %9.3f s %6ld MB at most\n", name, rows, columns, seconds,
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
}

int main(int argc, char **argv)
{
    const std::string operation = argc > 1 ? argv[1] : "both";
    QTemporaryDir folder;
    const QByteArray path = (argc > 2 ? QByteArray(argv[2]) : folder.path().toLocal8Bit()) + "/bench.xls";
    if (operation != "read")
        report("xls: fill and write", best([&] { write(path); }));
    size_t characters = 0;
    if (operation != "write")
        report("xls: read and visit every cell", best([&] { characters = read(path); }));
    return operation != "write" && characters == 0 ? 1 : 0;
}
