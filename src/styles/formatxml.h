#pragma once
#include "styles/kwtextformat.h"
#include <QtGlobal>

// The attributes that a text's format has in files, whether it is a task's or a drawing's.
namespace formatxml {

constexpr int boldWeight = 58;     // from here on a font counts as bold in files
constexpr int maxPointSize = 1638; // a file may name any size; a larger one is left aside

// Into the element that the sink has open.
template <typename Sink>
void write(Sink &sink, const KWTextFormat &format)
{
    sink.attribute("Family", format.family);
    sink.attribute("PointSize", format.pointSize);
    sink.attribute("Bold", format.bold);
    sink.attribute("Italic", format.italic);
    sink.attribute("Underline", format.underline);
    sink.attribute("StrikeOut", format.strikeOut);
}
}
