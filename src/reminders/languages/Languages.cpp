#include "reminders/languages/Languages.h"

#include <QtGlobal>

const LanguageRules &Languages::rules(ReminderLanguage language)
{
    switch (language) {
    case ReminderLanguage::Chinese:
        return chinese();
    case ReminderLanguage::English:
        return english();
    case ReminderLanguage::Japanese:
        return japanese();
    case ReminderLanguage::Korean:
        return korean();
    case ReminderLanguage::German:
        return german();
    case ReminderLanguage::French:
        return french();
    case ReminderLanguage::Spanish:
        return spanish();
    case ReminderLanguage::Danish:
    case ReminderLanguage::Norwegian:
    case ReminderLanguage::Swedish:
        return scandinavian();
    case ReminderLanguage::Dutch:
        return dutch();
    case ReminderLanguage::Italian:
        return italian();
    case ReminderLanguage::Portuguese:
        return portuguese();
    }
    Q_UNREACHABLE();
}
