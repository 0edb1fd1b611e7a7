#include "texts.h"
#include "edits/editanswer.h"
#include "exchange/XLSXDataBase.h"
#include "exchange/exceltitles.h"
#ifdef KW_WITH_EXPORT
#include "export/exportoptions.h"
#endif
#include "model/kwdocument.h"
#include "resources/resourceinfodata.h"
#include "table/customtable.h"
#include "table/rowcolumndata.h"
#include <QFile>
#include <QHash>
#include <QTranslator>
#include <QXmlStreamReader>
#include <algorithm>
#include <vector>

// A macro, and it wants to stand outside of all namespaces.
static void initCatalogues()
{
    Q_INIT_RESOURCE(catalogues);
}

namespace {

constexpr const char *allLanguages[] = {"en", "de", "zh"};

// A text with gaps, cut at them: "row %1, '%2'" is "row ", ", '" and "'".
struct Pattern
{
    QStringList pieces;
    QVector<int> gaps;   // the number of the gap behind each piece but the last
    QString translation; // with the same gaps
    int letters = 0;     // how much of it is fixed
};

constexpr int noGap = 0;

int gapAt(const QString &text, int at)
{
    const bool isGap = text.at(at) == QLatin1Char('%') && at + 1 < text.size() &&
                       text.at(at + 1) >= QLatin1Char('1') && text.at(at + 1) <= QLatin1Char('9');
    return isGap ? text.at(at + 1).digitValue() : noGap;
}

Pattern patternOf(const QString &english, const QString &translation)
{
    Pattern pattern;
    pattern.translation = translation;
    pattern.pieces.append(QString());
    for (int at = 0; at < english.size(); ++at) {
        if (const int gap = gapAt(english, at)) {
            pattern.gaps.append(gap);
            pattern.pieces.append(QString());
            ++at;
        } else {
            pattern.pieces.last() += english.at(at);
            ++pattern.letters;
        }
    }
    return pattern;
}

// What stands in the gaps of `text`, by their numbers; empty when it is no text of this pattern. The last
// piece is looked for from the end, so that a gap may hold anything.
QStringList filling(const Pattern &pattern, const QString &text)
{
    QStringList found;
    for (int i = 0; i < 10; ++i)
        found.append(QString());
    int at = pattern.pieces.first().size();
    const int end = text.size() - pattern.pieces.last().size();
    if (end < at || !text.startsWith(pattern.pieces.first()) || !text.endsWith(pattern.pieces.last()))
        return QStringList();
    for (int i = 0; i < pattern.gaps.size(); ++i) {
        const bool isLast = i + 1 == pattern.gaps.size();
        const int next = isLast ? end : text.indexOf(pattern.pieces.at(i + 1), at);
        if (next < at || next > end)
            return QStringList();
        found[pattern.gaps.at(i)] = text.mid(at, next - at);
        at = next + (isLast ? 0 : pattern.pieces.at(i + 1).size());
    }
    return found;
}

// A user's word stands in quotes and is never translated, even if the catalogue has it.
bool isQuoted(const QString &text, int gap)
{
    return gap > 0 && (text.at(gap - 1) == QLatin1Char('\'') || text.at(gap - 1) == QLatin1Char('"'));
}

class Catalogue : public QTranslator
{
public:
    bool read(const QString &language)
    {
        m_sentences.clear();
        m_patterns.clear();
        m_libraryTexts.clear();
        if (language == QLatin1String(allLanguages[0]))
            return true;
        initCatalogues();
        QFile file(QStringLiteral(":/translations/kwgantt_%1.ts").arg(language));
        if (!file.open(QIODevice::ReadOnly))
            return false;
        QXmlStreamReader reader(&file);
        QByteArray source;
        QString context;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (reader.name() == QLatin1String("name")) {
                context = reader.readElementText();
            } else if (reader.name() == QLatin1String("source")) {
                source = reader.readElementText().toUtf8();
            } else if (reader.name() == QLatin1String("translation")) {
                // Unfinished ones, and those of texts that are gone, have a type.
                const bool isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
                const QString words = reader.readElementText();
                if (!isFinished || words.isEmpty())
                    continue;
                m_sentences.insert(source, words);
                if (context == QLatin1String("library") && source.contains('%'))
                    m_libraryTexts.append(source);
            }
        }
        return !reader.hasError();
    }

    QString sentence(const char *english) const
    {
        if (m_sentences.isEmpty())
            return QString();
        return m_sentences.value(QByteArray::fromRawData(english, int(qstrlen(english))));
    }

    QString said(const QString &english, int depth = 0) const
    {
        if (m_sentences.isEmpty() || english.isEmpty())
            return english;
        const QString whole = m_sentences.value(english.toUtf8());
        constexpr int deepest = 3; // gaps within gaps
        if (!whole.isEmpty() || depth > deepest)
            return whole.isEmpty() ? english : whole;
        for (const Pattern &pattern : patterns()) {
            const QStringList found = filling(pattern, english);
            if (!found.isEmpty())
                return filled(pattern, found, depth);
        }
        return english;
    }

    // ---- QTranslator ----
    bool isEmpty() const override { return m_sentences.isEmpty(); }
    QString translate(const char *, const char *english, const char *, int) const override
    {
        return sentence(english);
    }

private:
    QString filled(const Pattern &pattern, const QStringList &found, int depth) const
    {
        QString text;
        for (int at = 0; at < pattern.translation.size(); ++at) {
            const int gap = gapAt(pattern.translation, at);
            if (gap == noGap) {
                text += pattern.translation.at(at);
                continue;
            }
            text += isQuoted(pattern.translation, at) ? found.at(gap) : said(found.at(gap), depth + 1);
            ++at;
        }
        return text;
    }

    // Made when the first text asks for them. Those with the most fixed letters come first: they say most.
    const std::vector<Pattern> &patterns() const
    {
        if (!m_patterns.empty())
            return m_patterns;
        for (const QByteArray &english : m_libraryTexts)
            m_patterns.push_back(patternOf(QString::fromUtf8(english), m_sentences.value(english)));
        std::stable_sort(m_patterns.begin(), m_patterns.end(),
                         [](const Pattern &a, const Pattern &b) { return a.letters > b.letters; });
        return m_patterns;
    }

    QHash<QByteArray, QString> m_sentences; // by the English sentence
    QList<QByteArray> m_libraryTexts;       // those of the library that have gaps
    mutable std::vector<Pattern> m_patterns;
};

Catalogue &catalogue()
{
    static Catalogue it;
    return it;
}

const char *chosenLanguage = allLanguages[0];

// "zh_CN.UTF-8" and "zh-Hans" ask for "zh".
QString codeOf(const QString &locale)
{
    int length = 0;
    while (length < locale.size() && locale.at(length).isLetter())
        ++length;
    return locale.left(length).toLower();
}
}

namespace texts {

bool choose(const QString &language)
{
    const QString code = codeOf(language);
    for (const char *candidate : allLanguages) {
        if (code == QLatin1String(candidate) && catalogue().read(code)) {
            chosenLanguage = candidate;
            return true;
        }
    }
    return false;
}

void chooseFromEnvironment()
{
    QString locale;
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (locale.isEmpty())
            locale = QString::fromUtf8(qgetenv(name));
    const QString code = codeOf(locale);
    if (code.isEmpty() || code == QLatin1String("c") || code == QLatin1String("posix"))
        return;
    const QStringList wishes = QString::fromUtf8(qgetenv("LANGUAGE")).split(QLatin1Char(':'));
    for (const QString &wish : wishes + QStringList{locale})
        if (choose(wish))
            return;
}

QStringList languages()
{
    QStringList codes;
    for (const char *language : allLanguages)
        codes.append(QLatin1String(language));
    return codes;
}

QString chosen()
{
    return QLatin1String(chosenLanguage);
}

void fillLibraryTables()
{
    const EnglishTexts &english = englishTexts();
    KWDocument::s_longUnitNames = english.longUnitNames;
    RowColumnData::s_columnNames = english.columnTitles;
    ResourceInfoData::s_typeItems = english.resourceTypes;
    ExcelTitles::s_resourcNames = english.resourceTitles;
    ExcelTitles::s_strResourceList = english.resourceTitles.values();
    ExcelTitles::s_workAssignNames = english.assignmentTitles;
    ExcelTitles::s_strWorkAssignList = english.assignmentTitles.values();
    XLSXDataBase::s_xmlNameList = english.sheetNames;
    for (const QString &title : english.columnTitles)
        CustomTable::s_shownTitles.insert(title, t(title));
    CustomTable::s_shownTitles.insert(QLatin1String(CustomTable::placeTitle), t("No."));
#ifdef KW_WITH_EXPORT
    for (const QString &text : KWExportOptions::allTexts())
        KWExportOptions::s_shownTexts.insert(text, t(text));
#endif
    for (QMap<EditRefusal, QString> *sentences : {&EditAnswer::s_sentences, &EditAnswer::s_hints})
        for (QString &sentence : *sentences)
            sentence = t(sentence);
}

QString said(const QString &english)
{
    return catalogue().said(english);
}

QTranslator *translator()
{
    return &catalogue();
}
}

QString t(const char *english)
{
    const QString translation = catalogue().sentence(english);
    return translation.isNull() ? QString::fromUtf8(english) : translation;
}

QString t(const QString &english)
{
    const QString translation = catalogue().sentence(english.toUtf8().constData());
    return translation.isNull() ? english : translation;
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
