#include "texts.h"
#include "exchange/XLSXDataBase.h"
#include "exchange/exceltitles.h"
#include "model/kwdocument.h"
#include "resources/resourceinfodata.h"
#include "table/rowcolumndata.h"

namespace {

const LanguageTexts *allLanguages[] = {&englishTexts()};
const LanguageTexts *chosen = nullptr;
}

namespace texts {

bool choose(const QString &language)
{
    // "en_GB.UTF-8" asks for "en".
    const QString code = language.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
    for (const LanguageTexts *candidate : allLanguages) {
        if (candidate->code == code) {
            chosen = candidate;
            return true;
        }
    }
    return false;
}

QStringList languages()
{
    QStringList codes;
    for (const LanguageTexts *language : allLanguages)
        codes.append(language->code);
    return codes;
}

const LanguageTexts &current()
{
    return chosen ? *chosen : englishTexts();
}

void fillLibraryTables()
{
    KWDocument::s_longUnitNames = current().longUnitNames;
    RowColumnData::s_columnNames = current().columnTitles;
    ResourceInfoData::s_typeItems = current().resourceTypes;
    ExcelTitles::s_resourcNames = current().resourceTitles;
    ExcelTitles::s_strResourceList = current().resourceTitles.values();
    ExcelTitles::s_workAssignNames = current().assignmentTitles;
    ExcelTitles::s_strWorkAssignList = current().assignmentTitles.values();
    XLSXDataBase::s_xmlNameList = current().sheetNames;
}
}

QString t(const char *english)
{
    const QHash<QByteArray, QString> &sentences = texts::current().sentences;
    if (!sentences.isEmpty()) {
        const auto found = sentences.constFind(QByteArray(english));
        if (found != sentences.constEnd())
            return found.value();
    }
    return QString::fromUtf8(english);
}

QString counted(qint64 number, const char *one, const char *many)
{
    return t(number == 1 ? one : many).arg(grouped(number));
}

QString grouped(qint64 number)
{
    QString digits = QString::number(number);
    const int first = number < 0 ? 1 : 0;
    for (int at = digits.size() - 3; at > first; at -= 3)
        digits.insert(at, QLatin1Char(','));
    return digits;
}
