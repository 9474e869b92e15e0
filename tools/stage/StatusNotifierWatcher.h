#pragma once

#include "stage/BusService.h"

#include <QObject>
#include <QStringList>

/// A tray on the session bus that shows nothing: icons register with it, and it clicks them as a user would.
class StatusNotifierWatcher final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    explicit StatusNotifierWatcher(const QString &busAddress);

    [[nodiscard]] QStringList items() const { return m_items; } ///< bus names, in the order of registration
    [[nodiscard]] bool hasHost() const { return m_hasHost; }
    /// Announces a host: something that shows the icons, which a watcher alone does not.
    void registerHost();

    void click(const QString &item);
    [[nodiscard]] QStringList menuOf(const QString &item); ///< the labels; a separator's is empty

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &item) { m_items.append(item); }

Q_SIGNALS:
    void StatusNotifierHostRegistered();

private:
    BusService m_service;
    QStringList m_items;
    bool m_hasHost = false;
};
