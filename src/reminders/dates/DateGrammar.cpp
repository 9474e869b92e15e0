#include "reminders/dates/DateGrammar.h"

#include <algorithm>

namespace {
QString withoutAccents(const QString &text)
{
    QString plain;
    const QString decomposed = text.normalized(QString::NormalizationForm_D);
    for (const QChar character : decomposed) {
        if (!character.isMark())
            plain += character;
    }
    return plain;
}

/// The texts of the tokens of a phrase, where "_" is a blank.
QStringList tokensOf(QStringView phrase)
{
    QString text = phrase.toString().replace(u'_', u' ');
    const bool isElided = text.endsWith(u'\'') && text.size() > 1; // "l'", which needs something behind it
    if (isElided)
        text += u'x';
    QStringList texts;
    for (const DateToken &token : DateTokens::of(text))
        texts.append(token.text);
    if (isElided)
        texts.removeLast();
    return texts;
}

QString longestToken(const QStringList &tokens)
{
    return *std::max_element(
        tokens.begin(), tokens.end(), [](const QString &a, const QString &b) { return a.size() < b.size(); });
}

/// What a number is counted as, and greetings: in any language, since a draft may be taken for another.
constexpr QStringView commonNotAfter = u"kapitel|kapittel|chapter|chapitre|capítulo|capitolo|hoofdstuk|"
                                       u"abschnitt|afsnit|avsnitt|section|sección|sezione"
                                       u"|version|versjon|versión|versione|versie|versão|page|página|pagina|"
                                       u"seite|side|sida|aufgabe|opgave|oppgave|uppgift"
                                       u"|exercise|exercice|ejercicio|esercizio|exercício|level|niveau|nivel|"
                                       u"livello|nível|room|zimmer|nr|nummer|number"
                                       u"|guten|god|gode|goede|good";

/// What is written in digits alone reads the same in every language.
const std::vector<DateWords::Rule> &commonRules()
{
    static const std::vector<DateWords::Rule> rules{
        {u"<year> - <monthnumber> - <day>"},
        {u"<year> / <monthnumber> / <day>"},
        {u"<hour> : <mm>", {.asWritten = 1}},
        {u"<hour> : <mm> - <until> : <until>", {.asWritten = 1}},
        {u"<part>", {}, DateWords::Strength::WithNeighbour},
    };
    return rules;
}
} // namespace

DateGrammar::DateGrammar(const DateWords &words, const std::vector<QStringView> &announcements)
    : m_hasHanNumerals(words.hasHanNumerals)
{
    const auto add = [this](const std::vector<DateWords::Word> &list, Kind kind) {
        for (const DateWords::Word &word : list)
            addPhrases(word.words, {kind, word.value});
    };
    add(words.relativeDays, Kind::Relative);
    add(words.weekdays, Kind::Weekday);
    add(words.months, Kind::Month);
    for (const DateWords::PartWord &word : words.parts)
        addPhrases(word.words, {Kind::Part, int(word.part)});
    for (const DateWords::UnitWord &word : words.units)
        addPhrases(word.words, {Kind::Unit, int(word.unit)});
    add(words.numbers, Kind::Number);
    add(words.ordinals, Kind::Ordinal);
    if (words.joinsWeekdayAndPart) {
        for (const DateWords::Word &weekday : words.weekdays) {
            for (const DateWords::PartWord &part : words.parts)
                addJoined(weekday, part);
        }
    }
    for (const auto &[alternatives, role] :
        {std::pair(words.before, Role::Before), std::pair(words.between, Role::Between),
            std::pair(words.after, Role::After), std::pair(words.notAfter, Role::NotAfter),
            std::pair(words.notBefore, Role::NotBefore), std::pair(words.idioms, Role::Idiom)})
        addPhrases(alternatives, {Kind::Role, int(role)});
    addPhrases(commonNotAfter, {Kind::Role, int(Role::NotAfter)});
    for (const QStringView phrase : announcements)
        addPhrase(phrase, {Kind::Role, int(Role::Announcement)});
    for (const DateWords::Rule &rule : commonRules())
        addRule(rule);
    for (const DateWords::Rule &rule : words.rules)
        addRule(rule);
}

void DateGrammar::addJoined(const DateWords::Word &weekday, const DateWords::PartWord &part)
{
    constexpr qsizetype longestAbbreviation = 3;
    const Entry entry{Kind::WeekdayAndPart, weekday.value * partsInAWeekday + int(part.part)};
    for (const QStringView name : weekday.words.split(u'|')) {
        for (const QStringView partName : part.words.split(u'|')) {
            if (name.size() > longestAbbreviation && !partName.contains(u'_'))
                addPhrase(QString(name.toString() + partName.toString()), entry);
        }
    }
}

size_t DateGrammar::index(Entry entry)
{
    return entry.kind == Kind::Literal ? size_t(Kind::Literal) + size_t(entry.value) : size_t(entry.kind);
}

void DateGrammar::addPhrase(QStringView phrase, Entry entry)
{
    constexpr qsizetype shortestWithoutAccents = 4;
    const QStringList exact = tokensOf(phrase);
    const QStringList plain = phrase.size() < shortestWithoutAccents || DateTokens::isUnspaced(phrase.front())
                                  ? exact
                                  : tokensOf(withoutAccents(phrase.toString()));
    const bool isTellingKind = entry.kind == Kind::Relative || entry.kind == Kind::Weekday
                               || entry.kind == Kind::Month || entry.kind == Kind::Part
                               || entry.kind == Kind::Unit || entry.kind == Kind::WeekdayAndPart;
    for (const QStringList &tokens : {exact, plain}) {
        // Short words mean something in every other language.
        constexpr qsizetype shortestTelling = 3;
        const QString word = longestToken(tokens);
        if (isTellingKind && (word.size() >= shortestTelling || DateTokens::isUnspaced(word.front())))
            m_telling.insert(word);
        size_t node = 0;
        for (const QString &token : tokens) {
            const size_t known = next(node, token);
            if (known == 0) {
                if (node == 0)
                    m_first.insert(token, m_nodes.size());
                else
                    m_nodes[node].next.emplace_back(token, m_nodes.size());
                m_nodes.emplace_back();
            }
            node = known == 0 ? m_nodes.size() - 1 : known;
        }
        std::vector<Entry> &entries = m_nodes[node].entries;
        const auto isSame = [entry](Entry other) {
            return other.kind == entry.kind && other.value == entry.value;
        };
        if (std::none_of(entries.begin(), entries.end(), isSame))
            entries.push_back(entry);
    }
}

size_t DateGrammar::next(size_t node, const QString &token) const
{
    if (node == 0)
        return m_first.value(token);
    for (const auto &[text, behind] : m_nodes[node].next) {
        if (text == token)
            return behind;
    }
    return 0;
}

void DateGrammar::addPhrases(QStringView alternatives, Entry entry)
{
    if (alternatives.isEmpty())
        return;
    for (const QStringView phrase : alternatives.split(u'|'))
        addPhrase(phrase, entry);
}

int DateGrammar::literal(QStringView phrase)
{
    const QString text = phrase.toString();
    const auto known = m_literals.constFind(text);
    if (known != m_literals.cend())
        return *known;
    const int number = int(m_literals.size());
    m_literals.insert(text, number);
    addPhrase(phrase, {Kind::Literal, number});
    constexpr qsizetype shortestTelling = 4;
    if (const QString word = longestToken(tokensOf(phrase)); word.size() >= shortestTelling)
        m_telling.insert(word);
    return number;
}

void DateGrammar::addRule(const DateWords::Rule &rule)
{
    struct SlotKind {
        Slot slot;
        Kind kind;
    };
    static const QHash<QString, SlotKind> slots{
        {QStringLiteral("hour"), {Slot::Hour, Kind::Number}},
        {QStringLiteral("minute"), {Slot::Minute, Kind::Number}},
        {QStringLiteral("mm"), {Slot::TwoDigits, Kind::Number}},
        {QStringLiteral("day"), {Slot::Day, Kind::Number}},
        {QStringLiteral("daydigits"), {Slot::DayInDigits, Kind::Number}},
        {QStringLiteral("monthnumber"), {Slot::MonthNumber, Kind::Number}},
        {QStringLiteral("month"), {Slot::Month, Kind::Month}},
        {QStringLiteral("year"), {Slot::Year, Kind::Number}},
        {QStringLiteral("n"), {Slot::Count, Kind::Number}},
        {QStringLiteral("unit"), {Slot::Unit, Kind::Unit}},
        {QStringLiteral("weekday"), {Slot::Weekday, Kind::Weekday}},
        {QStringLiteral("relative"), {Slot::Relative, Kind::Relative}},
        {QStringLiteral("part"), {Slot::Part, Kind::Part}},
        {QStringLiteral("ordinal"), {Slot::Ordinal, Kind::Ordinal}},
        {QStringLiteral("weekdaypart"), {Slot::WeekdayAndPart, Kind::WeekdayAndPart}},
        {QStringLiteral("until"), {Slot::Until, Kind::Number}},
    };
    Rule compiled{{}, rule.facts, rule.strength};
    bool canBeFirst = true;
    for (QStringView part : rule.pattern.split(u' ')) {
        Element element;
        element.isOptional = part.size() > 1 && part.endsWith(u'?');
        if (element.isOptional)
            part.chop(1);
        std::vector<size_t> indexes;
        if (part.startsWith(u'<')) {
            const QString name = part.sliced(1, part.size() - 2).toString();
            Q_ASSERT_X(slots.contains(name), "a rule of dates", qPrintable(name));
            const SlotKind &slot = *slots.constFind(name);
            element.slot = slot.slot;
            indexes.push_back(index({slot.kind, 0}));
        } else {
            for (const QStringView alternative : part.split(u'|')) {
                element.literals.push_back(literal(alternative));
                indexes.push_back(index({Kind::Literal, element.literals.back()}));
            }
        }
        if (canBeFirst) {
            for (const size_t first : indexes) {
                if (m_rulesByFirst.size() <= first)
                    m_rulesByFirst.resize(first + 1);
                m_rulesByFirst[first].push_back(m_rules.size());
            }
        }
        canBeFirst = canBeFirst && element.isOptional;
        compiled.elements.push_back(std::move(element));
    }
    m_rules.push_back(std::move(compiled));
}
