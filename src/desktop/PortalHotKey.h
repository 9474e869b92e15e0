#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

#include <functional>

class QDBusPendingCall;

/// Control+Alt+Space where programs cannot take keys themselves: the desktop is asked for it through its
/// portal, and may ask the person, who may choose another key or none.
///
/// Whatever the portal cannot do is one line in the log. A portal that goes away and comes back is asked
/// anew.
class PortalHotKey final : public QObject
{
    Q_OBJECT

public:
    /// @p busAddress is the session bus's where empty.
    explicit PortalHotKey(const QString &busAddress = {}, QObject *parent = nullptr);
    ~PortalHotKey() override;
    Q_DISABLE_COPY_MOVE(PortalHotKey)

    /// Asks, and answers nothing: the key works once the desktop has agreed. Never blocks.
    void request();

Q_SIGNALS:
    void pressed();
    void bound();                        ///< the desktop has agreed
    void failed(const QString &message); ///< until the portal comes back

private Q_SLOTS:
    void onResponse(uint code, const QVariantMap &results);
    void onActivated(
        const QDBusObjectPath &session, const QString &id, qulonglong timestamp, const QVariantMap &options);

private:
    enum class Step { None, CreatingSession, ListingShortcuts, BindingShortcuts };

    void registerIdentity();
    void checkVersion();
    void createSession();
    void listShortcuts();
    void bindShortcuts();
    /// Calls a method that answers through a request object, and hears that answer in onResponse().
    void ask(Step step, const QString &method, const QVariantList &arguments, QVariantMap options);
    void forgetSession();
    void fail(const QString &message);
    void whenFinished(const QDBusPendingCall &call, std::function<void(const QDBusPendingCall &)> handler);

    QDBusConnection m_bus; ///< its own: the portal takes an identity only before any other call
    Step m_step = Step::None;
    uint m_round = 0; ///< answers to the calls of earlier rounds are ignored
    QString m_request;
    QString m_session;
};
