// Drawing large plans, beside what cairo and pango take for the same number of texts and shapes alone.
#include "engine/text/columntypes.h"
#include "export/ganttpdfexport.h"
#include "generator.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QBuffer>
#include <QGuiApplication>
#include <cairo-pdf.h>
#include <cmath>
#include <pango/pangocairo.h>
#include <sys/resource.h>

namespace {

constexpr int rowsOfSheet = 40;
constexpr int textsOfRow = 5;

class Pen
{
public:
    explicit Pen(cairo_surface_t *surface)
        : m_context(cairo_create(surface))
        , m_layout(pango_cairo_create_layout(m_context))
    {
        PangoFontDescription *font = pango_font_description_from_string("Sans 9");
        pango_layout_set_font_description(m_layout, font);
        pango_font_description_free(font);
    }
    ~Pen()
    {
        g_object_unref(m_layout);
        cairo_destroy(m_context);
    }
    void row(int number, double y)
    {
        for (int text = 0; text < textsOfRow; ++text) {
            const QByteArray words = text == 1 ? "Task number " + QByteArray::number(number)
                                               : QByteArray::number(number % (text == 0 ? 1000000 : 200));
            pango_layout_set_text(m_layout, words.constData(), words.size());
            cairo_set_source_rgb(m_context, 0.1, 0.1, 0.1);
            cairo_move_to(m_context, 20 + text * 120, y);
            pango_cairo_show_layout(m_context, m_layout);
        }
        const double x = 650 + number % 40 * 10;
        cairo_set_source_rgb(m_context, 0.2, 0.4, 0.8);
        cairo_rectangle(m_context, x, y, 60, 12);
        cairo_fill(m_context);
        cairo_move_to(m_context, x + 60, y + 6);
        cairo_line_to(m_context, x + 66, y + 6);
        cairo_line_to(m_context, x + 66, y + 24);
        cairo_stroke(m_context);
    }
    void endPage() { cairo_show_page(m_context); }

private:
    cairo_t *m_context;
    PangoLayout *m_layout;
};

cairo_status_t count(void *closure, const unsigned char *, unsigned int size)
{
    *static_cast<qint64 *>(closure) += size;
    return CAIRO_STATUS_SUCCESS;
}

double floorOfSheets(int rows)
{
    return secondsOf([&] {
        qint64 bytes = 0;
        cairo_surface_t *surface = cairo_pdf_surface_create_for_stream(count, &bytes, 1191, 842);
        Pen *pen = new Pen(surface);
        for (int row = 0; row < rows; ++row) {
            pen->row(row, 30 + row % rowsOfSheet * 20);
            if (row % rowsOfSheet == rowsOfSheet - 1)
                pen->endPage();
        }
        delete pen;
        cairo_surface_destroy(surface);
    });
}

double megabytesAtMost()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024;
}

void measure(Report &report, int tasks)
{
    generator::Shape shape;
    shape.tasks = tasks;
    const auto document = generator::document(generator::plan(shape), shape);
    document->taskCollection()->pushAllSuccessors();
    document->updateAllTaskEarlyLate();
    document->taskCollection()->updateTaskCollection();
    GanttPdfExport drawing(document.get());
    drawing.options.columns = {0, 1, 2, 3, 4};
    document->printConfig.FittoSheet = false;
    document->printConfig.Width = 297;
    document->printConfig.Height = 420;
    document->printConfig.Zoom = 60;

    // A screen first: it must not profit from what the sheets have left behind.
    QImage image(1200, 900, QImage::Format_RGB32);
    constexpr int frames = 40;
    const double bottom = document->getRowYByRow(document->visibleRowCount() - 1, false);
    int frame = 0;
    const double screen =
        best(
            3, [&] { frame = 0; },
            [&] {
                for (; frame < frames; ++frame)
                    drawing.paint(image, QRectF(-700, (bottom - 900) * frame / frames, 1200, 900), 1);
            }) /
        frames;
    const double screenFloor = best(
                                   3, [] {},
                                   [&] {
                                       cairo_surface_t *surface =
                                           cairo_image_surface_create(CAIRO_FORMAT_RGB24, 1200, 900);
                                       {
                                           Pen pen(surface);
                                           for (int row = 0; row < 30 * frames; ++row)
                                               pen.row(row, 30 + row % 30 * 28);
                                       }
                                       cairo_surface_destroy(surface);
                                   }) /
                               frames;
    report.line("a screen of 1,200 x 900", tasks, screen, screenFloor);

    drawing.options.scale = KWExportOptions::AutoScale;
    const double before = megabytesAtMost();
    QByteArray bytes;
    int pages = 0;
    const double seconds = secondsOf([&] {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        drawing.progress = [&](int, int total) {
            pages = total;
            return true;
        };
        if (!drawing.writePdf(buffer))
            std::printf("nothing was drawn\n");
    });
    const double peak = megabytesAtMost() - before;
    report.line("sheets of paper", tasks, seconds, floorOfSheets(tasks));
    std::printf("  %d sheets, %.1f MB, at most %.0f MB above the document\n", pages,
                double(bytes.size()) / 1e6, peak);
}
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    for (int type = 0; type < columntypes::count; ++type)
        RowColumnData::s_columnNames.insert(type, QStringLiteral("Column ") + QString::number(type));
    // Numbers of tasks, for a look at one of them.
    std::vector<int> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.push_back(std::atoi(argv[i]));
    if (sizes.empty())
        sizes = {1000, 10000, 100000};
    Report report;
    for (const int tasks : sizes)
        measure(report, tasks);
    return 0;
}
