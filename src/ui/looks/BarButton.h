#pragma once

#include <QToolButton>

/// A flat button with a symbol in the colour of small text.
class BarButton final : public QToolButton
{
    Q_OBJECT

public:
    /// @p help is its tooltip and its accessible name.
    BarButton(const QString &symbol, const QString &help, QWidget *parent = nullptr);

    void setHelp(const QString &help);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
};
