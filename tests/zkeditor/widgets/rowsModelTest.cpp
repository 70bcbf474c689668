#include "zkeditor/widgets/rowsModel.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <rapidcheck/gtest.h>

namespace {

struct NumberRow
{
    int number = 0;
    int shown = 0;

    int key() const { return number; }
    friend bool operator==(const NumberRow&, const NumberRow&) = default;
};

class NumbersModel : public RowsModel<NumberRow>
{
public:
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 2; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const NumberRow* row = rowAt(index.row());
        if (!row || role != Qt::DisplayRole)
            return {};
        return index.column() == 0 ? row->number : row->shown;
    }
};

std::vector<NumberRow> rowsOf(const std::vector<int>& numbers, int shown)
{
    std::vector<NumberRow> rows;
    for (const int number : numbers)
        rows.push_back({number, shown});
    return rows;
}

} // namespace

// Whatever comes after whatever: the table is right, views are told properly, and what stays keeps its indexes.
RC_GTEST_PROP(RowsModel, FollowsEveryChange, ())
{
    NumbersModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto count = *rc::gen::inRange(0, 60);
    std::vector<int> pool(static_cast<size_t>(count));
    std::iota(pool.begin(), pool.end(), 0);
    for (int step = 0; step < 4; ++step) {
        std::vector<QPersistentModelIndex> kept;
        std::vector<int> numbers;
        for (int row = 0; row < model.rowCount(); ++row) {
            kept.emplace_back(model.index(row, 1));
            numbers.push_back(model.rowAt(row)->number);
        }
        std::vector<int> chosen = pool;
        std::shuffle(chosen.begin(), chosen.end(), std::mt19937(*rc::gen::arbitrary<unsigned int>()));
        chosen.resize(static_cast<size_t>(*rc::gen::inRange(0, count + 1)));
        if (*rc::gen::arbitrary<bool>())
            std::sort(chosen.begin(), chosen.end());
        model.setRows(rowsOf(chosen, step));
        RC_ASSERT(model.rows() == rowsOf(chosen, step));
        for (size_t i = 0; i < kept.size(); ++i) {
            const auto place = std::find(chosen.begin(), chosen.end(), numbers[i]);
            RC_ASSERT(kept[i].isValid() == (place != chosen.end()));
            if (kept[i].isValid())
                RC_ASSERT(kept[i].row() == static_cast<int>(place - chosen.begin()));
        }
    }
}

TEST(RowsModel, OneChangeAmongManyRowsIsToldAsOne)
{
    std::vector<int> numbers(10000);
    std::iota(numbers.begin(), numbers.end(), 0);
    NumbersModel model;
    model.setRows(rowsOf(numbers, 0));
    int layouts = 0;
    int removed = 0;
    int changed = 0;
    QObject::connect(&model, &QAbstractItemModel::layoutChanged, [&] { ++layouts; });
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, [&] { ++removed; });
    QObject::connect(&model, &QAbstractItemModel::dataChanged, [&] { ++changed; });
    numbers.erase(numbers.begin() + 5000);
    std::vector<NumberRow> rows = rowsOf(numbers, 0);
    rows[17].shown = 1;
    model.setRows(rows);
    EXPECT_EQ(removed, 1);
    EXPECT_EQ(changed, 1);
    EXPECT_EQ(layouts, 0);
    model.setRows(rows);
    EXPECT_EQ(removed + changed + layouts, 2);
}
