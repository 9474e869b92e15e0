#include "reminders/languages/Languages.h"

namespace {
QString monthPattern()
{
    return QStringLiteral(R"((?:gennaio|febbraio|marzo|aprile|maggio|giugno)"
                          R"(|luglio|agosto|settembre|ottobre|novembre|dicembre))");
}

QString datePattern()
{
    return QStringLiteral(R"((?:oggi|domani|dopodomani|ieri|\d{4}[-/]\d{1,2}[-/]\d{1,2}|\d{1,2}\s*)")
           + monthPattern() + QStringLiteral(R"(|)") + monthPattern()
           + QStringLiteral(
               R"(\s+\d{1,2}|(?:lunedì|martedì|mercoledì|giovedì|venerdì|sabato|domenica)(?:\s+prossimo)?)?)");
}

QString timePattern()
{
    return QStringLiteral(R"((?:\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?(?:\s*(?:e mezza|h))?))");
}
} // namespace

const LanguageRules &Languages::italian()
{
    static const LanguageRules rules{
        .markers = {u"alle", u"domani", u"oggi", u"ieri", u"lunedì", u"martedì", u"mercoledì", u"giovedì",
            u"venerdì", u"sabato", u"domenica", u"mezza", u"ricordami", u"dimenticare", u"di sera",
            u"di mattina", u"del pomeriggio", u"di notte", u"gennaio", u"febbraio", u"maggio", u"giugno",
            u"luglio", u"settembre", u"ottobre", u"novembre", u"dicembre"},
        .date = Regex(datePattern(), Regex::Case::Insensitive),
        .time = Regex(timePattern()),
        .expression = Regex(
            QStringLiteral("^(") + datePattern() + QStringLiteral(R"()\s*(?:alle\s+)?()") + timePattern()
                + QStringLiteral(R"()(?:\s+((?:di mattina|del pomeriggio|di sera|di notte)))?)"),
            Regex::Case::Insensitive),
        .groups = {.date = 1, .period = 3, .time = 2},
        .today = {u"oggi", u"ieri"},
        .tomorrow = {u"domani"},
        .dayAfterTomorrow = {u"dopodomani"},
        .next = {u"prossimo"},
        .weekdays = {{u"domenica", 0}, {u"lunedì", 1}, {u"martedì", 2}, {u"mercoledì", 3}, {u"giovedì", 4},
            {u"venerdì", 5}, {u"sabato", 6}},
        .months = {{u"gennaio", 1}, {u"febbraio", 2}, {u"marzo", 3}, {u"aprile", 4}, {u"maggio", 5},
            {u"giugno", 6}, {u"luglio", 7}, {u"agosto", 8}, {u"settembre", 9}, {u"ottobre", 10},
            {u"novembre", 11}, {u"dicembre", 12}},
        .periods = {{u"di mattina", HourRule::AsWritten}, {u"del pomeriggio", HourRule::Afternoon},
            {u"di sera", HourRule::Evening}, {u"di notte", HourRule::Night}},
        .halfPast = u"e mezza",
        .triggerPhrases = {u"ricordami", u"ricorda", u"non dimenticare"},
    };
    return rules;
}
