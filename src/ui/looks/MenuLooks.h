#pragma once

class QAction;
class QMenu;
class QWidget;

/// The style of the program's own menus.
namespace MenuLooks {
/// A menu that shows its destructive entries in their colour.
[[nodiscard]] QMenu *newMenu(QWidget *parent);
void markDestructive(QAction &entry);
/// To be called before the menu is shown. Its corners are round where its parent's window is translucent.
void apply(QMenu &menu);
} // namespace MenuLooks
