// What all lists of the panel have in common, on a list of plain rows.
#include "ui/lists/RowListAccessible.h"
#include "ui/lists/RowListView.h"
#include "ui/lists/RowModel.h"
#include "ui/looks/Design.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
/// A header where the name begins with a hash sign.
struct PlainRow {
    QString name;
    QString text;
    bool operator==(const PlainRow &) const = default;
};
bool isSameRow(const PlainRow &a, const PlainRow &b)
{
    return a.name == b.name;
}

class PlainModel final : public RowsOf<PlainRow>
{
public:
    void set(const QList<PlainRow> &rows) { show(rows); }
    [[nodiscard]] bool isHeader(int number) const override { return row(number).name.startsWith(u'#'); }
    [[nodiscard]] QString text(int number) const override { return row(number).text; }

private:
    void refresh() override {}
};

class PlainList final : public RowListView
{
public:
    explicit PlainList(PlainModel &model)
        : RowListView(model)
        , m_rows(model)
    {
        resize(340, 400);
        show();
        activateWindow();
        (void)QTest::qWaitForWindowActive(this);
        setFocus();
    }
    [[nodiscard]] RowPainter::EmptyState emptyState() const override { return {u"number"_s, {}}; }
    [[nodiscard]] QString current() const
    {
        return currentRow() < 0 ? QString() : m_rows.row(currentRow()).name;
    }
    [[nodiscard]] QRect rectOfName(const QString &name) const
    {
        for (int row = 0; row < m_rows.rowCount(); ++row) {
            if (m_rows.row(row).name == name)
                return rectOf(row);
        }
        return {};
    }

protected:
    void activate(int) override {}
    void remove(int row) override
    {
        QList<PlainRow> rows = m_rows.rows();
        rows.remove(row);
        m_rows.set(rows);
    }

private:
    PlainModel &m_rows;
};

QList<PlainRow> rowsNamed(const QStringList &names)
{
    QList<PlainRow> rows;
    for (const QString &name : names)
        rows.append({name, name});
    return rows;
}

/// From one line, 34 pixels, to some 400.
QList<PlainRow> rowsOfAllHeights(int first, int count)
{
    QList<PlainRow> rows;
    for (int i = first; i < first + count; ++i) {
        if (i % 7 == 0)
            rows.append({u"#%1"_s.arg(i), u"day"_s});
        rows.append({QString::number(i), QString(i * 37 % 400, u'字')});
    }
    return rows;
}
/// Counts the paint events of a widget from now on.
class PaintCounter final : public QObject
{
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};
} // namespace

class RowListTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RowListAccessible::install(); }

    void keys_walk_the_entries_and_leave_at_the_ends()
    {
        auto &model = *new PlainModel;
        PlainList list(model);
        QList<PlainRow> rows = rowsNamed({u"#x"_s, u"a"_s, u"b"_s, u"#y"_s, u"c"_s});
        for (int i = 0; i < 30; ++i)
            rows.append({QString::number(i), QString::number(i)});
        model.set(rows);
        QSignalSpy left(&list, &RowListView::left);
        const auto afterPressing = [&list](std::initializer_list<Qt::Key> keys) {
            for (const Qt::Key key : keys)
                QTest::keyClick(&list, key);
            return list.current();
        };
        QVERIFY(list.enter());
        QCOMPARE(list.current(), u"a"_s);
        QCOMPARE(afterPressing({Qt::Key_Down, Qt::Key_Down}), u"c"_s);
        QCOMPARE(afterPressing({Qt::Key_Up}), u"b"_s);
        QCOMPARE(afterPressing({Qt::Key_End}), u"29"_s);
        QVERIFY(list.viewport()->rect().contains(list.rectOfName(u"29"_s)));
        QCOMPARE(afterPressing({Qt::Key_Home}), u"a"_s);
        QCOMPARE(afterPressing({Qt::Key_PageDown, Qt::Key_PageUp}), u"a"_s);
        QCOMPARE(afterPressing({Qt::Key_A}), u"a"_s); // no search by what is typed
        QCOMPARE(left.count(), 0);
        afterPressing({Qt::Key_Up});
        QCOMPARE(left.count(), 1);
    }

    void the_current_row_stays_with_its_row_and_passes_to_the_one_below()
    {
        auto &model = *new PlainModel;
        PlainList list(model);
        model.set(rowsNamed({u"a"_s, u"b"_s, u"#x"_s, u"c"_s, u"d"_s}));
        list.setCurrentRow(1);
        model.set(rowsNamed({u"#n"_s, u"new"_s, u"a"_s, u"b"_s, u"#x"_s, u"c"_s, u"d"_s}));
        QCOMPARE(list.current(), u"b"_s);
        QStringList after;
        for (int i = 0; i < 5; ++i) {
            QTest::keyClick(&list, Qt::Key_Delete);
            after.append(list.current());
        }
        QCOMPARE(after, (QStringList{u"c"_s, u"d"_s, u"a"_s, u"new"_s, QString()}));
    }

    void rows_in_view_stay_where_they_are()
    {
        auto &model = *new PlainModel;
        PlainList list(model);
        model.set(rowsOfAllHeights(100, 300));
        list.grab();
        // Scrolled up into rows that have only been estimated: each row moves by exactly as much.
        list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum() / 2);
        list.grab();
        for (int i = 0; i < 60; ++i) {
            const int row = list.firstRowInView() + 1;
            const QString name = model.row(row).name;
            const int y = list.rectOf(row).top();
            list.verticalScrollBar()->setValue(list.verticalScrollBar()->value() - 20);
            list.grab();
            QCOMPARE(list.rectOfName(name).top(), y + 20);
        }
        const QString name = model.row(list.firstRowInView()).name;
        const QRect rect = list.rectOfName(name);
        model.set(rowsOfAllHeights(90, 310));
        list.grab();
        QCOMPARE(list.rectOfName(name), rect);
        list.verticalScrollBar()->setValue(0);
        model.set(rowsOfAllHeights(80, 320)); // at the newest the list stays there
        QCOMPARE(list.rectOf(0).top(), 0);
    }

    void a_scroll_to_the_center_ends_there_although_rows_come_on_the_way()
    {
        auto &model = *new PlainModel;
        PlainList list(model);
        model.set(rowsOfAllHeights(100, 300));
        list.grab();
        list.scrollToCenter(200);
        const QString name = model.row(200).name;
        QTest::qWait(200);
        model.set(rowsOfAllHeights(90, 310));
        const auto isCentered = [&] {
            return std::abs(list.rectOfName(name).center().y() - list.viewport()->height() / 2) <= 1;
        };
        QVERIFY(!isCentered());
        QTRY_VERIFY(isCentered());
        QTest::qWait(100);
        QVERIFY(isCentered());
    }

    void an_interface_that_a_screen_reader_holds_follows_its_row()
    {
        auto &model = *new PlainModel;
        PlainList list(model);
        model.set(rowsNamed({u"a"_s, u"b"_s, u"c"_s}));
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&list);
        QAccessibleInterface *b = interface->child(1);
        const QAccessible::Id id = QAccessible::uniqueId(b);
        list.setCurrentRow(1);
        model.set(rowsNamed({u"new"_s, u"a"_s, u"b"_s, u"c"_s}));
        QCOMPARE(interface->indexOfChild(b), 2);
        QCOMPARE(interface->child(2), b);
        QCOMPARE(interface->focusChild(), b);
        QVERIFY(b->state().focused);
        QCOMPARE(b->rect().topLeft(), list.viewport()->mapToGlobal(list.rectOf(2).topLeft()));
        QTest::keyClick(&list, Qt::Key_Delete);
        QVERIFY(!QAccessible::accessibleInterface(id));
        QCOMPARE(interface->focusChild()->text(QAccessible::Name), u"c"_s);
        QCOMPARE(interface->childCount(), 3);
    }

    void painting_ends_whether_or_not_the_rows_fill_the_view()
    {
        for (int count = 1; count <= 20; ++count) {
            auto &model = *new PlainModel;
            PlainList list(model);
            model.set(QList<PlainRow>(rowsOfAllHeights(1, 60)).first(count));
            QTest::qWait(20);
            PaintCounter paints(*list.viewport());
            QTest::qWait(20);
            QVERIFY2(paints.count < 3, qPrintable(QString::number(count)));
        }
    }
};

QTEST_MAIN(RowListTest)
#include "tst_rowlist.moc"
