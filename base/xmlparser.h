#pragma once
#include "kwbase_export.h"
#include <QString>

class QDomDocument;

// XML documents from and to files.
class KWBASE_EXPORT XmlParser
{
public:
    static bool loadFile(const QString &path, QDomDocument &document);
    // The old file stays when the new one cannot be written whole.
    static bool saveToFile(const QString &path, const QDomDocument &document, int indent = 1);
};
