#pragma once
#include "engine/record/fieldxml.h"
#include "engine/record/resourcefields.h"
#include "resources/resourceinfodata.h"

// The resource sheet as an XML element, over any of the XML sinks and sources.
namespace sheetxml {

// Each entry is a "Column" element, null ones are left out.
template <typename Sink>
void writeEntry(Sink &sink, const ResourceInfo &info)
{
    sink.open("Column");
    fields::write(sink, fields::resourceInfoFields, info);
    sink.close();
}

template <typename Sink>
void write(Sink &sink, const QVector<ResourceInfo *> &infos)
{
    sink.open("ResourceInfo");
    for (const ResourceInfo *info : infos) {
        if (info)
            writeEntry(sink, *info);
    }
    sink.close();
}

// Appends an entry for each child element, whatever its name.
template <typename Source>
void read(const Source &source, QVector<ResourceInfo *> &infos)
{
    for (Source child = source.firstChild(); !child.isNull(); child = child.nextSibling()) {
        auto *info = new ResourceInfo;
        fields::read(child, fields::resourceInfoFields, *info);
        infos.append(info);
    }
}
}
