#include "foundation/AtomicFile.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
AtomicFile::Content content(const QString &path, const QByteArray &bytes)
{
    return {path, [bytes](const ByteSink &sink) { sink(bytes); }};
}
} // namespace

class AtomicFileTest final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_notes;
    QString m_trash;

    QStringList names() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_notes = m_folder->filePath(QStringLiteral("notes.json"));
        m_trash = m_folder->filePath(QStringLiteral("trash.json"));
    }

    void what_a_dead_process_left_is_completed_or_discarded_data()
    {
        QTest::addColumn<bool>("notesStaged");
        QTest::addColumn<bool>("trashStaged");
        QTest::addColumn<QByteArray>("notes");
        QTest::addColumn<QByteArray>("trash");
        QTest::newRow("nothing staged")
            << false << false << QByteArray("old notes") << QByteArray("old trash");
        QTest::newRow("died while staging notes")
            << true << false << QByteArray("old notes") << QByteArray("old trash");
        QTest::newRow("died before the renames")
            << true << true << QByteArray("old notes") << QByteArray("old trash");
        QTest::newRow("died between the renames")
            << false << true << QByteArray("old notes") << QByteArray("new trash");
    }
    void what_a_dead_process_left_is_completed_or_discarded()
    {
        QFETCH(bool, notesStaged);
        QFETCH(bool, trashStaged);
        writeFile(m_notes, "old notes");
        writeFile(m_trash, "old trash");
        if (notesStaged)
            writeFile(m_notes + QStringLiteral(".staged"), "new no");
        if (trashStaged)
            writeFile(m_trash + QStringLiteral(".staged"), "new trash");
        QVERIFY(AtomicFile::recover({m_notes, m_trash}));
        QTEST(readFile(m_notes), "notes");
        QTEST(readFile(m_trash), "trash");
        QCOMPARE(names(), (QStringList{QStringLiteral("notes.json"), QStringLiteral("trash.json")}));
    }

    void a_process_killed_at_any_moment_leaves_one_commit_whole()
    {
        // The child writes pairs that agree; whenever it is killed, the pair that is found must agree.
        const QByteArray padding(200'000, ' ');
        for (int round = 0; round < 30; ++round) {
            const pid_t child = fork();
            if (child == 0) {
                for (int i = 0;; ++i) {
                    const QByteArray number = QByteArray::number(i);
                    (void)AtomicFile::replace(
                        {content(m_notes, number + padding), content(m_trash, number + padding)});
                }
            }
            usleep(useconds_t(1000 + round * 700));
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
            QVERIFY(AtomicFile::recover({m_notes, m_trash}));
            const QByteArray notes = readFile(m_notes);
            QCOMPARE(notes, readFile(m_trash));
            QVERIFY(notes.isEmpty() || notes.endsWith(padding));
        }
    }

    void a_commit_that_cannot_be_staged_changes_nothing()
    {
        writeFile(m_notes, "old notes");
        const QString nowhere = m_folder->filePath(QStringLiteral("missing/trash.json"));
        QVERIFY(!AtomicFile::replace({content(m_notes, "new"), content(nowhere, "new")}));
        QCOMPARE(readFile(m_notes), "old notes");
        QCOMPARE(names(), QStringList{QStringLiteral("notes.json")});
    }

    void a_full_disk_leaves_the_old_file_and_no_staged_one()
    {
        writeFile(m_notes, "old notes");
        // A limit on the size of files fails a write half-way, as a full disk does.
        const pid_t child = fork();
        if (child == 0) {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{1000, 1000};
            setrlimit(RLIMIT_FSIZE, &limit);
            _exit(AtomicFile::replace({content(m_notes, QByteArray(5000, 'x'))}) ? 1 : 0);
        }
        int status = -1;
        waitpid(child, &status, 0);
        QCOMPARE(status, 0);
        QCOMPARE(readFile(m_notes), "old notes");
        QCOMPARE(names(), QStringList{QStringLiteral("notes.json")});
    }

    void a_link_is_followed_and_stays()
    {
        const QString elsewhere = m_folder->filePath(QStringLiteral("synced"));
        QDir().mkdir(elsewhere);
        QVERIFY(QFile::link(elsewhere + QStringLiteral("/real.json"), m_notes)); // to nothing, as yet
        QVERIFY(AtomicFile::replace({content(m_notes, "one")}));
        QVERIFY(AtomicFile::replace({content(m_notes, "two")}));
        QCOMPARE(QFile::symLinkTarget(m_notes), elsewhere + QStringLiteral("/real.json"));
        QCOMPARE(readFile(elsewhere + QStringLiteral("/real.json")), "two");
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

    void what_is_kept_aside_never_replaces_what_was()
    {
        for (const char *bytes : {"one", "two", "three"}) {
            writeFile(m_notes, bytes);
            QVERIFY(AtomicFile::keepAside(m_notes, QStringLiteral(".old")));
        }
        QCOMPARE(readFile(m_notes + QStringLiteral(".old")), "one");
        QCOMPARE(readFile(m_notes + QStringLiteral(".old-2")), "two");
        QCOMPARE(readFile(m_notes + QStringLiteral(".old-3")), "three");
    }
};

QTEST_APPLESS_MAIN(AtomicFileTest)
#include "tst_atomicfile.moc"
