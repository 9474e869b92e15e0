#include "tour/Gallery.h"

#include "foundation/Clock.h"
#include "model/NoteCoding.h"
#include "stage/NotificationRecorder.h"
#include "stage/Road.h"
#include "stage/SettingsPortal.h"
#include "ui/looks/Design.h"

#include <QDir>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
using Scheme = SettingsPortal::Scheme;

struct Look {
    const char *name;
    Scheme scheme;
    int scale;
    bool hasCompositor;
};
constexpr Look looks[] = {
    {"light", Scheme::Light, 1, true},
    {"dark", Scheme::Dark, 1, true},
    {"light-2x", Scheme::Light, 2, true},
    {"dark-2x", Scheme::Dark, 2, false},
    {"light-plain", Scheme::Light, 1, false},
};

/// Some notes of a week, with everything that a row can show.
QList<Note> someNotes(Instant now)
{
    QList<Note> notes;
    const auto note = [&notes, now](std::chrono::minutes ago, const QString &text) -> Note & {
        notes.append({QUuid::createUuid(), text, {}, {}, {}, now - ago});
        return notes.last();
    };
    note(5min, u"口腔科补洞，约了李医生 #健康"_s);
    const Note dinner = note(40min, u"周末聚餐 ¥320，六个人 #朋友"_s);
    Note &reply = note(30min, u"订了 18:30 的包间"_s);
    reply.quote = dinner.text;
    reply.quoteID = dinner.id;
    note(55min, u"下周三 10:00 组会，准备 3 张图 #工作"_s);
    note(26h, u"The Qt Company documentation: Graphics View"_s).link =
        u"https://doc.qt.io/qt-6/graphicsview.html"_s;
    note(27h, u"合同.pdf"_s).link = u"file:///usr/share/doc"_s;
    note(28h, QStringLiteral(
                  "看完《活着》，想写一段读后感：人是为了活着本身而活着，而不是为了活着之外的任何事物所活着。"
                  "先列三个要点，再找一处原文 #读书 #写作"));
    note(29h, u"牛奶 面包 鸡蛋 #购物"_s);
    note(50h, u"约了周四洗牙，牙科在三楼 #健康"_s);
    note(70h, u"补洞的医生说下个月复查"_s);
    for (int day = 3; day < 9; ++day) {
        note(day * 24h, u"晨跑 %1 公里 #运动"_s.arg(3 + day % 4));
        note(day * 24h + 3h, u"给妈妈打电话 #家"_s);
    }
    return notes;
}

/// One combination of looks: its desktop and the screenshots.
class Exhibition final
{
public:
    Exhibition(const Look &look, const QString &program, const QString &folder)
        : m_look(look)
        , m_folder(folder + u'/' + QString::fromLatin1(look.name))
        , m_desktop({.hasCompositor = look.hasCompositor, .scale = look.scale})
        , m_screen(m_desktop.screen())
        , m_portal(m_desktop.busAddress(), look.scheme)
        , m_notifications(m_desktop.busAddress())
        , m_road(m_desktop, program)
    {
        QDir(m_folder).removeRecursively();
        QDir().mkpath(m_folder);
    }

    bool show()
    {
        showEmptyLists();
        const Instant now = SystemClock().now();
        QList<Note> notes = someNotes(now);
        const QList<Note> trash{notes.takeLast(), notes.takeLast()};
        const QList<Reminder> reminders{
            {QUuid::createUuid(), notes[3].id, u"组会，准备 3 张图 #工作"_s, notes[3].text, now + 26h, now},
            {QUuid::createUuid(), notes[0].id, u"口腔科补洞，约了李医生 #健康"_s, notes[0].text, now + 3h,
                now}};
        m_desktop.writeFile(m_desktop.dataFile(u"notes.json"_s), noteEncoder::encode(notes));
        m_desktop.writeFile(m_desktop.dataFile(u"trash.json"_s), noteEncoder::encode(trash));
        m_desktop.writeFile(m_desktop.dataFile(u"reminders.json"_s), noteEncoder::encode(reminders));
        open();
        showTimeline();
        showComposer();
        showSideLists();
        showDialogs(notes);
        m_road.stop();
        return !m_hasFailed;
    }

private:
    void showEmptyLists()
    {
        open();
        picture("empty timeline");
        showMode(Keysym::digit2, "empty tags");
        showMode(Keysym::digit3, "empty reminders");
        showMode(Keysym::digit4, "empty trash");
        m_road.stop();
    }

    void showTimeline()
    {
        picture("timeline");
        m_screen.point(inPanel(120, 84));
        picture("pointer on a row");
        openMenu(inPanel(120, 84));
        picture("menu of a row");
        choose(5);
        picture("related notes");
        escape();
        pressEach({Keysym::down, Keysym::down});
        picture("row with the focus");
        m_screen.press({Keysym::f1});
        picture("page of keys");
        escape();
        pressEach({Keysym::down, Keysym::down, Keysym::down, Keysym::down, Keysym::down});
        picture("scrolled under a pinned day");
        escape();
        pressEach({Keysym::down, Keysym::enter});
        picture("editing");
        escape();
        pressEach({Keysym::down, Keysym::menu});
        PrivateDesktop::settle();
        choose(1);
        picture("quoting");
        m_screen.type(u"x"_s);
        escape();
    }

    void showComposer()
    {
        constexpr std::pair<const char *, const char *> drafts[] = {
            {"组会", "filtered"},
            {"牙医", "found by meaning"},
            {"qqqqqq", "nothing found"},
            {"明天下午3点 交房租 #家 ", "reminder bar"},
            {"1970年1月1日 旧事", "reminder bar of the past"},
            {"买花 #", "tags offered"},
        };
        for (const auto &[draft, name] : drafts) {
            m_screen.type(QString::fromUtf8(draft));
            picture(name);
            escape();
        }
        escape(); // the draft, after the tags
        openMenu(inPanel(150, 456));
        picture("menu of the field");
        escape();
    }

    void showSideLists()
    {
        showMode(Keysym::digit2, "tags");
        openMenu(inPanel(100, 52));
        choose(1);
        picture("renaming a tag");
        escape();
        openMenu(inPanel(100, 52));
        choose(2);
        picture("deleting a tag");
        escape();
        showMode(Keysym::digit3, "reminders");
        showMode(Keysym::digit4, "trash");
        m_screen.press({Keysym::control, Keysym::digit1});
        PrivateDesktop::settle();
    }

    void showDialogs(const QList<Note> &notes)
    {
        const QString file =
            m_desktop.writeFile(m_desktop.dataFile(u"import.json"_s), noteEncoder::encode(notes.first(1)));
        escape();
        escape();
        const QPoint icon = m_road.trayIcon().value_or(QRect()).center();
        openMenu(icon);
        picture("menu of the icon");
        choose(1);
        picture("import");
        m_screen.type(file);
        m_screen.press({Keysym::enter});
        picture("nothing to import");
        m_screen.press({Keysym::enter});
        PrivateDesktop::settle();
        openMenu(icon);
        choose(2);
        picture("export");
        escape();
    }

    void open()
    {
        m_road.start();
        expect(m_road.waitForTrayIcon(), "the icon");
        if (!m_isFirstStart)
            m_road.pressHotKey();
        m_isFirstStart = false;
        expect(m_road.waitForPanel(true), "the panel");
        PrivateDesktop::settle();
        const bool isShadowed = m_look.hasCompositor;
        m_panel =
            m_road.panel().value_or(QRect()).topLeft()
            + (isShadowed ? QPoint(Design::shadowMargin, Design::shadowMargin) * m_look.scale : QPoint());
    }
    void showMode(std::uint32_t digit, const char *name)
    {
        m_screen.press({Keysym::control, digit});
        picture(name);
    }
    void pressEach(std::initializer_list<std::uint32_t> keysyms)
    {
        for (const std::uint32_t keysym : keysyms)
            m_screen.press({keysym});
    }
    void openMenu(QPoint position)
    {
        m_screen.click(position, 3);
        PrivateDesktop::settle();
    }
    void escape()
    {
        m_screen.press({Keysym::escape});
        PrivateDesktop::settle();
    }
    void choose(int entry)
    {
        m_screen.point({1, 1}); // away from the menu, or the entry under it would be selected
        for (int i = 0; i < entry; ++i)
            m_screen.press({Keysym::down});
        m_screen.press({Keysym::enter});
        PrivateDesktop::settle();
    }
    [[nodiscard]] QPoint inPanel(int x, int y) const { return m_panel + QPoint(x, y) * m_look.scale; }
    void expect(bool holds, const char *what)
    {
        if (!holds)
            std::printf("  FAILED %s: %s\n", m_look.name, what);
        m_hasFailed = m_hasFailed || !holds;
    }
    void picture(const char *what)
    {
        PrivateDesktop::settle();
        m_screen.screenshot().save(u"%1/%2 %3.png"_s.arg(m_folder)
                                       .arg(++m_number, 2, 10, QChar(u'0'))
                                       .arg(QString::fromLatin1(what)));
    }

    const Look &m_look;
    QString m_folder;
    PrivateDesktop m_desktop;
    XServer &m_screen;
    SettingsPortal m_portal;
    NotificationRecorder m_notifications;
    Road m_road;
    QPoint m_panel; ///< its top left corner on the screen
    bool m_isFirstStart = true;
    int m_number = 0;
    bool m_hasFailed = false;
};
} // namespace

bool Gallery::take(const QString &program, const QString &folder)
{
    bool isComplete = true;
    for (const Look &look : looks) {
        const bool isShown = Exhibition(look, program, folder).show();
        std::printf("  %-6s %s\n", isShown ? "ok" : "FAILED", look.name);
        std::fflush(stdout);
        isComplete = isComplete && isShown;
    }
    std::printf("the screenshots are in %s\n", qPrintable(folder));
    return isComplete;
}
