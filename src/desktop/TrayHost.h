#pragma once

#include <QObject>
#include <QTimer>

/// Waits for something that shows tray icons: a StatusNotifierItem host, or on X11 an XEmbed tray.
///
/// Qt looks for one once per process, at the first touch of QSystemTrayIcon, and never again. So nobody may
/// touch it before appeared().
class TrayHost final : public QObject
{
    Q_OBJECT

public:
    explicit TrayHost(QObject *parent = nullptr);

    /// Looks now, and from then on until a host is found.
    void watch();

Q_SIGNALS:
    void appeared(); ///< once
    void missing();  ///< once, when none has come for a while; it may still

private:
    void look();
    void found();
    [[nodiscard]] bool hasX11Tray() const;

    QTimer m_timer;
    QTimer m_patience;
};
