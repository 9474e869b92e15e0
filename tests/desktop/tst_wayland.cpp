// The built program on a private Wayland desktop.
#include "model/NoteCoding.h"
#include "stage/StatusNotifierWatcher.h"
#include "stage/WaylandDesktop.h"
#include "support/TestFiles.h"

#include <QTest>

using namespace Qt::StringLiterals;

class WaylandTest final : public QObject
{
    Q_OBJECT

    const QString m_program = QStringLiteral(PROGRAM);

    static bool waitForPanel(const WaylandDesktop &desktop, bool isOpen)
    {
        return PrivateSession::waitUntil(
            [&] { return desktop.hasWindow(u"io.github.quillet.Quillet"_s) == isOpen; });
    }
    static QStringList savedTexts(const WaylandDesktop &desktop)
    {
        const auto notes = noteDecoder::decodeNotes(readFile(desktop.dataFile(u"notes.json"_s)));
        QStringList texts;
        for (const Note &note : notes ? notes.value() : QList<Note>())
            texts.append(note.text);
        return texts;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!WaylandDesktop::isPossible())
            QSKIP("no sway, wtype, setpriv or shared memory on this machine");
    }

    void a_note_is_written_and_the_panel_comes_and_goes()
    {
        WaylandDesktop desktop;
        const auto quillet = desktop.start(m_program);
        QVERIFY(waitForPanel(desktop, true)); // the very first start
        desktop.type({u"买牛奶 #家"_s, u"-k"_s, u"Return"_s});
        QTRY_COMPARE(savedTexts(desktop), QStringList{u"买牛奶 #家"_s});
        desktop.type({u"-k"_s, u"Escape"_s});
        QVERIFY(waitForPanel(desktop, false));

        for (const bool opens : {true, false, true}) {
            const auto toggle = desktop.start(m_program, {}, {u"--toggle"_s});
            QVERIFY(toggle->waitForFinished());
            QCOMPARE(toggle->exitCode(), 0);
            QVERIFY(waitForPanel(desktop, opens));
        }
        desktop.type({u"面包"_s, u"-k"_s, u"Return"_s});
        QTRY_COMPARE(savedTexts(desktop), (QStringList{u"面包"_s, u"买牛奶 #家"_s}));
        PrivateSession::stop(*quillet);
    }

    void the_icon_waits_for_a_host_and_survives_it()
    {
        WaylandDesktop desktop;
        const auto quillet = desktop.start(m_program);
        QVERIFY(waitForPanel(desktop, true));
        desktop.type({u"-k"_s, u"Escape"_s});
        QVERIFY(waitForPanel(desktop, false));
        auto watcher = std::make_unique<StatusNotifierWatcher>(desktop.busAddress());
        QTest::qWait(300);
        QCOMPARE(watcher->items(), QStringList()); // no host would show it
        watcher->registerHost();
        for (int host = 0; host < 2; ++host) {
            QTRY_COMPARE(watcher->items().size(), 1);
            const QString icon = watcher->items().first();
            QCOMPARE(watcher->menuOf(icon), (QStringList{u"导入"_s, u"导出"_s, {}, u"退出"_s}));
            for (const bool opens : {true, false}) {
                watcher->click(icon);
                QVERIFY(waitForPanel(desktop, opens));
            }
            watcher.reset();
            watcher = std::make_unique<StatusNotifierWatcher>(desktop.busAddress());
            watcher->registerHost();
        }
        PrivateSession::stop(*quillet);
    }
};

QTEST_GUILESS_MAIN(WaylandTest)
#include "tst_wayland.moc"
