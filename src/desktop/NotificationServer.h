#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// The desktop's notification server, org.freedesktop.Notifications. Never blocks.
class NotificationServer final : public QObject
{
    Q_OBJECT

public:
    struct Notification {
        QString title;
        QString body; ///< plain text, escaped here if the server interprets markup
    };

    explicit NotificationServer(QObject *parent = nullptr);

    /// Whether a server answers. False until the first answer.
    [[nodiscard]] bool isAvailable() const { return m_isAvailable; }
    /// Finds out whether a server answers, and makes the bus start one if it can.
    void query();

    /// With the buttons "open" and "snooze" if the server supports actions. @p shown gets the server's id of
    /// the notification, or nothing when the server refused.
    void show(const Notification &notification, std::function<void(std::optional<uint> id)> shown);

Q_SIGNALS:
    /// After each query, and when the server is gone. When one server replaces another, both are announced in
    /// turn.
    void availabilityDetermined();
    void clicked(uint id);
    void snoozed(uint id);
    void closed(uint id);

private Q_SLOTS:
    void onActionInvoked(uint id, const QString &action);
    void onActivationToken(uint id, const QString &token);
    void onNotificationClosed(uint id, uint reason);

private:
    void notify(const Notification &notification, const QStringList &capabilities,
        std::function<void(std::optional<uint> id)> shown);
    void attach();
    void onOwnerChanged(const QString &newOwner);
    void setAvailable(bool isAvailable);

    bool m_isAvailable = false;
    bool m_isQuerying = true; ///< the first query is sent by attach()
};
