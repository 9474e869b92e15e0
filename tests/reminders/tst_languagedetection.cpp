#include "reminders/LanguageDetection.h"

#include <QTest>

using enum ReminderLanguage;
Q_DECLARE_METATYPE(ReminderLanguage)

class LanguageDetectionTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_draft_belongs_to_the_first_language_that_marks_it_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<ReminderLanguage>("language");
        const auto row = [](const char *text, ReminderLanguage language) {
            QTest::newRow(text) << QString::fromUtf8(text) << language;
        };
        row("3点开会5時", Chinese); // a Chinese marker is asked for before a Japanese one
        row("點と", Japanese);      // kana before any marker
        row("明日 午後3時", Japanese);
        row("あした9時", Japanese);
        row("ｱ 明天", Japanese); // half-width kana
        row("買牛奶", Chinese);
        row("𠮷", Chinese);     // beyond the first plane
        row("今天 ᄀ", Korean); // a single jamo
        row("remind me at 9h", French);
        row("9 h hoy", Spanish);
        row("10 h mañana", Spanish);
        row("Straße morgen", German);
        row("ÜBERMORGEN", German);
        row("half past nine", Dutch);
        row("imorgon klockan 9", Swedish);
        row("imorgon kl 9", Danish);
        row("i morgen kl. 9", Danish);
        row("i morgen kl 9 i kveld", Norwegian);
        row("tisdag i mars", Swedish);
        row("mandag i mars", Norwegian);
        row("aftensmad", Danish);
        row("köp bröd", German);                // nothing says Scandinavian
        row("call the valley office", Italian); // "alle" within a word
        row("não esqueça", Portuguese);
        row("après la fête", French);
        row("cumpleaños de Ana", Spanish);
        row("kl", English);
        row("", English);
    }
    void a_draft_belongs_to_the_first_language_that_marks_it()
    {
        QFETCH(QString, text);
        QTEST(LanguageDetection::detect(text), "language");
    }
};

QTEST_APPLESS_MAIN(LanguageDetectionTest)
#include "tst_languagedetection.moc"
