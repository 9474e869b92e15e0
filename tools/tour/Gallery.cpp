#include "tour/Gallery.h"

#include "foundation/Clock.h"
#include "model/NoteCoding.h"
#include "stage/NotificationRecorder.h"
#include "stage/Road.h"
#include "stage/SettingsPortal.h"
#include "ui/looks/Design.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

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

void write(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// Some notes of a week, with everything that a row can show.
QList<Note> someNotes(Instant now)
{
    QList<Note> notes;
    const auto note = [&notes, now](std::chrono::minutes ago, const QString &text) -> Note & {
        notes.append({QUuid::createUuid(), text, {}, {}, {}, now - ago});
        return notes.last();
    };
    note(5min, QStringLiteral("口腔科补洞，约了李医生 #健康"));
    const Note dinner = note(40min, QStringLiteral("周末聚餐 ¥320，六个人 #朋友"));
    Note &reply = note(30min, QStringLiteral("订了 18:30 的包间"));
    reply.quote = dinner.text;
    reply.quoteID = dinner.id;
    note(55min, QStringLiteral("下周三 10:00 组会，准备 3 张图 #工作"));
    note(26h, QStringLiteral("The Qt Company documentation: Graphics View")).link =
        QStringLiteral("https://doc.qt.io/qt-6/graphicsview.html");
    note(27h, QStringLiteral("合同.pdf")).link = QStringLiteral("file:///usr/share/doc");
    note(28h, QStringLiteral(
                  "看完《活着》，想写一段读后感：人是为了活着本身而活着，而不是为了活着之外的任何事物所活着。"
                  "先列三个要点，再找一处原文 #读书 #写作"));
    note(29h, QStringLiteral("牛奶 面包 鸡蛋 #购物"));
    note(50h, QStringLiteral("约了周四洗牙，牙科在三楼 #健康"));
    note(70h, QStringLiteral("补洞的医生说下个月复查"));
    for (int day = 3; day < 9; ++day) {
        note(day * 24h, QStringLiteral("晨跑 %1 公里 #运动").arg(3 + day % 4));
        note(day * 24h + 3h, QStringLiteral("给妈妈打电话 #家"));
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
            {QUuid::createUuid(), notes[3].id, QStringLiteral("组会，准备 3 张图 #工作"), notes[3].text,
                now + 26h, now},
            {QUuid::createUuid(), notes[0].id, QStringLiteral("口腔科补洞，约了李医生 #健康"), notes[0].text,
                now + 3h, now}};
        write(m_desktop.dataFile(QStringLiteral("notes.json")), noteEncoder::encode(notes));
        write(m_desktop.dataFile(QStringLiteral("trash.json")), noteEncoder::encode(trash));
        write(m_desktop.dataFile(QStringLiteral("reminders.json")), noteEncoder::encode(reminders));
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
        mode(Keysym::digit2);
        picture("empty tags");
        mode(Keysym::digit3);
        picture("empty reminders");
        mode(Keysym::digit4);
        picture("empty trash");
        m_road.stop();
    }

    void showTimeline()
    {
        picture("timeline");
        m_screen.point(inPanel(120, 84));
        picture("pointer on a row");
        m_screen.click(inPanel(120, 84), 3);
        picture("menu of a row");
        choose(5);
        picture("related notes");
        escape();
        m_screen.press({Keysym::down});
        m_screen.press({Keysym::down});
        picture("row with the focus");
        for (int i = 0; i < 5; ++i)
            m_screen.press({Keysym::down});
        picture("scrolled under a pinned day");
        escape();
        m_screen.press({Keysym::down});
        m_screen.press({Keysym::enter});
        picture("editing");
        escape();
        m_screen.press({Keysym::down});
        m_screen.press({Keysym::menu});
        PrivateDesktop::settle();
        choose(1);
        picture("quoting");
        m_screen.type(QStringLiteral("x"));
        escape();
    }

    void showComposer()
    {
        m_screen.type(QStringLiteral("组会"));
        picture("filtered");
        escape();
        m_screen.type(QStringLiteral("牙医"));
        picture("found by meaning");
        escape();
        m_screen.type(QStringLiteral("qqqqqq"));
        picture("nothing found");
        escape();
        m_screen.type(QStringLiteral("买花 #"));
        picture("tags offered");
        escape();
        escape();
        m_screen.type(QStringLiteral("明天下午3点 交房租 #家 "));
        picture("reminder bar");
        escape();
        m_screen.type(QStringLiteral("1970年1月1日 旧事"));
        picture("reminder bar of the past");
        escape();
        m_screen.click(inPanel(150, 456), 3);
        picture("menu of the field");
        escape();
    }

    void showSideLists()
    {
        mode(Keysym::digit2);
        picture("tags");
        m_screen.click(inPanel(100, 52), 3);
        PrivateDesktop::settle();
        choose(1);
        picture("renaming a tag");
        escape();
        m_screen.click(inPanel(100, 52), 3);
        PrivateDesktop::settle();
        choose(2);
        picture("deleting a tag");
        escape();
        mode(Keysym::digit3);
        picture("reminders");
        mode(Keysym::digit4);
        picture("trash");
        mode(Keysym::digit1);
    }

    void showDialogs(const QList<Note> &notes)
    {
        const QString file = m_desktop.dataFile(QStringLiteral("import.json"));
        write(file, noteEncoder::encode(notes.first(1)));
        escape();
        escape();
        const QPoint icon = m_road.trayIcon().value_or(QRect()).center();
        m_screen.click(icon, 3);
        picture("menu of the icon");
        choose(1);
        picture("import");
        m_screen.type(file);
        m_screen.press({Keysym::enter});
        picture("nothing to import");
        m_screen.press({Keysym::enter});
        PrivateDesktop::settle();
        m_screen.click(icon, 3);
        PrivateDesktop::settle();
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
    void mode(std::uint32_t digit)
    {
        m_screen.press({Keysym::control, digit});
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
        m_screen.screenshot().save(QStringLiteral("%1/%2 %3.png")
                                       .arg(m_folder)
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
