#pragma once
#include "engine/record/codes.h"
#include "kwgantt_export.h"
#include <QList>
#include <QString>

class QDomElement;

// One assignment: a resource at work on one task, with the rates it had when it was assigned.
//
// Task records share assignments when they are copied, so each record counts its uses. A new record has one
// use, its maker's, which passes to the task list it is put in: a list owns one use for each entry. The last
// release deletes the record.
class KWGANTT_EXPORT Resource
{
public:
    QString name;         // matched, trimmed, against the resource sheet
    double percent = 1.0; // units: 1.0 = 100 % of a work resource, the quantity of a material one
    quint32 workSecs = 0; // working seconds; 0 for a material resource
    qint32 ID = 0;        // of the sheet entry it was made from
    qint32 type = resourcetypes::Work;
    double cost = 0; // standard rate
    qint32 costUnit = cost::PerHour;
    double overtimeCost = 0;
    qint32 overtimeUnit = cost::PerHour;
    double costPer = 0; // cost per use

    Resource() = default;
    Resource(const Resource &other);
    Resource &operator=(const Resource &other); // copies the values, never the use count

    // Appends a "Resource" element to the parent.
    void save(QDomElement &parent) const;
    void parse(const QDomElement &element);

    // New records with the same values; the caller owns their uses.
    static QList<Resource *> cloneResources(const QList<Resource *> &resources);

    void use() { ++m_uses; }
    // Gives one use back; the record is deleted with its last use.
    static void release(Resource *resource);

private:
    int m_uses = 1;
};
