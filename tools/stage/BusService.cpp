#include "stage/BusService.h"

BusService::BusService(const QString &busAddress, const QString &name, const QString &path, QObject *object)
    : m_name(name)
    , m_bus(QDBusConnection::connectToBus(busAddress, name))
{
    constexpr auto everything = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
                                | QDBusConnection::ExportAllProperties;
    if (!m_bus.registerObject(path, object, everything) || !m_bus.registerService(name))
        qFatal("cannot provide %s on %s", qPrintable(name), qPrintable(busAddress));
}

BusService::~BusService()
{
    m_bus.unregisterService(m_name);
    QDBusConnection::disconnectFromBus(m_name);
}
