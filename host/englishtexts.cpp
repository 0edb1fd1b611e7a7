#include "texts.h"

namespace {

QMap<QString, QString> helpTopics()
{
    const auto text = [](const char *words) { return QString::fromUtf8(words); };
    return {
        {QString(), text(R"(kwgantt - schedules project plans and shows them in the terminal

Arguments:
  FILE   a package (.kwpx), a workbook (.xlsx, .xls), project XML (.xml) or a CSV plan ('-' reads standard
         input): titles in the first row, in any order and case, such as ID, WBS, Level, Name, Start, Finish,
         Duration (3d 12h 30min 1.5w 2mon), Percent, Predecessors (joined by ;), Resources, Milestone, Notes.
         A calendar stands beside it as NAME.calendar.json or calendar.json, the resource sheet and the
         assignments as NAME.resources.csv and NAME.assignments.csv.
  TASK   the row number shown, #ID, or a name

Options of all commands:
  -o, --output FILE   writes the result into FILE; the format follows the name (.kwpx, .csv, .xlsx, .xls, .xml, .json);
                      '-' is standard output
  --force             replaces a file that is there, and writes over one of which something was not read
  -q, --quiet         says nothing but errors
  -v, --verbose       lists all findings, not only the first
  --progress auto|always|never   shows on standard error how far work that lasts is
  --color auto|always|never      colours repeat what the text says
  --ascii             plain characters only
  --lang LANGUAGE     the language of texts and titles
  --tz ZONE           the time zone of dates, such as Europe/Berlin, or local for that of this machine; without it
                      that of the package, else that of this machine
  --now TIME          takes this moment for the present one, such as 2026-02-28T08:00
  --log FILE          adds a record of the run to FILE
  -h, --help          the help on the command
  -V, --version       the program's version

Options of commands that read a plan:
  --json              data for other programs
  --to csv|json|mspdi|table   the format of what is printed
  --from FORMAT       the format of FILE: kwpx, csv, xlsx, xls or mspdi; its content decides otherwise
  --calendar FILE     the calendar of a plan that holds none
  --days DAYS         the days that work, such as Mon-Fri
  --hours HOURS       the hours of a day, such as 08:00-12:00,13:00-17:00
  --holiday DATES     a date or dates off: 2026-12-24..2027-01-01
  --start DATE        where tasks without a start begin
  --resources FILE    the resource sheet of a CSV plan
  --assignments FILE  the assignments of a CSV plan
  --unit d|h|min      the unit of slack (d: below half a tenth of a day counts as none)

Exit codes:
  0    done
  1    done, and the answer is no: there were findings, something would move, two plans differ, a demand is not met
  2    wrong use
  3    the input cannot be read
  4    the output cannot be written, was changed meanwhile, or would lose what was not read
  5    the plan cannot be scheduled
  6    the machine lacks something
  70   a bug
)")},
        {QStringLiteral("show"), text(R"(kwgantt show FILE - the plan as a table with bars

The dates are those of the file; a plan with tasks that have no start is shown scheduled.

  --columns LIST   columns by their keys, joined by commas; 'kwgantt columns' lists them
  --width N        columns of the terminal (found out otherwise, 100 in a pipe)
  --scale SCALE    auto, hour, day, week, month, quarter or year
  --range D..D     only these dates on the bars
  --level N        only tasks down to this outline level
  --critical       only critical tasks and their summaries
  --all            collapsed tasks, too
  --resources      the resource sheet instead: work, cost, and the days on which somebody has too much to do
                   (--resources=FILE reads the sheet of a CSV plan from FILE)
  --no-bars        the table alone
  --plain          the table alone, without title, legend and cut names, for other programs
  --unit d|h|min   the unit of slack (d: below half a tenth of a day counts as none)
  --csv, --json    every field of every task, for other programs

Examples:
    kwgantt show plan.csv --critical --scale week
)")},
        {QStringLiteral("load"), text(R"(kwgantt load FILE... - reads and checks plans and sums them up

What is wrong but can be lived with is told on standard error; a file that cannot be read as a plan gives
exit code 3, one whose working time lets nothing be scheduled 5. Of a package it checks what must hold: IDs,
outline, links, row heights, assignments. 'kwgantt check FILE...' does the same and gives exit code 1 when anything
was found, or when a task starts before a predecessor finishes: exit code 0 and no finding mean that the plan is what
the file says. Several files have a line each and a sum; the exit code is the greatest. With -q only what failed is
told.

  --check          exit code 1 when anything was found
  --json           the summary and all findings for other programs

Demands, which the plan meets or gives exit code 1:
  --finish-by 'DATE [TASK]'    the project, or TASK, finishes on that date at the latest
  --max-cost N                 it costs no more
  --no-critical-slip PERCENT   no critical task finishes later than in the baseline by more than that much of the
                               baseline's length

Examples:
    kwgantt check plans/*.kwpx --finish-by 2026-06-30 -q
)")},
        {QStringLiteral("schedule"), text(R"(kwgantt schedule FILE - moves every task behind its predecessors

A task keeps its start when it can: it is only moved later, to the end of the predecessor that finishes
last, never earlier. A task without a start begins at the project's start. Prints the plan; what moved is
summed up on standard error. Tasks that wait for each other in a ring of links give exit code 5.

  --asap           every task begins at the project's start, whatever the file says, and is moved from there:
                   the earliest dates that the links allow
  --dry-run        what would move, and because of what; nothing is written
  --check          the same, and exit code 1 when anything would move or was found
  -i, --in-place   writes the new dates into FILE, a package or a CSV plan, and leaves everything else as it is: of a
                   CSV plan the separator, the line ends, the mark at the beginning and all other columns
  --backup         keeps the file as it was before as FILE~
  -o FILE          writes the scheduled plan; the format follows the name (.kwpx, .csv, .xlsx, .xls, .xml, .json)
  --unit d|h|min   the unit of slack

All options of 'kwgantt help show' go with it, too.

Examples:
    kwgantt schedule plan.csv --dry-run --holiday 2026-12-24..2027-01-01
)")},
        {QStringLiteral("explain"), text(R"(kwgantt explain FILE TASK - why a task is when it is

Schedules the plan as 'kwgantt schedule' does and tells what drives the task's start, how long it takes and
which days do not count, whether it is critical, and what it holds up. Nothing is written.

  TASK             the row number shown, #ID, or a name
  --asap           the earliest dates that the links allow
  --json           for other programs

Examples:
    kwgantt explain plan.csv "Order parts"
)")},
        {QStringLiteral("convert"), text(R"(kwgantt convert IN OUT - writes a plan in another format

The input's format is found from its content, the output's from its name: .kwpx, .csv, .xlsx, .xls, .xml or .json. Tasks without a
start are placed as 'kwgantt schedule' does.

A CSV plan holds tasks alone: its calendar, resources and assignments are written beside it, where they are
found again.

A workbook has a sheet each of tasks, resources and assignments, its columns told by their titles; the calendar
is written beside it, too. What a workbook's cells could not give is listed on standard error.

  --sheets plain   an .xlsx workbook in which every cell is a text (rich, the default: dates and numbers as
                   values, widths, filters and outline groups)
  --force          replaces OUT

Examples:
    kwgantt convert plan.csv plan.kwpx
)")},
        {QStringLiteral("render"), text(R"(kwgantt render FILE -o OUT.pdf|png|svg|html - draws the chart

A PDF is cut into sheets as the print setup of a package says; a plan that brings none is fitted to sheets of A4
that can be read. An image and an SVG hold the whole plan in one; a page (.html) folds, zooms, finds and follows links
in a browser. '-o -' with --to pdf|png|svg|html writes to standard output. Collapsed tasks stay hidden, dates are those of the file.

Sheets:
  --paper PAPER    A4, A3, LETTER or a size such as 297x210mm
  --portrait       upright
  --landscape      across
  --margins SIZES  all of them (20mm), or two of them (20mm,15mm)
  --fit 3x2        as many sheets across and down
  --zoom N         percent
  --preview        how many sheets and how small the text; nothing is written
  --fold-marks     marks for folding a large sheet

Texts:
  --title TEXT     above the chart
  --head TEXT      at the top of each sheet, with &[Page] &[Pages] &[Date] &[File] &[Title]
  --foot TEXT      at the bottom of each sheet, with the same
  --font FAMILY    the font of all texts
  --date-format "dd MMM yyyy"   how dates are written
  --labels none|name|resources|dates   what stands beside the bars

Picture:
  --theme light|dark|print|contrast
                   the colours
  --ratio 1..4     pixels of an image for one of the chart
  --without LIST   leaves out today, baseline, slack, critical, links, legend, repeat or background (the shades
                   behind the bars), joined by commas

What is drawn:
  --columns LIST   columns by their keys, joined by commas; 'kwgantt columns' lists them
  --branch TASK    only this task with all that is below it
  --critical       only critical tasks and their summaries
  --level N        only tasks down to this outline level
  --range D..D     only these dates
  --trim           the tasks' dates and one unit around
  --scale SCALE    auto, hour, day, week, month, quarter or year
  --unit-width N   pixels of a unit

SOURCE_DATE_EPOCH sets the date that is written into the file and the line of today, --now that line alone.

Examples:
    kwgantt render plan.csv -o plan.pdf --paper A3 --theme print
)")},
        {QStringLiteral("edit"), text(R"(kwgantt edit FILE EDIT - changes a plan
kwgantt edit FILE --script FILE

  -i, --in-place   writes FILE itself, a package or a CSV plan; of a CSV plan the separator, the line ends, the mark at
                   the beginning, all other columns and every cell that still holds stay as they are. Writers wait
                   for each other
  --backup         keeps the file as it was before as FILE~
  -o OUT           writes another file; the format follows the name (.kwpx, .csv, .xlsx, .xls, .xml, .json)
  --dry-run        shows the changed plan and writes nothing
  -v, --verbose    with -i, tells every task that moved and what moved it
  --script FILE    one edit a line ('-' reads standard input); a line that begins with # says nothing
  --sheets rich    a workbook with values, widths, filters and outline groups

All options of 'kwgantt help show' go with it, too: they say how the plan is shown.

All edits are made or none: when one fails, nothing is written and the message names its line.
TASK is the row number shown, #ID, or a name. Words are separated by blanks; quotes hold one together, and
between double quotes \n, \t, \" and \\ stand for a line break, a tab, a quote and a backslash.

Examples:
    kwgantt edit plan.kwpx set 5 duration=3d start=2026-03-02 -i
    kwgantt edit plan.csv add "Order parts" duration=2d -o plan.kwpx

)")},
        {QStringLiteral("new"), text(R"(kwgantt new OUT - an empty plan as .kwpx or .csv

  --sample         a small plan with links and resources, from next Monday on
  --force          replaces OUT
)")},
        {QStringLiteral("diff"), text(R"(kwgantt diff A B - what is different between two versions of a plan

Tasks belong together by ID and name, then by a name that stands once, then by ID. Exit code 1 when anything
is different; no difference means that the plans are alike in all that is saved but the widths of bars.

  --only LIST      only these, joined by commas: tasks, outline, names, dates, progress, cost, resources, links,
                   texts, baseline, calendar, sheet, table, options
  added, gone      only one of the plans has the task
  renamed, placed  another name, another summary
  slipped, moved   it finishes later; its dates changed otherwise
  changed          duration, done, cost, resources, notes, predecessors, priority, baseline, hyperlinks; and of
                   the plan its working time, resource sheet, columns and options
  --json           for other programs
)")},
        {QStringLiteral("baseline"), text(R"(kwgantt baseline FILE - how far the plan is from its baseline
kwgantt baseline FILE set|clear [TASK...]

The baseline remembers dates and costs, of all tasks or of TASK with what is below it.

  -i, --in-place   writes FILE itself, a package or a CSV plan, as 'kwgantt help edit' says (set, clear)
  --backup         keeps the file as it was before as FILE~
  -o OUT           writes another file
  --dry-run        shows the changed plan and writes nothing
  --sheets rich    a workbook with values, widths, filters and outline groups
  --csv            every field of every task, for other programs
  --json           for other programs
)")},
        {QStringLiteral("copy-branch"),
         text(R"(kwgantt copy-branch FROM TASK... INTO - copies tasks from one plan into another

Each TASK goes with all that is below it. The copies get new IDs and, where a name is taken, new names; links
among them stay. Assignments stay behind: they belong to the other plan's resource sheet.

  --before TASK    above this task of INTO
  --under TASK     as the last tasks below this one, expanded or collapsed; without either, at the end
  -i, --in-place   writes INTO itself, a package or a CSV plan, as 'kwgantt help edit' says
  --backup         keeps the file as it was before as FILE~
  -o OUT           writes another file
  --dry-run        shows the changed plan and writes nothing
  --sheets rich    a workbook with values, widths, filters and outline groups
)")},
        {QStringLiteral("recover"), text(R"(kwgantt recover - lists the autosave copies
kwgantt recover COPY -o FILE.kwpx

COPY is a number of the list or a file name. The copy is read before it is written.
)")},
        {QStringLiteral("completion"),
         text(
             R"(kwgantt completion [bash|zsh|fish] - a script that completes commands, options, values and edits

Packages install the scripts. By hand:

Examples:
    source <(kwgantt completion bash)
    kwgantt completion zsh > ~/.zfunc/_kwgantt
    kwgantt completion fish > ~/.config/fish/completions/kwgantt.fish
)")},
        {QStringLiteral("formats"), text(R"(kwgantt formats - what can be read and written

A format is found from the file's content when it is read, from its name when it is written.

Dates:
  2026-03-02       also 2026-3-2, 2.3.2026, 2 Mar 2026, March 2, 2026; a time may follow (2026-03-02T08:00, 2026-03-02
                   17:00)
  3/4/2026         has the day first where another date of the column can be nothing else, else the month
  no time          a start is the beginning of its day, a finish the end
  a number         in a workbook days since 1900 or 1904, as the workbook says
  3d, 12h, 30min   lengths; also w, mon, q, y; a number alone counts days

Predecessors of a CSV plan or a workbook are parted by semicolons: 7 is an ID where a CSV plan has these, else a row; #7 an
ID, 1.2 an outline code, a name stands in quotes. Numbers of what is done are percent in a CSV plan.

A package and project XML have no titles. The first row of a CSV plan and of each sheet of a workbook has them, in any case,
with blanks and signs anywhere, in any order; columns with other titles are told and not read.

)")},
        {QStringLiteral("columns"), text("kwgantt columns - what 'show --columns' can show\n")},
        {QStringLiteral("help"),
         text(R"(kwgantt help [COMMAND] - the commands, or one of them with its options

  --man-pages FOLDER   writes the manual pages into FOLDER instead
)")},
        {QStringLiteral("version"), text("kwgantt version - the program's version\n")},
    };
}

QStringList words(const char *list)
{
    return QString::fromUtf8(list).split(QLatin1Char(' '));
}
}

const EnglishTexts &englishTexts()
{
    static const EnglishTexts english{
        {{0, QStringLiteral(QT_TR_NOOP("Year"))},
         {1, QStringLiteral(QT_TR_NOOP("Quarter"))},
         {2, QStringLiteral(QT_TR_NOOP("Month"))},
         {3, QStringLiteral(QT_TR_NOOP("Week"))},
         {4, QStringLiteral(QT_TR_NOOP("Workday"))},
         {5, QStringLiteral(QT_TR_NOOP("Hour"))},
         {6, QStringLiteral(QT_TR_NOOP("Minute"))}},
        {{0, QStringLiteral(QT_TR_NOOP("Tag"))},
         {1, QStringLiteral(QT_TR_NOOP("Task Name"))},
         {2, QStringLiteral(QT_TR_NOOP("Start"))},
         {3, QStringLiteral(QT_TR_NOOP("Finish"))},
         {4, QStringLiteral(QT_TR_NOOP("Duration"))},
         {5, QStringLiteral(QT_TR_NOOP("Complete"))},
         {6, QStringLiteral(QT_TR_NOOP("Priority"))},
         {7, QStringLiteral(QT_TR_NOOP("Resources"))},
         {8, QStringLiteral(QT_TR_NOOP("Hyperlinks"))},
         {9, QStringLiteral(QT_TR_NOOP("Cost"))},
         {10, QStringLiteral(QT_TR_NOOP("Remaining Cost"))},
         {11, QStringLiteral(QT_TR_NOOP("Work"))},
         {12, QStringLiteral(QT_TR_NOOP("Early Start"))},
         {13, QStringLiteral(QT_TR_NOOP("Early Finish"))},
         {14, QStringLiteral(QT_TR_NOOP("Late Start"))},
         {15, QStringLiteral(QT_TR_NOOP("Late Finish"))},
         {16, QStringLiteral(QT_TR_NOOP("Start Slack"))},
         {17, QStringLiteral(QT_TR_NOOP("Finish Slack"))},
         {18, QStringLiteral(QT_TR_NOOP("Critical"))},
         {19, QStringLiteral(QT_TR_NOOP("Notes"))},
         {20, QStringLiteral(QT_TR_NOOP("Baseline Start"))},
         {21, QStringLiteral(QT_TR_NOOP("Baseline Finish"))},
         {22, QStringLiteral(QT_TR_NOOP("Baseline Cost"))},
         {23, QStringLiteral(QT_TR_NOOP("Level"))},
         {24, QStringLiteral(QT_TR_NOOP("Predecessors"))}},
        {{0, QStringLiteral(QT_TR_NOOP("ID"))},
         {1, QStringLiteral(QT_TR_NOOP("Resource Name"))},
         {2, QStringLiteral(QT_TR_NOOP("Max Units"))},
         {3, QStringLiteral(QT_TR_NOOP("Type"))},
         {4, QStringLiteral(QT_TR_NOOP("Rate"))},
         {5, QStringLiteral(QT_TR_NOOP("Overtime Rate"))},
         {6, QStringLiteral(QT_TR_NOOP("Cost per Use"))},
         {7, QStringLiteral(QT_TR_NOOP("Group"))},
         {8, QStringLiteral(QT_TR_NOOP("Email"))},
         {9, QStringLiteral(QT_TR_NOOP("Notes"))}},
        {{0, QStringLiteral(QT_TR_NOOP("Task"))},
         {1, QStringLiteral(QT_TR_NOOP("Resource"))},
         {2, QStringLiteral(QT_TR_NOOP("Complete"))},
         {3, QStringLiteral(QT_TR_NOOP("Work"))},
         {4, QStringLiteral(QT_TR_NOOP("Units"))}},
        words("Tasks Resources Assignments"),
        {{0, QStringLiteral(QT_TR_NOOP("Work"))}, {1, QStringLiteral(QT_TR_NOOP("Material"))}},
        words("Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec"),
        words("Mon Tue Wed Thu Fri Sat Sun"),
        words("M T W T F S S"),
        helpTopics(),
    };
    return english;
}
