#pragma once
#include "kwgantt_export.h"
#include "support/findings.h"
#include <QHash>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <functional>

class KWDocument;
class PartWriter;

// The parts of a spreadsheet package that do not depend on what its sheets hold, and its shared strings.
//
// A package is written unpacked, as a folder; packing it is the caller's step. None of the writers reports a
// failure, but whether all went well is told by findings().
class KWGANTT_EXPORT XLSXDataBase
{
public:
    static constexpr int sheetCount = 3;
    // The names of the three sheets, filled by the host before an export.
    static QStringList s_xmlNameList;
    // The three names as a workbook can take them: cut to 31 units, without forbidden characters, no two
    // equal when case is ignored, "Sheet1" and so on for those that are missing or empty.
    static QStringList sheetNames();

    // Column letters to their number, from 1; digits are left out. 0 for other characters than capital
    // letters, and for less than one or more than two of them.
    static int convertCharToNum(const QString &reference);

    explicit XLSXDataBase(KWDocument *document); // not owned, may be null
    virtual ~XLSXDataBase();
    XLSXDataBase(const XLSXDataBase &) = delete;
    XLSXDataBase &operator=(const XLSXDataBase &) = delete;

    KWDocument *document() const { return m_document; }
    // Every distinct cell text in the order of first use.
    const QStringList &sharedStrings() const { return m_sharedStrings; }
    // Ids and codes of the number formats of the columns that were exported last.
    const QList<QPair<int, QString>> &numberFormats() const { return m_numberFormats; }
    // What the last export or import found wrong.
    const Findings &findings() const { return m_findings; }

    // ---- Writing ------------------------------------------------------------------------------------------
    // Makes the folders of a package and writes the parts that are the same for every plan.
    void initExport(const QString &path);
    void createContent(); // "[Content_Types].xml"
    void createApp();     // "docProps/app.xml"
    void createCore();    // "docProps/core.xml", with the time of the export
    void createOthers();  // the workbook, all relationships, the theme, the printer settings
    void createSharedString();

    // ---- Reading ------------------------------------------------------------------------------------------
    // Replaces the shared strings by those of an unpacked package: one entry for each "si", the texts of its
    // runs joined. A missing part leaves the list empty; false when it is no sound XML.
    bool praserShareStrXml(const QString &folder);

protected:
    static QString withSlash(const QString &folder); // behind it
    // The index of a text among the shared strings, which takes it up, cleaned, when it is new.
    int sharedStringIndex(const QString &text);
    // Forgets what the last export has left.
    void startExport();
    // Writes one part; `name` is relative to the package's folder. What fails is found in findings().
    void writePart(const QString &name, const std::function<void(PartWriter &)> &write);
    bool isWhole() const { return m_isWhole; }
    void fail(const QString &place, const QString &what);

    QString m_path; // the package's folder; ends with "/"
    QString m_currencyFormat;
    QString m_dateTimeFormat;
    KWDocument *m_document;
    QStringList m_sharedStrings;
    QHash<QString, int> m_stringIndex;
    int m_stringCells = 0; // written so far
    QList<QPair<int, QString>> m_numberFormats;
    Findings m_findings;

private:
    bool m_isWhole = true; // the package, as far as it is written
};
