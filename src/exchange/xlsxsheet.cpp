#include "exchange/xlsxsheet.h"
#include "exchange/cellvalues.h"
#include "support/kwlimits.h"
#include "support/said.h"
#include "support/xmlguard.h"
#include <QDir>
#include <QDomElement>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <charconv>

using sheetrows::Cell;
using sheetrows::Row;

namespace xlsx {
namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// The number that a row gives itself; the one after the row before for all other texts.
int rowNumberOf(std::string_view text, int before)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && number > 0 ? number : before + 1;
}

bool looksLikeNumber(const QString &text)
{
    bool hasDigit = false;
    for (const QChar sign : text) {
        const ushort c = sign.unicode();
        if (c >= '0' && c <= '9')
            hasDigit = true;
        else if (c != '.' && c != '-' && c != '+' && c != 'e' && c != 'E')
            return false;
    }
    return hasDigit;
}

// "2026-03-16T08:00:00.000Z" as the program's date texts are written.
QString plainDate(const QString &text)
{
    constexpr int length = 19;
    QString plain = text.left(length);
    const int timeAt = plain.indexOf(QLatin1Char('T'));
    if (timeAt >= 0)
        plain[timeAt] = QLatin1Char(' ');
    return plain.endsWith(QLatin1Char('Z')) ? plain.chopped(1) : plain;
}

// sheet2 stands before sheet10.
struct NumberedName
{
    QString stem;
    int number = -1;
    QString name;

    explicit NumberedName(const QString &file)
        : name(file)
    {
        stem = QFileInfo(file).completeBaseName();
        int digits = 0;
        while (digits < stem.size() && stem.at(stem.size() - 1 - digits).isDigit())
            ++digits;
        bool isNumber = false;
        const int read = stem.right(digits).toInt(&isNumber);
        if (isNumber) {
            number = read;
            stem.chop(digits);
        }
    }
    bool operator<(const NumberedName &other) const
    {
        return std::tie(stem, number, name) < std::tie(other.stem, other.number, other.name);
    }
};
}

int columnOf(std::string_view reference)
{
    constexpr int maxLetters = 2;
    constexpr int letters = 26;
    int column = 0;
    int count = 0;
    for (const char sign : reference) {
        if (isDigit(sign))
            continue;
        if (sign < 'A' || sign > 'Z' || ++count > maxLetters)
            return 0;
        column = column * letters + (sign - 'A' + 1);
    }
    return column;
}

// ---- Parts ------------------------------------------------------------------------------------------------

QByteArray readPart(const QString &path, QString *error)
{
    QFile file(path);
    const auto fail = [error](const QString &what) {
        if (error)
            *error = what;
        return QByteArray();
    };
    if (!QFileInfo(path).isFile())
        return fail(KW_TEXT("there is no such part"));
    if (file.size() > kwzip::maxEntryBytes)
        return fail(KW_TEXT("the part is too large"));
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    return XmlPull::toUtf8(file.readAll());
}

namespace {

const QLatin1String escapeMark("_x00");
constexpr int escapeLength = 7;         // _x000D_
constexpr int escapedUnderscore = 0x5f; // before what only looks like an escape

// The character that an escape at this place stands for; -1 when there is none.
int escapedAt(const QString &text, int at)
{
    constexpr int firstPrintable = 0x20;
    const QStringRef part = text.midRef(at, escapeLength);
    if (part.size() < escapeLength || !part.startsWith(escapeMark) || !part.endsWith(QLatin1Char('_')))
        return -1;
    bool isNumber = false;
    const int code = part.mid(2, 4).toUShort(&isNumber, 16);
    return isNumber && (code < firstPrintable || code == escapedUnderscore) ? code : -1;
}
}

QString withoutEscapes(const QString &text)
{
    int at = text.indexOf(escapeMark);
    if (at < 0)
        return text;
    QString plain = text.left(at);
    while (at < text.size()) {
        const int code = escapedAt(text, at);
        plain += code < 0 ? text.at(at) : QChar(code);
        at += code < 0 ? 1 : escapeLength;
    }
    return xmlguard::clean(plain);
}

QString withEscapes(const QString &text)
{
    QString escaped = text;
    for (int at = text.lastIndexOf(escapeMark); at >= 0;
         at = at > 0 ? text.lastIndexOf(escapeMark, at - 1) : -1) {
        if (escapedAt(text, at) >= 0)
            escaped.replace(at, 1, QLatin1String("_x005F_"));
    }
    return escaped;
}

bool readSharedStrings(const QByteArray &part, QStringList &strings, QString *error, int *oddReferences)
{
    constexpr int entryDepth = 2;
    XmlPull xml(part);
    QString entry;
    for (XmlPull::Token token = xml.next(); token != XmlPull::Finished; token = xml.next()) {
        if (token == XmlPull::Failed) {
            if (error)
                *error = xml.error();
            return false;
        }
        if (token == XmlPull::Begin && xml.depth() == entryDepth) {
            if (xml.is("si"))
                entry.clear();
            else
                xml.skip();
        } else if (token == XmlPull::Begin && xml.is("rPh")) {
            xml.skip();
        } else if (token == XmlPull::Begin && xml.is("t")) {
            const QString text = xml.textOfElement();
            entry = entry.isEmpty() ? text : entry + text;
        } else if (token == XmlPull::End && xml.depth() == entryDepth) {
            strings.append(withoutEscapes(entry));
        }
    }
    if (oddReferences)
        *oddReferences = xml.oddReferences();
    return true;
}

bool is1904(const QByteArray &part)
{
    XmlPull xml(part);
    XmlPull::Token token = xml.next();
    while (token != XmlPull::Finished && token != XmlPull::Failed) {
        if (token == XmlPull::Begin && xml.is("workbookPr")) {
            const QString flag = xml.attribute("date1904");
            return flag == QLatin1String("1") || flag == QLatin1String("true");
        }
        token = xml.next();
    }
    return false;
}

bool readNumberFormats(const QByteArray &part, QList<QPair<int, QString>> &formats)
{
    XmlPull xml(part);
    XmlPull::Token token = xml.next();
    while (token != XmlPull::Finished && token != XmlPull::Failed) {
        if (token == XmlPull::Begin && xml.is("numFmt"))
            formats.append({xml.attribute("numFmtId").toInt(), xml.attribute("formatCode")});
        token = xml.next();
    }
    return token == XmlPull::Finished;
}

std::vector<bool> percentStyles(const QByteArray &part)
{
    QSet<int> percentFormats{9, 10}; // those that every program knows
    QList<QPair<int, QString>> codes;
    readNumberFormats(part, codes);
    for (const auto &[id, code] : qAsConst(codes)) {
        if (cellvalues::showsPercent(code))
            percentFormats.insert(id);
    }
    std::vector<bool> styles;
    bool isCells = false;
    XmlPull xml(part);
    for (XmlPull::Token token = xml.next(); token != XmlPull::Finished && token != XmlPull::Failed;
         token = xml.next()) {
        if (xml.is("cellXfs"))
            isCells = token == XmlPull::Begin;
        else if (isCells && token == XmlPull::Begin && xml.is("xf"))
            styles.push_back(percentFormats.contains(xml.attribute("numFmtId").toInt()));
    }
    return styles;
}

QStringList sheetFiles(const QString &folder)
{
    std::vector<NumberedName> names;
    for (const QString &file : QDir(folder).entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name))
        names.emplace_back(file);
    std::sort(names.begin(), names.end());
    QStringList files;
    for (const NumberedName &name : names)
        files.append(name.name);
    return files;
}

QStringList relatedSheets(const QByteArray &workbook, const QByteArray &relations)
{
    QHash<QString, QString> targets;
    XmlPull related(relations);
    XmlPull::Token token = related.next();
    for (; token != XmlPull::Finished && token != XmlPull::Failed; token = related.next()) {
        if (token != XmlPull::Begin || !related.is("Relationship") ||
            !related.attribute("Type").endsWith(QLatin1String("/worksheet")))
            continue;
        const QString target = QDir::cleanPath(related.attribute("Target"));
        const QLatin1String root("/xl/"); // a target may be named from the package's root
        const QString path = target.startsWith(root) ? target.mid(root.size()) : target;
        if (!path.startsWith(QLatin1Char('/')) && !path.startsWith(QLatin1String("..")))
            targets.insert(related.attribute("Id"), path);
    }
    QStringList files;
    XmlPull sheets(workbook);
    for (token = sheets.next(); token != XmlPull::Finished && token != XmlPull::Failed;
         token = sheets.next()) {
        if (token == XmlPull::Begin && sheets.is("sheet") && targets.contains(sheets.attribute("r:id")))
            files.append(targets.take(sheets.attribute("r:id")));
    }
    return files;
}

// ---- Cells ------------------------------------------------------------------------------------------------

CellKind CellKind::of(std::string_view typeAttribute)
{
    if (typeAttribute == "s")
        return {Shared};
    if (typeAttribute.empty() || typeAttribute == "n")
        return {Number};
    return {typeAttribute == "d" ? Date : Text};
}

Cell cellOf(int column, CellKind kind, const QString &value, const QStringList &strings)
{
    switch (kind.type) {
    case CellKind::Shared: {
        bool isNumber = false;
        const int index = value.trimmed().toInt(&isNumber);
        return {column, isNumber ? strings.value(index) : QString(), false};
    }
    case CellKind::Number: {
        const QString trimmed = value.trimmed();
        return looksLikeNumber(trimmed) ? Cell{column, trimmed, true} : Cell{column, value, false};
    }
    case CellKind::Date:
        return {column, plainDate(value), false};
    case CellKind::Text:
        break;
    }
    return {column, withoutEscapes(value), false};
}

// ---- Doubts -----------------------------------------------------------------------------------------------

namespace {

// Whether a reference is letters and then the number of a row.
bool hasRow(std::string_view reference)
{
    std::size_t at = 0;
    while (at < reference.size() && !isDigit(reference[at]))
        ++at;
    return at > 0 && at < reference.size() && reference[at] != '0' &&
           std::all_of(reference.begin() + std::ptrdiff_t(at), reference.end(), isDigit);
}

// The column that a reference gives, from 1; 0 when it gives none.
int columnWithDoubts(std::string_view reference, int row, Doubts &doubts)
{
    const int column = columnOf(reference);
    if (column > 0 && hasRow(reference))
        return column;
    if (doubts.firstReference.isEmpty()) {
        constexpr int shownUnits = 20;
        const auto text = QString::fromUtf8(reference.data(), int(reference.size())).left(shownUnits);
        doubts.firstReference = QStringLiteral("\"%1\" in row %2").arg(text).arg(row);
    }
    ++(column > 0 ? doubts.rowReferences : doubts.references);
    return column;
}
}

void tellOddReferences(Findings &findings, const QString &part, int references)
{
    if (references > 0)
        findings.add(part, KW_TEXT("%1 references in texts stand for no character").arg(references),
                     KW_TEXT("control characters left out, unknown names as they are written"));
}

void Doubts::addTo(Findings &findings, const QString &sheet) const
{
    tellOddReferences(findings, sheet, oddReferences);
    if (references > 0)
        findings.add(sheet,
                     KW_TEXT("the places of %1 cells are not understood, the first is %2")
                         .arg(references)
                         .arg(firstReference),
                     KW_TEXT("left out"));
    if (rowReferences > 0)
        findings.add(sheet,
                     KW_TEXT("the places of %1 cells name no row, the first is %2")
                         .arg(rowReferences)
                         .arg(firstReference),
                     KW_TEXT("taken as cells of the rows that hold them"));
    if (emptyFormulas > 0)
        findings.add(
            sheet,
            KW_TEXT("%1 formulas have no value, the first in row %2").arg(emptyFormulas).arg(firstFormula),
            KW_TEXT("left out: save the workbook with a program that calculates them"));
}

// ---- A worksheet as text ----------------------------------------------------------------------------------

SheetSource::SheetSource(const QByteArray &part, const QStringList &strings,
                         const std::vector<bool> *percentStyles)
    : m_strings(strings)
    , m_percentStyles(percentStyles)
    , m_xml(part)
{
    m_isWorksheet = m_xml.next() == XmlPull::Begin && m_xml.is("worksheet");
}

Doubts SheetSource::doubts() const
{
    Doubts doubts = m_doubts;
    doubts.oddReferences = m_xml.oddReferences();
    return doubts;
}

bool SheetSource::next(Row &row)
{
    constexpr int rowDepth = 3; // in sheetData in the worksheet
    row.cells.clear();
    while (!m_hasEnded) {
        const XmlPull::Token token = m_xml.next();
        if (token == XmlPull::Begin && m_xml.depth() == rowDepth && m_xml.is("row")) {
            m_rowNumber = row.number = rowNumberOf(m_xml.rawAttribute("r"), m_rowNumber);
            m_column = 0;
        } else if (token == XmlPull::Begin && m_xml.depth() == rowDepth + 1 && m_xml.is("c")) {
            readCell(row);
        } else if (token == XmlPull::End && m_xml.depth() == rowDepth && m_xml.is("row")) {
            return true;
        } else if (token == XmlPull::Begin && m_xml.depth() == 2 && !m_xml.is("sheetData")) {
            m_xml.skip();
        } else if (token == XmlPull::Finished || token == XmlPull::Failed) {
            m_hasEnded = true;
        }
    }
    return false;
}

void SheetSource::readCell(Row &row)
{
    const int cellDepth = m_xml.depth();
    const std::string_view reference = m_xml.rawAttribute("r");
    const CellKind kind = CellKind::of(m_xml.rawAttribute("t"));
    const std::string_view styleText = m_xml.rawAttribute("s");
    int style = -1;
    std::from_chars(styleText.data(), styleText.data() + styleText.size(), style);
    const int column = reference.data() ? columnWithDoubts(reference, row.number, m_doubts) : m_column + 1;
    if (column > 0)
        m_column = column;

    QString value;
    QString inlineText;
    int index = -1; // of a shared string
    bool hasValue = false;
    bool hasInlineText = false;
    bool hasFormula = false;
    for (XmlPull::Token token = m_xml.next(); token != XmlPull::Finished && token != XmlPull::Failed;
         token = m_xml.next()) {
        if (token == XmlPull::End && m_xml.depth() == cellDepth)
            break;
        if (token != XmlPull::Begin)
            continue;
        if (m_xml.is("v") && !hasValue) {
            index = kind.type == CellKind::Shared ? m_xml.numberOfElement() : -1;
            if (index < 0)
                value = m_xml.textOfElement();
            hasValue = true;
        } else if (m_xml.is("is") && !hasInlineText) {
            inlineText = readInlineText();
            hasInlineText = true;
        } else {
            hasFormula = hasFormula || m_xml.is("f");
            m_xml.skip();
        }
    }
    // An empty text may be what a formula gives, an empty number is not.
    const bool isEmpty = !hasValue || (kind.type == CellKind::Number && value.isEmpty());
    if (hasFormula && isEmpty && !hasInlineText && m_doubts.emptyFormulas++ == 0)
        m_doubts.firstFormula = QString::number(row.number);
    if (column > 0 && hasInlineText)
        row.cells.push_back({column, withoutEscapes(inlineText), false});
    else if (column > 0 && index >= 0)
        row.cells.push_back({column, m_strings.value(index), false});
    else if (column > 0 && hasValue)
        row.cells.push_back(cellOf(column, kind, value, m_strings));
    else
        return;
    Cell &cell = row.cells.back();
    cell.isPercent = cell.isNumber && style >= 0 && m_percentStyles && style < int(m_percentStyles->size()) &&
                     (*m_percentStyles)[std::size_t(style)];
}

QString SheetSource::readInlineText()
{
    QString text;
    const int depth = m_xml.depth();
    for (XmlPull::Token token = m_xml.next(); token != XmlPull::Finished && token != XmlPull::Failed;
         token = m_xml.next()) {
        if (token == XmlPull::End && m_xml.depth() == depth)
            break;
        if (token == XmlPull::Begin && m_xml.is("t"))
            text += m_xml.textOfElement();
        else if (token == XmlPull::Begin && m_xml.is("rPh"))
            m_xml.skip();
    }
    return text;
}

// ---- A worksheet as a DOM ---------------------------------------------------------------------------------

namespace {

std::string_view view(const QByteArray &bytes)
{
    return std::string_view(bytes.constData(), std::size_t(bytes.size()));
}

QString localName(const QDomNode &node)
{
    const QString name = node.nodeName();
    return name.mid(name.indexOf(QLatin1Char(':')) + 1);
}

QDomElement firstChild(const QDomElement &parent, const char *name)
{
    QDomElement child = parent.firstChildElement();
    while (!child.isNull() && localName(child) != QLatin1String(name))
        child = child.nextSiblingElement();
    return child;
}

// The element's own text, like the pull parser's; QDomElement::text() adds that of the elements inside.
QString ownText(const QDomElement &element)
{
    QString text;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText() || child.isCDATASection())
            text += child.nodeValue();
    }
    return text;
}

// The texts of the "t" elements, runs included.
QString inlineTextOf(const QDomElement &inlineString)
{
    QString text;
    for (QDomElement child = inlineString.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (localName(child) == QLatin1String("t"))
            text += ownText(child);
        else if (localName(child) == QLatin1String("r"))
            text += inlineTextOf(child);
    }
    return text;
}
}

bool DomSheetSource::next(Row &row)
{
    row.cells.clear();
    // Comments may stand among the rows.
    while (m_next < m_rows.count() && localName(m_rows.at(m_next)) != QLatin1String("row"))
        ++m_next;
    if (m_next >= m_rows.count())
        return false;
    const QDomElement rowElement = m_rows.at(m_next++).toElement();
    const QByteArray number = rowElement.attribute(QStringLiteral("r")).toLatin1();
    m_rowNumber = row.number = rowNumberOf(view(number), m_rowNumber);
    int before = 0;
    for (QDomElement cell = rowElement.firstChildElement(); !cell.isNull();
         cell = cell.nextSiblingElement()) {
        if (localName(cell) != QLatin1String("c"))
            continue;
        const QByteArray reference = cell.attribute(QStringLiteral("r")).toUtf8();
        const int column = cell.hasAttribute(QStringLiteral("r")) ? columnOf(view(reference)) : before + 1;
        if (column < 1)
            continue;
        before = column;
        const QDomElement inlineString = firstChild(cell, "is");
        const QDomElement value = firstChild(cell, "v");
        if (!inlineString.isNull())
            row.cells.push_back({column, withoutEscapes(xmlguard::clean(inlineTextOf(inlineString))), false});
        else if (!value.isNull())
            row.cells.push_back(cellOf(column,
                                       CellKind::of(view(cell.attribute(QStringLiteral("t")).toLatin1())),
                                       xmlguard::clean(ownText(value)), m_strings));
    }
    return true;
}
}
