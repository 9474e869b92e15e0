#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// A trie over the UTF-16 units of many terms, stored as a flat array.
class TermTree
{
public:
    /// @p terms must be sorted by their units, without duplicates and empty terms.
    explicit TermTree(const QStringList &terms);

    /// Calls @p visit(length, number) for each term that is a prefix of @p text, shortest first; the number
    /// is the index of the term in the list.
    template <typename Visit>
    void prefixesOf(QStringView text, Visit visit) const
    {
        const Node *node = &m_nodes.front();
        for (qsizetype length = 1; length <= text.size(); ++length) {
            node = child(*node, text[length - 1].unicode());
            if (!node)
                return;
            if (node->term >= 0)
                visit(length, node->term);
        }
    }
    /// The number of the term equal to the whole text, or -1.
    [[nodiscard]] int find(QStringView text) const;

private:
    struct Node {
        char16_t unit = 0;
        quint16 childCount = 0;
        quint32 firstChild = 0; ///< the children are adjacent, in ascending order
        qint32 term = -1;
    };
    [[nodiscard]] const Node *child(const Node &node, char16_t unit) const;

    std::vector<Node> m_nodes;
};
