// What a screen reader hears from the built program and finds in it, on a private desktop with an
// accessibility bus of its own. The program's clock shows Monday 2026-03-02 10:00 in Shanghai.
#include "foundation/Calendar.h"
#include "model/NoteCoding.h"
#include "stage/Road.h"
#include "stage/ScreenReader.h"
#include "support/TestFiles.h"

#include <QDir>
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
        QDir().mkpath(QFileInfo(desktop.dataFile({})).path());
        writeFile(desktop.dataFile(u"notes.json"_s), noteEncoder::encode(QList<Note>{oats, milk, link}));
        writeFile(desktop.dataFile(u"trash.json"_s), noteEncoder::encode(QList<Note>{gone}));
        writeFile(desktop.dataFile(u"reminders.json"_s), noteEncoder::encode(QList<Reminder>{reminder}));
        writeFile(desktop.dataFile(u".lock"_s), {}); // it has run before
        road.start(Road::shiftTo(now, 0ms));
        if (!road.waitForTrayIcon())
            qFatal("the program does not start");
        road.pressHotKey();
        if (!waitUntilFocused(u"text"_s))
            qFatal("the panel does not open");
    }
    ~Stage() { road.stop(); }
    Q_DISABLE_COPY_MOVE(Stage)

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
            const QStringList said = reader.focused();
            return !said.isEmpty() && said.last().startsWith(role) && said.last().contains(text);
        });
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
    [[nodiscard]] bool heard(const QString &kind, int detail) const
    {
        return !announcersOf(kind, detail).isEmpty();
    }
    /// Waits until something of this name announces it.
    [[nodiscard]] bool announced(const QString &kind, int detail, const QString &name) const
    {
        return PrivateSession::waitUntil([&] {
            const QList<Node> sources = announcersOf(kind, detail);
            return std::any_of(
                sources.begin(), sources.end(), [&](const Node &source) { return source.name == name; });
        });
    }
    /// Waits until a menu is open and handles keys.
    [[nodiscard]] bool waitForMenu() const
    {
        return PrivateSession::waitUntil([this] {
            const QList<Node> sources = announcersOf(u"StateChanged:showing"_s, 1);
            return std::any_of(sources.begin(), sources.end(),
                [](const Node &source) { return source.role == u"popup menu"_s; });
        });
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
        QVERIFY(stage.announced(u"Activate"_s, 0, u"Quillet"_s));
        stage.press({Keysym::escape});
        QVERIFY(stage.announced(u"Deactivate"_s, 0, u"Quillet"_s));
        QTRY_VERIFY(stage.names(u"list"_s, State::Showing).isEmpty());
        QVERIFY(stage.names(u"text"_s, State::Showing).isEmpty());
    }

    void each_mode_shows_its_list_and_no_other()
    {
        struct Mode {
            std::uint32_t digit;
            QString list;
            QStringList rows; ///< what their names contain
        };
        const QList<Mode> modes = {
            {Keysym::digit2, u"标签"_s, {u"#shop"_s, u"#家"_s}},
            {Keysym::digit3, u"提醒"_s, {u"明天下午3点 买牛奶 #家"_s}},
            {Keysym::digit4, u"回收站"_s, {u"今天 · 3月2日 星期一"_s, u"扔掉的"_s}},
            {Keysym::digit1, u"笔记"_s,
                {u"今天 · 3月2日 星期一"_s, u"oat milk, not cow #shop"_s, u"明天下午3点 买牛奶 #家"_s,
                    u"3月1日 星期日"_s, u"https://example.org/a read this #家"_s}},
        };
        Stage stage;
        for (const Mode &mode : modes) {
            stage.press({Keysym::control, mode.digit});
            QTRY_COMPARE(stage.names(u"list"_s, State::Showing), QStringList{mode.list});
            QCOMPARE(stage.names(u"label"_s, State::Showing).value(0), mode.list);
            const bool isTimeline = mode.digit == Keysym::digit1;
            QTRY_VERIFY(stage.heard(u"StateChanged:checked"_s, isTimeline ? 0 : 1)); // of its button
            const QList<Node> rows = stage.rows();
            QCOMPARE(rows.size(), mode.rows.size());
            for (int row = 0; row < rows.size(); ++row)
                QVERIFY2(rows[row].name.contains(mode.rows[row]), qPrintable(rows[row].name));
        }
    }

    void the_focus_is_announced_on_its_way_from_the_field_through_the_rows_and_back()
    {
        Stage stage;
        stage.press({Keysym::down});
        QVERIFY(stage.waitUntilFocused(u"list"_s));
        for (const QString &text : {u"买牛奶"_s, u"read this"_s}) {
            stage.press({Keysym::down});
            QVERIFY2(stage.waitUntilFocused(u"list item"_s, text), qPrintable(text));
            const QStringList focused = stage.names(u"list item"_s, State::Focused);
            QVERIFY(focused.size() == 1 && focused.first().contains(text));
        }
        stage.press({Keysym::down});
        QVERIFY(stage.waitUntilFocused(u"text"_s));
        QVERIFY(stage.names(u"list item"_s, State::Focused).isEmpty());
    }

    void the_entries_of_a_menu_are_announced()
    {
        Stage stage;
        stage.press({Keysym::down});
        QVERIFY(stage.waitUntilFocused(u"list"_s));
        stage.press({Keysym::menu});
        QVERIFY(stage.waitForMenu());
        for (const QString &entry : {u"引用"_s, u"复制"_s, u"删除"_s, u"相关笔记"_s}) {
            stage.press({Keysym::down});
            QVERIFY2(stage.waitUntilFocused(u"menu item"_s, entry), qPrintable(entry));
        }
        stage.press({Keysym::escape});
        QVERIFY(stage.waitUntilFocused(u"list"_s));
    }

    void a_row_does_what_it_is_asked_to()
    {
        Stage stage;
        stage.reader.act(stage.row(u"oat milk"_s).object, u"ShowMenu"_s);
        QVERIFY(stage.waitForMenu());
        stage.press({Keysym::escape});
        QTRY_VERIFY(stage.heard(u"StateChanged:showing"_s, 0));
        stage.reader.act(stage.row(u"read this"_s).object, u"Press"_s); // edits the note
        QTRY_VERIFY(stage.heard(u"TextChanged:insert"_s, 0));
    }

    void a_row_that_is_gone_is_not_taken_for_another()
    {
        Stage stage;
        const Node oats = stage.row(u"oat milk"_s);
        stage.press({Keysym::down});
        QVERIFY(stage.waitUntilFocused(u"list"_s));
        stage.press({Keysym::remove});
        QTRY_COMPARE(stage.rows().size(), 4);
        QVERIFY(stage.row(u"oat milk"_s).role.isEmpty());
        QCOMPARE(stage.reader.read(oats.object).spoken(), u": "_s);
    }

    void typing_is_announced_letter_by_letter()
    {
        Stage stage;
        stage.reader.forget();
        stage.desktop.screen().type(u"买菜"_s);
        QTRY_VERIFY(stage.heard(u"TextCaretMoved"_s, 2));
        QVERIFY(stage.heard(u"TextChanged:insert"_s, 0));
        QVERIFY(stage.heard(u"TextChanged:insert"_s, 1));
    }
};

QTEST_GUILESS_MAIN(AccessibilityTest)
#include "tst_accessibility.moc"
