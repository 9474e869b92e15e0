#pragma once

#include "reminders/ReminderLanguage.h"
#include "reminders/languages/LanguageRules.h"

/// What each language brings; a file of its own for each in this folder.
namespace Languages {
const LanguageRules &chinese();
const LanguageRules &dutch();
const LanguageRules &english();
const LanguageRules &french();
const LanguageRules &german();
const LanguageRules &italian();
const LanguageRules &japanese();
const LanguageRules &korean();
const LanguageRules &portuguese();
const LanguageRules &scandinavian(); ///< Danish, Norwegian and Swedish
const LanguageRules &spanish();

const LanguageRules &rules(ReminderLanguage language);
} // namespace Languages

/// Danish, Norwegian and Swedish are first told from the rest and then from each other.
struct ScandinavianMarkers {
    std::vector<QStringView> dateWords;
    std::vector<QStringView> timeWords;
    std::vector<QStringView> swedishWords;
    std::vector<QStringView> danishWords;
    std::vector<QStringView> norwegianWords;
};

namespace Languages {
const ScandinavianMarkers &scandinavianMarkers();
}
