#include "foundation/AtomicFile.h"
#include "support/SimulatedDisk.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <set>
#include <sys/stat.h>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {
AtomicFile::Content content(const QString &path, const QByteArray &bytes)
{
    return {path, [bytes](const ByteSink &sink) { sink(bytes); }};
}

/// What every file holds after the commit of this number, longer than one call writes.
QByteArray bytesOf(int number)
{
    return QByteArray::number(number) + " and the rest of it";
}

Outcome commit(int number, const QStringList &paths, SimulatedDisk &disk)
{
    QList<AtomicFile::Content> contents;
    for (const QString &path : paths)
        contents.append(content(path, bytesOf(number)));
    return AtomicFile::replace(contents, disk);
}

struct Range {
    int least = 1;
    int most = 1;
    auto operator<=>(const Range &) const = default;
};

/// Commits 2 and 3, and which commits may be found afterwards.
Range commitTwice(const QStringList &paths, SimulatedDisk &disk)
{
    Range allowed;
    for (int number = 2; number <= 3 && !disk.hasStopped(); ++number) {
        allowed.most = number;
        const Outcome committed = commit(number, paths, disk);
        if (committed)
            allowed.least = number;
        else if (committed.failure().systemError != disk.error)
            qFatal("the error is lost: %s", qPrintable(committed.message()));
        if (disk.hasOpenFiles())
            qFatal("a file stays open");
        if (!disk.hasStopped() && disk.files().size() != size_t(paths.size()))
            qFatal("a staged file stays");
    }
    return allowed;
}

/// What is wrong with what is found, after a recovery that may itself stop at any call. Nothing if all is
/// well.
QString faultAfterRecovery(const SimulatedDisk &stopped, const QStringList &paths, Range allowed)
{
    static std::set<std::tuple<std::map<QByteArray, QByteArray>, QStringList, Range>> examined;
    for (const SimulatedDisk &start : stopped.afterStop()) {
        if (start.isSynced() && !examined.emplace(start.files(), paths, allowed).second)
            continue;
        for (int last = 1, isDone = 0; !isDone; ++last) {
            SimulatedDisk recovering = start;
            recovering.lastCall = last;
            isDone = AtomicFile::recover(paths, recovering).hasValue();
            for (SimulatedDisk &disk : isDone ? QList{recovering} : recovering.afterStop()) {
                if (!AtomicFile::recover(paths, disk))
                    return u"not recovered"_s;
                const auto files = disk.files();
                QByteArrayList found;
                for (const auto &[path, bytes] : files)
                    found.append(bytes);
                const int number = found.value(0).first(1).toInt();
                if (found != QByteArrayList(paths.size(), bytesOf(number)) || number < allowed.least
                    || number > allowed.most)
                    return u"found "_s + QString::fromUtf8(found.join(" | "));
            }
        }
    }
    return {};
}
} // namespace

class AtomicFileTest final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_notes;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_notes = m_folder->filePath(QStringLiteral("notes.json"));
    }

    void wherever_it_fails_and_stops_one_commit_is_found_whole_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::newRow("one file") << QStringList{u"/data/a"_s};
        QTest::newRow("two files") << QStringList{u"/data/a"_s, u"/data/b"_s};
    }
    void wherever_it_fails_and_stops_one_commit_is_found_whole()
    {
        QFETCH(QStringList, paths);
        SimulatedDisk before;
        before.putFolder("/data");
        for (const QString &path : paths)
            before.putFile(path.toUtf8(), bytesOf(1));
        for (const int error : {EIO, ENOSPC, EACCES}) {
            for (int failing = 0;; ++failing) {
                SimulatedDisk running = before;
                running.failingCall = failing;
                running.error = error;
                Range allowed = commitTwice(paths, running);
                if (failing != 0 && !running.hasFailed())
                    break;
                QVERIFY2(allowed.least == 3 || commit(allowed.least = allowed.most = 4, paths, running),
                    qPrintable(u"no commit succeeds after call %1 has failed"_s.arg(failing)));
                QCOMPARE(faultAfterRecovery(running, paths, allowed), QString());

                for (int last = failing + 1; error == EIO; ++last) {
                    SimulatedDisk stopping = before;
                    stopping.failingCall = failing;
                    stopping.lastCall = last;
                    allowed = commitTwice(paths, stopping);
                    if (!stopping.hasStopped())
                        break;
                    const QString fault = faultAfterRecovery(stopping, paths, allowed);
                    QVERIFY2(fault.isEmpty(),
                        qPrintable(u"call %1 fails, %2 is the last: %3"_s.arg(failing).arg(last).arg(fault)));
                }
            }
        }
    }

    void a_link_is_followed_and_stays_data()
    {
        QTest::addColumn<QString>("link");
        QTest::newRow("absolute") << u"%1/synced/real.json"_s;
        QTest::newRow("relative") << u"synced/real.json"_s;
        QTest::newRow("through another link") << u"other/../real.json"_s; // ".." of the folder behind it
    }
    void a_link_is_followed_and_stays()
    {
        QFETCH(QString, link);
        QVERIFY(QDir(m_folder->path()).mkpath(u"synced/inner"_s));
        QVERIFY(QFile::link(u"synced/inner"_s, m_folder->filePath(u"other"_s)));
        QVERIFY(QFile::link(link.replace(u"%1"_s, m_folder->path()), m_notes)); // to nothing, as yet
        QVERIFY(AtomicFile::replace({content(m_notes, "one")}));
        QVERIFY(AtomicFile::replace({content(m_notes, "two")}));
        QCOMPARE(QFileInfo(m_notes).isSymLink(), true);
        QCOMPARE(readFile(m_folder->filePath(u"synced/real.json"_s)), "two");
        QCOMPARE(AtomicFile::read(m_notes).value(), QByteArray("two"));
    }

    void files_and_folders_are_their_owners_alone()
    {
        umask(0);
        const QString folder = m_folder->filePath(QStringLiteral("a/b"));
        QVERIFY(AtomicFile::createFolder(folder));
        QVERIFY(AtomicFile::createFolder(folder));
        QVERIFY(AtomicFile::replace({content(folder + QStringLiteral("/notes.json"), "x")}));
        const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QCOMPARE(QFile::permissions(folder + QStringLiteral("/notes.json")), owner);
        QCOMPARE(QFile::permissions(folder), owner | QFile::ExeOwner | QFile::ExeUser);
    }

    void what_stands_in_the_way_is_reported()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"notes.json"_s));
        QCOMPARE(AtomicFile::replace({content(m_notes, "x")}).failure().systemError, EISDIR);
        QCOMPARE(AtomicFile::read(m_notes).failure().systemError, EISDIR);
        const QString file = m_folder->filePath(u"file"_s);
        writeFile(file, "x");
        QCOMPARE(AtomicFile::createFolder(file).failure().systemError, ENOTDIR);
        QVERIFY(!AtomicFile::read(file + u"/notes.json"_s).value());
        const QString circle = m_folder->filePath(u"circle"_s);
        QVERIFY(QFile::link(circle, circle));
        QCOMPARE(AtomicFile::replace({content(circle, "x")}).failure().systemError, ELOOP);
    }

    void what_is_kept_aside_never_replaces_what_was()
    {
        for (const char *bytes : {"one", "two", "three"}) {
            writeFile(m_notes, bytes);
            QVERIFY(AtomicFile::keepAside(m_notes, QStringLiteral(".old")));
        }
        QVERIFY(AtomicFile::keepAside(m_notes, QStringLiteral(".old"))); // which is gone
        QCOMPARE(readFile(m_notes + QStringLiteral(".old")), "one");
        QCOMPARE(readFile(m_notes + QStringLiteral(".old-2")), "two");
        QCOMPARE(readFile(m_notes + QStringLiteral(".old-3")), "three");
    }
};

QTEST_APPLESS_MAIN(AtomicFileTest)
#include "tst_atomicfile.moc"
