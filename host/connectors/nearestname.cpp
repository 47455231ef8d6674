#include "connectors/nearestname.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

constexpr int kLongestName = 60;     // beyond, nobody has typed it
constexpr int kLettersPerChange = 3; // one slip for so many letters, and two at least

// Letters to put in, take out or replace; two that changed places count as two.
int distance(const QString& a, const QString& b)
{
    std::vector<int> row(static_cast<std::size_t>(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < a.size(); ++i) {
        int diagonal = row[0]++;
        for (std::size_t j = 1; j < row.size(); ++j) {
            const int replaced = diagonal + (a[i] != b[static_cast<int>(j) - 1] ? 1 : 0);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

QString nearestName(const QString& typed, const QStringList& names)
{
    const QString wanted = typed.left(kLongestName).toLower();
    QString nearest;
    int least = 1 + std::max(2, static_cast<int>(wanted.size()) / kLettersPerChange);
    for (const QString& name : names) {
        const int changes = distance(wanted, name.toLower());
        if (changes < least && changes < name.size()) {
            least = changes;
            nearest = name;
        }
    }
    return nearest;
}

QString didYouMean(const QString& typed, const QStringList& names)
{
    const QString nearest = nearestName(typed, names);
    return nearest.isEmpty()
               ? QString()
               : QCoreApplication::translate("NearestName", "; did you mean \"%1\"?").arg(nearest);
}
