// Everyday drafts in every language, each in a file of dates/: <language>-found.txt holds drafts with the
// moment and the content that they mean, <language>-ordinary.txt drafts that hold no date. It is Wednesday
// 2026-03-04 10:00 in Shanghai.
#include "reminders/DateEvaluation.h"

#include <QTest>

using namespace Qt::StringLiterals;

class DatesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_language_understands_what_people_write_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : DateEvaluation::languages())
            QTest::newRow(qPrintable(language)) << language;
    }
    void every_language_understands_what_people_write()
    {
        QFETCH(QString, language);
        const DateEvaluation::Score score = DateEvaluation::evaluate(language);
        for (const QString &fault : score.faults)
            qInfo("%s", qPrintable(fault));
        QVERIFY2(score.drafts >= 60 && score.ordinary >= 100, "too few drafts");
        QCOMPARE_GE(score.rightMoments * 100, score.drafts * 97);
        QCOMPARE_GE(score.rightContents * 100, score.drafts * 95);
        QCOMPARE_LE(score.falseAlarms * 100, score.ordinary);
    }
};

QTEST_APPLESS_MAIN(DatesTest)
#include "tst_dates.moc"
