#pragma once

#include "stage/BusService.h"

#include <QDBusVariant>
#include <QObject>

/// A settings portal with one setting: whether the desktop is light or dark.
class SettingsPortal final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    enum class Scheme : unsigned { NoPreference = 0, Dark = 1, Light = 2 };

    SettingsPortal(const QString &busAddress, Scheme scheme);

    void setScheme(Scheme scheme);
    /// A change of a setting that the portal does not have.
    void announceOtherSetting();

public Q_SLOTS:
    /// The method of the first version, which wraps its result in two variants.
    QDBusVariant Read(const QString &group, const QString &key) const;

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    BusService m_service;
    Scheme m_scheme;
};
