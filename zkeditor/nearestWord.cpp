#include "zkeditor/nearestWord.h"

#include <algorithm>
#include <vector>

namespace {

constexpr qsizetype longestWord = 60;

/// How many characters have to be changed, added or taken away to make one word of the other.
qsizetype wordDistance(const QString& a, const QString& b)
{
    std::vector<qsizetype> row(static_cast<size_t>(b.size()) + 1);
    for (size_t i = 0; i < row.size(); ++i)
        row[i] = static_cast<qsizetype>(i);
    for (qsizetype i = 0; i < a.size(); ++i) {
        qsizetype diagonal = row[0];
        row[0] = i + 1;
        for (qsizetype j = 0; j < b.size(); ++j) {
            const auto at = static_cast<size_t>(j);
            const qsizetype changed = diagonal + (a[i].toLower() == b[j].toLower() ? 0 : 1);
            diagonal = row[at + 1];
            row[at + 1] = std::min({changed, row[at] + 1, row[at + 1] + 1});
        }
    }
    return row.back();
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
        const qsizetype distance = wordDistance(word, candidate);
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}
