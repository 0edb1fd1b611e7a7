#pragma once
#include "engine/record/codes.h"
#include <QString>
#include <QStringList>
#include <QVector>

// The command line, read into values.
struct Options
{
    enum When { Auto, Always, Never };
    enum Format { Table, Csv, Json, Package, Xlsx, Xls, Project, Pdf, Png, Svg, Html };
    static constexpr int everyLevel = 0;

    QString command;       // "help" when none is given
    QStringList arguments; // what is not an option

    // For every command.
    QString output; // file name; empty: standard output
    bool inPlace = false;
    bool backup = false; // keeps the file that is written in place as FILE~
    bool force = false;
    Format format = Table;
    bool formatGiven = false;
    QString inputFormat; // of the plan that is read; empty: found from its content
    bool quiet = false;
    bool verbose = false;
    When progress = Auto;
    When color = Auto;
    bool ascii = false;
    QString language;
    QString zone;
    QString now;
    QString logFile;

    // The calendar.
    QString calendarFile;
    QString days;
    QString hours;
    QStringList holidays;
    QString start;
    // The resource sheet of a CSV plan.
    QString resourcesFile;
    QString assignmentsFile;

    // What is shown.
    QStringList columns;
    int width = 0; // columns of the terminal; 0: found out
    QString scale;
    QString range;
    int level = everyLevel;
    bool all = false;
    bool critical = false;
    bool bars = true;
    bool plain = false;
    bool resources = false; // the sheet instead of the tasks

    QString script;       // edits, one a line
    QString manualFolder; // where the manual pages go
    bool sample = false;
    bool sheetsGiven = false;
    bool richSheets = true; // workbooks with typed cells, widths and groups
    QString before;         // the task that a branch is copied above
    QString under;          // the task that it is copied below, as its last children

    // What is drawn, and on what; empty and 0: as the plan says.
    struct Drawing
    {
        QString theme;
        QString labels;
        QStringList without; // parts of the picture
        QString title, head, foot;
        QString font;
        QString dateFormat;
        QString branch;
        QString paper;
        QString margins;
        QString fit; // "3x2"
        bool hasTitle = false;
        bool trim = false;
        bool preview = false;
        bool portrait = false, landscape = false;
        bool foldMarks = false;
        int unitWidth = 0;
        int zoom = 0;
        double ratio = 0;
    } drawing;

    // Scheduling.
    bool dryRun = false;
    bool check = false;
    // What `check` asks for; empty: nothing.
    QString finishBy; // "DATE" or "DATE TASK"
    QString mostCost;
    QString mostSlip; // percent of the baseline's length
    QStringList only; // kinds of differences
    bool asSoonAsPossible = false;
    unsigned int slackUnit = duration::Day; // or a smaller one
};

namespace options {

struct Fault
{
    QString what;
    QString hint;
};

// `arguments` without the program's name. False and a fault when they cannot be followed.
bool parse(const QStringList &arguments, Options &result, Fault &fault);
// The commands, the aliases left out.
QStringList commands();

// The tables, for texts that are made from them.
struct CommandInfo
{
    QString name;
    QString alias;
    QString arguments; // "FILE TASK"
    QString topic;     // whose help is this command's
};
struct OptionInfo
{
    QString name;   // "width"
    QString letter; // empty when there is none
    QString value;  // "N", "auto|always|never"; empty: it takes none
};
QVector<CommandInfo> commandInfos();
QVector<OptionInfo> allOptions();
// Of a command or an alias.
QVector<OptionInfo> optionsOf(const QString &command);
}
