#pragma once
#include "plan.h"
#include "style.h"
#include <QString>
#include <QVector>

// Why one task is when it is.
namespace explain {

// The positions that TASK may mean: a row number, "#ID", or a name (as it is written, then in any case, then
// a part of it). Empty: none; several: the name is not enough.
QVector<int> find(const Plan &plan, const QString &text);

struct Line
{
    QString label;   // "starts when"
    const char *key; // the same for programs
    QString text;
};

// The first line's text names the task and its dates.
QVector<Line> task(const Plan &plan, int pos);
QString text(const QVector<Line> &lines, const Style &style);
QByteArray json(const QVector<Line> &lines);
}
