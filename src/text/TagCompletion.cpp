#include "text/TagCompletion.h"

#include "foundation/CaseFolding.h"
#include "foundation/Characters.h"

QPointer<TagCompletionState> TagCompletionState::s_active;

std::optional<TagCompletion::Token> TagCompletion::activeToken(QStringView draft, qsizetype cursor)
{
    for (qsizetype end = cursor; end > 0;) {
        const qsizetype start = Characters::startOfPrevious(draft, end);
        const QStringView character = draft.sliced(start, end - start);
        if (character == u"#")
            return Token{{end, cursor}, draft.sliced(end, cursor - end).toString()};
        if (character == u"@" || character.front().isSpace())
            return std::nullopt;
        end = start;
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
    const bool isThere = m_isActive && m_selection >= 0 && m_selection < m_candidates.size();
    return isThere ? std::optional(m_candidates[m_selection]) : std::nullopt;
}

void TagCompletionState::update(QStringView draft, qsizetype cursor, const QStringList &tags)
{
    constexpr qsizetype mostOffered = 5;
    if (std::exchange(m_suppressNextUpdate, false))
        return;
    const auto token = TagCompletion::activeToken(draft, cursor);
    QStringList candidates;
    if (token) {
        const QString prefix = CaseFolding::folded(token->prefix);
        for (const QString &tag : tags) {
            if (candidates.size() < mostOffered && CaseFolding::folded(tag).startsWith(prefix))
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
    m_isActive = true;
    Q_EMIT changed();
}

void TagCompletionState::moveSelection(int step)
{
    if (!m_isActive || m_candidates.isEmpty())
        return;
    m_selection = (m_selection + step + m_candidates.size()) % m_candidates.size();
    Q_EMIT changed();
}

std::optional<TagCompletionState::Applied> TagCompletionState::apply(
    const QString &candidate, const QString &text)
{
    if (!m_isActive || !m_token)
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
    m_isActive = false;
    m_candidates.clear();
    m_selection = 0;
    m_token.reset();
    Q_EMIT changed();
}
