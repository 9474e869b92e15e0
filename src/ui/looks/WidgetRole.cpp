#include "ui/looks/WidgetRole.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace {
constexpr char property[] = "accessibleRole";

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    const QVariant role = object->property(property);
    auto *widget = qobject_cast<QWidget *>(object);
    return widget && role.isValid() ? new QAccessibleWidget(widget, QAccessible::Role(role.toInt()))
                                    : nullptr;
}
} // namespace

void WidgetRole::set(QWidget &widget, QAccessible::Role role)
{
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    widget.setProperty(property, int(role));
}
