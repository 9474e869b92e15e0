#pragma once

#include <QToolButton>

/// A flat button with a symbol in the colour of small text.
class BarButton final : public QToolButton
{
    Q_OBJECT

public:
    /// @p name is its accessible name, and its tooltip until another is set.
    BarButton(const QString &symbol, const QString &name, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
};
