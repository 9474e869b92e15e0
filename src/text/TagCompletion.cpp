#include "text/TagCompletion.h"

#include "foundation/CaseFolding.h"
#include "foundation/Characters.h"
#include "text/TagEditing.h"

QPointer<TagCompletionState> TagCompletionState::s_active;

std::optional<TagCompletion::Token> TagCompletion::activeToken(QStringView draft, qsizetype cursor)
{
    const QStringView text = draft.first(cursor);
    for (qsizetype i = cursor - 1; i >= 0; --i) {
        const QChar unit = text[i];
        if (!TagEditing::endsTag(unit))
            continue;
        // Only as a whole character: in "#️⃣" the "#" is a part of another one.
        const TextRange character = Characters::at(text, i);
        if (character.start != i || (character.length() > 1 && !unit.isSpace()))
            continue;
        if (unit != u'#')
            return std::nullopt;
        return Token{{i + 1, cursor}, text.sliced(i + 1).toString()};
    }
    return std::nullopt;
}

TagCompletionState::TagCompletionState(QObject *parent)
    : QObject(parent)
{
    s_active = this;
}

std::optional<QString> TagCompletionState::selectedCandidate() const
{
    return isActive() ? std::optional(m_candidates[m_selection]) : std::nullopt;
}

void TagCompletionState::update(QStringView draft, qsizetype cursor, const QStringList &tags)
{
    constexpr qsizetype maxCandidates = 5;
    if (std::exchange(m_suppressNextUpdate, false))
        return;
    const auto token = TagCompletion::activeToken(draft, cursor);
    QStringList candidates;
    if (token) {
        const QString prefix = CaseFolding::folded(token->prefix);
        for (const QString &tag : tags) {
            if (candidates.size() < maxCandidates && CaseFolding::folded(tag).startsWith(prefix))
                candidates.append(tag);
        }
    }
    if (candidates.isEmpty()) {
        dismiss();
        return;
    }
    m_token = token;
    m_candidates = candidates;
    m_selection = 0;
    Q_EMIT changed();
}

void TagCompletionState::moveSelection(int step)
{
    if (!isActive())
        return;
    m_selection = (m_selection + step + m_candidates.size()) % m_candidates.size();
    Q_EMIT changed();
}

std::optional<TagCompletionState::Applied> TagCompletionState::apply(
    const QString &candidate, const QString &text)
{
    if (!m_token || m_token->range.end > text.size())
        return std::nullopt;
    const TextRange range = m_token->range;
    const Applied applied{
        text.first(range.start) + candidate + text.sliced(range.end), range.start + candidate.size()};
    m_suppressNextUpdate = true;
    dismiss();
    return applied;
}

void TagCompletionState::dismiss()
{
    m_candidates.clear();
    m_selection = 0;
    m_token.reset();
    Q_EMIT changed();
}
