#pragma once

#include <QPersistentModelIndex>
#include <QVariantAnimation>

#include <functional>

/// The way of a list to one of its rows, and the light on the row once it is there. A new jump ends the one
/// before, and its light.
class RowJump final : public QObject
{
    Q_OBJECT

public:
    explicit RowJump(QObject *parent = nullptr);

    /// @p target is asked for again when the model has replaced the row.
    void start(std::function<QModelIndex()> target);
    void stop() { m_way.stop(); }                ///< the light stays
    [[nodiscard]] int row();                     ///< -1 when it is gone
    void lightUp();                              ///< once for each jump
    [[nodiscard]] double lightOn(int row) const; ///< its strength, up to 1

Q_SIGNALS:
    void moved(double share); ///< by this share of what is left of the way
    void lightChanged();

private:
    std::function<QModelIndex()> m_findTarget;
    QPersistentModelIndex m_target;
    double m_progress = 0; ///< up to 1
    bool m_isLit = false;  ///< or has been
    QVariantAnimation m_way{this};
    QVariantAnimation m_light{this};
};
