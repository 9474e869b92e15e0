#include "ui/lists/RowListAccessible.h"

#include "ui/lists/RowListView.h"
#include "ui/lists/RowModel.h"

#include <QLineEdit>

#include <algorithm>

namespace {
class RowAccessible final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    RowAccessible(const RowListAccessible &list, const QPersistentModelIndex &index)
        : m_list(list)
        , m_index(index)
    {
    }

    [[nodiscard]] int row() const { return m_index.row(); }

    [[nodiscard]] bool isValid() const override { return m_list.isValid() && m_index.isValid(); }
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
        return kind == QAccessible::Name ? m_list.view()->model().spokenText(row()) : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    [[nodiscard]] QRect rect() const override
    {
        const QRect rect = m_list.view()->rectOf(row());
        return {m_list.view()->viewport()->mapToGlobal(rect.topLeft()), rect.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        return isHeader() ? QAccessible::Heading : QAccessible::ListItem;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        const RowListView &view = *m_list.view();
        QAccessible::State state;
        state.focusable = state.selectable = !isHeader();
        state.selected = view.currentRow() == row();
        state.focused = state.selected && view.hasFocus();
        state.invisible = !view.isVisible();
        state.offscreen = !view.viewport()->rect().intersects(view.rectOf(row()));
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                    : nullptr;
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        QStringList names;
        for (const Action &action : actions())
            names.append(action.title);
        return names;
    }
    void doAction(const QString &name) override
    {
        for (const Action &action : actions()) {
            if (action.title == name)
                return action.run();
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString &name) const override
    {
        for (const Action &action : actions()) {
            if (action.title == name)
                return {action.key.toString()};
        }
        return {};
    }

private:
    [[nodiscard]] bool isHeader() const { return m_list.view()->model().isHeader(row()); }
    using Action = RowListView::Action;
    [[nodiscard]] QList<Action> actions() const
    {
        if (isHeader())
            return {};
        RowListView &view = *m_list.view();
        QList<Action> actions = {
            {pressAction(), Qt::Key_Return, [&view, row = row()] { view.activateRow(row); }},
            {showMenuAction(), Qt::Key_Menu, [&view, row = row()] { view.showMenuOfRow(row); }},
        };
        actions.append(view.allActionsOf(row()));
        actions.removeIf([](const Action &action) { return action.title.isEmpty(); });
        return actions;
    }

    const RowListAccessible &m_list;
    QPersistentModelIndex m_index;
};

void announce(RowListView &view, int row, QAccessible::Event change)
{
    QAccessibleEvent event(&view, change);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}
} // namespace

void RowListAccessible::install()
{
    QAccessible::installFactory([](const QString &, QObject *object) -> QAccessibleInterface * {
        auto *view = qobject_cast<RowListView *>(object);
        return view ? new RowListAccessible(view) : nullptr;
    });
}

void RowListAccessible::announceCurrentRow(RowListView &view)
{
    if (!QAccessible::isActive())
        return;
    if (auto *list = dynamic_cast<RowListAccessible *>(QAccessible::queryAccessibleInterface(&view)))
        list->m_announcement.start();
}

RowListAccessible::RowListAccessible(RowListView *view)
    : QAccessibleWidget(view, QAccessible::List)
{
    const RowModel *model = &view->model();
    m_announcement.setSingleShot(true);
    QObject::connect(&m_announcement, &QTimer::timeout, &m_listener, [this] { announceFocus(); });
    QObject::connect(
        model, &RowModel::rowsInserted, &m_listener, [this](const QModelIndex &, int first, int last) {
            announceRows(first, last, QAccessible::ObjectCreated);
        });
    QObject::connect(model, &RowModel::rowsAboutToBeRemoved, &m_listener,
        [this](const QModelIndex &, int first, int last) { forgetRows(first, last); });
    QObject::connect(model, &RowModel::rowsRemoved, &m_listener, [this] {
        if (this->view()->model().rowCount() == 0)
            m_announcement.start();
    });
    QObject::connect(model, &RowModel::dataChanged, &m_listener,
        [this](const QModelIndex &first, const QModelIndex &last) {
            announceRows(first.row(), last.row(), QAccessible::NameChanged);
        });
}

RowListAccessible::~RowListAccessible()
{
    for (const QAccessible::Id id : std::as_const(m_rows))
        QAccessible::deleteAccessibleInterface(id);
}

RowListView *RowListAccessible::view() const
{
    return static_cast<RowListView *>(widget());
}

void RowListAccessible::announceFocus()
{
    if (!view()->hasFocus())
        return;
    const int row = view()->currentRow(); // without one it is the list that is announced
    int header = row;
    while (header >= 0 && !view()->model().isHeader(header))
        --header;
    const QPersistentModelIndex section = view()->model().index(header);
    if (section.isValid() && section != m_section)
        announce(*view(), header, QAccessible::Focus);
    m_section = section;
    announce(*view(), row, QAccessible::Focus);
}

void RowListAccessible::announceRows(int first, int last, QAccessible::Event event) const
{
    // Those out of view are found when they are asked for: a query may bring a hundred thousand.
    const int lastInView = std::min(last, view()->lastRowInView());
    for (int row = std::max(first, view()->firstRowInView()); row <= lastInView; ++row)
        announce(*view(), row, event);
}

void RowListAccessible::forgetRows(int first, int last)
{
    const QList<QPersistentModelIndex> known = m_rows.keys(); // listeners may ask for rows meanwhile
    for (const QPersistentModelIndex &index : known) {
        if (index.row() < first || index.row() > last)
            continue;
        const QAccessible::Id id = m_rows.value(index);
        QAccessibleEvent event(QAccessible::accessibleInterface(id), QAccessible::ObjectDestroyed);
        QAccessible::updateAccessibility(&event);
        m_rows.remove(index); // not before, or a listener that asks for the row would have it made anew
        QAccessible::deleteAccessibleInterface(id);
    }
}

QWidget *RowListAccessible::editor() const
{
    return view()->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
}

int RowListAccessible::childCount() const
{
    return view()->model().rowCount() + (editor() ? 1 : 0);
}

QString RowListAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Description && view()->model().rowCount() == 0)
        return view()->emptyState().text;
    return QAccessibleWidget::text(kind);
}

QAccessibleInterface *RowListAccessible::child(int row) const
{
    if (row == view()->model().rowCount())
        return QAccessible::queryAccessibleInterface(editor());
    if (row < 0 || row > view()->model().rowCount())
        return nullptr;
    const QPersistentModelIndex index = view()->model().index(row);
    const auto known = m_rows.constFind(index);
    if (known != m_rows.cend())
        return QAccessible::accessibleInterface(*known);
    auto *made = new RowAccessible(*this, index);
    m_rows.insert(index, QAccessible::registerAccessibleInterface(made));
    return made;
}

QAccessibleInterface *RowListAccessible::childAt(int x, int y) const
{
    return child(view()->rowAt(view()->viewport()->mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface *RowListAccessible::focusChild() const
{
    return view()->hasFocus() ? child(view()->currentRow()) : nullptr;
}

int RowListAccessible::indexOfChild(const QAccessibleInterface *wanted) const
{
    if (wanted->object() && wanted->object() == editor())
        return view()->model().rowCount();
    const auto *row = dynamic_cast<const RowAccessible *>(wanted);
    return row ? row->row() : -1;
}
