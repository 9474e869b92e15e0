#include "search/TermTree.h"

#include <algorithm>

TermTree::TermTree(const QStringList &terms)
    : m_nodes(1)
{
    // Level by level: a node represents a range of the list whose terms have a common prefix.
    struct Range {
        qsizetype first;
        qsizetype end;
    };
    std::vector<Range> ranges{{0, terms.size()}};
    qsizetype depth = 0;
    size_t levelEnd = 1;
    for (size_t number = 0; number < m_nodes.size(); ++number) {
        if (number == levelEnd) {
            ++depth;
            levelEnd = m_nodes.size();
        }
        Range range = ranges[number];
        if (range.first < range.end && terms[range.first].size() == depth) {
            m_nodes[number].term = int(range.first);
            ++range.first;
        }
        m_nodes[number].firstChild = quint32(m_nodes.size());
        while (range.first < range.end) {
            const QChar unit = terms[range.first][depth];
            qsizetype end = range.first;
            while (end < range.end && terms[end][depth] == unit)
                ++end;
            m_nodes.push_back({unit.unicode()});
            ranges.push_back({range.first, end});
            ++m_nodes[number].childCount;
            range.first = end;
        }
    }
    m_nodes.shrink_to_fit();
}

int TermTree::find(QStringView text) const
{
    int found = -1;
    prefixesOf(text, [&](qsizetype length, int number) {
        if (length == text.size())
            found = number;
    });
    return found;
}

const TermTree::Node *TermTree::child(const Node &node, char16_t unit) const
{
    const auto first = m_nodes.begin() + node.firstChild;
    const auto end = first + node.childCount;
    const auto found = std::lower_bound(
        first, end, unit, [](const Node &each, char16_t wanted) { return each.unit < wanted; });
    return found != end && found->unit == unit ? &*found : nullptr;
}
