// Project XML: whatever it holds, reading ends, a refused file leaves the document alone, and what was
// imported is written as a file that imports again, and is written the same from then on.
#include "document.h"
#include "exchange/MSPDIDataEngine.h"

namespace {

QByteArray written(KWDocument &document, const MSPDIDataEngine &heading)
{
    QBuffer buffer;
    FUZZ_CHECK(buffer.open(QIODevice::WriteOnly));
    MSPDIDataEngine engine(&document);
    engine.setProjectName(QStringLiteral("plan"));
    engine.setProjectStart(heading.projectStart());
    FUZZ_CHECK(engine.exportTo(buffer));
    return buffer.data();
}

// Reads the bytes into a new document and writes that.
QByteArray rewritten(const QByteArray &bytes)
{
    KWDocument document;
    MSPDIDataEngine engine(&document);
    FUZZ_CHECK(engine.importBytes(bytes, QString()));
    return written(document, engine);
}
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    startApplication(fillTwoTitles);
    KWDocument document;
    document.DocGuid = QStringLiteral("same");
    const QByteArray before = textOf(document);
    MSPDIDataEngine engine(&document);
    if (!engine.importBytes(QByteArray(reinterpret_cast<const char *>(data), int(size)),
                            QStringLiteral("x"))) {
        FUZZ_CHECK(textOf(document) == before && !engine.findings().isEmpty());
        return 0;
    }
    const QByteArray first = rewritten(written(document, engine));
    FUZZ_CHECK(rewritten(first) == first);
    return 0;
}
