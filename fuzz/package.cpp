// Any text that a document is read from saves to text that reads back as the same document, through a DOM
// too, and text that is refused leaves the document alone.
#include "document.h"
#include "support/xmltree.h"
#include <QDomDocument>

namespace {

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
    startApplication(fillTwoTitles);

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
    QDomDocument dom;
    FUZZ_CHECK(dom.setContent(first));
    KWDocument held;
    held.DocGuid = QStringLiteral("same");
    DomSource root(dom.documentElement());
    documentxml::read(root, held);
    FUZZ_CHECK(textOf(held) == first);
    return 0;
}
