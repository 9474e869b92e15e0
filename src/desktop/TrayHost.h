#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>

#include <cstdint>

/// Waits for something that shows tray icons: a StatusNotifierItem host, or on X11 an XEmbed tray.
///
/// Qt looks for one only once, when QSystemTrayIcon is first used. So it must not be used before appeared().
class TrayHost final : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    enum class Kind { StatusNotifier, XEmbed };

    explicit TrayHost(QObject *parent = nullptr);
    ~TrayHost() override;
    Q_DISABLE_COPY_MOVE(TrayHost)

    /// Checks now, and whenever a host announces itself, until one is found.
    void watch();

Q_SIGNALS:
    void appeared(Kind kind); ///< once
    void missing();           ///< once, after two seconds without one; one may still appear

private Q_SLOTS:
    void look();

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void found(Kind kind);
    [[nodiscard]] bool hasX11Tray() const;

    bool m_isWatching = false;
    std::uint32_t m_selection = 0;    ///< atom of the selection owned by an XEmbed tray; 0 without X11
    std::uint32_t m_announcement = 0; ///< atom of the message that announces a new owner
    QTimer m_timeout;
};
