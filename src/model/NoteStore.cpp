#include "model/NoteStore.h"

#include "foundation/Characters.h"
#include "foundation/Log.h"
#include "model/AppPaths.h"
#include "model/NoteCoding.h"
#include "model/ReminderStore.h"
#include "text/NoteHighlighting.h"
#include "text/TagEditing.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <numeric>

namespace {
constexpr qsizetype notesFile = 0;
constexpr qsizetype trashFile = 1;

QStringList filePaths(const QString &notesPath)
{
    return {notesPath, QFileInfo(notesPath).path() + QStringLiteral("/trash.json")};
}

auto withID(QUuid id)
{
    return [id](const Note &note) { return note.id == id; };
}

QList<qsizetype> allPlaces(const QList<Note> &notes)
{
    QList<qsizetype> places(notes.size());
    std::iota(places.begin(), places.end(), 0);
    return places;
}

QList<DaySection> sections(const QList<Note> &notes, const QList<NoteStore::DayPlaces> &days)
{
    QList<DaySection> sections;
    for (const NoteStore::DayPlaces &day : days) {
        DaySection section{day.day, {}};
        for (const qsizetype place : day.places)
            section.notes.append(notes[place]);
        sections.append(section);
    }
    return sections;
}

void sortNewestFirst(QList<Note> &notes)
{
    std::stable_sort(
        notes.begin(), notes.end(), [](const Note &a, const Note &b) { return a.createdAt > b.createdAt; });
}
} // namespace

NoteStore::NoteStore(const QString &filePath, const Clock &clock, QObject *parent)
    : QObject(parent)
    , m_files(filePaths(filePath))
    , m_clock(clock)
{
    load();
}

NoteStore::~NoteStore() = default;

QString NoteStore::defaultFilePath()
{
    return AppPaths::defaultFile(QStringLiteral("notes.json"));
}

void NoteStore::setReminderStore(ReminderStore *store)
{
    m_reminderStore = store;
}

void NoteStore::setEmbeddingProvider(SentenceEmbeddingProviding *provider)
{
    m_embeddingProvider = provider;
    m_search.forgetVectorless();
}

void NoteStore::load()
{
    m_files.recover();
    const auto decodeInto = [](QList<Note> &place) {
        return [&place](const QByteArray &bytes) {
            auto decoded = noteDecoder::decodeNotes(bytes);
            if (decoded)
                place = std::move(decoded.value());
            return decoded.hasValue();
        };
    };
    m_files.load(notesFile, decodeInto(m_notes));
    m_files.load(trashFile, decodeInto(m_trash));
    sortNewestFirst(m_notes);
}

void NoteStore::publishAndSave()
{
    m_isIndexUpToDate = false;
    Q_EMIT notesChanged();
    const auto encoded = [](const QList<Note> &notes) -> ByteSource {
        return [&notes](const ByteSink &sink) { noteEncoder::encode(notes, sink); };
    };
    const Outcome saved = m_files.save({encoded(m_notes), encoded(m_trash)}, m_clock.now());
    if (!saved)
        Log::line(QStringLiteral("failed to save notes: ") + saved.message());
}

void NoteStore::dropDerived(QUuid id)
{
    m_search.dropText(id);
    m_search.dropVector(id);
}

void NoteStore::tagDidChange(const QList<Note> &list, QUuid id)
{
    m_search.dropText(id);
    if (&list == &m_notes)
        m_search.dropVector(id); // a note in the trash keeps the one it had
}

std::optional<Note> NoteStore::note(QUuid id) const
{
    const auto found = std::find_if(m_notes.begin(), m_notes.end(), withID(id));
    return found == m_notes.end() ? std::nullopt : std::optional(*found);
}

std::optional<Note> NoteStore::add(const QString &text, const std::optional<Note> &quoting,
    const std::optional<QString> &link, const std::optional<ParsedReminder> &reminder)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    Note note{QUuid::createUuid(), trimmed, {}, {}, link, m_clock.now()};
    if (quoting) {
        note.quote = quoting->text;
        note.quoteID = quoting->id;
    }
    m_notes.prepend(note);
    dropDerived(note.id);
    countTagsOfNewest(note);
    publishAndSave();
    if (reminder && m_reminderStore)
        m_reminderStore->schedule(note.id, reminder->fireAt, reminder->content, trimmed);
    return note;
}

void NoteStore::update(QUuid id, const QString &text)
{
    const QString trimmed = text.trimmed();
    const auto found = std::find_if(m_notes.begin(), m_notes.end(), withID(id));
    if (trimmed.isEmpty() || found == m_notes.end())
        return;
    const QString before = std::exchange(found->text, trimmed);
    if (NoteHighlighting::tags(before) != NoteHighlighting::tags(trimmed))
        m_tagSummaries.reset();
    dropDerived(id);
    publishAndSave();
}

void NoteStore::applyLinkTitle(const QString &title, QUuid id, const QString &expected)
{
    const std::optional<Note> current = note(id);
    if (current && current->text == expected)
        update(id, title);
}

void NoteStore::remove(QUuid id)
{
    const auto found = std::find_if(m_notes.begin(), m_notes.end(), withID(id));
    if (found == m_notes.end())
        return;
    m_trash.prepend(*found);
    m_notes.erase(found);
    dropTagCounts(m_trash.first());
    dropDerived(id);
    if (m_reminderStore)
        m_reminderStore->cancelForNote(id);
    publishAndSave();
}

void NoteStore::restore(QUuid id)
{
    const auto found = std::find_if(m_trash.begin(), m_trash.end(), withID(id));
    if (found == m_trash.end())
        return;
    const Note note = *found;
    m_trash.erase(found);
    const auto earlier = std::find_if(m_notes.begin(), m_notes.end(),
        [&note](const Note &other) { return other.createdAt < note.createdAt; });
    m_notes.insert(earlier, note);
    dropTagCounts(note);
    publishAndSave();
}

void NoteStore::emptyTrash()
{
    if (m_trash.isEmpty())
        return;
    m_trash.clear();
    publishAndSave();
}

std::optional<Note> NoteStore::latestReply(QUuid id) const
{
    const auto found =
        std::find_if(m_notes.begin(), m_notes.end(), [id](const Note &note) { return note.quoteID == id; });
    return found == m_notes.end() ? std::nullopt : std::optional(*found);
}

qsizetype NoteStore::importNotes(const QList<Note> &incoming)
{
    QSet<QUuid> known;
    for (const QList<Note> &list : {m_notes, m_trash}) {
        for (const Note &note : list)
            known.insert(note.id);
    }
    QList<Note> added;
    for (const Note &note : incoming) {
        if (!known.contains(note.id)) {
            known.insert(note.id);
            added.append(note);
        }
    }
    if (added.isEmpty())
        return 0;
    m_notes += added;
    sortNewestFirst(m_notes);
    m_tagSummaries.reset();
    publishAndSave();
    return added.size();
}

void NoteStore::dropTagCounts(const Note &note)
{
    if (!NoteHighlighting::tags(note.text).isEmpty())
        m_tagSummaries.reset();
}

void NoteStore::countTagsOfNewest(const Note &note)
{
    if (!m_tagSummaries)
        return;
    // Its tags are the first now, in its order; the others follow as they were.
    QList<TagSummary> &others = *m_tagSummaries;
    QList<TagSummary> summaries;
    for (const QString &tag : NoteHighlighting::tags(note.text)) {
        const auto isNamed = [name = QStringView(tag).sliced(1)](
                                 const TagSummary &summary) { return summary.name == name; };
        if (const auto counted = std::find_if(summaries.begin(), summaries.end(), isNamed);
            counted != summaries.end()) {
            ++counted->count;
        } else if (const auto other = std::find_if(others.begin(), others.end(), isNamed);
                   other != others.end()) {
            summaries.append({other->name, other->count + 1});
            others.erase(other);
        } else {
            summaries.append({tag.sliced(1), 1});
        }
    }
    m_tagSummaries = summaries + others;
}

const QList<TagSummary> &NoteStore::tagSummaries() const
{
    if (m_tagSummaries)
        return *m_tagSummaries;
    QList<TagSummary> &summaries = m_tagSummaries.emplace();
    QHash<QString, qsizetype> indexOfName;
    for (const Note &note : m_notes) {
        for (const QString &tag : NoteHighlighting::tags(note.text)) {
            const QString name = tag.sliced(1);
            const auto found = indexOfName.constFind(name);
            if (found != indexOfName.cend()) {
                ++summaries[*found].count;
            } else {
                indexOfName.insert(name, summaries.size());
                summaries.append({name, 1});
            }
        }
    }
    return summaries;
}

QStringList NoteStore::tags() const
{
    QStringList names;
    for (const TagSummary &summary : tagSummaries())
        names.append(summary.name);
    return names;
}

qsizetype NoteStore::noteCount(const QString &tag) const
{
    const auto holdsTag = [&tag](const Note &note) { return TagEditing::occurrences(tag, note.text) > 0; };
    return std::count_if(m_notes.begin(), m_notes.end(), holdsTag)
           + std::count_if(m_trash.begin(), m_trash.end(), holdsTag);
}

void NoteStore::renameTag(const QString &from, const QString &to)
{
    const QString name = Characters::trimmedOfBlanks(to).toString();
    const bool isName = !name.isEmpty() && name != from
                        && std::none_of(name.begin(), name.end(),
                            [](QChar character) { return QStringView(u" \t#@").contains(character); });
    if (!isName)
        return;
    bool hasChanged = false;
    for (QList<Note> *list : {&m_notes, &m_trash}) {
        for (Note &note : *list) {
            if (TagEditing::occurrences(from, note.text) == 0)
                continue;
            note.text = TagEditing::replacingTag(note.text, from, name);
            tagDidChange(*list, note.id);
            hasChanged = true;
        }
    }
    if (!hasChanged)
        return;
    m_tagSummaries.reset();
    publishAndSave();
}

void NoteStore::removeTag(const QString &tag)
{
    bool hasChanged = false;
    // Takes the tag out of the notes, and the notes that this leaves empty out of the list.
    const auto takeOut = [&](QList<Note> &notes) {
        QList<Note> emptied;
        QList<Note> kept;
        for (Note &note : notes) {
            const bool holdsTag = TagEditing::occurrences(tag, note.text) > 0;
            if (holdsTag) {
                note.text = TagEditing::removingTag(note.text, tag);
                tagDidChange(notes, note.id);
                hasChanged = true;
            }
            (holdsTag && note.text.isEmpty() ? emptied : kept).append(note);
        }
        notes = kept;
        return emptied;
    };
    const QList<Note> emptied = takeOut(m_notes);
    takeOut(m_trash);
    if (!hasChanged)
        return;
    if (m_reminderStore) {
        for (const Note &note : emptied)
            m_reminderStore->cancelForNote(note.id);
    }
    m_trash = emptied + m_trash;
    m_tagSummaries.reset();
    publishAndSave();
}

QList<NoteStore::DayPlaces> NoteStore::placesByDay(
    const QList<Note> &notes, const QList<qsizetype> &places, const Calendar &calendar)
{
    QList<DayPlaces> sections;
    QHash<qint64, qsizetype> indexOfDay;
    // Notes that follow each other are mostly of one day, and to ask the calendar takes long.
    qsizetype section = -1;
    Instant dayEnd;
    for (const qsizetype place : places) {
        const Instant createdAt = notes[place].createdAt;
        if (section < 0 || createdAt < sections[section].day || createdAt >= dayEnd) {
            const Instant day = calendar.startOfDay(createdAt);
            const qint64 key = day.time_since_epoch().count();
            section = indexOfDay.value(key, sections.size());
            if (section == sections.size()) {
                indexOfDay.insert(key, section);
                sections.append({day, {}});
            }
            dayEnd = calendar.startOfDay(day + std::chrono::hours(36));
        }
        sections[section].places.append(place);
    }
    return sections;
}

QList<DaySection> NoteStore::groupByDay(const QList<Note> &notes, const Calendar &calendar)
{
    return sections(notes, placesByDay(notes, allPlaces(notes), calendar));
}

QList<NoteStore::DayPlaces> NoteStore::dayPlaces(const QString &query) const
{
    const QString trimmed = query.trimmed();
    if (trimmed.isEmpty())
        return placesByDay(m_notes, allPlaces(m_notes), m_clock.calendar());
    bringIndexUpToDate();
    return placesByDay(m_notes, m_search.texts.containing(trimmed), m_clock.calendar());
}

QList<DaySection> NoteStore::daySections(const QString &query) const
{
    return sections(m_notes, dayPlaces(query));
}

QList<DaySection> NoteStore::daySections(const QList<SemanticHit> &hits) const
{
    QList<Note> found;
    for (const SemanticHit &hit : hits)
        found.append(hit.note);
    return groupByDay(found, m_clock.calendar());
}

QList<DaySection> NoteStore::groupTrashByDay(QList<Note> trash, const Calendar &calendar)
{
    sortNewestFirst(trash);
    return groupByDay(trash, calendar);
}

QList<DaySection> NoteStore::trashDaySections() const
{
    return groupTrashByDay(m_trash, m_clock.calendar());
}

QList<SemanticCandidate> NoteStore::candidates() const
{
    QList<SemanticCandidate> texts;
    texts.reserve(m_notes.size());
    for (const Note &note : m_notes)
        texts.append({note.id, note.text});
    return texts;
}

void NoteStore::bringIndexUpToDate() const
{
    if (!m_isIndexUpToDate)
        m_search.setOrder(candidates());
    m_isIndexUpToDate = true;
}

std::optional<SemanticSearch::Vector> NoteStore::vector(const Note &note) const
{
    if (m_embeddingProvider)
        m_search.makeVector({note.id, note.text}, *m_embeddingProvider);
    return m_search.vectors.vector(note.id);
}

QList<SemanticHit> NoteStore::semanticMatches(const QString &query, qsizetype limit) const
{
    const QString trimmed = query.trimmed();
    if (trimmed.isEmpty())
        return {};
    bringIndexUpToDate();
    QList<SemanticHit> found;
    for (const qsizetype place : m_search.texts.containing(trimmed))
        found.append({m_notes[place], SemanticHitKind::Substring});
    if (!found.isEmpty())
        return found.first(std::clamp<qsizetype>(limit, 0, found.size()));
    const auto search = beginRankedSearch(trimmed, limit);
    search->advance();
    return hits(*search);
}

std::unique_ptr<RankedSearch> NoteStore::beginRankedSearch(const QString &query, qsizetype limit) const
{
    bringIndexUpToDate();
    constexpr qsizetype semanticOnlyCap = 2;
    return std::make_unique<RankedSearch>(m_search, m_embeddingProvider, candidates(),
        RankedSearch::Request{query,
            m_embeddingProvider ? m_embeddingProvider->sentenceVector(query.trimmed()) : std::nullopt, limit,
            semanticOnlyCap, {}});
}

QList<SemanticHit> NoteStore::hits(const RankedSearch &search) const
{
    QList<SemanticHit> found;
    for (const RankedSearch::Match &match : search.matches())
        found.append({m_notes[match.place], match.score.kind});
    return found;
}

QList<NoteStore::DayPlaces> NoteStore::dayPlaces(const RankedSearch &search) const
{
    QList<qsizetype> places;
    for (const RankedSearch::Match &match : search.matches())
        places.append(match.place);
    return placesByDay(m_notes, places, m_clock.calendar());
}

QList<Note> NoteStore::relatedNotes(const Note &note, qsizetype limit) const
{
    const bool hasOthers = std::any_of(
        m_notes.begin(), m_notes.end(), [&note](const Note &other) { return other.id != note.id; });
    if (!hasOthers)
        return {};
    bringIndexUpToDate();
    RankedSearch search(
        m_search, m_embeddingProvider, candidates(), {note.text, vector(note), limit, 0, note.id});
    search.advance();
    QList<Note> related;
    for (const RankedSearch::Match &match : search.matches())
        related.append(m_notes[match.place]);
    return related;
}
