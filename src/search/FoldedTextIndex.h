#pragma once

#include <QHash>
#include <QString>
#include <QUuid>

/// Tells which texts contain a query, case aside. A text is folded once, when it is first asked about, and
/// kept until it is dropped.
class FoldedTextIndex
{
public:
    /// @p foldedQuery as CaseFolding::folded() makes it.
    [[nodiscard]] bool contains(QUuid id, const QString &text, QStringView foldedQuery);
    /// To be called whenever the text under this id has changed or gone.
    void drop(QUuid id) { m_folded.remove(id); }

private:
    QHash<QUuid, QString> m_folded;
};
