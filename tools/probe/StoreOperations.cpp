#include "probe/Arguments.h"
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
            {u"date"_s, Answer::day(m_clock.calendar().day(request.minute))
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

QJsonObject answer(const Reminder &reminder)
{
    return {{u"id"_s, Answer::uuid(reminder.id)}, {u"noteID"_s, Answer::uuid(reminder.noteID)},
        {u"text"_s, reminder.text}, {u"fullText"_s, reminder.fullText},
        {u"fireAt"_s, Answer::instant(reminder.fireAt)},
        {u"createdAt"_s, Answer::instant(reminder.createdAt)}};
}

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
            ids.append(Answer::uuid(notes[note].id));
        answers.append(QJsonObject{{u"day"_s, Answer::day(calendar.day(section.day))}, {u"ids"_s, ids}});
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
        static const QHash<QString, QJsonValue (StoreSession::*)(Arguments &)> steps{
            {u"add"_s, &StoreSession::add},
            {u"update"_s, &StoreSession::update},
            {u"applyLinkTitle"_s, &StoreSession::applyLinkTitle},
            {u"remove"_s, &StoreSession::remove},
            {u"restore"_s, &StoreSession::restore},
            {u"emptyTrash"_s, &StoreSession::emptyTrash},
            {u"latestReply"_s, &StoreSession::latestReply},
            {u"importNotes"_s, &StoreSession::importNotes},
            {u"tagSummaries"_s, &StoreSession::tagSummaries},
            {u"noteCount"_s, &StoreSession::noteCount},
            {u"renameTag"_s, &StoreSession::renameTag},
            {u"removeTag"_s, &StoreSession::removeTag},
            {u"semanticMatches"_s, &StoreSession::semanticMatches},
            {u"relatedNotes"_s, &StoreSession::relatedNotes},
            {u"setVectors"_s, &StoreSession::setVectors},
            {u"cachedVectors"_s, &StoreSession::cachedVectors},
            {u"schedule"_s, &StoreSession::schedule},
            {u"cancel"_s, &StoreSession::cancel},
            {u"cancelNote"_s, &StoreSession::cancelNote},
            {u"pruneExpired"_s, &StoreSession::pruneExpired},
            {u"setAuthorization"_s, &StoreSession::setAuthorization},
            {u"hasReminder"_s, &StoreSession::hasReminder},
            {u"reminder"_s, &StoreSession::reminder},
            {u"reopen"_s, &StoreSession::reopen},
            {u"detachReminders"_s, &StoreSession::detachReminders},
        };
        const QString name = step.text(u"do"_s);
        const auto found = steps.constFind(name);
        if (found == steps.cend()) {
            step.fail(u"no such step: "_s + name);
            return {};
        }
        return (this->**found)(step);
    }

    void describe(QJsonObject &answers) const
    {
        QJsonArray reminders;
        for (const Reminder &reminder : m_reminders->reminders())
            reminders.append(answer(reminder));
        answers.insert(u"notes"_s, Answer::notes(m_notes->notes()));
        answers.insert(u"trash"_s, Answer::notes(m_notes->trash()));
        answers.insert(u"reminders"_s, reminders);
        answers.insert(u"scheduler"_s, m_scheduler.calls);
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
        return Answer::note(*note);
    }
    QJsonValue update(Arguments &step)
    {
        m_notes->update(id(step), step.text(u"text"_s));
        return {};
    }
    QJsonValue applyLinkTitle(Arguments &step)
    {
        m_notes->applyLinkTitle(step.text(u"title"_s), id(step), step.text(u"replacing"_s));
        return {};
    }
    QJsonValue remove(Arguments &step)
    {
        m_notes->remove(id(step));
        return {};
    }
    QJsonValue restore(Arguments &step)
    {
        m_notes->restore(id(step));
        return {};
    }
    QJsonValue emptyTrash(Arguments &)
    {
        m_notes->emptyTrash();
        return {};
    }
    QJsonValue latestReply(Arguments &step)
    {
        const auto reply = m_notes->latestReply(id(step));
        return reply ? QJsonValue(Answer::note(*reply)) : QJsonValue();
    }
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
    QJsonValue renameTag(Arguments &step)
    {
        const QString from = step.text(u"from"_s);
        const QString to = step.text(u"to"_s);
        if (step.isGood())
            m_notes->renameTag(from, to);
        return {};
    }
    QJsonValue removeTag(Arguments &step)
    {
        const QString tag = step.text(u"tag"_s);
        if (step.isGood())
            m_notes->removeTag(tag);
        return {};
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
            answers.append(QJsonObject{{u"id"_s, Answer::uuid(m_notes->notes()[hit.note].id)},
                {u"kind"_s, Answer::kindName(hit.kind)}});
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
            answers.append(Answer::uuid(related.id));
        return answers;
    }
    QJsonValue setVectors(Arguments &step)
    {
        const auto vectors = step.numbersByName(u"vectors"_s);
        if (!step.isGood())
            return {};
        m_embeddings.vectors = vectors;
        m_search->setEmbeddingProvider(&m_embeddings);
        return {};
    }
    QJsonValue cachedVectors(Arguments &)
    {
        QStringList ids;
        for (const QUuid id : m_search->cachedVectors())
            ids.append(Answer::uuid(id));
        ids.sort();
        return QJsonArray::fromStringList(ids);
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
        if (!made)
            return {};
        name(step, made->id);
        return answer(*made);
    }
    QJsonValue cancel(Arguments &step)
    {
        m_reminders->cancel(id(step));
        return {};
    }
    QJsonValue cancelNote(Arguments &step)
    {
        m_reminders->cancelForNote(id(step, u"noteID"_s));
        return {};
    }
    QJsonValue pruneExpired(Arguments &)
    {
        m_reminders->pruneExpired();
        return {};
    }
    QJsonValue setAuthorization(Arguments &step)
    {
        const qsizetype status = step.integer(u"status"_s);
        if (status < 0 || status > 4)
            step.fail(u"\"status\" must be 0 to 4"_s);
        if (step.isGood()) {
            m_scheduler.status = AuthorizationStatus(status);
            m_reminders->refreshAuthorizationStatus();
        }
        return {};
    }
    QJsonValue hasReminder(Arguments &step) { return m_reminders->hasReminder(id(step, u"noteID"_s)); }
    QJsonValue reminder(Arguments &step)
    {
        const auto found = m_reminders->reminder(id(step, u"noteID"_s));
        return found ? QJsonValue(answer(*found)) : QJsonValue();
    }
    QJsonValue reopen(Arguments &)
    {
        open();
        return {};
    }
    QJsonValue detachReminders(Arguments &)
    {
        m_notes->setReminderStore(nullptr);
        return {};
    }

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
    QJsonObject answers{{u"steps"_s, results}};
    session.describe(answers);
    return answers;
}
} // namespace

QHash<QString, Operation> storeOperations()
{
    return {{u"daySections"_s, daySections}, {u"store"_s, store}};
}
