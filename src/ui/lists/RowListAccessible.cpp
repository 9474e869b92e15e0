#include "ui/lists/RowListAccessible.h"

#include "ui/lists/RowListView.h"

#include <QAbstractItemModel>

namespace {
class RowAccessible final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    RowAccessible(const RowListAccessible &list, int row)
        : m_list(list)
        , m_row(row)
    {
    }

    [[nodiscard]] int row() const { return m_row; }

    [[nodiscard]] bool isValid() const override { return m_list.isValid() && index().isValid(); }
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_list.view());
    }
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? index().data(Qt::AccessibleTextRole).toString() : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    [[nodiscard]] QRect rect() const override
    {
        const QRect place = m_list.view()->visualRect(index());
        return {m_list.view()->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = state.selectable = true;
        state.focused = m_list.view()->hasFocus() && m_list.view()->currentIndex() == index();
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                    : nullptr;
    }

    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), showMenuAction()}; }
    void doAction(const QString &name) override
    {
        if (name == pressAction())
            m_list.view()->activateRow(m_row);
        else if (name == showMenuAction())
            m_list.view()->showMenuOfRow(m_row);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    [[nodiscard]] QModelIndex index() const { return m_list.view()->model()->index(m_row, 0); }

    const RowListAccessible &m_list;
    int m_row;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *view = qobject_cast<RowListView *>(object);
    return view ? new RowListAccessible(view) : nullptr;
}
} // namespace

void RowListAccessible::install()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

RowListAccessible::RowListAccessible(RowListView *view)
    : QAccessibleWidget(view, QAccessible::List)
{
    const auto forget = [this] { forgetRows(); };
    m_connections = {QObject::connect(view->model(), &QAbstractItemModel::rowsInserted, view, forget),
        QObject::connect(view->model(), &QAbstractItemModel::rowsRemoved, view, forget)};
}

RowListAccessible::~RowListAccessible()
{
    for (const QMetaObject::Connection &connection : m_connections)
        QObject::disconnect(connection);
    forgetRows();
}

RowListView *RowListAccessible::view() const
{
    return static_cast<RowListView *>(widget());
}

void RowListAccessible::forgetRows()
{
    for (const QAccessible::Id id : std::as_const(m_rows))
        QAccessible::deleteAccessibleInterface(id);
    m_rows.clear();
}

int RowListAccessible::childCount() const
{
    return view()->model()->rowCount();
}

QAccessibleInterface *RowListAccessible::child(int row) const
{
    if (row < 0 || row >= childCount())
        return nullptr;
    const auto known = m_rows.constFind(row);
    if (known != m_rows.cend())
        return QAccessible::accessibleInterface(*known);
    auto *made = new RowAccessible(*this, row);
    m_rows.insert(row, QAccessible::registerAccessibleInterface(made));
    return made;
}

QAccessibleInterface *RowListAccessible::childAt(int x, int y) const
{
    const QModelIndex index = view()->indexAt(view()->viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? child(index.row()) : nullptr;
}

QAccessibleInterface *RowListAccessible::focusChild() const
{
    const QModelIndex current = view()->currentIndex();
    return view()->hasFocus() && current.isValid() ? child(current.row()) : nullptr;
}

int RowListAccessible::indexOfChild(const QAccessibleInterface *wanted) const
{
    const auto *row = dynamic_cast<const RowAccessible *>(wanted);
    return row ? row->row() : -1;
}
