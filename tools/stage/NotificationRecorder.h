#pragma once

#include "stage/BusService.h"

#include <QDBusContext>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// A notification server that shows nothing and records every call.
class NotificationRecorder final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown {
        uint id = 0;
        QString title;
        QString body;
        QStringList actions;
        QVariantMap hints;
        int timeout = 0;
        QElapsedTimer since;
    };

    explicit NotificationRecorder(const QString &busAddress);

    [[nodiscard]] const QList<Shown> &shown() const { return m_shown; }
    /// A click on the body, or on a button by its key.
    void click(uint id, const QString &action = QStringLiteral("default"));
    /// From now on refuses what is identical to a notification shown less than a second ago.
    void refuseIdentical() { m_refusesIdentical = true; }
    [[nodiscard]] int refused() const { return m_refused; }

public Q_SLOTS:
    uint Notify(const QString &application, uint replaces, const QString &icon, const QString &title,
        const QString &body, const QStringList &actions, const QVariantMap &hints, int timeout);
    void CloseNotification(uint id);
    QStringList GetCapabilities() const;
    QString GetServerInformation(QString &vendor, QString &version, QString &specification) const;

Q_SIGNALS:
    void ActivationToken(uint id, const QString &token);
    void ActionInvoked(uint id, const QString &action);
    void NotificationClosed(uint id, uint reason);

private:
    BusService m_service;
    QList<Shown> m_shown;
    bool m_refusesIdentical = false;
    int m_refused = 0;
};
