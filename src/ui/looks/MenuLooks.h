#pragma once

class QMenu;

/// The style of the program's own menus.
namespace MenuLooks {
/// To be called before the menu is shown. Its corners are round where its parent's window is translucent.
void apply(QMenu &menu);
} // namespace MenuLooks
