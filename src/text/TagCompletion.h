#pragma once

#include "foundation/TextRange.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <optional>

namespace TagCompletion {
/// The part of a tag that has been typed.
struct Token {
    TextRange range; ///< from after the "#" to the caret
    QString prefix;  ///< the text in the range; may be empty
    bool operator==(const Token &) const = default;
};

/// The tag fragment that ends at the caret, or nothing. @p cursor counts UTF-16 units. "#ab cd|" has none.
[[nodiscard]] std::optional<Token> activeToken(QStringView draft, qsizetype cursor);
} // namespace TagCompletion

/// The tags offered for completion while one is typed.
class TagCompletionState final : public QObject
{
    Q_OBJECT

public:
    struct Applied {
        QString text;
        qsizetype cursor = 0; ///< right after the tag, in UTF-16 units
        bool operator==(const Applied &) const = default;
    };

    explicit TagCompletionState(QObject *parent = nullptr);
    /// The instance constructed last, while it exists.
    [[nodiscard]] static TagCompletionState *active() { return s_active; }

    [[nodiscard]] const QStringList &candidates() const { return m_candidates; } ///< at most five
    [[nodiscard]] qsizetype selection() const { return m_selection; }
    [[nodiscard]] bool isActive() const { return m_token.has_value(); }
    [[nodiscard]] std::optional<QString> selectedCandidate() const;

    /// @p tags without "#", in the order in which they are offered. The first update after an apply() is
    /// skipped, because apply() itself has caused it.
    void update(QStringView draft, qsizetype cursor, const QStringList &tags);
    void moveSelection(int step); ///< wraps around
    /// Nothing when the list is not active, or @p text is shorter than the draft it was updated for.
    std::optional<Applied> apply(const QString &candidate, const QString &text);
    void dismiss();

Q_SIGNALS:
    void changed();

private:
    static QPointer<TagCompletionState> s_active;

    QStringList m_candidates;
    qsizetype m_selection = 0;
    std::optional<TagCompletion::Token> m_token; ///< set while active
    bool m_suppressNextUpdate = false;
};
