#include "exchange/BasicExcel.h"
#include "exchange/XLSDataEngine.h"
#include "exchange/XLSXDataBase.h"
#include "exchange/planexport.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/said.h"
#include <QFile>
#include <QSet>

using exceltitles::Sheet;
using YExcel::BasicExcel;
using YExcel::BasicExcelWorksheet;

namespace {

constexpr Sheet allSheets[] = {exceltitles::TaskSheet, exceltitles::ResourceSheet,
                               exceltitles::AssignmentSheet};
constexpr int titleRows = 1;

// Puts rows into a sheet and says what does not fit.
class CellWriter : public planexport::RowSink
{
public:
    CellWriter(BasicExcelWorksheet *sheet, Findings *findings)
        : m_sheet(sheet)
        , m_findings(findings)
    {
    }
    void begin(int, int columns) override
    {
        if (columns > biff::columnLimit)
            m_findings->add(name(), KW_TEXT("there are %1 columns, of which the first %2 are written")
                                        .arg(columns)
                                        .arg(biff::columnLimit));
    }
    void row(int row, int, const std::vector<planexport::Cell> &cells) override
    {
        for (std::size_t column = 0; column < cells.size(); ++column)
            write(row, int(column) + 1, cells[column].text);
    }

private:
    QString name() const { return QString::fromStdWString(m_sheet->GetSheetName()); }
    void write(int row, int column, const QString &text)
    {
        if (text.size() > planexport::maxUnits)
            m_findings->add(
                KW_TEXT("%1, row %2, column %3").arg(name()).arg(row).arg(column),
                KW_TEXT("a text of %1 characters is cut to %2").arg(text.size()).arg(planexport::maxUnits));
        XLSDataEngine::setCellCont(row - 1, column - 1, m_sheet, planexport::cellText(text));
    }

    BasicExcelWorksheet *m_sheet;
    Findings *m_findings;
};
}

XLSDataEngine::XLSDataEngine(KWDocument *document)
    : m_document(document)
{
}

XLSDataEngine::~XLSDataEngine() = default;

bool XLSDataEngine::fail(const QString &path, const QString &what, const QString &hint)
{
    const QString named = path + QLatin1String(": ");
    m_findings.add(path, what.startsWith(named) ? what.mid(named.size()) : what, hint);
    return false;
}

bool XLSDataEngine::exportData(const QString &path)
{
    m_findings.clear();
    if (!m_document)
        return fail(path, QStringLiteral("there is no document"));
    const planexport::Rows rows(*m_document, m_imported.evenings);
    const QStringList names = XLSXDataBase::sheetNames();
    for (const Sheet sheet : allSheets) {
        if (titleRows + rows.count(sheet, biff::rowLimit) > biff::rowLimit)
            return fail(path,
                        KW_TEXT("the sheet '%1' holds %2 rows, and there are more")
                            .arg(names[sheet])
                            .arg(biff::rowLimit),
                        KW_TEXT("an XLSX workbook has room for them"));
    }
    if (rows.unreachedTasks() > 0)
        m_findings.add(
            names[exceltitles::TaskSheet],
            KW_TEXT("%1 tasks belong to no summary and are not written").arg(rows.unreachedTasks()));

    if (const int shared = rows.sharedNames())
        m_findings.add(
            names[exceltitles::AssignmentSheet],
            KW_TEXT("%1 tasks share a name: a workbook cannot tell their assignments apart").arg(shared),
            KW_TEXT("give them different names"));

    BasicExcel book;
    book.New(int(std::size(allSheets)));
    // A host may name its own sheets as new ones are named.
    for (const Sheet sheet : allSheets)
        book.RenameWorksheet(sheet, QStringLiteral("~%1~").arg(sheet).toStdWString().c_str());
    for (const Sheet sheet : allSheets) {
        const std::wstring name = names[sheet].toStdWString();
        book.AddWorksheet(name.c_str(), -1);
        if (BasicExcelWorksheet *added = book.GetWorksheet(name.c_str())) {
            CellWriter writer(added, &m_findings);
            rows.write(sheet, writer, biff::rowLimit, false, &m_findings, names[sheet]);
        }
    }
    for (std::size_t i = 0; i < std::size(allSheets); ++i)
        book.DeleteWorksheet(0);
    return book.SaveAs(QFile::encodeName(path).constData()) || fail(path, book.ErrorText());
}

void XLSDataEngine::setCellCont(int row, int column, BasicExcelWorksheet *sheet, const QString &text)
{
    YExcel::BasicExcelCell *cell = sheet && !text.isNull() ? sheet->Cell(row, column) : nullptr;
    if (cell)
        cell->SetText(text);
}

int XLSDataEngine::parserTaskCont(KWTaskInfo *task, int row, int, BasicExcelWorksheet *sheet)
{
    if (!m_document || !task)
        return row;
    const std::vector<int> types = planexport::fieldsOf(exceltitles::TaskSheet);
    const planexport::Rows rows(*m_document);
    // What stands below a task follows it.
    auto at = std::find(rows.tasks().begin(), rows.tasks().end(), task);
    QSet<quint32> branch;
    while (at != rows.tasks().end() && (*at == task || branch.contains((*at)->ParentID))) {
        for (std::size_t column = 0; column < types.size(); ++column)
            setCellCont(row, int(column), sheet, planexport::cellText(rows.taskText(**at, types[column])));
        branch.insert((*at)->ID);
        ++at;
        ++row;
    }
    return row;
}

void XLSDataEngine::parserResourceCont(BasicExcelWorksheet *sheet)
{
    writeSheet(exceltitles::ResourceSheet, sheet);
}

void XLSDataEngine::parserWorkAssignCont(BasicExcelWorksheet *sheet)
{
    writeSheet(exceltitles::AssignmentSheet, sheet);
}

void XLSDataEngine::writeSheet(int which, BasicExcelWorksheet *sheet)
{
    if (!m_document || !sheet)
        return;
    CellWriter writer(sheet, &m_findings);
    planexport::Rows(*m_document).write(Sheet(which), writer, biff::rowLimit);
}

void XLSDataEngine::setWorkAssignCellCont(int row, KWTaskInfo *task, Resource *resource,
                                          BasicExcelWorksheet *sheet)
{
    if (!m_document || !task || !resource)
        return;
    planexport::Assignment assignment{task, task, resource};
    QList<QPair<KWTaskInfo *, Resource *>> below;
    if (task->isParent())
        task->allSubTaskResourceList(m_document, below);
    for (const auto &[owner, owned] : qAsConst(below)) {
        if (owned == resource)
            assignment.owner = owner;
    }
    const std::vector<int> keys = planexport::fieldsOf(exceltitles::AssignmentSheet);
    const planexport::Rows rows(*m_document);
    for (std::size_t column = 0; column < keys.size(); ++column)
        setCellCont(row, int(column), sheet,
                    planexport::cellText(rows.assignmentText(assignment, keys[column])));
}
