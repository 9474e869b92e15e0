// Light and dark, in front of a settings portal that the test brings.
#include "desktop/Appearance.h"
#include "stage/SettingsPortal.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

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
        SettingsPortal portal(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), SettingsPortal::Scheme::Dark);
        Appearance appearance;
        QSignalSpy changed(&appearance, &Appearance::schemeChanged);
        appearance.follow();
        QTRY_COMPARE(appearance.scheme(), Appearance::Scheme::Dark);
        Q_EMIT portal.SettingChanged(u"org.freedesktop.other"_s, u"color-scheme"_s, QDBusVariant(2U));
        portal.setScheme(SettingsPortal::Scheme::Light);
        QTRY_COMPARE(appearance.scheme(), Appearance::Scheme::Light);
        portal.setScheme(SettingsPortal::Scheme::NoPreference);
        QTRY_COMPARE(appearance.scheme(), Appearance::Scheme::NoPreference);
        QCOMPARE(changed.count(), 3);
    }
};

QTEST_GUILESS_MAIN(AppearanceTest)
#include "tst_appearance.moc"
