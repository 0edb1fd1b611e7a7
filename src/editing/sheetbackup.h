#pragma once
#include "editing/tasksnapshot.h"
#include "editing/undoitems.h"
#include <vector>

class KWDocument;

// Backups of the resource sheet, with the assignments that follow its entries by name.
namespace sheetbackup {

// An entry with its assignments as they stand; one that is not in the sheet is recorded as missing.
UndoDocResourceItem entry(const KWDocument &document, const ResourceInfo &info);
void appendAssignments(const KWDocument &document, const QString &name, QVector<UndoResource> &assignments);

// Single entries, in the order in which they were recorded.
using Entries = std::vector<UndoDocResourceItem>;
// The entries that the backups are of, found by ID, else by name, with the assignments of the name that each
// has and of the one that it had. No assignment is taken twice.
Entries now(const KWDocument &document, const Entries &backups);
bool holds(const KWDocument &document, const Entries &entries, const ResourceInfo &info);
// Exchanges them for `current`, which is how they stand. Entries keep their records.
void restore(KWDocument &document, const Entries &backups, const Entries &current, bool withAssignments);

// All entries, and the assignments of every task.
struct Sheet
{
    QVector<ResourceInfo> infos;
    TaskSnapshot tasks;
};
void restore(KWDocument &document, const Sheet &backup, const Sheet &current, bool withAssignments);
QVector<ResourceInfo> infosOf(const KWDocument &document);
}
