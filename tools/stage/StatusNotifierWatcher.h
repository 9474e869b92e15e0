#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

/// A tray on the session bus that shows nothing: icons register with it, and it clicks them as a user would.
class StatusNotifierWatcher final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    explicit StatusNotifierWatcher(const QString &busAddress);
    ~StatusNotifierWatcher() override;
    Q_DISABLE_COPY_MOVE(StatusNotifierWatcher)

    [[nodiscard]] QStringList items() const { return m_items; } ///< bus names, in the order of registration
    [[nodiscard]] bool hasHost() const { return m_hasHost; }
    [[nodiscard]] static int protocolVersion() { return 0; }
    /// Announces a host: something that shows the icons, which a watcher alone does not.
    void registerHost();

    void click(const QString &item);
    [[nodiscard]] QStringList menuOf(const QString &item); ///< the labels; a separator's is empty

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service);
    void RegisterStatusNotifierHost(const QString &service);

Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString &service);
    void StatusNotifierHostRegistered();

private:
    QDBusConnection m_bus;
    QStringList m_items;
    bool m_hasHost = false;
};
