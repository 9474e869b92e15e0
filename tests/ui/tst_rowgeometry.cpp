#include "ui/lists/RowGeometry.h"

#include <QTest>

#include <algorithm>
#include <numeric>
#include <random>

using Heights = std::vector<int>;

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
        QCOMPARE(geometry.bottom(2), 462);
        for (const auto &[y, row] : {std::pair(-5, 0), {27, 0}, {28, 1}, {463, 3}, {9999, 3}})
            QCOMPARE(geometry.rowAt(y), row);
        QCOMPARE(RowGeometry().rowAt(0), -1);
        QCOMPARE(RowGeometry().top(0), 0);
    }

    void the_offset_stays_where_no_measured_row_does()
    {
        const auto offsetAfter = [](const Heights &heights, int offset, auto change) {
            RowGeometry geometry = geometryOf(heights);
            geometry.setOffset(offset, page);
            change(geometry);
            return geometry.offset();
        };
        const Heights five(5, 100);
        QCOMPARE(offsetAfter(five, 0, [](auto &rows) { rows.insert(0, {30}); }), 0); // at the newest
        QCOMPARE(offsetAfter(five, 250, [](auto &rows) { rows.remove(1, 4); }), 0);
        QCOMPARE(offsetAfter(five, 250, [](auto &rows) { rows.remove(0, 5); }), 0);
        QCOMPARE(offsetAfter({-900}, 250, [](auto &rows) { rows.setHeight(0, 700); }), 250);
        QCOMPARE(offsetAfter({100, 100, 100}, 150, [](auto &rows) { rows.reset(Heights(3, 50)); }), 100);
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
        struct Row {
            int name; // to find the row again
            int height;
        };
        std::vector<Row> rows;
        int nextName = 0;
        const auto topOf = [&rows](int row) {
            return std::accumulate(rows.begin(), rows.begin() + row, 0,
                [](int sum, const Row &each) { return sum + each.height; });
        };
        for (int step = 0; step < 5000; ++step) {
            const int count = int(rows.size());
            const int offset = geometry.offset();
            // The first measured row in view must not move.
            int kept = -1;
            int keptY = 0;
            for (int row = 0; row < count && kept < 0; ++row) {
                if (offset > 0 && geometry.isMeasured(row) && topOf(row + 1) > offset
                    && topOf(row) < offset + page) {
                    kept = rows[size_t(row)].name;
                    keptY = topOf(row) - offset;
                }
            }
            geometry.setOffset(offset, page);

            bool mayMove = offset == 0;
            const int kind = count == 0 ? 0 : count > 80 ? 5 : below(6);
            if (kind <= 1) {
                const int first = below(count + 1);
                Heights estimates;
                std::vector<Row> inserted;
                for (int i = below(4); i >= 0; --i) {
                    estimates.push_back(1 + below(400));
                    inserted.push_back({nextName++, estimates.back()});
                }
                geometry.insert(first, estimates);
                rows.insert(rows.begin() + first, inserted.begin(), inserted.end());
            } else if (kind <= 3) {
                Row &row = rows[size_t(below(count))];
                row.height = 1 + below(400);
                geometry.setHeight(int(&row - rows.data()), row.height);
            } else if (kind == 4) {
                const int to = below(topOf(count));
                geometry.setOffset(to, page);
                QCOMPARE(geometry.offset(), to);
                mayMove = true;
            } else {
                const int first = below(count);
                const int removed = 1 + below(std::min(8, count - first));
                geometry.remove(first, removed);
                rows.erase(rows.begin() + first, rows.begin() + first + removed);
            }

            QCOMPARE(geometry.count(), int(rows.size()));
            for (int row = 0; row <= geometry.count(); row += 1 + below(9))
                QCOMPARE(geometry.top(row), topOf(row));
            if (geometry.count() > 0) {
                const int y = below(topOf(geometry.count()));
                const int row = geometry.rowAt(y);
                QVERIFY(topOf(row) <= y && y < topOf(row + 1));
            }
            const auto where = std::ranges::find(rows, kept, &Row::name);
            if (mayMove || where == rows.end())
                continue;
            const int top = topOf(int(where - rows.begin()));
            if (top - keptY >= 0) // else the list begins below the top of the view
                QCOMPARE(top - geometry.offset(), keptY);
        }
    }
};

QTEST_APPLESS_MAIN(RowGeometryTest)
#include "tst_rowgeometry.moc"
