#include "reminders/languages/Languages.h"

const LanguageRules &Languages::portuguese()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    static const LanguageRules rules{
        .markers = u"às|amanhã|hoje|ontem|não|segunda-feira|terça-feira|quarta-feira|quinta-feira|sexta-"
                   u"feira|noite|da manhã|da "
                   u"tarde|lembra|esqueça|janeiro|fevereiro|março|maio|junho|julho|setembro|outubro|novembro|"
                   u"dezembro",
        .relativeDays = {{u"hoje", 0}, {u"amanhã", 1}, {u"depois de amanhã", 2}},
        .weekdays = {{u"domingo", 0}, {u"segunda-feira", 1, u"segunda feira"},
            {u"terça-feira", 2, u"terça feira"}, {u"quarta-feira", 3, u"quarta feira"},
            {u"quinta-feira", 4, u"quinta feira"}, {u"sexta-feira", 5, u"sexta feira"}, {u"sábado", 6}},
        .months = {{u"janeiro", 1, u"jan"}, {u"fevereiro", 2, u"fev"}, {u"março", 3, u"mar"},
            {u"abril", 4, u"abr"}, {u"maio", 5, u"mai"}, {u"junho", 6, u"jun"}, {u"julho", 7, u"jul"},
            {u"agosto", 8, u"ago"}, {u"setembro", 9, u"set"}, {u"outubro", 10, u"out"},
            {u"novembro", 11, u"nov"}, {u"dezembro", 12, u"dez"}},
        .dayParts = {{u"", EarlyMorning, u"de madrugada|da madrugada"},
            {u"manhã", Morning, u"cedo|de manhã|da manhã|pela manhã|à manhã"},
            {u"", Noon, u"ao meio-dia|meio-dia|do meio-dia|ao meio dia"},
            {u"", Afternoon, u"à tarde|da tarde|de tarde|pela tarde", u"tarde"},
            {u"", Evening, u"à noite|da noite|de noite|pela noite"}, {u"", Night, {}, u"noite"}},
        .triggerPhrases = {u"lembra-me", u"lembra", u"não te esqueças de", u"não te esqueças",
            u"não esqueça de", u"não esqueça"},
        .grammar =
            {
                .date =
                    uR"(<day>|<ymd>|\d{1,2}\s+de\s+(?:<month>)|(?:<month>)\s+\d{1,2}|(?:próxima\s+)?(?:<weekday>))",
                .time = uR"(\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?(?:\s*(?:h|e meia))?)",
                .pattern = uR"(^(<date>)?\s*(?:às\s+)?(<time>)(?:\s+da\s+(<part>))?)",
                .groups = {.date = 1, .period = 3, .time = 2},
                .pastDays = u"ontem",
                .next = u"próxima",
                .halfPast = u"e meia",
            },
        .dates =
            {
                .shortWeekdays = {{u"terça", 2}, {u"quarta", 3}, {u"quinta", 4}, {u"sexta", 5}},
                .numbers = {{u"um|uma", 1}, {u"dois|duas", 2}, {u"três", 3}, {u"quatro", 4}, {u"cinco", 5},
                    {u"seis", 6}, {u"sete", 7}, {u"oito", 8}, {u"nove", 9}, {u"dez", 10}, {u"onze", 11},
                    {u"doze", 12}, {u"treze", 13}, {u"catorze|quatorze", 14}, {u"quinze", 15},
                    {u"dezesseis|dezasseis", 16}, {u"dezessete|dezassete", 17}, {u"dezoito", 18},
                    {u"dezenove|dezanove", 19}, {u"vinte", 20}, {u"vinte e uma|vinte e um", 21},
                    {u"vinte e duas|vinte e dois", 22}, {u"vinte e três", 23}, {u"vinte e cinco", 25},
                    {u"trinta", 30}, {u"quarenta", 40}, {u"quarenta e cinco", 45}},
                .ordinals = {{u"primeiro", 1}},
                .units = {{u"minutos|minuto|min", Minutes}, {u"horas|hora", Hours}, {u"dias|dia", Days},
                    {u"semanas|semana", Weeks}, {u"meses|mês", Months}},
                .rules =
                    {
                        {u"<relative>"},
                        {u"esta noite", {.relativeDay = 0, .part = Evening}},
                        {u"esta tarde", {.relativeDay = 0, .part = Afternoon}},
                        {u"esta manhã", {.relativeDay = 0, .part = Morning}},
                        {u"este|esta|neste|nesta? <weekday>"},
                        {u"na|no|a|o? próxima|próximo <weekday>", {.next = true}},
                        {u"na|até|esta|nesta|próxima|para segunda", {.weekday = 1}, AtEdge},
                        {u"na|até|esta|nesta|próxima|para <shortweekday>"},
                        {u"na segunda", {.weekday = 1}},
                        {u"segunda", {.weekday = 1}, WithNeighbour},
                        {u"<shortweekday>", {}, WithNeighbour},
                        {u"sexta", {.weekday = 5}},
                        {u"segunda <part>", {.weekday = 1}},
                        {u"<shortweekday> <part>"},
                        {u"segunda da semana que_vem", {.weekday = 1, .weeksAhead = 1}},
                        {u"<shortweekday> da semana que_vem", {.weeksAhead = 1}},
                        {u"<weekday> que_vem", {.next = true}},
                        {u"<weekday> da semana que_vem", {.weeksAhead = 1}},
                        {u"na|a? semana que_vem <weekday>?", {.weeksAhead = 1}},
                        {u"na|a? próxima semana <weekday>?", {.weeksAhead = 1}},
                        {u"no|este|neste|nesse fim de semana", {.weekend = 0}},
                        {u"no|o? próximo fim de semana", {.weekend = 1}},
                        {u"até|no|ao? o? fim|final do mês", {.monthEnd = true}},
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
                        {u"<hour> h <mm>", {.asWritten = true}},
                        {u"às|as|a|pelas|das|até_às <hour> horas"},
                        {u"às|pelas|à <hour>", {}, AtEdge},
                        {u"às|à <hour> e meia", {.shift = 30}},
                        {u"às|à <hour> e um? quarto", {.shift = 15}},
                        {u"às|à <hour> e <minute>"},
                        {u"às|à <hour> menos um? quarto", {.shift = -15}},
                        {u"às|à <hour> menos <minute>", {.minutesBefore = true}},
                        {u"às? <minute> para as|a|às|à <hour>", {.minutesBefore = true}},
                        {u"à|a? meia-noite", {.hour = 24}},
                        {u"ao meio-dia", {.hour = 12, .asWritten = true}},
                        {u"ao meio-dia e meia", {.hour = 12, .shift = 30, .asWritten = true}},
                    },
                .before = u"às|à|no|na|em|até|até às|até o|até ao|antes de|antes das|antes do|depois "
                          u"de|depois das|para|para o|a partir de|desde|no dia|dia|lá pelas|pelas|as|ao|por "
                          u"volta das|de|neste|nesta|este|esta",
                .between = u"às|à|no|na|de|dia|em|ao|as",
                .after = u"em ponto|horas",
                .notAfter = u"passada|passado|último|última|cada|todos "
                            u"os|toda|capítulo|versão|página|ontem|anteontem",
                .notBefore = u"passada|passado|pessoas|euros|reais|por cento|em dia|de "
                             u"ramos|meninas|temporada|parte|mão",
                .idioms = u"roupa de domingo|traje de domingo|black friday",
            },
    };
    return rules;
}
