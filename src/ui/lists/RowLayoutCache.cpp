#include "ui/lists/RowLayoutCache.h"

#include "ui/looks/NoteStyle.h"

const RowLayout &RowLayoutCache::layout(const RowContent &content, int width, const QPalette &palette)
{
    const Key key{content, width, NoteStyle::isDark(palette)};
    if (const RowLayout *cached = m_layouts.object(key))
        return *cached;
    auto *layout = new RowLayout(content, width, palette);
    m_layouts.insert(key, layout); // takes ownership, and drops the one unused for longest
    return *layout;
}
