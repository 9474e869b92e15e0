#pragma once

#include "ui/lists/RowLayout.h"

#include <QCache>

/// The layouts of the rows in view and near it: breaking a text into lines takes longer than painting it.
class RowLayoutCache final
{
public:
    /// Valid until the next call.
    [[nodiscard]] const RowLayout &layout(const RowContent &content, int width, const QPalette &palette);

private:
    /// All that a layout depends on.
    struct Key {
        RowContent content;
        int width = 0;
        bool isDark = false;
        bool operator==(const Key &) const = default;
    };
    friend size_t qHash(const Key &key, size_t seed = 0)
    {
        return qHashMulti(seed, key.content.text, key.content.lead, key.content.query, key.width);
    }

    QCache<Key, RowLayout> m_layouts{200};
};
