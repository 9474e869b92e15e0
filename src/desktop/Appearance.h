#pragma once

#include <QDBusVariant>
#include <QObject>

/// Whether the desktop is light or dark, as reported by its settings portal, and when that changes.
class Appearance final : public QObject
{
    Q_OBJECT

public:
    enum class Scheme { NoPreference, Dark, Light };

    using QObject::QObject;

    /// Asks the portal and follows its changes. Never blocks; without a portal there is no preference.
    void follow();
    [[nodiscard]] Scheme scheme() const { return m_scheme; }

Q_SIGNALS:
    void schemeChanged();

private Q_SLOTS:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void setScheme(const QVariant &value);

    Scheme m_scheme = Scheme::NoPreference;
};
