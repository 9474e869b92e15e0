#include "model/DataFiles.h"
#include "support/SimulatedDisk.h"
#include "support/TestClock.h"

#include <QLoggingCategory>
#include <QTest>

#include <set>

using namespace Qt::StringLiterals;

namespace {
const QStringList paths{u"/home/data/notes"_s, u"/home/data/trash"_s};
constexpr char garbage[] = "{half";

/// A store of words in two files. Removing one moves it from the first to the second.
struct Store {
    DataFiles files;
    QByteArrayList notes;
    QByteArrayList trash;

    explicit Store(SimulatedDisk &disk)
        : files(paths, disk)
    {
        files.recover();
        for (QByteArrayList *words : {&notes, &trash})
            files.load(words == &notes ? 0 : 1, [words](const QByteArray &bytes) {
                if (bytes == garbage)
                    return false;
                *words = bytes.isEmpty() ? QByteArrayList() : bytes.split(' ');
                return true;
            });
    }
    Outcome save()
    {
        const auto source = [](const QByteArrayList &words) {
            return [words](const ByteSink &sink) { sink(words.join(' ')); };
        };
        return files.save({source(notes), source(trash)}, at("2026-03-02T02:00:00Z"));
    }
    Outcome remove()
    {
        if (!notes.isEmpty())
            trash.prepend(notes.takeFirst());
        return save();
    }
    Outcome add(const QByteArray &word)
    {
        notes.append(word);
        return save();
    }
};

QByteArray allBytes(const SimulatedDisk &disk)
{
    QByteArray all;
    for (const auto &[path, bytes] : disk.files())
        all += ' ' + bytes;
    return all;
}

/// What is wrong with what the next process finds and saves. Nothing if all is well.
QString faultAtNextStart(SimulatedDisk disk, const QByteArrayList &written, const QByteArrayList &saved)
{
    Store store(disk);
    for (const QByteArray &word : std::as_const(store.notes))
        if (store.trash.contains(word))
            return u"a word is in both files"_s;
    for (const QByteArray &word : saved)
        if (!store.notes.contains(word))
            return u"what was saved is not found"_s;
    for (const bool hasSaved : {false, true}) {
        if (hasSaved && (!store.remove() || !store.add("later")))
            return u"nothing can be saved"_s;
        for (const QByteArray &word : written)
            if (!allBytes(disk).contains(word))
                return QString::fromUtf8(word) + u" is lost"_s;
    }
    return {};
}
} // namespace

class DataFilesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void initTestCase() { QLoggingCategory::setFilterRules(u"default=false"_s); }

    void nothing_is_lost_wherever_it_fails_and_stops_data()
    {
        QTest::addColumn<QByteArrayList>("files"); // notes, trash, and what is staged
        const auto row = [](const char *name, const QByteArrayList &files) { QTest::newRow(name) << files; };
        row("no folder", {});
        row("two files", {"one two", "three"});
        row("notes that cannot be decoded", {garbage, "three"});
        row("nothing that can be decoded", {garbage, garbage});
        row("a removal that stopped between the renames", {"two", "three", {}, "one three"});
        row("a removal that stopped before the renames", {"one two", "three", "two", "one three"});
    }
    void nothing_is_lost_wherever_it_fails_and_stops()
    {
        QFETCH(QByteArrayList, files);
        SimulatedDisk before;
        before.putFolder("/home");
        if (!files.isEmpty())
            before.putFolder("/home/data");
        for (qsizetype i = 0; i < files.size(); ++i)
            if (!files[i].isNull())
                before.putFile((paths[i % 2] + (i < 2 ? u""_s : u".staged"_s)).toUtf8(), files[i]);
        QByteArrayList written;
        for (const char *word : {"one", "two", "three", garbage})
            if (allBytes(before).contains(word))
                written.append(word);

        std::set<std::pair<std::map<QByteArray, QByteArray>, qsizetype>> examined;
        for (int failing = 0, hasFailed = 1; hasFailed; ++failing) {
            for (int last = 0, hasStopped = 1; hasStopped; last = last ? last + 1 : failing + 1) {
                SimulatedDisk disk = before;
                disk.failingCall = failing;
                disk.lastCall = last;
                Store store(disk);
                (void)store.remove();
                const QByteArrayList saved = store.add("new") ? QByteArrayList{"new"} : QByteArrayList();
                hasFailed = failing == 0 || disk.hasFailed();
                hasStopped = last == 0 || disk.hasStopped();
                for (const SimulatedDisk &found : disk.afterStop()) {
                    if (found.isSynced() && !examined.emplace(found.files(), saved.size()).second)
                        continue;
                    const QString fault = faultAtNextStart(found, written, saved);
                    QVERIFY2(fault.isEmpty(),
                        qPrintable(u"call %1 fails, %2 is the last: %3"_s.arg(failing).arg(last).arg(fault)));
                }
            }
        }
    }
};

QTEST_APPLESS_MAIN(DataFilesTest)
#include "tst_datafiles.moc"
