#include "ui/lists/TagModel.h"

#include "foundation/CaseFolding.h"
#include "model/NoteStore.h"
#include "text/L10n.h"

QString rowKey(const TagSummary &row)
{
    return row.name;
}

TagModel::TagModel(NoteStore &notes)
    : m_notes(notes)
{
    connect(&m_notes, &NoteStore::notesChanged, this, &TagModel::refreshWhenSeen);
    TagModel::refresh();
}

void TagModel::setQuery(const QString &query)
{
    m_query = query;
    refreshWhenSeen();
}

void TagModel::refresh()
{
    const QString query = CaseFolding::folded(m_query.trimmed());
    QList<TagSummary> shown;
    for (const TagSummary &summary : m_notes.tagSummaries()) {
        if (CaseFolding::folded(summary.name).contains(query))
            shown.append(summary);
    }
    show(shown);
}

QString TagModel::text(int number) const
{
    return u'#' + row(number).name;
}

QString TagModel::help(int number) const
{
    return L10n::text("%@ 条笔记", QStringList{QString::number(row(number).count)});
}

void TagModel::fillEntry(RowContent &entry, int number) const
{
    entry.query = m_query.trimmed();
    entry.trailing = QString::number(row(number).count);
}

int TagModel::rowOf(const QString &tag) const
{
    for (int number = 0; number < rowCount(); ++number) {
        if (row(number).name == tag)
            return number;
    }
    return -1;
}
