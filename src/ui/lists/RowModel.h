#pragma once

#include "ui/lists/RowContent.h"

#include <QAbstractListModel>
#include <QSet>
#include <QUuid>

#include <algorithm>
#include <iterator>

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

/// Rows of one type. show() compares the new rows with the present ones and announces exactly the difference.
/// isSameRow(a, b) says whether two rows represent the same thing, which may have changed.
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
        // Rows before the first and after the last difference stay; those between are replaced.
        const auto isSame = [](const Row &a, const Row &b) { return isSameRow(a, b); };
        const auto [oldFront, newFront] =
            std::mismatch(m_rows.cbegin(), m_rows.cend(), rows.cbegin(), rows.cend(), isSame);
        const auto [oldBack, newBack] =
            std::mismatch(std::make_reverse_iterator(m_rows.cend()), std::make_reverse_iterator(oldFront),
                std::make_reverse_iterator(rows.cend()), std::make_reverse_iterator(newFront), isSame);
        const int front = int(oldFront - m_rows.cbegin());
        const int removed = int(oldBack.base() - oldFront);
        const int inserted = int(newBack.base() - newFront);

        QList<int> changed;
        for (int number = 0; number < rows.size(); ++number) {
            const bool isInFront = number < front;
            if ((isInFront || number >= front + inserted)
                && m_rows[isInFront ? number : number - inserted + removed] != rows[number])
                changed.append(number);
        }

        // The rows that stay are updated first, because slots may read them.
        for (int number = 0; number < front; ++number)
            m_rows[number] = rows[number];
        for (int back = 1; back <= rows.size() - front - inserted; ++back)
            m_rows[m_rows.size() - back] = rows[rows.size() - back];
        if (removed > 0) {
            beginRemoveRows({}, front, front + removed - 1);
            m_rows.remove(front, removed);
            endRemoveRows();
        }
        if (inserted > 0) {
            beginInsertRows({}, front, front + inserted - 1);
            m_rows = rows;
            endInsertRows();
        }
        for (const int number : changed)
            Q_EMIT dataChanged(index(number), index(number));
    }

private:
    QList<Row> m_rows;
};
