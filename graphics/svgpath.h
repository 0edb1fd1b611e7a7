#pragma once
#include <QString>

class KWPath;

// The path data of SVG: commands of one letter and numbers behind them.
namespace svgpath {

// With up to so many decimals (0..6), without trailing zeros and "-0".
QString number(double value, int decimals);
// Adds to the path; false when the text is no path data, and the path may hold part of it then.
bool read(const QString &data, KWPath &path);
}
