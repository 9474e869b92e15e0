#pragma once

#include <QWidget>

/// One line above the field that tells what the draft will become besides its text, and lets that be dropped.
class ComposerBar : public QWidget
{
    Q_OBJECT

public:
    /// @p dismissHelp is the tooltip of the button that drops it.
    ComposerBar(const QString &symbol, const QString &dismissHelp, QWidget *parent = nullptr);

    void setText(const QString &text);
    [[nodiscard]] const QString &text() const { return m_text; }

Q_SIGNALS:
    void dismissed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
    QString m_text;
};
