#include "ui/ComposerField.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <algorithm>

namespace {
bool isLineBreak(QChar character)
{
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator
           || character == QChar::ParagraphSeparator;
}
} // namespace

void ComposerField::replaceAll(const QString &text)
{
    // What is inserted loses its line breaks, and a note that has some keeps them while it is edited.
    if (text.isEmpty() || std::none_of(text.begin(), text.end(), isLineBreak)) {
        selectAll();
        insert(text);
    } else {
        setText(text);
    }
}

void ComposerField::inputMethodEvent(QInputMethodEvent *event)
{
    m_isComposing = !event->preeditString().isEmpty();
    QLineEdit::inputMethodEvent(event);
}

void ComposerField::keyPressEvent(QKeyEvent *event)
{
    if (m_isComposing)
        return;
    if (event->matches(QKeySequence::Paste))
        pasteAsOneLine();
    else
        QLineEdit::keyPressEvent(event);
}

void ComposerField::pasteAsOneLine()
{
    const QString text = QGuiApplication::clipboard()->text();
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && !isLineBreak(text[i]))
            continue;
        if (i > start)
            lines.append(text.sliced(start, i - start));
        start = i + 1;
    }
    insert(lines.join(u' '));
}

void ComposerField::focusOutEvent(QFocusEvent *event)
{
    m_isComposing = false; // the input method gives up, or commits, what it had
    QLineEdit::focusOutEvent(event);
}
