#include "ui/lists/RowGeometry.h"

#include <QTest>

#include <algorithm>
#include <numeric>
#include <random>

using Heights = std::vector<int>;

using Change = void (*)(RowGeometry &);

namespace {
constexpr int page = 400;

/// @p heights, measured but for those that are negative, which are estimates.
RowGeometry geometryOf(const Heights &heights)
{
    RowGeometry geometry;
    Heights estimates;
    std::transform(heights.begin(), heights.end(), std::back_inserter(estimates),
        [](int height) { return std::abs(height); });
    geometry.insert(0, estimates);
    for (size_t row = 0; row < heights.size(); ++row) {
        if (heights[row] > 0)
            geometry.setHeight(int(row), heights[row]);
    }
    return geometry;
}
} // namespace

class RowGeometryTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_row_begins_where_the_one_above_ends()
    {
        const RowGeometry geometry = geometryOf({28, 34, 400, 1});
        QCOMPARE(geometry.top(0), 0);
        QCOMPARE(geometry.top(2), 62);
        QCOMPARE(geometry.bottom(2), 462);
        QCOMPARE(geometry.top(geometry.count()), 463);
        const std::pair<int, int> rows[] = {
            {-5, 0}, {0, 0}, {27, 0}, {28, 1}, {61, 1}, {62, 2}, {461, 2}, {462, 3}, {463, 3}, {9999, 3}};
        for (const auto &[y, row] : rows)
            QCOMPARE(geometry.rowAt(y), row);
        QCOMPARE(RowGeometry().rowAt(0), -1);
        QCOMPARE(RowGeometry().top(0), 0);
    }

    void the_rows_in_view_stay_when_others_come_go_or_are_measured_data()
    {
        QTest::addColumn<Heights>("heights");
        QTest::addColumn<int>("offset");
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("expected"); // offset
        const auto row = [](const char *name, const Heights &heights, int offset, Change change,
                             int expected) {
            QTest::newRow(name) << heights << offset << change << expected;
        };
        const Heights five{100, 100, 100, 100, 100};
        row(
            "inserted above", five, 250,
            [](RowGeometry &g) {
                g.insert(0, {30, 40});
            },
            320);
        row(
            "inserted just above the top row", five, 250, [](RowGeometry &g) { g.insert(2, {30}); }, 280);
        row(
            "inserted below the top row", five, 250, [](RowGeometry &g) { g.insert(3, {30}); }, 250);
        row(
            "inserted at the newest", five, 0, [](RowGeometry &g) { g.insert(0, {30}); }, 0);
        row(
            "removed above", five, 250, [](RowGeometry &g) { g.remove(0, 2); }, 50);
        row(
            "the top row removed", five, 250, [](RowGeometry &g) { g.remove(2, 1); }, 200);
        row(
            "removed from above down to the end", five, 250, [](RowGeometry &g) { g.remove(1, 4); }, 0);
        row(
            "all removed", five, 250, [](RowGeometry &g) { g.remove(0, 5); }, 0);
        row(
            "measured above", {-100, 100, 100}, 150, [](RowGeometry &g) { g.setHeight(0, 340); }, 390);
        row(
            "the top row measured", {100, -100, 100}, 150, [](RowGeometry &g) { g.setHeight(1, 340); }, 390);
        row(
            "the only row in view measured", {-900}, 250, [](RowGeometry &g) { g.setHeight(0, 700); }, 250);
        row(
            "measured below", {100, 100, -100}, 150, [](RowGeometry &g) { g.setHeight(2, 340); }, 150);
        row(
            "estimated anew", {100, 100, 100}, 150,
            [](RowGeometry &g) {
                g.reset({50, 50, 50});
            },
            100);
    }
    void the_rows_in_view_stay_when_others_come_go_or_are_measured()
    {
        QFETCH(Heights, heights);
        QFETCH(int, offset);
        QFETCH(int, expected);
        QFETCH(Change, change);
        RowGeometry geometry = geometryOf(heights);
        geometry.setOffset(offset, page);
        change(geometry);
        QCOMPARE(geometry.offset(), expected);
    }

    void an_offset_shows_a_row_or_centers_it_or_goes_on_within_it()
    {
        RowGeometry geometry = geometryOf({100, 100, 100, 100, 100, 100, 360, 1000, 100, 100});
        constexpr RowGeometry::View view{page, 28, 20};
        struct Case {
            int offset;
            int row;
            int toShow;
            int toCenter;
            int down;
            int up;
        };
        for (const Case &each : {Case{250, 2, 172, 50, 250, 250}, Case{250, 4, 250, 250, 250, 250},
                 Case{250, 5, 250, 350, 250, 250}, Case{350, 6, 572, 572, 580, 350},
                 Case{575, 6, 575, 572, 580, 572}, Case{580, 6, 580, 572, 580, 572},
                 Case{600, 7, 932, 932, 932, 600}, Case{932, 7, 932, 932, 1232, 932},
                 Case{1232, 7, 1232, 932, 1532, 932}, Case{1532, 7, 1532, 932, 1580, 1232},
                 Case{1580, 7, 1580, 932, 1580, 1280}, Case{1900, 7, 932, 932, 1900, 1580},
                 Case{932, 8, 1680, 1810, 932, 932}}) {
            geometry.setOffset(each.offset, page);
            QCOMPARE(geometry.offsetToShow(each.row, view), each.toShow);
            QCOMPARE(geometry.offsetToCenter(each.row, view), each.toCenter);
            QCOMPARE(geometry.offsetWithin(each.row, view, 300), each.down);
            QCOMPARE(geometry.offsetWithin(each.row, view, -300), each.up);
        }
    }

    void what_was_read_is_found_again_in_rows_of_other_heights()
    {
        const RowGeometry before = geometryOf({100, 1000, 100});
        const RowGeometry after = geometryOf({300, 100, 200});
        const std::pair<int, int> places[] = {{0, 0}, {50, 150}, {100, 300}, {600, 350}, {1095, 400},
            {1100, 400}, {1150, 500}, {1200, 600}, {1208, 608}};
        for (const auto &[y, expected] : places)
            QCOMPARE(after.yOf(before, y), expected);
    }

    void a_random_walk_agrees_with_plain_sums()
    {
        std::mt19937 random(7);
        const auto below = [&random](int end) { return int(random() % unsigned(end)); };
        RowGeometry geometry;
        Heights heights;        // as they are, or are estimated
        std::vector<int> names; // of the rows, to find the anchor by
        int nextName = 0;
        const auto topOf = [&heights](int row) {
            return std::accumulate(heights.begin(), heights.begin() + row, 0);
        };
        for (int step = 0; step < 5000; ++step) {
            const int count = int(heights.size());
            const int end = topOf(count);
            // The row whose top is the first within the view is the one that must not move.
            const int offset = geometry.offset();
            int kept = -1;
            int keptY = 0;
            for (int row = 0; row < count && kept < 0; ++row) {
                if (offset > 0 && geometry.isMeasured(row) && topOf(row + 1) > offset
                    && topOf(row) < offset + page) {
                    kept = names[size_t(row)];
                    keptY = topOf(row) - offset;
                }
            }
            geometry.setOffset(offset, page);

            bool mayMove = offset == 0;
            const int kind = count == 0 ? 0 : count > 80 ? 5 : below(6);
            if (kind <= 1) {
                const int first = below(count + 1);
                Heights estimates(size_t(1 + below(4)));
                for (int &each : estimates)
                    each = 1 + below(400);
                geometry.insert(first, estimates);
                heights.insert(heights.begin() + first, estimates.begin(), estimates.end());
                for (size_t i = 0; i < estimates.size(); ++i)
                    names.insert(names.begin() + first, nextName++); // in whatever order
            } else if (kind <= 3) {
                const int row = below(count);
                const int height = 1 + below(400);
                geometry.setHeight(row, height);
                heights[size_t(row)] = height;
            } else if (kind == 4) {
                const int to = below(end);
                geometry.setOffset(to, page);
                QCOMPARE(geometry.offset(), to);
                mayMove = true;
            } else {
                const int first = below(count);
                const int removed = 1 + below(std::min(8, count - first));
                geometry.remove(first, removed);
                heights.erase(heights.begin() + first, heights.begin() + first + removed);
                names.erase(names.begin() + first, names.begin() + first + removed);
            }

            QCOMPARE(geometry.count(), int(heights.size()));
            for (int row = 0; row <= geometry.count(); row += 1 + below(9))
                QCOMPARE(geometry.top(row), topOf(row));
            if (geometry.count() > 0) {
                const int y = below(topOf(geometry.count()));
                const int row = geometry.rowAt(y);
                QVERIFY(topOf(row) <= y && y < topOf(row + 1));
            }
            const auto where = std::find(names.begin(), names.end(), kept);
            if (mayMove || kept < 0 || where == names.end())
                continue;
            const int row = int(where - names.begin());
            if (topOf(row) - keptY >= 0) // else the list begins below the top of the view
                QCOMPARE(topOf(row) - geometry.offset(), keptY);
        }
    }
};

QTEST_APPLESS_MAIN(RowGeometryTest)
#include "tst_rowgeometry.moc"
