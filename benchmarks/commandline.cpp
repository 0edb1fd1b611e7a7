// Times the program as people run it, each command in a process of its own: time on the wall, processor time
// and the most memory, beside the bare work that is in it, measured in the same run.
//
//   kwgantt_bench_commandline KWGANTT [TASKS [RUNS]] [--json]
#include "exchange/CSVDataEngine.h"
#include "exchange/XLSXDataEngine.h"
#include "generator.h"
#include "kernel.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "plantitles.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <chrono>
#include <fcntl.h>
#include <pugixml.hpp>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// ---- The bare work ----------------------------------------------------------------------------------------

// Cuts a file of rows into cells and reads the numbers among them; keeps nothing.
quint64 cutCells(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    quint64 sum = 0;
    quint64 number = 0;
    bool isQuoted = false;
    for (const char sign : bytes) {
        if (sign == '"')
            isQuoted = !isQuoted;
        else if (sign >= '0' && sign <= '9')
            number = number * 10 + quint64(sign - '0');
        else if (!isQuoted && (sign == ',' || sign == '\n'))
            sum += std::exchange(number, 0);
    }
    return sum;
}

// Unpacks an archive and parses its parts with an XML library that is made for speed.
quint64 unpackAndParse(const QString &archive, const QStringList &parts)
{
    const QTemporaryDir folder;
    KWZip::unZip(archive, folder.path());
    quint64 sum = 0;
    for (const QString &part : parts) {
        pugi::xml_document document;
        sum += document.load_file(folder.filePath(part).toUtf8().constData()) ? 1 : 0;
    }
    return sum;
}

struct Floors
{
    double cut = 0;      // cells of the rows
    double schedule = 0; // on plain arrays
    double unpack = 0;   // and parse a package
    double unpackBook = 0;
    double pack = 0; // the package's parts, written already
};

Floors measureFloors(const QDir &folder, const generator::Plan &plan, const generator::Shape &shape)
{
    const auto nothing = [] {};
    const QTemporaryDir unpacked;
    KWZip::unZip(folder.filePath(QStringLiteral("plan.kwpx")), unpacked.path());
    quint64 sum = 0;
    Floors floors;
    floors.cut = best(3, nothing, [&] { sum += cutCells(folder.filePath(QStringLiteral("plan.csv"))); });
    floors.schedule = best(3, nothing, [&] { sum += kernel::reschedule(plan, shape).checksum; });
    floors.unpack = best(3, nothing, [&] {
        sum += unpackAndParse(folder.filePath(QStringLiteral("plan.kwpx")), {QStringLiteral("document.xml")});
    });
    floors.unpackBook = best(3, nothing, [&] {
        sum += unpackAndParse(
            folder.filePath(QStringLiteral("plan.xlsx")),
            {QStringLiteral("xl/sharedStrings.xml"), QStringLiteral("xl/worksheets/sheet1.xml")});
    });
    floors.pack = best(3, nothing, [&] {
        sum += KWZip::zip(folder.filePath(QStringLiteral("again.kwpx")), unpacked.path()) ? 1 : 0;
    });
    if (sum == 42)
        std::printf(" ");
    return floors;
}

// ---- The program ------------------------------------------------------------------------------------------

struct Cost
{
    double wall = 0;
    double processor = 0;
    double megabytes = 0;
    bool isSound = false;
};

// Runs a command; where the reader goes after so many lines, the program is to end.
Cost run(const QString &program, const QDir &folder, const QStringList &arguments, int lines)
{
    std::vector<QByteArray> words{program.toUtf8()};
    for (const QString &argument : arguments)
        words.push_back(argument.toUtf8());
    std::vector<char *> argv;
    for (QByteArray &word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    int ends[2] = {-1, -1};
    if (lines > 0 && pipe(ends) != 0)
        return {};
    const auto begun = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(lines > 0 ? ends[1] : nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        if (lines > 0)
            close(ends[0]);
        if (chdir(folder.path().toUtf8().constData()) == 0)
            execv(argv[0], argv.data());
        _exit(127);
    }
    if (lines > 0) {
        close(ends[1]);
        char sign = 0;
        for (int left = lines; left > 0 && read(ends[0], &sign, 1) == 1;)
            left -= sign == '\n';
        close(ends[0]);
    }
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begun;
    const auto seconds = [](const timeval &time) {
        return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
    };
    const bool isSound = lines > 0 ? WIFSIGNALED(status) : WIFEXITED(status) && WEXITSTATUS(status) <= 1;
    return {taken.count(), seconds(usage.ru_utime) + seconds(usage.ru_stime), double(usage.ru_maxrss) / 1024,
            isSound};
}

struct Row
{
    const char *name;
    QStringList arguments;
    double floor;
    int lines = 0; // of the output that are read; 0: all
};

Cost medianOf(std::vector<Cost> costs)
{
    std::sort(costs.begin(), costs.end(),
              [](const Cost &a, const Cost &b) { return a.processor < b.processor; });
    Cost median = costs[costs.size() / 2];
    for (const Cost &cost : costs)
        median.isSound = median.isSound && cost.isSound;
    return median;
}

void writeRows(const QString &path, const std::function<QByteArray(int)> &row, int rows)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write("ID,Level,Name,Duration,Predecessors\n");
    for (int i = 1; i <= rows; ++i)
        file.write(row(i));
}

// The plan in all formats, the same plan with one task renamed, and plans of other shapes.
void writePlans(const QDir &folder, const generator::Plan &plan, const generator::Shape &shape)
{
    const auto document = generator::document(plan, shape);
    document->rowColumnData()->setRowHeightCount(document->taskCount());
    document->taskCollection()->pushAllSuccessors();
    document->taskCollection()->updateOptionTaskTime();
    document->updateAllTaskEarlyLate();
    CSVDataEngine(document.get()).exportFile(folder.filePath(QStringLiteral("plan.csv")));
    document->saveToKWGT(folder.filePath(QStringLiteral("plan.kwpx")), true, false);
    XLSXDataEngine(document.get()).exportFile(folder.filePath(QStringLiteral("plan.xlsx")));
    document->getTaskInfoAt(document->taskCount() / 2)->Name += QLatin1Char('x');
    CSVDataEngine(document.get()).exportFile(folder.filePath(QStringLiteral("other.csv")));
    const auto named = [](int i, int level, const QByteArray &predecessors) {
        const QByteArray number = QByteArray::number(i);
        return number + ',' + QByteArray::number(level) + ",Task " + number + ",1d," + predecessors + '\n';
    };
    writeRows(
        folder.filePath(QStringLiteral("flat.csv")), [&](int i) { return named(i, 1, {}); }, shape.tasks);
    writeRows(
        folder.filePath(QStringLiteral("one.csv")), [&](int i) { return named(i, i == 1 ? 1 : 2, {}); },
        shape.tasks);
    constexpr int each = 300;
    writeRows(
        folder.filePath(QStringLiteral("many.csv")),
        [&](int i) {
            QByteArrayList before;
            for (int other = std::max(1, i - each); other < i; ++other)
                before.append(QByteArray::number(other));
            return named(i, 1, before.join(';'));
        },
        shape.tasks * 3 / 100);
}

std::vector<Row> rowsOf(const Floors &floors)
{
    const auto words = [](const char *text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); };
    return {
        {"schedule plan.csv", words("schedule plan.csv"), floors.cut + floors.schedule},
        {"schedule plan.csv --csv", words("schedule plan.csv --csv"), floors.cut + floors.schedule},
        {"load plan.csv", words("load plan.csv"), floors.cut},
        {"show plan.csv | head -40", words("show plan.csv"), floors.cut, 40},
        {"diff plan.csv other.csv", words("diff plan.csv other.csv"), 2 * floors.cut},
        {"edit plan.kwpx set ...", words("edit plan.kwpx set 500 percent=50 -o edited.kwpx --force"),
         floors.unpack + floors.pack},
        {"convert csv -> kwpx", words("convert plan.csv out.kwpx --force"), floors.cut + floors.pack},
        {"convert kwpx -> csv", words("convert plan.kwpx out.csv --force"), floors.unpack},
        {"convert xlsx -> kwpx", words("convert plan.xlsx out2.kwpx --force"),
         floors.unpackBook + floors.pack},
        {"load plan.kwpx", words("load plan.kwpx"), floors.unpack},
        {"load flat.csv", words("load flat.csv"), 0},
        {"load one.csv (one summary)", words("load one.csv"), 0},
        {"load many.csv (300 links each)", words("load many.csv"), 0},
        {"schedule many.csv", words("schedule many.csv"), 0},
    };
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QStringList arguments = application.arguments().mid(1);
    const bool isJson = arguments.removeAll(QStringLiteral("--json")) > 0;
    if (arguments.isEmpty()) {
        std::fprintf(stderr, "kwgantt_bench_commandline KWGANTT [TASKS [RUNS]] [--json]\n");
        return 2;
    }
    plantitles::fill();
    const QString program = QFileInfo(arguments.first()).absoluteFilePath();
    const int runs = std::max(1, arguments.value(2, QStringLiteral("5")).toInt());
    generator::Shape shape;
    shape.tasks = std::max(100, arguments.value(1, QStringLiteral("100000")).toInt());
    shape.years = 40;
    const generator::Plan plan = generator::plan(shape);
    const QTemporaryDir temporary;
    const QDir folder(temporary.path());
    writePlans(folder, plan, shape);
    const std::vector<Row> rows = rowsOf(measureFloors(folder, plan, shape));

    if (isJson)
        std::printf("{\"tasks\": %d, \"runs\": %d, \"rows\": [", shape.tasks, runs);
    else
        std::printf("%d tasks, medians of %d\n%-32s %8s %8s %7s %8s %6s\n", shape.tasks, runs, "", "wall s",
                    "cpu s", "MB", "floor s", "ratio");
    bool isSound = true;
    for (const Row &row : rows) {
        std::vector<Cost> costs;
        for (int i = 0; i < runs; ++i)
            costs.push_back(run(program, folder, row.arguments, row.lines));
        const Cost cost = medianOf(costs);
        isSound = isSound && cost.isSound;
        const double ratio = row.floor > 0 ? cost.processor / row.floor : 0;
        if (isJson)
            std::printf(
                "%s\n  {\"name\": \"%s\", \"wall\": %.3f, \"cpu\": %.3f, \"mb\": %.1f, \"floor\": %.4f, "
                "\"ratio\": %.2f}",
                &row == &rows.front() ? "" : ",", row.name, cost.wall, cost.processor, cost.megabytes,
                row.floor, ratio);
        else if (row.floor > 0)
            std::printf("%-32s %8.2f %8.2f %7.0f %8.3f %6.1f%s\n", row.name, cost.wall, cost.processor,
                        cost.megabytes, row.floor, ratio, cost.isSound ? "" : "  FAILED");
        else
            std::printf("%-32s %8.2f %8.2f %7.0f%s\n", row.name, cost.wall, cost.processor, cost.megabytes,
                        cost.isSound ? "" : "  FAILED");
        std::fflush(stdout);
    }
    if (isJson)
        std::printf("\n]}\n");
    return isSound ? 0 : 1;
}
