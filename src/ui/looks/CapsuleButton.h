#pragma once

#include <QPushButton>

/// A text button in the capsule shape of the composer's field, which it replaces.
class CapsuleButton final : public QPushButton
{
    Q_OBJECT

public:
    explicit CapsuleButton(const QString &text, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
