#pragma once
#include "editing/kwhyperlink.h"
#include "support/xmltext.h"

// The XML form of a task's hyperlinks, over any of the XML sinks and sources.
namespace hyperlinkxml {

// The texts of a link that are child elements, in the order they are written.
struct TextField
{
    const char *element;
    QString KWHyperlink::*member;
};
inline constexpr TextField textFields[] = {
    {"Address", &KWHyperlink::address},           {"SubAddress", &KWHyperlink::subAddress},
    {"RelatAddress", &KWHyperlink::relatAddress}, {"Description", &KWHyperlink::description},
    {"ExtraInfo", &KWHyperlink::extraInfo},
};

// The text as files hold it: without what XML cannot carry.
QString storedText(const QString &text);
// A text that is no number leaves it as it was.
void readNumber(const XmlText &text, qint32 &number);

template <typename Sink>
void writeLink(Sink &sink, const KWHyperlink &link)
{
    sink.open("Hyperlink");
    const QString name = storedText(link.name);
    if (!name.isEmpty())
        sink.attribute("Name", name);
    sink.attribute("ID", link.ID);
    sink.attribute("Type", link.type);
    if (link.isDefault)
        sink.attribute("Default", true);
    for (const TextField &field : textFields) {
        const QString text = storedText(link.*field.member);
        if (text.isEmpty())
            continue;
        sink.open(field.element);
        sink.attribute("V", text);
        sink.close();
    }
    sink.close();
}

// Nothing for a sheet without links.
template <typename Sink>
void write(Sink &sink, const KWHyperlinkSheet &sheet)
{
    if (sheet.isEmpty())
        return;
    sink.open("Hyperlinks");
    for (int i = 0; i < sheet.count(); ++i)
        writeLink(sink, *sheet.getAt(i));
    sink.close();
}

template <typename Source>
void readLink(Source &source, KWHyperlink &link)
{
    xmltext::read(source.text("Name"), link.name);
    readNumber(source.text("ID"), link.ID);
    readNumber(source.text("Type"), link.type);
    const XmlText isDefault = source.text("Default");
    link.isDefault = isDefault == "1" || isDefault == "TRUE";
    for (Source child = source.firstChild(); !child.isNull(); child = child.nextSibling()) {
        for (const TextField &field : textFields) {
            if (child.is(field.element))
                xmltext::read(child.text("V"), link.*field.member);
        }
    }
}

// Appends the links of a "Hyperlinks" element.
template <typename Source>
void read(const Source &source, KWHyperlinkSheet &sheet)
{
    for (Source child = source.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (!child.is("Hyperlink"))
            continue;
        auto *link = new KWHyperlink;
        sheet.appendHyperlink(link);
        readLink(child, *link);
    }
}
}
