// What the store finds through its index is what the plain rules find, whatever happens to the notes.
#include "foundation/CaseFolding.h"
#include "model/NoteStore.h"
#include "search/ConceptEmbeddingProvider.h"
#include "support/TestClock.h"

#include <QTemporaryDir>
#include <QTest>

#include <random>

using SemanticSearch::Vector;

namespace {
/// Vectors by the hash of the text: of no structure, of two lengths, and now and then none.
class ArbitraryVectors final : public SentenceEmbeddingProviding
{
public:
    explicit ArbitraryVectors(unsigned salt)
        : m_salt(salt)
    {
    }
    std::optional<QList<double>> sentenceVector(const QString &text) override
    {
        unsigned seed = m_salt; // Qt's own hashes are others in each process
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

private:
    unsigned m_salt;
};

/// The rules about kept vectors, and the search, in their plain form.
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
    QList<SemanticHit> semanticMatches(const QList<Note> &notes, const QString &query, qsizetype limit)
    {
        QList<SemanticHit> hits;
        const QString folded = CaseFolding::folded(query.trimmed());
        if (folded.isEmpty())
            return {};
        for (const Note &note : notes) {
            if (CaseFolding::folded(note.text).contains(folded))
                hits.append({note, SemanticHitKind::Substring});
        }
        if (!hits.isEmpty())
            return hits.first(std::min(limit, hits.size()));
        return ranked(
            notes, query, provider ? provider->sentenceVector(query.trimmed()) : std::nullopt, limit, 2);
    }
    QList<Note> relatedNotes(const QList<Note> &notes, const Note &note, qsizetype limit)
    {
        QList<Note> others;
        for (const Note &other : notes) {
            if (other.id != note.id)
                others.append(other);
        }
        if (others.isEmpty())
            return {};
        QList<Note> related;
        const auto queryVector = vector(note);
        for (const SemanticHit &hit : ranked(others, note.text, queryVector, limit, 0))
            related.append(hit.note);
        return related;
    }

private:
    QList<SemanticHit> ranked(const QList<Note> &notes, const QString &query,
        const std::optional<Vector> &queryVector, qsizetype limit, qsizetype cap)
    {
        QList<SemanticCandidate> candidates;
        QHash<QUuid, Note> byID;
        for (const Note &note : notes) {
            candidates.append({note.id, note.text});
            byID.insert(note.id, note);
            (void)vector(note);
        }
        QList<SemanticHit> hits;
        for (const ScoredMatch &match :
            SemanticSearch::rankMatches(query, candidates, queryVector, cache, limit, cap))
            hits.append({byID.value(match.id), match.kind});
        return hits;
    }
};

QString told(const QList<SemanticHit> &hits)
{
    QStringList told;
    for (const SemanticHit &hit : hits)
        told.append(QStringLiteral("%1 %2").arg(int(hit.kind)).arg(hit.note.text));
    return told.join(u'\n');
}
} // namespace

class NoteSearchTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_index_answers_as_the_plain_rules_data()
    {
        QTest::addColumn<int>("provider");
        QTest::addColumn<unsigned>("seed");
        QTest::addColumn<unsigned>("salt");
        const char *const names[] = {"no vectors", "arbitrary vectors", "concepts"};
        for (int provider = 0; provider < 3; ++provider) {
            for (unsigned seed = 1; seed <= 6; ++seed)
                QTest::addRow("%s, seed %u", names[provider], seed) << provider << seed << seed * 7919;
        }
        // Two cosines that differ in the last bit alone, and no longer when the baseline is taken away.
        QTest::newRow("all but equal") << 1 << 5U << 311U * 7919;
    }
    void the_index_answers_as_the_plain_rules()
    {
        QFETCH(int, provider);
        QFETCH(unsigned, seed);
        QFETCH(unsigned, salt);
        ArbitraryVectors arbitrary(salt);
        ConceptEmbeddingProvider concepts;
        SentenceEmbeddingProviding *const providers[] = {nullptr, &arbitrary, &concepts};

        const QTemporaryDir folder;
        TestClock clock("2026-03-02T02:00:00Z");
        NoteStore store(folder.filePath(QStringLiteral("notes.json")), clock);
        store.setEmbeddingProvider(providers[provider]);
        PlainSearch plain{providers[provider], {}};

        std::mt19937 random(seed);
        const auto below = [&random](qsizetype end) { return qsizetype(random() % size_t(end)); };
        const QStringList words = QStringLiteral("牙医 茶 买菜 #家 #work Straße STRASSE ΣΑΣ σας İstanbul "
                                                 "e\u0301te\u0301 été 👍🏽 "
                                                 "rent the The a 1 12 房租 猫粮 dog 🙂 각 미용실 x")
                                      .split(u' ');
        const auto text = [&] {
            QString made;
            for (qsizetype i = 1 + below(5); i > 0; --i)
                made += words[below(words.size())] + (below(4) == 0 ? QString() : QStringLiteral(" "));
            return made;
        };
        const auto anyOf = [&](const QList<Note> &notes) {
            return notes.isEmpty() ? Note() : notes[below(notes.size())];
        };

        for (int step = 0; step < 120; ++step) {
            clock.advance(std::chrono::seconds(below(3)));
            const Note live = anyOf(store.notes());
            const QList<Note> before = store.notes();
            switch (below(9)) {
            case 0:
            case 1:
            case 2:
                store.add(text());
                break;
            case 3:
                store.update(live.id, text());
                plain.cache.remove(live.id);
                break;
            case 4:
                store.remove(live.id);
                plain.cache.remove(live.id);
                break;
            case 5:
                store.restore(anyOf(store.trash()).id);
                break;
            case 6:
                store.importNotes({{QUuid::createUuid(), text(), {}, {}, {}, clock.now()},
                    {anyOf(store.trash()).id, text(), {}, {}, {}, clock.now()}});
                break;
            case 7: {
                const QString tag = below(2) == 0 ? QStringLiteral("家") : QStringLiteral("work");
                const bool renames = below(2) == 0;
                renames ? store.renameTag(tag, QStringLiteral("home")) : store.removeTag(tag);
                for (const Note &note : before) {
                    if (!store.note(note.id) || store.note(note.id)->text != note.text)
                        plain.cache.remove(note.id);
                }
                break;
            }
            case 8:
                if (below(4) == 0)
                    store.emptyTrash();
                break;
            }
            const QString query = below(3) == 0 ? words[below(words.size())] : text();
            if (below(2) == 0)
                QCOMPARE(told(store.semanticMatches(query, 4)),
                    told(plain.semanticMatches(store.notes(), query, 4)));
            const Note about = anyOf(below(4) == 0 ? store.trash() : store.notes());
            if (!about.id.isNull() && below(2) == 0)
                QCOMPARE(store.relatedNotes(about, 5), plain.relatedNotes(store.notes(), about, 5));

            QList<QUuid> kept = store.cachedVectors();
            QList<QUuid> expected = plain.cache.keys();
            std::sort(kept.begin(), kept.end());
            std::sort(expected.begin(), expected.end());
            QCOMPARE(kept, expected);
        }
    }
};

QTEST_GUILESS_MAIN(NoteSearchTest)
#include "tst_notesearch.moc"
