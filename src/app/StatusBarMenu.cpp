#include "app/StatusBarMenu.h"

#include "text/L10n.h"
#include "ui/MenuLooks.h"
#include "ui/Symbol.h"

#include <QApplication>
#include <QMenu>
#include <QPalette>
#include <QSystemTrayIcon>

StatusBarMenu::StatusBarMenu(QObject *parent)
    : QObject(parent)
{
    connect(&m_host, &TrayHost::appeared, this, &StatusBarMenu::makeIcon);
    connect(&m_host, &TrayHost::missing, this, &StatusBarMenu::noTray);
}

StatusBarMenu::~StatusBarMenu() = default;

void StatusBarMenu::install()
{
    m_host.watch();
}

void StatusBarMenu::makeIcon()
{
    m_menu = std::make_unique<QMenu>();
    m_menu->addAction(L10n::text("导入"), this, &StatusBarMenu::importChosen);
    m_menu->addAction(L10n::text("导出"), this, &StatusBarMenu::exportChosen);
    m_menu->addSeparator();
    m_menu->addAction(L10n::text("退出"), qApp, &QApplication::quit);
    connect(m_menu.get(), &QMenu::aboutToShow, m_menu.get(), [this] { MenuLooks::dress(*m_menu); });
    // A tray tells nobody its colour; most are dark.
    m_icon = std::make_unique<QSystemTrayIcon>(
        Symbol::icon(QStringLiteral("menubar"), QColor(0xd0, 0xd2, 0xd6), {22, 44}));
    m_icon->setToolTip(QStringLiteral("Quillet"));
    m_icon->setContextMenu(m_menu.get());
    connect(
        m_icon.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger)
                Q_EMIT clicked();
        });
    m_icon->show();
    Q_EMIT shown();
}
