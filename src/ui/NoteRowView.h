#pragma once

#include <QStyledItemDelegate>
#include <QUuid>

#include <optional>

class TimelineModel;

/// Paints the rows of the timeline: day headers and notes.
class NoteRowView final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit NoteRowView(const TimelineModel &model, QObject *parent = nullptr);

    void setEditingID(std::optional<QUuid> id) { m_editingID = id; }
    void setFlashID(std::optional<QUuid> id) { m_flashID = id; }
    [[nodiscard]] std::optional<QUuid> flashID() const { return m_flashID; }

    /// The height of a row that is as wide as the option's rectangle.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

private:
    const TimelineModel &m_model;
    std::optional<QUuid> m_editingID;
    std::optional<QUuid> m_flashID;
};
