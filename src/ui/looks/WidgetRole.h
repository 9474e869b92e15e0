#pragma once

#include <QAccessible>

class QWidget;

/// What a widget is for screen readers, where Qt cannot know it from its class.
namespace WidgetRole {
/// To be called before anything asks for the widget's accessible interface.
void set(QWidget &widget, QAccessible::Role role);
} // namespace WidgetRole
