#pragma once

#include "ui/lists/RowLayout.h"

#include <QCache>
#include <QPalette>
#include <QStyledItemDelegate>

class RowModel;

/// Paints the rows of a list: headers and entries.
class RowDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit RowDelegate(const RowModel &model, QObject *parent = nullptr);
    ~RowDelegate() override;

    /// How a row is marked beside what it shows.
    struct Marks {
        QColor ground; ///< behind it; an invalid one for none
        RowPart hovered;
    };

    [[nodiscard]] const RowLayout &layout(int row, int width, const QPalette &palette) const;
    void paintRow(
        QPainter &painter, const QRect &place, int row, const Marks &marks, const QPalette &palette) const;
    void paintHeader(
        QPainter &painter, const QRect &place, const QString &text, const QPalette &palette) const;

private:
    /// What a layout follows from.
    struct Key {
        RowContent content;
        int width = 0;
        bool isDark = false;
        bool operator==(const Key &) const = default;
    };
    friend size_t qHash(const Key &key, size_t seed = 0)
    {
        return qHashMulti(seed, key.content.text, key.content.lead, key.content.query, key.width);
    }

    const RowModel &m_model;
    /// Of the rows in view and near it: breaking a text into lines takes longer than painting it.
    mutable QCache<Key, RowLayout> m_layouts;
};
