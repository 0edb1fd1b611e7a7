#include "engine/time/duration.h"
#include "model/kwdocument.h"
#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>
#include <iterator>

namespace {

constexpr double indentWidthPixels = 40;

void loadText(QTextDocument &document, const QString &text)
{
    document.setUndoRedoEnabled(false);
    document.setIndentWidth(indentWidthPixels);
    // Everyday texts have "<" and "&" in them: only what looks like markup is read as such.
    if (Qt::mightBeRichText(text))
        document.setHtml(text);
    else
        document.setPlainText(text);
}

// As toPlainText(), but with the blanks that do not break.
QString plainText(const QTextDocument &document)
{
    QString text = document.toRawText();
    return text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
}

struct Search
{
    QString find;
    Qt::CaseSensitivity sensitivity;
    bool wholeWords;

    Search(const QString &text, bool caseSensitive, bool whole)
        : find(text)
        , sensitivity(caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive)
        , wholeWords(whole)
    {
    }
    // The next hit at or after `place`; -1 when there is none. `before` is the sign that stands before
    // `place`.
    int next(const QString &text, int place, QChar before) const
    {
        for (;; ++place) {
            const int begin = place;
            place = text.indexOf(find, begin, sensitivity);
            if (place < 0 || !wholeWords)
                return place;
            const QChar left = place > begin ? text.at(place - 1) : before;
            const int end = place + find.size();
            if (!left.isLetterOrNumber() && (end == text.size() || !text.at(end).isLetterOrNumber()))
                return place;
            before = text.at(place);
        }
    }
};

// A paragraph as it is searched: a blank that does not break is a blank.
QString searchedText(const QTextBlock &block)
{
    return block.text().replace(QChar(QChar::Nbsp), QLatin1Char(' '));
}

// The places of all hits in the document, as they are met when each is replaced before the next one is looked
// for.
QVector<int> hits(const QTextDocument &document, const Search &search, const QString &replace)
{
    QVector<int> places;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString text = searchedText(block);
        QChar before;
        int begin = 0;
        for (int hit; (hit = search.next(text, begin, before)) >= 0; begin = hit + search.find.size()) {
            places.append(block.position() + hit);
            if (!replace.isEmpty())
                before = replace.back();
            else if (hit > begin)
                before = text.at(hit - 1);
        }
    }
    return places;
}
}

QMap<unsigned int, QString> KWDocument::s_longUnitNames{
    {0, QStringLiteral("Year")},  {1, QStringLiteral("Quarter")}, {2, QStringLiteral("Month")},
    {3, QStringLiteral("Week")},  {4, QStringLiteral("Workday")}, {5, QStringLiteral("Hour")},
    {6, QStringLiteral("Minute")}};

QString KWDocument::getNameByMinorUnit(unsigned int unit, bool longName)
{
    if (unit >= duration::unitCount)
        return QString();
    return longName ? s_longUnitNames.value(unit) : QString::fromLatin1(duration::shortUnitName(unit));
}

double KWDocument::getTextWidth(const QString &text, const QFont &font)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

QString KWDocument::getElidedText(const QString &text, double width, const QFont &font)
{
    if (getTextWidth(text, font) <= width)
        return text;
    return QFontMetricsF(font).elidedText(text, Qt::ElideRight, width);
}

bool KWDocument::findTextStr(const QString &text, const QString &find, bool caseSensitive, bool wholeWords)
{
    if (text.isEmpty() || find.isEmpty())
        return false;
    QTextDocument document;
    loadText(document, text);
    const Search search(find, caseSensitive, wholeWords);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (search.next(searchedText(block), 0, QChar()) >= 0)
            return true;
    }
    return false;
}

bool KWDocument::replaceTextStr(QString &text, const QString &find, const QString &replace,
                                bool caseSensitive, bool wholeWords, bool)
{
    if (text.isEmpty() || find.isEmpty() || find == replace)
        return false;
    QTextDocument document;
    loadText(document, text);
    const QVector<int> places = hits(document, Search(find, caseSensitive, wholeWords), replace);
    if (places.isEmpty())
        return false;

    // From the last to the first, so that the places of the others hold.
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (auto place = places.crbegin(); place != places.crend(); ++place) {
        cursor.setPosition(*place);
        cursor.setPosition(*place + find.size(), QTextCursor::KeepAnchor);
        cursor.insertText(replace);
    }
    cursor.endEditBlock();
    text = Qt::mightBeRichText(text) ? document.toHtml() : plainText(document);
    return true;
}
