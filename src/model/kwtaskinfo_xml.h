#pragma once
#include "editing/hyperlinkxml.h"
#include "engine/record/fieldxml.h"
#include "engine/record/resource.h"
#include "engine/record/resourcefields.h"
#include "engine/record/taskfields.h"
#include "model/kwtaskinfo.h"
#include "styles/formatxml.h"
#include <QFont>

// The XML form of a task, over any of the XML sinks and sources.
namespace taskxml {

// The font of the task read last: nearly all tasks of a document share one, which then exists once.
struct FontMemo
{
    QFont before; // what the text was applied to
    QByteArray text;
    QFont after;
};

template <typename Sink>
void writeFont(Sink &sink, const QFont &font)
{
    KWTextFormat format = KWTextFormat::fromFont(font);
    format.pointSize = font.pointSize(); // a task's is a whole number
    sink.open("Format");
    formatxml::write(sink, format);
    sink.close();
}

template <typename Sink>
void write(Sink &sink, const KWTaskInfo &task)
{
    if (task.isEmpty())
        return;
    sink.open("Task");
    fields::write(sink, fields::taskFields, task);
    writeFont(sink, task.font);
    hyperlinkxml::write(sink, task.hyperlinks);
    if (!task.resourceList.isEmpty()) {
        sink.open("ResourceList");
        for (const Resource *resource : task.resourceList) {
            sink.open("Resource");
            fields::write(sink, fields::resourceFields, *resource);
            sink.close();
        }
        sink.close();
    }
    sink.close();
}

template <typename Source>
void applyFont(Source &source, QFont &font)
{
    const XmlText family = source.text("Family");
    if (!family.isEmpty())
        font.setFamily(family.toString());
    const qint32 pointSize = source.text("PointSize").toInt();
    if (pointSize > 0 && pointSize <= formatxml::maxPointSize)
        font.setPointSize(pointSize);
    const XmlText bold = source.text("Bold");
    if (!bold.isEmpty())
        font.setWeight(bold.toInt() != 0 ? QFont::Bold : QFont::Normal);
    if (source.text("Italic").toInt() != 0)
        font.setStyle(QFont::StyleItalic);
    const XmlText underline = source.text("Underline");
    if (!underline.isEmpty())
        font.setUnderline(underline.toInt() != 0);
    const XmlText strikeOut = source.text("StrikeOut");
    if (!strikeOut.isEmpty())
        font.setStrikeOut(strikeOut.toInt() != 0);
}

template <typename Source>
void readFont(Source &source, QFont &font, FontMemo *memo)
{
    if (!memo) {
        applyFont(source, font);
        return;
    }
    QByteArray text;
    for (const char *attribute : {"Family", "PointSize", "Bold", "Italic", "Underline", "StrikeOut"}) {
        const XmlText value = source.text(attribute);
        text.append(value.data(), value.size()).append('\n');
    }
    if (memo->text != text || memo->before != font) {
        memo->before = font;
        memo->text = text;
        applyFont(source, font);
        memo->after = font;
    }
    font = memo->after;
}

template <typename Source>
void readResources(const Source &list, KWTaskInfo &task)
{
    task.clearResources();
    for (Source child = list.firstChild(); !child.isNull(); child = child.nextSibling()) {
        auto *resource = new Resource;
        fields::read(child, fields::resourceFields, *resource);
        task.resourceList.append(resource);
    }
}

template <typename Source>
void read(Source &source, KWTaskInfo &task, FontMemo *memo = nullptr)
{
    fields::read(source, fields::taskFields, task);
    for (Source child = source.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.is("Format")) {
            readFont(child, task.font, memo);
        } else if (child.is("Hyperlinks")) {
            task.hyperlinks.clear();
            hyperlinkxml::read(child, task.hyperlinks);
        } else if (child.is("ResourceList")) {
            readResources(child, task);
        }
    }
}
}
