#pragma once
#include "engine/record/resource.h"
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
class KWGANTT_EXPORT ResourceInfo
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

    QString name;
    qint32 ID = 0;
    qint32 type = 0;     // 0 work, other material
    double unit = 1.0;   // maximum units, 1.0 = 100 %
    double cost = 0;     // standard rate: money for a cost unit of work, or for one of a material
    qint32 costUnit = 1; // 0 minute, 1 hour, 2 day, 3 week, 4 month
    double overtimeCost = 0;
    qint32 overtimeUnit = 1;
    double costPer = 0; // cost per use
    QString group;
    QString email;
    QString notes;

    // Rolled up from the assignments by ResourceInfoData, not saved.
    double totalCost = 0;
    double totalWork = 0; // hours of a work resource, units of a material
    double actualCost = 0;
    double actualWork = 0;
    double unitsSum = 0; // units of work assignments; for a material, how many assignments there are
    quint32 workStart = 0;
    quint32 workFinish = 0;

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
