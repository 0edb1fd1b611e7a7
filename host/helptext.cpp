#include "helptext.h"
#include "edit.h"
#include "exchange/titletable.h"
#include "options.h"
#include "texts.h"
#include "textwidth.h"

namespace helptext {

namespace {

constexpr int itemIndent = 2;
constexpr int exampleIndent = 4;
constexpr int gapColumns = 2;
constexpr int widestTerm = 26; // a longer term has its explanation on the next line

int indentOf(const QString &line)
{
    int columns = 0;
    while (columns < line.size() && line.at(columns) == QLatin1Char(' '))
        ++columns;
    return columns;
}

// "--width N   columns of the terminal" is split at its first gap.
Block itemOf(const QString &line)
{
    const QString words = line.mid(itemIndent);
    const int gap = words.indexOf(QString(gapColumns, QLatin1Char(' ')));
    return {Block::Item, words.left(gap), gap < 0 ? QString() : words.mid(gap).trimmed()};
}

void continueBlock(Block &block, const QString &line)
{
    if (!block.text.isEmpty())
        block.text += QLatin1Char(' ');
    block.text += line.trimmed();
}

// Between wide characters a line may break anywhere, so each counts as a word of its own.
bool breaksBehind(QChar c)
{
    return textwidth::ofCharacter(c.unicode()) == 2;
}

// No line begins with a wide comma or closing bracket, and none ends with an opening one.
bool staysBehind(QChar c)
{
    return breaksBehind(c) &&
           (c.category() == QChar::Punctuation_Other || c.category() == QChar::Punctuation_Close);
}

bool staysBefore(QChar c)
{
    return breaksBehind(c) && c.category() == QChar::Punctuation_Open;
}

int endOfWord(const QString &text, int begin)
{
    int end = begin;
    while (end < text.size() && staysBefore(text.at(end)))
        ++end;
    const int narrow = end;
    while (end < text.size() && text.at(end) != QLatin1Char(' ') && !breaksBehind(text.at(end)))
        ++end;
    if (end == narrow && end < text.size() && text.at(end) != QLatin1Char(' '))
        ++end; // a wide character
    while (end < text.size() && staysBehind(text.at(end)))
        ++end;
    return end;
}

QStringList wrapped(const QString &text, int columns)
{
    QStringList lines{QString()};
    int used = 0;
    int begin = 0;
    while (begin < text.size()) {
        const int end = endOfWord(text, begin);
        QString word = text.mid(begin, end - begin);
        const bool isSpaced = begin > 0 && text.at(begin - 1) == QLatin1Char(' ');
        const int width = textwidth::of(word);
        const int gap = isSpaced && used > 0 ? 1 : 0;
        if (used > 0 && used + gap + width > columns) {
            lines.append(QString());
            used = 0;
        }
        if (used > 0 && gap > 0)
            lines.last() += QLatin1Char(' ');
        used += used > 0 ? gap : 0;
        for (; textwidth::of(word) > columns; lines.append(QString())) {
            lines.last() += word.left(columns);
            word = word.mid(columns);
        }
        lines.last() += word;
        used += textwidth::of(word);
        begin = end;
        while (begin < text.size() && text.at(begin) == QLatin1Char(' '))
            ++begin;
    }
    return lines;
}

// Items that follow each other have one column for their terms.
int termColumns(const QVector<Block> &blocks, int first)
{
    int columns = 0;
    for (int i = first; i < blocks.size() && blocks.at(i).kind == Block::Item; ++i) {
        const int width = textwidth::of(blocks.at(i).term);
        if (width <= widestTerm)
            columns = qMax(columns, width);
    }
    return columns;
}

QString shownItem(const Block &item, int terms, int columns)
{
    const QString margin(itemIndent, QLatin1Char(' '));
    const int textColumn = itemIndent + terms + gapColumns;
    // A narrow terminal has no room for two columns.
    const bool isStacked = textwidth::of(item.term) > terms || columns < 2 * textColumn;
    const int indent = isStacked && columns < 2 * textColumn ? 2 * exampleIndent : textColumn;
    QString text;
    if (isStacked)
        for (const QString &line : wrapped(item.term, columns - itemIndent))
            text += margin + line + QLatin1Char('\n');
    if (item.text.isEmpty())
        return isStacked ? text : margin + item.term + QLatin1Char('\n');
    bool isFirst = !isStacked;
    for (const QString &line : wrapped(item.text, qMax(columns - indent, 1))) {
        text += isFirst ? margin + textwidth::padded(item.term, terms) + QString(gapColumns, QLatin1Char(' '))
                        : QString(indent, QLatin1Char(' '));
        text += line + QLatin1Char('\n');
        isFirst = false;
    }
    return text;
}

// ---- Manual pages -----------------------------------------------------------------------------------------

QByteArray roff(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (c == QLatin1Char('\\'))
            result += QLatin1String("\\e");
        else if (c == QLatin1Char('-'))
            result += QLatin1String("\\-");
        else
            result += c;
    }
    // These two begin a request at the start of a line.
    if (result.startsWith(QLatin1Char('.')) || result.startsWith(QLatin1Char('\'')))
        result.prepend(QLatin1String("\\&"));
    return result.toUtf8() + '\n';
}

QByteArray quoted(const QString &text)
{
    QByteArray words = roff(text);
    words.chop(1);
    return '"' + words.replace('"', "\\(dq") + '"';
}

QString pageName(const QString &command)
{
    return command.isEmpty() ? QStringLiteral("kwgantt") : QLatin1String("kwgantt-") + command;
}

QByteArray manualBlock(const Block &block, bool isFirst)
{
    switch (block.kind) {
    case Block::Heading:
        return ".SH " + quoted(block.text.toUpper()) + '\n';
    case Block::Item:
        return ".TP\n.B " + quoted(block.term) + '\n' + (block.text.isEmpty() ? "\\&\n" : roff(block.text));
    case Block::Example:
        return ".nf\n" + roff(block.text) + ".fi\n";
    case Block::Paragraph:
        break;
    }
    return (isFirst ? "" : ".PP\n") + roff(block.text);
}
}

Page parsed(const QString &text)
{
    Page page;
    bool isNew = true; // the next line begins a block
    bool isHead = true;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString &line = lines.at(i);
        if (isHead && line.startsWith(QLatin1String("kwgantt"))) {
            page.usage.append(line.section(QLatin1String(" - "), 0, 0));
            if (page.meaning.isEmpty())
                page.meaning = line.section(QLatin1String(" - "), 1);
            continue;
        }
        isHead = false;
        const int indent = indentOf(line);
        const bool leadsIndented = indentOf(lines.value(i + 1)) > 0;
        if (line.trimmed().isEmpty()) {
            isNew = true;
        } else if (indent == exampleIndent && (isNew || page.blocks.last().kind != Block::Item)) {
            page.blocks.append({Block::Example, QString(), line.trimmed()});
        } else if (indent == itemIndent) {
            page.blocks.append(itemOf(line));
            isNew = false;
        } else if (indent == 0 && line.endsWith(QLatin1Char(':')) && leadsIndented) {
            page.blocks.append({Block::Heading, QString(), line.left(line.size() - 1)});
            isNew = true;
        } else if (isNew || (indent == 0 && page.blocks.last().kind != Block::Paragraph)) {
            page.blocks.append({Block::Paragraph, QString(), line.trimmed()});
            isNew = false;
        } else {
            continueBlock(page.blocks.last(), line);
        }
    }
    return page;
}

namespace {

// What the columns may be called, from the table that reads them.
QString titlesText()
{
    QString text;
    const std::pair<exceltitles::Sheet, QString> sheets[] = {
        {exceltitles::TaskSheet, t("Titles of tasks:")},
        {exceltitles::ResourceSheet, t("Titles of resources:")},
        {exceltitles::AssignmentSheet, t("Titles of assignments:")}};
    for (const auto &[sheet, heading] : sheets) {
        text += heading + QLatin1Char('\n');
        for (const QString &words : titletable::words(sheet))
            text += QLatin1String("  ") + words.section(QLatin1Char(' '), 0, 0) + QLatin1String("  ") +
                    words.section(QLatin1Char(' '), 1) + QLatin1Char('\n');
        text += QLatin1Char('\n');
    }
    return text;
}
}

Page page(const QString &command)
{
    const QMap<QString, QString> &topics = englishTexts().help;
    if (!topics.contains(command))
        return Page();
    Page result = parsed(topics.value(command));
    result.meaning = t(result.meaning);
    for (Block &block : result.blocks) {
        if (block.kind == Block::Example)
            continue;
        block.term = t(block.term);
        block.text = t(block.text);
    }
    if (command == QLatin1String("edit"))
        result.blocks += parsed(editverbs::helpText()).blocks;
    if (command == QLatin1String("formats"))
        result.blocks += parsed(titlesText()).blocks;
    if (!command.isEmpty())
        return result;
    QVector<Block> commands{{Block::Heading, QString(), t("Commands")}};
    for (const QString &name : options::commands()) {
        const Page of = page(name);
        commands.append({Block::Item, of.usage.value(0).section(QLatin1Char(' '), 1), of.meaning});
    }
    result.blocks = commands + result.blocks;
    return result;
}

QString shown(const Page &page, int columns)
{
    QString text;
    const QString usage =
        page.usage.value(0) + (page.meaning.isEmpty() ? QString() : QLatin1String(" - ")) + page.meaning;
    for (const QString &line : wrapped(usage, columns))
        text += line + QLatin1Char('\n');
    for (const QString &further : page.usage.mid(1))
        text += further + QLatin1Char('\n');
    for (int i = 0; i < page.blocks.size(); ++i) {
        const Block &block = page.blocks.at(i);
        const bool begins = i == 0 || page.blocks.at(i - 1).kind != block.kind;
        const bool underHeading = i > 0 && page.blocks.at(i - 1).kind == Block::Heading;
        if ((begins || block.kind == Block::Paragraph || block.kind == Block::Heading) && !underHeading)
            text += QLatin1Char('\n');
        if (block.kind == Block::Item) {
            int first = i;
            while (first > 0 && page.blocks.at(first - 1).kind == Block::Item)
                --first;
            text += shownItem(block, termColumns(page.blocks, first), columns);
        } else if (block.kind == Block::Example) {
            text += QString(exampleIndent, QLatin1Char(' ')) + block.text + QLatin1Char('\n');
        } else {
            const QString words =
                block.text + (block.kind == Block::Heading ? QLatin1String(":") : QLatin1String());
            for (const QString &line : wrapped(words, columns))
                text += line + QLatin1Char('\n');
        }
    }
    return text;
}

QString meaningOf(const QString &command, const QString &option)
{
    for (const QString &topic : {command, QStringLiteral("show"), QString()}) {
        for (const Block &block : page(topic).blocks) {
            // "-o, --output FILE" and "--csv, --json" explain each of the words in them.
            const QStringList words = QString(block.term).remove(QLatin1Char(',')).split(QLatin1Char(' '));
            for (const QString &word : words)
                if (block.kind == Block::Item && word.section(QLatin1Char('='), 0, 0) == option)
                    return block.text;
        }
    }
    return QString();
}

QByteArray manualPage(const QString &command)
{
    const Page of = page(command);
    QByteArray text = ".TH " + quoted(pageName(command).toUpper()) + " 1 \"\" " +
                      quoted(QLatin1String("kwgantt ") + QLatin1String(KWGANTT_VERSION)) + '\n';
    text += ".SH NAME\n" + roff(pageName(command) + QLatin1String(" - ") + of.meaning);
    text += ".SH SYNOPSIS\n";
    const QStringList usage =
        command.isEmpty() ? QStringList{QStringLiteral("kwgantt COMMAND [OPTION...]")} : of.usage;
    for (int i = 0; i < usage.size(); ++i)
        text += (i > 0 ? ".br\n.B " : ".B ") + quoted(usage.at(i)) + '\n';
    bool isFirst = true; // of its section
    if (!of.blocks.isEmpty() && of.blocks.first().kind != Block::Heading)
        text += ".SH DESCRIPTION\n";
    for (const Block &block : of.blocks) {
        text += manualBlock(block, isFirst);
        isFirst = block.kind == Block::Heading;
    }
    QStringList others;
    if (!command.isEmpty())
        others.append(pageName(QString()));
    else
        for (const QString &name : options::commands())
            others.append(pageName(name));
    text += ".SH SEE ALSO\n";
    for (int i = 0; i < others.size(); ++i)
        text += ".BR " + quoted(others.at(i)) + " (1)" + (i + 1 < others.size() ? "," : "") + '\n';
    return text;
}
}
