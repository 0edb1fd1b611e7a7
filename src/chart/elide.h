#pragma once
#include <QString>
#include <functional>

namespace chart {

// One line of the text: line breaks, tabs and control characters are blanks.
QString oneLine(const QString &text);
// The text when it is at most `width` wide, else its longest beginning with an ellipsis that is; empty when
// not even that fits. `measured` becomes the width of the result.
QString elided(const QString &text, double width, const std::function<double(const QString &)> &measure,
               double *measured = nullptr);
}
