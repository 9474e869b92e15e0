#include "foundation/AtomicFile.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

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

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_notes = m_folder->filePath(u"notes.json"_s);
    }

    void a_link_is_followed_and_stays()
    {
        QVERIFY(QDir(m_folder->path()).mkpath(u"synced/inner"_s));
        QVERIFY(QFile::link(u"synced/inner"_s, m_folder->filePath(u"other"_s)));
        for (const QString &link : {m_folder->path() + u"/synced/real.json"_s, u"synced/real.json"_s,
                 u"other/../real.json"_s}) { // ".." of the folder behind "other"
            QFile::remove(m_notes);
            QFile::remove(m_folder->filePath(u"synced/real.json"_s));
            QVERIFY(QFile::link(link, m_notes)); // to nothing, as yet
            QVERIFY(AtomicFile::replace({content(m_notes, "one")}));
            QVERIFY(AtomicFile::replace({content(m_notes, "two")}));
            QCOMPARE(QFileInfo(m_notes).isSymLink(), true);
            QCOMPARE(readFile(m_folder->filePath(u"synced/real.json"_s)), "two");
            QCOMPARE(AtomicFile::read(m_notes).value(), QByteArray("two"));
        }
    }

    void files_and_folders_are_their_owners_alone()
    {
        umask(0);
        const QString folder = m_folder->filePath(u"a/b"_s);
        QVERIFY(AtomicFile::createFolder(folder));
        QVERIFY(AtomicFile::createFolder(folder));
        QVERIFY(AtomicFile::replace({content(folder + u"/notes.json"_s, "x")}));
        const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QCOMPARE(QFile::permissions(folder + u"/notes.json"_s), owner);
        QCOMPARE(QFile::permissions(folder), owner | QFile::ExeOwner | QFile::ExeUser);
    }

    void what_stands_in_the_way_is_reported()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"notes.json"_s));
        QCOMPARE(AtomicFile::replace({content(m_notes, "x")}).failure().systemError, EISDIR);
        QCOMPARE(AtomicFile::read(m_notes).failure().systemError, EISDIR);
        const QString file = m_folder->filePath(u"file"_s);
        writeFile(file, "x");
        QCOMPARE(AtomicFile::createFolder(file).failure().systemError, EEXIST);
        QCOMPARE(AtomicFile::createFolder({}).failure().systemError, ENOENT);
        QVERIFY(!AtomicFile::read(file + u"/notes.json"_s).value());
        const QString circle = m_folder->filePath(u"circle"_s);
        QVERIFY(QFile::link(circle, circle));
        QCOMPARE(AtomicFile::replace({content(circle, "x")}).failure().systemError, ELOOP);
    }

    void what_is_kept_aside_never_replaces_what_was()
    {
        for (const char *bytes : {"one", "two", "three"}) {
            writeFile(m_notes, bytes);
            QVERIFY(AtomicFile::keepAside(m_notes, u".old"_s));
        }
        QVERIFY(AtomicFile::keepAside(m_notes, u".old"_s)); // which is gone
        QCOMPARE(readFile(m_notes + u".old"_s), "one");
        QCOMPARE(readFile(m_notes + u".old-2"_s), "two");
        QCOMPARE(readFile(m_notes + u".old-3"_s), "three");
    }
};

QTEST_APPLESS_MAIN(AtomicFileTest)
#include "tst_atomicfile.moc"
