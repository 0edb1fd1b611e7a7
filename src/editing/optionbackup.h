#pragma once
#include "editing/undoitems.h"
#include "settings/kwprintconfig.h"
#include <QtGlobal>

class KWDocument;

// Backups of a document's options.
namespace optionbackup {

// What the chart rewrites on its own when tasks change: the project's span, and the scale that follows it.
struct Chart
{
    quint32 startDate = 0;
    quint32 finishDate = 0;
    quint32 majorUnit = 0;
    quint32 minorUnit = 0;
    qint32 unitWidth = 0; // pixels
};
Chart chartOf(const KWDocument &document);
void restore(KWDocument &document, const Chart &backup);

// What only a file that is loaded replaces.
struct Identity
{
    QString guid;
    QString zone;
    QString name;
    KWPrintConfig page;
};
Identity identityOf(const KWDocument &document);
void restore(KWDocument &document, const Identity &backup);

// All options that files keep, the working time and the calendars.
UndoOptionItemData optionsOf(const KWDocument &document);
void restore(KWDocument &document, const UndoOptionItemData &backup);
}
