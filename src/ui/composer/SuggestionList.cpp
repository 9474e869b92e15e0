#include "ui/composer/SuggestionList.h"

#include "text/L10n.h"
#include "text/TagCompletion.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/WidgetRole.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

/// Is named by what it shows.
class SuggestionRow final : public QAbstractButton
{
public:
    explicit SuggestionRow(QWidget *parent)
        : QAbstractButton(parent)
    {
        setFixedHeight(Design::suggestionHeight);
        setFocusPolicy(Qt::NoFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        WidgetRole::set(*this, QAccessible::ListItem);
    }
    void show(const QString &tag, bool isSelected)
    {
        if (tag == accessibleName() && isSelected == m_isSelected)
            return;
        m_isSelected = isSelected;
        setAccessibleName(tag);
        update();
        WidgetRole::setSelected(*this, isSelected);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setFont(NoteStyle::font());
        if (m_isSelected || underMouse()) {
            NoteStyle::fillRounded(painter, rect(), Design::rowRadius,
                NoteStyle::color(palette(), m_isSelected ? Design::editingGround : Design::hoverGround));
        }
        if (m_isSelected)
            NoteStyle::outlineFocus(painter, rect(), Design::rowRadius, palette());
        painter.setPen(NoteStyle::color(palette(), Design::tagText));
        NoteStyle::drawLine(painter, rect().adjusted(Design::edge, 0, -Design::edge, 0), accessibleName());
    }

private:
    bool m_isSelected = false;
};

SuggestionList::SuggestionList(const TagCompletionState &completion, QWidget *parent)
    : QWidget(parent)
    , m_completion(completion)
{
    setObjectName(QStringLiteral("suggestions"));
    setAccessibleName(L10n::text("标签"));
    setVisible(false);
    WidgetRole::set(*this, QAccessible::List);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Design::edge, 0, Design::edge, Design::grid);
    layout->setSpacing(0);
    connect(&m_completion, &TagCompletionState::changed, this, &SuggestionList::completionDidChange);
}

void SuggestionList::completionDidChange()
{
    const QStringList shown = suggestions();
    while (m_rows.size() < shown.size()) {
        auto *row = new SuggestionRow(this);
        connect(row, &SuggestionRow::clicked, this,
            [this, number = m_rows.size()] { Q_EMIT chosen(m_completion.candidates()[number]); });
        layout()->addWidget(row);
        m_rows.append(row);
    }
    const bool wasVisible = isVisible();
    setVisible(m_completion.isActive());
    // On a low screen only those around the selected one.
    const qsizetype fitting =
        std::max(1, (window()->height() - Design::heightBesideSuggestions) / Design::suggestionHeight);
    const qsizetype first = std::max<qsizetype>(0, m_completion.selection() + 1 - fitting);
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        m_rows[row]->show(shown.value(row), m_completion.isActive() && row == m_completion.selection());
        m_rows[row]->setVisible(row >= first && row < std::min(first + fitting, shown.size()));
    }
    // What is announced last is where screen readers believe the focus to be.
    if (QWidget *field = QApplication::focusWidget(); field && wasVisible && !m_completion.isActive())
        WidgetRole::announce(*field, QAccessible::Focus);
}

QStringList SuggestionList::suggestions() const
{
    QStringList shown;
    for (const QString &candidate : m_completion.candidates())
        shown.append(u'#' + candidate);
    return shown;
}
