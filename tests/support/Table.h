#pragma once

#include <QTest>

#include <array>
#include <vector>

/// Rows of texts: what is asked, in all columns but the last, and there what is answered.
template <size_t columns>
class Table final
{
public:
    using Row = std::array<const char *, columns>;

    Table(std::initializer_list<Row> rows)
        : m_rows(rows)
    {
    }

    /// Fails with a line for each row where @p answer is another.
    template <typename Answer>
    void check(const Answer &answer) const
    {
        QStringList faults;
        for (const Row &row : m_rows) {
            const QString given = [&]<size_t... column>(std::index_sequence<column...>)
            {
                return answer(QString::fromUtf8(row[column])...);
            }
            (std::make_index_sequence<columns - 1>());
            if (given != QString::fromUtf8(row.back()))
                faults.append(QString::fromUtf8(row.front()) + QStringLiteral("  =>  ") + given);
        }
        QVERIFY2(faults.isEmpty(), qUtf8Printable(faults.join(u'\n')));
    }

private:
    std::vector<Row> m_rows;
};
