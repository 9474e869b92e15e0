#pragma once

#include <QAccessible>

class QWidget;

/// What a widget is for screen readers, where Qt cannot know it from its class.
namespace WidgetRole {
/// A notification is read out when it appears.
void set(QWidget &widget, QAccessible::Role role);

/// Marks an item of a list that never has the focus itself, and announces it.
void setSelected(QWidget &item, bool isSelected);

/// As if it had just got the focus, or appeared.
void announce(QWidget &widget, QAccessible::Event event);
} // namespace WidgetRole
