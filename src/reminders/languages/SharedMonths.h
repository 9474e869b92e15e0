#pragma once

#include "reminders/languages/LanguageRules.h"

/// German, French and Spanish read each other's months: one list, so that "mars" counts in a German draft.
namespace SharedMonths {
[[nodiscard]] inline QString pattern()
{
    return QStringLiteral(
        R"((?:januar|janvier|enero|februar|février|febrero|märz|maerz|mars|marzo|april|avril|abril|mai|mayo)"
        R"(|juni|juin|junio|juli|juillet|julio|august|août|agosto|september|septembre|septiembre)"
        R"(|oktober|octobre|octubre|november|novembre|noviembre|dezember|décembre|diciembre))");
}

[[nodiscard]] inline std::vector<LanguageRules::Month> numbers()
{
    return {{u"januar", 1}, {u"janvier", 1}, {u"enero", 1}, {u"februar", 2}, {u"février", 2}, {u"febrero", 2},
        {u"märz", 3}, {u"maerz", 3}, {u"mars", 3}, {u"marzo", 3}, {u"april", 4}, {u"avril", 4}, {u"abril", 4},
        {u"mai", 5}, {u"mayo", 5}, {u"juni", 6}, {u"juin", 6}, {u"junio", 6}, {u"juli", 7}, {u"juillet", 7},
        {u"julio", 7}, {u"august", 8}, {u"août", 8}, {u"agosto", 8}, {u"september", 9}, {u"septembre", 9},
        {u"septiembre", 9}, {u"oktober", 10}, {u"octobre", 10}, {u"octubre", 10}, {u"november", 11},
        {u"novembre", 11}, {u"noviembre", 11}, {u"dezember", 12}, {u"décembre", 12}, {u"diciembre", 12}};
}
} // namespace SharedMonths
