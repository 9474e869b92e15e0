#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

class QDBusMessage;

/// Control+Alt+Space through the desktop portal's GlobalShortcuts, where programs cannot grab keys
/// themselves. The desktop may ask the user, who may choose another key or none.
///
/// When the portal is restarted, the key is requested again.
class PortalHotKey final : public QObject
{
    Q_OBJECT

public:
    /// An empty @p busAddress means the session bus.
    explicit PortalHotKey(const QString &busAddress = {}, QObject *parent = nullptr);
    ~PortalHotKey() override;
    Q_DISABLE_COPY_MOVE(PortalHotKey)

    /// The key works once the desktop has agreed. Never blocks.
    void request();

Q_SIGNALS:
    void pressed();
    void failed(const QString &message); ///< no key until the portal is restarted

private Q_SLOTS:
    void onResponse(uint code, const QVariantMap &results);
    void onActivated(
        const QDBusObjectPath &session, const QString &id, qulonglong timestamp, const QVariantMap &options);

private:
    enum class Step { None, CreatingSession, ListingShortcuts, BindingShortcuts };

    void registerIdentity();
    void checkVersion();
    void createSession();
    /// Calls a method whose result arrives in onResponse(), as the portal's request objects deliver it.
    void ask(Step step, const QString &method, const QVariantList &arguments, QVariantMap options = {});
    void forgetSession();
    void fail(const QString &message);
    /// Ignores the reply when the session has been forgotten by then.
    template <typename... Values, typename Handler>
    void send(const QDBusMessage &message, Handler handler);

    QDBusConnection m_bus; ///< its own: the portal accepts an identity only before any other call
    Step m_step = Step::None;
    uint m_round = 0; ///< replies to calls of earlier rounds are ignored
    QString m_request;
    QString m_session;
};
