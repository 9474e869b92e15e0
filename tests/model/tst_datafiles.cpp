#include "model/DataFiles.h"
#include "support/SimulatedDisk.h"
#include "support/TestClock.h"

#include <QLoggingCategory>
#include <QTest>

#include <set>

using namespace Qt::StringLiterals;

namespace {
const QStringList bothPaths{u"/home/data/notes"_s, u"/home/data/trash"_s};
constexpr char garbage[] = "{half";

/// A store of words, in one file or two. Of two, what is removed from the first is put into the second.
struct Store {
    DataFiles files;
    QList<QByteArrayList> words;

    Store(const QStringList &paths, SimulatedDisk &disk)
        : files(paths, disk)
        , words(paths.size())
    {
        files.recover();
        for (qsizetype i = 0; i < paths.size(); ++i)
            files.load(i, [this, i](const QByteArray &bytes) {
                if (bytes != garbage)
                    words[i] = bytes.split(' ');
                return bytes != garbage;
            });
    }
    Outcome save()
    {
        QList<ByteSource> sources;
        for (const QByteArrayList &file : std::as_const(words))
            sources.append([file](const ByteSink &sink) { sink(file.join(' ')); });
        return files.save(sources, at("2026-03-02T02:00:00Z"));
    }
    /// Saves again if that fails.
    bool add(const QByteArray &word)
    {
        words[0].append(word);
        const Outcome saved = save();
        if (!saved && saved.failure().systemError != EIO)
            qFatal("the error is lost: %s", qPrintable(saved.message()));
        return saved || save();
    }
    bool removeFirstAndAdd(const QByteArray &word)
    {
        if (words.size() == 2 && !words[0].isEmpty())
            words[1].prepend(words[0].takeFirst());
        return add(word);
    }
};

QByteArray allBytes(const SimulatedDisk &disk)
{
    QByteArray all;
    for (const auto &[path, bytes] : disk.files())
        all += ' ' + bytes;
    return all;
}

/// A process that saves a change of all files, then one of the first. Adds to @p written what it has saved.
void runProcess(
    const QStringList &paths, SimulatedDisk &disk, const QByteArrayList &newWords, QByteArrayList &written)
{
    Store store(paths, disk);
    if (store.removeFirstAndAdd(newWords[0]))
        written.append(newWords[0]);
    if (store.add(newWords[1]))
        written.append(newWords[1]);
    if (disk.hasOpenFiles())
        qFatal("a file stays open");
    for (const auto &[path, bytes] : disk.files())
        if (!disk.hasStopped() && path.endsWith(".staged"))
            qFatal("a staged file stays");
}

/// What is wrong with what the next process finds and saves. Nothing if all is well.
QString faultAtNextStart(SimulatedDisk disk, const QStringList &paths, const QByteArrayList &written)
{
    Store store(paths, disk);
    for (const QByteArray &word : std::as_const(store.words[0]))
        if (store.words.value(1).contains(word))
            return u"a word is in both files"_s;
    for (const bool hasSaved : {false, true}) {
        if (hasSaved && !store.removeFirstAndAdd("later"))
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
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QByteArrayList>("files"); // notes, trash, and what is staged
        QTest::newRow("one file") << bothPaths.first(1) << QByteArrayList{"one two"};
        QTest::newRow("one file that cannot be decoded") << bothPaths.first(1) << QByteArrayList{garbage};
        const auto row = [](const char *name, const QByteArrayList &files) {
            QTest::newRow(name) << bothPaths << files;
        };
        row("no folder", {});
        row("two files", {"one two", "three"});
        row("notes that cannot be decoded", {garbage, "three"});
        row("a removal that stopped between the renames", {"two", "three", {}, "one three"});
        row("a removal that stopped before the renames", {"one two", "three", "two", "one th"});
    }
    void nothing_is_lost_wherever_it_fails_and_stops()
    {
        QFETCH(QStringList, paths);
        QFETCH(QByteArrayList, files);
        SimulatedDisk before;
        before.putFolder("/home");
        if (!files.isEmpty())
            before.putFolder("/home/data");
        for (qsizetype i = 0; i < files.size(); ++i)
            if (!files[i].isNull())
                before.putFile((bothPaths[i % 2] + (i < 2 ? u""_s : u".staged"_s)).toUtf8(), files[i]);
        QByteArrayList written;
        for (const char *word : {"one", "two", "three", garbage})
            if (allBytes(before).contains(word))
                written.append(word);

        std::set<std::pair<std::map<QByteArray, QByteArray>, QByteArrayList>> examined;
        const auto fault = [&](const SimulatedDisk &stopped, const QByteArrayList &saved) {
            for (const SimulatedDisk &found : stopped.afterStop()) {
                if (found.isSynced() && !examined.emplace(found.files(), saved).second)
                    continue;
                if (QString what = faultAtNextStart(found, paths, saved); !what.isEmpty())
                    return what;
            }
            return QString();
        };
        for (int failing = 0, hasFailed = 1; hasFailed; ++failing) {
            for (int last = 0, hasStopped = 1; hasStopped; last = last ? last + 1 : failing + 1) {
                SimulatedDisk disk = before;
                disk.failingCall = failing;
                disk.lastCall = last;
                QByteArrayList saved = written;
                runProcess(paths, disk, {"four", "five"}, saved);
                hasFailed = failing == 0 || disk.hasFailed();
                hasStopped = last == 0 || disk.hasStopped();
                const auto where = [&] { return u"call %1 fails, %2 is the last"_s.arg(failing).arg(last); };
                QVERIFY2(last != 0 || saved.last() == "five", qPrintable(where()));
                QCOMPARE(where() + fault(disk, saved), where());
                // The process was killed with names not synced, then the power fails while the next one runs.
                // A folder made by a killed process is not synced again.
                const bool isKilled = failing == 0 && hasStopped && !disk.isSynced() && !files.isEmpty();
                for (int next = 1; isKilled; ++next) {
                    SimulatedDisk again = disk.afterExit();
                    again.lastCall = next;
                    QByteArrayList savedAgain = saved;
                    runProcess(paths, again, {"six", "seven"}, savedAgain);
                    if (!again.hasStopped())
                        break;
                    QCOMPARE(where() + fault(again, savedAgain), where());
                }
            }
        }
    }
};

QTEST_APPLESS_MAIN(DataFilesTest)
#include "tst_datafiles.moc"
