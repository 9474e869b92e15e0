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
        QString body; ///< plain text, escaped here where the server reads markup
    };

    explicit NotificationServer(QObject *parent = nullptr);

    /// Whether a server answers; nothing before the first answer.
    [[nodiscard]] std::optional<bool> isAvailable() const { return m_isAvailable; }
    /// Asks whether a server answers, which starts one where the desktop can.
    void query();

    /// With buttons to open and to snooze, where the server shows any. @p shown is told the id by which the
    /// server names the notification, or nothing when it refused.
    void show(const Notification &notification, std::function<void(std::optional<uint> id)> shown);

Q_SIGNALS:
    /// A server answers now, or none does any more. When one takes the place of another both are told, in
    /// turn.
    void availabilityChanged();
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

    std::optional<bool> m_isAvailable;
};
