#include "chart/elide.h"
#include <QTextBoundaryFinder>
#include <algorithm>

namespace chart {

namespace {

// No font is so narrow that more characters than these would stand in a cell.
constexpr double fewestPixelsPerCharacter = 1.0;
constexpr int alwaysMeasured = 64;
const QChar ellipsis(0x2026);
}

QString oneLine(const QString &text)
{
    const auto isBlank = [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar(0x2028) || c == QChar(0x2029);
    };
    if (std::none_of(text.begin(), text.end(), isBlank))
        return text;
    QString line = text;
    std::replace_if(line.begin(), line.end(), isBlank, QLatin1Char(' '));
    return line;
}

QString elided(const QString &text, double width, const std::function<double(const QString &)> &measure,
               double *measured)
{
    const auto result = [measured](const QString &line, double itsWidth) {
        if (measured)
            *measured = itsWidth;
        return line;
    };
    const int most = std::max(alwaysMeasured, int(std::min(width, 1e6) / fewestPixelsPerCharacter));
    const bool isCut = text.size() > most;
    const QString start = isCut ? text.left(most) : text;
    const double whole = measure(start);
    if (whole <= width && !isCut)
        return result(start, whole);

    // Only whole characters as people see them are taken away.
    std::vector<int> ends;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, start);
    while (finder.toNextBoundary() > 0)
        ends.push_back(finder.position());
    std::size_t fits = 0, tooMany = ends.size() + 1;
    double fitting = 0;
    // Begins where the characters' mean width says.
    std::size_t tried =
        whole > 0 ? std::size_t(double(ends.size()) * std::min(1.0, width / whole)) : ends.size();
    while (tooMany - fits > 1) {
        tried = std::clamp(tried, fits + 1, tooMany - 1);
        const int end = ends[tried - 1];
        QString line = start.left(end);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        const double lineWidth = measure(line + ellipsis);
        if (lineWidth <= width) {
            fits = tried;
            fitting = lineWidth;
            ++tried;
        } else {
            tooMany = tried;
            --tried;
        }
        if (tooMany - fits > 8)
            tried = (fits + tooMany) / 2;
    }
    if (fits == 0) {
        const double alone = measure(QString(ellipsis));
        return alone <= width ? result(QString(ellipsis), alone) : result(QString(), 0);
    }
    QString line = start.left(ends[fits - 1]);
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return result(line + ellipsis, fitting);
}
}
