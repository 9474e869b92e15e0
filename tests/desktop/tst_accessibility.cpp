// What a screen reader hears from the built program and finds in it, on a private desktop with an
// accessibility bus of its own. The program's clock shows Monday 2026-03-02 10:00 in Shanghai.
#include "foundation/Calendar.h"
#include "model/NoteCoding.h"
#include "stage/Road.h"
#include "stage/ScreenReader.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Node = ScreenReader::Node;
using State = ScreenReader::State;

namespace {
/// The program with its panel open over a few notes, and a screen reader.
struct Stage {
    PrivateDesktop desktop{{}};
    ScreenReader reader{desktop};
    Road road{desktop, QStringLiteral(PROGRAM)};

    Stage()
    {
        const Calendar shanghai("Asia/Shanghai");
        const Instant now = *shanghai.instant(std::chrono::year(2026) / 3 / 2, {10, 0});
        const Note milk{QUuid::createUuid(), u"明天下午3点 买牛奶 #家"_s, {}, {}, {}, now - 1h};
        const Note oats{
            QUuid::createUuid(), u"oat milk, not cow #shop"_s, milk.text, milk.id, {}, now - 30min};
        const Note link{QUuid::createUuid(), u"https://example.org/a read this #家"_s, {}, {},
            u"https://example.org/a"_s, now - 26h};
        const Note gone{QUuid::createUuid(), u"扔掉的"_s, {}, {}, {}, now - 3h};
        const Reminder reminder{QUuid::createUuid(), milk.id, u"买牛奶"_s, milk.text, now + 29h, now - 1h};
        const auto write = [this](const QString &name, const QByteArray &bytes) {
            desktop.writeFile(desktop.dataFile(name), bytes);
        };
        write(u"notes.json"_s, noteEncoder::encode(QList<Note>{oats, milk, link}));
        write(u"trash.json"_s, noteEncoder::encode(QList<Note>{gone}));
        write(u"reminders.json"_s, noteEncoder::encode(QList<Reminder>{reminder}));
        write(u".lock"_s, {}); // it has run before
        road.start(Road::shiftTo(now, 0ms));
        if (!road.waitForTrayIcon())
            qFatal("the program does not start");
        road.pressHotKey();
        if (!waitUntilFocused(u"text"_s))
            qFatal("the panel does not open");
    }

    /// Forgets what was heard before, so that what is heard next was caused by these keys.
    void press(const QList<std::uint32_t> &keysyms)
    {
        reader.forget();
        desktop.screen().press(keysyms);
    }
    /// Waits until the last announced focus is on something of this role whose name contains the text.
    [[nodiscard]] bool waitUntilFocused(const QString &role, const QString &text = {}) const
    {
        return PrivateSession::waitUntil([&] {
            const QList<Node> focused = announcersOf(u"StateChanged:focused"_s, 1);
            return !focused.isEmpty() && focused.last().role == role && focused.last().name.contains(text);
        });
    }
    /// What a screen reader reads out by itself: where the focus is, and what appears in its own right.
    [[nodiscard]] QStringList told() const
    {
        QStringList told;
        for (const auto &[kind, detail, source] : reader.heard()) {
            const bool appears =
                kind == u"StateChanged:showing"_s
                && QStringList{u"dialog"_s, u"notification"_s, u"popup menu"_s}.contains(source.role);
            if (detail == 1 && (appears || kind == u"StateChanged:focused"_s))
                told.append(source.role + u": "_s + source.name);
        }
        return told;
    }
    [[nodiscard]] QList<Node> announcersOf(const QString &kind, int detail) const
    {
        QList<Node> sources;
        for (const ScreenReader::Event &event : reader.heard()) {
            if (event.kind == kind && event.detail == detail)
                sources.append(event.source);
        }
        return sources;
    }
    /// Waits until something announces it; of this role or this name, unless these are empty.
    [[nodiscard]] bool announced(
        const QString &kind, int detail, const QString &role = {}, const QString &name = {}) const
    {
        return PrivateSession::waitUntil([&] {
            return std::ranges::any_of(announcersOf(kind, detail), [&](const Node &source) {
                return (role.isEmpty() || source.role == role) && (name.isEmpty() || source.name == name);
            });
        });
    }
    /// Waits until a menu is open and handles keys.
    [[nodiscard]] bool waitForMenu() const
    {
        return announced(u"StateChanged:showing"_s, 1, u"popup menu"_s);
    }
    [[nodiscard]] QStringList names(const QString &role, State state) const
    {
        QStringList names;
        for (const Node &node : reader.application(u"Quillet"_s).all(role)) {
            if (node.is(state))
                names.append(node.name);
        }
        return names;
    }
    /// The rows of the list that shows.
    [[nodiscard]] QList<Node> rows() const
    {
        for (const Node &list : reader.application(u"Quillet"_s).all(u"list"_s)) {
            if (list.is(State::Showing))
                return list.children;
        }
        return {};
    }
    [[nodiscard]] Node row(const QString &text) const
    {
        for (const Node &row : rows()) {
            if (row.name.contains(text))
                return row;
        }
        return {};
    }
};
} // namespace

class AccessibilityTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!ScreenReader::isPossible())
            QSKIP("at-spi2-core is not installed");
    }

    void the_panel_announces_that_it_opens_and_closes()
    {
        Stage stage;
        QVERIFY(stage.announced(u"Activate"_s, 0, {}, u"Quillet"_s));
        stage.press({Keysym::escape});
        QVERIFY(stage.announced(u"Deactivate"_s, 0, {}, u"Quillet"_s));
        QTRY_VERIFY(stage.names(u"list"_s, State::Showing).isEmpty());
        QVERIFY(stage.names(u"text"_s, State::Showing).isEmpty());
    }

    void each_mode_shows_its_list_and_no_other()
    {
        Stage stage;
        QCOMPARE(stage.names(u"text"_s, State::Focused), QStringList{u"笔记"_s});
        QCOMPARE(
            stage.names(u"check box"_s, State::Showing), (QStringList{u"标签"_s, u"提醒"_s, u"回收站"_s}));
        const std::tuple<std::uint32_t, QString, int> modes[] = {{Keysym::digit2, u"标签"_s, 2},
            {Keysym::digit3, u"提醒"_s, 1}, {Keysym::digit4, u"回收站"_s, 2}, {Keysym::digit1, u"笔记"_s, 5}};
        for (const auto &[digit, list, rows] : modes) {
            stage.press({Keysym::control, digit});
            QTRY_COMPARE(stage.names(u"list"_s, State::Showing), QStringList{list});
            QCOMPARE(stage.names(u"label"_s, State::Showing).value(0), list);
            const bool isTimeline = digit == Keysym::digit1;
            QVERIFY(stage.announced(u"StateChanged:checked"_s, isTimeline ? 0 : 1)); // of its button
            QCOMPARE(stage.rows().size(), rows);
        }
    }

    void a_walk_through_the_panel_is_read_out()
    {
        const QString oats = u"list item: 09:30，oat milk, not cow #shop，引用 明天下午3点 买牛奶 #家"_s;
        const QString milk = u"list item: 09:00，明天下午3点 买牛奶 #家，明天 15:00 提醒"_s;
        const QString quote = u"notification: 引用 明天下午3点 买牛奶 #家"_s;
        const QString link =
            u"list item: 08:00，https://example.org/a read this #家，https://example.org/a"_s;
        const QString yesterday = u"heading: 2026年3月1日 星期日"_s;
        const QString today = u"heading: 今天 · 2026年3月2日 星期一"_s;
        const QString shop = u"list item: #shop，1 条笔记"_s;
        struct Step {
            QList<std::uint32_t> keys;
            QStringList told;
            QString typed = {};
        };
        const QList<Step> steps = {
            {{}, {u"notification: 明天 09:00 · 明天"_s}, u"明天"_s},
            {{}, {u"notification: 明天 15:00 · 明天下午"_s}, u"下午"_s},
            {{Keysym::escape}, {}},
            {{Keysym::shift, Keysym::digit3}, {u"list item: #shop"_s}}, // a hash sign
            {{Keysym::down}, {u"list item: #家"_s}},
            {{Keysym::escape}, {u"text: 笔记"_s}},
            {{Keysym::escape}, {}},
            {{Keysym::down}, {u"list: 笔记"_s, today, oats}},
            {{Keysym::down}, {milk}},
            {{Keysym::down}, {yesterday, link}},
            {{Keysym::up}, {today, milk}},
            {{Keysym::menu}, {u"popup menu: "_s}},
            {{Keysym::down}, {u"menu item: 引用\tCtrl+R"_s}},
            {{Keysym::down}, {u"menu item: 复制\tCtrl+C"_s}},
            {{Keysym::escape}, {u"list: 笔记"_s, milk}},
            {{Keysym::control, u'l'}, {u"notification: 暂无相关笔记"_s, u"dialog: 相关笔记"_s}},
            {{Keysym::escape}, {milk}},
            {{Keysym::control, u'r'}, {quote, u"text: 笔记"_s}},
            {{Keysym::down}, {u"list: 笔记"_s, oats}},
            {{Keysym::down}, {milk}},
            {{Keysym::remove}, {u"notification: 已移到回收站"_s, yesterday, link}},
            {{Keysym::control, Keysym::digit2}, {u"text: 筛选标签"_s}},
            {{Keysym::control, Keysym::digit1}, {quote, u"label: 笔记"_s, u"text: 笔记"_s}},
            {{Keysym::control, Keysym::digit2}, {u"label: 标签"_s, u"text: 筛选标签"_s}},
            {{Keysym::down}, {u"list: 标签"_s, shop}},
            {{Keysym::remove}, {u"dialog: 删除标签「#shop」？"_s, u"push button: 取消"_s}},
            {{Keysym::tab}, {u"push button: 删除"_s}},
            {{Keysym::escape}, {u"list: 标签"_s, shop}},
            {{Keysym::f2}, {u"text: 标签名"_s}},
        };
        Stage stage;
        for (const auto &[keys, told, typed] : steps) {
            stage.press(keys);
            stage.desktop.screen().type(typed);
            QTRY_COMPARE(stage.told().join(u'\n'), told.join(u'\n'));
        }
    }

    void a_row_does_what_it_is_asked_to()
    {
        Stage stage;
        stage.reader.act(stage.row(u"oat milk"_s).object, u"ShowMenu"_s);
        QVERIFY(stage.waitForMenu());
        stage.press({Keysym::escape});
        QVERIFY(stage.announced(u"StateChanged:showing"_s, 0));
        stage.reader.act(stage.row(u"read this"_s).object, u"Press"_s); // edits the note
        QVERIFY(stage.announced(u"TextChanged:insert"_s, 0));
    }
};

QTEST_GUILESS_MAIN(AccessibilityTest)
#include "tst_accessibility.moc"
