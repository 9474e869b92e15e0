#include "ui/ComposerField.h"

#include <QInputMethodEvent>

void ComposerField::inputMethodEvent(QInputMethodEvent *event)
{
    m_isComposing = !event->preeditString().isEmpty();
    QLineEdit::inputMethodEvent(event);
}

void ComposerField::keyPressEvent(QKeyEvent *event)
{
    if (!m_isComposing)
        QLineEdit::keyPressEvent(event);
}

void ComposerField::focusOutEvent(QFocusEvent *event)
{
    m_isComposing = false; // the input method gives up, or commits, what it had
    QLineEdit::focusOutEvent(event);
}
