// Light and dark, in front of a settings portal that the test brings.
#include "desktop/Appearance.h"

#include <QDBusConnection>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class FakePortal final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint scheme = 1;

public Q_SLOTS:
    // The method that is there since the first version wraps its answer twice.
    QDBusVariant Read(const QString &, const QString &)
    {
        return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
    }

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
};

class AppearanceTest final : public QObject
{
    Q_OBJECT

    QProcess m_bus;

private Q_SLOTS:
    void initTestCase()
    {
        m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QVERIFY(m_bus.waitForReadyRead(10'000));
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
    }
    void cleanupTestCase()
    {
        m_bus.terminate();
        m_bus.waitForFinished();
    }

    void the_portal_is_asked_and_followed()
    {
        const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
        QDBusConnection bus = QDBusConnection::connectToBus(address, u"portal"_s);
        FakePortal portal;
        QVERIFY(bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        QVERIFY(bus.registerService(u"org.freedesktop.portal.Desktop"_s));

        Appearance appearance;
        QSignalSpy changed(&appearance, &Appearance::schemeChanged);
        appearance.follow();
        QTRY_COMPARE(appearance.scheme(), Appearance::Scheme::Dark);
        const auto tell = [&portal](const QString &group, uint scheme) {
            Q_EMIT portal.SettingChanged(group, u"color-scheme"_s, QDBusVariant(scheme));
        };
        tell(u"org.freedesktop.other"_s, 2);
        tell(u"org.freedesktop.appearance"_s, 2);
        QTRY_COMPARE(appearance.scheme(), Appearance::Scheme::Light);
        tell(u"org.freedesktop.appearance"_s, 0);
        QTRY_COMPARE(appearance.scheme(), Appearance::Scheme::NoPreference);
        QCOMPARE(changed.count(), 3);
    }
};

QTEST_GUILESS_MAIN(AppearanceTest)
#include "tst_appearance.moc"
