#pragma once

#include <QToolButton>

/// A flat button that shows one of the symbols in the colour of small text.
class BarButton final : public QToolButton
{
    Q_OBJECT

public:
    /// @p help is its tooltip and its name for those who listen to the screen.
    BarButton(const QString &symbol, const QString &help, QWidget *parent = nullptr);

    void setHelp(const QString &help);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
};
