#pragma once

#include <QWidget>

/// Shows above the field which note the next one quotes, and lets that be dropped.
class QuoteBar final : public QWidget
{
    Q_OBJECT

public:
    explicit QuoteBar(QWidget *parent = nullptr);

    void setText(const QString &text);
    [[nodiscard]] const QString &text() const { return m_text; }

Q_SIGNALS:
    void dismissed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
};
