// Writes and reads project XML of a generated plan, beside bare passes of two XML libraries over the same
// bytes. The file that is read is as long as other planners make it: they write a hundred elements a task.
//
//   kwgantt_bench_mspdi [tasks]     that many alone; the memory is that of the whole run
#include "costs.h"
#include "exchange/MSPDIDataEngine.h"
#include "generator.h"
#include "model/kwdocument.h"
#include "report.h"
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <pugixml.hpp>
#include <sys/resource.h>

namespace {

void sayMemory(const char *when)
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("    (%s: the most memory so far is %ld MB)\n", when, usage.ru_maxrss / 1024);
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

// What other planners add to each task: values that nothing here has room for, and work by days.
QByteArray padding()
{
    QByteArray text;
    for (const char *name : {"EarlyStart", "EarlyFinish", "LateStart", "LateFinish", "Stop", "Resume"})
        text += QByteArray("<") + name + ">2026-01-05T08:00:00</" + name + ">\n   ";
    for (const char *name :
         {"ActualWork", "RemainingWork", "RegularWork", "RemainingDuration", "OvertimeWork"})
        text += QByteArray("<") + name + ">PT40H0M0S</" + name + ">\n   ";
    for (const char *name :
         {"OverAllocated", "Critical", "IsSubproject", "FreeSlack", "TotalSlack", "StartVariance",
          "FinishVariance", "WorkVariance", "ACWP", "LevelAssignments", "LevelingCanSplit",
          "IgnoreResourceCalendar", "HideBar", "Rollup", "BCWS", "BCWP", "EarnedValueMethod"})
        text += QByteArray("<") + name + ">0</" + name + ">\n   ";
    for (int day = 0; day < 4; ++day)
        text +=
            "<TimephasedData><Type>1</Type><UID>17</UID><Start>2026-01-05T08:00:00</Start>"
            "<Finish>2026-01-06T08:00:00</Finish><Unit>2</Unit><Value>PT8H0M0S</Value></TimephasedData>\n   ";
    return text;
}

int elementsThroughQt(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    int elements = 0;
    while (!reader.atEnd())
        elements += reader.readNext() == QXmlStreamReader::StartElement;
    return elements;
}

void measure(Report &report, int tasks)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plan.xml"));
    const QString foreign = folder.filePath(QStringLiteral("foreign.xml"));
    generator::Shape shape;
    shape.tasks = tasks;
    auto document = generator::document(generator::plan(shape), shape);
    constexpr int resources = 100;
    constexpr int perLeaf = 1;
    costs::assign(*document, resources, perLeaf);
    const auto nothing = [] {};
    bool isWhole = true;
    report.line("write", tasks, best(3, nothing, [&] {
                    isWhole = MSPDIDataEngine(document.get()).exportFile(path) && isWhole;
                }));
    document.reset();
    QByteArray bytes = bytesOf(path);
    bytes.replace("<Priority>", padding() + "<Priority>");
    QFile file(foreign);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    file.close();
    std::printf("    (%.1f MB written; %.1f MB to be read)\n", double(QFileInfo(path).size()) / 1e6,
                double(bytes.size()) / 1e6);
    bytes = QByteArray();
    std::unique_ptr<KWDocument> loaded;
    const auto fresh = [&] { loaded = std::make_unique<KWDocument>(); };
    sayMemory("before reading");
    report.line("read", tasks, best(3, fresh, [&] {
                    isWhole = MSPDIDataEngine(loaded.get()).importFile(foreign) && isWhole;
                }));
    sayMemory("after reading");
    loaded.reset();
    bytes = bytesOf(foreign);
    report.line("(pugixml) parse", tasks, best(3, nothing, [&] {
                    pugi::xml_document dom;
                    dom.load_buffer(bytes.constData(), std::size_t(bytes.size()));
                }));
    int elements = 0;
    report.line("(Qt's streams) pass", tasks,
                best(1, nothing, [&] { elements += elementsThroughQt(bytes); }));
    if (!isWhole)
        std::printf("    (something failed)\n");
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    Report report;
    if (argc > 1) {
        measure(report, std::atoi(argv[1]));
        return 0;
    }
    for (int tasks = 1000; tasks <= 100000; tasks *= 10)
        measure(report, tasks);
    return 0;
}
