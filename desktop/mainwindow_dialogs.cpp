// What the window asks for in windows of their own, and files of other formats.
#include "actions/actiontable.h"
#include "console.h"
#include "dialogs/calendardialog.h"
#include "dialogs/commandpalette.h"
#include "dialogs/fitting.h"
#include "dialogs/pagesetupdialog.h"
#include "dialogs/previewdialog.h"
#include "dialogs/printout.h"
#include "dialogs/resourcesdialog.h"
#include "export/ganttpdfexport.h"
#include "kwpxfile.h"
#include "machine.h"
#include "mainwindow.h"
#include "planfile.h"
#include "projectfile.h"
#include "quoted.h"
#include "texts.h"
#include "views/notebar.h"
#include "views/planchart.h"
#include "views/plantable.h"
#include "workbookfile.h"
#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace {

// The pictures by the suffix of their file.
struct Drawing
{
    const char *suffix;
    bool (*write)(GanttPdfExport &drawing, const QString &path);
};
constexpr Drawing drawings[] = {
    {"pdf", [](GanttPdfExport &drawing, const QString &path) { return drawing.exportPdf(path); }},
    {"png", [](GanttPdfExport &drawing, const QString &path) { return drawing.exportImage(path, 2); }},
    {"svg", [](GanttPdfExport &drawing, const QString &path) { return drawing.exportSvg(path); }},
    {"html", [](GanttPdfExport &drawing, const QString &path) { return drawing.exportHtml(path); }},
};

// "xlsx" of "Workbook (*.xlsx *.xls)".
QString firstSuffix(const QString &filter)
{
    return filter.section(QLatin1String("(*."), -1).section(QRegularExpression(QStringLiteral("[ )]")), 0, 0);
}

// Where to write; empty: nowhere. The suffix is part of the name before the dialog asks whether a file of
// that name may be replaced, and follows the format that is chosen in the list.
QString fileToWrite(QWidget *window, const QString &title, const QString &suggested, const QString &formats)
{
    const QFileInfo info(suggested);
    QFileDialog dialog(window, title, info.path(), formats);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(firstSuffix(dialog.selectedNameFilter()));
    dialog.selectFile(info.fileName());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
        const QFileInfo chosen(dialog.selectedFiles().value(0));
        dialog.setDefaultSuffix(firstSuffix(filter));
        if (!chosen.fileName().isEmpty() && !chosen.isDir())
            dialog.selectFile(chosen.completeBaseName() + QLatin1Char('.') + firstSuffix(filter));
    });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
}

void MainWindow::openAsk()
{
    if (!mayLeave())
        return;
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open"), QFileInfo(m_session.source()).path(),
                                     tr("Plans (*.kwpx *.csv *.xlsx *.xls *.xml);;All files (*)"));
    if (!path.isEmpty())
        openFile(path);
}

void MainWindow::saveAs()
{
    const QFileInfo source(m_session.source());
    const QString suggested = m_session.source().isEmpty()
                                  ? tr("Plan.kwpx")
                                  : source.dir().filePath(source.completeBaseName() + QLatin1String(".kwpx"));
    const QString path = fileToWrite(this, tr("Save as"), suggested, tr("Packages (*.kwpx)"));
    if (path.isEmpty())
        return;
    if (!path.endsWith(QLatin1String(".kwpx"), Qt::CaseInsensitive)) {
        // No file of another format is hidden behind a suffix that the dialog did not ask about.
        tellRefusal(tr("%1 is no name of a package (.kwpx): Export writes other formats")
                        .arg(QFileInfo(path).fileName()),
                    QString());
        return;
    }
    saveTo(path);
}

void MainWindow::exportAsk()
{
    const QFileInfo source(m_session.source());
    const QString base =
        m_session.source().isEmpty() ? tr("Plan") : source.dir().filePath(source.completeBaseName());
    const QString path = fileToWrite(
        this, tr("Export"), base + QLatin1String(".pdf"),
        tr("PDF (*.pdf);;PNG (*.png);;SVG (*.svg);;Page for a browser (*.html);;Workbook (*.xlsx *.xls);;"
           "Project XML (*.xml);;CSV, with files beside it (*.csv)"));
    if (!path.isEmpty())
        exportTo(path);
}

bool MainWindow::exportTo(const QString &path)
{
    m_chart->leaveDrag();
    m_table->finishEditing();
    m_session.settleBars();
    const QString suffix = QFileInfo(path).suffix().toLower();
    const auto tellDone = [&](const QString &more) {
        m_note->say(tr("%1 is written.").arg(QFileInfo(path).fileName()) + more, NoteBar::Told, tr("Open it"),
                    [path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    };
    for (const Drawing &row : drawings) {
        if (suffix != QLatin1String(row.suffix))
            continue;
        GanttPdfExport drawing(&m_session.document());
        drawing.options = m_picture.onPaper();
        bool isWritten = false;
        {
            Busy busy(this, tr("Drawing…"), Busy::Stays);
            const Session::Hold hold(m_session);
            drawing.progress = [&busy](int done, int total) { return busy.step(done, total); };
            isWritten = row.write(drawing, path);
        }
        QStringList words;
        for (const Finding &finding : drawing.findings().list())
            words.append(finding.hint.isEmpty() ? finding.what
                                                : finding.what + QLatin1String(": ") + finding.hint);
        if (!isWritten)
            tellRefusal(words.join(QLatin1String("; ")), QString());
        else
            tellDone(words.isEmpty() ? QString() : QLatin1Char(' ') + words.join(QLatin1String("; ")));
        return isWritten;
    }
    // What other programs read goes through the writers of the command line, with their warnings.
    QByteArray out, said;
    Console console(Console::Surroundings(), &out, &said);
    Options options;
    options.force = true; // the file dialog has asked
    options.richSheets = true;
    console.follow(options);
    Plan &plan = m_session.plan();
    kwpxfile::describe(plan);
    const std::vector<planfile::Side> sides = planfile::sidesOf(plan, path);
    QStringList beside, replaced;
    for (const planfile::Side &side : sides) {
        const QFileInfo info(side.path);
        beside.append(info.fileName());
        if (info.exists())
            replaced.append(info.fileName());
    }
    const QString comma = QStringLiteral(", ");
    if (!replaced.isEmpty() &&
        m_ask(tr("Files beside %1 are replaced as well.").arg(quoted(QFileInfo(path).fileName())),
              replaced.join(comma), QMessageBox::Save | QMessageBox::Cancel) != QMessageBox::Save)
        return false;
    bool isWritten = false;
    if (suffix == QLatin1String("xlsx") || suffix == QLatin1String("xls")) {
        isWritten = workbookfile::save(
            console, plan, path, suffix == QLatin1String("xlsx") ? workbookfile::Xlsx : workbookfile::Xls);
    } else if (suffix == QLatin1String("xml")) {
        isWritten = projectfile::save(console, plan, path) == Console::Done;
    } else if (suffix == QLatin1String("csv")) {
        isWritten = console.replaceFile(
            path, [&plan](const Console::Take &take) { return machine::writeCsv(plan, take); }, true);
    } else {
        said =
            tr("a file of that name has no format: use pdf, png, svg, html, xlsx, xls, xml or csv").toUtf8();
    }
    for (const planfile::Side &side : sides)
        isWritten = isWritten && console.replaceFile(side.path, side.bytes, true);
    const QString words = QString::fromUtf8(said).remove(QStringLiteral("kwgantt: ")).simplified();
    const QString also =
        beside.isEmpty() ? QString() : QLatin1Char(' ') + tr("Beside it: %1.").arg(beside.join(comma));
    if (isWritten)
        tellDone(also + (words.isEmpty() ? QString() : QLatin1Char(' ') + words));
    else
        tellRefusal(words, QString());
    return isWritten;
}

void MainWindow::pageSetup()
{
    PageSetupDialog(m_session, this).exec();
}

void MainWindow::preview()
{
    PreviewDialog dialog(m_session, m_picture.onPaper(), this);
    connect(&dialog, &PreviewDialog::exportWanted, this, &MainWindow::exportAsk);
    connect(&dialog, &PreviewDialog::printWanted, this, &MainWindow::print);
    connect(&dialog, &PreviewDialog::setupWanted, this, &MainWindow::pageSetup);
    dialog.exec();
}

void MainWindow::print()
{
    m_chart->leaveDrag();
    m_table->finishEditing();
    m_session.settleBars();
    GanttPdfExport drawing(&m_session.document());
    drawing.options = m_picture.onPaper();
    const int pages = drawing.pageCount();
    if (pages == 0) {
        tellRefusal(texts::said(drawing.findings().list().value(0).what), QString());
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_session.name());
    printout::setPaper(printer, drawing);
    QPrintDialog dialog(&printer, this);
    dialog.setMinMax(1, pages);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCollateCopies);
    if (dialog.exec() != QDialog::Accepted)
        return;
    bool isGivenUp = false, isPrinted = false;
    {
        Busy busy(this, tr("Printing…"), Busy::Stays);
        const Session::Hold hold(m_session);
        isPrinted = printout::print(printer, drawing, [&](int done, int total) {
            isGivenUp = isGivenUp || !busy.step(done, total);
            return !isGivenUp;
        });
    }
    const QString place =
        printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName();
    if (isPrinted)
        m_note->say(pages == 1 ? tr("The sheet went to %1.").arg(place)
                               : tr("The sheets went to %1.").arg(place));
    else
        tellRefusal(isGivenUp ? tr("cancelled: not everything is printed")
                              : tr("%1 did not print").arg(place),
                    QString());
}

void MainWindow::calendar()
{
    CalendarDialog dialog(m_session, this);
    if (dialog.exec() != QDialog::Accepted || !dialog.hasChanged())
        return;
    const int moves = dialog.answer().moves.size();
    tellAnswer(moves == 0   ? tr("The working time has changed: no task moves")
               : moves == 1 ? tr("The working time has changed: one task moved")
                            : tr("The working time has changed: %1 tasks moved").arg(moves),
               dialog.answer(), true);
}

void MainWindow::resources()
{
    ResourcesDialog(m_session, this).exec();
}

void MainWindow::columns()
{
    m_table->askColumns(m_table->mapToGlobal(QPoint(40, 40)));
}

void MainWindow::commandPalette()
{
    QList<QAction *> actions;
    for (const actiontable::Row &row : actiontable::rows())
        if (row.run != &MainWindow::commandPalette)
            actions.append(action(row.name));
    CommandPalette dialog(actions, this);
    dialog.move(mapToGlobal(QPoint((width() - dialog.width()) / 2, 80)));
    if (dialog.exec() == QDialog::Accepted && dialog.chosen())
        dialog.chosen()->trigger();
}

void MainWindow::keys()
{
    QDialog dialog(this);
    dialog.setWindowTitle(tr("Keys"));
    auto *text = new QTextBrowser;
    text->setMarkdown(actiontable::asMarkdown());
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    fitting::resize(dialog, QSize(720, 640));
    dialog.exec();
}

void MainWindow::about()
{
    QMessageBox::about(this, tr("About kwgantt"),
                       tr("kwgantt %1: plans projects in working time.").arg(QLatin1String(KWGANTT_VERSION)));
}
