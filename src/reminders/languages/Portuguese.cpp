#include "reminders/languages/Languages.h"

namespace {
QString monthPattern()
{
    return QStringLiteral(R"((?:janeiro|fevereiro|março|abril|maio|junho)"
                          R"(|julho|agosto|setembro|outubro|novembro|dezembro))");
}

QString datePattern()
{
    return QStringLiteral(
               R"((?:hoje|amanhã|depois de amanhã|ontem|\d{4}[-/]\d{1,2}[-/]\d{1,2}|\d{1,2}\s+de\s+)")
           + monthPattern() + QStringLiteral(R"(|)") + monthPattern()
           + QStringLiteral(
               R"(\s+\d{1,2}|(?:próxima\s+)?(?:segunda-feira|terça-feira|quarta-feira|quinta-feira|sexta-feira)"
               R"(|sábado|domingo))?)");
}

QString timePattern()
{
    return QStringLiteral(R"((?:\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?(?:\s*(?:h|e meia))?))");
}
} // namespace

const LanguageRules &Languages::portuguese()
{
    static const LanguageRules rules{
        .markers = {u"às", u"amanhã", u"hoje", u"ontem", u"não", u"segunda-feira", u"terça-feira",
            u"quarta-feira", u"quinta-feira", u"sexta-feira", u"noite", u"da manhã", u"da tarde", u"lembra",
            u"esqueça", u"janeiro", u"fevereiro", u"março", u"maio", u"junho", u"julho", u"setembro",
            u"outubro", u"novembro", u"dezembro"},
        .date = Regex(datePattern(), Regex::Case::Insensitive),
        .time = Regex(timePattern()),
        .expression = Regex(QStringLiteral("^(") + datePattern() + QStringLiteral(R"()\s*(?:às\s+)?()")
                                + timePattern() + QStringLiteral(R"()(?:\s+da\s+((?:manhã|tarde|noite)))?)"),
            Regex::Case::Insensitive),
        .groups = {.date = 1, .period = 3, .time = 2},
        .today = {u"hoje", u"ontem"},
        .tomorrow = {u"amanhã"},
        .dayAfterTomorrow = {u"depois de amanhã"},
        .next = {u"próxima"},
        .weekdays = {{u"domingo", 0}, {u"segunda-feira", 1}, {u"terça-feira", 2}, {u"quarta-feira", 3},
            {u"quinta-feira", 4}, {u"sexta-feira", 5}, {u"sábado", 6}},
        .months = {{u"janeiro", 1}, {u"fevereiro", 2}, {u"março", 3}, {u"abril", 4}, {u"maio", 5},
            {u"junho", 6}, {u"julho", 7}, {u"agosto", 8}, {u"setembro", 9}, {u"outubro", 10},
            {u"novembro", 11}, {u"dezembro", 12}},
        .periods = {{u"manhã", HourRule::AsWritten}, {u"tarde", HourRule::Afternoon},
            {u"noite", HourRule::Night}},
        .halfPast = u"e meia",
        .triggerPhrases = {u"lembra-me", u"lembra", u"não te esqueças de", u"não te esqueças",
            u"não esqueça de", u"não esqueça"},
    };
    return rules;
}
