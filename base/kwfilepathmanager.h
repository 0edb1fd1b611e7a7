#pragma once
#include "kwbase_export.h"
#include <QString>

class QDomDocument;

// Where the application keeps its files.
class KWBASE_EXPORT KWFilePathManager
{
public:
    // Folder `name` of the configuration directory, made when missing; no trailing slash. An empty name is
    // the directory.
    static QString configDir(const QString &name = QString());
    static QString appConfigDir(const QString &name = QString()); // "Config" beside the application
    static QString configPath(const QString &fileName);           // a file of configDir()
    // Replaces the configuration directory (for tests and hosts of their own); empty brings the usual one
    // back.
    static void setConfigRoot(const QString &folder);
    // Reads an XML file; false when it cannot be read or is no sound XML.
    static bool loadXmlFile(const QString &path, QDomDocument &document);
    static QString shortRandName();    // a short random file-name part
    static QString templatePathName(); // a fresh path in the temporary directory, not made
};
