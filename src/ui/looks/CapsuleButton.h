#pragma once

#include <QPushButton>

/// A text button in the capsule shape of the composer's field. Return presses it as Space does.
class CapsuleButton final : public QPushButton
{
    Q_OBJECT

public:
    enum class Kind {
        Plain,
        Destructive,
        Flat, ///< small, in a line of text
    };

    CapsuleButton(const QString &text, Kind kind, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Kind m_kind;
};
