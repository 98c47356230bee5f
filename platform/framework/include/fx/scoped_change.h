#pragma once

#include <utility>

namespace fx {

/// Gives a variable another value for a scope and the old one back, however the scope is left.
template <class T>
class [[nodiscard]] ScopedChange {
public:
    template <class Value>
    ScopedChange(T& variable, Value&& value)
        : m_variable(variable), m_before(std::exchange(variable, std::forward<Value>(value))) {}
    ~ScopedChange() { m_variable = std::move(m_before); }
    ScopedChange(const ScopedChange&) = delete;
    ScopedChange& operator=(const ScopedChange&) = delete;

private:
    T& m_variable;
    T m_before;
};

template <class T, class Value>
ScopedChange(T&, Value&&) -> ScopedChange<T>;

} // namespace fx
