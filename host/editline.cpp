#include "editline.h"
#include "support/likeness.h"
#include "texts.h"

namespace editline {

namespace {

QChar unescaped(QChar c)
{
    if (c == QLatin1Char('n'))
        return QLatin1Char('\n');
    return c == QLatin1Char('t') ? QChar(QLatin1Char('\t')) : c;
}

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\r');
}

QString nameOf(const QString &word)
{
    return word.section(QLatin1Char('='), 0, 0).trimmed().toLower();
}
}

bool split(const QString &line, QStringList &words, options::Fault &fault)
{
    constexpr QChar outside;
    words.clear();
    if (line.trimmed().startsWith(QLatin1Char('#')))
        return true;
    QChar quote = outside;
    bool inWord = false;
    for (int i = 0; i < line.size(); ++i) {
        QChar c = line.at(i);
        if (quote == outside && isBlank(c)) {
            inWord = false;
            continue;
        }
        if (!inWord) {
            words.append(QString());
            inWord = true;
        }
        const bool isQuote = c == QLatin1Char('"') || c == QLatin1Char('\'');
        if (quote == outside && isQuote) {
            quote = c;
        } else if (c == quote) {
            quote = outside;
        } else {
            if (quote == QLatin1Char('"') && c == QLatin1Char('\\') && i + 1 < line.size())
                c = unescaped(line.at(++i));
            words.last() += c;
        }
    }
    if (quote == outside)
        return true;
    fault = {t("the quote %1 is never closed").arg(quote), t("write a quote inside double quotes as \\\"")};
    return false;
}

QString quoted(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            result += QLatin1Char('\\') + c;
        else if (c == QLatin1Char('\n'))
            result += QLatin1String("\\n");
        else if (c == QLatin1Char('\t'))
            result += QLatin1String("\\t");
        else
            result += c;
    }
    return QLatin1Char('"') + result + QLatin1Char('"');
}

bool isPair(const QString &word, const QStringList &names)
{
    return names.contains(nameOf(word));
}

bool pairs(const QStringList &words, const QStringList &names, Pairs &result, options::Fault &fault)
{
    for (int i = 0; i < words.size(); ++i) {
        const QString name = nameOf(words.at(i));
        if (!names.contains(name)) {
            const QString guess = likeness::nearest(name, names);
            fault = {t("no field '%1'").arg(name),
                     guess.isEmpty() ? t("there are %1").arg(names.join(QLatin1String(", ")))
                                     : t("did you mean '%1'?").arg(guess)};
            return false;
        }
        const int equals = words.at(i).indexOf(QLatin1Char('='));
        if (equals < 0 && i + 1 == words.size()) {
            fault = {t("'%1' needs a value").arg(name), t("write it as %1=VALUE").arg(name)};
            return false;
        }
        result.append({name, equals < 0 ? words.at(i + 1) : words.at(i).mid(equals + 1)});
        i += equals < 0 ? 1 : 0;
    }
    return true;
}
}
