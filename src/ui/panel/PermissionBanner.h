#pragma once

#include <QWidget>

class QLabel;

/// Tells that notifications are not allowed, and where to allow them.
class PermissionBanner final : public QWidget
{
    Q_OBJECT

public:
    explicit PermissionBanner(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void colour();

    QLabel *m_text = nullptr;
};
