#include "reminders/LanguageDetection.h"

#include <QTest>

using enum ReminderLanguage;

class LanguageDetectionTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What a single language has is in the drafts of dates/.
    void a_draft_belongs_to_the_first_language_that_marks_it()
    {
        const std::pair<const char *, ReminderLanguage> rows[] = {
            {"3点开会5時", Chinese}, // a Chinese marker is asked for before a Japanese one
            {"點と", Japanese},      // kana before any marker
            {"ｱ 明天", Japanese},    // half-width kana
            {"𠮷", Chinese},         // beyond the first plane
            {"今天 ᄀ", Korean},     // a single jamo
            {"9 h hoy", Spanish},
            {"ÜBERMORGEN", German},
            {"imorgon kl 9", Danish},
            {"tisdag i mars", Swedish},
            {"mandag i mars", Norwegian},
            {"aftensmad", Danish},
            {"köp bröd", German},                // nothing says Scandinavian
            {"call the valley office", Italian}, // "alle" within a word
            {"kl", English},
            {"", English},
        };
        for (const auto &[draft, language] : rows)
            QVERIFY2(LanguageDetection::detect(QString::fromUtf8(draft)) == language, draft);
    }
};

QTEST_APPLESS_MAIN(LanguageDetectionTest)
#include "tst_languagedetection.moc"
