#pragma once
#include "fuzz.h"
#include "model/kwdocument_xml.h"
#include "support/xmlsink.h"
#include "support/xmltree.h"
#include <QBuffer>
#include <QGuiApplication>

// What the targets that fill a document share.

// The text that saving writes.
inline QByteArray textOf(const KWDocument &document)
{
    QByteArray text;
    QBuffer buffer(&text);
    FUZZ_CHECK(buffer.open(QIODevice::WriteOnly));
    StreamSink sink(buffer);
    documentxml::write(sink, document);
    FUZZ_CHECK(sink.finish());
    return text;
}

// What saving writes reads back as the same document.
inline void checkThatItReadsBack(const KWDocument &document)
{
    const QByteArray text = textOf(document);
    XmlTree tree;
    FUZZ_CHECK(tree.parse(text));
    KWDocument again;
    again.DocGuid = document.DocGuid;
    TreeSource root = tree.root();
    documentxml::read(root, again);
    FUZZ_CHECK(textOf(again) == text);
}

// Fonts and the clipboard need an application; made at the first call, never deleted. `fillTitles` runs
// before the first document is made: titles make the columns differ.
template <typename FillTitles>
void startApplication(FillTitles fillTitles)
{
    static int argumentCount = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static auto *const application = [fillTitles] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        fillTitles();
        return new QGuiApplication(argumentCount, arguments);
    }();
    FUZZ_CHECK(application);
}

inline void fillTwoTitles()
{
    RowColumnData::s_columnNames = {{0, QStringLiteral("ID")}, {1, QStringLiteral("Name")}};
}
