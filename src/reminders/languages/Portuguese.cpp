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

DateWords dates()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    return {
        .relativeDays = {{u"hoje", 0}, {u"amanhã", 1}, {u"depois_de_amanhã", 2}},
        .weekdays = {{u"domingo", 0}, {u"segunda-feira|segunda_feira", 1}, {u"terça-feira|terça_feira", 2},
            {u"quarta-feira|quarta_feira", 3}, {u"quinta-feira|quinta_feira", 4},
            {u"sexta-feira|sexta_feira", 5}, {u"sábado", 6}},
        .months = {{u"janeiro|jan", 1}, {u"fevereiro|fev", 2}, {u"março|mar", 3}, {u"abril|abr", 4},
            {u"maio|mai", 5}, {u"junho|jun", 6}, {u"julho|jul", 7}, {u"agosto|ago", 8}, {u"setembro|set", 9},
            {u"outubro|out", 10}, {u"novembro|nov", 11}, {u"dezembro|dez", 12}},
        .numbers = {{u"um|uma", 1}, {u"dois|duas", 2}, {u"três", 3}, {u"quatro", 4}, {u"cinco", 5},
            {u"seis", 6}, {u"sete", 7}, {u"oito", 8}, {u"nove", 9}, {u"dez", 10}, {u"onze", 11},
            {u"doze", 12}, {u"treze", 13}, {u"catorze|quatorze", 14}, {u"quinze", 15},
            {u"dezesseis|dezasseis", 16}, {u"dezessete|dezassete", 17}, {u"dezoito", 18},
            {u"dezenove|dezanove", 19}, {u"vinte", 20}, {u"vinte_e_uma|vinte_e_um", 21},
            {u"vinte_e_duas|vinte_e_dois", 22}, {u"vinte_e_três", 23}, {u"vinte_e_cinco", 25},
            {u"trinta", 30}, {u"quarenta", 40}, {u"quarenta_e_cinco", 45}},
        .ordinals = {{u"primeiro", 1}},
        .parts = {{u"cedo|de_manhã|da_manhã|pela_manhã|manhã|à_manhã", Morning},
            {u"ao_meio-dia|meio-dia|do_meio-dia|ao_meio_dia", Noon},
            {u"à_tarde|da_tarde|de_tarde|pela_tarde", Afternoon},
            {u"à_noite|da_noite|de_noite|pela_noite", Evening}, {u"de_madrugada|da_madrugada", EarlyMorning}},
        .units = {{u"minutos|minuto|min", Minutes}, {u"horas|hora", Hours}, {u"dias|dia", Days},
            {u"semanas|semana", Weeks}, {u"meses|mês", Months}},
        .rules =
            {
                {u"<relative>"},
                {u"esta noite", {.relativeDay = 0, .part = Evening}},
                {u"esta tarde", {.relativeDay = 0, .part = Afternoon}},
                {u"esta manhã", {.relativeDay = 0, .part = Morning}},
                {u"este|esta|neste|nesta? <weekday>"},
                {u"na|no|a|o? próxima|próximo <weekday>", {.next = 1}},
                {u"na|até|esta|nesta|próxima|para segunda", {.weekday = 1}, AtEdge},
                {u"na|até|esta|nesta|próxima|para terça", {.weekday = 2}},
                {u"na|até|esta|nesta|próxima|para quarta", {.weekday = 3}},
                {u"na|até|esta|nesta|próxima|para quinta", {.weekday = 4}},
                {u"na|até|esta|nesta|próxima|para sexta", {.weekday = 5}},
                {u"na segunda", {.weekday = 1}},
                {u"segunda", {.weekday = 1}, WithNeighbour},
                {u"terça", {.weekday = 2}, WithNeighbour},
                {u"quarta", {.weekday = 3}, WithNeighbour},
                {u"quinta", {.weekday = 4}, WithNeighbour},
                {u"sexta", {.weekday = 5}},
                {u"segunda <part>", {.weekday = 1}},
                {u"terça <part>", {.weekday = 2}},
                {u"quarta <part>", {.weekday = 3}},
                {u"quinta <part>", {.weekday = 4}},
                {u"segunda da semana que_vem", {.weekday = 1, .weeksAhead = 1}},
                {u"terça da semana que_vem", {.weekday = 2, .weeksAhead = 1}},
                {u"quarta da semana que_vem", {.weekday = 3, .weeksAhead = 1}},
                {u"quinta da semana que_vem", {.weekday = 4, .weeksAhead = 1}},
                {u"sexta da semana que_vem", {.weekday = 5, .weeksAhead = 1}},
                {u"<weekday> que_vem", {.next = 1}},
                {u"<weekday> da semana que_vem", {.weeksAhead = 1}},
                {u"na|a? semana que_vem <weekday>?", {.weeksAhead = 1}},
                {u"na|a? próxima semana <weekday>?", {.weeksAhead = 1}},
                {u"no|este|neste|nesse fim de semana", {.weekend = 0}},
                {u"no|o? próximo fim de semana", {.weekend = 1}},
                {u"até|no|ao? o? fim|final do mês", {.monthEnd = 1}},
                {u"dia? <day> º|°? de <month> .? de? <year>?"},
                {u"dia? primeiro de <month> de? <year>?", {.day = 1}},
                {u"<day> / <monthnumber> / <year>"},
                {u"em|dia|no_dia|até|para <day> / <monthnumber>"},
                {u"<day> / <monthnumber>", {}, WithNeighbour},
                {u"dia <day> º|°?"},
                {u"dia primeiro", {.day = 1}},
                {u"dia <day> do próximo mês", {.monthsAhead = 1}},
                {u"dia <day> do mês que_vem", {.monthsAhead = 1}},
                {u"em|daqui_a|dentro_de <n> <unit>"},
                {u"em|daqui_a|dentro_de meia hora", {.halves = 1, .unit = Hours}},
                {u"em|daqui_a|dentro_de uma hora e meia", {.halves = 3, .unit = Hours}},
                {u"em|daqui_a|dentro_de <n> horas e meia", {.halves = 1, .unit = Hours}},
                {u"em|daqui_a um quarto de hora", {.halves = 30, .unit = Minutes}},
                {u"das|entre_as <hour> h? às|e_as <until> h|horas?", {}, AtEdge},
                {u"<hour> h"},
                {u"<hour> h <mm>", {.asWritten = 1}},
                {u"às|as|a|pelas|das|até_às <hour> horas"},
                {u"às|pelas|à <hour>", {}, AtEdge},
                {u"às|à <hour> e meia", {.shift = 30}},
                {u"às|à <hour> e um? quarto", {.shift = 15}},
                {u"às|à <hour> e <minute>"},
                {u"às|à <hour> menos um? quarto", {.shift = -15}},
                {u"às|à <hour> menos <minute>", {.minutesBefore = 1}},
                {u"às? <minute> para as|a|às|à <hour>", {.minutesBefore = 1}},
                {u"à|a? meia-noite", {.hour = 24}},
                {u"ao meio-dia", {.hour = 12, .asWritten = 1}},
                {u"ao meio-dia e meia", {.hour = 12, .shift = 30, .asWritten = 1}},
            },
        .before = u"às|à|no|na|em|até|até_às|até_o|até_ao|antes_de|antes_das|antes_do|depois_de|depois_das|"
                  u"para|para_o|a_partir_de|desde|no_dia|dia|lá_pelas|pelas|as|ao|por_volta_das|de|neste|"
                  u"nesta|este|esta",
        .between = u"às|à|no|na|de|dia|em|ao|as",
        .after = u"em_ponto|horas",
        .notAfter =
            u"passada|passado|último|última|cada|todos_os|toda|capítulo|versão|página|ontem|anteontem",
        .notBefore =
            u"passada|passado|pessoas|euros|reais|por_cento|em_dia|de_ramos|meninas|temporada|parte|mão",
        .idioms = u"roupa_de_domingo|traje_de_domingo|black_friday",
    };
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
        .dates = dates(),
    };
    return rules;
}
