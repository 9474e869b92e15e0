#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Many terms, made ready to be looked for at a place in a text: a tree of their UTF-16 units, laid out flat.
class TermTree
{
public:
    /// @p terms in ascending order of their units, each once, none empty.
    explicit TermTree(const QStringList &terms);

    /// Calls @p visit(length, number) for each term that @p text begins with, the shortest first; the number
    /// is the term's place in the list.
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
    /// The number of the term that is the whole text; -1 for none.
    [[nodiscard]] int find(QStringView text) const;

private:
    struct Node {
        char16_t unit = 0;
        quint16 childCount = 0;
        quint32 firstChild = 0; ///< the children stand side by side, in ascending order
        qint32 term = -1;
    };
    [[nodiscard]] const Node *child(const Node &node, char16_t unit) const;

    std::vector<Node> m_nodes;
};
