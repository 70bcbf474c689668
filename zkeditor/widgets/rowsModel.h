#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

/// A table whose rows come from elsewhere as a whole. What was there before and is there again stays the same row for
/// whoever looks at it: selection, scroll position and an open editor survive every change.
///
/// A Row has a member key() that tells rows apart (each at most once in the table, with a qHash()), and operator==.
template <typename Row> class RowsModel : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    /// One, unless a model has more.
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 1; }
    const std::vector<Row>& rows() const { return m_rows; }
    /// Null when the index is not in the table.
    const Row* rowAt(int row) const
    {
        return row >= 0 && row < rowCount() ? &m_rows[static_cast<size_t>(row)] : nullptr;
    }
    /// -1 when there is no such row.
    template <typename Key> int rowOf(const Key& key) const
    {
        const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row& row) { return row.key() == key; });
        return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
    }

    /// Linear in the number of rows.
    void setRows(std::vector<Row> rows)
    {
        if (m_rows.empty() && !rows.empty()) {
            this->beginInsertRows({}, 0, static_cast<int>(rows.size()) - 1);
            m_rows.swap(rows);
            this->endInsertRows();
            return;
        }
        // Most changes are within rows.
        if (haveSameKeys(m_rows, rows)) {
            updateRows(rows);
            return;
        }
        QHash<KeyOf, size_t> wanted;
        wanted.reserve(static_cast<qsizetype>(rows.size()));
        for (size_t i = 0; i < rows.size(); ++i)
            wanted.insert(rows[i].key(), i);
        dropRows(wanted);
        orderRows(wanted);
        takeRows(rows);
        updateRows(rows);
    }

protected:
    /// To be called before setRows() where a row can get another key: as many rows as go, up to a few, are those that
    /// come, in their order.
    void followRenames(const std::vector<Row>& rows)
    {
        if (m_rows.size() != rows.size())
            return;
        const std::vector<size_t> gone = missingIn(m_rows, rows);
        const std::vector<size_t> come = missingIn(rows, m_rows);
        if (gone.size() != come.size() || gone.size() > mostRuns)
            return;
        for (size_t i = 0; i < gone.size(); ++i)
            changeRow(static_cast<int>(gone[i]), rows[come[i]]);
    }

    /// Gives a row other contents, under another key too: it stays the same row for whoever looks at it.
    void changeRow(int row, Row changed)
    {
        m_rows[static_cast<size_t>(row)] = std::move(changed);
        Q_EMIT this->dataChanged(this->index(row, 0), this->index(row, this->columnCount() - 1));
    }

private:
    using KeyOf = std::decay_t<decltype(std::declval<const Row&>().key())>;
    static constexpr size_t mostRuns = 16; // told one by one; beyond that the table is laid out anew

    static bool haveSameKeys(const std::vector<Row>& a, const std::vector<Row>& b)
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](const Row& left, const Row& right) { return left.key() == right.key(); });
    }

    /// The rows of one table of which the other has none.
    static std::vector<size_t> missingIn(const std::vector<Row>& table, const std::vector<Row>& other)
    {
        std::vector<size_t> missing;
        if (haveSameKeys(table, other))
            return missing;
        QSet<KeyOf> present;
        present.reserve(static_cast<qsizetype>(other.size()));
        for (const Row& row : other)
            present.insert(row.key());
        for (size_t i = 0; i < table.size(); ++i) {
            if (!present.contains(table[i].key()))
                missing.push_back(i);
        }
        return missing;
    }

    size_t runsOf(const std::vector<bool>& marked) const
    {
        size_t runs = 0;
        for (size_t i = 0; i < marked.size(); ++i)
            runs += marked[i] && (i == 0 || !marked[i - 1]) ? 1 : 0;
        return runs;
    }

    /// Takes out the rows that are not wanted any more.
    void dropRows(const QHash<KeyOf, size_t>& wanted)
    {
        std::vector<bool> doomed;
        doomed.reserve(m_rows.size());
        for (const Row& row : m_rows)
            doomed.push_back(!wanted.contains(row.key()));
        if (runsOf(doomed) > mostRuns) {
            std::vector<size_t> order;
            for (const bool last : {false, true}) {
                for (size_t i = 0; i < doomed.size(); ++i) {
                    if (doomed[i] == last)
                        order.push_back(i);
                }
            }
            permute(order);
            std::stable_partition(doomed.begin(), doomed.end(), [](bool isDoomed) { return !isDoomed; });
        }
        for (size_t end = doomed.size(); end > 0; --end) {
            if (!doomed[end - 1])
                continue;
            size_t begin = end - 1;
            while (begin > 0 && doomed[begin - 1])
                --begin;
            this->beginRemoveRows({}, static_cast<int>(begin), static_cast<int>(end) - 1);
            m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(begin),
                         m_rows.begin() + static_cast<std::ptrdiff_t>(end));
            this->endRemoveRows();
            end = begin + 1;
        }
    }

    /// Puts what stays into its new order.
    void orderRows(const QHash<KeyOf, size_t>& wanted)
    {
        std::vector<std::pair<size_t, size_t>> places; // new, old
        places.reserve(m_rows.size());
        for (size_t i = 0; i < m_rows.size(); ++i)
            places.emplace_back(wanted.value(m_rows[i].key()), i);
        if (std::is_sorted(places.begin(), places.end()))
            return;
        std::sort(places.begin(), places.end());
        std::vector<size_t> order;
        order.reserve(places.size());
        for (const auto& place : places)
            order.push_back(place.second);
        permute(order);
    }

    /// Puts in what is new.
    void takeRows(const std::vector<Row>& rows)
    {
        if (m_rows.size() == rows.size())
            return;
        std::vector<bool> fresh(rows.size());
        for (size_t i = 0, at = 0; i < rows.size(); ++i) {
            fresh[i] = at == m_rows.size() || !(m_rows[at].key() == rows[i].key());
            at += fresh[i] ? 0 : 1;
        }
        if (runsOf(fresh) > mostRuns) {
            const size_t known = m_rows.size();
            this->beginInsertRows({}, static_cast<int>(known), static_cast<int>(rows.size()) - 1);
            for (size_t i = 0; i < rows.size(); ++i) {
                if (fresh[i])
                    m_rows.push_back(rows[i]);
            }
            this->endInsertRows();
            std::vector<size_t> order;
            order.reserve(rows.size());
            for (size_t i = 0, old = 0, added = known; i < rows.size(); ++i)
                order.push_back(fresh[i] ? added++ : old++);
            permute(order);
            return;
        }
        for (size_t begin = 0; begin < rows.size(); ++begin) {
            if (!fresh[begin])
                continue;
            size_t end = begin + 1;
            while (end < rows.size() && fresh[end])
                ++end;
            this->beginInsertRows({}, static_cast<int>(begin), static_cast<int>(end) - 1);
            m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(begin),
                          rows.begin() + static_cast<std::ptrdiff_t>(begin),
                          rows.begin() + static_cast<std::ptrdiff_t>(end));
            this->endInsertRows();
            begin = end;
        }
    }

    /// Tells which of the rows look different now.
    void updateRows(std::vector<Row>& rows)
    {
        std::vector<bool> changed(rows.size());
        for (size_t i = 0; i < rows.size(); ++i)
            changed[i] = !(m_rows[i] == rows[i]);
        m_rows.swap(rows);
        for (size_t begin = 0; begin < changed.size(); ++begin) {
            if (!changed[begin])
                continue;
            size_t end = begin + 1;
            while (end < changed.size() && changed[end])
                ++end;
            Q_EMIT this->dataChanged(this->index(static_cast<int>(begin), 0),
                                     this->index(static_cast<int>(end) - 1, this->columnCount() - 1));
            begin = end;
        }
    }

    /// Row i becomes what row order[i] was.
    void permute(const std::vector<size_t>& order)
    {
        Q_EMIT this->layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
        std::vector<int> places(order.size());
        std::vector<Row> ordered;
        ordered.reserve(order.size());
        for (size_t i = 0; i < order.size(); ++i) {
            places[order[i]] = static_cast<int>(i);
            ordered.push_back(std::move(m_rows[order[i]]));
        }
        m_rows.swap(ordered);
        const QModelIndexList before = this->persistentIndexList();
        QModelIndexList after;
        after.reserve(before.size());
        for (const QModelIndex& index : before)
            after.append(this->index(places[static_cast<size_t>(index.row())], index.column()));
        this->changePersistentIndexList(before, after);
        Q_EMIT this->layoutChanged({}, QAbstractItemModel::VerticalSortHint);
    }

    std::vector<Row> m_rows;
};
