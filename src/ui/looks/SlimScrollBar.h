#pragma once

#include <QScrollBar>

/// A scroll bar of which only the handle is seen.
class SlimScrollBar final : public QScrollBar
{
    Q_OBJECT

public:
    explicit SlimScrollBar(QWidget *parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
