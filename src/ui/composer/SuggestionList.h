#pragma once

#include <QStringList>
#include <QWidget>

class SuggestionRow;
class TagCompletionState;

/// The tags offered for completion, one per row; the selected one is highlighted.
class SuggestionList final : public QWidget
{
    Q_OBJECT

public:
    explicit SuggestionList(const TagCompletionState &completion, QWidget *parent = nullptr);

    [[nodiscard]] QStringList suggestions() const; ///< as shown, with "#"

Q_SIGNALS:
    void chosen(const QString &candidate);

private:
    void completionDidChange();

    const TagCompletionState &m_completion;
    QList<SuggestionRow *> m_rows; ///< at least as many as there are candidates
};
