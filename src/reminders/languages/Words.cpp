#include "reminders/languages/Words.h"

#include "reminders/languages/LanguageRules.h"

#include <QStringList>

#include <algorithm>

namespace {
template <typename Value>
void append(QStringList &alternatives, const Words<Value> &table)
{
    (void)WordLists::valueIf(table, [&alternatives](QStringView alternative) {
        alternatives.append(alternative.toString());
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
        append(alternatives, rules.relativeDays);
        alternatives += rules.grammar.pastDays.toString().split(u'|', Qt::SkipEmptyParts);
    } else if (placeholder == u"weekday") {
        append(alternatives, rules.weekdays);
    } else if (placeholder == u"month" || placeholder == u"anymonth") {
        append(alternatives, rules.months);
        if (placeholder == u"anymonth") {
            for (const Words<int> *months : rules.grammar.otherMonths)
                append(alternatives, *months);
        }
    } else if (placeholder == u"part") {
        append(alternatives, rules.dayParts);
    } else {
        qFatal("no list of words is called \"%s\"", qPrintable(placeholder.toString()));
    }
    // A pattern takes the first alternative that fits, which must not be the beginning of a longer one.
    std::stable_sort(alternatives.begin(), alternatives.end(),
        [](const QString &a, const QString &b) { return a.size() > b.size(); });
    return alternatives.join(u'|');
}
} // namespace

bool WordLists::contains(WordList list, QStringView word)
{
    for (const QStringView alternative : each(list)) {
        if (alternative == word)
            return true;
    }
    return false;
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
