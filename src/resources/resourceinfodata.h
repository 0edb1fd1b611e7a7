#pragma once
#include "engine/record/resource.h"
#include "engine/record/resourceentry.h"
#include "kwgantt_export.h"
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

class KWDocument;
class KWTaskInfo;
class QDomElement;

// One entry of the resource sheet. Assignments refer to it by its name, trimmed.
class KWGANTT_EXPORT ResourceInfo : public ResourceEntry
{
public:
    // Which field of an entry has changed.
    enum ChangeVal {
        ChangeType = 0,
        ChangeCostUnit,
        ChangeCost,
        ChangeOvertimeUnit,
        ChangeOvertimeCost,
        ChangeCostPer
    };

    // Appends a "Column" element to the parent.
    void resourceInfoSave(QDomElement &parent) const;
    void resourceInfoParse(const QDomElement &element);
    // Copies a changed field to every assignment of this name and recomputes the tasks that have one.
    void changeAllTaskSameNameResource(KWDocument *document, ChangeVal what) const;
};

// The document's resource sheet.
class KWGANTT_EXPORT ResourceInfoData
{
public:
    // Texts for the types 0..4, filled by the host before it makes a document: a sheet takes them when it is
    // made.
    static QMap<int, QString> s_typeItems;

    QVector<ResourceInfo *> infos; // owned, in sheet order

    explicit ResourceInfoData(KWDocument *document);
    virtual ~ResourceInfoData();
    ResourceInfoData(const ResourceInfoData &) = delete;
    ResourceInfoData &operator=(const ResourceInfoData &) = delete;

    KWDocument *document() const { return m_document; }

    // ---- Entries ------------------------------------------------------------------------------------------
    void appendResourceInfo(ResourceInfo *info); // takes the entry over
    void clearResourceInfoData();
    ResourceInfo *getResourceInfoAt(int index) const;               // null outside the sheet
    ResourceInfo *getResourceInfoByName(const QString &name) const; // the first; names are compared trimmed
    ResourceInfo *getResourceInfoByID(int id) const;                // the first
    bool isHaveSameResourceName(const QString &name) const;         // exactly, blanks included
    int maxID() const;                                              // the ID of the next entry
    // The name, with numbers behind it until no entry's name equals it trimmed.
    QString differentSuffixResourceName(const QString &name) const;
    void deleteResourceByName(const QString &name); // the first; assignments stay

    // ---- Texts --------------------------------------------------------------------------------------------
    QString getTypeTextByIndex(int index) const;
    int getTypeIndex(const QString &text) const; // -1 when there is none
    QString getCostUintText(int index) const;
    int getCostUnitIndex(const QString &text) const; // by the text's end; -1 when there is none

    // ---- Assignments --------------------------------------------------------------------------------------
    // Appends the tasks that have an assignment of the entry's name, in document order.
    void resourceGetTaskList(KWDocument *document, const ResourceInfo *info, QList<KWTaskInfo *> &out) const;
    // Sums over all assignments of each entry's name; on one task only the first of a name counts.
    void updateWorkStarAndFinishWork(KWDocument *document); // totalWork, actualWork, workStart, workFinish
    void udpateWorkAndCost(KWDocument *document);           // totals, actuals and unitsSum

    // ---- Files --------------------------------------------------------------------------------------------
    // Appends a "ResourceInfo" element to the parent.
    void save(QDomElement &parent) const;
    // Appends to the sheet; whoever loads a document clears the sheet first.
    void parse(const QDomElement &element);

private:
    KWDocument *m_document; // not owned
    QStringList m_typeTexts;
};
