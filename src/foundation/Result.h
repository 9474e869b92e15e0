#pragma once

#include <QString>

#include <utility>
#include <variant>

/// Why something could not be done.
struct Failure {
    QString message;     ///< one line for the log
    int systemError = 0; ///< errno of the system call that failed; 0 when none did
};

/// A value, or the reason why there is none.
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
    [[nodiscard]] const Failure &failure() const { return std::get<Failure>(m_state); }
    [[nodiscard]] const QString &message() const { return failure().message; }

private:
    std::variant<T, Failure> m_state;
};

struct Done {
};

/// The result of an operation that has an effect but no value.
using Outcome = Result<Done>;
