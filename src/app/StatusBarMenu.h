#pragma once

#include "desktop/TrayHost.h"

#include <QObject>
#include <QRect>

#include <memory>

class QMenu;
class QSystemTrayIcon;

/// The icon in the tray and its menu. The icon is created when there is a tray to show it.
class StatusBarMenu final : public QObject
{
    Q_OBJECT

public:
    explicit StatusBarMenu(QObject *parent = nullptr);
    ~StatusBarMenu() override;

    void install();
    [[nodiscard]] QRect iconRect() const; ///< on the screen; empty if the desktop does not report it

Q_SIGNALS:
    void clicked();
    void importChosen();
    void exportChosen();
    void trayMissing(); ///< none after two seconds; one may still appear

private:
    void makeIcon(TrayHost::Kind kind);

    TrayHost m_host;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
};
