#include "model/NoteStore.h"

#include "foundation/Characters.h"
#include "foundation/Log.h"
#include "model/AppPaths.h"
#include "model/Days.h"
#include "model/NoteCoding.h"
#include "model/ReminderStore.h"
#include "text/NoteHighlighting.h"
#include "text/TagEditing.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>

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

void sortNewestFirst(QList<Note> &notes)
{
    std::stable_sort(
        notes.begin(), notes.end(), [](const Note &a, const Note &b) { return a.createdAt > b.createdAt; });
}

/// A file that two machines wrote, or that was edited by hand, may repeat an id: the later note gets a new
/// one.
void makeIDsUnique(QList<Note> &notes, QSet<QUuid> &known)
{
    known.reserve(known.size() + notes.size());
    for (Note &note : notes) {
        if (known.contains(note.id))
            note.id = QUuid::createUuid();
        known.insert(note.id);
    }
}

QList<TagSummary> countTags(const QList<Note> &notes)
{
    QList<TagSummary> summaries;
    QHash<QString, qsizetype> indexOfTag;
    for (const Note &note : notes) {
        for (const QString &tag : NoteHighlighting::tags(note.text)) {
            const auto found = indexOfTag.constFind(tag);
            if (found != indexOfTag.cend()) {
                ++summaries[*found].count;
            } else {
                indexOfTag.insert(tag, summaries.size());
                summaries.append({tag.sliced(1), 1});
            }
        }
    }
    return summaries;
}

bool hasTags(const Note &note)
{
    return !NoteHighlighting::tags(note.text).isEmpty();
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

void NoteStore::load()
{
    m_files.recover();
    const auto decodeInto = [](QList<Note> &out) {
        return [&out](const QByteArray &bytes) {
            auto decoded = noteDecoder::decodeNotes(bytes);
            if (decoded)
                out = std::move(decoded.value());
            return decoded.hasValue();
        };
    };
    m_files.load(notesFile, decodeInto(m_notes));
    m_files.load(trashFile, decodeInto(m_trash));
    QSet<QUuid> known;
    makeIDsUnique(m_notes, known);
    makeIDsUnique(m_trash, known);
    sortNewestFirst(m_notes);
    m_tagSummaries = countTags(m_notes);
}

void NoteStore::commit(const NoteChange &change, const QList<QUuid> &notesWithoutReminders)
{
    if (change.tags)
        m_tagSummaries = countTags(m_notes);
    Q_EMIT notesChanged(change);
    if (m_reminderStore) {
        for (const QUuid id : notesWithoutReminders)
            m_reminderStore->cancelForNote(id);
    }
    save();
}

void NoteStore::save()
{
    const auto encoded = [](const QList<Note> &notes) -> ByteSource {
        return [&notes](const ByteSink &sink) { noteEncoder::encode(notes, sink); };
    };
    const Outcome saved = m_files.save({encoded(m_notes), encoded(m_trash)}, m_clock.now());
    if (!saved)
        Log::line(QStringLiteral("failed to save notes: ") + saved.message());
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
    commit({{note.id}, {note.id}, hasTags(note)});
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
    const bool changesTags = NoteHighlighting::tags(found->text) != NoteHighlighting::tags(trimmed);
    found->text = trimmed;
    commit({{id}, {id}, changesTags});
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
    const Note note = *found;
    m_notes.erase(found);
    m_trash.prepend(note);
    commit({{id}, {id}, hasTags(note)}, {id});
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
    commit({{}, {}, hasTags(note)});
}

void NoteStore::emptyTrash()
{
    if (m_trash.isEmpty())
        return;
    m_trash.clear();
    commit({});
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
    commit({{}, {}, std::any_of(added.begin(), added.end(), hasTags)});
    return added.size();
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
    if (!TagEditing::isValidName(name) || name == from)
        return;
    NoteChange change{{}, {}, true};
    for (QList<Note> *list : {&m_notes, &m_trash}) {
        for (Note &note : *list) {
            if (TagEditing::occurrences(from, note.text) == 0)
                continue;
            note.text = TagEditing::replacingTag(note.text, from, name);
            change.texts.append(note.id);
            if (list == &m_notes)
                change.vectors.append(note.id); // a note in the trash keeps its vector
        }
    }
    if (!change.texts.isEmpty())
        commit(change);
}

void NoteStore::removeTag(const QString &tag)
{
    NoteChange change{{}, {}, true};
    // Removes the tag from the notes, and the notes that this leaves empty from the list.
    const auto takeOut = [&](QList<Note> &notes) {
        QList<Note> emptied;
        QList<Note> kept;
        for (Note &note : notes) {
            const bool holdsTag = TagEditing::occurrences(tag, note.text) > 0;
            if (holdsTag) {
                note.text = TagEditing::removingTag(note.text, tag);
                change.texts.append(note.id);
                if (&notes == &m_notes)
                    change.vectors.append(note.id); // a note in the trash keeps its vector
            }
            (holdsTag && note.text.isEmpty() ? emptied : kept).append(note);
        }
        notes = kept;
        return emptied;
    };
    const QList<Note> emptied = takeOut(m_notes);
    takeOut(m_trash);
    if (change.texts.isEmpty())
        return;
    m_trash = emptied + m_trash;
    QList<QUuid> emptiedIDs;
    for (const Note &note : emptied)
        emptiedIDs.append(note.id);
    commit(change, emptiedIDs);
}

QList<DaySection> NoteStore::trashDaySections() const
{
    return Days::group(m_trash, Days::newestFirst(m_trash), m_clock.calendar());
}
