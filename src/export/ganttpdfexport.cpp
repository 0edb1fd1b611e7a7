// Preparing a picture, and its sheets.
#include "export/ganttpdfexport.h"
#include "chart/elide.h"
#include "export/cairopainter.h"
#include "export/drawing.h"
#include "export/pdfpacker.h"
#include "format/unitutil.h"
#include "model/kwdocument.h"
#include "schedule/kwtaskcollection.h"
#include "support/atomicfile.h"
#include "support/kwclock.h"
#include "support/said.h"
#include <QFileInfo>
#include <algorithm>
#include <cairo-pdf.h>
#include <cmath>

namespace {

constexpr double pointsPerPixel = 0.75;
constexpr double readableText = 4.5;  // points
constexpr double comfortableText = 6; // points

chartstyle::Sheet styleOf(const KWDocument &document, const KWExportOptions &options)
{
    const QList<KWDocument::ThemeColor> &palettes = document.themeColors();
    const ThemePalette spare = ThemePalette::builtIn().first();
    const bool isKnown = document.ThemeIndex >= 0 && document.ThemeIndex < palettes.size();
    const ThemePalette palette = palettes.isEmpty() ? spare : palettes.at(isKnown ? document.ThemeIndex : 0);
    return chartstyle::Sheet(chartstyle::Theme(options.theme), palette, options.family);
}

// Of the texts of the chart itself.
double smallestPoints(const chart::Plan &plan)
{
    double least = chart::nowhere;
    for (const int font : {chart::CellFont, chart::AxisFont, chart::LabelFont})
        least = std::min(least, plan.fonts[std::size_t(font)].pointSize);
    return least;
}

QString points(double size)
{
    return QString::number(std::round(size * 10) / 10);
}
}

GanttPdfExport::Drawing::Drawing(KWDocument &document, const KWExportOptions &options,
                                 const chartstyle::Sheet &sheet)
    : style(sheet)
    , shaper(chart::standardFonts(sheet), options.family)
    , view(document, options, shaper)
{
}

struct GanttPdfExport::Screen
{
    QByteArray madeFrom;
    chartstyle::Sheet style;
    TextShaper shaper;
};

GanttPdfExport::GanttPdfExport(KWDocument *document)
    : m_document(document)
{
}

GanttPdfExport::~GanttPdfExport() = default;

QDateTime GanttPdfExport::epochStamp()
{
    bool ok = false;
    const qint64 secs = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&ok);
    constexpr qint64 most = 253402300799; // the year 9999
    return ok && secs >= 0 && secs <= most ? QDateTime::fromSecsSinceEpoch(secs, Qt::UTC) : QDateTime();
}

QDateTime GanttPdfExport::stamp() const
{
    if (options.stamp.isValid())
        return options.stamp;
    // The same clock time in every zone, so that the same plan gives the same picture.
    const QDateTime epoch = epochStamp();
    return epoch.isValid() ? QDateTime(epoch.date(), epoch.time()) : KWClock::now();
}

QString GanttPdfExport::filled(QString text, int page, int pages) const
{
    // The title's own signs are not looked at again.
    const QString title = text == options.title ? QString() : options.title;
    const std::pair<const char *, QString> signs[] = {{"&[Page]", QString::number(page)},
                                                      {"&[Pages]", QString::number(pages)},
                                                      {"&[Date]", stamp().date().toString(Qt::ISODate)},
                                                      {"&[File]", m_document->fileSaveName().isEmpty()
                                                                      ? m_document->fileName()
                                                                      : m_document->fileSaveName()},
                                                      {"&[Title]", title}};
    for (const auto &[sign, meaning] : signs)
        text.replace(QLatin1String(sign), meaning);
    return text;
}

bool GanttPdfExport::isCancelled(int done, int total)
{
    if (!progress || progress(done, total))
        return false;
    m_findings.add(QString(), KW_TEXT("cancelled: nothing was written"));
    return true;
}

bool GanttPdfExport::canDraw()
{
    if (!m_document || !m_document->taskCollection() || !m_document->rowColumnData()) {
        m_findings.add(QString(), KW_TEXT("there is no plan to draw"));
        return false;
    }
    if (TextShaper::hasFonts())
        return true;
    m_findings.add(QString(), KW_TEXT("no font is installed: nothing can be drawn"),
                   KW_TEXT("the package fonts-dejavu-core brings some"));
    return false;
}

void GanttPdfExport::setToday(PlanView &view) const
{
    if (!options.today)
        return;
    const double x = view.positionOf(options.now.isValid() ? options.now : stamp());
    if (x > 0 && x < view.plan().axis.width)
        view.plan().today = x;
}

std::unique_ptr<GanttPdfExport::Drawing> GanttPdfExport::prepare()
{
    m_findings.clear();
    if (!canDraw())
        return nullptr;
    auto drawing = std::make_unique<Drawing>(*m_document, options, styleOf(*m_document, options));
    if (drawing->plan().rowCount == 0) {
        m_findings.add(QString(), m_document->taskCount() == 0
                                      ? KW_TEXT("the plan has no tasks: there is nothing to draw")
                                      : KW_TEXT("no task is shown: there is nothing to draw"));
        return nullptr;
    }
    setToday(drawing->view);
    return drawing;
}

std::unique_ptr<GanttPdfExport::Drawing> GanttPdfExport::prepareSheets()
{
    std::unique_ptr<Drawing> drawing = prepare();
    if (!drawing)
        return nullptr;
    PlanView &view = drawing->view;
    chart::Plan &plan = view.plan();
    const KWPrintConfig &config = m_document->printConfig;
    plan.showsBackground = config.Background;
    plan.showsFoldMarks = config.Toggle;
    view.loadAll();
    view.makeRoom();
    drawing->used = chart::usedIn(plan);
    drawing->paper = printsheet::paperOf(config, m_findings);
    drawing->setup = printsheet::setupOf(config, drawing->paper);
    chart::SheetSetup &setup = drawing->setup;
    setup.from = view.from();
    setup.to = view.to() >= plan.axis.width ? plan.width() : view.to();
    if (options.repeatColumns)
        for (int i = 0; i < int(plan.columns.size()); ++i)
            if (plan.columns[std::size_t(i)].isName || plan.columns[std::size_t(i)].isNumber)
                setup.repeated.push_back(i);
    if (options.legend)
        setup.legendHeight = [drawing = drawing.get()](double width) {
            return picture::legendHeight(drawing->plan(), drawing->used, width);
        };
    drawing->sheets = chart::cutIntoSheets(plan, setup);
    if (drawing->sheets.parts.empty()) {
        m_findings.add(KW_TEXT("print setup"),
                       KW_TEXT("the picture would take %1 x %2 sheets")
                           .arg(drawing->sheets.across)
                           .arg(drawing->sheets.down),
                       KW_TEXT("fit it to fewer, take a coarser scale, or print a part of it"));
        return nullptr;
    }
    plan.least /= std::min(1.0, drawing->sheets.scale);
    plan.sheetEdges = drawing->sheets.edges;
    if (setup.from > 0)
        plan.sheetEdges.insert(plan.sheetEdges.begin(), setup.from);
    drawing->makeLayout();
    return drawing;
}

void GanttPdfExport::tellGaps(const Drawing &drawing)
{
    const int texts = drawing.shaper.textsWithGaps();
    if (texts > 0)
        m_findings.add(QString(),
                       KW_TEXT("no font has all characters of %1 texts, the first of them '%2'")
                           .arg(texts)
                           .arg(drawing.shaper.firstTextWithGaps().left(60)),
                       KW_TEXT("for Chinese the package fonts-wqy-microhei brings one"));
}

bool GanttPdfExport::replace(const QString &path, const std::function<bool(QIODevice &)> &write)
{
    QString error;
    bool isWritten = false;
    if (atomicfile::replace(
            path, [&](QIODevice &device) { return isWritten = write(device); }, &error))
        return true;
    // What stopped the writing has been told.
    if (isWritten || m_findings.isEmpty())
        m_findings.add(path, KW_TEXT("cannot be written: %1").arg(error));
    return false;
}

bool GanttPdfExport::hasFonts()
{
    return TextShaper::hasFonts();
}

// ---- Preview ----------------------------------------------------------------------------------------------

int GanttPdfExport::pageCount()
{
    const std::unique_ptr<Drawing> drawing = prepareSheets();
    return drawing ? int(drawing->sheets.parts.size()) : 0;
}

QSize GanttPdfExport::sheetCounts()
{
    const std::unique_ptr<Drawing> drawing = prepareSheets();
    return drawing ? QSize(drawing->sheets.across, drawing->sheets.down) : QSize();
}

GanttPdfExport::SheetBorders GanttPdfExport::sheetBorders()
{
    SheetBorders borders;
    const std::unique_ptr<Drawing> drawing = prepareSheets();
    if (!drawing)
        return borders;
    borders.places = drawing->sheets.edges;
    for (const chart::SheetPart &part : drawing->sheets.parts)
        if (part.across == 0 && part.firstRow > 0)
            borders.rows.push_back(part.firstRow);
    return borders;
}

QSizeF GanttPdfExport::pageSize()
{
    m_findings.clear();
    if (!m_document)
        return QSizeF();
    const printsheet::Paper paper = printsheet::paperOf(m_document->printConfig, m_findings);
    constexpr unsigned int millimetre = 1;
    return QSizeF(UnitUtil::pixelToUnit(paper.width, millimetre),
                  UnitUtil::pixelToUnit(paper.height, millimetre));
}

double GanttPdfExport::smallestText()
{
    const std::unique_ptr<Drawing> drawing = prepareSheets();
    return drawing ? smallestPoints(drawing->plan()) * drawing->sheets.scale : 0;
}

QSize GanttPdfExport::sheetsForText(double size)
{
    const std::unique_ptr<Drawing> drawing = prepareSheets();
    if (!drawing)
        return QSize();
    const double scale = size / smallestPoints(drawing->plan());
    if (drawing->sheets.scale >= scale)
        return QSize(drawing->sheets.across, drawing->sheets.down);
    const chart::Sheets sheets = chart::cutAtScale(drawing->plan(), drawing->setup, scale);
    return QSize(sheets.across, sheets.down);
}

QImage GanttPdfExport::pageImage(int page, double dpi)
{
    const std::unique_ptr<Drawing> drawing = prepareSheets();
    constexpr double leastDpi = 1, mostDpi = 2400, logicalDpi = 96;
    if (!drawing || page < 0 || page >= int(drawing->sheets.parts.size()) ||
        !(dpi >= leastDpi && dpi <= mostDpi))
        return QImage();
    const double ratio = dpi / logicalDpi;
    return drawing->image(drawing->paper.width, drawing->paper.height, ratio, blocksOfPage(*drawing, page),
                          m_findings);
}

std::vector<picture::Block> GanttPdfExport::blocksOfPage(const Drawing &drawing, int page) const
{
    const chart::SheetPart &part = drawing.sheets.parts[std::size_t(page)];
    const int pages = int(drawing.sheets.parts.size());
    // A sheet that is alone has no place among others, which would read as a size of paper.
    const QString number =
        pages == 1 ? KWExportOptions::shownText(QStringLiteral("%1 of %2")).arg(page + 1).arg(pages)
                   : drawing.plan().texts.sheet.arg(page + 1).arg(pages).arg(
                         chart::placeName(part.across, part.down));
    const picture::Frame frame{filled(options.title, page + 1, pages), filled(options.head, page + 1, pages),
                               filled(options.foot, page + 1, pages), number};
    return picture::sheet(*drawing.layout, drawing.sheets, part, drawing.paper, drawing.used, frame,
                          options.legend);
}

// ---- Screen -----------------------------------------------------------------------------------------------

// Styles and laid-out texts serve frame after frame, until what they are made from changes.
bool GanttPdfExport::screenIsReady()
{
    if (!canDraw())
        return false;
    QByteArray key = QByteArray::number(int(options.theme)) + '/' + options.family.toUtf8();
    for (int i = 0; i < ThemePalette::colorCount; ++i)
        key += m_document->themeColor(i).name().toLatin1();
    if (m_screen && m_screen->madeFrom == key)
        return true;
    const chartstyle::Sheet style = styleOf(*m_document, options);
    m_screen.reset(new Screen{key, style, {chart::standardFonts(style), options.family}});
    return true;
}

bool GanttPdfExport::paint(QImage &image, const QRectF &visible, double ratio)
{
    m_findings.clear();
    const bool isImage =
        image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32_Premultiplied;
    constexpr double leastRatio = 0.1, mostRatio = 16;
    if (!m_document || image.isNull() || !isImage || !visible.isValid() ||
        !(ratio >= leastRatio && ratio <= mostRatio)) {
        m_findings.add(QString(), KW_TEXT("there is nothing to paint on"));
        return false;
    }
    if (!screenIsReady())
        return false;
    Screen &screen = *m_screen;
    PlanView view(*m_document, options, screen.shaper);
    chart::Plan &plan = view.plan();
    setToday(view);
    view.load(view.rowAt(visible.top()), view.rowAt(visible.bottom()));
    // Beside the chart there is room for labels in a view.
    plan.room = std::max(0.0, visible.right() - plan.axis.width);
    plan.least = std::max(plan.least, plan.least / ratio);
    cairo_surface_t *surface = cairo_image_surface_create_for_data(
        image.bits(), image.format() == QImage::Format_RGB32 ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32,
        image.width(), image.height(), image.bytesPerLine());
    cairo_t *context = cairo_create(surface);
    CairoPainter painter(context, screen.style, screen.shaper, plan.fonts, CairoPainter::Pixels, ratio);
    const QRectF area(0, 0, visible.width() * ratio, visible.height() * ratio);
    painter.fillGround(area);
    const int first = view.rowAt(visible.top()), last = view.rowAt(visible.bottom());
    painter.paint(chart::marks(plan, plan.rowCount == 0 ? 0 : first, plan.rowCount == 0 ? -1 : last,
                               visible.left(), visible.right()),
                  -visible.topLeft() * ratio, area);
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
    return true;
}

// ---- Sheets -----------------------------------------------------------------------------------------------

bool GanttPdfExport::exportPdf(const QString &path)
{
    const std::unique_ptr<Drawing> drawing = prepareSheets();
    return drawing && replace(path, [&](QIODevice &device) { return writeSheets(*drawing, device); });
}

bool GanttPdfExport::writePdf(QIODevice &device)
{
    const std::unique_ptr<Drawing> drawing = prepareSheets();
    return drawing && writeSheets(*drawing, device);
}

namespace {

cairo_status_t writeBytes(void *closure, const unsigned char *bytes, unsigned int size)
{
    auto *device = static_cast<QIODevice *>(closure);
    return device->write(reinterpret_cast<const char *>(bytes), size) == qint64(size)
               ? CAIRO_STATUS_SUCCESS
               : CAIRO_STATUS_WRITE_ERROR;
}

cairo_status_t packBytes(void *closure, const unsigned char *bytes, unsigned int size)
{
    auto *packer = static_cast<PdfPacker *>(closure);
    return packer->write(reinterpret_cast<const char *>(bytes), int(size)) ? CAIRO_STATUS_SUCCESS
                                                                           : CAIRO_STATUS_WRITE_ERROR;
}

// The summaries as bookmarks, one in the other as in the outline.
void addBookmarks(cairo_surface_t *surface, const PlanView &view, const chart::Sheets &sheets,
                  const printsheet::Paper &paper)
{
    constexpr int most = 5000;
    constexpr std::size_t deepest = 60; // viewers open them one in the other
    struct Open
    {
        int level;
        int bookmark;
    };
    std::vector<Open> open;
    int count = 0;
    std::size_t part = 0;
    const chart::Plan &plan = view.plan();
    for (int row = 0; row < plan.rowCount && count < most; ++row) {
        while (part < sheets.parts.size() && row > sheets.parts[part].lastRow)
            ++part;
        const chart::Row &at = plan.at(row);
        if (at.kind != chart::RowKind::Summary || part >= sheets.parts.size())
            continue;
        while (!open.empty() && (open.back().level >= at.level))
            open.pop_back();
        const double y =
            paper.marginY +
            (chart::headHeight + at.top - plan.at(sheets.parts[part].firstRow).top) * sheets.scale;
        const QByteArray place = "page=" + QByteArray::number(int(part) + 1) + " pos=[" +
                                 QByteArray::number(int(paper.marginX * pointsPerPixel)) + ' ' +
                                 QByteArray::number(int(y * pointsPerPixel)) + ']';
        QString name = chart::oneLine(view.nameOf(row)).left(200);
        if (name.trimmed().isEmpty())
            name = QStringLiteral("\u2013");
        const int parent = open.empty() ? CAIRO_PDF_OUTLINE_ROOT : open.back().bookmark;
        const int bookmark = cairo_pdf_surface_add_outline(surface, parent, name.toUtf8().constData(),
                                                           place.constData(), CAIRO_PDF_OUTLINE_FLAG_OPEN);
        ++count;
        if (open.size() < deepest)
            open.push_back({at.level, bookmark});
    }
}

void addAnchors(cairo_t *context, const picture::Block &block)
{
    const auto isAnchor = [](const chart::Mark &mark) { return mark.shape == chart::Shape::Anchor; };
    if (std::none_of(block.marks.begin(), block.marks.end(), isAnchor))
        return;
    // A link that stands in no other tag refers to an object that cairo does not write.
    constexpr const char *outer = "Document";
    cairo_tag_begin(context, outer, nullptr);
    for (const chart::Mark &mark : block.marks) {
        if (!isAnchor(mark))
            continue;
        const QRectF rect =
            QRectF(mark.rect.topLeft() * block.scale + block.offset, mark.rect.size() * block.scale) &
            block.clip;
        if (rect.isEmpty())
            continue;
        QByteArray address = mark.text.toLatin1();
        address.replace('\\', "%5C").replace('\'', "%27");
        const auto number = [](double value) { return QByteArray::number(value, 'f', 2); };
        const QByteArray attributes = "rect=[" + number(rect.x()) + ' ' + number(rect.y()) + ' ' +
                                      number(rect.width()) + ' ' + number(rect.height()) + "] uri='" +
                                      address + '\'';
        cairo_tag_begin(context, CAIRO_TAG_LINK, attributes.constData());
        cairo_tag_end(context, CAIRO_TAG_LINK);
    }
    cairo_tag_end(context, outer);
}
}

namespace {

// Blocks that look as on the sheet before. A file holds them once, however many sheets show them.
class RepeatedBlocks
{
public:
    RepeatedBlocks() = default;
    ~RepeatedBlocks()
    {
        for (const Slot &slot : m_slots)
            forget(slot);
    }
    RepeatedBlocks(const RepeatedBlocks &) = delete;
    RepeatedBlocks &operator=(const RepeatedBlocks &) = delete;

    // `paint` draws the block with the context's scale in force.
    void paint(cairo_t *context, std::size_t number, const picture::Block &block,
               const std::function<void(cairo_t *)> &paint)
    {
        if (!block.mayRepeat)
            return paint(context);
        if (number >= m_slots.size())
            m_slots.resize(number + 1);
        Slot &slot = m_slots[number];
        const QByteArray look = lookOf(block);
        if (look != slot.look) {
            forget(slot);
            slot = {look, nullptr};
            return paint(context);
        }
        if (!slot.recorded) {
            const cairo_rectangle_t area{block.clip.x(), block.clip.y(), block.clip.width(),
                                         block.clip.height()};
            slot.recorded = cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &area);
            cairo_t *recorder = cairo_create(slot.recorded);
            paint(recorder);
            cairo_destroy(recorder);
        }
        cairo_set_source_surface(context, slot.recorded, 0, 0);
        cairo_paint(context);
    }

private:
    struct Slot
    {
        QByteArray look;
        cairo_surface_t *recorded = nullptr; // from the second sheet on
    };
    static void forget(const Slot &slot)
    {
        if (slot.recorded)
            cairo_surface_destroy(slot.recorded);
    }
    static QByteArray lookOf(const picture::Block &block)
    {
        QByteArray look;
        const auto add = [&look](double value) {
            constexpr double parts = 1024; // of a pixel; less than that is rounding
            const qint64 whole = std::llround(value * parts);
            look.append(reinterpret_cast<const char *>(&whole), sizeof whole);
        };
        const auto addPoint = [&add](const QPointF &point) {
            add(point.x());
            add(point.y());
        };
        const auto addRect = [&addPoint](const QRectF &rect) {
            addPoint(rect.topLeft());
            addPoint(rect.bottomRight());
        };
        addPoint(block.offset);
        addRect(block.clip);
        add(block.scale);
        for (const chart::Mark &mark : block.marks) {
            const char kinds[] = {char(mark.kind), char(mark.style), char(mark.shape), char(mark.font)};
            look.append(kinds, sizeof kinds);
            addRect(mark.rect);
            add(mark.points.size());
            for (const QPointF &point : mark.points)
                addPoint(point);
            look += mark.text.toUtf8() + '\0';
        }
        return look;
    }

    std::vector<Slot> m_slots; // by number of the block on its sheet
};
}

bool GanttPdfExport::writeSheets(Drawing &drawing, QIODevice &device)
{
    const double smallest = smallestPoints(drawing.plan()) * drawing.sheets.scale;
    if (smallest < readableText) {
        const chart::Sheets proposed = chart::cutAtScale(drawing.plan(), drawing.setup,
                                                         comfortableText / smallestPoints(drawing.plan()));
        m_findings.add(KW_TEXT("print setup"),
                       KW_TEXT("the smallest text is %1 points high").arg(points(smallest)),
                       KW_TEXT("on %1 x %2 sheets it is %3")
                           .arg(proposed.across)
                           .arg(proposed.down)
                           .arg(comfortableText));
    }
    PdfPacker packer(device);
    const bool isPacked = PdfPacker::isOfUse();
    cairo_surface_t *surface = cairo_pdf_surface_create_for_stream(
        isPacked ? packBytes : writeBytes, isPacked ? static_cast<void *>(&packer) : &device,
        drawing.paper.width * pointsPerPixel, drawing.paper.height * pointsPerPixel);
    const QDateTime created = epochStamp().isValid() ? epochStamp() : stamp().toUTC();
    const auto describe = [surface](cairo_pdf_metadata_t what, const QString &text) {
        if (!text.isEmpty())
            cairo_pdf_surface_set_metadata(surface, what, chart::oneLine(text).toUtf8().constData());
    };
    const int pages = int(drawing.sheets.parts.size());
    describe(CAIRO_PDF_METADATA_TITLE,
             options.title.isEmpty() ? m_document->fileName() : filled(options.title, 1, pages));
    describe(CAIRO_PDF_METADATA_CREATE_DATE, created.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ")));
    cairo_t *context = cairo_create(surface);
    addBookmarks(surface, drawing.view, drawing.sheets, drawing.paper);
    RepeatedBlocks repeated;
    bool goesOn = true;
    for (int page = 0; page < pages && goesOn; ++page) {
        cairo_save(context);
        cairo_scale(context, pointsPerPixel, pointsPerPixel);
        const std::vector<picture::Block> blocks = blocksOfPage(drawing, page);
        const QRectF area(0, 0, drawing.paper.width, drawing.paper.height);
        drawing.paintBlocks(context, {}, area, 1, CairoPainter::Paper);
        for (std::size_t i = 0; i < blocks.size(); ++i)
            repeated.paint(context, i, blocks[i], [&](cairo_t *target) {
                drawing.paintBlock(target, blocks[i], area, 1, CairoPainter::Paper);
            });
        for (const picture::Block &block : blocks)
            addAnchors(context, block);
        cairo_restore(context);
        const chart::SheetPart &part = drawing.sheets.parts[std::size_t(page)];
        cairo_pdf_surface_set_page_label(surface,
                                         chart::placeName(part.across, part.down).toUtf8().constData());
        cairo_show_page(context);
        goesOn = cairo_status(context) == CAIRO_STATUS_SUCCESS && !isCancelled(page + 1, pages);
    }
    const cairo_status_t drawn = cairo_status(context);
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_status_t finished = cairo_surface_status(surface);
    cairo_surface_destroy(surface);
    if (finished == CAIRO_STATUS_SUCCESS && isPacked && !packer.finish())
        finished = CAIRO_STATUS_WRITE_ERROR;
    if (drawn != CAIRO_STATUS_SUCCESS || finished != CAIRO_STATUS_SUCCESS) {
        m_findings.add(QString(), KW_TEXT("cannot be written: %1")
                                      .arg(QString::fromUtf8(cairo_status_to_string(
                                          drawn != CAIRO_STATUS_SUCCESS ? drawn : finished))));
        return false;
    }
    if (!goesOn)
        return false;
    tellGaps(drawing);
    return true;
}
