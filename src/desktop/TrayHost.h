#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>

#include <cstdint>

/// Waits for something that shows tray icons: a StatusNotifierItem host, or on X11 an XEmbed tray.
///
/// Qt looks for one once per process, at the first touch of QSystemTrayIcon, and never again. So nobody may
/// touch it before appeared().
class TrayHost final : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    enum class Kind { StatusNotifier, XEmbed };

    explicit TrayHost(QObject *parent = nullptr);
    ~TrayHost() override;
    Q_DISABLE_COPY_MOVE(TrayHost)

    /// Looks now, and from then on whenever one announces itself, until a host is found.
    void watch();

Q_SIGNALS:
    void appeared(Kind kind); ///< once
    void missing();           ///< once, when none has come for a while; it may still

private Q_SLOTS:
    void look();

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void found(Kind kind);
    [[nodiscard]] bool hasX11Tray() const;

    bool m_isWatching = false;
    std::uint32_t m_selection = 0;    ///< the atom that an XEmbed tray owns; 0 where there is no X11
    std::uint32_t m_announcement = 0; ///< the atom of the message that tells of a new owner
    QTimer m_patience;
};
