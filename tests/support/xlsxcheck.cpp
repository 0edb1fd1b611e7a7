#include "support/xlsxcheck.h"
#include "support/folder.h"
#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <functional>

namespace {

const QString main = QStringLiteral("http://schemas.openxmlformats.org/spreadsheetml/2006/main");
const QString officeRelations =
    QStringLiteral("http://schemas.openxmlformats.org/officeDocument/2006/relationships");

class Package
{
public:
    explicit Package(const QString &folder)
    {
        const QString root = QDir(folder).absolutePath() + '/';
        QDirIterator files(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const QString name = path.mid(root.size());
            m_names.insert(name);
            QDomDocument part;
            QString error;
            if (!name.endsWith(".bin") && !part.setContent(folder::get(path), true, &error))
                fault(name, error);
            m_parts.insert(name, part);
        }
    }
    QDomElement root(const QString &name) const { return m_parts.value(name).documentElement(); }
    const std::string &faults() const { return m_faults; }
    void check()
    {
        checkTypes();
        checkRelations();
        checkSheets();
    }

private:
    void fault(const QString &name, const QString &what)
    {
        m_faults += name.toStdString() + ": " + what.toStdString() + '\n';
    }
    static void visit(const QDomElement &element, const std::function<void(const QDomElement &)> &look)
    {
        look(element);
        for (QDomElement e = element.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
            visit(e, look);
    }
    void checkTypes()
    {
        QSet<QString> extensions;
        QSet<QString> overrides;
        const QString list = "[Content_Types].xml";
        for (QDomElement e = root(list).firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
            const QString part = e.attribute("PartName").mid(1);
            if (e.tagName() == "Default")
                extensions.insert(e.attribute("Extension"));
            else if (!m_names.contains(part))
                fault(list, "there is no " + part);
            overrides.insert(part);
        }
        for (const QString &name : m_names) {
            if (name != list && !overrides.contains(name) && !extensions.contains(name.section('.', -1)))
                fault(name, "has no type");
        }
    }
    void checkRelations()
    {
        QMap<QString, QSet<QString>> idsOf;
        for (const QString &name : m_names) {
            if (!name.endsWith(".rels"))
                continue;
            const QString folder = name.left(name.indexOf("_rels/"));
            QSet<QString> &ids = idsOf[folder + name.section('/', -1).chopped(5)];
            for (QDomElement e = root(name).firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
                if (!m_names.contains(QDir::cleanPath(folder + e.attribute("Target"))))
                    fault(name, "no target " + e.attribute("Target"));
                if (ids.contains(e.attribute("Id")))
                    fault(name, "twice " + e.attribute("Id"));
                ids.insert(e.attribute("Id"));
            }
        }
        for (const QString &name : m_names) {
            visit(root(name), [&](const QDomElement &e) {
                const QString id = e.attributeNS(officeRelations, "id");
                if (!id.isEmpty() && !idsOf[name].contains(id))
                    fault(name, "no relationship " + id);
            });
        }
    }
    int count(const char *part, const char *list, const char *element)
    {
        const QDomElement parent = *list ? root(part).firstChildElement(list) : root(part);
        const int children = parent.elementsByTagName(element).size();
        const QString said = parent.attribute(parent.hasAttribute("uniqueCount") ? "uniqueCount" : "count");
        if (said != QString::number(children))
            fault(part, QString("%1 says %2 and holds %3").arg(parent.tagName(), said).arg(children));
        return children;
    }
    void below(const QString &name, const QDomElement &e, const char *attribute, int count)
    {
        if (e.hasAttribute(attribute) && e.attribute(attribute).toInt() >= count)
            fault(name, QString("%1 %2 of %3").arg(attribute, e.attribute(attribute)).arg(count));
    }
    void checkSheets()
    {
        const char styles[] = "xl/styles.xml";
        const int strings = count("xl/sharedStrings.xml", "", "si");
        const int fonts = count(styles, "fonts", "font");
        const int formats = count(styles, "cellXfs", "xf");
        count(styles, "fills", "fill");
        count(styles, "borders", "border");
        QSet<QString> ownFormats;
        int stringCells = 0;
        visit(root(styles), [&](const QDomElement &e) {
            below(styles, e, "fontId", fonts);
            if (e.tagName() == "numFmt")
                ownFormats.insert(e.attribute("numFmtId"));
            else if (e.attribute("numFmtId").toInt() >= 164 && !ownFormats.contains(e.attribute("numFmtId")))
                fault(styles, "no number format " + e.attribute("numFmtId"));
            if (e.tagName() == "numFmts" && e.firstChildElement().isNull())
                fault(styles, "an empty list of number formats");
        });
        for (int sheet = 1; sheet <= 3; ++sheet) {
            const QString name = QString("xl/worksheets/sheet%1.xml").arg(sheet);
            if (root(name).namespaceURI() != main)
                fault(name, "is no worksheet");
            int lastRow = 0;
            int lastColumn = 0;
            visit(root(name), [&](const QDomElement &e) {
                below(name, e, "fontId", fonts);
                if (e.tagName() == "row") {
                    if (e.attribute("r").toInt() != ++lastRow)
                        fault(name, "row " + e.attribute("r"));
                    lastColumn = 0;
                }
                if (e.tagName() != "c")
                    return;
                const int column = e.attribute("r").at(0).unicode() - 'A' + 1;
                if (e.attribute("r") != QString(e.attribute("r").at(0)) + QString::number(lastRow) ||
                    column <= lastColumn || column > 26)
                    fault(name, "cell " + e.attribute("r"));
                lastColumn = column;
                below(name, e, "s", formats);
                if (e.attribute("t") == "s") {
                    ++stringCells;
                    if (e.firstChildElement("v").text().toInt() >= strings)
                        fault(name, "no string for " + e.attribute("r"));
                }
            });
        }
        if (root("xl/sharedStrings.xml").attribute("count").toInt() != stringCells)
            fault("xl/sharedStrings.xml", "count");
    }

    QSet<QString> m_names;
    QMap<QString, QDomDocument> m_parts;
    std::string m_faults;
};
}

std::string xlsxcheck::faults(const QString &folder)
{
    Package package(folder);
    package.check();
    return package.faults();
}

std::string xlsxcheck::cells(const QString &folder, int sheet)
{
    const Package package(folder);
    QStringList strings;
    const QDomElement list = package.root("xl/sharedStrings.xml");
    for (QDomElement si = list.firstChildElement(); !si.isNull(); si = si.nextSiblingElement()) {
        const QDomElement t = si.firstChildElement("t");
        const bool isKept = t.attributeNS("http://www.w3.org/XML/1998/namespace", "space") == "preserve";
        strings.append(isKept ? t.text() : t.text().trimmed());
    }
    std::string text;
    const QDomElement data =
        package.root(QString("xl/worksheets/sheet%1.xml").arg(sheet)).firstChildElement("sheetData");
    for (QDomElement row = data.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        QStringList line;
        for (QDomElement c = row.firstChildElement(); !c.isNull(); c = c.nextSiblingElement()) {
            const QString value = c.firstChildElement("v").text();
            line.append((c.attribute("t") == "s" ? strings.value(value.toInt(), "?") : '#' + value) +
                        (c.hasAttribute("s") ? '{' + c.attribute("s") + '}' : QString()));
        }
        text += line.join('|').toStdString() + '\n';
    }
    return text;
}
