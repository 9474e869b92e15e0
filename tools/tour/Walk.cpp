#include "tour/Walk.h"

#include "foundation/Clock.h"
#include "stage/Road.h"

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
/// Drives the program, reports the steps and records whether all of them succeeded.
class Tour final
{
public:
    Tour(const QString &program, const QString &folder)
        : m_folder(folder)
        , m_road(m_desktop, program)
    {
    }

    bool take()
    {
        const Calendar shanghai("Asia/Shanghai");
        const Instant tomorrow = shanghai.addingDays(SystemClock().now(), 1);
        const Instant three = *shanghai.instant(shanghai.day(tomorrow), {15, 0});
        writeReminder(three);
        lookAround();
        awaitReminder(three);
        return !m_hasFailed;
    }

private:
    void writeReminder(Instant three)
    {
        const QString draft = u"明天下午3点 交房租 #家"_s;
        m_road.start();
        step(u"Quillet starts, and its icon is in the tray"_s, m_road.waitForTrayIcon());
        const bool opened = m_road.waitForPanel(true);
        PrivateDesktop::settle();
        step(u"the very first start opens the panel"_s, opened);
        press(Keysym::escape);
        step(u"Escape closes it"_s, m_road.waitForPanel(false));

        m_road.pressHotKey();
        step(u"Control+Alt+Space opens it again"_s, m_road.waitForPanel(true));
        PrivateDesktop::settle();
        type(draft);
        look(u"typed: "_s + draft);
        press(Keysym::enter);
        const bool saved = PrivateDesktop::waitUntil([this] { return !m_road.savedReminders().isEmpty(); });
        PrivateDesktop::settle();
        step(u"Return writes it to notes.json"_s,
            m_road.savedNotes().size() == 1 && m_road.savedNotes().first().text == draft);
        step(u"and a reminder for tomorrow at three to reminders.json"_s,
            saved && m_road.savedReminders().first().fireAt == three);
        type(u"房租"_s);
        look(u"what is typed filters the timeline"_s);
        press(Keysym::escape);
        PrivateDesktop::settle();
        press(Keysym::escape);
        step(u"Escape empties the field, and again closes the panel"_s, m_road.waitForPanel(false));
    }

    /// The modes and bars, with a few notes.
    void lookAround()
    {
        m_road.pressHotKey();
        step(u"opened to look around"_s, m_road.waitForPanel(true));
        for (const QString &text : {u"口腔科补洞，约了李医生 #健康"_s,
                 u"看完《活着》，想写一段读后感 #读书"_s, u"周末聚餐 ¥320 #朋友"_s}) {
            type(text);
            press(Keysym::enter);
        }
        const bool areSaved = PrivateDesktop::waitUntil([this] { return m_road.savedNotes().size() == 4; });
        PrivateDesktop::settle();
        step(u"four notes"_s, areSaved);
        type(u"买牛奶 #"_s);
        look(u"tags are offered while one is typed"_s);
        press(Keysym::escape);
        press(Keysym::escape);
        type(u"牙医"_s);
        look(u"no note contains it, but one has a similar meaning"_s);
        press(Keysym::escape);
        PrivateDesktop::settle();
        press(Keysym::down);
        look(u"the arrow keys walk the list"_s);
        press(Keysym::escape);
        for (const auto &[digit, what] : {std::pair(Keysym::digit2, u"the tags"_s),
                 std::pair(Keysym::digit3, u"the reminders"_s), std::pair(Keysym::digit4, u"the trash"_s)}) {
            m_desktop.screen().press({Keysym::control, digit});
            look(what);
        }
        m_desktop.screen().press({Keysym::control, Keysym::digit1});
        PrivateDesktop::settle();
        press(Keysym::escape);
        step(u"and closed again"_s, m_road.waitForPanel(false));
    }

    void awaitReminder(Instant three)
    {
        m_road.stop();
        m_road.start(Road::shiftTo(three, 5s));
        step(u"started anew, five seconds before three o'clock tomorrow"_s,
            m_road.waitForTrayIcon() && !m_road.panel());
        const auto bubbles = [this] { return m_desktop.screen().windowsOfClass(u"Dunst"_s); };
        const bool shown = PrivateDesktop::waitUntil([&] { return !bubbles().isEmpty(); }, 15s);
        PrivateDesktop::settle();
        step(u"at three the notification is there"_s, shown);
        if (shown)
            m_desktop.screen().click(bubbles().first().frame.center());
        step(u"a click on it opens the panel, and the note lights up"_s,
            PrivateDesktop::waitUntil([this] { return m_road.isFlashing(); }, 3s));
        step(u"and the reminder is removed"_s,
            PrivateDesktop::waitUntil([this] { return m_road.savedReminders().isEmpty(); }));
    }

    void type(const QString &text) { m_desktop.screen().type(text); }
    void press(std::uint32_t keysym) { m_desktop.screen().press({keysym}); }
    /// A step that fails only if the panel is not open.
    void look(const QString &what)
    {
        PrivateDesktop::settle();
        step(what, m_road.panel().has_value());
    }
    void step(const QString &what, bool hasSucceeded)
    {
        ++m_number;
        const QString picture = u"%1/%2.png"_s.arg(m_folder).arg(m_number, 2, 10, QChar(u'0'));
        m_desktop.screen().screenshot().save(picture);
        std::printf("  %-6s %2d. %s\n", hasSucceeded ? "ok" : "FAILED", m_number, qPrintable(what));
        std::fflush(stdout);
        m_hasFailed = m_hasFailed || !hasSucceeded;
    }

    QString m_folder;
    PrivateDesktop m_desktop{{.hasDunst = true}};
    Road m_road;
    int m_number = 0;
    bool m_hasFailed = false;
};
} // namespace

bool Walk::take(const QString &program, const QString &folder)
{
    const bool hasSucceeded = Tour(program, folder).take();
    std::printf("%s; the screenshots are in %s\n",
        hasSucceeded ? "all steps have succeeded" : "steps have failed", qPrintable(folder));
    return hasSucceeded;
}
