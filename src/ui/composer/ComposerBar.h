#pragma once

#include <QWidget>

/// One line above the field about something that will be saved with the draft, and a button to drop it.
class ComposerBar final : public QWidget
{
    Q_OBJECT

public:
    /// @p dismissHelp is the tooltip of the button.
    ComposerBar(const QString &symbol, const QString &dismissHelp, QWidget *parent = nullptr);

    void setText(const QString &text);

Q_SIGNALS:
    void dismissed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
    QString m_text;
};
