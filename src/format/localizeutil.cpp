#include "format/localizeutil.h"
#include "kwfilepathmanager.h"
#include "kwversion.h"
#include <QCoreApplication>
#include <QDomDocument>

QMap<unsigned int, QString> LocalizeUtil::s_mapLocStrs;
QMap<unsigned int, QString> LocalizeUtil::s_undoString;

namespace {

// A child of the root is a text; its key is its "ID", or its place when it has none.
void readStrings(const QDomElement &root, QMap<unsigned int, QString> &strings)
{
    unsigned int place = 0;
    for (QDomElement entry = root.firstChildElement(); !entry.isNull(); entry = entry.nextSiblingElement()) {
        bool numbered = false;
        const unsigned int id = entry.attribute(QStringLiteral("ID")).toUInt(&numbered);
        strings.insert(numbered ? id : place, entry.attribute(QStringLiteral("Name")));
        ++place;
    }
}
}

QString LocalizeUtil::localStr(unsigned int id)
{
    static bool loaded = false;
    if (!loaded) {
        loaded = true; // a missing file counts as loaded
        const QString path = QCoreApplication::applicationDirPath() + QLatin1String("/Config/LocalStrings_") +
                             KWVersion::langBrev() + QLatin1String(".xml");
        QDomDocument document;
        if (KWFilePathManager::loadXmlFile(path, document))
            readStrings(document.documentElement(), s_mapLocStrs);
    }
    return s_mapLocStrs.value(id);
}

QString LocalizeUtil::undoName(unsigned int code)
{
    return s_undoString.value(code);
}
