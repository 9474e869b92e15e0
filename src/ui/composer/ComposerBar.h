#pragma once

#include <QWidget>

/// One line above the field about something that will be saved with the draft, and a button to drop it.
class ComposerBar final : public QWidget
{
    Q_OBJECT

public:
    /// @p dismissHelp is the tooltip of the button.
    ComposerBar(const QString &symbol, const QString &dismissHelp, QWidget *parent = nullptr);

    /// Screen readers read it out when the bar appears, and again when the title changes.
    void setText(const QString &title, const QString &content = {});

Q_SIGNALS:
    void dismissed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
    QString m_title;
    QString m_text;
};
