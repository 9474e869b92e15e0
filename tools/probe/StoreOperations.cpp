#include "probe/Operations.h"

#include "foundation/Clock.h"
#include "model/Days.h"
#include "model/NoteSearch.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {
/// Shows nothing, and writes down what it is asked.
class ProbeScheduler final : public NotificationScheduling
{
public:
    explicit ProbeScheduler(const Clock &clock)
        : m_clock(clock)
    {
    }

    void requestAuthorization(
        int options, std::function<void(bool granted, const QString &error)> completion) override
    {
        calls.append(QJsonObject{{u"call"_s, u"requestAuthorization"_s}, {u"options"_s, options}});
        completion(status == AuthorizationStatus::Authorized, {});
    }
    void add(const NotificationRequest &request) override
    {
        const Calendar::TimeOfDay time = m_clock.calendar().timeOfDay(request.minute);
        calls.append(QJsonObject{{u"call"_s, u"add"_s}, {u"id"_s, request.identifier},
            {u"title"_s, request.title}, {u"body"_s, request.body}, {u"noteID"_s, request.noteID},
            {u"date"_s, Answer::of(m_clock.calendar().day(request.minute)).toString()
                            + QString::asprintf("T%02d:%02d", time.hour, time.minute)}});
    }
    void removePendingNotificationRequests(const QStringList &identifiers) override
    {
        calls.append(
            QJsonObject{{u"call"_s, u"remove"_s}, {u"ids"_s, QJsonArray::fromStringList(identifiers)}});
    }
    void notificationAuthorizationStatus(std::function<void(AuthorizationStatus)> completion) override
    {
        completion(status);
    }

    AuthorizationStatus status = AuthorizationStatus::NotDetermined;
    QJsonArray calls;

private:
    const Clock &m_clock;
};

/// Returns the vectors that the request lists for texts.
class ProbeEmbeddings final : public SentenceEmbeddingProviding
{
public:
    std::optional<QList<double>> sentenceVector(const QString &text) override
    {
        const auto found = vectors.constFind(text);
        return found == vectors.cend() ? std::nullopt : std::optional(*found);
    }

    QHash<QString, QList<double>> vectors;
};

QJsonValue daySections(Arguments &arguments)
{
    const QList<Note> notes = arguments.notes();
    const QString query = arguments.optionalText(u"query"_s).value_or(QString());
    const Calendar calendar = arguments.calendar();
    QList<SemanticCandidate> texts;
    for (const Note &note : notes)
        texts.append({QUuid::createUuid(), note.text}); // the request may repeat an id
    LexicalIndex index;
    index.setOrder(texts);
    const QList<qsizetype> indexes =
        arguments.flag(u"trash"_s) ? Days::newestFirst(notes) : index.containing(query);

    QJsonArray answers;
    for (const DaySection &section : Days::group(notes, indexes, calendar)) {
        QJsonArray ids;
        for (const qsizetype note : section.notes)
            ids.append(Answer::of(notes[note].id));
        answers.append(QJsonObject{{u"day"_s, Answer::of(calendar.day(section.day))}, {u"ids"_s, ids}});
    }
    return answers;
}

/// The two stores on a folder, and the steps that are done to them.
class StoreSession final
{
public:
    explicit StoreSession(Arguments &request)
        : m_folder(request.text(u"folder"_s))
        , m_clock(request.now(), request.calendar())
        , m_scheduler(m_clock)
    {
        if (request.isGood())
            open();
    }

    QJsonValue run(Arguments &step)
    {
        m_clock.set(step.now());
        static const QHash<QString, void (StoreSession::*)(Arguments &)> changes{
            {u"update"_s, &StoreSession::update},
            {u"applyLinkTitle"_s, &StoreSession::applyLinkTitle},
            {u"remove"_s, &StoreSession::remove},
            {u"restore"_s, &StoreSession::restore},
            {u"emptyTrash"_s, &StoreSession::emptyTrash},
            {u"renameTag"_s, &StoreSession::renameTag},
            {u"removeTag"_s, &StoreSession::removeTag},
            {u"setVectors"_s, &StoreSession::setVectors},
            {u"cancel"_s, &StoreSession::cancel},
            {u"cancelNote"_s, &StoreSession::cancelNote},
            {u"pruneExpired"_s, &StoreSession::pruneExpired},
            {u"setAuthorization"_s, &StoreSession::setAuthorization},
            {u"reopen"_s, &StoreSession::reopen},
            {u"detachReminders"_s, &StoreSession::detachReminders},
        };
        static const QHash<QString, QJsonValue (StoreSession::*)(Arguments &)> questions{
            {u"add"_s, &StoreSession::add},
            {u"latestReply"_s, &StoreSession::latestReply},
            {u"importNotes"_s, &StoreSession::importNotes},
            {u"tagSummaries"_s, &StoreSession::tagSummaries},
            {u"noteCount"_s, &StoreSession::noteCount},
            {u"semanticMatches"_s, &StoreSession::semanticMatches},
            {u"relatedNotes"_s, &StoreSession::relatedNotes},
            {u"cachedVectors"_s, &StoreSession::cachedVectors},
            {u"schedule"_s, &StoreSession::schedule},
            {u"hasReminder"_s, &StoreSession::hasReminder},
            {u"reminder"_s, &StoreSession::reminder},
        };
        const QString name = step.text(u"do"_s);
        if (const auto question = questions.value(name))
            return (this->*question)(step);
        if (const auto change = changes.value(name))
            (this->*change)(step);
        else
            step.fail(u"no such step: "_s + name);
        return {};
    }

    /// What there is after the last step, beside the results of the steps.
    QJsonObject answer(const QJsonArray &results) const
    {
        return {{u"steps"_s, results}, {u"notes"_s, Answer::of(m_notes->notes())},
            {u"trash"_s, Answer::of(m_notes->trash())},
            {u"reminders"_s, Answer::of(m_reminders->reminders())}, {u"scheduler"_s, m_scheduler.calls}};
    }

private:
    void open()
    {
        m_search.reset();
        m_notes.reset();
        m_reminders = std::make_unique<ReminderStore>(m_folder + u"/reminders.json"_s, m_scheduler, m_clock);
        m_notes = std::make_unique<NoteStore>(m_folder + u"/notes.json"_s, m_clock);
        m_notes->setReminderStore(m_reminders.get());
        m_search = std::make_unique<NoteSearch>(*m_notes, &m_embeddings, m_clock);
    }

    QUuid id(Arguments &step, const QString &key = u"id"_s)
    {
        const QString text = step.text(key);
        const QUuid id = m_names.contains(text) ? m_names.value(text) : QUuid::fromString(text);
        if (id.isNull())
            step.fail(u"\"%1\" is neither a UUID nor a name given before"_s.arg(key));
        return id;
    }
    void name(Arguments &step, QUuid id, const QString &key = u"as"_s)
    {
        if (const auto name = step.optionalText(key))
            m_names.insert(*name, id);
    }
    std::optional<Note> anyNote(QUuid id) const
    {
        for (const QList<Note> *list : {&m_notes->notes(), &m_notes->trash()}) {
            for (const Note &note : *list) {
                if (note.id == id)
                    return note;
            }
        }
        return std::nullopt;
    }

    QJsonValue add(Arguments &step)
    {
        std::optional<Note> quoting;
        if (step.has(u"quoting"_s)) {
            quoting = anyNote(id(step, u"quoting"_s));
            if (!quoting)
                step.fail(u"\"quoting\" names no note"_s);
        }
        std::optional<ParsedReminder> parsed;
        if (step.has(u"reminder"_s)) {
            Arguments of(step.object(u"reminder"_s));
            parsed = ParsedReminder{of.instant(u"fireAt"_s), of.text(u"content"_s)};
            if (!of.isGood())
                step.fail(u"\"reminder\": "_s + of.error());
        }
        const QString text = step.text(u"text"_s);
        const std::optional<QString> link = step.optionalText(u"link"_s);
        if (!step.isGood())
            return {};
        const auto note = m_notes->add(text, quoting, link, parsed);
        if (!note)
            return {};
        name(step, note->id);
        if (const auto made = m_reminders->reminder(note->id))
            name(step, made->id, u"reminderAs"_s);
        return Answer::of(*note);
    }
    void update(Arguments &step) { m_notes->update(id(step), step.text(u"text"_s)); }
    void applyLinkTitle(Arguments &step)
    {
        m_notes->applyLinkTitle(step.text(u"title"_s), id(step), step.text(u"replacing"_s));
    }
    void remove(Arguments &step) { m_notes->remove(id(step)); }
    void restore(Arguments &step) { m_notes->restore(id(step)); }
    void emptyTrash(Arguments &) { m_notes->emptyTrash(); }
    QJsonValue latestReply(Arguments &step) { return Answer::of(m_notes->latestReply(id(step))); }
    QJsonValue importNotes(Arguments &step)
    {
        const QList<Note> notes = step.notes();
        return step.isGood() ? QJsonValue(m_notes->importNotes(notes)) : QJsonValue();
    }
    QJsonValue tagSummaries(Arguments &)
    {
        QJsonArray answers;
        for (const TagSummary &summary : m_notes->tagSummaries())
            answers.append(QJsonObject{{u"name"_s, summary.name}, {u"count"_s, summary.count}});
        return answers;
    }
    QJsonValue noteCount(Arguments &step) { return m_notes->noteCount(step.text(u"tag"_s)); }
    void renameTag(Arguments &step)
    {
        const QString from = step.text(u"from"_s);
        const QString to = step.text(u"to"_s);
        if (step.isGood())
            m_notes->renameTag(from, to);
    }
    void removeTag(Arguments &step)
    {
        const QString tag = step.text(u"tag"_s);
        if (step.isGood())
            m_notes->removeTag(tag);
    }
    QJsonValue semanticMatches(Arguments &step)
    {
        const QString query = step.text(u"query"_s);
        const qsizetype limit = step.integer(u"limit"_s);
        QJsonArray answers;
        if (!step.isGood())
            return {};
        SemanticMatches matches = m_search->semanticMatches(query, limit);
        matches.advance();
        for (const SemanticHit &hit : matches.hits()) {
            answers.append(QJsonObject{
                {u"id"_s, Answer::of(m_notes->notes()[hit.note].id)}, {u"kind"_s, Answer::of(hit.kind)}});
        }
        return answers;
    }
    QJsonValue relatedNotes(Arguments &step)
    {
        const auto note = anyNote(id(step));
        const qsizetype limit = step.integer(u"limit"_s);
        if (!note)
            step.fail(u"\"id\" names no note"_s);
        if (!step.isGood())
            return {};
        QJsonArray answers;
        for (const Note &related : m_search->relatedNotes(*note, limit))
            answers.append(Answer::of(related.id));
        return answers;
    }
    void setVectors(Arguments &step)
    {
        const auto vectors = step.numbersByName(u"vectors"_s);
        if (!step.isGood())
            return;
        m_embeddings.vectors = vectors;
        m_search->setEmbeddingProvider(&m_embeddings);
    }
    QJsonValue cachedVectors(Arguments &)
    {
        QStringList ids;
        for (const QUuid id : m_search->cachedVectors())
            ids.append(Answer::of(id).toString());
        ids.sort();
        return Answer::of(ids);
    }
    QJsonValue schedule(Arguments &step)
    {
        const QUuid noteID = id(step, u"noteID"_s);
        const Instant fireAt = step.instant(u"fireAt"_s);
        const QString text = step.text(u"text"_s);
        const QString fullText = step.text(u"fullText"_s);
        if (!step.isGood())
            return {};
        const auto made = m_reminders->schedule(noteID, fireAt, text, fullText);
        if (made)
            name(step, made->id);
        return Answer::of(made);
    }
    void cancel(Arguments &step) { m_reminders->cancel(id(step)); }
    void cancelNote(Arguments &step) { m_reminders->cancelForNote(id(step, u"noteID"_s)); }
    void pruneExpired(Arguments &) { m_reminders->pruneExpired(); }
    void setAuthorization(Arguments &step)
    {
        const qsizetype status = step.integer(u"status"_s);
        if (status < 0 || status > 4)
            step.fail(u"\"status\" must be 0 to 4"_s);
        if (step.isGood()) {
            m_scheduler.status = AuthorizationStatus(status);
            m_reminders->refreshAuthorizationStatus();
        }
    }
    QJsonValue hasReminder(Arguments &step) { return m_reminders->hasReminder(id(step, u"noteID"_s)); }
    QJsonValue reminder(Arguments &step) { return Answer::of(m_reminders->reminder(id(step, u"noteID"_s))); }
    void reopen(Arguments &) { open(); }
    void detachReminders(Arguments &) { m_notes->setReminderStore(nullptr); }

    QString m_folder;
    FixedClock m_clock;
    ProbeScheduler m_scheduler;
    ProbeEmbeddings m_embeddings; ///< knows no text at first
    std::unique_ptr<ReminderStore> m_reminders;
    std::unique_ptr<NoteStore> m_notes;
    std::unique_ptr<NoteSearch> m_search;
    QHash<QString, QUuid> m_names;
};

QJsonValue store(Arguments &arguments)
{
    const QJsonArray steps = arguments.array(u"steps"_s);
    StoreSession session(arguments);
    if (!arguments.isGood())
        return {};
    QJsonArray results;
    for (const QJsonValue &element : steps) {
        Arguments step(element.toObject(), arguments);
        results.append(session.run(step));
        if (!step.isGood()) {
            arguments.fail(u"step %1: %2"_s.arg(results.size() - 1).arg(step.error()));
            return {};
        }
    }
    return session.answer(results);
}
} // namespace

QHash<QString, Operation> storeOperations()
{
    return {{u"daySections"_s, daySections}, {u"store"_s, store}};
}
