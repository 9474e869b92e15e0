#pragma once

#include <QStringList>
#include <QWidget>

class TagCompletionState;

/// The tags that are offered while one is typed, a row each; the chosen one is marked.
class SuggestionList final : public QWidget
{
    Q_OBJECT

public:
    explicit SuggestionList(const TagCompletionState &completion, QWidget *parent = nullptr);

    [[nodiscard]] QStringList suggestions() const; ///< as they are shown, with "#"

Q_SIGNALS:
    void chosen(const QString &candidate);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void completionDidChange();
    [[nodiscard]] qsizetype rowAt(int y) const; ///< -1 beside the rows

    const TagCompletionState &m_completion;
    qsizetype m_hovered = -1;
};
