#include "ui/looks/WidgetRole.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QVariant>

namespace {
constexpr char roleProperty[] = "accessibleRole";
constexpr char selectedProperty[] = "accessibleSelected";

class WidgetInterface final : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const QVariant selected = widget()->property(selectedProperty);
        state.selectable = selected.isValid();
        state.selected = selected.toBool();
        if (widget()->focusProxy())
            state.focused = false; // the proxy says so itself
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return button() ? QStringList{pressAction()} : QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override
    {
        if (button() && name == pressAction())
            button()->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    [[nodiscard]] QAbstractButton *button() const { return qobject_cast<QAbstractButton *>(widget()); }
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    const QVariant role = object->property(roleProperty);
    auto *widget = qobject_cast<QWidget *>(object);
    return widget && role.isValid() ? new WidgetInterface(widget, QAccessible::Role(role.toInt())) : nullptr;
}
} // namespace

void WidgetRole::set(QWidget &widget, QAccessible::Role role)
{
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    widget.setProperty(roleProperty, int(role));
    // Whatever was announced of it before has made one of another role.
    if (QAccessible::isActive())
        QAccessible::deleteAccessibleInterface(
            QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&widget)));
}

void WidgetRole::setSelected(QWidget &item, bool isSelected)
{
    item.setProperty(selectedProperty, isSelected);
    if (isSelected)
        announce(item, QAccessible::Focus); // the selection alone is read out by none
}

void WidgetRole::announce(QWidget &widget, QAccessible::Event event)
{
    QAccessibleEvent announced(&widget, event);
    QAccessible::updateAccessibility(&announced);
}
