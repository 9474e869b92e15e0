#include "ui/looks/MenuLooks.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

#include <QMenu>
#include <QStyleOptionMenuItem>

namespace {
constexpr char destructive[] = "destructive";

class Menu final : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void initStyleOption(QStyleOptionMenuItem *option, const QAction *action) const override
    {
        QMenu::initStyleOption(option, action);
        if (action->property(destructive).isValid()) {
            for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
                option->palette.setColor(role, NoteStyle::color(palette(), Design::destructiveText));
        }
    }
};
} // namespace

QMenu *MenuLooks::newMenu(QWidget *parent)
{
    return new Menu(parent);
}

void MenuLooks::markDestructive(QAction &entry)
{
    entry.setProperty(destructive, true);
}

void MenuLooks::apply(QMenu &menu)
{
    const QWidget *parent = menu.parentWidget();
    const bool isRound = parent && parent->window()->testAttribute(Qt::WA_TranslucentBackground);
    if (isRound) {
        menu.setWindowFlag(Qt::FramelessWindowHint);
        menu.setWindowFlag(Qt::NoDropShadowWindowHint);
        menu.setAttribute(Qt::WA_TranslucentBackground);
    }
    const QPalette palette = menu.palette();
    const QString sheet =
        QStringLiteral("QMenu { background: %1; border: 1px solid %2; border-radius: %3px; padding: %4px }"
                       "QMenu::item { padding: %4px %5px; border-radius: %4px }"
                       "QMenu::item:selected { background: %6 }"
                       "QMenu::item:disabled { color: %7 }"
                       "QMenu::separator { height: 1px; background: %2; margin: %4px %5px }");
    menu.setFont(NoteStyle::font());
    menu.setStyleSheet(sheet
                           .arg(NoteStyle::color(palette, Design::fieldGround).name(),
                               NoteStyle::color(palette, Design::hairline).name())
                           .arg(isRound ? Design::menuRadius : 0)
                           .arg(Design::grid)
                           .arg(Design::edge)
                           .arg(NoteStyle::color(palette, Design::editingGround).name(),
                               NoteStyle::color(palette, Design::metaText).name()));
}
