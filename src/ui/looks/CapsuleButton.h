#pragma once

#include <QPushButton>

/// A button with a word on it, in the shape of the field that it stands in the place of.
class CapsuleButton final : public QPushButton
{
    Q_OBJECT

public:
    explicit CapsuleButton(const QString &text, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
