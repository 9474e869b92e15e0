#pragma once

#include <QWidget>

/// Tells that notifications are not allowed, and where to allow them.
class PermissionBanner final : public QWidget
{
    Q_OBJECT

public:
    explicit PermissionBanner(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
