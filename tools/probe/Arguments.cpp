#include "probe/Arguments.h"

#include "foundation/Clock.h"
#include "foundation/InternetDateTime.h"
#include "text/L10n.h"

#include <array>
#include <cmath>

using namespace std::chrono;

namespace {
/// In the order of the enumeration.
constexpr std::array languageNames{"chinese", "english", "japanese", "korean", "german", "french", "spanish",
    "danish", "norwegian", "swedish", "dutch", "italian", "portuguese"};
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

QString Answer::instant(Instant instant)
{
    QString text = QString::fromLatin1(InternetDateTime::format(instant));
    const qint64 fraction = (instant - floor<seconds>(instant)).count();
    if (fraction != 0)
        text.insert(text.size() - 1, QStringLiteral(".%1").arg(fraction, 3, 10, QChar(u'0')));
    return text;
}

QString Answer::day(Calendar::Day day)
{
    return QString::asprintf("%04d-%02u-%02u", int(day.year()), unsigned(day.month()), unsigned(day.day()));
}

QString Answer::uuid(QUuid id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

QJsonObject Answer::note(const Note &note)
{
    QJsonObject object{{QStringLiteral("id"), uuid(note.id)}, {QStringLiteral("text"), note.text},
        {QStringLiteral("createdAt"), instant(note.createdAt)}};
    if (note.quote)
        object.insert(QStringLiteral("quote"), *note.quote);
    if (note.quoteID)
        object.insert(QStringLiteral("quoteID"), uuid(*note.quoteID));
    if (note.link)
        object.insert(QStringLiteral("link"), *note.link);
    return object;
}

QJsonArray Answer::notes(const QList<Note> &notes)
{
    QJsonArray array;
    for (const Note &note : notes)
        array.append(Answer::note(note));
    return array;
}

QJsonValue Answer::orNull(const std::optional<QString> &text)
{
    return text ? QJsonValue(*text) : QJsonValue();
}

QString Answer::kindName(SemanticHitKind kind)
{
    switch (kind) {
    case SemanticHitKind::Substring:
        return QStringLiteral("substring");
    case SemanticHitKind::Lexical:
        return QStringLiteral("lexical");
    case SemanticHitKind::SemanticOnly:
        return QStringLiteral("semanticOnly");
    }
    return {};
}

QString Answer::languageName(ReminderLanguage language)
{
    return QString::fromLatin1(languageNames[size_t(language)]);
}

Arguments::Arguments(QJsonObject step, const Arguments &request)
    : m_object(std::move(step))
{
    for (const QString &key :
        {QStringLiteral("now"), QStringLiteral("timeZone"), QStringLiteral("uiLanguage")}) {
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

QString Arguments::text(const QString &key)
{
    if (!value(key).isString())
        fail(QStringLiteral("\"%1\" must be a string").arg(key));
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
    if (!value(key).isDouble() || !(std::abs(number) <= most) || number != std::floor(number))
        fail(QStringLiteral("\"%1\" must be an integer").arg(key));
    return value(key).toInteger();
}

bool Arguments::flag(const QString &key)
{
    if (has(key) && !value(key).isBool())
        fail(QStringLiteral("\"%1\" must be true or false").arg(key));
    return value(key).toBool();
}

QByteArray Arguments::base64(const QString &key)
{
    const auto decoded =
        QByteArray::fromBase64Encoding(text(key).toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        fail(QStringLiteral("\"%1\" must be base64").arg(key));
    return decoded.decoded;
}

QJsonArray Arguments::array(const QString &key)
{
    if (!value(key).isArray())
        fail(QStringLiteral("\"%1\" must be an array").arg(key));
    return value(key).toArray();
}

QJsonObject Arguments::object(const QString &key)
{
    if (!value(key).isObject())
        fail(QStringLiteral("\"%1\" must be an object").arg(key));
    return value(key).toObject();
}

QStringList Arguments::texts(const QString &key)
{
    QStringList texts;
    for (const QJsonValue &element : array(key)) {
        if (!element.isString())
            fail(QStringLiteral("\"%1\" must hold strings").arg(key));
        texts.append(element.toString());
    }
    return texts;
}

Instant Arguments::instant(const QString &key)
{
    const auto instant = parseProbeInstant(text(key));
    if (!instant)
        fail(QStringLiteral("\"%1\" must be an instant like 2026-03-02T02:00:00Z").arg(key));
    return instant.value_or(Instant());
}

ReminderLanguage Arguments::language()
{
    const QString name = text(QStringLiteral("language"));
    for (size_t i = 0; i < languageNames.size(); ++i) {
        if (name == QLatin1String(languageNames[i]))
            return ReminderLanguage(i);
    }
    fail(QStringLiteral("\"language\" is none of the thirteen"));
    return ReminderLanguage::English;
}

QList<double> Arguments::numbers(const QString &key)
{
    QList<double> numbers;
    for (const QJsonValue &element : array(key)) {
        if (!element.isDouble())
            fail(QStringLiteral("\"%1\" must be an array of numbers").arg(key));
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
    for (const QJsonValue &element : array(QStringLiteral("notes"))) {
        Arguments of(element.toObject());
        const auto id = [&of](const QString &key) {
            const QUuid parsed = QUuid::fromString(of.text(key));
            if (parsed.isNull())
                of.fail(QStringLiteral("\"%1\" must be a UUID").arg(key));
            return parsed;
        };
        Note note{id(QStringLiteral("id")), of.text(QStringLiteral("text")),
            of.optionalText(QStringLiteral("quote")), {}, of.optionalText(QStringLiteral("link")),
            of.instant(QStringLiteral("createdAt"))};
        if (of.has(QStringLiteral("quoteID")))
            note.quoteID = id(QStringLiteral("quoteID"));
        if (!of.isGood())
            fail(QStringLiteral("a note: ") + of.error());
        notes.append(note);
    }
    return notes;
}

Instant Arguments::now()
{
    return has(QStringLiteral("now")) ? instant(QStringLiteral("now")) : SystemClock().now();
}

Calendar Arguments::calendar()
{
    return has(QStringLiteral("timeZone")) ? Calendar(text(QStringLiteral("timeZone")).toUtf8())
                                           : Calendar::system();
}

QString Arguments::uiLanguage()
{
    return optionalText(QStringLiteral("uiLanguage")).value_or(L10n::currentLanguage());
}
