#pragma once

#include "ui/RowLayout.h"

#include <QCache>
#include <QPalette>
#include <QStyledItemDelegate>
#include <QUuid>

#include <optional>

class TimelineModel;
struct TimelineRow;

/// Paints the rows of the timeline: day headers and notes.
class NoteRowView final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit NoteRowView(const TimelineModel &model, QObject *parent = nullptr);
    ~NoteRowView() override;

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
    /// What a note's layout follows from.
    struct LayoutKey {
        QUuid note;
        RowContent content;
        int width = 0;
        bool isDark = false;
        bool operator==(const LayoutKey &) const = default;
    };
    friend size_t qHash(const LayoutKey &key, size_t seed = 0)
    {
        return qHashMulti(seed, key.note, key.content.query, key.width);
    }
    [[nodiscard]] const RowLayout &layout(const TimelineRow &row, int width, const QPalette &palette) const;

    const TimelineModel &m_model;
    /// Of the rows in view and near it: breaking a text into lines takes longer than painting it.
    mutable QCache<LayoutKey, RowLayout> m_layouts;
    std::optional<QUuid> m_editingID;
    std::optional<QUuid> m_flashID;
};
