// What the mouse does in the text of a note: it opens, filters, selects and drags out.
#include "support/Table.h"
#include "ui/TestPanel.h"
#include "ui/looks/NoteStyle.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDrag>
#include <QMimeData>

using namespace Qt::StringLiterals;

class RowMouseTest final : public QObject
{
    Q_OBJECT

    QString m_opened;

    /// In the viewport: just behind the character before @p position, which must not be at the start of a
    /// line.
    static QPoint pointAt(RowListView &list, int row, qsizetype position)
    {
        const RowLayout layout(
            list.model().content(row), list.viewport()->width(), NoteStyle::palette(false));
        const QTextLine line = layout.text().lineForTextPosition(int(position) - 1);
        int caret = int(position);
        return list.rectOf(row).topLeft()
               + QPointF(line.cursorToX(&caret), line.rect().center().y()).toPoint();
    }
    static void select(RowListView &list, int row, qsizetype from, qsizetype to)
    {
        QTest::mousePress(list.viewport(), Qt::LeftButton, {}, pointAt(list, row, from));
        QTest::mouseMove(list.viewport(), {});
        QTest::mouseMove(list.viewport(), pointAt(list, row, to));
        QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, pointAt(list, row, to));
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &scheme : {u"https"_s, u"file"_s, u"javascript"_s})
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    void open(const QUrl &url) { m_opened = url.toString(); }

    void a_click_opens_the_address_or_filters_by_the_tag()
    {
        constexpr auto two = "看 https://a.example/x#top，https://b.example #家 #work";
        constexpr auto page = "https://a.example/";
        // the text, where in it the click is, the link of the note; nowhere is the line of the link
        const Table<4> table = {
            {two, "a.ex", "", "https://a.example/x#top"},
            {two, "top", "", "https://a.example/x#top"}, // its fragment is no tag
            {two, "b.ex", "", "https://b.example"},
            {two, "家", "", "#家"},
            {two, "看", "", ""},
            {"שלום https://a.example/ #תג", "תג", "", "#תג"},
            {"页面", "", page, page},
            {"页面", "", "file:///tmp", "file:///tmp"},
            {"页面", "", "javascript:alert(1)", ""},
            {page, "a.ex", page, page},
        };
        table.check([this](const QString &text, const QString &clicked, const QString &link) {
            TestPanel panel;
            panel.notes.add(text, {}, link.isEmpty() ? std::nullopt : std::optional(link));
            m_opened.clear();
            RowListView &list = panel.list();
            list.grab(); // so that its rows are measured
            const QPoint point = clicked.isEmpty() ? list.rectOf(1).bottomLeft() + QPoint(80, -10)
                                                   : pointAt(list, 1, text.indexOf(clicked) + 1);
            QTest::mouseMove(list.viewport(), {});
            QTest::mouseMove(list.viewport(), point);
            const bool isHand = list.viewport()->cursor().shape() == Qt::PointingHandCursor;
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, point);
            const QString done = m_opened + panel.state().draft();
            return isHand == !done.isEmpty() ? done : u"wrong cursor"_s;
        });
    }

    void moving_over_the_text_selects()
    {
        struct Row {
            QString text;
            int from;
            int to;
            QString expected;
        };
        const Row rows[] = {
            {u"the quick fox"_s, 4, 9, u"quick"_s},
            {u"the quick fox"_s, 9, 4, u"quick"_s},
            {u"明天去超市"_s, 3, 5, u"超市"_s},
            {u"ab😀cd"_s, 2, 4, u"😀"_s},
            {u"שלום עולם תודה"_s, 5, 9, u"עולם"_s},
            {u"一\n二二\n三三"_s, 1, 6, u"\n二二\n三"_s},
            {u"a #tag b"_s, 3, 6, u"tag"_s},
            {u"x https://a.example/y"_s, 10, 19, u"a.example"_s},
            {u"字\n"_s.repeated(30) + u"末"_s, 1, 3, u"\n字"_s},
        };
        for (const auto &[text, from, to, expected] : rows) {
            TestPanel panel;
            panel.notes.add(text);
            RowListView &list = panel.list();
            m_opened.clear();
            const auto copied = [](const auto &copy) {
                QGuiApplication::clipboard()->clear();
                copy();
                return QGuiApplication::clipboard()->text();
            };
            const auto byKey = [&] { QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier); };
            const auto byMenu = [&] { panel.choose(1, u"复制"_s); };
            select(list, 1, from, to);
            QCOMPARE(list.selectedText(), expected);
            QCOMPARE(copied(byKey), expected);
            QTest::mouseClick(list.viewport(), Qt::RightButton, {}, list.rectOf(1).center());
            QCOMPARE(copied(byMenu), expected);
            QCOMPARE(panel.state().draft() + m_opened, QString()); // it was no click

            QVERIFY(panel.content->escape());
            QCOMPARE(copied(byKey), text);
            select(list, 1, from, to);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.rectOf(1).topRight() + QPoint(-5, 5));
            QCOMPARE(list.selectedText(), QString());
            select(list, 1, from, to);
            panel.notes.update(panel.notes.notes().first().id, text + u'!');
            QCOMPARE(list.selectedText(), QString());
        }
    }

    void what_is_dragged_to_the_field_is_inserted_as_one_line()
    {
        for (const int from : {0, 9}) { // beside the text, and in the selection
            TestPanel panel;
            panel.notes.add(u"mind\nall the gaps"_s, {}, u"https://a.example/"_s);
            RowListView &list = panel.list();
            if (from > 0)
                select(list, 1, from, from + 3);
            const QPoint start =
                from > 0 ? pointAt(list, 1, from + 2) : list.rectOf(1).center() - QPoint(150, 0);
            QTest::mousePress(list.viewport(), Qt::LeftButton, {}, start);
            QTest::mouseMove(list.viewport(), start + QPoint(0, 12)); // a drag ends at once without a desktop
            const auto *drag = list.findChild<QDrag *>();
            QVERIFY(drag);
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, drag->mimeData(), Qt::LeftButton, {});
            QCoreApplication::sendEvent(panel.field(), &enter);
            QDropEvent drop({5, 5}, Qt::CopyAction, drag->mimeData(), Qt::LeftButton, {});
            QCoreApplication::sendEvent(panel.field(), &drop);
            QCOMPARE(panel.field()->text(), from == 0 ? u"mind all the gaps"_s : u"the"_s);
            QCOMPARE(panel.window.focusWidget(), panel.field());
            QCOMPARE(drag->mimeData()->hasUrls(), from == 0); // the link goes with the note
            QCOMPARE(panel.notes.notes().size(), 1);
        }
    }
};

QTEST_MAIN(RowMouseTest)
#include "tst_rowmouse.moc"
