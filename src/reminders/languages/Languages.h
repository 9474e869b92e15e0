#pragma once

#include "reminders/ReminderLanguage.h"
#include "reminders/languages/LanguageRules.h"

#include <array>
#include <map>

/// What each language brings; every language has a file of its own in this folder.
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

/// One language for each set of rules; Danish represents the three that share one.
inline constexpr std::array distinct{ReminderLanguage::Chinese, ReminderLanguage::English,
    ReminderLanguage::Japanese, ReminderLanguage::Korean, ReminderLanguage::German, ReminderLanguage::French,
    ReminderLanguage::Spanish, ReminderLanguage::Danish, ReminderLanguage::Dutch, ReminderLanguage::Italian,
    ReminderLanguage::Portuguese};

/// What is compiled from the rules, for all languages at once.
template <typename Compiled>
class Compilation
{
public:
    Compilation()
    {
        for (const ReminderLanguage language : distinct)
            m_byRules.try_emplace(&rules(language), rules(language));
    }
    [[nodiscard]] const Compiled &of(ReminderLanguage language) const
    {
        return m_byRules.at(&rules(language));
    }

private:
    std::map<const LanguageRules *, Compiled> m_byRules;
};

/// German, French and Spanish drafts may use each other's months.
const Words<int> &frenchMonths();
const Words<int> &germanMonths();
const Words<int> &spanishMonths();

/// Danish, Norwegian and Swedish are first distinguished from other languages and then from each other.
struct ScandinavianMarkers {
    WordList anyOfThem;
    WordList swedish;
    WordList danish;
    WordList norwegian;
};
const ScandinavianMarkers &scandinavianMarkers();
} // namespace Languages
