#pragma once
#include <QString>
#include <vector>

class MainWindow;

// Everything that a user can do, once: the menus, the tool bar, the palette of commands, the help on keys and
// docs/desktop.md are made from this table.
namespace actiontable {

enum Menu { File, Edit, Task, Plan, View, Help, menuCount };

enum Need : unsigned {
    Always = 0,
    NeedsTasks = 1, // at least one is chosen
    NeedsTwo = 2,   // at least two
    NeedsUndo = 4,
    NeedsRedo = 8,
    IsSwitch = 16,
    InToolBar = 32,
    InContext = 64,    // in the menu of a task
    BeginsGroup = 128, // a line stands above it
};

struct Row
{
    const char *name; // of the QAction object, and for programs
    Menu menu;
    const char *text;
    const char *keys; // "Ctrl+S; F12": the first one is shown
    unsigned flags;   // of Need
    const char *help; // what it does, in one line
    void (MainWindow::*run)();
};

const std::vector<Row> &rows();
QString menuText(Menu menu);
QString text(const Row &row);
QString help(const Row &row);
// Keys of the table and the mouse that are no actions.
struct Gesture
{
    const char *keys;
    const char *help;
};
const std::vector<Gesture> &gestures();
// All of it as a page of Markdown, for docs/desktop.md.
QString withoutMnemonic(const QString &text); // "Save as…" of "Save &as…"
QString asMarkdown();
}
