// Light and dark, with a settings portal in the test.
#include "desktop/Appearance.h"
#include "stage/PrivateSession.h"
#include "stage/SettingsPortal.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class AppearanceTest final : public QObject
{
    Q_OBJECT

    PrivateSession m_session;

private Q_SLOTS:
    void initTestCase() { qputenv("DBUS_SESSION_BUS_ADDRESS", m_session.busAddress().toLatin1()); }

    void the_portal_is_asked_and_followed()
    {
        SettingsPortal portal(m_session.busAddress(), SettingsPortal::Scheme::Dark);
        Appearance appearance;
        QSignalSpy changed(&appearance, &Appearance::schemeChanged);
        appearance.follow();
        QTRY_COMPARE(appearance.scheme(), Appearance::Scheme::Dark);
        portal.announceOtherSetting();
        portal.setScheme(SettingsPortal::Scheme::Light);
        QTRY_COMPARE(appearance.scheme(), Appearance::Scheme::Light);
        portal.setScheme(SettingsPortal::Scheme::NoPreference);
        QTRY_COMPARE(appearance.scheme(), Appearance::Scheme::NoPreference);
        QCOMPARE(changed.count(), 3);
    }
};

QTEST_GUILESS_MAIN(AppearanceTest)
#include "tst_appearance.moc"
