#include "chart/layout.h"
#include "export/drawing.h"
#include "export/ganttpdfexport.h"
#include "export/pdfpacker.h"
#include "export/planview.h"
#include "export/printsheet.h"
#include "export/svgwriter.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "support/project.h"
#include "table/rowcolumndata.h"
#include <QBuffer>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <random>

namespace {

using testing::HasSubstr;

std::unique_ptr<Project> pumpProject()
{
    RowColumnData::s_columnNames = {{0, QStringLiteral("ID")},
                                    {1, QStringLiteral("Task")},
                                    {2, QStringLiteral("Start")},
                                    {3, QStringLiteral("Finish")},
                                    {7, QStringLiteral("Resources")}};
    auto project = std::make_unique<Project>(
        "Mon-Fri 8-12 13-17, start 2026-01-05, off 2026-01-14, work 2026-01-17 8-12 13-17",
        "Design\n"
        "  Requirements 2d 100%\n"
        "  Sketch 3d 40% after Requirements\n"
        "Order parts 2d after Requirements\n"
        "Build 5d after Sketch, Order parts\n"
        "Test 12h after Build\n"
        "Handover milestone after Test\n");
    project->schedule();
    return project;
}

QByteArray pdf(GanttPdfExport &drawing)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return drawing.writePdf(buffer) ? bytes : QByteArray();
}

// The objects that a file holds packed.
QByteArray unpacked(const QByteArray &file)
{
    QByteArray objects;
    for (int at = file.indexOf("/Type /ObjStm"); at >= 0; at = file.indexOf("/Type /ObjStm", at + 1)) {
        const int length = file.indexOf("/Length ", at) + 8, begin = file.indexOf("stream\n", at) + 7;
        const QByteArray size("\0\x10\0\0", 4);
        objects +=
            qUncompress(size + file.mid(begin, file.mid(length, file.indexOf(' ', length) - length).toInt()));
    }
    return objects;
}

QByteArray svg(GanttPdfExport &drawing)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return drawing.writeSvg(buffer) ? bytes : QByteArray();
}

std::string found(const GanttPdfExport &drawing)
{
    QString text;
    for (const Finding &each : drawing.findings().list())
        text += each.place + QLatin1String(": ") + each.what + QLatin1String("; ") + each.hint +
                QLatin1Char('\n');
    return text.toStdString();
}

// Tests draw only where the machine can.
class Export : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!GanttPdfExport::hasFonts())
            GTEST_SKIP() << "no font is installed";
        KWClock::set(QDateTime(QDate(2026, 1, 8), QTime(12, 30)));
        project = pumpProject();
    }
    void TearDown() override { KWClock::set(QDateTime()); }
    std::unique_ptr<Project> project;
};
}

TEST_F(Export, barsStandWhereHitsAreLookedFor)
{
    KWDocument &document = project->document();
    for (const quint32 minor :
         {0u, 1u, 2u, 3u}) { // day, hour, minute below the week; and a stored value past them
        document.MajorUnit = 3 - minor / 3;
        document.MinorUnit = minor % 3;
        document.UnitWidth = minor == 2 ? 1 : 60;
        document.taskCollection()->updateRageAndTaskPoint();
        KWExportOptions options;
        const chartstyle::Sheet sheet(chartstyle::Theme::Light, ThemePalette::builtIn().first());
        TextShaper shaper(chart::standardFonts(sheet), QString());
        PlanView view(document, options, shaper);
        view.loadAll();
        for (int row = 0; row < view.plan().rowCount; ++row) {
            const KWTaskInfo &task = *document.getTaskInfoByRow(row);
            const chart::Row &at = view.plan().at(row);
            EXPECT_EQ(at.x1, document.taskCollection()->getTaskPtBeginX(&task));
            EXPECT_EQ(at.x2, document.taskCollection()->getTaskPtEndX(&task));
            EXPECT_EQ(at.done, task.FirstWidth);
            EXPECT_EQ(at.top + at.height, document.getRowYByRow(row, false));
        }
        EXPECT_DOUBLE_EQ(view.plan().axis.width, document.taskCollection()->totalWidth());
        // Half of the working day is over: the line of today stands in the middle of its day.
        const double noon = document.taskCollection()->positionFromSecs(
            quint32(QDateTime(QDate(2026, 1, 8), QTime(12, 0)).toSecsSinceEpoch()));
        EXPECT_NEAR(view.positionOf(KWClock::now()), noon, 0.01);
    }
}

TEST_F(Export, writesTheSameBytesTwiceAndFollowsTheSourceDate)
{
    qputenv("SOURCE_DATE_EPOCH", "1767871800");
    KWDocument &document = project->document();
    GanttPdfExport one(&document), other(&document);
    const QByteArray first = pdf(one);
    KWClock::set(QDateTime(QDate(2026, 1, 12), QTime(9, 0)));
    EXPECT_EQ(first, pdf(other));
    EXPECT_EQ(svg(one), svg(other));
    EXPECT_TRUE(first.startsWith("%PDF-"));
    other.options.now = QDateTime(QDate(2026, 1, 12), QTime(9, 0));
    EXPECT_NE(first, pdf(other));
    qunsetenv("SOURCE_DATE_EPOCH");
}

// A stream may hold what looks like its end, and bytes come in pieces of any size.
TEST(PdfPacker, findsTheEndsOfStreams)
{
    const QByteArray content = "a\nendstream\nendobj\n3 0 obj\n   5\nendobj\nxref\n\nstream\n";
    const QByteArray file = "%PDF-1.5\n%\xb5\xed\n2 0 obj\n<< /Length 3 0 R\n >>\nstream\n" + content +
                            "\nendstream\nendobj\n3 0 obj\n   " + QByteArray::number(content.size()) +
                            "\nendobj\n1 0 obj\n<< /Type /Catalog >>\nendobj\nxref\n0 4\n...\ntrailer\n"
                            "<< /Size 4\n   /Root 1 0 R\n>>\nstartxref\n0\n%%EOF\n";
    const auto packed = [](const QByteArray &bytes, int piece) {
        QBuffer target;
        target.open(QIODevice::WriteOnly);
        PdfPacker packer(target);
        for (int at = 0; at < bytes.size(); at += piece)
            if (!packer.write(bytes.constData() + at, std::min(piece, bytes.size() - at)))
                return QByteArray();
        return packer.finish() ? target.data() : QByteArray();
    };
    const QByteArray whole = packed(file, file.size());
    EXPECT_EQ(whole.count(content + "\nendstream"), 1);
    EXPECT_TRUE(whole.contains("/Length " + QByteArray::number(content.size())) &&
                whole.contains("/Root 1 0 R"));
    EXPECT_TRUE(unpacked(whole).startsWith("1 0 << /Type /Catalog >>"));
    for (const int piece : {1, 2, 7, 60})
        EXPECT_EQ(packed(file, piece), whole) << piece;
    EXPECT_TRUE(packed(file.left(file.size() - 90), 7).isEmpty());
    EXPECT_TRUE(packed(QByteArray(file).replace("/Length 3", "/Longth 3"), 7).isEmpty());
}

TEST_F(Export, svgHoldsTextsAsTexts)
{
    project->task("Sketch").Name = QStringLiteral("<script>alert(1)</script> & \u7ed8\u56fe \x01");
    project->document().rowColumnData()->getColumnDataByName(QStringLiteral("Task"))->width = 400;
    auto *link = new KWHyperlink;
    link->type = 1;
    link->address = QStringLiteral("javascript:alert(1)");
    project->task("Build").hyperlinks.appendHyperlink(link);
    auto *web = new KWHyperlink;
    web->type = 3;
    web->address = QStringLiteral("example.org/a'b\"c");
    project->task("Test").hyperlinks.appendHyperlink(web);
    GanttPdfExport drawing(&project->document());
    const QByteArray sheets = PdfPacker::isOfUse() ? unpacked(pdf(drawing)) : pdf(drawing);
    EXPECT_EQ(sheets.count("/URI ("), 1);
    EXPECT_TRUE(sheets.contains("/URI (http://example.org/"));
    const QByteArray text = svg(drawing);
    QDomDocument parsed;
    ASSERT_TRUE(parsed.setContent(text));
    EXPECT_EQ(parsed.elementsByTagName(QStringLiteral("script")).size(), 0);
    QStringList words;
    const QDomNodeList texts = parsed.elementsByTagName(QStringLiteral("text"));
    for (int i = 0; i < texts.size(); ++i)
        words.append(texts.at(i).toElement().text().trimmed());
    for (const char *name :
         {"Design", "Requirements", "<script>alert(1)</script> & \u7ed8\u56fe", "Build", "Handover"})
        EXPECT_TRUE(words.contains(QString::fromUtf8(name))) << name;
    const QDomNodeList anchors = parsed.elementsByTagName(QStringLiteral("a"));
    ASSERT_EQ(anchors.size(), 1);
    EXPECT_TRUE(anchors.at(0)
                    .toElement()
                    .attribute(QStringLiteral("href"))
                    .startsWith(QLatin1String("http://example.org/")));
}

TEST_F(Export, legendSaysWhatOccurs)
{
    KWDocument &document = project->document();
    GanttPdfExport drawing(&document);
    const auto legend = [&] {
        QDomDocument parsed;
        parsed.setContent(svg(drawing));
        std::set<std::string> words;
        const QDomNodeList texts = parsed.elementsByTagName(QStringLiteral("text"));
        for (int i = 0; i < texts.size(); ++i)
            if (texts.at(i)
                    .toElement()
                    .attribute(QStringLiteral("class"))
                    .startsWith(QLatin1String("legend ")))
                words.insert(texts.at(i).toElement().text().toStdString());
        return words;
    };
    EXPECT_EQ(legend(), (std::set<std::string>{"done", "to do", "critical", "slack", "summary", "milestone",
                                               "link", "day off", "today"}));
    drawing.options.critical = drawing.options.slack = drawing.options.today = drawing.options.links = false;
    document.getTaskInfoByRow(1)->BaseStart = document.getTaskInfoByRow(1)->Start;
    document.getTaskInfoByRow(1)->BaseFinish = document.getTaskInfoByRow(1)->Finish;
    EXPECT_EQ(legend(),
              (std::set<std::string>{"done", "to do", "baseline", "summary", "milestone", "day off"}));
}

TEST_F(Export, aFailureLeavesTheOldFile)
{
    const QTemporaryDir folder;
    const QString path = folder.path() + QStringLiteral("/plan.pdf");
    QFile old(path);
    old.open(QIODevice::WriteOnly);
    old.write("old");
    old.close();
    GanttPdfExport drawing(&project->document());
    drawing.progress = [](int, int) { return false; };
    EXPECT_FALSE(drawing.exportPdf(path));
    EXPECT_THAT(found(drawing), HasSubstr("cancelled"));
    EXPECT_FALSE(drawing.exportImage(path));
    EXPECT_FALSE(drawing.exportSvg(path));
    drawing.progress = nullptr;
    EXPECT_FALSE(drawing.exportPdf(folder.path() + QStringLiteral("/none/plan.pdf")));
    old.open(QIODevice::ReadOnly);
    EXPECT_EQ(old.readAll(), "old");
    old.close();
    EXPECT_TRUE(drawing.exportPdf(path)) << found(drawing);
    KWDocument empty;
    GanttPdfExport nothing(&empty);
    EXPECT_FALSE(nothing.exportPdf(path));
    EXPECT_THAT(found(nothing), HasSubstr("no tasks"));
    old.open(QIODevice::ReadOnly);
    EXPECT_EQ(old.read(5), "%PDF-");
    drawing.options.scale = KWExportOptions::FixedScale;
    drawing.options.unitWidth = 9000;
    EXPECT_FALSE(drawing.exportImage(path, 4));
    EXPECT_THAT(found(drawing), HasSubstr("PDF"));
}

TEST_F(Export, printSetupDecidesTheSheets)
{
    KWDocument &document = project->document();
    GanttPdfExport drawing(&document);
    drawing.options.scale = KWExportOptions::FixedScale;
    KWPrintConfig &config = document.printConfig;
    struct Case
    {
        const char *name;
        std::function<void()> change;
        QSizeF paper; // millimetres
        QSize sheets;
        const char *finding;
    };
    const KWPrintConfig usual;
    const std::vector<Case> cases{
        {"landscape", [] {}, {297, 210}, {1, 1}, ""},
        {"portrait whatever the order",
         [&] {
             config.Portrait = true;
             std::swap(config.Width, config.Height);
         },
         {210, 297},
         {1, 1},
         ""},
        {"inches",
         [&] {
             config.Unit = 5;
             config.Width = 8.5;
             config.Height = 11;
             config.Left = config.Top = 1;
         },
         {279.4, 215.9},
         {1, 1},
         ""},
        {"no margin left", [&] { config.Left = 140; }, {297, 210}, {1, 1}, "less than 20 mm"},
        {"margin outside", [&] { config.Top = -5; }, {297, 210}, {1, 1}, "less than 20 mm"},
        {"no paper", [&] { config.Width = 0; }, {297, 210}, {1, 1}, "A4"},
        {"0 sheets",
         [&] {
             config.HSheet = 0;
             config.VSheet = -3;
         },
         {297, 210},
         {1, 1},
         ""},
        {"zoom",
         [&] {
             config.FittoSheet = false;
             config.Zoom = 200;
         },
         {297, 210},
         {5, 1},
         ""},
        {"zoom past its limit",
         [&] {
             config.FittoSheet = false;
             config.Zoom = 1;
         },
         {297, 210},
         {1, 1},
         "sheets"}};
    for (const Case &each : cases) {
        config = usual;
        each.change();
        const QByteArray bytes = pdf(drawing);
        EXPECT_FALSE(bytes.isEmpty()) << each.name;
        EXPECT_THAT(found(drawing), HasSubstr(each.finding)) << each.name;
        EXPECT_NEAR(drawing.pageSize().width(), each.paper.width(), 0.1) << each.name;
        EXPECT_NEAR(drawing.pageSize().height(), each.paper.height(), 0.1) << each.name;
        const QSize sheets = drawing.sheetCounts();
        EXPECT_EQ(sheets, each.sheets) << each.name << ": " << sheets.width() << " x " << sheets.height();
        EXPECT_EQ(drawing.pageCount(), sheets.width() * sheets.height());
        EXPECT_FALSE(drawing.pageImage(drawing.pageCount() - 1, 40).isNull());
        EXPECT_TRUE(drawing.pageImage(drawing.pageCount(), 40).isNull());
    }
}

TEST_F(Export, optionsComeBackFromTheirXml)
{
    KWExportOptions options;
    options.columns = {1, 2, 24};
    options.theme = KWExportOptions::Contrast;
    options.labels = KWExportOptions::DateLabels;
    options.legend = false;
    options.depth = 3;
    options.from = QDate(2026, 1, 2);
    options.title = QStringLiteral("<&[Page]>");
    QDomDocument xml;
    QDomElement root = xml.createElement(QStringLiteral("Host"));
    xml.appendChild(root);
    options.saveTo(root);
    KWExportOptions read;
    read.parse(root);
    QDomElement again = xml.createElement(QStringLiteral("Host"));
    read.saveTo(again);
    const auto text = [](const QDomElement &element) {
        std::map<QString, QString> values;
        const QDomNamedNodeMap attributes = element.firstChildElement().attributes();
        for (int i = 0; i < attributes.size(); ++i)
            values[attributes.item(i).nodeName()] = attributes.item(i).nodeValue();
        return values;
    };
    EXPECT_EQ(text(root), text(again));
    root.firstChildElement().setAttribute(QStringLiteral("Theme"), 99);
    read.parse(root);
    EXPECT_EQ(read.theme, KWExportOptions::Contrast);
}

// Pixels only confirm that the painter does what the marks say.
TEST_F(Export, paintsTheSamePartOnAScreen)
{
    KWDocument &document = project->document();
    document.UnitWidth = 60;
    document.MajorUnit = 3;
    document.MinorUnit = 0;
    document.taskCollection()->updateRageAndTaskPoint();
    GanttPdfExport drawing(&document);
    drawing.options.labels = KWExportOptions::NoLabels;
    QImage image(900, 250, QImage::Format_RGB32);
    ASSERT_TRUE(drawing.paint(image, QRectF(0, 0, 900, 250), 1)) << found(drawing);
    const KWTaskInfo &task = *document.getTaskInfoByRow(1);
    const chartstyle::Sheet sheet(chartstyle::Theme::Light, ThemePalette::builtIn().first());
    EXPECT_EQ(image.pixelColor(int(task.x1 + task.x2) / 2, int(task.y1) + 7),
              sheet.color(chartstyle::Role::CriticalDone));
    const int saturday = int(document.taskCollection()->positionFromSecs(
        quint32(QDateTime(QDate(2026, 1, 10), QTime(12, 0)).toSecsSinceEpoch())));
    EXPECT_EQ(image.pixelColor(saturday, 225), sheet.color(chartstyle::Role::DayOff));
    EXPECT_EQ(image.pixelColor(saturday - 180, 225), sheet.color(chartstyle::Role::Paper));
    // A holiday, and the Saturday that is worked instead.
    EXPECT_EQ(image.pixelColor(saturday + 4 * 60, 225), sheet.color(chartstyle::Role::DayOff));
    EXPECT_EQ(image.pixelColor(saturday + 7 * 60, 225), sheet.color(chartstyle::Role::Paper));
    // The same part further down and to the right.
    QImage part(300, 100, QImage::Format_RGB32);
    ASSERT_TRUE(drawing.paint(part, QRectF(200, 100, 300, 100), 1));
    const QImage same = image.copy(200, 100, 300, 100);
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 300; ++x)
            ASSERT_EQ(part.pixelColor(x, y).name(), same.pixelColor(x, y).name()) << x << ", " << y;
}

TEST_F(Export, outlinesHaveAnyDepth)
{
    constexpr int depth = 20000;
    KWDocument document;
    for (int i = 1; i <= depth; ++i) {
        auto *task = new KWTaskInfo;
        task->ID = quint32(i);
        task->ParentID = quint32(i - 1);
        task->Level = i;
        task->Name = QStringLiteral("Level");
        task->Start = 1767600000;
        task->Finish = task->Start + 86400;
        if (i < depth)
            task->Childs.append(quint32(i + 1));
        document.appendTaskInfoList(task);
    }
    GanttPdfExport drawing(&document);
    drawing.options.columns = {1};
    document.printConfig.FittoSheet = false;
    document.printConfig.Zoom = 10;
    EXPECT_TRUE(pdf(drawing).contains("%%EOF")) << found(drawing);
    for (KWTaskInfo *task : document.taskList())
        task->HideID = 1;
    EXPECT_TRUE(pdf(drawing).isEmpty());
    EXPECT_THAT(found(drawing), HasSubstr("no task is shown"));
}

TEST_F(Export, oddPlansAndOptionsAreDrawnOrRefused)
{
    std::mt19937 random(5);
    const auto upTo = [&](int most) { return int(random() % unsigned(most + 1)); };
    const QString names[] = {QString(10000, QLatin1Char('w')),
                             QStringLiteral("\x01\x02\n\t"),
                             QString(),
                             QStringLiteral("\u0639\u0631\u0628\u064a \u202e abc"),
                             QString(QChar(0xd800)),
                             QString(300, QChar(0x0301)),
                             QStringLiteral("\u7ed8\u56fe \U0001F600 a")};
    for (int run = 0; run < 60; ++run) {
        KWDocument document;
        const int count = upTo(run % 10 == 0 ? 400 : 30);
        for (int i = 0; i < count; ++i) {
            auto *task = new KWTaskInfo;
            task->ID = quint32(i + 1);
            task->Name = names[std::size_t(upTo(6))];
            task->Resources = names[std::size_t(upTo(6))];
            task->Start = upTo(9) ? 1767600000u + quint32(upTo(100)) * 43200u : quint32(random());
            task->Finish = upTo(9) ? task->Start + quint32(upTo(60)) * 43200u : quint32(random());
            task->LateFinish = upTo(2) ? task->Finish + quint32(upTo(9)) * 86400u : 0;
            task->BaseStart = upTo(3) ? 0 : quint32(random());
            task->BaseFinish = upTo(3) ? 0 : quint32(random());
            task->Percent = upTo(4) / 4.0;
            task->Milestone = upTo(5) == 0;
            task->CriticalPath = upTo(2) == 0;
            task->Level = upTo(20) ? 1 + upTo(12) : int(random());
            task->HideID = upTo(9) ? 0 : 1;
            if (i > 0 && upTo(2) == 0) {
                task->Predecessors.append(quint32(1 + upTo(i)));
                document
                    .getTaskInfoByID(task->Predecessors.first() > quint32(i) ? 1 : task->Predecessors.first())
                    ->Depends.append(task->ID);
            }
            if (upTo(6) == 0)
                task->Childs.append(quint32(upTo(count)));
            document.appendTaskInfoList(task);
        }
        QList<double> heights;
        for (int i = 0; i < count; ++i)
            heights.append(upTo(6) ? 30 : upTo(3) * 1000 - 10);
        document.rowColumnData()->setRowHeights(heights);
        document.MajorUnit = quint32(upTo(4));
        document.MinorUnit = quint32(upTo(4));
        document.UnitWidth = upTo(5) ? 20 : upTo(2) - 1;
        if (upTo(3))
            document.taskCollection()->updateRageAndTaskPoint();
        document.printConfig.FittoSheet = upTo(2);
        document.printConfig.HSheet = qint16(upTo(3));
        document.printConfig.VSheet = qint16(upTo(3));
        document.printConfig.Zoom = upTo(300) - 10;
        document.printConfig.Toggle = upTo(1);
        document.printConfig.Background = upTo(1);
        GanttPdfExport drawing(&document);
        KWExportOptions &options = drawing.options;
        options.theme = KWExportOptions::Theme(upTo(3));
        options.labels = KWExportOptions::Labels(upTo(3));
        options.scale = upTo(3) == 0 ? KWExportOptions::DocumentScale : KWExportOptions::AutoScale;
        options.depth = upTo(3);
        options.onlyCritical = upTo(4) == 0;
        options.branch = upTo(4) ? 0 : quint32(upTo(count));
        options.onlyTasks = upTo(3) == 0;
        for (int i = upTo(8); i > 0; --i)
            options.tasks.push_back(quint32(upTo(count + 2)));
        options.trim = upTo(1);
        options.fitColumns = upTo(1);
        options.highlight = upTo(1);
        if (upTo(5) == 0)
            options.from = QDate(2026, 2, 1);
        QByteArray bytes;
        // What takes very many sheets is not worth the wait.
        const int pages = drawing.pageCount();
        if (pages > 0 && pages < 40) {
            EXPECT_TRUE(pdf(drawing).contains("%%EOF")) << "run " << run << ": " << found(drawing);
        } else if (pages == 0) {
            EXPECT_NE(found(drawing), "") << "run " << run;
        }
        QImage image(400, 300, QImage::Format_RGB32);
        EXPECT_TRUE(drawing.paint(image, QRectF(-200 + upTo(900), upTo(2000), 200, 150), 2)) << "run " << run;
        if (run % 4 == 0) {
            const QByteArray text = svg(drawing);
            QDomDocument parsed;
            EXPECT_TRUE(text.isEmpty() ? !found(drawing).empty() : parsed.setContent(text)) << "run " << run;
        }
    }
}
