#include "stage/SettingsPortal.h"

using namespace Qt::StringLiterals;

SettingsPortal::SettingsPortal(const QString &busAddress, Scheme scheme)
    : m_service(busAddress, u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s, this)
    , m_scheme(scheme)
{
}

void SettingsPortal::setScheme(Scheme scheme)
{
    m_scheme = scheme;
    Q_EMIT SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s, QDBusVariant(unsigned(scheme)));
}

void SettingsPortal::announceOtherSetting()
{
    Q_EMIT SettingChanged(u"org.freedesktop.other"_s, u"color-scheme"_s, QDBusVariant(2U));
}

QDBusVariant SettingsPortal::Read(const QString &, const QString &) const
{
    return QDBusVariant(QVariant::fromValue(QDBusVariant(unsigned(m_scheme))));
}
