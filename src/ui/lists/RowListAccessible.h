#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QPersistentModelIndex>
#include <QTimer>

class RowListView;

/// A list as screen readers see it: its rows are its children. It notifies them of rows that come, go or
/// change.
class RowListAccessible final : public QAccessibleWidget
{
public:
    /// Makes this the interface of every RowListView; called once when the application starts.
    static void install();
    /// Notifies screen readers of the row that has the focus, if the list has it: soon, because Qt then
    /// announces the list itself. The header is announced with the first row of its section.
    static void announceCurrentRow(RowListView &view);

    explicit RowListAccessible(RowListView *view);
    ~RowListAccessible() override;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override; ///< also what an empty list shows
    [[nodiscard]] QAccessibleInterface *child(int row) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface *focusChild() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;

    [[nodiscard]] RowListView *view() const;

private:
    [[nodiscard]] QWidget *editor() const; ///< of one of the rows; the last child while there is one
    void announceFocus();
    void announceRows(int first, int last, QAccessible::Event event) const;
    void forgetRows(int first, int last);

    /// The interfaces that have been asked for. A persistent index is the same key wherever its row moves.
    mutable QHash<QPersistentModelIndex, QAccessible::Id> m_rows;
    QTimer m_announcement;
    QPersistentModelIndex m_section; ///< the header that was announced last
    QObject m_listener;              ///< ends the connections to the model
};
