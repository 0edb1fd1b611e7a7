// Any text that a document is read from saves to text that reads back as the same document, and text that is
// refused leaves the document alone.
#include "fuzz.h"
#include "model/kwdocument_xml.h"
#include "support/xmlsink.h"
#include "support/xmltree.h"
#include <QBuffer>
#include <QGuiApplication>

namespace {

QByteArray textOf(const KWDocument &document)
{
    QByteArray text;
    QBuffer buffer(&text);
    FUZZ_CHECK(buffer.open(QIODevice::WriteOnly));
    StreamSink sink(buffer);
    documentxml::write(sink, document);
    FUZZ_CHECK(sink.finish());
    return text;
}

bool read(const QByteArray &text, KWDocument &document)
{
    XmlTree tree;
    QString error;
    if (!tree.parse(text, &error)) {
        FUZZ_CHECK(!error.isEmpty() && tree.root().isNull());
        return false;
    }
    TreeSource root = tree.root();
    documentxml::read(root, document);
    return true;
}
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Fonts need an application, titles make the columns differ.
    static int argumentCount = 1;
    static char name[] = "fuzz_package";
    static char *arguments[] = {name, nullptr};
    static auto *const application = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        RowColumnData::s_columnNames = {{0, QStringLiteral("ID")}, {1, QStringLiteral("Name")}};
        return new QGuiApplication(argumentCount, arguments);
    }();
    FUZZ_CHECK(application);

    KWDocument document;
    document.DocGuid = QStringLiteral("same");
    if (!read(QByteArray(reinterpret_cast<const char *>(data), int(size)), document))
        return 0;
    FUZZ_CHECK(document.rowColumnData()->rowHeights().size() == document.taskCount());
    const QByteArray first = textOf(document);
    KWDocument again;
    again.DocGuid = QStringLiteral("same");
    FUZZ_CHECK(read(first, again));
    FUZZ_CHECK(textOf(again) == first);
    return 0;
}
