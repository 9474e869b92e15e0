#pragma once

#include "ui/looks/CapsuleButton.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class FloatingWindow;
class QEventLoop;
class QHBoxLayout;
class QVBoxLayout;

/// A question, a report or a page on a card over the panel, which it dims and disables. Where the panel is
/// closed, the card is a window of its own.
class Sheet final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int noAnswer = -1; ///< by Escape, or because the panel was closed

    /// Over the part of the window that @p owner is in. Without an owner it is a window of its own.
    Sheet(QWidget *owner, const QString &title, const QString &text = {});
    ~Sheet() override;
    Q_DISABLE_COPY_MOVE(Sheet)

    void setBody(QWidget *body);
    /// The button added last has the focus first.
    void addButton(const QString &text, CapsuleButton::Kind kind = CapsuleButton::Kind::Plain);
    /// Shows the sheet until it is answered, with the number of a button.
    int ask();
    void answer(int button);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void cover();
    void uncover();
    void showAlone();

    QWidget *m_behind = nullptr; ///< what it covers in the panel
    QPointer<QWidget> m_focusBefore;
    std::unique_ptr<FloatingWindow> m_window; ///< of its own; null over the panel
    QWidget *m_card = nullptr;
    QVBoxLayout *m_content = nullptr;
    QHBoxLayout *m_buttons = nullptr;
    QEventLoop *m_loop = nullptr; ///< until it is answered
    int m_answer = noAnswer;
};
