#pragma once

class QMenu;

/// The looks of the program's own menus.
namespace MenuLooks {
/// Before the menu is shown. Its corners are round where its parent's window lets something shine through.
void apply(QMenu &menu);
} // namespace MenuLooks
