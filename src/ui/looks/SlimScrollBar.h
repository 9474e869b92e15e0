#pragma once

#include <QScrollBar>

/// A scroll bar that shows only its handle.
class SlimScrollBar final : public QScrollBar
{
    Q_OBJECT

public:
    explicit SlimScrollBar(QWidget *parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
