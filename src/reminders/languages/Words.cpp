#include "reminders/languages/Words.h"

#include "reminders/languages/LanguageRules.h"

#include <QStringList>

#include <algorithm>

namespace {
/// A pattern takes the first alternative that fits, so a longer one precedes its own beginning.
void insert(QStringList &alternatives, QStringView alternative)
{
    const auto beginning = std::find_if(alternatives.cbegin(), alternatives.cend(),
        [alternative](const QString &known) { return alternative.startsWith(known); });
    alternatives.insert(beginning, alternative.toString());
}

template <typename Value>
void insert(QStringList &alternatives, const Words<Value> &table)
{
    (void)WordLists::valueIf(table, [&alternatives](QStringView alternative) {
        insert(alternatives, alternative);
        return false;
    });
}

QString replacement(QStringView placeholder, const LanguageRules &rules)
{
    if (placeholder == u"ymd")
        return QStringLiteral(R"(\d{4}[-/]\d{1,2}[-/]\d{1,2})");
    if (placeholder == u"date")
        return WordLists::expanded(rules.grammar.date, rules);
    if (placeholder == u"time")
        return rules.grammar.time.toString();
    QStringList alternatives;
    if (placeholder == u"day") {
        insert(alternatives, rules.relativeDays);
        for (const QStringView word : WordLists::each(rules.grammar.pastDays))
            insert(alternatives, word);
    } else if (placeholder == u"weekday") {
        insert(alternatives, rules.weekdays);
    } else if (placeholder == u"month" || placeholder == u"anymonth") {
        insert(alternatives, rules.months);
        if (placeholder == u"anymonth") {
            for (const Words<int> *months : rules.grammar.otherMonths)
                insert(alternatives, *months);
        }
    } else if (placeholder == u"part") {
        insert(alternatives, rules.dayParts);
    } else {
        qFatal("no list of words is called \"%s\"", qPrintable(placeholder.toString()));
    }
    return alternatives.join(u'|');
}
} // namespace

bool WordLists::contains(WordList list, QStringView word)
{
    return std::ranges::any_of(each(list), [word](QStringView known) { return known == word; });
}

QString WordLists::expanded(QStringView text, const LanguageRules &rules)
{
    QString result;
    for (;;) {
        const qsizetype open = text.indexOf(u'<');
        const qsizetype close = text.indexOf(u'>', open + 1);
        if (open < 0 || close < 0)
            return result += text;
        result += text.first(open);
        result += replacement(text.sliced(open + 1, close - open - 1), rules);
        text = text.sliced(close + 1);
    }
}
