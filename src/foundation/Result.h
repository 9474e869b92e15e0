#pragma once

#include <QString>

#include <utility>
#include <variant>

/// Why something could not be done: one line for the log.
struct Failure {
    QString message;
};

/// A value, or the message that tells why there is none.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_state(std::move(value))
    {
    }
    Result(Failure failure)
        : m_state(std::move(failure))
    {
    }

    [[nodiscard]] bool hasValue() const { return std::holds_alternative<T>(m_state); }
    explicit operator bool() const { return hasValue(); }
    [[nodiscard]] const T &value() const { return std::get<T>(m_state); }
    [[nodiscard]] T &value() { return std::get<T>(m_state); }
    [[nodiscard]] const QString &message() const { return std::get<Failure>(m_state).message; }

private:
    std::variant<T, Failure> m_state;
};

struct Done {
};

/// The result of something that is done for its effect.
using Outcome = Result<Done>;
