#include "completions.h"
#include "edit.h"
#include "helptext.h"
#include "options.h"
#include "texts.h"

namespace completions {

namespace {

// What a command line may have at one place.
struct Argument
{
    enum Kind { Text, File, Values, Commands, Edit };
    Kind kind = Text;
    QString name;
    QStringList values;
    bool isRepeated = false;
};

// From the words that stand for it in messages: "FILE", "[list|set|clear]", "TASK...".
Argument argumentOf(QString word)
{
    static const QStringList files{QStringLiteral("FILE"), QStringLiteral("IN"),   QStringLiteral("OUT"),
                                   QStringLiteral("A"),    QStringLiteral("B"),    QStringLiteral("COPY"),
                                   QStringLiteral("FROM"), QStringLiteral("INTO"), QStringLiteral("FOLDER")};
    Argument argument;
    argument.isRepeated = word.contains(QLatin1String("..."));
    word.remove(QLatin1Char('[')).remove(QLatin1Char(']')).remove(QLatin1String("..."));
    argument.name = word;
    if (word.contains(QLatin1Char('|'))) {
        argument.kind = Argument::Values;
        argument.values = word.split(QLatin1Char('|'));
        argument.name = QStringLiteral("value");
    } else if (files.contains(word)) {
        argument.kind = Argument::File;
    } else if (word == QLatin1String("COMMAND")) {
        argument.kind = Argument::Commands;
    } else if (word == QLatin1String("EDIT")) {
        argument.kind = Argument::Edit;
    }
    return argument;
}

QVector<Argument> argumentsOf(const options::CommandInfo &command)
{
    QVector<Argument> arguments;
    for (const QString &word : command.arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        arguments.append(argumentOf(word));
    return arguments;
}

// The commands by every name they have: `check` is one, too.
QVector<options::CommandInfo> everyCommand()
{
    QVector<options::CommandInfo> all;
    for (const options::CommandInfo &command : options::commandInfos()) {
        all.append(command);
        if (!command.alias.isEmpty()) {
            all.append(command);
            all.last().name = command.alias;
        }
    }
    return all;
}

QStringList commandNames()
{
    QStringList names;
    for (const options::CommandInfo &command : everyCommand())
        names.append(command.name);
    return names;
}

// "resource add" is a verb of two words: the first words, and what may follow each of them.
QStringList firstWords()
{
    QStringList words;
    for (const editverbs::VerbInfo &verb : editverbs::all())
        words.append(verb.name.section(QLatin1Char(' '), 0, 0));
    words.removeDuplicates();
    return words;
}

QStringList secondWords(const QString &first)
{
    QStringList words;
    for (const editverbs::VerbInfo &verb : editverbs::all())
        if (verb.name.startsWith(first + QLatin1Char(' ')))
            words.append(verb.name.section(QLatin1Char(' '), 1));
    return words;
}

// "name=" for "name=TEXT done=PERCENT".
QStringList fieldNames(const QString &listed)
{
    QStringList names;
    for (const QString &field : listed.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        names.append(field.section(QLatin1Char('='), 0, 0) + QLatin1Char('='));
    return names;
}

// The verbs that take fields of a task, as "set" does.
QStringList fieldVerbs()
{
    QStringList names;
    for (const editverbs::VerbInfo &verb : editverbs::all())
        if (verb.arguments.contains(QLatin1String("FIELD=VALUE")) && !verb.name.contains(QLatin1Char(' ')))
            names.append(verb.name);
    return names;
}

QStringList written(const options::OptionInfo &option)
{
    QStringList forms{QLatin1String("--") + option.name};
    if (!option.letter.isEmpty())
        forms.prepend(QLatin1Char('-') + option.letter);
    return forms;
}

QString joined(const QStringList &words, const char *glue = " ")
{
    return words.join(QLatin1String(glue));
}

QString meaningOf(const QString &command, const options::OptionInfo &option)
{
    return helptext::meaningOf(command, QLatin1String("--") + option.name);
}

// ---- bash -------------------------------------------------------------------------------------------------

// One case for each word list, so that options with the same values stand together.
QString bashValues()
{
    QStringList files;
    QStringList others;
    QString cases;
    for (const options::OptionInfo &option : options::allOptions()) {
        const Argument argument = argumentOf(option.value);
        if (option.value.isEmpty())
            continue;
        if (argument.kind == Argument::Values)
            cases += QStringLiteral("        %1) _kwgantt_words \"%2\"; return ;;\n")
                         .arg(joined(written(option), "|"), joined(argument.values));
        else
            (argument.kind == Argument::File ? files : others) += written(option);
    }
    cases += QStringLiteral("        %1) return ;;\n").arg(joined(files, "|"));
    cases += QStringLiteral("        %1) compopt +o default; return ;;\n").arg(joined(others, "|"));
    return cases;
}

QString bashPlaces()
{
    QString cases;
    for (const options::CommandInfo &command : everyCommand()) {
        QStringList options;
        for (const options::OptionInfo &option : options::optionsOf(command.name))
            options += written(option);
        QString arguments;
        const QVector<Argument> all = argumentsOf(command);
        for (int i = 0; i < all.size(); ++i) {
            const QString pattern = all.at(i).isRepeated ? QStringLiteral("*") : QString::number(i + 1);
            if (all.at(i).kind == Argument::Values || all.at(i).kind == Argument::Commands)
                arguments += QStringLiteral(" %1) _kwgantt_words \"%2\" ;;")
                                 .arg(pattern, joined(all.at(i).kind == Argument::Values ? all.at(i).values
                                                                                         : commandNames()));
            else if (all.at(i).kind == Argument::Text)
                arguments += QStringLiteral(" %1) compopt +o default ;;").arg(pattern);
            else if (all.at(i).kind == Argument::Edit)
                arguments += QStringLiteral(" *) [ $argument -lt 2 ] || _kwgantt_edit ;;");
        }
        cases += QStringLiteral("        %1)\n"
                                "            if [[ $word == -* ]]; then _kwgantt_words \"%2\"; return; fi\n")
                     .arg(command.name, joined(options));
        if (!arguments.isEmpty())
            cases += QStringLiteral("            case $argument in%1 esac\n").arg(arguments);
        cases += QStringLiteral("            ;;\n");
    }
    return cases;
}

QString bashEdits()
{
    QString cases;
    for (const QString &first : firstWords()) {
        const QStringList second = secondWords(first);
        if (!second.isEmpty())
            cases += QStringLiteral("        %1) [ $argument -ne 3 ] || _kwgantt_words \"%2\" ;;\n")
                         .arg(first, joined(second));
    }
    const QString fields = QStringLiteral("        %1) compopt -o nospace; _kwgantt_words \"%2\" ;;\n");
    cases += fields.arg(joined(fieldVerbs(), "|"), joined(fieldNames(editverbs::taskFieldsHelp())));
    cases += fields.arg(QStringLiteral("option"), joined(fieldNames(editverbs::optionsHelp())));
    return cases;
}

// Where no candidates are given, bash completes file names itself, those with blanks and quotes too.
QString bash()
{
    QStringList withValue;
    for (const options::OptionInfo &option : options::allOptions())
        if (!option.value.isEmpty())
            withValue += written(option);
    return QStringLiteral(R"(# bash completion for kwgantt, made by 'kwgantt completion bash'
_kwgantt_words() { mapfile -t COMPREPLY < <(compgen -W "$1" -- "$word"); }

_kwgantt_edit()
{
    if [ $argument -eq 2 ]; then _kwgantt_words "%1"; return; fi
    case ${given[2]} in
%2    esac
}

_kwgantt()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} i argument
    local -a given=()
    COMPREPLY=()
    # bash takes "--scale=week" for three words.
    if [ "$word" = "=" ]; then word=""
    elif [ "$before" = "=" ] && [ "$COMP_CWORD" -gt 2 ]; then before=${COMP_WORDS[COMP_CWORD-2]}
    fi
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
            %3) if [ "${COMP_WORDS[i+1]}" = "=" ]; then i=$((i + 2)); else i=$((i + 1)); fi ;;
            -?*) ;;
            *) given+=("${COMP_WORDS[i]}") ;;
        esac
    done
    argument=${#given[@]}
    case $before in
%4    esac
    if [ $argument -eq 0 ]; then _kwgantt_words "%5"; return; fi
    case ${given[0]} in
%6    esac
}
complete -o default -F _kwgantt kwgantt
)")
        .arg(joined(firstWords()), bashEdits(), joined(withValue, "|"), bashValues(), joined(commandNames()),
             bashPlaces());
}

// ---- zsh --------------------------------------------------------------------------------------------------

// Inside single quotes; what _arguments would take for a mark of its own is escaped.
QString zshText(QString text)
{
    for (const char *mark : {"\\", "[", "]", ":"})
        text.replace(QLatin1String(mark), QLatin1Char('\\') + QLatin1String(mark));
    return text.replace(QLatin1Char('\''), QLatin1String("'\\''"));
}

QString zshAction(const Argument &argument)
{
    switch (argument.kind) {
    case Argument::File:
        return QStringLiteral(":%1:_files").arg(argument.name);
    case Argument::Values:
        return QStringLiteral(":%1:(%2)").arg(argument.name, joined(argument.values));
    case Argument::Commands:
        return QStringLiteral(":%1:(%2)").arg(argument.name, joined(commandNames()));
    case Argument::Edit:
        return QStringLiteral(":%1:_kwgantt_edit").arg(argument.name);
    case Argument::Text:
        break;
    }
    return QStringLiteral(":%1: ").arg(zshText(argument.name));
}

QString zshOption(const QString &command, const options::OptionInfo &option)
{
    const QString meaning = QLatin1Char('[') + zshText(meaningOf(command, option)) + QLatin1Char(']');
    const QString value = option.value.isEmpty() ? QString() : zshAction(argumentOf(option.value));
    const QString isLong = option.value.isEmpty() ? QString() : QStringLiteral("=");
    QString text;
    for (const QString &form : written(option)) {
        const bool isLetter = form.size() == 2;
        text += QStringLiteral(" \\\n                '%1%2%3%4'")
                    .arg(form, isLetter ? QString() : isLong, meaning, value);
    }
    return text;
}

QString zsh()
{
    QString described;
    QString cases;
    for (const options::CommandInfo &command : everyCommand()) {
        const helptext::Page page = helptext::page(command.topic);
        described += QStringLiteral("        '%1:%2'\n").arg(command.name, zshText(page.meaning));
        QString arguments;
        for (const options::OptionInfo &option : options::optionsOf(command.name))
            arguments += zshOption(command.topic, option);
        for (const Argument &argument : argumentsOf(command)) {
            const bool isOpen = argument.isRepeated || argument.kind == Argument::Edit;
            arguments += QStringLiteral(" \\\n                '%1%2'")
                             .arg(isOpen ? QStringLiteral("*") : QString(), zshAction(argument));
        }
        cases +=
            QStringLiteral("            %1)\n            _arguments%2 ;;\n").arg(command.name, arguments);
    }
    QString edits;
    for (const QString &first : firstWords())
        if (!secondWords(first).isEmpty())
            edits += QStringLiteral("        %1) [[ $previous != $verb ]] || compadd -- %2 ;;\n")
                         .arg(first, joined(secondWords(first)));
    const QString fields = QStringLiteral("        %1) compadd -S '' -- %2 ;;\n");
    edits += fields.arg(joined(fieldVerbs(), "|"), joined(fieldNames(editverbs::taskFieldsHelp())));
    edits += fields.arg(QStringLiteral("option"), joined(fieldNames(editverbs::optionsHelp())));
    return QStringLiteral(R"(#compdef kwgantt
# zsh completion for kwgantt, made by 'kwgantt completion zsh'
_kwgantt_edit() {
    # Of the words here the first is the command, the second the file; options may stand anywhere.
    local -a given
    given=(${words[2,CURRENT-1]:#-*})
    local verb=$given[2] previous=$words[CURRENT-1]
    if (( $#given < 2 )); then
        compadd -- %1
        return
    fi
    case $verb in
%2    esac
}

_kwgantt() {
    local context state line
    typeset -A opt_args
    local -a commands
    commands=(
%3    )
    _arguments -C '1: :->command' '*:: :->rest'
    case $state in
    command) _describe command commands ;;
    rest)
        case $words[1] in
%4        esac ;;
    esac
}

if [ "$funcstack[1]" = "_kwgantt" ]; then _kwgantt "$@"; else compdef _kwgantt kwgantt; fi
)")
        .arg(joined(firstWords()), edits, described, cases);
}

// ---- fish -------------------------------------------------------------------------------------------------

QString fishText(QString text)
{
    return QLatin1Char('\'') +
           text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
               .replace(QLatin1Char('\''), QLatin1String("\\'")) +
           QLatin1Char('\'');
}

QString fish()
{
    QString text = QStringLiteral("# fish completion for kwgantt, made by 'kwgantt completion fish'\n"
                                  "complete -c kwgantt -n __fish_use_subcommand -f\n");
    for (const options::CommandInfo &command : everyCommand()) {
        const QString condition =
            QStringLiteral("complete -c kwgantt -n '__fish_seen_subcommand_from %1'").arg(command.name);
        text += QStringLiteral("complete -c kwgantt -n __fish_use_subcommand -a %1 -d %2\n")
                    .arg(command.name, fishText(helptext::page(command.topic).meaning));
        for (const options::OptionInfo &option : options::optionsOf(command.name)) {
            text += condition + QLatin1String(" -l ") + option.name;
            if (!option.letter.isEmpty())
                text += QLatin1String(" -s ") + option.letter;
            const Argument argument = argumentOf(option.value);
            if (argument.kind == Argument::File)
                text += QLatin1String(" -r -F");
            else if (argument.kind == Argument::Values)
                text += QLatin1String(" -x -a ") + fishText(joined(argument.values));
            else if (!option.value.isEmpty())
                text += QLatin1String(" -x");
            text += QLatin1String(" -d ") + fishText(meaningOf(command.topic, option)) + QLatin1Char('\n');
        }
        for (const Argument &argument : argumentsOf(command)) {
            if (argument.kind == Argument::Values || argument.kind == Argument::Commands)
                text +=
                    condition + QLatin1String(" -f -a ") +
                    fishText(joined(argument.kind == Argument::Values ? argument.values : commandNames())) +
                    QLatin1Char('\n');
        }
    }
    const QString edit = QStringLiteral("complete -c kwgantt -n '__fish_seen_subcommand_from edit");
    for (const QString &first : firstWords()) {
        text += edit + QStringLiteral("; and not __fish_seen_subcommand_from %1' -a %2\n")
                           .arg(joined(firstWords()), first);
        if (!secondWords(first).isEmpty())
            text += edit + QStringLiteral("; and __fish_seen_subcommand_from %1' -f -a %2\n")
                               .arg(first, fishText(joined(secondWords(first))));
    }
    text += edit + QStringLiteral("; and __fish_seen_subcommand_from %1' -f -a %2\n")
                       .arg(joined(fieldVerbs()), fishText(joined(fieldNames(editverbs::taskFieldsHelp()))));
    text += edit + QStringLiteral("; and __fish_seen_subcommand_from option' -f -a %1\n")
                       .arg(fishText(joined(fieldNames(editverbs::optionsHelp()))));
    return text;
}

struct Shell
{
    const char *name;
    QString (*script)();
};
constexpr Shell shellTable[] = {{"bash", bash}, {"zsh", zsh}, {"fish", fish}};
}

QStringList shells()
{
    QStringList names;
    for (const Shell &shell : shellTable)
        names.append(QLatin1String(shell.name));
    return names;
}

QString script(const QString &shell)
{
    for (const Shell &candidate : shellTable)
        if (shell == QLatin1String(candidate.name))
            return candidate.script();
    return QString();
}
}
