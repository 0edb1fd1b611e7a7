// The chart as a picture.
#include "commands.h"
#include "datetext.h"
#include "export/ganttpdfexport.h"
#include "format/dataformat.h"
#include "format/unitutil.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "support/likeness.h"
#include "taskref.h"
#include "texts.h"
#include <QBuffer>
#include <QFileInfo>
#include <QRegularExpression>
#include <cmath>

namespace commands {

namespace {

constexpr unsigned int millimetre = 1;

// The column types behind the keys that other commands know.
struct ColumnKey
{
    const char *key;
    int type;
};
constexpr ColumnKey columnKeys[] = {{"number", columntypes::Id},
                                    {"id", columntypes::Id},
                                    {"name", columntypes::Name},
                                    {"start", columntypes::Start},
                                    {"finish", columntypes::Finish},
                                    {"duration", columntypes::Duration},
                                    {"done", columntypes::Percent},
                                    {"resources", columntypes::ResourceNames},
                                    {"links", columntypes::Hyperlinks},
                                    {"cost", columntypes::Cost},
                                    {"remaining", columntypes::RemainingCost},
                                    {"work", columntypes::Work},
                                    {"late-start", columntypes::LateStart},
                                    {"late-finish", columntypes::LateFinish},
                                    {"start-slack", columntypes::StartSlack},
                                    {"slack", columntypes::FinishSlack},
                                    {"critical", columntypes::Critical},
                                    {"notes", columntypes::Notes},
                                    {"base-start", columntypes::BaselineStart},
                                    {"base-finish", columntypes::BaselineFinish},
                                    {"base-cost", columntypes::BaselineCost},
                                    {"level", columntypes::Level},
                                    {"predecessors", columntypes::Predecessors}};
// Of a plan that has no table of its own.
const std::vector<int> standardTypes{columntypes::Id,     columntypes::Name,     columntypes::Start,
                                     columntypes::Finish, columntypes::Duration, columntypes::Percent};

bool fail(Console &console, const QString &what, const QString &hint = QString())
{
    console.error(what, hint);
    return false;
}

bool failValue(Console &console, const QString &value, const char *option, const QString &hint)
{
    return fail(console, t("'%1' is no value for '%2'").arg(value, QLatin1String(option)), hint);
}

bool chooseColumns(Console &console, const QStringList &keys, KWExportOptions &drawn)
{
    QStringList known;
    for (const ColumnKey &each : columnKeys)
        known.append(QLatin1String(each.key));
    for (const QString &key : keys) {
        const int at = known.indexOf(key.trimmed());
        if (at < 0) {
            const QString guess = likeness::nearest(key, known);
            return fail(console, t("no column '%1' can be drawn").arg(key),
                        guess.isEmpty() ? t("possible: %1").arg(known.join(QLatin1String(", ")))
                                        : t("did you mean '%1'?").arg(guess));
        }
        drawn.columns.push_back(columnKeys[at].type);
    }
    return true;
}

bool chooseRows(Console &console, const Plan &plan, KWExportOptions &drawn)
{
    const Options &options = console.options();
    drawn.onlyCritical = options.critical;
    drawn.depth = options.level;
    if (options.drawing.branch.isEmpty())
        return true;
    options::Fault fault;
    const int pos = taskref::find(plan, options.drawing.branch, fault);
    if (pos < 0)
        return fail(console, fault.what, fault.hint);
    drawn.branch = plan.task(pos)->ID;
    return true;
}

bool chooseDates(Console &console, KWExportOptions &drawn)
{
    const Options &options = console.options();
    drawn.trim = options.drawing.trim;
    if (options.range.isEmpty())
        return true;
    const int dots = options.range.indexOf(QLatin1String(".."));
    const QString first = dots < 0 ? options.range : options.range.left(dots);
    const QString last = dots < 0 ? options.range : options.range.mid(dots + 2);
    datetext::Moment from, to;
    if ((!first.isEmpty() && !datetext::parseMoment(first, from)) ||
        (!last.isEmpty() && !datetext::parseMoment(last, to)))
        return failValue(console, options.range, "--range", t("write it as 2026-02-01..2026-03-31"));
    drawn.from = from.date;
    drawn.to = to.date;
    return true;
}

void chooseScale(const Options &options, const Plan &plan, KWExportOptions &drawn)
{
    static const QStringList units{QStringLiteral("year"), QStringLiteral("quarter"), QStringLiteral("month"),
                                   QStringLiteral("week"), QStringLiteral("day"),     QStringLiteral("hour")};
    const int unit = units.indexOf(options.scale);
    if (unit >= 0 || options.drawing.unitWidth > 0) {
        drawn.scale = KWExportOptions::FixedScale;
        drawn.minorUnit = unit >= 0 ? unit : int(plan.document->getMinorUnit());
        drawn.unitWidth = options.drawing.unitWidth > 0 ? options.drawing.unitWidth : 60;
    } else if (options.scale == QLatin1String("auto") || !plan.isPackage) {
        drawn.scale = KWExportOptions::AutoScale;
    }
}

void chooseLook(const Options &options, KWExportOptions &drawn)
{
    static const QStringList themes{QStringLiteral("light"), QStringLiteral("dark"), QStringLiteral("print"),
                                    QStringLiteral("contrast")};
    static const QStringList labels{QStringLiteral("none"), QStringLiteral("name"),
                                    QStringLiteral("resources"), QStringLiteral("dates")};
    drawn.theme = KWExportOptions::Theme(qMax(0, themes.indexOf(options.drawing.theme)));
    if (!options.drawing.labels.isEmpty())
        drawn.labels = KWExportOptions::Labels(labels.indexOf(options.drawing.labels));
    const struct
    {
        const char *name;
        bool &part;
    } parts[] = {{"today", drawn.today},         {"baseline", drawn.baseline}, {"slack", drawn.slack},
                 {"critical", drawn.critical},   {"links", drawn.links},       {"legend", drawn.legend},
                 {"repeat", drawn.repeatColumns}};
    for (const auto &each : parts)
        each.part = !options.drawing.without.contains(QLatin1String(each.name));
    drawn.family = options.drawing.font;
    drawn.head = options.drawing.head;
    drawn.foot = options.drawing.foot;
    drawn.language = options.language;
    if (!options.now.isEmpty())
        drawn.now = KWClock::now();
}

// "297x210mm", "11 in": a number or two, and their unit.
bool readLengths(const QString &text, double &first, double &second)
{
    static const QRegularExpression form(QStringLiteral(
        "^\\s*([0-9.]+)\\s*(?:mm|cm|in|pt)?\\s*(?:[x,]\\s*([0-9.]+))?\\s*(mm|cm|in|pt)?\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return false;
    const QString unit = match.captured(3).isEmpty() ? text.right(2) : match.captured(3);
    const double factor = unit == QLatin1String("cm")   ? 10
                          : unit == QLatin1String("in") ? 25.4
                          : unit == QLatin1String("pt") ? 25.4 / 72
                                                        : 1;
    bool isFirst = false, isSecond = true;
    first = match.captured(1).toDouble(&isFirst) * factor;
    second = match.captured(2).isEmpty() ? first : match.captured(2).toDouble(&isSecond) * factor;
    return isFirst && isSecond;
}

bool choosePaper(Console &console, KWPrintConfig &config)
{
    const Options::Drawing &drawing = console.options().drawing;
    const struct
    {
        const char *name;
        double width, height; // millimetres
    } papers[] = {{"A0", 841, 1189},        {"A1", 594, 841},        {"A2", 420, 594},
                  {"A3", 297, 420},         {"A4", 210, 297},        {"A5", 148, 210},
                  {"LETTER", 215.9, 279.4}, {"LEGAL", 215.9, 355.6}, {"TABLOID", 279.4, 431.8}};
    if (!drawing.paper.isEmpty()) {
        double width = 0, height = 0;
        for (const auto &paper : papers) {
            if (drawing.paper.compare(QLatin1String(paper.name), Qt::CaseInsensitive) == 0) {
                width = paper.width;
                height = paper.height;
            }
        }
        const bool isNamed = width > 0;
        if (!isNamed && (!readLengths(drawing.paper, width, height) || !(width > 0 && height > 0)))
            return failValue(
                console, drawing.paper, "--paper",
                t("possible: %1").arg(QStringLiteral("A0..A5, LETTER, LEGAL, TABLOID, 297x210mm")));
        // The margins keep their length.
        config.Left = UnitUtil::pixelToUnit(UnitUtil::unitToPixel(config.Left, config.Unit), millimetre);
        config.Top = UnitUtil::pixelToUnit(UnitUtil::unitToPixel(config.Top, config.Unit), millimetre);
        config.Unit = millimetre;
        config.Width = width;
        config.Height = height;
        if (!isNamed)
            config.Portrait = width <= height;
    }
    if (drawing.portrait || drawing.landscape)
        config.Portrait = drawing.portrait;
    if (!drawing.margins.isEmpty()) {
        double left = 0, top = 0;
        if (!readLengths(drawing.margins, left, top))
            return failValue(console, drawing.margins, "--margins", t("write it as 20mm or 20,15mm"));
        config.Left = UnitUtil::pixelToUnit(UnitUtil::unitToPixel(left, millimetre), config.Unit);
        config.Top = UnitUtil::pixelToUnit(UnitUtil::unitToPixel(top, millimetre), config.Unit);
    }
    if (!drawing.fit.isEmpty()) {
        const QStringList counts = drawing.fit.toLower().split(QLatin1Char('x'));
        bool isAcross = false, isDown = false;
        const int across = counts.value(0).toInt(&isAcross), down = counts.value(1).toInt(&isDown);
        constexpr int most = 1000;
        if (counts.size() != 2 || !isAcross || !isDown || across < 1 || down < 1 || across > most ||
            down > most)
            return failValue(console, drawing.fit, "--fit",
                             t("write it as 3x2: three sheets across, two down"));
        config.FittoSheet = true;
        config.HSheet = qint16(across);
        config.VSheet = qint16(down);
    }
    if (drawing.zoom > 0) {
        config.FittoSheet = false;
        config.Zoom = drawing.zoom;
    }
    if (drawing.without.contains(QStringLiteral("background")))
        config.Background = false;
    if (drawing.foldMarks)
        config.Toggle = true;
    return true;
}

// One sheet across and as many down as it takes, where that can be read; else so many both ways that it can.
void fitReadably(GanttPdfExport &drawing, KWPrintConfig &config)
{
    constexpr double readable = 4.5, comfortable = 6; // points
    constexpr int most = 1000;
    config.FittoSheet = true;
    config.HSheet = config.VSheet = 1;
    if (drawing.smallestText() >= readable)
        return;
    config.VSheet = most;
    QSize sheets = drawing.sheetCounts();
    if (drawing.smallestText() < readable)
        sheets = drawing.sheetsForText(comfortable);
    config.HSheet = qint16(qBound(1, sheets.width(), most));
    config.VSheet = qint16(qBound(1, sheets.height(), most));
}

int cannotDraw(Console &console, const Plan &plan, const GanttPdfExport &drawing)
{
    console.endProgress();
    console.list(plan.file, drawing.findings());
    if (!GanttPdfExport::hasFonts())
        return Console::MachineLacks;
    return plan.document->visibleRowCount() == 0 ? Console::AnswerIsNo : Console::CannotWrite;
}

int preview(Console &console, const Plan &plan, GanttPdfExport &drawing)
{
    const int pages = drawing.pageCount();
    if (pages == 0)
        return cannotDraw(console, plan, drawing);
    const QSize sheets = drawing.sheetCounts();
    const QSizeF paper = drawing.pageSize();
    const double text = std::round(drawing.smallestText() * 10) / 10;
    // The name after -o says what would be drawn: nothing is written there.
    Options options = console.options();
    options.output.clear();
    console.follow(options);
    return written(console, (t("%1 of %2 x %3 mm, %4 across and %5 down; the smallest text is %6 points high")
                                 .arg(counted(pages, "%1 sheet", "%1 sheets"))
                                 .arg(paper.width())
                                 .arg(paper.height())
                                 .arg(sheets.width())
                                 .arg(sheets.height())
                                 .arg(text) +
                             QLatin1Char('\n'))
                                .toUtf8());
}

int draw(Console &console, const Plan &plan, GanttPdfExport &drawing)
{
    const Options &options = console.options();
    const double ratio = options.drawing.ratio > 0 ? options.drawing.ratio : 2;
    const bool toStandardOutput = options.output == QLatin1String("-");
    const QFileInfo target(options.output);
    if (!toStandardOutput && target.isFile() && !options.force) {
        console.error(t("%1: exists already and stays as it is").arg(options.output),
                      t("--force replaces it"));
        return Console::CannotWrite;
    }
    drawing.progress = [&console](int done, int total) {
        console.progress(t("drawing"), done, total);
        return true;
    };
    bool isDrawn = false;
    if (toStandardOutput || (target.exists() && !target.isFile())) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        isDrawn = options.format == Options::Pdf   ? drawing.writePdf(buffer)
                  : options.format == Options::Png ? drawing.writeImage(buffer, ratio)
                  : options.format == Options::Svg ? drawing.writeSvg(buffer)
                                                   : drawing.writeHtml(buffer);
        if (isDrawn) {
            Options whereTo = options;
            if (toStandardOutput)
                whereTo.output.clear();
            console.follow(whereTo);
            if (!console.write(bytes))
                return Console::CannotWrite;
        }
    } else {
        isDrawn = options.format == Options::Pdf   ? drawing.exportPdf(options.output)
                  : options.format == Options::Png ? drawing.exportImage(options.output, ratio)
                  : options.format == Options::Svg ? drawing.exportSvg(options.output)
                                                   : drawing.exportHtml(options.output);
    }
    if (!isDrawn)
        return cannotDraw(console, plan, drawing);
    console.endProgress();
    tell(console, plan, drawing.findings());
    return Console::Done;
}
}

int render(Console &console)
{
    const Options &options = console.options();
    const bool isPicture = options.format == Options::Pdf || options.format == Options::Png ||
                           options.format == Options::Svg || options.format == Options::Html;
    if (!options.drawing.preview && (options.output.isEmpty() || !isPicture)) {
        console.error(options.output.isEmpty() ? t("where shall the picture go?")
                                               : t("'%1' names no picture").arg(options.output),
                      t("-o OUT.pdf, OUT.png, OUT.svg or OUT.html; '-o -' with --to pdf|png|svg|html"));
        return Console::WrongUse;
    }
    Plan plan;
    if (const int code = loadPlan(console, options.arguments.first(), plan))
        return code;
    KWDocument &document = *plan.document;
    scheduleMissing(console, plan);
    if (plan.isPackage) {
        document.MajorUnit = plan.majorUnit;
        document.MinorUnit = plan.minorUnit;
        document.taskCollection()->updateRageAndTaskPoint();
    } else {
        plan::refresh(plan, progressOf(console));
    }
    if (document.fileName().isEmpty() && options.arguments.first() != QLatin1String("-"))
        document.setFileName(QFileInfo(options.arguments.first()).fileName());

    GanttPdfExport drawing(&document);
    KWExportOptions &drawn = drawing.options;
    if (!chooseColumns(console, options.columns, drawn) || !chooseRows(console, plan, drawn) ||
        !chooseDates(console, drawn) || !choosePaper(console, document.printConfig))
        return Console::WrongUse;
    chooseScale(options, plan, drawn);
    chooseLook(options, drawn);
    if (!plan.isPackage) {
        if (drawn.columns.empty())
            drawn.columns = standardTypes;
        // Most plans lie in one year, which then stands in the chart's head.
        const QDate first = KWTaskInfo::showDateTime(&document, plan::firstStart(plan), true).date();
        const QDate last = KWTaskInfo::showDateTime(&document, plan::lastFinish(plan), false).date();
        DataFormat::s_dateFormats.prepend(first.year() == last.year() ? QStringLiteral("dd MMM")
                                                                      : QStringLiteral("dd MMM yyyy"));
        DataFormat::s_deftDateFmt = 0;
    }
    drawn.fitColumns = !plan.isPackage || !options.columns.isEmpty();
    if (!options.drawing.dateFormat.isEmpty()) {
        DataFormat::s_dateFormats.prepend(options.drawing.dateFormat);
        DataFormat::s_deftDateFmt = 0;
    }
    const bool onPaper = options.drawing.preview || options.format == Options::Pdf;
    drawn.title = options.drawing.hasTitle ? options.drawing.title : onPaper ? plan.name : QString();
    if (onPaper && !plan.isPackage && options.drawing.fit.isEmpty() && options.drawing.zoom == 0)
        fitReadably(drawing, document.printConfig);
    return options.drawing.preview ? preview(console, plan, drawing) : draw(console, plan, drawing);
}
}
