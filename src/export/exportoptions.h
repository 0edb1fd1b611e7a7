#pragma once
#include "kwgantt_export.h"
#include <QDate>
#include <QDateTime>
#include <QDomElement>
#include <QMap>
#include <QString>
#include <vector>

// What of a document is drawn, and how. Hosts keep it in files of their own: a package has its print setup
// alone.
class KWGANTT_EXPORT KWExportOptions
{
public:
    enum Theme { Light, Dark, Print, Contrast };
    enum Labels { NoLabels, NameLabels, ResourceLabels, DateLabels };
    enum Scale {
        DocumentScale,
        AutoScale, // units that make a chart of a screen's width
        FixedScale // `minorUnit` and `unitWidth`
    };
    static constexpr int everyLevel = 0;

    // ---- The table ----------------------------------------------------------------------------------------
    std::vector<int> columns; // column types; none: the columns that the document shows
    // Tasks are named by their places in the plan, as CustomTable::countsTasks() tells. A choice of the host,
    // which is not saved.
    bool countTasks = false;
    bool fitColumns = false;   // as wide as their contents, instead of the document's widths
    bool repeatColumns = true; // ID and name on every sheet

    // ---- The rows: never those that are hidden in the document --------------------------------------------
    quint32 branch = 0;        // ID of a task: it and what is below it alone
    bool onlyCritical = false; // critical tasks and the summaries above them
    int depth = everyLevel;    // levels of the outline
    // Those of `tasks` alone, IDs in any order; a choice of the moment, which is not saved.
    bool onlyTasks = false;
    std::vector<quint32> tasks;

    // ---- The time -----------------------------------------------------------------------------------------
    QDate from; // the chart's dates, both inclusive; invalid: the scale's own
    QDate to;
    bool trim = false; // only the dates of the tasks drawn, and one unit around
    Scale scale = DocumentScale;
    int minorUnit = 4;  // 0 year .. 6 minute
    int unitWidth = 60; // pixels for one of them

    // ---- The look -----------------------------------------------------------------------------------------
    Theme theme = Light;
    QString family; // of all texts; empty: the machine's sans serif, and the fonts of the rows
    bool today = true;
    bool baseline = true;
    bool slack = true;
    bool critical = true;
    bool links = true;
    bool legend = true;
    bool highlight = false; // the active task and those linked to it
    Labels labels = ResourceLabels;
    QString language; // of the head's dates, such as "de"; empty: English

    // ---- The sheet ----------------------------------------------------------------------------------------
    // &[Page], &[Pages], &[Date], &[File] and &[Title] stand for what they say.
    QString title; // above the picture
    QString head;  // right of it
    QString foot;  // left of the page's number
    // The moment the picture is made, in local time; invalid: SOURCE_DATE_EPOCH as a time of UTC where it is
    // set, else the clock.
    QDateTime stamp;
    QDateTime now; // where the line of today stands; invalid: the stamp

    // What pictures and pages say beside the plan, host-filled: by the English text, one of allTexts(). What
    // is not there is said in English.
    static QMap<QString, QString> s_shownTexts;
    static QString shownText(const QString &english) { return s_shownTexts.value(english, english); }
    static QStringList allTexts();

    // Appends an "ExportOptions" element.
    void saveTo(QDomElement &parent) const;
    // Reads the element, or its "ExportOptions" child. What is absent, or out of range, stays as it was.
    void parse(const QDomElement &element);
};
