#include "actions/actiontable.h"
#include "mainwindow.h"
#include <QCoreApplication>
#include <QRegularExpression>

namespace actiontable {

const std::vector<Row> &rows()
{
    using W = MainWindow;
#define T(text) QT_TRANSLATE_NOOP("actions", text)
    static const std::vector<Row> table{
        {"new", File, T("&New"), "Ctrl+N", 0, T("begins another plan"), &W::newPlan},
        {"new-window", File, T("New &window"), "Ctrl+Shift+N", 0, T("opens another window"), &W::newWindow},
        {"open", File, T("&Open…"), "Ctrl+O", InToolBar,
         T("opens a package, a CSV file, a workbook or project XML"), &W::openAsk},
        {"save", File, T("&Save"), "Ctrl+S", InToolBar | BeginsGroup, T("saves the plan as a package"),
         &W::save},
        {"save-as", File, T("Save &as…"), "Ctrl+Shift+S", 0, T("saves it under another name"), &W::saveAs},
        {"export", File, T("&Export…"), "Ctrl+E", 0,
         T("writes the plan as PDF, PNG, SVG, HTML, XLSX, XLS, project XML or CSV"), &W::exportAsk},
        {"page-setup", File, T("Page set-&up…"), "Ctrl+Shift+G", BeginsGroup,
         T("paper, margins, number of sheets"), &W::pageSetup},
        {"preview", File, T("&Print preview…"), "Ctrl+P", 0, T("shows the sheets as they are printed"),
         &W::preview},
        {"print", File, T("P&rint…"), "Ctrl+Alt+P", 0, T("prints the sheets"), &W::print},
        {"close", File, T("&Close"), "Ctrl+W", BeginsGroup, T("closes the window"), &W::closeWindow},
        {"quit", File, T("&Quit"), "Ctrl+Q", 0, T("closes all windows"), &W::quit},

        {"undo", Edit, T("&Undo"), "Ctrl+Z", NeedsUndo | InToolBar, T("takes the last step back"), &W::undo},
        {"redo", Edit, T("&Redo"), "Ctrl+Y; Ctrl+Shift+Z", NeedsRedo | InToolBar, T("makes it again"),
         &W::redo},
        {"cut", Edit, T("Cu&t"), "Ctrl+X", NeedsTasks | BeginsGroup | InContext,
         T("cuts the chosen tasks with all below them"), &W::cut},
        {"copy", Edit, T("&Copy"), "Ctrl+C", NeedsTasks | InContext,
         T("copies the chosen tasks with all below them; spreadsheets get a table"), &W::copy},
        {"paste", Edit, T("&Paste"), "Ctrl+V", InContext,
         T("pastes tasks above the chosen one; of lines of text each becomes a task"), &W::paste},
        {"duplicate", Edit, T("&Duplicate"), "Ctrl+D", NeedsTasks,
         T("copies the chosen tasks behind themselves"), &W::duplicate},
        {"delete", Edit, T("De&lete"), "Del", NeedsTasks | InContext, T("removes the chosen tasks"),
         &W::removeTasks},
        {"select-all", Edit, T("Select &all"), "Ctrl+A", 0, T("chooses all tasks"), &W::selectAll},
        {"find", Edit, T("&Find…"), "Ctrl+F", BeginsGroup,
         T("looks for a text in names, notes and resources"), &W::findAsk},
        {"find-next", Edit, T("Find &next"), "F3", 0, T("goes to the next place"), &W::findNext},
        {"replace", Edit, T("&Replace…"), "Ctrl+H", 0,
         T("puts another text in its place, in names and notes"), &W::replaceAsk},
        {"go-to", Edit, T("&Go to row…"), "Ctrl+G", 0, T("goes to a task by its number"), &W::goTo},
        {"edit-cell", Edit, T("&Edit cell"), "F2", BeginsGroup, T("edits the cell in its place"),
         &W::editCell},

        {"insert-above", Task, T("Insert &above"), "Ins", InToolBar | InContext,
         T("a new task above the chosen one"), &W::insertAbove},
        {"insert-below", Task, T("Insert &below"), "Ctrl+Return", InContext,
         T("a new task below the chosen one, on its level"), &W::insertBelow},
        {"insert-child", Task, T("Insert as &child"), "Ctrl+Shift+Return", InContext,
         T("a new task inside the chosen one"), &W::insertChild},
        {"indent", Task, T("&Indent"), "Alt+Right", NeedsTasks | InToolBar | BeginsGroup | InContext,
         T("makes the chosen tasks part of the one before them"), &W::indent},
        {"outdent", Task, T("&Outdent"), "Alt+Left", NeedsTasks | InToolBar | InContext,
         T("moves the chosen tasks one level up"), &W::outdent},
        {"move-up", Task, T("Move &up"), "Alt+Up", NeedsTasks, T("among the tasks of its summary"),
         &W::moveUp},
        {"move-down", Task, T("Move &down"), "Alt+Down", NeedsTasks, T("among the tasks of its summary"),
         &W::moveDown},
        {"fold", Task, T("&Fold or unfold"), "Alt+Return", NeedsTasks,
         T("hides or shows what is below a summary"), &W::fold},
        {"fold-all", Task, T("Fold all"), "Ctrl+Alt+Up", 0, T("shows the top level alone"), &W::foldAll},
        {"unfold-all", Task, T("Unfold all"), "Ctrl+Alt+Down", 0, T("shows all tasks"), &W::unfoldAll},
        {"link", Task, T("&Link"), "Ctrl+L", NeedsTwo | InToolBar | BeginsGroup | InContext,
         T("each chosen task waits for the one chosen before it"), &W::link},
        {"unlink", Task, T("U&nlink"), "Ctrl+Shift+L", NeedsTasks | InToolBar | InContext,
         T("takes the links between the chosen tasks away; of one task, all its links"), &W::unlink},
        {"milestone", Task, T("&Milestone"), "Ctrl+M", NeedsTasks | InContext,
         T("makes milestones of the chosen tasks, or tasks of milestones"), &W::milestone},
        {"done", Task, T("D&one"), "Ctrl+Shift+D", NeedsTasks | InContext,
         T("sets the chosen tasks to 100 %"), &W::done},
        {"open-link", Task, T("Open &hyperlink…"), "Ctrl+Shift+O", NeedsTasks | BeginsGroup,
         T("shows the page, or begins the mail, that the chosen task names"), &W::openLink},

        {"calendar", Plan, T("Working &time…"), "Ctrl+Shift+C", 0, T("working days, hours, holidays"),
         &W::calendar},
        {"resources", Plan, T("&Resources…"), "Ctrl+Shift+R", 0, T("who and what works, and what it costs"),
         &W::resources},
        {"columns", Plan, T("&Columns…"), "Ctrl+Shift+K", 0, T("which columns the table shows"), &W::columns},
        {"schedule", Plan, T("&Schedule"), "F9", BeginsGroup, T("moves every task behind those it waits for"),
         &W::schedule},
        {"close-gaps", Plan, T("Close &gaps"), "Shift+F9", 0,
         T("starts linked tasks that have not begun as soon as those they wait for have ended"),
         &W::closeGaps},
        {"set-baseline", Plan, T("Set &baseline"), "Ctrl+B", BeginsGroup,
         T("remembers dates and costs, to compare with later"), &W::setBaseline},
        {"clear-baseline", Plan, T("Clear baseline"), "Ctrl+Shift+B", 0, T("forgets them"),
         &W::clearBaseline},
        {"compare-baseline", Plan, T("Compare &with baseline"), "Ctrl+Shift+M", IsSwitch,
         T("lists the tasks that are not where the baseline has them, and by how much"),
         &W::toggleComparison},

        {"zoom-in", View, T("Zoom &in"), "Ctrl++; Ctrl+=", InToolBar, T("more pixels for a day"), &W::zoomIn},
        {"zoom-out", View, T("Zoom &out"), "Ctrl+-", InToolBar, T("fewer pixels for a day"), &W::zoomOut},
        {"fit", View, T("&Fit"), "Ctrl+0", InToolBar, T("the whole plan on the screen"), &W::fit},
        {"today", View, T("&Today"), "Ctrl+T", InToolBar, T("goes to the line of today"), &W::today},
        {"show-critical", View, T("&Critical path"), "Ctrl+1", IsSwitch | BeginsGroup,
         T("shows which delays move the finish"), &W::applySwitches},
        {"show-baseline", View, T("&Baseline"), "Ctrl+2", IsSwitch, T("shows where tasks were planned to be"),
         &W::applySwitches},
        {"show-slack", View, T("&Slack"), "Ctrl+3", IsSwitch, T("shows how far tasks can slip"),
         &W::applySwitches},
        {"show-links", View, T("&Links"), "Ctrl+4", IsSwitch, T("shows what waits for what"),
         &W::applySwitches},
        {"show-sheets", View, T("Sheet bo&rders"), "Ctrl+6", IsSwitch,
         T("shows where the sheets of paper end"), &W::applySwitches},
        {"show-labels", View, T("L&abels"), "Ctrl+5", 0,
         T("texts beside bars: resources, names, dates, none"), &W::nextLabels},
        {"show-reasons", View, T("&Why is it when it is?"), "F4", IsSwitch | BeginsGroup,
         T("a panel that explains the dates of the chosen task"), &W::toggleReasons},
        {"show-filter", View, T("F&ilter"), "Ctrl+Shift+F", IsSwitch,
         T("lists the critical tasks, the late ones, those of a resource"), &W::toggleFilter},
        {"hide-others", View, T("&Hide other tasks"), "Ctrl+Shift+H", IsSwitch,
         T("shows the tasks of the filter alone, with the summaries above them"), &W::toggleHiding},
        {"next-reason", View, T("&Go to what drives it"), "Ctrl+J", NeedsTasks,
         T("goes to the task that the chosen one waits for longest"), &W::goToDriver},

        {"palette", Help, T("&Commands…"), "Ctrl+Shift+P", 0, T("finds every command by its name"),
         &W::commandPalette},
        {"keys", Help, T("&Keys"), "F1", 0, T("what each key does"), &W::keys},
        {"about", Help, T("&About"), "", 0, T("the version"), &W::about},
    };
#undef T
    return table;
}

const std::vector<Gesture> &gestures()
{
#define T(text) QT_TRANSLATE_NOOP("actions", text)
    static const std::vector<Gesture> table{
        {T("any text"), T("replaces what stands in the cell")},
        {T("Enter"), T("takes it and goes down; in the last row each name makes a task")},
        {T("Tab, Shift+Tab"), T("takes it and goes to the next or previous cell")},
        {T("Esc"), T("leaves the cell, or a drag, as it was")},
        {T("Left, Right"), T("on a summary's name: folds and unfolds it")},
        {T("Ctrl+wheel"), T("zooms around the pointer")},
        {T("Shift+wheel"), T("scrolls sideways")},
        {T("drag a bar sideways"), T("moves the task; Alt goes by minutes")},
        {T("drag a bar's right end"), T("changes its length")},
        {T("drag the end of the done part"), T("changes how much is done")},
        {T("drag a bar up or down, or the circle behind it"), T("draws a link to the task that is to wait")},
        {T("drag the dates sideways"), T("zooms")},
        {T("drag with the middle button"), T("scrolls")},
        {T("drag the lower edge of a row's number"), T("changes its height")},
    };
#undef T
    return table;
}

QString menuText(Menu menu)
{
    static const char *const texts[menuCount] = {
        QT_TRANSLATE_NOOP("actions", "&File"), QT_TRANSLATE_NOOP("actions", "&Edit"),
        QT_TRANSLATE_NOOP("actions", "&Task"), QT_TRANSLATE_NOOP("actions", "&Plan"),
        QT_TRANSLATE_NOOP("actions", "&View"), QT_TRANSLATE_NOOP("actions", "&Help")};
    return QCoreApplication::translate("actions", texts[menu]);
}

QString text(const Row &row)
{
    return QCoreApplication::translate("actions", row.text);
}

QString help(const Row &row)
{
    return QCoreApplication::translate("actions", row.help);
}

QString withoutMnemonic(const QString &text)
{
    // Chinese names carry theirs behind them, in brackets.
    static const QRegularExpression behind(QStringLiteral("\\s*\\(&\\w\\)"));
    return QString(text).remove(behind).remove(QLatin1Char('&'));
}

QString asMarkdown()
{
    const auto plain = [](const QString &text) { return withoutMnemonic(text).remove(QStringLiteral("…")); };
    const auto words = [](const char *text) { return QCoreApplication::translate("actions", text); };
    QString page;
    for (int menu = 0; menu < menuCount; ++menu) {
        page += QStringLiteral("### %1\n\n| | %2 | |\n|---|---|---|\n")
                    .arg(plain(menuText(Menu(menu))), words(QT_TRANSLATE_NOOP("actions", "keys")));
        for (const Row &row : rows()) {
            if (row.menu == menu)
                page +=
                    QStringLiteral("| %1 | %2 | %3 |\n")
                        .arg(plain(text(row)),
                             QString::fromLatin1(row.keys).replace(QLatin1String("; "), QLatin1String(", ")),
                             help(row));
        }
        page += QLatin1Char('\n');
    }
    page += QStringLiteral("### %1\n\n| | |\n|---|---|\n")
                .arg(words(QT_TRANSLATE_NOOP("actions", "In the table and on the chart")));
    for (const Gesture &gesture : gestures())
        page += QStringLiteral("| %1 | %2 |\n")
                    .arg(QCoreApplication::translate("actions", gesture.keys),
                         QCoreApplication::translate("actions", gesture.help));
    return page;
}
}
