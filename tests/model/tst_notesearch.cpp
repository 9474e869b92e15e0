// What the stores and their search answer is what the plain rules answer, at any time: also from inside the
// signals of a change, and whatever happens to the notes.
#include "foundation/CaseFolding.h"
#include "model/Days.h"
#include "model/NoteSearch.h"
#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "search/ConceptEmbeddingProvider.h"
#include "search/PlainRanking.h"
#include "support/RecordingScheduler.h"
#include "support/TestClock.h"
#include "text/TagEditing.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <random>

using namespace Qt::StringLiterals;
using SemanticSearch::Vector;

namespace {
/// Vectors by the hash of the text: of no structure, of two lengths, and now and then none.
class ArbitraryVectors final : public SentenceEmbeddingProviding
{
public:
    std::optional<QList<double>> sentenceVector(const QString &text) override
    {
        unsigned seed = 7919; // Qt's own hashes differ from process to process
        for (const QChar unit : text)
            seed = seed * 31 + unit.unicode();
        std::minstd_rand random(seed | 1);
        if (random() % 5 == 0)
            return std::nullopt;
        Vector vector;
        for (int i = random() % 7 == 0 ? 1 : 0; i < 4; ++i)
            vector.append(random() % 3 == 0 ? 0.0 : double(random() % 1000) / 100 - 3);
        return vector;
    }
};

/// The search, and the rules about cached vectors, in their plain form.
struct PlainSearch {
    SentenceEmbeddingProviding *provider = nullptr;
    QHash<QUuid, Vector> cache;

    std::optional<Vector> vector(const Note &note)
    {
        if (!cache.contains(note.id)) {
            const auto made = provider ? provider->sentenceVector(note.text) : std::nullopt;
            if (!made)
                return std::nullopt;
            cache.insert(note.id, *made);
        }
        return cache.value(note.id);
    }
    static QList<qsizetype> containing(const QList<Note> &notes, const QString &query)
    {
        QList<qsizetype> indexes;
        for (qsizetype index = 0; index < notes.size(); ++index) {
            if (CaseFolding::folded(notes[index].text).contains(CaseFolding::folded(query.trimmed())))
                indexes.append(index);
        }
        return indexes;
    }
    QList<SemanticHit> semanticMatches(const QList<Note> &notes, const QString &query, qsizetype limit)
    {
        QList<SemanticHit> hits;
        if (query.trimmed().isEmpty())
            return hits;
        for (const qsizetype index : containing(notes, query))
            hits.append({index, SemanticHitKind::Substring});
        if (!hits.isEmpty())
            return hits.first(std::min(limit, hits.size()));
        for (const ScoredMatch &match : ranked(
                 notes, query, provider ? provider->sentenceVector(query.trimmed()) : std::nullopt, limit, 2))
            hits.append({match.index, match.kind});
        return hits;
    }
    QList<Note> relatedNotes(const QList<Note> &notes, const Note &note, qsizetype limit)
    {
        QList<Note> others;
        for (const Note &other : notes) {
            if (other.id != note.id)
                others.append(other);
        }
        QList<Note> related;
        if (others.isEmpty())
            return related;
        const auto queryVector = vector(note);
        for (const ScoredMatch &match : ranked(others, note.text, queryVector, limit, 0))
            related.append(others[match.index]);
        return related;
    }

private:
    QList<ScoredMatch> ranked(const QList<Note> &notes, const QString &query,
        const std::optional<Vector> &queryVector, qsizetype limit, qsizetype cap)
    {
        QList<SemanticCandidate> candidates;
        for (const Note &note : notes) {
            candidates.append({note.id, note.text});
            (void)vector(note);
        }
        return PlainRanking::rankMatches(query, candidates, queryVector, cache, limit, cap);
    }
};

QList<TagSummary> tagSummaries(const QList<Note> &notes)
{
    static const QRegularExpression tag(u"#([^\\s#@]+)"_s);
    QList<TagSummary> summaries;
    for (const Note &note : notes) {
        for (const auto &match : tag.globalMatch(note.text)) {
            const auto known = std::ranges::find(summaries, match.captured(1), &TagSummary::name);
            if (known == summaries.end())
                summaries.append({match.captured(1), 1});
            else
                ++known->count;
        }
    }
    return summaries;
}

QList<DaySection> grouped(const QList<Note> &notes, const QList<qsizetype> &indexes, const Calendar &calendar)
{
    QList<DaySection> sections;
    for (const qsizetype index : indexes) {
        const Instant day = calendar.startOfDay(notes[index].createdAt);
        auto section = std::ranges::find(sections, day, &DaySection::day);
        if (section == sections.end())
            section = sections.insert(section, {day, {}});
        section->notes.append(index);
    }
    return sections;
}

/// Both stores and the search in a folder, and the questions asked whenever one of them emits a signal.
class Stores final : public QObject
{
public:
    explicit Stores(SentenceEmbeddingProviding *provider)
        : plain{provider, {}}
        , search(notes, provider, clock)
    {
        notes.setReminderStore(&reminders);
        connect(&notes, &NoteStore::notesChanged, this, &Stores::ask);
        connect(&search, &NoteSearch::changed, this, &Stores::ask);
        connect(&reminders, &ReminderStore::remindersChanged, this, &Stores::ask);
        connect(&reminders, &ReminderStore::authorizationStatusChanged, this, &Stores::ask);
    }

    /// Every question, compared with its plain answer.
    void ask()
    {
        // First, since the questions make vectors.
        const QList<QUuid> cached = search.cachedVectors();
        QCOMPARE(QSet(cached.begin(), cached.end()), QSet(plain.cache.keyBegin(), plain.cache.keyEnd()));

        const QList<Note> &live = notes.notes();
        QVERIFY(std::ranges::is_sorted(live, std::greater(), &Note::createdAt));
        QSet<QUuid> ids;
        for (const Note &note : live + notes.trash()) {
            ids.insert(note.id);
            if (note.id == about.id)
                about = note; // as it is now
        }
        QCOMPARE(ids.size(), live.size() + notes.trash().size());
        QVERIFY(std::ranges::is_sorted(reminders.reminders(), {}, &Reminder::fireAt));
        for (const Reminder &reminder : reminders.reminders())
            QVERIFY(reminders.hasReminder(reminder.noteID));

        const QList<TagSummary> tags = tagSummaries(live);
        QCOMPARE(notes.tagSummaries(), tags);
        QCOMPARE(notes.tags().size(), tags.size());
        for (const QString &tag : {u"家"_s, u"home"_s}) {
            const auto holdsTag = [&](const Note &note) {
                const QList<TagSummary> own = tagSummaries({note});
                return std::ranges::find(own, tag, &TagSummary::name) != own.end();
            };
            QCOMPARE(notes.noteCount(tag), std::ranges::count_if(live + notes.trash(), holdsTag));
        }

        const Calendar &calendar = clock.calendar();
        QCOMPARE(search.daySections(query), grouped(live, plain.containing(live, query), calendar));
        QCOMPARE(search.daySections(QString()), grouped(live, Days::all(live), calendar));
        QList<qsizetype> trashed = Days::all(notes.trash());
        std::ranges::stable_sort(
            trashed, std::greater(), [&](qsizetype index) { return notes.trash()[index].createdAt; });
        QCOMPARE(notes.trashDaySections(), grouped(notes.trash(), trashed, calendar));
        const auto found = std::ranges::find(live, about.id, &Note::id);
        QCOMPARE(notes.note(about.id), found == live.end() ? std::nullopt : std::optional(*found));
        const auto reply = std::ranges::find(live, about.id, &Note::quoteID);
        QCOMPARE(notes.latestReply(about.id), reply == live.end() ? std::nullopt : std::optional(*reply));

        SemanticMatches matches = search.semanticMatches(query, 4);
        for (int slice = 0; !matches.advance(QDeadlineTimer(0)); ++slice) {
            // Adds a vector while the search is under way, which must not disturb it.
            const Note other{QUuid::createUuid(), u"rent %1"_s.arg(slice), {}, {}, {}, {}};
            if (slice < 8) { // each makes it compute the baseline anew
                (void)search.relatedNotes(other, 1);
                (void)plain.vector(other);
            }
        }
        const QList<SemanticHit> expected = plain.semanticMatches(live, query, 4);
        QCOMPARE(matches.hits(), expected);
        QList<qsizetype> hits;
        for (const SemanticHit &hit : expected)
            hits.append(hit.note);
        QCOMPARE(search.daySections(expected), grouped(live, hits, calendar));
        QCOMPARE(search.relatedNotes(about, 5), plain.relatedNotes(live, about, 5));
    }

    const QTemporaryDir folder;
    TestClock clock{"2026-03-02T02:00:00Z"};
    RecordingScheduler scheduler;
    ReminderStore reminders{folder.filePath(u"reminders.json"_s), scheduler, clock};
    NoteStore notes{folder.filePath(u"notes.json"_s), clock};
    PlainSearch plain;
    NoteSearch search;
    QString query;
    Note about;
};
} // namespace

class NoteSearchTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules(u"*.warning=false"_s); }

    void stores_are_whole_in_every_signal_data()
    {
        QTest::addColumn<int>("provider");
        QTest::addColumn<int>("size"); // at first
        QTest::addColumn<int>("steps");
        const char *const names[] = {"no vectors", "arbitrary vectors", "concepts"};
        for (int provider = 0; provider < 3; ++provider) {
            QTest::addRow("%s, none", names[provider]) << provider << 0 << 90;
            QTest::addRow("%s, a few", names[provider]) << provider << 12 << 50;
        }
        QTest::addRow("no vectors, 300") << 0 << 300 << 15;
        QTest::addRow("arbitrary vectors, 300") << 1 << 300 << 8;
    }
    void stores_are_whole_in_every_signal()
    {
        QFETCH(int, provider);
        QFETCH(int, size);
        QFETCH(int, steps);
        ArbitraryVectors arbitrary;
        ConceptEmbeddingProvider concepts;
        SentenceEmbeddingProviding *const providers[] = {nullptr, &arbitrary, &concepts};
        Stores stores(providers[provider]);
        NoteStore &notes = stores.notes;

        std::mt19937 random(unsigned(provider * 1000 + size));
        const auto below = [&random](qsizetype end) { return qsizetype(random() % size_t(end)); };
        const QStringList words = QStringLiteral("牙医 茶 买菜 #家 #work Straße STRASSE ΣΑΣ σας İstanbul "
                                                 "e\u0301te\u0301 été 👍🏽 "
                                                 "rent the The a 1 12 房租 猫粮 dog 🙂 각 미용실 x")
                                      .split(u' ');
        const auto text = [&] {
            QString made;
            for (qsizetype i = 1 + below(5); i > 0; --i)
                made += words[below(words.size())] + (below(4) == 0 ? QString() : u" "_s);
            return made;
        };
        const auto anyOf = [&](const QList<Note> &list) {
            return list.isEmpty() ? Note() : list[below(list.size())];
        };
        const auto in = [&](std::chrono::seconds time) { return stores.clock.now() + time; };

        stores.query = text();
        QList<Note> imported;
        for (int i = 0; i < size; ++i)
            imported.append({QUuid::createUuid(), text(), {}, {}, {}, in(-std::chrono::hours(below(99)))});
        notes.importNotes(imported);
        for (int step = 0; step < steps && !QTest::currentTestFailed(); ++step) {
            stores.clock.advance(std::chrono::seconds(below(3)));
            const Note live = anyOf(notes.notes());
            stores.query = below(3) == 0 ? words[below(words.size())] : text();
            stores.about = anyOf(below(4) == 0 ? notes.trash() : notes.notes());
            switch (below(12)) {
            case 0:
            case 1:
                notes.add(text(), live.id.isNull() ? std::nullopt : std::optional(live));
                break;
            case 2:
                notes.add(text(), {}, {}, ParsedReminder{in(std::chrono::minutes(below(5))), u"x"_s});
                break;
            case 3:
                stores.plain.cache.remove(live.id);
                notes.update(live.id, text());
                break;
            case 4:
            case 5: {
                const QUuid id = below(2) == 0 ? notes.notes().value(0).id : live.id;
                stores.plain.cache.remove(id);
                notes.remove(id);
                break;
            }
            case 6:
                notes.restore(anyOf(notes.trash()).id);
                break;
            case 7:
                imported = {{QUuid::createUuid(), text(), {}, {}, {}, stores.clock.now()}};
                imported.append(imported.first());
                for (const Note &known : {live, anyOf(notes.trash())}) {
                    if (!known.id.isNull())
                        imported.append(known);
                }
                notes.importNotes(imported);
                break;
            case 8: {
                const QString tag = below(2) == 0 ? u"家"_s : u"work"_s;
                for (const Note &note : notes.notes()) {
                    if (TagEditing::occurrences(tag, note.text) > 0)
                        stores.plain.cache.remove(note.id);
                }
                below(2) == 0 ? notes.renameTag(tag, u"home"_s) : notes.removeTag(tag);
                break;
            }
            case 9:
                if (below(4) == 0)
                    notes.emptyTrash();
                break;
            case 10:
                stores.scheduler.status =
                    below(2) == 0 ? AuthorizationStatus::Authorized : AuthorizationStatus::Denied;
                stores.reminders.refreshAuthorizationStatus();
                stores.reminders.pruneExpired();
                stores.reminders.cancelForNote(live.id);
                break;
            case 11:
                stores.plain.provider = providers[below(3)];
                stores.search.setEmbeddingProvider(stores.plain.provider);
                break;
            }
            stores.ask();
        }
    }
};

QTEST_GUILESS_MAIN(NoteSearchTest)
#include "tst_notesearch.moc"
