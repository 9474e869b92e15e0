// The probe as a script uses it: a line in, a line out.
#include "support/Table.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class ProbeTest final : public QObject
{
    Q_OBJECT

    QProcess m_probe;

    QByteArray ask(const QByteArray &line)
    {
        m_probe.write(line + '\n');
        while (!m_probe.canReadLine()) {
            if (!m_probe.waitForReadyRead(10'000))
                return "no answer";
        }
        return m_probe.readLine().chopped(1);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_probe.start(QStringLiteral(PROBE), QStringList());
        QVERIFY(m_probe.waitForStarted());
    }
    void cleanupTestCase()
    {
        m_probe.closeWriteChannel(); // the end of input ends it
        QVERIFY(m_probe.waitForFinished());
        QCOMPARE(m_probe.exitCode(), 0);
    }

    void each_line_is_answered_by_one()
    {
        const Table<2> table = {
            // with apostrophes for quotation marks; of an error, how it begins
            {"{'op':'detect','text':'明天下午3点 交房租 "
             "#家','now':'2026-03-02T02:00:00Z','timeZone':'Asia/Shanghai'}",
                "{'ok':{'content':'交房租 #家','fireAt':'2026-03-03T07:00:00Z'}}"},
            {"", "{'error':"},
            {"[1]", "{'error':"},
            {"{'op':'nothing of the kind'}", "{'error':"},
            {"{'op':'tags'}", "{'error':"},
            {"{'op':'tags','text':1}", "{'error':"},
            {"{'op':'decodeNotes','base64':'W10'}x", "{'error':"},
            {"{'op':'decodeNotes','base64':'!'}", "{'error':"},
            {"{'op':'decodeImport','base64':''}", "{'error':"},
            {"{'op':'parse','text':'9am','language':'latin','now':'2026-03-02T02:00:00Z'}", "{'error':"},
            {"{'op':'mergedContent','text':'ab','ranges':[[1,2]],'language':'english'}", "{'error':"},
            {"{'op':'activeToken','text':'#a','cursor':3}", "{'error':"},
            {"{'op':'resolveTime','timeToken':'12点','period':'晚上','language':'chinese'}",
                "{'ok':{'dayOffset':1,'hour':0,'minute':0}}"},
            {"{'op':'resolveTime','timeToken':'noon','period':null,'language':'english'}", "{'ok':null}"},
            {"{'op':'resolveDay','dateToken':'3月5日','now':'2026-03-05T15:59:59.999Z','timeZone':'Asia/"
             "Shanghai','language':'chinese'}",
                "{'ok':'2026-03-05'}"},
            {"{'op':'timeString','date':'2026-03-05T15:59:59Z','timeZone':'Asia/Shanghai'}",
                "{'ok':'23:59'}"},
        };
        table.check([this](const QString &request) {
            const QByteArray given = ask(request.toUtf8().replace('\'', '"')).replace('"', '\'');
            return QString::fromUtf8(given.startsWith("{'error':") ? given.first(9) : given);
        });
    }

    void stores_are_driven_step_by_step()
    {
        const QTemporaryDir folder;
        const QByteArray request =
            "{'op':'store','folder':'FOLDER','now':'2026-03-02T02:00:00.250Z','timeZone':'Asia/Shanghai',"
            "'steps':[{'do':'add','text':' x #t ','as':'a','reminder':{'fireAt':'2026-03-03T07:00:40Z',"
            "'content':'x'},'reminderAs':'r'},{'do':'hasReminder','noteID':'a'},{'do':'cancel','id':'r'},"
            "{'do':'remove','id':'a'},{'do':'reopen'},{'do':'add','text':' '}]}";
        const QJsonValue answer = QJsonDocument::fromJson(
            ask(QByteArray(request).replace('\'', '"').replace("FOLDER", folder.path().toUtf8())))[u"ok"];
        QCOMPARE(answer[u"steps"][0][u"createdAt"], u"2026-03-02T02:00:00.250Z"_s);
        QCOMPARE(answer[u"steps"][1], QJsonValue(true));
        QCOMPARE(answer[u"steps"][5], QJsonValue());
        QCOMPARE(answer[u"trash"][0][u"createdAt"], u"2026-03-02T02:00:00Z"_s); // read again from the file
        QCOMPARE(answer[u"scheduler"][1][u"date"], u"2026-03-03T15:00"_s);
        QCOMPARE(answer[u"scheduler"][2][u"call"], u"remove"_s);
    }
};

QTEST_GUILESS_MAIN(ProbeTest)
#include "tst_probe.moc"
