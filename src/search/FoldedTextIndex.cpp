#include "search/FoldedTextIndex.h"

#include "foundation/CaseFolding.h"

bool FoldedTextIndex::contains(QUuid id, const QString &text, QStringView foldedQuery)
{
    auto found = m_folded.constFind(id);
    if (found == m_folded.cend())
        found = m_folded.insert(id, CaseFolding::folded(text));
    return found->contains(foldedQuery);
}
