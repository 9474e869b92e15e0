#include "tour/Walk.h"

#include "foundation/Clock.h"
#include "stage/Road.h"

#include <cstdio>

using namespace std::chrono_literals;

namespace {
/// Reports the steps and records whether all of them succeeded.
class Tour final
{
public:
    Tour(PrivateDesktop &desktop, const QString &folder)
        : m_desktop(desktop)
        , m_folder(folder)
    {
    }

    void step(const QString &what, bool hasSucceeded)
    {
        ++m_number;
        const QString picture = QStringLiteral("%1/%2.png").arg(m_folder).arg(m_number, 2, 10, QChar(u'0'));
        m_desktop.screen().screenshot().save(picture);
        std::printf("  %-6s %2d. %s\n", hasSucceeded ? "ok" : "FAILED", m_number, qPrintable(what));
        std::fflush(stdout);
        m_hasFailed = m_hasFailed || !hasSucceeded;
    }
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

private:
    PrivateDesktop &m_desktop;
    QString m_folder;
    int m_number = 0;
    bool m_hasFailed = false;
};

/// The modes and bars, with a few notes.
void lookAround(PrivateDesktop &desktop, Road &road, Tour &tour)
{
    XServer &screen = desktop.screen();
    road.pressHotKey();
    tour.step(QStringLiteral("opened to look around"), road.waitForPanel(true));
    for (const QString &text : {QStringLiteral("口腔科补洞，约了李医生 #健康"),
             QStringLiteral("看完《活着》，想写一段读后感 #读书"), QStringLiteral("周末聚餐 ¥320 #朋友")}) {
        screen.type(text);
        screen.press({Keysym::enter});
    }
    const bool areSaved = PrivateDesktop::waitUntil([&road] { return road.savedNotes().size() == 4; });
    PrivateDesktop::settle();
    tour.step(QStringLiteral("four notes"), areSaved);
    const auto look = [&](const QString &what) {
        PrivateDesktop::settle();
        tour.step(what, road.panel().has_value());
    };
    screen.type(QStringLiteral("买牛奶 #"));
    look(QStringLiteral("tags are offered while one is typed"));
    screen.press({Keysym::escape});
    screen.press({Keysym::escape});
    screen.type(QStringLiteral("牙医"));
    look(QStringLiteral("no note contains it, but one has a similar meaning"));
    screen.press({Keysym::escape});
    PrivateDesktop::settle();
    screen.press({Keysym::down});
    look(QStringLiteral("the arrow keys walk the list"));
    screen.press({Keysym::escape});
    screen.press({Keysym::control, Keysym::digit2});
    look(QStringLiteral("the tags"));
    screen.press({Keysym::control, Keysym::digit3});
    look(QStringLiteral("the reminders"));
    screen.press({Keysym::control, Keysym::digit4});
    look(QStringLiteral("the trash"));
    screen.press({Keysym::control, Keysym::digit1});
    PrivateDesktop::settle();
    screen.press({Keysym::escape});
    tour.step(QStringLiteral("and closed again"), road.waitForPanel(false));
}

void takeTheRoad(PrivateDesktop &desktop, Road &road, Tour &tour)
{
    const QString draft = QStringLiteral("明天下午3点 交房租 #家");

    road.start();
    tour.step(QStringLiteral("Quillet starts, and its icon is in the tray"), road.waitForTrayIcon());
    const bool opened = road.waitForPanel(true);
    PrivateDesktop::settle();
    tour.step(QStringLiteral("the very first start opens the panel"), opened);
    desktop.screen().press({Keysym::escape});
    tour.step(QStringLiteral("Escape closes it"), road.waitForPanel(false));

    road.pressHotKey();
    tour.step(QStringLiteral("Control+Alt+Space opens it again"), road.waitForPanel(true));
    PrivateDesktop::settle();
    desktop.screen().type(draft);
    PrivateDesktop::settle();
    tour.step(QStringLiteral("typed: %1").arg(draft), road.panel().has_value());
    desktop.screen().press({Keysym::enter});
    const bool saved = PrivateDesktop::waitUntil([&road] { return !road.savedReminders().isEmpty(); });
    PrivateDesktop::settle();
    tour.step(QStringLiteral("Return writes it to notes.json"),
        road.savedNotes().size() == 1 && road.savedNotes().first().text == draft);
    const Calendar shanghai("Asia/Shanghai");
    const Instant now = SystemClock().now();
    const Instant three = *shanghai.instant(shanghai.day(shanghai.addingDays(now, 1)), {15, 0});
    tour.step(QStringLiteral("and a reminder for tomorrow at three to reminders.json"),
        saved && road.savedReminders().first().fireAt == three);
    desktop.screen().type(QStringLiteral("房租"));
    PrivateDesktop::settle();
    tour.step(QStringLiteral("what is typed filters the timeline"), road.panel().has_value());
    desktop.screen().press({Keysym::escape});
    PrivateDesktop::settle();
    desktop.screen().press({Keysym::escape});
    tour.step(
        QStringLiteral("Escape empties the field, and again closes the panel"), road.waitForPanel(false));

    lookAround(desktop, road, tour);

    road.stop();
    road.start(Road::shiftTo(three, 5s));
    tour.step(QStringLiteral("started anew, five seconds before three o'clock tomorrow"),
        road.waitForTrayIcon() && !road.panel());
    const auto bubbles = [&desktop] { return desktop.screen().windowsOfClass(QStringLiteral("Dunst")); };
    const bool shown = PrivateDesktop::waitUntil([&] { return !bubbles().isEmpty(); }, 15s);
    PrivateDesktop::settle();
    tour.step(QStringLiteral("at three the notification is there"), shown);
    if (shown)
        desktop.screen().click(bubbles().first().frame.center());
    const bool lit = PrivateDesktop::waitUntil([&road] { return road.isFlashing(); }, 3s);
    tour.step(QStringLiteral("a click on it opens the panel, and the note lights up"), lit);
    tour.step(QStringLiteral("and the reminder is removed"),
        PrivateDesktop::waitUntil([&road] { return road.savedReminders().isEmpty(); }));
    road.stop();
}
} // namespace

bool Walk::take(const QString &program, const QString &folder)
{
    PrivateDesktop desktop({.hasDunst = true});
    Road road(desktop, program);
    Tour tour(desktop, folder);
    takeTheRoad(desktop, road, tour);
    std::printf("%s; the screenshots are in %s\n",
        tour.hasFailed() ? "steps have failed" : "all steps have succeeded", qPrintable(folder));
    return !tour.hasFailed();
}
