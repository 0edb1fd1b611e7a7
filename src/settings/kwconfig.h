#pragma once
#include "kwgantt_export.h"
#include <QMap>
#include <QString>
#include <QVariant>

// The application's settings: a name and a value each, with defaults, kept in the configuration folder.
class KWGANTT_EXPORT KWConfig
{
public:
    KWConfig();
    // The stored value, else the setting's default, else an invalid value.
    QVariant value(const QString &name) const;
    int intValue(const QString &name) const;
    QString textValue(const QString &name) const;
    void setValue(const QString &name, const QVariant &value);
    bool contains(const QString &name) const;

    // Reads or writes "Config.xml" of a folder; an empty folder means the configuration folder.
    bool load(const QString &folder = QString());
    bool save(const QString &folder = QString()) const;

private:
    QMap<QString, QVariant> m_values;
};
