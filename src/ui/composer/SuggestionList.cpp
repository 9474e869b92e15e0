#include "ui/composer/SuggestionList.h"

#include "text/TagCompletion.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

#include <QMouseEvent>
#include <QPainter>

SuggestionList::SuggestionList(const TagCompletionState &completion, QWidget *parent)
    : QWidget(parent)
    , m_completion(completion)
{
    setObjectName(QStringLiteral("suggestions"));
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setVisible(false);
    connect(&m_completion, &TagCompletionState::changed, this, &SuggestionList::completionDidChange);
}

void SuggestionList::completionDidChange()
{
    setFixedHeight(int(m_completion.candidates().size()) * Design::suggestionHeight + Design::grid);
    setAccessibleName(suggestions().value(m_completion.selection()));
    setVisible(m_completion.isActive());
    update();
}

QStringList SuggestionList::suggestions() const
{
    QStringList shown;
    for (const QString &candidate : m_completion.candidates())
        shown.append(u'#' + candidate);
    return shown;
}

qsizetype SuggestionList::rowAt(int y) const
{
    const qsizetype row = y / Design::suggestionHeight;
    return y >= 0 && row < m_completion.candidates().size() ? row : -1;
}

void SuggestionList::mouseMoveEvent(QMouseEvent *event)
{
    m_hovered = rowAt(event->position().toPoint().y());
    update();
}

void SuggestionList::leaveEvent(QEvent *)
{
    m_hovered = -1;
    update();
}

void SuggestionList::mouseReleaseEvent(QMouseEvent *event)
{
    const qsizetype row = rowAt(event->position().toPoint().y());
    if (event->button() == Qt::LeftButton && row >= 0)
        Q_EMIT chosen(m_completion.candidates()[row]);
}

void SuggestionList::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(NoteStyle::font());
    const QStringList shown = suggestions();
    for (qsizetype row = 0; row < shown.size(); ++row) {
        const QRect rect(Design::edge, int(row) * Design::suggestionHeight, width() - 2 * Design::edge,
            Design::suggestionHeight);
        const bool isSelected = row == m_completion.selection();
        if (isSelected || row == m_hovered) {
            NoteStyle::fillRounded(painter, rect, Design::rowRadius,
                NoteStyle::color(palette(), isSelected ? Design::editingGround : Design::hoverGround));
        }
        painter.setPen(NoteStyle::color(palette(), Design::tagText));
        NoteStyle::drawLine(painter, rect.adjusted(Design::edge, 0, -Design::edge, 0), shown[row]);
    }
}
