#pragma once

#include <QDBusConnection>

/// Provides an object as a service of a session bus, with its slots, signals and properties.
class BusService final
{
public:
    BusService(const QString &busAddress, const QString &name, const QString &path, QObject *object);
    ~BusService();
    Q_DISABLE_COPY_MOVE(BusService)

    [[nodiscard]] QDBusConnection &bus() { return m_bus; }

private:
    QString m_name;
    QDBusConnection m_bus; ///< named as the service
};
