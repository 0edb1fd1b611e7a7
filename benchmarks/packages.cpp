// Measures saving and loading packages of generated projects, beside the same data through the framework's
// own XML classes. A program of its own, so that the memory it reports is its own.
#include "costs.h"
#include "generator.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "model/kwdocument_xml.h"
#include "report.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <sys/resource.h>

namespace {

// The same calls as the library's sinks, over the framework's stream writer.
class QtSink
{
public:
    explicit QtSink(QIODevice &device)
        : m_writer(&device)
    {
        m_writer.setAutoFormatting(true);
        m_writer.writeStartDocument();
    }
    void open(const char *element) { m_writer.writeStartElement(QLatin1String(element)); }
    void close() { m_writer.writeEndElement(); }
    void attribute(const char *name, const QString &value)
    {
        m_writer.writeAttribute(QLatin1String(name), value);
    }
    void attribute(const char *name, qint32 value) { attribute(name, QString::number(value)); }
    void attribute(const char *name, quint32 value) { attribute(name, QString::number(value)); }
    void attribute(const char *name, bool value) { attribute(name, QString::number(int(value))); }
    void attribute(const char *name, double value) { attribute(name, QString::number(value, 'g', 17)); }
    void attribute(const char *name, const QList<quint32> &value)
    {
        attribute(name, optionsxml::text(value));
    }

private:
    QXmlStreamWriter m_writer;
};

// A package that holds nothing but the file.
void pack(const QString &folder, const QString &package)
{
    if (!KWZip::zip(package, folder))
        std::printf("    (not packed: %s)\n", qPrintable(KWZip::lastError()));
}

void saveThroughDom(const KWDocument &document, const QString &package)
{
    const QTemporaryDir folder;
    QDomDocument dom;
    QDomElement outside = dom.createElement(QStringLiteral("Package"));
    dom.appendChild(outside);
    DomSink sink(outside);
    documentxml::write(sink, document);
    QFile file(folder.filePath(QStringLiteral("document.xml")));
    file.open(QIODevice::WriteOnly);
    QTextStream stream(&file);
    dom.save(stream, 4);
    stream.flush();
    file.close();
    pack(folder.path(), package);
}

void loadThroughDom(const QString &package, KWDocument &document)
{
    const QTemporaryDir folder;
    KWZip::unZip(package, folder.path());
    QFile file(folder.filePath(QStringLiteral("document.xml")));
    file.open(QIODevice::ReadOnly);
    QDomDocument dom;
    dom.setContent(&file);
    DomSource root(dom.documentElement().firstChildElement());
    documentxml::read(root, document);
}

void saveThroughStream(const KWDocument &document, const QString &package)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("document.xml")));
    file.open(QIODevice::WriteOnly);
    QtSink sink(file);
    documentxml::write(sink, document);
    file.close();
    pack(folder.path(), package);
}

// Every attribute as a text; no task is made of them.
qint64 readThroughStream(const QString &package)
{
    const QTemporaryDir folder;
    KWZip::unZip(package, folder.path());
    QFile file(folder.filePath(QStringLiteral("document.xml")));
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader reader(&file);
    qint64 length = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes)
            length += attribute.value().toString().size();
    }
    return length;
}

void measureOne(Report &report, KWDocument &document, int tasks, const std::string &what)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plan.kwpx"));
    const auto nothing = [] {};
    report.line("save" + what, tasks, best(3, nothing, [&] { document.saveToKWGT(path, true, false); }));
    std::unique_ptr<KWDocument> loaded;
    const auto fresh = [&] { loaded = std::make_unique<KWDocument>(); };
    report.line("load" + what, tasks, best(3, fresh, [&] { loaded->loadFromKWGT(path); }));
    loaded.reset();
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("    (the package has %.1f MB; the most memory so far is %ld MB)\n",
                double(QFileInfo(path).size()) / 1e6, usage.ru_maxrss / 1024);
}

void measureOthers(Report &report, const KWDocument &document, int tasks)
{
    const QTemporaryDir folder;
    const QString other = folder.filePath(QStringLiteral("other.kwpx"));
    const auto nothing = [] {};
    std::unique_ptr<KWDocument> loaded;
    const auto fresh = [&] { loaded = std::make_unique<KWDocument>(); };
    report.line("(DOM) save", tasks, best(1, nothing, [&] { saveThroughDom(document, other); }));
    report.line("(DOM) load", tasks, best(1, fresh, [&] { loadThroughDom(other, *loaded); }));
    loaded.reset();
    report.line("(Qt's streams) save", tasks, best(1, nothing, [&] { saveThroughStream(document, other); }));
    qint64 length = 0;
    report.line("(Qt's streams) read", tasks, best(1, nothing, [&] { length += readThroughStream(other); }));
}

void measure(Report &report, int tasks)
{
    generator::Shape shape;
    shape.tasks = tasks;
    const auto document = generator::document(generator::plan(shape), shape);
    document->rowColumnData()->setRowHeightCount(document->taskCount());
    measureOne(report, *document, tasks, "");
    constexpr int resources = 100;
    constexpr int perLeaf = 2;
    costs::assign(*document, resources, perLeaf);
    measureOne(report, *document, tasks, ", 2 assignments a leaf");
    // Last, for their memory.
    measureOthers(report, *generator::document(generator::plan(shape), shape), tasks);
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const int largest = argc > 1 ? std::atoi(argv[1]) : 100000;
    Report report;
    for (int tasks = 1000; tasks <= largest; tasks *= 10)
        measure(report, tasks);
    return 0;
}
