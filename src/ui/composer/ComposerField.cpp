#include "ui/composer/ComposerField.h"

#include "ui/looks/MenuLooks.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

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
    // insert() removes line breaks, but a note that has some keeps them while it is edited.
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

void ComposerField::insertAsOneLine(QString text)
{
    std::replace_if(text.begin(), text.end(), isLineBreak, u'\n');
    insert(text.split(u'\n', Qt::SkipEmptyParts).join(u' '));
}

void ComposerField::pasteAsOneLine()
{
    insertAsOneLine(QGuiApplication::clipboard()->text());
}

void ComposerField::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction *action : menu->actions()) {
        if (action->text().startsWith(QLineEdit::tr("&Paste"))) {
            action->disconnect(this);
            connect(action, &QAction::triggered, this, &ComposerField::pasteAsOneLine);
        }
    }
    MenuLooks::apply(*menu);
    menu->popup(event->globalPos());
}

void ComposerField::dropEvent(QDropEvent *event)
{
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    insertAsOneLine(event->mimeData()->text());
    setFocus(); // what is typed next goes on there
    event->acceptProposedAction();
}

void ComposerField::mouseReleaseEvent(QMouseEvent *event)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    insertAsOneLine(clipboard->text(QClipboard::Selection));
}

void ComposerField::focusInEvent(QFocusEvent *event)
{
    // The Tab key would select the text, for the next letter to replace.
    const bool isByTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QFocusEvent entered(event->type(), isByTab ? Qt::OtherFocusReason : event->reason());
    QLineEdit::focusInEvent(&entered);
}

void ComposerField::focusOutEvent(QFocusEvent *event)
{
    m_isComposing = false; // the input method cancels or commits
    QLineEdit::focusOutEvent(event);
}
