#include "ui/composer/ComposerView.h"

#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "reminders/ReminderDetector.h"
#include "text/L10n.h"
#include "text/LocalFile.h"
#include "text/NoteFormatting.h"
#include "text/PageTitleFetching.h"
#include "text/WebLink.h"
#include "ui/composer/ComposerBar.h"
#include "ui/composer/ComposerField.h"
#include "ui/composer/SuggestionList.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/WidgetRole.h"
#include "ui/panel/PanelState.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QPainter>
#include <QUrl>
#include <QVBoxLayout>

#include <limits>

ComposerView::ComposerView(NoteStore &store, PanelState &state, const DateDetecting &detector,
    PageTitleFetching &titles, const Clock &clock, QWidget *parent)
    : QWidget(parent)
    , m_store(store)
    , m_state(state)
    , m_detector(detector)
    , m_titles(titles)
    , m_clock(clock)
    , m_suggestions(new SuggestionList(m_completion, this))
    , m_editBar(new ComposerBar(QStringLiteral("pencil"), L10n::text("放弃修改"), this))
    , m_quoteBar(new ComposerBar(QStringLiteral("text.quote"), L10n::text("取消引用"), this))
    , m_reminderBar(new ComposerBar(QStringLiteral("bell"), L10n::text("本次不创建提醒"), this))
    , m_field(new ComposerField(this))
{
    m_editBar->setObjectName(QStringLiteral("editBar"));
    m_editBar->setText(L10n::text("编辑中…"));
    m_quoteBar->setObjectName(QStringLiteral("quoteBar"));
    m_reminderBar->setObjectName(QStringLiteral("reminderBar"));
    m_field->setObjectName(QStringLiteral("composerField"));
    m_field->setFrame(false);
    m_field->setFont(NoteStyle::font());
    m_field->setFixedHeight(Design::fieldHeight);
    m_field->setMaxLength(std::numeric_limits<int>::max()); // pasted text is never truncated silently
    QPalette colors = m_field->palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    m_field->setPalette(colors);
    setFocusProxy(m_field);
    WidgetRole::set(*this, QAccessible::Client);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, Design::edge);
    layout->setSpacing(0);
    layout->addWidget(m_suggestions);
    layout->addWidget(m_editBar);
    layout->addWidget(m_quoteBar);
    layout->addWidget(m_reminderBar);
    auto *capsule = new QHBoxLayout;
    capsule->setContentsMargins(2 * Design::edge, 0, 2 * Design::edge, 0);
    capsule->addWidget(m_field);
    layout->addLayout(capsule);
    updatePlaceholder();

    connect(m_field, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_field->setFont(NoteStyle::fontFor(text, NoteStyle::font()));
        m_state.setDraft(text);
    });
    connect(m_field, &QLineEdit::cursorPositionChanged, this, [this](int, int caret) {
        if (caret != m_completedCaret && m_field->text() == m_state.draft())
            updateCompletion();
    });
    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::returnPressed, this, &ComposerView::submit);
    connect(m_suggestions, &SuggestionList::chosen, this, &ComposerView::applyCandidate);
    connect(m_editBar, &ComposerBar::dismissed, &m_state, [this] { m_state.setDraft({}); });
    connect(m_quoteBar, &ComposerBar::dismissed, &m_state, [this] { m_state.setQuoting({}); });
    connect(m_reminderBar, &ComposerBar::dismissed, this, [this] {
        m_suppressReminder = true;
        updateReminderPreview();
    });
    connect(&m_state, &PanelState::draftChanged, this, &ComposerView::draftDidChange);
    connect(&m_state, &PanelState::editingIDChanged, this, [this] {
        updatePlaceholder();
        updateBars();
        updateReminderPreview();
    });
    // An edit of a note that is gone would be lost: its draft becomes a new note.
    connect(&m_store, &NoteStore::notesChanged, this, [this] {
        if (const auto id = m_state.editingID(); id && !m_store.note(*id))
            m_state.setEditingID({});
    });
    connect(&m_state, &PanelState::quotingChanged, this, &ComposerView::updateBars);
    connect(&m_state, &PanelState::modeChanged, this, [this] {
        updatePlaceholder();
        updateCompletion();
        updateBars();
        updateReminderPreview();
    });
    connect(&m_state, &PanelState::composerFocusRequested, this, &ComposerView::focusAtEnd);
}

bool ComposerView::isFilterOnly() const
{
    return m_state.mode() == PanelMode::Tags;
}

void ComposerView::draftDidChange()
{
    const QString &draft = m_state.draft();
    if (m_field->text() != draft) {
        m_completedCaret = draft.size(); // where the caret will be
        m_field->replaceAll(draft);
    }
    if (draft.isEmpty()) {
        m_state.setEditingID({});
        m_state.setQuoting({});
        m_suppressReminder = false;
    }
    updateCompletion();
    updateReminderPreview();
}

// Tag completion

void ComposerView::updateCompletion()
{
    if (isFilterOnly())
        m_completion.dismiss();
    else
        m_completion.update(m_state.draft(), m_field->cursorPosition(), m_store.tags());
    m_completedCaret = m_field->cursorPosition();
}

void ComposerView::applyCandidate(const QString &candidate)
{
    const auto applied = m_completion.apply(candidate, m_state.draft());
    if (!applied)
        return;
    if (applied->text == m_state.draft())
        updateCompletion(); // skipped, as the one after a change is
    m_state.setDraft(applied->text);
    m_completedCaret = applied->cursor; // what has just been completed is not offered again
    m_field->setCursorPosition(int(applied->cursor));
}

bool ComposerView::eventFilter(QObject *watched, QEvent *event)
{
    // While an input method is composing, keys belong to it.
    if (event->type() == QEvent::KeyPress && !isComposing()
        && handleKey(static_cast<QKeyEvent *>(event)->key()))
        return true;
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::eventFilter(watched, event);
}

bool ComposerView::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!m_completion.isActive())
            return false;
        if (const auto candidate = m_completion.selectedCandidate())
            applyCandidate(*candidate);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (m_completion.isActive())
            m_completion.moveSelection(key == Qt::Key_Up ? -1 : 1);
        else
            Q_EMIT listRequested();
        return true;
    default:
        return false;
    }
}

// What is typed elsewhere

bool ComposerView::takeKey(QKeyEvent &key)
{
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool isCharacter =
        !(key.modifiers() & commands) && !key.text().isEmpty() && QChar::isPrint(key.text().toUcs4().first());
    if (!isEnabled() || (!isCharacter && !key.matches(QKeySequence::Paste)))
        return false;
    m_field->setFocus();
    QCoreApplication::sendEvent(m_field, &key);
    return true;
}

void ComposerView::takeInput(QInputMethodEvent &event)
{
    if (!event.commitString().isEmpty())
        m_field->setFocus();
    QCoreApplication::sendEvent(m_field, &event);
    QGuiApplication::inputMethod()->update(Qt::ImCursorRectangle); // which the field does only with the focus
}

void ComposerView::answerFor(const QWidget &asker, QInputMethodQueryEvent &query) const
{
    QCoreApplication::sendEvent(m_field, &query);
    const QPointF offset = asker.mapFromGlobal(m_field->mapToGlobal(QPointF()));
    for (const auto each : {Qt::ImCursorRectangle, Qt::ImAnchorRectangle, Qt::ImInputItemClipRectangle})
        query.setValue(each, query.value(each).toRectF().translated(offset));
}

// The bars

bool ComposerView::isEditing() const
{
    return m_state.editingID() && !isFilterOnly();
}

void ComposerView::updateBars()
{
    m_editBar->setVisible(isEditing());
    const auto &quoting = m_state.quoting();
    if (quoting) {
        m_quoteBar->setText(quoting->text);
        m_quoteBar->setAccessibleName(L10n::text("引用 %@", QStringList{quoting->text}));
    }
    m_quoteBar->setVisible(quoting && !isFilterOnly());
}

void ComposerView::timeDidPass()
{
    updateReminderPreview();
}

std::optional<ParsedReminder> ComposerView::detectedReminder() const
{
    return ReminderDetector::detect(m_state.draft(), m_clock.now(), m_clock.calendar(), m_detector);
}

void ComposerView::updateReminderPreview()
{
    const bool isOff = isFilterOnly() || m_state.editingID() || m_suppressReminder;
    const auto reminder = isOff ? std::nullopt : detectedReminder();
    if (reminder) {
        const Instant now = m_clock.now();
        if (reminder->fireAt > now) {
            m_reminderBar->setText(
                NoteFormatting::reminderTimeString(reminder->fireAt, now, m_clock.calendar()),
                reminder->content);
        } else {
            m_reminderBar->setText(L10n::text("时间已过，回车仅保存笔记"));
        }
    }
    m_reminderBar->setVisible(reminder.has_value());
}

bool ComposerView::isComposing() const
{
    return m_field->isComposing();
}

void ComposerView::submit()
{
    if (isFilterOnly())
        return;
    // The order of the cases decides.
    const QString draft = m_state.draft();
    if (const auto editingID = m_state.editingID()) {
        m_store.update(*editingID, draft);
        m_suppressReminder = true; // or the bar would show between the end of the edit and that of the draft
        m_state.setEditingID({});
    } else if (m_state.quoting()) {
        m_store.add(draft, m_state.quoting());
    } else if (const auto address = WebLink::detect(draft)) {
        addWebLink(draft, *address);
    } else if (const auto path = LocalFile::detect(draft)) {
        addFileLink(*path);
    } else {
        std::optional<ParsedReminder> reminder;
        if (!m_suppressReminder)
            reminder = detectedReminder();
        // A time that has passed makes a plain note, as announced in the bar.
        if (reminder && reminder->fireAt <= m_clock.now())
            reminder.reset();
        m_store.add(draft, {}, {}, reminder);
    }
    m_state.setQuoting({});
    m_field->setText({}); // without undo, since the text is a note now
    m_suppressReminder = false;
}

void ComposerView::addWebLink(const QString &draft, const QString &address)
{
    const auto note = m_store.add(draft, {}, address);
    // The context is the store, which outlives the panel.
    m_titles.fetchTitle(address, &m_store, [&store = m_store, note = *note](const auto &title) {
        if (title)
            store.applyLinkTitle(*title, note.id, note.text);
    });
}

void ComposerView::addFileLink(const QString &path)
{
    const QString name = QFileInfo(QDir::cleanPath(path)).fileName();
    m_store.add(name.isEmpty() ? path : name, {}, QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded()));
}

void ComposerView::updatePlaceholder()
{
    if (isFilterOnly())
        m_field->setPlaceholderText(L10n::text("输入即筛选标签"));
    else if (m_state.editingID())
        m_field->setPlaceholderText(L10n::text("编辑中，回车保存修改"));
    else
        m_field->setPlaceholderText(L10n::text("输入即筛选，回车保存"));
    m_field->setAccessibleName(isFilterOnly() ? L10n::text("筛选标签") : L10n::text("笔记"));
}

void ComposerView::focusAtEnd()
{
    m_field->setFocus();
    m_field->end(false);
}

void ComposerView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const bool hasFocus = m_field->hasFocus();
    m_capsules[hasFocus][isEditing()].paint(painter, *this, Qt::transparent, [&](QPainter &picture) {
        const QPen outline(NoteStyle::color(palette(), hasFocus ? Design::focusOutline : Design::hairline),
            hasFocus ? Design::focusWidth : 1);
        const qreal inset = outline.widthF() / 2;
        const QRectF capsule = QRectF(m_field->geometry())
                                   .adjusted(-Design::edge, 0, Design::edge, 0)
                                   .adjusted(inset, inset, -inset, -inset);
        picture.setPen(outline);
        picture.setBrush(
            NoteStyle::color(palette(), isEditing() ? Design::editingGround : Design::fieldGround));
        picture.drawRoundedRect(capsule, capsule.height() / 2, capsule.height() / 2);
    });
}
