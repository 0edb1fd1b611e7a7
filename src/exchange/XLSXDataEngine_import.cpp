// A workbook read back into a plan.
#include "exchange/XLSXDataEngine.h"
#include "exchange/planimport.h"
#include "exchange/xlsxsheet.h"
#include "kwtemporarydir.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "support/said.h"
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <memory>

using exceltitles::Sheet;

namespace {

// A folder that goes with the object.
class UnpackedBook
{
public:
    UnpackedBook()
        : m_fallback(m_folder.isValid() ? nullptr : new KWTemporaryDir)
    {
    }
    QString path() const { return (m_fallback ? m_fallback->path() : m_folder.path()) + QLatin1Char('/'); }
    // Without any temporary folder the archive would go into the root of the file system.
    QString unpack(const QString &archive)
    {
        if ((m_fallback ? m_fallback->path() : m_folder.path()).isEmpty())
            return KW_TEXT("there is no temporary folder to unpack it into");
        return KWZip::unZip(archive, path()) ? QString() : KWZip::lastError();
    }

private:
    QTemporaryDir m_folder;
    const std::unique_ptr<KWTemporaryDir> m_fallback;
};

const QString worksheets = QStringLiteral("xl/worksheets/");

// The sheets of a folder, ready to be read.
class OpenSheets
{
public:
    // The strings must outlive the object.
    OpenSheets(const QString &folder, const QStringList &strings, Findings &findings)
    {
        // One folder up, which is there also where the folder of the sheets is not.
        const QString parts = QDir::cleanPath(folder + QLatin1String("..")) + QLatin1Char('/');
        const QByteArray workbook = xlsx::readPart(parts + QLatin1String("workbook.xml"), nullptr);
        m_percentStyles = xlsx::percentStyles(xlsx::readPart(parts + QLatin1String("styles.xml"), nullptr));
        for (const QString &file : xlsx::sheetFiles(folder))
            open(folder, file, strings, findings);
        if (m_sources.empty()) {
            const QByteArray relations =
                xlsx::readPart(parts + QLatin1String("_rels/workbook.xml.rels"), nullptr);
            for (const QString &file : xlsx::relatedSheets(workbook, relations))
                open(parts, file, strings, findings);
        }
        if (m_sources.empty())
            findings.add(QStringLiteral("xl/worksheets"), KW_TEXT("the workbook has no worksheet"),
                         KW_TEXT("nothing imported"));
        for (std::size_t sheet = 0; sheet < m_sources.size(); ++sheet)
            m_book.sheets[sheet] = m_sources[sheet].get();
        m_book.is1904 = xlsx::is1904(workbook);
    }
    const planimport::Book &book() const { return m_book; }
    // After they have been read.
    void tellDoubts(Findings &findings) const
    {
        for (std::size_t sheet = 0; sheet < m_sources.size(); ++sheet)
            m_sources[sheet]->doubts().addTo(findings, m_files[int(sheet)]);
    }

private:
    void open(const QString &folder, const QString &file, const QStringList &strings, Findings &findings)
    {
        if (m_sources.size() == std::size_t(exceltitles::SheetCount))
            return;
        if (!QFileInfo(folder + file).isFile())
            return;
        QString error;
        auto source = std::make_unique<xlsx::SheetSource>(xlsx::readPart(folder + file, &error), strings,
                                                          &m_percentStyles);
        if (!error.isEmpty())
            findings.add(file, error, KW_TEXT("not read"));
        // Other XML among the sheets is none, a sheet that is spoilt is one all the same.
        if (!source->isWorksheet() && source->error().isEmpty())
            return;
        m_sources.push_back(std::move(source));
        m_files.append(file);
    }

    std::vector<bool> m_percentStyles;
    std::vector<std::unique_ptr<xlsx::SheetSource>> m_sources;
    QStringList m_files;
    planimport::Book m_book;
};

void importRows(KWDocument *document, Sheet sheet, bool hasRows, const QDomNodeList &rowNodes,
                const QStringList &strings, Findings &findings)
{
    if (!document || !hasRows || rowNodes.isEmpty())
        return;
    constexpr bool is1904 = false;
    xlsx::DomSheetSource source(rowNodes, strings);
    planimport::importSheet(*document, sheet, source, is1904, &findings);
}
}

bool XLSXDataEngine::initExcelTitles(const QString &path)
{
    UnpackedBook unpacked;
    m_findings.clear();
    const QString error = unpacked.unpack(path);
    if (!error.isEmpty()) {
        m_findings.add(path, error);
        return false;
    }
    praserShareStrXml(unpacked.path());
    if (m_document)
        planimport::readTitles(*m_document,
                               OpenSheets(unpacked.path() + worksheets, m_sharedStrings, m_findings).book());
    return true;
}

bool XLSXDataEngine::importSheets(const QString &path, const std::function<bool(const QString &folder)> &read)
{
    UnpackedBook unpacked;
    m_findings.clear();
    const QString error = unpacked.unpack(path);
    if (!error.isEmpty()) {
        m_findings.add(path, error, KW_TEXT("nothing imported"));
        return false;
    }
    // Without its texts a sheet would take the names of all tasks away.
    if (!praserShareStrXml(unpacked.path()))
        return false;
    parseStylesXml(unpacked.path());
    return read(unpacked.path() + worksheets);
}

bool XLSXDataEngine::importData(const QString &path)
{
    return importSheets(path,
                        [this](const QString &folder) { return praserSheetXml(folder, m_sharedStrings); });
}

bool XLSXDataEngine::importFile(const QString &path)
{
    if (!m_document)
        return false;
    return importSheets(path, [this](const QString &folder) {
        const OpenSheets sheets(folder, m_sharedStrings, m_findings);
        const bool isImported = planimport::importBook(*m_document, sheets.book(),
                                                       sheetrows::workbookReading(sheets.book().is1904),
                                                       &m_findings, &m_imported, m_start);
        sheets.tellDoubts(m_findings);
        return isImported;
    });
}

bool XLSXDataEngine::praserSheetXml(const QString &folder, const QStringList &sharedStrings)
{
    if (!m_document)
        return false;
    const OpenSheets sheets(withSlash(folder), sharedStrings, m_findings);
    const bool isImported = planimport::importBook(*m_document, sheets.book(), &m_findings);
    sheets.tellDoubts(m_findings);
    return isImported;
}

void XLSXDataEngine::createDocTaskInfo(int, int columns, const QDomNodeList &rowNodes,
                                       const QStringList &sharedStrings)
{
    importRows(m_document, exceltitles::TaskSheet, columns > 0, rowNodes, sharedStrings, m_findings);
}

void XLSXDataEngine::createDocResource(int rows, int columns, const QDomNodeList &rowNodes,
                                       const QStringList &sharedStrings)
{
    importRows(m_document, exceltitles::ResourceSheet, rows > 0 && columns > 0, rowNodes, sharedStrings,
               m_findings);
}

void XLSXDataEngine::createWorkAssign(int rows, int columns, const QDomNodeList &rowNodes,
                                      const QStringList &sharedStrings)
{
    importRows(m_document, exceltitles::AssignmentSheet, rows > 0 && columns > 0, rowNodes, sharedStrings,
               m_findings);
}

void XLSXDataEngine::updateTaskInfoParentID(KWTaskInfo *task)
{
    if (m_document && task)
        planimport::placeByLevel(*m_document, *task);
}

// ---- Number formats ---------------------------------------------------------------------------------------

bool XLSXDataEngine::parseStylesXml(const QString &folder)
{
    m_dateFormats.clear();
    QList<QPair<int, QString>> codes;
    const bool isRead = xlsx::readNumberFormats(
        xlsx::readPart(withSlash(folder) + QLatin1String("xl/styles.xml"), nullptr), codes);
    for (const auto &[id, code] : qAsConst(codes)) {
        const QString format = parseFormatType(code);
        if (!format.isEmpty())
            m_dateFormats.insert(id, format);
    }
    return isRead;
}

QString XLSXDataEngine::parseFormatType(const QString &formatCode)
{
    static const QString plainDate = QStringLiteral("yyyy-MM-dd");
    static const QRegularExpression dateCode(QStringLiteral(
        "[yY]{2}|\\bm\\b|\\bmm\\b|\\bmmm\\b|h:mm|hh|ss|\\[\\$-F800\\]|\\[\\$-804\\]|\\[\\$-F400\\]"));
    static const QRegularExpression localeTag(QStringLiteral("^\\[\\$-.*\\]"));
    static const QRegularExpression monthWords[] = {QRegularExpression(QStringLiteral("\\bm\\b")),
                                                    QRegularExpression(QStringLiteral("\\bmmm\\b")),
                                                    QRegularExpression(QStringLiteral("\\bmmmm\\b"))};
    static const QString months[] = {QStringLiteral("M"), QStringLiteral("MMM"), QStringLiteral("MMMM")};
    // Kept on purpose: minutes are told by a colon beside them and by nothing else.
    static const QRegularExpression monthDigits(QStringLiteral("(?<!:)mm(?!:)"));

    if (formatCode.contains(QChar(0x5e74))) // 年, year
        return plainDate;
    if (!formatCode.contains(dateCode))
        return QString();
    if (formatCode.contains(QChar(0x6708)) || formatCode.contains(QChar(0x65e5))) // 月 month, 日 day
        return plainDate;
    QString format = formatCode;
    format.remove(localeTag);
    format.replace(QLatin1String("AM/PM"), QLatin1String("ap"), Qt::CaseInsensitive);
    format.remove(QLatin1String(";@"));
    format.remove(QLatin1Char('\\'));
    for (std::size_t i = 0; i < std::size(months); ++i)
        format.replace(monthWords[i], months[i]);
    if (format != QLatin1String("mm"))
        format.replace(monthDigits, QStringLiteral("MM"));
    return format;
}
