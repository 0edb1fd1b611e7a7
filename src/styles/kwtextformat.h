#pragma once
#include "kwgantt_export.h"
#include "styles/kwcolor.h"
#include <QFont>
#include <QString>

// How a text looks.
class KWGANTT_EXPORT KWTextFormat
{
public:
    QString family;       // empty: the drawing's own
    double pointSize = 9; // 1 pixel at 96 dpi is 0.75 points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    KWColor color;

    KWTextFormat() = default;
    KWTextFormat(double size, const KWColor &textColor, bool isBold = false)
        : pointSize(size)
        , bold(isBold)
        , color(textColor)
    {
    }
    // Without a colour. A font counts as bold as it does in a document's file.
    static KWTextFormat fromFont(const QFont &font);
    QFont font() const;

    // Appends a "Format" element: that of a task's font, with a "Color" below it. A size that is not whole is
    // written with its decimals.
    void saveTo(QDomElement &parent) const;
    // What is absent, or out of range, stays as it was.
    void parse(const QDomElement &element);
    bool operator==(const KWTextFormat &other) const;
    bool operator!=(const KWTextFormat &other) const { return !(*this == other); }
};
