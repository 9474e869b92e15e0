#include "desktop/Appearance.h"

#include "desktop/DesktopPortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {
using DesktopPortal::path;
using DesktopPortal::service;
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString group = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");
} // namespace

void Appearance::follow()
{
    qDBusRegisterMetaType<QDBusVariant>(); // which Qt itself does later than the first signal is connected
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    call << group << key;
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *finished) {
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        if (reply.isValid())
            take(reply.value().variant());
        finished->deleteLater();
    });
}

void Appearance::onSettingChanged(
    const QString &changedGroup, const QString &changedKey, const QDBusVariant &value)
{
    if (changedGroup == group && changedKey == key)
        take(value.variant());
}

void Appearance::take(const QVariant &value)
{
    // The answer to a question is wrapped once more than the news of a change.
    const bool isWrapped = value.metaType() == QMetaType::fromType<QDBusVariant>();
    const QVariant plain = isWrapped ? value.value<QDBusVariant>().variant() : value;
    const uint number = plain.toUInt();
    const Scheme scheme = number == 1 ? Scheme::Dark : number == 2 ? Scheme::Light : Scheme::NoPreference;
    if (scheme == m_scheme)
        return;
    m_scheme = scheme;
    Q_EMIT schemeChanged();
}
