#include "ui/ContentView.h"

#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "ui/ComposerView.h"
#include "ui/Design.h"
#include "ui/NoteListView.h"
#include "ui/NoteStyle.h"
#include "ui/TimelineModel.h"

#include <QLabel>
#include <QVBoxLayout>

ContentView::ContentView(NoteStore &notes, ReminderStore &reminders, const DateDetecting &detector,
    PageTitleFetching &titles, const Clock &clock, QWidget *parent)
    : QWidget(parent)
    , m_reminders(reminders)
    , m_model(new TimelineModel(notes, reminders, clock, this))
    , m_timeline(new NoteListView(notes, reminders, m_state, *m_model, this))
    , m_composer(new ComposerView(notes, m_state, detector, titles, clock, this))
{
    setFocusProxy(m_composer);

    auto *title = new QLabel(L10n::text("笔记"), this);
    title->setTextFormat(Qt::PlainText);
    title->setFont(NoteStyle::headerFont());
    title->setFixedHeight(Design::topBarHeight);
    title->setIndent(Design::edge);
    QPalette colors = title->palette();
    colors.setColor(QPalette::WindowText, NoteStyle::color(palette()));
    title->setPalette(colors);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 0, 1, 0);
    layout->setSpacing(0);
    layout->addWidget(title);
    layout->addWidget(m_timeline, 1);
    layout->addSpacing(2 * Design::grid);
    layout->addWidget(m_composer);

    connect(&m_state, &PanelState::openNote, this, &ContentView::openNote);
}

bool ContentView::isComposing() const
{
    return m_composer->isComposing();
}

void ContentView::openNote(QUuid id)
{
    m_state.setJumpTargetID(id);
}

void ContentView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_reminders.pruneExpired();
}
