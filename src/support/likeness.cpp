#include "support/likeness.h"
#include <algorithm>
#include <numeric>
#include <vector>

namespace likeness {

int distance(const QString &a, const QString &b)
{
    std::vector<int> row(std::size_t(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    std::vector<int> before = row; // the row above, and the one above that
    std::vector<int> twoBefore;
    for (int i = 1; i <= a.size(); ++i) {
        twoBefore = std::move(before);
        before = row;
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const std::size_t at = std::size_t(j);
            const int change = before[at - 1] + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            row[at] = std::min({change, before[at] + 1, row[at - 1] + 1});
            const bool isSwapped = i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1);
            if (isSwapped)
                row[at] = std::min(row[at], twoBefore[at - 2] + 1);
        }
    }
    return row.back();
}

QString nearest(const QString &word, const QStringList &candidates, QString (*plain)(const QString &))
{
    constexpr int longest = 40;
    if (word.isEmpty() || word.size() > longest)
        return QString();
    const QString lower = word.toLower();
    QString best;
    int least = std::max(1, word.size() / 3) + 1;
    for (const QString &candidate : candidates) {
        if (candidate.size() > 2 * longest)
            continue;
        const int changes = distance(lower, plain ? plain(candidate) : candidate.toLower());
        if (changes < least) {
            least = changes;
            best = candidate;
        }
    }
    return best;
}
}
