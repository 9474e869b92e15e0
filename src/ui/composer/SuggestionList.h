#pragma once

#include <QStringList>
#include <QWidget>

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

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void completionDidChange();
    [[nodiscard]] qsizetype rowAt(int y) const; ///< -1 outside the rows

    const TagCompletionState &m_completion;
    qsizetype m_hovered = -1;
};
