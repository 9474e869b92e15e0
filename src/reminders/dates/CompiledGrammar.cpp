#include "reminders/dates/CompiledGrammar.h"

#include "foundation/Scripts.h"
#include "reminders/dates/DateTokens.h"
#include "reminders/languages/Languages.h"

#include <algorithm>

namespace {
using Kind = DateWord::Kind;

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

/// The texts of the tokens of a phrase, in which "_" is a blank too.
QStringList tokensOf(QStringView phrase)
{
    QString text = phrase.toString().replace(u'_', u' ');
    const bool isElided = text.endsWith(u'\'') && text.size() > 1; // "l'" needs something after it
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

/// What numbers are counted in, and greetings: in every language, since a draft may be taken for another.
constexpr WordList commonNotAfter = u"kapitel|kapittel|chapter|chapitre|capítulo|capitolo|hoofdstuk|"
                                    u"abschnitt|afsnit|avsnitt|section|sección|sezione"
                                    u"|version|versjon|versión|versione|versie|versão|page|página|pagina|"
                                    u"seite|side|sida|aufgabe|opgave|oppgave|uppgift"
                                    u"|exercise|exercice|ejercicio|esercizio|exercício|level|niveau|nivel|"
                                    u"livello|nível|room|zimmer|nr|nummer|number"
                                    u"|guten|god|gode|goede|good";

/// Dates in digits alone read the same in every language.
const std::vector<DateWords::Rule> &commonRules()
{
    static const std::vector<DateWords::Rule> rules{
        {u"<year> - <monthnumber> - <day>"},
        {u"<year> / <monthnumber> / <day>"},
        {u"<hour> : <mm>", {.asWritten = true}},
        {u"<hour> : <mm> - <until> : <until>", {.asWritten = true}},
        {u"<part>", {}, DateWords::Strength::WithNeighbour},
    };
    return rules;
}

/// Short words mean something in every other language. Words that are ordinary words too must be longer and
/// have their accents.
bool isTelling(const QString &word, Kind kind, bool isExact)
{
    constexpr qsizetype shortest = 3;
    constexpr qsizetype shortestOrdinaryWord = 4;
    switch (kind) {
    case Kind::Relative:
    case Kind::Weekday:
    case Kind::Month:
    case Kind::Part:
    case Kind::Unit:
    case Kind::WeekdayAndPart:
        return word.size() >= shortest || Scripts::isUnspaced(word.front());
    case Kind::ShortWeekday:
    case Kind::Literal:
        return isExact && word.size() >= shortestOrdinaryWord;
    case Kind::Number:
    case Kind::Ordinal:
    case Kind::Role:
        return false;
    }
    Q_UNREACHABLE();
}

/// An index by which rules are found: each literal has its own, other words one for their kind.
size_t firstIndex(const DateWord &word)
{
    return size_t(word.kind) + (word.kind == Kind::Literal ? size_t(word.value) : 0);
}
} // namespace

const CompiledGrammar &CompiledGrammar::of(ReminderLanguage language)
{
    static const Languages::Compilation<CompiledGrammar> grammars;
    return grammars.of(language);
}

CompiledGrammar::CompiledGrammar(const LanguageRules &rules)
    : m_hasHanNumerals(rules.dates.hasHanNumerals)
{
    addTable(rules.relativeDays, Kind::Relative);
    addTable(rules.weekdays, Kind::Weekday);
    addTable(rules.dates.shortWeekdays, Kind::ShortWeekday);
    addTable(rules.months, Kind::Month);
    addTable(rules.dayParts, Kind::Part);
    addTable(rules.dates.units, Kind::Unit);
    addTable(rules.dates.numbers, Kind::Number);
    addTable(rules.dates.ordinals, Kind::Ordinal);
    if (rules.dates.joinsWeekdayAndPart)
        addJoinedWords(rules);
    for (const auto &[list, role] :
        {std::pair(rules.dates.before, Role::Before), std::pair(rules.dates.between, Role::Between),
            std::pair(rules.dates.after, Role::After), std::pair(rules.dates.notAfter, Role::NotAfter),
            std::pair(rules.dates.notBefore, Role::NotBefore), std::pair(rules.dates.idioms, Role::Idiom),
            std::pair(commonNotAfter, Role::NotAfter)})
        addPhrases(list, {Kind::Role, int(role)});
    for (const QStringView phrase : rules.triggerPhrases)
        addPhrase(phrase, {Kind::Role, int(Role::Announcement)});
    for (const std::vector<DateWords::Rule> *list : {&commonRules(), &rules.dates.rules}) {
        for (const DateWords::Rule &rule : *list)
            addRule(rule);
    }
}

template <typename Value>
void CompiledGrammar::addTable(const Words<Value> &table, Kind kind)
{
    for (const Word<Value> &word : table) {
        for (const WordList list : {word.words, word.detectionOnly})
            addPhrases(list, {kind, int(word.value)});
    }
}

void CompiledGrammar::addJoinedWords(const LanguageRules &rules)
{
    constexpr qsizetype longestAbbreviation = 3;
    for (const Word<int> &weekday : rules.weekdays) {
        for (const Word<DayPart> &part : rules.dayParts) {
            for (const QStringView name : WordLists::each(weekday.words)) {
                for (const WordList parts : {part.words, part.detectionOnly}) {
                    for (const QStringView partName : WordLists::each(parts)) {
                        if (name.size() > longestAbbreviation && !partName.contains(u' '))
                            addPhrase(QString(name.toString() + partName.toString()),
                                DateWord::joined(weekday.value, part.value));
                    }
                }
            }
        }
    }
}

void CompiledGrammar::addPhrase(QStringView phrase, const DateWord &word)
{
    constexpr qsizetype shortestWithoutAccents = 4;
    const QStringList exact = tokensOf(phrase);
    const QStringList plain = phrase.size() < shortestWithoutAccents || Scripts::isUnspaced(phrase.front())
                                  ? exact
                                  : tokensOf(withoutAccents(phrase.toString()));
    for (const QStringList &tokens : {exact, plain}) {
        if (const QString longest = longestToken(tokens); ::isTelling(longest, word.kind, tokens == exact))
            m_telling.insert(longest);
        NodeIndex node = root;
        for (const QString &token : tokens) {
            const NodeIndex known = next(node, token);
            if (known == root) {
                if (node == root)
                    m_first.insert(token, m_nodes.size());
                else
                    m_nodes[node].next.emplace_back(token, m_nodes.size());
                m_nodes.emplace_back();
            }
            node = known == root ? m_nodes.size() - 1 : known;
        }
        std::vector<DateWord> &words = m_nodes[node].words;
        if (std::find(words.begin(), words.end(), word) == words.end())
            words.push_back(word);
    }
}

void CompiledGrammar::addPhrases(WordList list, const DateWord &word)
{
    for (const QStringView phrase : WordLists::each(list))
        addPhrase(phrase, word);
}

CompiledGrammar::NodeIndex CompiledGrammar::next(NodeIndex node, const QString &token) const
{
    if (node == root)
        return m_first.value(token);
    for (const auto &[text, following] : m_nodes[node].next) {
        if (text == token)
            return following;
    }
    return root;
}

int CompiledGrammar::literal(QStringView phrase)
{
    const QString text = phrase.toString();
    const auto known = m_literals.constFind(text);
    if (known != m_literals.cend())
        return *known;
    const int number = int(m_literals.size());
    m_literals.insert(text, number);
    addPhrase(phrase, {Kind::Literal, number});
    return number;
}

void CompiledGrammar::addRule(const DateWords::Rule &rule)
{
    Rule compiled{{}, rule.facts, rule.strength};
    bool canBeFirst = true;
    for (QStringView part : rule.pattern.split(u' ')) {
        Element element;
        element.isOptional = part.size() > 1 && part.endsWith(u'?');
        if (element.isOptional)
            part.chop(1);
        std::vector<DateWord> words;
        if (part.startsWith(u'<')) {
            element.slot = DateSlot::named(part.sliced(1, part.size() - 2));
            if (!element.slot)
                qFatal("unknown slot in the rule \"%s\"", qPrintable(rule.pattern.toString()));
            words.push_back({element.slot->kind});
        } else {
            for (const QStringView alternative : part.split(u'|')) {
                element.literals.push_back(literal(alternative));
                words.push_back({Kind::Literal, element.literals.back()});
            }
        }
        if (canBeFirst) {
            for (const DateWord &word : words) {
                const size_t first = firstIndex(word);
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

const std::vector<CompiledGrammar::RuleIndex> &CompiledGrammar::rulesFrom(const DateWord &word) const
{
    static const std::vector<RuleIndex> none;
    const size_t first = firstIndex(word);
    return first < m_rulesByFirst.size() ? m_rulesByFirst[first] : none;
}

bool CompiledGrammar::Element::accepts(const DateWord &word) const
{
    if (slot)
        return word.kind == slot->kind;
    return word.kind == Kind::Literal
           && std::find(literals.begin(), literals.end(), word.value) != literals.end();
}
