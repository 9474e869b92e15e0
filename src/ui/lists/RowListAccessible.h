#pragma once

#include <QAccessibleWidget>
#include <QHash>

class RowListView;

/// A list as it is told to those who listen to the screen: its rows are its children.
class RowListAccessible final : public QAccessibleWidget
{
public:
    /// From now on each RowListView is told like this.
    static void install();

    explicit RowListAccessible(RowListView *view);
    ~RowListAccessible() override;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int row) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface *focusChild() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;

    [[nodiscard]] RowListView *view() const;

private:
    void forgetRows();

    mutable QHash<int, QAccessible::Id> m_rows; ///< those that have been asked for
    QList<QMetaObject::Connection> m_connections;
};
