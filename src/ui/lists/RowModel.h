#pragma once

#include "ui/lists/RowContent.h"

#include <QAbstractListModel>
#include <QSet>
#include <QUuid>

#include <algorithm>
#include <iterator>
#include <vector>

/// A list model whose rows say what they show. The display role is the row's text.
class RowModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// While no view shows the rows, changes wait; they are applied once one does.
    void setSeen(bool isSeen)
    {
        m_isSeen = isSeen;
        if (m_isSeen && m_isStale)
            refreshWhenSeen();
    }

    /// To be called after a minute, at midnight, and when the clock was changed.
    virtual void timeDidPass() { refresh(); }

    [[nodiscard]] RowContent content(int row) const
    {
        RowContent content;
        (isHeader(row) ? content.header : content.text) = text(row);
        content.help = help(row);
        if (const QUuid of = id(row); !of.isNull()) {
            content.fold = m_unfolded.contains(of) ? RowContent::Fold::Unfolded : RowContent::Fold::Folded;
        }
        if (!isHeader(row))
            fillEntry(content, row);
        return content;
    }
    [[nodiscard]] QString spokenText(int row) const { return content(row).spoken(); }
    /// Stays so while other rows are filtered.
    void setUnfolded(int row, bool isUnfolded)
    {
        if (isUnfolded)
            m_unfolded.insert(id(row));
        else
            m_unfolded.remove(id(row));
        Q_EMIT dataChanged(index(row), index(row));
    }
    [[nodiscard]] virtual bool isHeader(int row) const = 0;
    [[nodiscard]] virtual QString text(int row) const = 0; ///< the header, or the text
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        return index.isValid() && role == Qt::DisplayRole ? text(index.row()) : QVariant();
    }

protected:
    [[nodiscard]] virtual QUuid id(int) const { return {}; } ///< of an entry with a text that may be folded
    [[nodiscard]] virtual QString help(int) const { return {}; } ///< as in RowContent
    virtual void fillEntry(RowContent &, int) const {}           ///< with all that it shows beside its text
    virtual void refresh() = 0; ///< to the present state of what the rows are made from
    void refreshWhenSeen()
    {
        m_isStale = !m_isSeen;
        if (m_isSeen)
            refresh();
    }

private:
    QSet<QUuid> m_unfolded;
    bool m_isSeen = true;
    bool m_isStale = false;
};

/// Rows of one type. show() compares the new rows with the present ones and announces the rows that come and
/// go, in a few runs. Whoever holds a persistent index of a row keeps it, also when the row moves.
/// rowKey(row) says what a row represents, which may have changed; no two rows have the same.
template <typename Row>
class RowsOf : public RowModel
{
public:
    using RowModel::RowModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    [[nodiscard]] const Row &row(int number) const { return m_rows[number]; }
    [[nodiscard]] const QList<Row> &rows() const { return m_rows; }

protected:
    void show(const QList<Row> &rows)
    {
        const std::vector<int> kept = rowsKept(rows);
        // The rows that stay are updated first, because slots may read them.
        QList<int> changed;
        for (size_t number = 0; number < kept.size(); ++number) {
            if (kept[number] < 0)
                continue;
            if (m_rows[int(number)] != rows[kept[number]])
                changed.append(kept[number]);
            m_rows[int(number)] = rows[kept[number]];
        }
        const QList<Gap> gaps = gapsBetween(kept, int(rows.size()));
        if (gaps.size() == 1 && !isHeld(gaps.front()))
            replace(gaps.front(), rows);
        else
            replaceAndMove(gaps, rows);
        for (const int number : changed)
            Q_EMIT dataChanged(index(number), index(number));
    }

private:
    /// Rows that go, and rows that come in their place from @p start of the new ones.
    struct Gap {
        int first;
        int removed;
        int start;
        int inserted;
    };

    /// Whether somebody has a persistent index of a row that goes.
    [[nodiscard]] bool isHeld(const Gap &gap) const
    {
        const QModelIndexList held = persistentIndexList();
        return std::any_of(held.begin(), held.end(), [&gap](const QModelIndex &index) {
            return index.row() >= gap.first && index.row() < gap.first + gap.removed;
        });
    }

    /// Without copying a row: a key may replace a hundred thousand.
    void replace(const Gap &gap, const QList<Row> &rows)
    {
        if (gap.removed > 0) {
            beginRemoveRows({}, gap.first, gap.first + gap.removed - 1);
            m_rows.remove(gap.first, gap.removed);
            endRemoveRows();
        }
        if (gap.inserted > 0) {
            beginInsertRows({}, gap.first, gap.first + gap.inserted - 1);
            m_rows = rows;
            endInsertRows();
        }
    }

    /// What is new is inserted before what it replaces is removed, so that this can move there.
    void replaceAndMove(QList<Gap> gaps, const QList<Row> &rows)
    {
        int shift = 0;
        for (Gap &gap : gaps) {
            gap.first += shift;
            shift += gap.inserted;
            if (gap.inserted == 0)
                continue;
            const int first = gap.first + gap.removed;
            beginInsertRows({}, first, first + gap.inserted - 1);
            m_rows.insert(first, gap.inserted, Row());
            std::copy_n(rows.cbegin() + gap.start, gap.inserted, m_rows.begin() + first);
            endInsertRows();
        }
        followMovedRows(gaps);
        for (auto gap = gaps.crbegin(); gap != gaps.crend(); ++gap) {
            if (gap->removed == 0)
                continue;
            beginRemoveRows({}, gap->first, gap->first + gap->removed - 1);
            m_rows.remove(gap->first, gap->removed);
            endRemoveRows();
        }
    }

    static QList<Gap> gapsBetween(const std::vector<int> &kept, int count)
    {
        QList<Gap> gaps;
        int first = 0;
        int start = 0;
        for (int number = 0; number <= int(kept.size()); ++number) {
            const bool isEnd = number == int(kept.size());
            const int next = isEnd ? count : kept[size_t(number)];
            if (next < 0)
                continue;
            if (number > first || next > start)
                gaps.append({first, number - first, start, next - start});
            first = number + 1;
            start = next + 1;
        }
        return gaps;
    }

    /// The new number of each present row, -1 of those that go, moved ones among them. Where they would be
    /// scattered over the list, all that is between the first and the last of them goes: each run takes as
    /// long as the list is.
    std::vector<int> rowsKept(const QList<Row> &rows) const
    {
        constexpr int maxGaps = 16;
        const auto isSame = [](const Row &a, const Row &b) { return rowKey(a) == rowKey(b); };
        const auto [oldFront, newFront] =
            std::mismatch(m_rows.cbegin(), m_rows.cend(), rows.cbegin(), rows.cend(), isSame);
        const auto [oldBack, newBack] =
            std::mismatch(std::make_reverse_iterator(m_rows.cend()), std::make_reverse_iterator(oldFront),
                std::make_reverse_iterator(rows.cend()), std::make_reverse_iterator(newFront), isSame);
        const int front = int(oldFront - m_rows.cbegin());
        const int oldEnd = int(oldBack.base() - m_rows.cbegin());
        const int newEnd = int(newBack.base() - rows.cbegin());
        std::vector<int> outside(size_t(m_rows.size()), -1);
        for (int number = 0; number < front; ++number)
            outside[size_t(number)] = number;
        for (int number = oldEnd; number < m_rows.size(); ++number)
            outside[size_t(number)] = number - oldEnd + newEnd;

        std::vector<int> kept = outside;
        int number = front;
        int to = front;
        for (int gaps = 0; gaps <= maxGaps; ++gaps) {
            while (number < oldEnd && to < newEnd && isSame(m_rows[number], rows[to]))
                kept[size_t(number++)] = to++;
            if (number == oldEnd || to == newEnd)
                return kept;
            // Whichever is nearer: the present row among the new ones, or the new one among the present.
            const int farthest = std::max(oldEnd - number, newEnd - to);
            int distance = 1;
            const auto isRemoved = [&] {
                return number + distance < oldEnd && isSame(m_rows[number + distance], rows[to]);
            };
            const auto isInserted = [&] {
                return to + distance < newEnd && isSame(m_rows[number], rows[to + distance]);
            };
            while (distance < farthest && !isRemoved() && !isInserted())
                ++distance;
            const bool isReplaced = distance == farthest;
            if (isReplaced)
                distance = 1;
            if (isReplaced || isRemoved())
                number += distance;
            else
                to += distance;
            to += isReplaced;
        }
        return outside;
    }

    void followMovedRows(const QList<Gap> &gaps)
    {
        const QModelIndexList held = persistentIndexList();
        for (const QModelIndex &from : held) {
            const auto goes = [&from](const Gap &gap) {
                return from.row() >= gap.first && from.row() < gap.first + gap.removed;
            };
            if (std::none_of(gaps.begin(), gaps.end(), goes))
                continue;
            for (const Gap &gap : gaps) {
                const int first = gap.first + gap.removed;
                for (int number = first; number < first + gap.inserted; ++number) {
                    if (rowKey(m_rows[number]) == rowKey(m_rows[from.row()]))
                        changePersistentIndex(from, index(number));
                }
            }
        }
    }

    QList<Row> m_rows;
};
