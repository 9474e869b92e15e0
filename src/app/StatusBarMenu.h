#pragma once

#include "desktop/TrayHost.h"

#include <QObject>
#include <QRect>

#include <memory>

class QMenu;
class QSystemTrayIcon;

/// The icon in the tray and its menu. The icon is made when there is a tray to show it.
class StatusBarMenu final : public QObject
{
    Q_OBJECT

public:
    explicit StatusBarMenu(QObject *parent = nullptr);
    ~StatusBarMenu() override;

    void install();
    [[nodiscard]] QRect iconPlace() const; ///< on the screen; empty where the desktop does not tell

Q_SIGNALS:
    void clicked();
    void importChosen();
    void exportChosen();
    void shown();
    void noTray(); ///< none has come for a while

private:
    void makeIcon(TrayHost::Kind kind);

    TrayHost m_host;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
};
