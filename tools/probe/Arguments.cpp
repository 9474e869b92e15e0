#include "probe/Arguments.h"

#include "foundation/Clock.h"
#include "foundation/InternetDateTime.h"
#include "text/L10n.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace {
/// In the order of the enumeration.
constexpr std::array languageNames{"chinese"_L1, "english"_L1, "japanese"_L1, "korean"_L1, "german"_L1,
    "french"_L1, "spanish"_L1, "danish"_L1, "norwegian"_L1, "swedish"_L1, "dutch"_L1, "italian"_L1,
    "portuguese"_L1};
} // namespace

std::optional<Instant> parseProbeInstant(const QString &text)
{
    const qsizetype point = text.indexOf(u'.');
    if (point < 0)
        return InternetDateTime::parse(text.toUtf8());
    const qsizetype zone = text.indexOf(u'Z', point);
    bool isNumber = false;
    const double fraction = zone < 0 ? 0 : (u'0' + text.mid(point, zone - point)).toDouble(&isNumber);
    const auto whole = InternetDateTime::parse((text.first(point) + u'Z').toUtf8());
    if (!isNumber || !whole || zone + 1 != text.size())
        return std::nullopt;
    return *whole + milliseconds(qint64(fraction * 1000));
}

QJsonValue Answer::of(Instant instant)
{
    QString text = QString::fromLatin1(InternetDateTime::format(instant));
    const qint64 fraction = (instant - floor<seconds>(instant)).count();
    if (fraction != 0)
        text.insert(text.size() - 1, u".%1"_s.arg(fraction, 3, 10, QChar(u'0')));
    return text;
}

QJsonValue Answer::of(Calendar::Day day)
{
    return QString::asprintf("%04d-%02u-%02u", int(day.year()), unsigned(day.month()), unsigned(day.day()));
}

QJsonValue Answer::of(QUuid id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

QJsonValue Answer::of(const Note &note)
{
    QJsonObject object{{u"id"_s, of(note.id)}, {u"text"_s, note.text}, {u"createdAt"_s, of(note.createdAt)}};
    if (note.quote)
        object.insert(u"quote"_s, *note.quote);
    if (note.quoteID)
        object.insert(u"quoteID"_s, of(*note.quoteID));
    if (note.link)
        object.insert(u"link"_s, *note.link);
    return object;
}

QJsonValue Answer::of(const Reminder &reminder)
{
    return QJsonObject{{u"id"_s, of(reminder.id)}, {u"noteID"_s, of(reminder.noteID)},
        {u"text"_s, reminder.text}, {u"fullText"_s, reminder.fullText}, {u"fireAt"_s, of(reminder.fireAt)},
        {u"createdAt"_s, of(reminder.createdAt)}};
}

QJsonValue Answer::of(const ParsedReminder &reminder)
{
    return QJsonObject{{u"fireAt"_s, of(reminder.fireAt)}, {u"content"_s, reminder.content}};
}

QJsonValue Answer::of(ReminderLanguage language)
{
    return languageNames[size_t(language)];
}

QJsonValue Answer::of(SemanticHitKind kind)
{
    switch (kind) {
    case SemanticHitKind::Substring:
        return u"substring"_s;
    case SemanticHitKind::Lexical:
        return u"lexical"_s;
    case SemanticHitKind::SemanticOnly:
        return u"semanticOnly"_s;
    }
    return {};
}

Arguments::Arguments(QJsonObject step, const Arguments &request)
    : m_object(std::move(step))
{
    for (const QString &key : {u"now"_s, u"timeZone"_s, u"uiLanguage"_s}) {
        if (!has(key) && request.has(key))
            m_object.insert(key, request.value(key));
    }
}

void Arguments::fail(const QString &message)
{
    if (m_error.isEmpty())
        m_error = message;
}

bool Arguments::has(const QString &key) const
{
    return !value(key).isUndefined() && !value(key).isNull();
}

void Arguments::expect(bool isGood, const QString &key, const QString &what)
{
    if (!isGood)
        fail(u"\"%1\" must %2"_s.arg(key, what));
}

QString Arguments::text(const QString &key)
{
    expect(value(key).isString(), key, u"be a string"_s);
    return value(key).toString();
}

std::optional<QString> Arguments::optionalText(const QString &key)
{
    return has(key) ? std::optional(text(key)) : std::nullopt;
}

qsizetype Arguments::integer(const QString &key)
{
    const double number = value(key).toDouble();
    constexpr double most = 1LL << 53; // beyond which not every integer is there
    expect(value(key).isDouble() && std::abs(number) <= most && number == std::floor(number), key,
        u"be an integer"_s);
    return value(key).toInteger();
}

bool Arguments::flag(const QString &key)
{
    expect(!has(key) || value(key).isBool(), key, u"be true or false"_s);
    return value(key).toBool();
}

QUuid Arguments::uuid(const QString &key)
{
    const QUuid id = QUuid::fromString(text(key));
    expect(!id.isNull(), key, u"be a UUID"_s);
    return id;
}

QByteArray Arguments::base64(const QString &key)
{
    const auto decoded =
        QByteArray::fromBase64Encoding(text(key).toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    expect(bool(decoded), key, u"be base64"_s);
    return decoded.decoded;
}

QJsonArray Arguments::array(const QString &key)
{
    expect(value(key).isArray(), key, u"be an array"_s);
    return value(key).toArray();
}

QJsonObject Arguments::object(const QString &key)
{
    expect(value(key).isObject(), key, u"be an object"_s);
    return value(key).toObject();
}

QStringList Arguments::texts(const QString &key)
{
    QStringList texts;
    for (const QJsonValue &element : array(key)) {
        expect(element.isString(), key, u"hold strings"_s);
        texts.append(element.toString());
    }
    return texts;
}

Instant Arguments::instant(const QString &key)
{
    const auto instant = parseProbeInstant(text(key));
    expect(instant.has_value(), key, u"be an instant like 2026-03-02T02:00:00Z"_s);
    return instant.value_or(Instant());
}

ReminderLanguage Arguments::language()
{
    const auto name = std::find(languageNames.begin(), languageNames.end(), text(u"language"_s));
    if (name == languageNames.end()) {
        fail(u"\"language\" is none of the thirteen"_s);
        return ReminderLanguage::English;
    }
    return ReminderLanguage(name - languageNames.begin());
}

QList<double> Arguments::numbers(const QString &key)
{
    QList<double> numbers;
    for (const QJsonValue &element : array(key)) {
        expect(element.isDouble(), key, u"be an array of numbers"_s);
        numbers.append(element.toDouble());
    }
    return numbers;
}

QHash<QString, QList<double>> Arguments::numbersByName(const QString &key)
{
    QHash<QString, QList<double>> lists;
    Arguments of(object(key));
    for (const QString &name : of.m_object.keys())
        lists.insert(name, of.numbers(name));
    if (!of.isGood())
        fail(of.error());
    return lists;
}

QList<Note> Arguments::notes()
{
    QList<Note> notes;
    for (const QJsonValue &element : array(u"notes"_s)) {
        Arguments of(element.toObject());
        Note note{of.uuid(u"id"_s), of.text(u"text"_s), of.optionalText(u"quote"_s), {},
            of.optionalText(u"link"_s), of.instant(u"createdAt"_s)};
        if (of.has(u"quoteID"_s))
            note.quoteID = of.uuid(u"quoteID"_s);
        if (!of.isGood())
            fail(u"a note: "_s + of.error());
        notes.append(note);
    }
    return notes;
}

Instant Arguments::now()
{
    return has(u"now"_s) ? instant(u"now"_s) : SystemClock().now();
}

Calendar Arguments::calendar()
{
    return has(u"timeZone"_s) ? Calendar(text(u"timeZone"_s).toUtf8()) : Calendar::system();
}

QString Arguments::uiLanguage()
{
    return optionalText(u"uiLanguage"_s).value_or(L10n::currentLanguage());
}
