#include "stage/SettingsPortal.h"

namespace {
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString connectionName = QStringLiteral("settings-portal");
} // namespace

SettingsPortal::SettingsPortal(const QString &busAddress, Scheme scheme)
    : m_bus(QDBusConnection::connectToBus(busAddress, connectionName))
    , m_scheme(scheme)
{
    if (!m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
        || !m_bus.registerService(service))
        qFatal("cannot be the settings portal of %s", qPrintable(busAddress));
}

SettingsPortal::~SettingsPortal()
{
    m_bus.unregisterService(service);
    QDBusConnection::disconnectFromBus(connectionName);
}

void SettingsPortal::setScheme(Scheme scheme)
{
    m_scheme = scheme;
    Q_EMIT SettingChanged(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
        QDBusVariant(unsigned(scheme)));
}

void SettingsPortal::announceOtherSetting()
{
    Q_EMIT SettingChanged(
        QStringLiteral("org.freedesktop.other"), QStringLiteral("color-scheme"), QDBusVariant(2U));
}

QDBusVariant SettingsPortal::Read(const QString &, const QString &) const
{
    return QDBusVariant(QVariant::fromValue(QDBusVariant(unsigned(m_scheme))));
}
