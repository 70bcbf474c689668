#include "zkeditor/nearestWord.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

constexpr qsizetype longestWord = 60;

/// How many characters have to be changed, added, taken away or exchanged with their neighbour to make one word of the
/// other.
qsizetype wordDistance(const QString& a, const QString& b)
{
    const auto width = static_cast<size_t>(b.size()) + 1;
    std::vector<qsizetype> beforeLast(width);
    std::vector<qsizetype> last(width);
    std::vector<qsizetype> row(width);
    std::iota(last.begin(), last.end(), 0);
    for (qsizetype i = 0; i < a.size(); ++i) {
        row[0] = i + 1;
        for (qsizetype j = 0; j < b.size(); ++j) {
            const auto at = static_cast<size_t>(j);
            row[at + 1] = std::min({last[at] + (a[i] == b[j] ? 0 : 1), row[at] + 1, last[at + 1] + 1});
            if (i > 0 && j > 0 && a[i] == b[j - 1] && a[i - 1] == b[j])
                row[at + 1] = std::min(row[at + 1], beforeLast[at - 1] + 1);
        }
        std::swap(beforeLast, last);
        std::swap(last, row);
    }
    return last.back();
}

} // namespace

QString nearestWord(const QString& word, const QStringList& known)
{
    if (word.size() > longestWord)
        return {};
    QString nearest;
    qsizetype least = std::max<qsizetype>(word.size() / 3, 1) + 1;
    for (const QString& candidate : known) {
        if (std::abs(candidate.size() - word.size()) >= least)
            continue;
        const qsizetype distance = wordDistance(word.toLower(), candidate.toLower());
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}
