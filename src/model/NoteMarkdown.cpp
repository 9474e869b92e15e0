#include "model/NoteMarkdown.h"

#include "foundation/Characters.h"
#include "foundation/Digits.h"
#include "foundation/Regex.h"

using namespace std::chrono;

namespace {
/// The Unicode line breaks, unit by unit: "\r\n" is two of them.
bool isNewline(QChar character)
{
    return QStringView(u"\n\r\u0085\u2028\u2029").contains(character);
}

QString onOneLine(QString text)
{
    for (QChar &character : text) {
        if (isNewline(character))
            character = u' ';
    }
    return text;
}

/// The digits of a group; 0 if it did not take part in the match.
int number(QStringView text, const std::optional<TextRange> &group)
{
    return group ? Digits::value(text.sliced(group->start, group->length())) : 0;
}

/// "2024-3-5" or "2024/03/05", anywhere in the line.
std::optional<Calendar::Day> findDay(QStringView line)
{
    static const Regex pattern(QStringLiteral(R"((\d{4})[-/](\d{1,2})[-/](\d{1,2}))"));
    const auto match = pattern.firstMatch(line);
    if (!match)
        return std::nullopt;
    const Calendar::Day found{year(number(line, match->group(1))),
        month(unsigned(number(line, match->group(2)))), day(unsigned(number(line, match->group(3))))};
    return found.ok() ? std::optional(found) : std::nullopt;
}

struct TimePrefix {
    std::optional<seconds> time; ///< of the day
    QStringView rest;
};

TimePrefix splitTimePrefix(QStringView text)
{
    static const Regex pattern(QStringLiteral(R"(^(\d{1,2}):(\d{2})(?::(\d{2}))?\s+)"));
    const auto match = pattern.firstMatch(text);
    if (!match)
        return {std::nullopt, text};
    const int hour = number(text, match->group(1));
    const int minute = number(text, match->group(2));
    const int second = number(text, match->group(3));
    if (hour > 23 || minute > 59)
        return {std::nullopt, text};
    // Seconds from 60 on are consumed, but ignored.
    return {
        hours(hour) + minutes(minute) + seconds(second < 60 ? second : 0), text.sliced(match->range().end)};
}

QStringView withoutListMarker(QStringView line)
{
    static const Regex pattern(QStringLiteral(R"(^(?:[-*+]|\d{1,3}[.)])\s+(?:\[[ xX]\]\s+)?)"));
    const auto match = pattern.firstMatch(line);
    return match ? line.sliced(match->range().end) : line;
}

/// Reads line by line and keeps the state that the next line depends on.
class Parser final
{
public:
    Parser(Instant fallbackDay, const Calendar &calendar)
        : m_calendar(calendar)
        , m_day(calendar.startOfDay(fallbackDay))
    {
    }

    void read(QStringView line)
    {
        if (line.isEmpty())
            m_takesQuote = false;
        else if (line.startsWith(u'#'))
            readHeading(line);
        else if (line.startsWith(u'>'))
            readQuote(Characters::trimmedOfBlanks(line.sliced(1)));
        else
            readNote(line);
    }
    [[nodiscard]] const QList<Note> &notes() const { return m_notes; }

private:
    void readHeading(QStringView line)
    {
        m_takesQuote = false;
        if (const auto day = findDay(line)) {
            m_day = m_calendar.startOfDay(*day);
            m_untimed = 0;
        }
    }
    void readQuote(QStringView text)
    {
        if (!m_takesQuote || text.isEmpty())
            return;
        std::optional<QString> &quote = m_notes.last().quote;
        quote = quote ? *quote + u'\n' + text.toString() : text.toString();
    }
    void readNote(QStringView line)
    {
        const TimePrefix split = splitTimePrefix(withoutListMarker(line));
        const QStringView text = Characters::trimmedOfBlanks(split.rest);
        if (text.isEmpty())
            return;
        const seconds ofDay = split.time ? *split.time : seconds(m_untimed++);
        m_notes.append({QUuid::createUuid(), text.toString(), {}, {}, {}, m_day + ofDay});
        m_takesQuote = true;
    }

    const Calendar &m_calendar;
    Instant m_day;
    int m_untimed = 0; ///< notes without a time on this day so far
    bool m_takesQuote = false;
    QList<Note> m_notes;
};
} // namespace

QString NoteMarkdown::exported(const QList<Note> &notes, const Calendar &calendar)
{
    QString text;
    std::optional<Calendar::Day> current;
    for (const Note &note : notes) {
        const Calendar::Day date = calendar.day(note.createdAt);
        if (date != current) {
            if (current)
                text += u'\n';
            text += QString::asprintf(
                "# %04d-%02u-%02u\n\n", int(date.year()), unsigned(date.month()), unsigned(date.day()));
            current = date;
        }
        const Calendar::TimeOfDay time = calendar.timeOfDay(note.createdAt);
        text += QString::asprintf("- %02d:%02d ", time.hour, time.minute) + onOneLine(note.text) + u'\n';
        const QString quote = note.quote ? onOneLine(note.quote->trimmed()) : QString();
        if (!quote.isEmpty())
            text += QStringLiteral("  > ") + quote + u'\n';
    }
    return text.isEmpty() ? QStringLiteral("\n") : text;
}

QList<Note> NoteMarkdown::parse(QStringView text, Instant fallbackDay, const Calendar &calendar)
{
    Parser parser(fallbackDay, calendar);
    qsizetype start = 0;
    for (qsizetype end = 0; end <= text.size(); ++end) {
        if (end == text.size() || isNewline(text[end])) {
            parser.read(Characters::trimmedOfBlanks(text.sliced(start, end - start)));
            start = end + 1;
        }
    }
    return parser.notes();
}
