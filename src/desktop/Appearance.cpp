#include "desktop/Appearance.h"

#include "desktop/DBusCall.h"
#include "desktop/DesktopPortal.h"

#include <QDBusMetaType>

namespace {
using DesktopPortal::path;
using DesktopPortal::service;
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString group = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");
} // namespace

void Appearance::follow()
{
    // The signal cannot be connected before; Qt itself registers the type only at its first call.
    qDBusRegisterMetaType<QDBusVariant>();
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    call << group << key;
    DBusCall::send<QDBusVariant>(bus, call, this, [this](const auto &reply) {
        if (reply.isValid())
            setScheme(reply.value().variant());
    });
}

void Appearance::onSettingChanged(
    const QString &changedGroup, const QString &changedKey, const QDBusVariant &value)
{
    if (changedGroup == group && changedKey == key)
        setScheme(value.variant());
}

void Appearance::setScheme(const QVariant &value)
{
    // The reply to Read is wrapped in a variant once more than the signal's value.
    const bool isWrapped = value.metaType() == QMetaType::fromType<QDBusVariant>();
    const QVariant plain = isWrapped ? value.value<QDBusVariant>().variant() : value;
    const uint number = plain.toUInt();
    const Scheme scheme = number == 1 ? Scheme::Dark : number == 2 ? Scheme::Light : Scheme::NoPreference;
    if (scheme == m_scheme)
        return;
    m_scheme = scheme;
    Q_EMIT schemeChanged();
}
