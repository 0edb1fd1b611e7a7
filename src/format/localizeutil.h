#pragma once
#include "kwgantt_export.h"
#include <QMap>
#include <QString>

// Texts of the user's language.
class KWGANTT_EXPORT LocalizeUtil
{
public:
    static QMap<unsigned int, QString> s_mapLocStrs;
    static QMap<unsigned int, QString> s_undoString;

    static QString localStr(unsigned int id);   // empty when unknown
    static QString undoName(unsigned int code); // empty when unknown
};
