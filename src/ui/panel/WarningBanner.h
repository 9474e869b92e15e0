#pragma once

#include <QWidget>

class QLabel;

/// A warning across the panel: a symbol, and a text of as many lines as it needs.
class WarningBanner final : public QWidget
{
    Q_OBJECT

public:
    WarningBanner(const QString &symbol, const QString &text, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void applyColor();

    QString m_symbol;
    QLabel *m_text = nullptr;
};
