// What all lists of the panel have in common, on a list of plain rows.
#include "ui/lists/RowListAccessible.h"
#include "ui/lists/RowListView.h"
#include "ui/lists/RowModel.h"
#include "ui/looks/Design.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVariantAnimation>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {
/// A header where the name begins with a hash sign.
struct PlainRow {
    QString name;
    QString text;
    bool operator==(const PlainRow &) const = default;
};
QString rowKey(const PlainRow &row)
{
    return row.name;
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
    PlainModel &rows;

    PlainList()
        : PlainList(*new PlainModel)
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
        return currentRow() < 0 ? QString() : rows.row(currentRow()).name;
    }
    [[nodiscard]] QRect rectOfName(const QString &name) const
    {
        for (int row = 0; row < rows.rowCount(); ++row) {
            if (rows.row(row).name == name)
                return rectOf(row);
        }
        return {};
    }

protected:
    QList<Action> actionsOf(int row) override
    {
        const auto remove = [this, row] {
            QList<PlainRow> remaining = rows.rows();
            remaining.remove(row);
            rows.set(remaining);
        };
        return {{u"remove"_s, Qt::Key_Delete, remove}};
    }

private:
    explicit PlainList(PlainModel &model)
        : RowListView(model)
        , rows(model)
    {
    }
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

    /// @p moved is in all.
    static void turnTheWheel(QPoint pixels, int angle, int turns, int moved)
    {
        for (const int direction : {1, -1}) { // up at first, into rows that have only been estimated
            PlainList list;
            list.rows.set(rowsOfAllHeights(100, 600));
            list.scrollTo(300);
            list.grab();
            int sum = 0;
            for (int i = 0; i < turns; ++i) {
                const int row = direction > 0 ? list.firstRowInView() : list.lastRowInView();
                const int before = list.rectOf(row).top();
                QWheelEvent event({5, 5}, list.viewport()->mapToGlobal(QPointF(5, 5)), direction * pixels,
                    {0, direction * angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(
                    i % 2 == 0 ? list.viewport() : static_cast<QWidget *>(list.verticalScrollBar()), &event);
                const int after = list.rectOf(row).top();
                sum += after - before;
                if (moved % turns == 0)
                    QCOMPARE(after - before, direction * moved / turns);
                if (i % 3 == 0)
                    list.grab();
            }
            QVERIFY2(std::abs(sum - direction * moved) <= 1, qPrintable(QString::number(sum)));
        }
    }

    static void jumpToAndFro(const QString &script, int distance, bool isChanging)
    {
        PlainList list;
        const QString text = script.repeated(2000 / script.size() + 1);
        QList<PlainRow> rows;
        for (int i = 0; i < 10000; ++i) {
            const bool isHeader = i % 9 == 0;
            const int length = i % 4 == 0 ? 1 + i * 37 % 2000 : 1 + i * 37 % 90;
            rows.append(
                {isHeader ? u"#%1"_s.arg(i) : QString::number(i), isHeader ? u"day"_s : text.first(length)});
        }
        list.rows.set(rows);
        auto *scrolling = list.findChild<QVariantAnimation *>(u"scrolling"_s);
        auto *flash = list.findChild<QVariantAnimation *>(u"flash"_s);
        const int page = list.viewport()->height();
        for (int i = 0; i < 6; ++i) {
            const int target = (500 + i / 2 * 7 + (i % 2) * distance) % 10000; // there and back
            const QString name = QString::number(target);
            const auto rowOfTarget = [&] {
                int row = 0;
                while (row < list.rows.rowCount() && list.rows.row(row).name != name
                       && list.rows.row(row).name != u'#' + name)
                    ++row;
                return list.rows.index(row);
            };
            list.jumpTo(rowOfTarget);
            for (const int time : {100, 250, 400, 550, 600}) {
                scrolling->setCurrentTime(time);
                list.grab();
                if (isChanging) { // some replace all rows in between
                    rows.prepend({u"new%1"_s.arg(rows.size()), u"new"_s});
                    if (time == 400)
                        rows.removeLast();
                    rows.insert(4 + time, {u"in%1"_s.arg(rows.size()), text.first(time)});
                    if (time < 600)
                        list.rows.set(rows);
                }
            }
            const QRect rect = list.rectOf(rowOfTarget().row());
            const bool isHigh = rect.height() > page - 2 * Design::headerHeight;
            QCOMPARE(isHigh ? rect.top() : (rect.top() + rect.bottom() + 1 - page) / 2,
                isHigh ? Design::headerHeight : 0);
            QCOMPARE(flash->state(), QVariantAnimation::Running);
        }
    }

private Q_SLOTS:
    void initTestCase() { RowListAccessible::install(); }

    void keys_walk_the_entries_and_leave_at_the_ends()
    {
        PlainList list;
        QList<PlainRow> rows = rowsNamed({u"#x"_s, u"a"_s, u"b"_s, u"#y"_s, u"c"_s});
        for (int i = 0; i < 30; ++i)
            rows.append({QString::number(i), QString::number(i)});
        list.rows.set(rows);
        QSignalSpy left(&list, &RowListView::left);
        const auto afterPressing = [&list](std::initializer_list<Qt::Key> keys) {
            for (const Qt::Key key : keys)
                QTest::keyClick(&list, key);
            return list.current();
        };
        list.enter();
        QCOMPARE(list.current(), u"a"_s);
        QCOMPARE(afterPressing({Qt::Key_Down, Qt::Key_Down}), u"c"_s);
        QCOMPARE(afterPressing({Qt::Key_Up}), u"b"_s);
        QCOMPARE(afterPressing({Qt::Key_End}), u"29"_s);
        QVERIFY(list.viewport()->rect().contains(list.rectOfName(u"29"_s)));
        QCOMPARE(afterPressing({Qt::Key_Home}), u"a"_s);
        QCOMPARE(afterPressing({Qt::Key_PageDown, Qt::Key_PageUp}), u"a"_s);
        QCOMPARE(afterPressing({Qt::Key_A}), u"a"_s); // no search by what is typed
        list.rows.set(
            {{u"a"_s, u"a"_s}, {u"high"_s, QString(2000, u'字')}, {u"#y"_s, u"y"_s}, {u"b"_s, u"b"_s}});
        for (int i = 0; i < 9 && list.current() != u"b"_s; ++i)
            afterPressing({Qt::Key_PageDown});
        QCOMPARE(list.current(), u"b"_s);
        for (int i = 0; i < 9 && list.current() != u"a"_s; ++i)
            afterPressing({Qt::Key_PageUp});
        QCOMPARE(list.current(), u"a"_s);
        QCOMPARE(left.count(), 0);
        afterPressing({Qt::Key_Up});
        QCOMPARE(left.count(), 1);
    }

    void the_current_row_stays_with_its_row_and_passes_to_the_one_below()
    {
        PlainList list;
        list.rows.set(rowsNamed({u"a"_s, u"b"_s, u"#x"_s, u"c"_s, u"d"_s}));
        list.setCurrentRow(1);
        list.rows.set(rowsNamed({u"#n"_s, u"new"_s, u"a"_s, u"b"_s, u"#x"_s, u"c"_s, u"d"_s}));
        QCOMPARE(list.current(), u"b"_s);
        QStringList after;
        for (int i = 0; i < 5; ++i) {
            QTest::keyClick(&list, Qt::Key_Delete);
            after.append(list.current());
        }
        QCOMPARE(after, (QStringList{u"c"_s, u"d"_s, u"a"_s, u"new"_s, QString()}));
    }

    void what_holds_a_row_keeps_it_while_others_come_go_and_move()
    {
        const QString all = u"abcdefghijklmnopqrstuvwxyz"_s;
        const auto rowsOf = [](const QString &names) {
            QList<PlainRow> rows;
            for (const QChar name : names)
                rows.append({name, QString(200, u'字')});
            return rows;
        };
        QString scattered;
        for (const QChar name : all)
            scattered.append(name).append(name.toUpper());
        QString reversed = all;
        std::reverse(reversed.begin(), reversed.end());
        const std::pair<QString, int> after[] = {
            {u"NabcdefghijklnopqrstuvwxyzM"_s, 3}, // and how many runs are inserted and removed
            {u"yabcdefghijklmnopqrstuvwxz"_s, 2},
            {u"abcdefghijlmnopqrstuvwxyzk"_s, 2},
            {scattered, 2},
            {reversed, 2},
        };
        for (const auto &[names, runs] : after) {
            PlainList list;
            const QAbstractItemModelTester tester(
                &list.rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
            list.rows.set(rowsOf(all));
            list.scrollTo(10);
            list.setCurrentRow(10);
            list.grab();
            const QString first = list.rows.row(list.firstRowInView()).name;
            const QRect rect = list.rectOfName(first);
            QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&list);
            QAccessibleInterface *k = interface->child(10);
            QSignalSpy inserted(&list.rows, &QAbstractItemModel::rowsInserted);
            QSignalSpy removed(&list.rows, &QAbstractItemModel::rowsRemoved);
            list.rows.set(rowsOf(names));
            QCOMPARE(list.rows.rows(), rowsOf(names));
            QCOMPARE(inserted.count() + removed.count(), runs);
            QCOMPARE(list.current(), u"k"_s);
            QCOMPARE(interface->indexOfChild(k), names.indexOf(u'k'));
            list.grab();
            QCOMPARE(list.rectOfName(first), rect);
        }
    }

    void rows_in_view_stay_where_they_are()
    {
        PlainList list;
        list.rows.set(rowsOfAllHeights(100, 300));
        list.grab();
        // Scrolled up into rows that have only been estimated: each row moves by exactly as much.
        list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum() / 2);
        list.grab();
        for (int i = 0; i < 60; ++i) {
            const int row = list.firstRowInView() + 1;
            const QString name = list.rows.row(row).name;
            const int y = list.rectOf(row).top();
            list.verticalScrollBar()->setValue(list.verticalScrollBar()->value() - 20);
            list.grab();
            QCOMPARE(list.rectOfName(name).top(), y + 20);
        }
        const QString name = list.rows.row(list.firstRowInView()).name;
        const QRect rect = list.rectOfName(name);
        list.rows.set(rowsOfAllHeights(90, 310));
        list.grab();
        QCOMPARE(list.rectOfName(name), rect);
        list.verticalScrollBar()->setValue(0);
        list.rows.set(rowsOfAllHeights(80, 320)); // at the newest the list stays there
        QCOMPARE(list.rectOf(0).top(), 0);
    }

    void a_jump_ends_in_the_middle_whatever_lies_between()
    {
        for (const QString &script : {u"words "_s, u"笔记本里的字"_s, u"买 milk 和面包 "_s}) {
            for (const int distance : {1, 100, 9000}) {
                jumpToAndFro(script, distance, false);
                jumpToAndFro(script, distance, true);
            }
        }
    }

    void a_jump_near_the_ends_goes_as_far_as_the_list()
    {
        PlainList list;
        list.rows.set(rowsOfAllHeights(1, 300));
        auto *scrolling = list.findChild<QVariantAnimation *>(u"scrolling"_s);
        const auto rectAfterJump = [&](int row) {
            list.jumpTo([&, row] { return list.rows.index(row); });
            scrolling->setCurrentTime(scrolling->duration());
            list.grab();
            return list.rectOf(row);
        };
        const int last = list.rows.rowCount() - 1;
        QCOMPARE(rectAfterJump(last).bottom() + 1, list.viewport()->height() - 2 * Design::grid);
        QCOMPARE(rectAfterJump(0).top(), 0);
    }

    void equal_turns_of_the_wheel_move_the_rows_equally()
    {
        const int notch = QApplication::wheelScrollLines() * Design::headerHeight;
        turnTheWheel({}, 120, 10, 10 * notch);
        turnTheWheel({}, 15, 80, 10 * notch);
        turnTheWheel({}, 1, 360, 3 * notch); // the finest
        turnTheWheel({0, 3}, 40, 100, 300);  // a touchpad
    }

    void a_dragged_thumb_leads_to_the_same_rows_and_to_both_ends()
    {
        PlainList list;
        QList<PlainRow> rows = rowsOfAllHeights(1, 400);
        for (PlainRow &row : rows)
            row.text.replace(u'字', u'i'); // not as high as estimated
        rows.append({u"last"_s, QString(1900, u'字')});
        list.rows.set(rows);
        list.grab();
        QScrollBar &bar = *list.verticalScrollBar();
        const int maximum = bar.maximum();
        bar.setSliderDown(true);
        const auto placeAt = [&](int position) {
            bar.setSliderPosition(position);
            list.grab();
            const int row = list.rowAt({20, 200});
            return std::pair(row, list.rectOf(row).top());
        };
        QList<std::pair<int, int>> places;
        for (int i = 1; i < 20; ++i)
            places.append(placeAt(maximum * i / 20));
        QVERIFY(
            std::is_sorted(places.begin(), places.end(), [](auto a, auto b) { return a.first < b.first; }));
        placeAt(maximum);
        QCOMPARE(bar.maximum(), maximum);
        QCOMPARE(list.rectOfName(u"last"_s).bottom() + 1, list.viewport()->height() - 2 * Design::grid);
        for (int i = 19; i > 0; --i) {
            const auto [row, top] = placeAt(maximum * i / 20);
            QCOMPARE(row, places[i - 1].first);
            QVERIFY(std::abs(top - places[i - 1].second) <= 1);
        }
        placeAt(0);
        QCOMPARE(list.rectOf(0).top(), 0);
        bar.setSliderDown(false);
        list.scrollToEnd(1);
        QCOMPARE(bar.value(), bar.maximum());
        list.grab();
        QCOMPARE(bar.value(), bar.maximum());
        QVERIFY(bar.maximum() < maximum);
    }

    void a_row_higher_than_the_view_is_read_to_its_end()
    {
        PlainList list;
        QList<PlainRow> rows = rowsNamed({u"#x"_s, u"a"_s, u"long"_s, u"b"_s, u"tail"_s});
        rows[2].text = rows[4].text = QString(1500, u'字');
        list.rows.set(rows);
        list.grab();
        const auto steps = [&](int row, int direction) {
            int count = 0;
            for (; list.scrollWithin(row, direction) && count < 100; ++count)
                list.grab();
            return count;
        };
        list.scrollTo(2);
        QCOMPARE(list.rectOf(2).top(), Design::headerHeight);
        const int pages = steps(2, 1);
        QVERIFY(pages >= list.rectOf(2).height() / list.viewport()->height());
        QCOMPARE(list.rectOf(2).bottom() + 1, list.viewport()->height() - Design::fadingEdge);
        QCOMPARE(steps(2, -1), pages);
        QCOMPARE(list.rectOf(2).top(), Design::headerHeight);
        QCOMPARE(steps(3, 1), 0);
        list.scrollTo(3);
        QCOMPARE(list.rectOf(3).bottom() + 1, list.viewport()->height() - Design::fadingEdge);
        list.scrollTo(4);
        QVERIFY(steps(4, 1) > 0); // which ends at the end of the list
        QCOMPARE(list.verticalScrollBar()->value(), list.verticalScrollBar()->maximum());
    }

    void what_is_read_stays_when_the_list_is_made_narrower()
    {
        PlainList list;
        list.rows.set(rowsOfAllHeights(1, 300));
        list.scrollTo(200);
        list.grab();
        const QPoint reading(20, Design::headerHeight + 1);
        const int row = list.rowAt(reading);
        for (const QSize size : {QSize(250, 400), QSize(600, 300), QSize(340, 400)}) {
            list.resize(size);
            list.grab();
            QCOMPARE(list.rowAt(reading), row);
        }
    }

    void an_interface_that_a_screen_reader_holds_follows_its_row()
    {
        PlainList list;
        list.rows.set(rowsNamed({u"a"_s, u"b"_s, u"c"_s}));
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&list);
        QAccessibleInterface *b = interface->child(1);
        const QAccessible::Id id = QAccessible::uniqueId(b);
        list.setCurrentRow(1);
        list.rows.set(rowsNamed({u"new"_s, u"a"_s, u"b"_s, u"c"_s}));
        QCOMPARE(interface->indexOfChild(b), 2);
        QCOMPARE(interface->child(2), b);
        QCOMPARE(interface->focusChild(), b);
        QVERIFY(b->state().focused);
        QCOMPARE(b->rect().topLeft(), list.viewport()->mapToGlobal(list.rectOf(2).topLeft()));
        QTest::keyClick(&list, Qt::Key_Delete);
        QVERIFY(!QAccessible::accessibleInterface(id));
        QCOMPARE(interface->focusChild()->text(QAccessible::Name), u"c"_s);
        QCOMPARE(interface->childCount(), 3);
        list.rows.set(rowsOfAllHeights(1, 60));
        const auto shows = [interface](int row) {
            const QAccessible::State state = interface->child(row)->state();
            return !state.invisible && !state.offscreen;
        };
        QVERIFY(shows(list.lastRowInView()) && !shows(list.lastRowInView() + 1));
        list.hide();
        QVERIFY(!shows(0));
    }

    void painting_ends_whether_or_not_the_rows_fill_the_view()
    {
        for (int count = 1; count <= 20; ++count) {
            PlainList list;
            list.rows.set(QList<PlainRow>(rowsOfAllHeights(1, 60)).first(count));
            QTest::qWait(20);
            PaintCounter paints(*list.viewport());
            QTest::qWait(20);
            QVERIFY2(paints.count < 3, qPrintable(QString::number(count)));
        }
    }
};

QTEST_MAIN(RowListTest)
#include "tst_rowlist.moc"
