#pragma once

#include "foundation/Calendar.h"
#include "foundation/Instant.h"
#include "model/Note.h"
#include "model/Reminder.h"
#include "reminders/ParsedReminder.h"
#include "reminders/ReminderLanguage.h"
#include "search/SemanticSearch.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

/// The arguments of one request. Reading one that is missing or of the wrong type returns a default and sets
/// error(), so that an operation need not check each; its answer is valid only if isGood().
class Arguments final
{
public:
    explicit Arguments(QJsonObject object)
        : m_object(std::move(object))
    {
    }
    /// The arguments of a step; a time or language that it lacks is taken from the request.
    Arguments(QJsonObject step, const Arguments &request);

    [[nodiscard]] bool isGood() const { return m_error.isEmpty(); }
    [[nodiscard]] const QString &error() const { return m_error; }
    void fail(const QString &message);

    QString text(const QString &key);
    std::optional<QString> optionalText(const QString &key); ///< nothing when absent or null
    qsizetype integer(const QString &key);
    bool flag(const QString &key); ///< false when absent
    QUuid uuid(const QString &key);
    QByteArray base64(const QString &key);
    QJsonArray array(const QString &key);
    QJsonObject object(const QString &key);
    [[nodiscard]] bool has(const QString &key) const;
    Instant instant(const QString &key);
    ReminderLanguage language();
    QList<Note> notes();
    QStringList texts(const QString &key);
    QList<double> numbers(const QString &key);
    QHash<QString, QList<double>> numbersByName(const QString &key); ///< from an object of arrays

    Instant now(); ///< the real time when absent
    Calendar calendar();
    QString uiLanguage();

private:
    /// Fails unless the argument is what it must be: "a string".
    void expect(bool isGood, const QString &key, const QString &what);
    [[nodiscard]] QJsonValue value(const QString &key) const { return m_object.value(key); }

    QJsonObject m_object;
    QString m_error;
};

/// The JSON form of values in answers.
namespace Answer {
[[nodiscard]] inline QJsonValue of(const QString &text)
{
    return text;
}
[[nodiscard]] inline QJsonValue of(qsizetype number)
{
    return number;
}
[[nodiscard]] inline QJsonValue of(double number)
{
    return number;
}
[[nodiscard]] QJsonValue of(Instant instant); ///< whole seconds unless there is a fraction
[[nodiscard]] QJsonValue of(Calendar::Day day);
[[nodiscard]] QJsonValue of(QUuid id);
[[nodiscard]] QJsonValue of(const Note &note);
[[nodiscard]] QJsonValue of(const Reminder &reminder);
[[nodiscard]] QJsonValue of(const ParsedReminder &reminder);
[[nodiscard]] QJsonValue of(ReminderLanguage language);
[[nodiscard]] QJsonValue of(SemanticHitKind kind);
template <typename Value>
[[nodiscard]] QJsonValue of(const QList<Value> &values)
{
    QJsonArray array;
    for (const Value &value : values)
        array.append(of(value));
    return array;
}
/// Null when there is none.
template <typename Value>
[[nodiscard]] QJsonValue of(const std::optional<Value> &value)
{
    return value ? of(*value) : QJsonValue();
}
} // namespace Answer

/// "2026-03-02T02:00:00Z", also with a fraction of a second.
[[nodiscard]] std::optional<Instant> parseProbeInstant(const QString &text);
