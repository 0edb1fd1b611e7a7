#pragma once
#include "model/kwdocument_xml.h"
#include "support/xmlsink.h"
#include <QBuffer>
#include <string>

// The document as the file that saving writes.
inline std::string savedText(const KWDocument &document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    StreamSink sink(buffer);
    documentxml::write(sink, document);
    sink.finish();
    return buffer.data().toStdString();
}
