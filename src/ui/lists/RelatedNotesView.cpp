#include "ui/lists/RelatedNotesView.h"

#include "model/NoteSearch.h"
#include "text/L10n.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/WidgetRole.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {
constexpr qsizetype maxRelated = 5;

/// A button with one line of a note's text, elided to its width.
class RelatedNoteButton final : public QPushButton
{
public:
    RelatedNoteButton(const QString &text, QWidget *parent)
        : QPushButton(parent)
        , m_text(text.simplified())
    {
        setAccessibleName(m_text);
        setFixedHeight(Design::fieldHeight);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        if (underMouse() || hasFocus() || isDown()) {
            NoteStyle::fillRounded(painter, rect(), 2 * Design::grid,
                NoteStyle::color(palette(), isDown() ? Design::flashGround : Design::editingGround));
        }
        if (hasFocus())
            NoteStyle::outlineFocus(painter, rect(), 2 * Design::grid, palette());
        painter.setFont(NoteStyle::font());
        painter.setPen(NoteStyle::color(palette(), Design::text));
        NoteStyle::drawLine(painter, rect().adjusted(2 * Design::grid, 0, -2 * Design::grid, 0), m_text);
    }

private:
    QString m_text;
};

QLabel *newLine(const QString &text, const QFont &font, QWidget *parent)
{
    QLabel *label = NoteStyle::newLabel(text, font, parent);
    label->setIndent(2 * Design::grid);
    label->setFixedHeight(Design::headerHeight);
    return label;
}
} // namespace

RelatedNotesView::RelatedNotesView(NoteSearch &search, const Note &note, QWidget *parent)
    : FloatingWindow(Qt::Popup | Qt::NoDropShadowWindowHint, backdropOver(*parent),
        {Design::popoverRadius, Design::popoverShadow, true}, parent)
{
    setObjectName(QStringLiteral("relatedNotes"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAccessibleName(L10n::text("相关笔记"));
    WidgetRole::set(*this, QAccessible::Dialog);
    setFixedWidth(parent->width() - 2 * Design::edge + 2 * margin());

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(
        QMargins(2 * Design::grid, Design::grid, 2 * Design::grid, 2 * Design::grid) + margin());
    layout->setSpacing(0);
    layout->addWidget(newLine(L10n::text("相关笔记"), NoteStyle::headerFont(), this));
    const QList<Note> related = search.relatedNotes(note, maxRelated);
    if (related.isEmpty()) {
        QLabel *none = newLine(L10n::text("暂无相关笔记"), NoteStyle::font(), this);
        none->setForegroundRole(QPalette::PlaceholderText);
        none->setAccessibleName(none->text());
        WidgetRole::set(*none, QAccessible::Notification);
        layout->addWidget(none);
    }
    for (const Note &each : related) {
        auto *button = new RelatedNoteButton(each.text, this);
        button->setAutoDefault(true); // pressed by Return
        if (!focusWidget())
            button->setFocus();
        connect(button, &QPushButton::clicked, this, [this, id = each.id] {
            close();
            Q_EMIT selected(id);
        });
        layout->addWidget(button);
    }
}

void RelatedNotesView::popUp(const QRect &anchor)
{
    adjustSize();
    const QRect available = parentWidget()->screen()->availableGeometry().marginsAdded(QMargins() + margin());
    const bool fitsBelow = anchor.bottom() + 1 - margin() + height() <= available.bottom();
    move(std::clamp(anchor.left() + Design::edge - margin(), available.left(), available.right() - width()),
        fitsBelow ? anchor.bottom() + 1 - margin()
                  : std::max(available.top(), anchor.top() - height() + margin()));
    show();
}
