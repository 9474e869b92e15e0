#include "reminders/DateGrammar.h"

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

constexpr int partsInAWeekday = 16;
constexpr qsizetype longestPhrase = 5; // in tokens

/// 十五 is 15, 二十 is 20; -1 for what is no such number below a hundred.
int hanNumeral(const QString &characters)
{
    static const QString digits = QStringLiteral("〇一二三四五六七八九");
    const auto digit = [](QChar character) {
        if (character == u'零')
            return 0;
        if (character == u'两' || character == u'兩')
            return 2;
        return int(digits.indexOf(character));
    };
    const qsizetype ten = characters.indexOf(u'十');
    if (ten < 0) {
        int value = 0;
        for (const QChar character : characters)
            value = value * 10 + digit(character);
        return characters.size() <= 4 ? value : -1;
    }
    if (ten > 1 || characters.size() > ten + 2)
        return -1;
    const int tens = ten == 0 ? 1 : digit(characters.front());
    const int ones = characters.size() == ten + 1 ? 0 : digit(characters.back());
    return tens * 10 + ones;
}

bool isHanNumeral(const DateToken &token)
{
    return token.type == DateToken::Type::Character
           && QStringView(u"〇零一二两兩三四五六七八九十").contains(token.text.front());
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
            for (const QStringView name : weekday.words.split(u'|')) {
                for (const DateWords::PartWord &part : words.parts) {
                    for (const QStringView partName : part.words.split(u'|')) {
                        if (name.size() > 3 && !partName.contains(u'_')) {
                            addPhrase(QString(name.toString() + partName.toString()),
                                {Kind::WeekdayAndPart, weekday.value * partsInAWeekday + int(part.part)});
                        }
                    }
                }
            }
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
    static const QHash<QString, Slot> slots{
        {QStringLiteral("hour"), Slot::Hour},
        {QStringLiteral("minute"), Slot::Minute},
        {QStringLiteral("mm"), Slot::TwoDigits},
        {QStringLiteral("day"), Slot::Day},
        {QStringLiteral("daydigits"), Slot::DayInDigits},
        {QStringLiteral("monthnumber"), Slot::MonthNumber},
        {QStringLiteral("month"), Slot::Month},
        {QStringLiteral("year"), Slot::Year},
        {QStringLiteral("n"), Slot::Count},
        {QStringLiteral("unit"), Slot::Unit},
        {QStringLiteral("weekday"), Slot::Weekday},
        {QStringLiteral("relative"), Slot::Relative},
        {QStringLiteral("part"), Slot::Part},
        {QStringLiteral("ordinal"), Slot::Ordinal},
        {QStringLiteral("weekdaypart"), Slot::WeekdayAndPart},
        {QStringLiteral("until"), Slot::Until},
    };
    static const QHash<Slot, Kind> kinds{
        {Slot::Hour, Kind::Number},
        {Slot::Minute, Kind::Number},
        {Slot::TwoDigits, Kind::Number},
        {Slot::Day, Kind::Number},
        {Slot::DayInDigits, Kind::Number},
        {Slot::MonthNumber, Kind::Number},
        {Slot::Month, Kind::Month},
        {Slot::Year, Kind::Number},
        {Slot::Count, Kind::Number},
        {Slot::Unit, Kind::Unit},
        {Slot::Weekday, Kind::Weekday},
        {Slot::Relative, Kind::Relative},
        {Slot::Part, Kind::Part},
        {Slot::Ordinal, Kind::Ordinal},
        {Slot::WeekdayAndPart, Kind::WeekdayAndPart},
        {Slot::Until, Kind::Number},
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
            element.slot = slots.value(name);
            indexes.push_back(index({kinds.value(element.slot), 0}));
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

DateGrammar::Reading::Reading(const DateGrammar &grammar, const QList<DateToken> &tokens)
    : m_grammar(grammar)
    , m_tokens(tokens)
    , m_arcs(size_t(tokens.size()))
{
    for (qsizetype start = 0; start < tokens.size(); ++start) {
        const DateToken &token = tokens[start];
        if (token.type == DateToken::Type::Barrier)
            continue;
        if (token.type == DateToken::Type::Number) {
            const bool isBehindMark = token.isGlued && tokens[start - 1].type == DateToken::Type::Mark;
            m_arcs[size_t(start)].push_back(
                {{Kind::Number, token.value}, start + 1, token.digits, false, isBehindMark});
        }
        addNumeralArc(start);
        addPhraseArcs(start);
    }
}

void DateGrammar::Reading::addPhraseArcs(qsizetype start)
{
    const std::vector<Node> &nodes = m_grammar.m_nodes;
    size_t node = 0;
    for (qsizetype at = start; at < m_tokens.size(); ++at) {
        const DateToken &token = m_tokens[at];
        const bool isBroken = at > start && token.type == DateToken::Type::Character && !token.isGlued
                              && !DateTokens::isHangul(token.text.front());
        node = m_grammar.next(node, token.text);
        if (isBroken || token.type == DateToken::Type::Barrier || node == 0)
            return;
        for (const Entry &entry : nodes[node].entries)
            m_arcs[size_t(start)].push_back({entry, at + 1, 0});
    }
}

void DateGrammar::Reading::addNumeralArc(qsizetype start)
{
    if (!m_grammar.m_hasHanNumerals || !isHanNumeral(m_tokens[start])
        || (start > 0 && m_tokens[start].isGlued && isHanNumeral(m_tokens[start - 1])))
        return;
    QString numeral;
    qsizetype end = start;
    for (; end < m_tokens.size() && isHanNumeral(m_tokens[end]) && (end == start || m_tokens[end].isGlued);
         ++end)
        numeral += m_tokens[end].text;
    if (const int value = hanNumeral(numeral); value >= 0)
        m_arcs[size_t(start)].push_back({{Kind::Number, value}, end, 0, true, false});
}

bool DateGrammar::Reading::take(const Element &element, const Arc &arc, DateFacts &facts)
{
    const int value = arc.entry.value;
    const auto isKind = [&arc](Kind kind) { return arc.entry.kind == kind; };
    const auto isNumber = [&](int first, int last, int mostDigits = 2) {
        return isKind(Kind::Number) && value >= first && value <= last && arc.digits <= mostDigits;
    };
    const auto say = [](auto &fact, auto said) {
        if (fact)
            return false;
        fact = said;
        return true;
    };
    switch (element.slot) {
    case Slot::Literal:
        return isKind(Kind::Literal)
               && std::find(element.literals.begin(), element.literals.end(), value)
                      != element.literals.end();
    case Slot::Hour:
        return isNumber(0, 24) && say(facts.hour, value);
    case Slot::Minute:
        return isNumber(0, 59) && say(facts.minute, value);
    case Slot::TwoDigits:
        return isNumber(0, 59) && arc.digits == 2 && say(facts.minute, value);
    case Slot::Day:
        return isNumber(1, 31) && (arc.digits > 0 || arc.isHanNumeral) && say(facts.day, value);
    case Slot::DayInDigits:
        return isNumber(1, 31) && arc.digits > 0 && say(facts.day, value);
    case Slot::MonthNumber:
        return isNumber(1, 12) && say(facts.month, value);
    case Slot::Month:
        return isKind(Kind::Month) && say(facts.month, value);
    case Slot::Year:
        // "5/3/27"; what looks like the years before may as well be a version.
        if (isNumber(25, 99) && arc.digits == 2 && arc.isBehindMark)
            return say(facts.year, 2000 + value);
        return isNumber(1900, 2999, 4) && say(facts.year, value);
    case Slot::Count:
        if (!isNumber(1, 999, 3))
            return false;
        facts.halves = facts.halves.value_or(0) + 2 * value;
        return true;
    case Slot::Unit:
        return isKind(Kind::Unit) && say(facts.unit, SpanUnit(value));
    case Slot::Weekday:
        return isKind(Kind::Weekday) && say(facts.weekday, value);
    case Slot::Relative:
        return isKind(Kind::Relative) && say(facts.relativeDay, value);
    case Slot::Part:
        return isKind(Kind::Part) && say(facts.part, DayPart(value));
    case Slot::Ordinal:
        return isKind(Kind::Ordinal) && say(facts.day, value);
    case Slot::Until:
        return isNumber(0, 59);
    case Slot::WeekdayAndPart:
        return isKind(Kind::WeekdayAndPart) && say(facts.weekday, value / partsInAWeekday)
               && say(facts.part, DayPart(value % partsInAWeekday));
    }
    return false;
}

void DateGrammar::Reading::walk(
    const Rule &rule, size_t element, qsizetype at, const DateFacts &facts, std::vector<Match> &found) const
{
    if (element == rule.elements.size()) {
        found.push_back({at, facts, rule.strength});
        return;
    }
    if (rule.elements[element].isOptional)
        walk(rule, element + 1, at, facts, found);
    if (at >= m_tokens.size())
        return;
    // What holds a number together has nothing on either side of it.
    const bool isMark = m_tokens[at].type == DateToken::Type::Mark && m_tokens[at].text != u"(";
    const bool followsMark = at > 0 && element > 0 && m_tokens[at - 1].type == DateToken::Type::Mark
                             && QStringView(u":/-").contains(m_tokens[at - 1].text.front());
    if ((isMark || followsMark) && !m_tokens[at].isGlued)
        return;
    for (const Arc &arc : m_arcs[size_t(at)]) {
        DateFacts more = facts;
        if (take(rule.elements[element], arc, more))
            walk(rule, element + 1, arc.end, more, found);
    }
}

std::vector<DateGrammar::Match> DateGrammar::Reading::matches(qsizetype start) const
{
    std::vector<Match> found;
    std::vector<size_t> rules;
    for (const Arc &arc : m_arcs[size_t(start)]) {
        const size_t first = index(arc.entry);
        if (first < m_grammar.m_rulesByFirst.size()) {
            for (const size_t rule : m_grammar.m_rulesByFirst[first]) {
                if (std::find(rules.begin(), rules.end(), rule) == rules.end())
                    rules.push_back(rule);
            }
        }
    }
    for (const size_t rule : rules) {
        const std::vector<Match>::size_type before = found.size();
        walk(m_grammar.m_rules[rule], 0, start, m_grammar.m_rules[rule].facts, found);
        // A rule whose elements are all optional matches nothing at all, too.
        found.erase(std::remove_if(found.begin() + std::ptrdiff_t(before), found.end(),
                        [start](const Match &match) { return match.end == start; }),
            found.end());
    }
    return found;
}

std::vector<qsizetype> DateGrammar::Reading::endsOf(Role role, qsizetype start) const
{
    std::vector<qsizetype> ends;
    if (start < m_tokens.size()) {
        for (const Arc &arc : m_arcs[size_t(start)]) {
            if (arc.entry.kind == Kind::Role && arc.entry.value == int(role))
                ends.push_back(arc.end);
        }
    }
    return ends;
}

qsizetype DateGrammar::Reading::endOf(Role role, qsizetype start) const
{
    const std::vector<qsizetype> ends = endsOf(role, start);
    return ends.empty() ? start : *std::max_element(ends.begin(), ends.end());
}

qsizetype DateGrammar::Reading::startOf(Role role, qsizetype end) const
{
    for (qsizetype start = std::max<qsizetype>(0, end - longestPhrase); start < end; ++start) {
        for (const Arc &arc : m_arcs[size_t(start)]) {
            if (arc.end == end && arc.entry.kind == Kind::Role && arc.entry.value == int(role))
                return start;
        }
    }
    return end;
}

bool DateGrammar::Reading::isWithin(Role role, qsizetype token) const
{
    for (qsizetype start = std::max<qsizetype>(0, token - longestPhrase); start < token; ++start) {
        const std::vector<qsizetype> ends = endsOf(role, start);
        if (std::any_of(ends.begin(), ends.end(), [token](qsizetype end) { return end > token; }))
            return true;
    }
    return false;
}
