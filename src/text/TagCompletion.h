#pragma once

#include "foundation/TextRange.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <optional>

namespace TagCompletion {
/// What has been typed of a tag.
struct Token {
    TextRange range; ///< from behind the "#" to the caret
    QString prefix;  ///< what stands there; may be empty
    bool operator==(const Token &) const = default;
};

/// The tag fragment that ends at the caret, or nothing. @p cursor counts UTF-16 units. "#ab cd|" has none.
[[nodiscard]] std::optional<Token> activeToken(QStringView draft, qsizetype cursor);
} // namespace TagCompletion

/// The list of tags that is offered while one is typed.
class TagCompletionState final : public QObject
{
    Q_OBJECT

public:
    struct Applied {
        QString text;
        qsizetype cursor = 0; ///< right behind the tag, in UTF-16 units
        bool operator==(const Applied &) const = default;
    };

    explicit TagCompletionState(QObject *parent = nullptr);
    /// The one that was made last, while it exists.
    [[nodiscard]] static TagCompletionState *active() { return s_active; }

    [[nodiscard]] const QStringList &candidates() const { return m_candidates; } ///< at most five
    [[nodiscard]] qsizetype selection() const { return m_selection; }
    [[nodiscard]] bool isActive() const { return m_isActive; }
    [[nodiscard]] std::optional<QString> selectedCandidate() const;

    /// @p tags without "#", in the order in which they are offered. The one update that follows an apply() is
    /// skipped: it tells of nothing but what was applied.
    void update(QStringView draft, qsizetype cursor, const QStringList &tags);
    void moveSelection(int step); ///< from the last to the first, and back
    /// Nothing when no list is shown, or the text is shorter than the draft that it was shown for.
    std::optional<Applied> apply(const QString &candidate, const QString &text);
    void dismiss();

Q_SIGNALS:
    void changed();

private:
    static QPointer<TagCompletionState> s_active;

    QStringList m_candidates;
    qsizetype m_selection = 0;
    bool m_isActive = false;
    std::optional<TagCompletion::Token> m_token;
    bool m_suppressNextUpdate = false;
};
