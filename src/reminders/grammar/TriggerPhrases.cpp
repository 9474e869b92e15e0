#include "reminders/grammar/TriggerPhrases.h"

#include "foundation/Scripts.h"
#include "reminders/languages/Languages.h"

namespace {
constexpr QStringView edgePunctuation = u"，。！？、,.;:：!?～~";

/// Whether the phrase ends at the end of a word. Scripts without spaces have no such ends.
bool endsWithWord(QStringView phrase, QStringView rest)
{
    return !Scripts::isLatin(phrase.back()) || rest.isEmpty() || !rest.front().isLetterOrNumber();
}
} // namespace

QString TriggerPhrases::stripped(
    QStringView text, QStringView fullText, ReminderLanguage language, Glued glued)
{
    const std::vector<QStringView> &phrases = Languages::rules(language).triggerPhrases;
    text = text.trimmed();
    for (const QStringView phrase : phrases) {
        if (text.startsWith(phrase, Qt::CaseInsensitive)
            && (glued == Glued::Removed || endsWithWord(phrase, text.sliced(phrase.size())))) {
            text = text.sliced(phrase.size());
            break;
        }
    }
    for (const QStringView phrase : phrases) {
        if (text.endsWith(phrase, Qt::CaseInsensitive)) {
            text.chop(phrase.size());
            break;
        }
    }
    while (!text.isEmpty() && (text.front().isSpace() || edgePunctuation.contains(text.front())))
        text = text.sliced(1);
    text = text.trimmed();
    return (text.isEmpty() ? fullText : text).toString();
}
