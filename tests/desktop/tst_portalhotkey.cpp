// The hot key through the real xdg-desktop-portal, with a backend in the test.
#include "desktop/PortalHotKey.h"
#include "stage/BusService.h"
#include "stage/PrivateSession.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString portal = u"/usr/libexec/xdg-desktop-portal"_s;
using Shortcuts = QList<QPair<QString, QVariantMap>>;
} // namespace

/// The desktop's side of the portal: accepts every key, or refuses, and may know some from before.
class Backend final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.GlobalShortcuts")
    Q_PROPERTY(uint version READ version)

public:
    uint answer = 0;
    bool knowsShortcuts = false;
    QStringList calls;
    Shortcuts bound;
    QDBusObjectPath session;

    uint version() const { return 1; }
    void press(const QString &id)
    {
        Q_EMIT Activated(session, id, 1, {{u"activation_token"_s, u"let me"_s}});
    }

public Q_SLOTS:
    uint CreateSession(const QDBusObjectPath &, const QDBusObjectPath &handle, const QString &,
        const QVariantMap &, QVariantMap &results)
    {
        calls.append(u"CreateSession"_s);
        session = handle;
        results.insert(u"session_id"_s, u"1"_s);
        return 0;
    }
    uint BindShortcuts(const QDBusObjectPath &, const QDBusObjectPath &, const Shortcuts &shortcuts,
        const QString &, const QVariantMap &, QVariantMap &results)
    {
        calls.append(u"BindShortcuts"_s);
        bound = shortcuts;
        const Shortcuts agreed{
            {u"toggle"_s, {{u"description"_s, u"x"_s}, {u"trigger_description"_s, u"Ctrl+Alt+Space"_s}}}};
        results.insert(u"shortcuts"_s, QVariant::fromValue(agreed));
        return answer;
    }
    uint ListShortcuts(const QDBusObjectPath &, const QDBusObjectPath &, QVariantMap &results)
    {
        calls.append(u"ListShortcuts"_s);
        const Shortcuts known = knowsShortcuts ? Shortcuts{{u"toggle"_s, {}}} : Shortcuts();
        results.insert(u"shortcuts"_s, QVariant::fromValue(known));
        return 0;
    }

Q_SIGNALS:
    void Activated(
        const QDBusObjectPath &session, const QString &id, qulonglong timestamp, const QVariantMap &options);
};

class PortalHotKeyTest final : public QObject
{
    Q_OBJECT

    std::unique_ptr<PrivateSession> m_session;
    std::unique_ptr<Backend> m_backend;
    std::unique_ptr<BusService> m_backendService;
    std::unique_ptr<QProcess> m_portal;

    const QString &address() const { return m_session->busAddress(); }
    void startPortal()
    {
        const QString file = m_session->writeFile(u"portals/quillet.portal"_s,
            "[portal]\n"
            "DBusName=org.freedesktop.impl.portal.desktop.quillet\n"
            "Interfaces=org.freedesktop.impl.portal.GlobalShortcuts\n"
            "UseIn=Quillet\n");
        m_portal = m_session->start(u"env"_s, {},
            {u"XDG_CURRENT_DESKTOP=Quillet"_s, u"XDG_DESKTOP_PORTAL_DIR="_s + QFileInfo(file).path(),
                portal});
        QTRY_VERIFY_WITH_TIMEOUT(
            m_backendService->bus().interface()->isServiceRegistered(u"org.freedesktop.portal.Desktop"_s),
            15'000);
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!QFile::exists(portal))
            QSKIP("no xdg-desktop-portal on this machine");
        qDBusRegisterMetaType<QPair<QString, QVariantMap>>();
        qDBusRegisterMetaType<Shortcuts>();
        qRegisterMetaType<Shortcuts>("Shortcuts"); // the name in the slots of the backend
    }
    void init()
    {
        m_session = std::make_unique<PrivateSession>();
        m_backend = std::make_unique<Backend>();
        m_backendService =
            std::make_unique<BusService>(address(), u"org.freedesktop.impl.portal.desktop.quillet"_s,
                u"/org/freedesktop/portal/desktop"_s, m_backend.get());
    }
    void cleanup()
    {
        if (m_portal)
            PrivateSession::kill(*m_portal);
        m_backendService.reset();
    }

    void the_key_is_bound_pressed_and_survives_the_portal()
    {
        startPortal();
        PortalHotKey key(address());
        QSignalSpy pressed(&key, &PortalHotKey::pressed);
        QSignalSpy failed(&key, &PortalHotKey::failed);
        key.request();
        const QStringList steps{u"CreateSession"_s, u"ListShortcuts"_s, u"BindShortcuts"_s};
        QTRY_VERIFY_WITH_TIMEOUT(m_backend->calls == steps || !failed.isEmpty(), 15'000);
        QCOMPARE(failed, QList<QVariantList>());
        QCOMPARE(m_backend->bound.size(), 1);
        QCOMPARE(
            m_backend->bound.first().second.value(u"preferred_trigger"_s).toString(), u"CTRL+ALT+space"_s);
        m_backend->press(u"other"_s);
        m_backend->press(u"toggle"_s);
        QTRY_COMPARE(pressed.count(), 1);
        QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "let me");
        QTest::qWait(100);
        QCOMPARE(pressed.count(), 1);

        PrivateSession::kill(*m_portal);
        startPortal();
        QTRY_VERIFY_WITH_TIMEOUT(m_backend->calls == steps + steps || !failed.isEmpty(), 15'000);
        QCOMPARE(failed, QList<QVariantList>());
        m_backend->press(u"toggle"_s);
        QTRY_COMPARE(pressed.count(), 2);
    }

    void a_key_that_is_known_is_not_bound_again()
    {
        m_backend->knowsShortcuts = true;
        startPortal();
        PortalHotKey key(address());
        QSignalSpy pressed(&key, &PortalHotKey::pressed);
        key.request();
        const QStringList steps{u"CreateSession"_s, u"ListShortcuts"_s};
        QTRY_COMPARE_WITH_TIMEOUT(m_backend->calls, steps, 15'000);
        m_backend->press(u"toggle"_s);
        QTRY_COMPARE(pressed.count(), 1);
        QTest::qWait(100);
        QCOMPARE(m_backend->calls, steps);
    }

    void a_refusal_is_reported()
    {
        m_backend->answer = 1;
        startPortal();
        PortalHotKey key(address());
        QSignalSpy failed(&key, &PortalHotKey::failed);
        key.request();
        QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, 15'000);
        QCOMPARE(failed.first().first().toString(), u"1"_s);
    }
};

QTEST_GUILESS_MAIN(PortalHotKeyTest)
#include "tst_portalhotkey.moc"
