#pragma once

#include <utility>

/// Gives a variable another value for a scope and the old one back afterwards.
template <class T>
class ScopedValue {
public:
    template <class Value>
    ScopedValue(T& variable, Value&& value)
        : m_variable(variable), m_before(std::exchange(variable, std::forward<Value>(value))) {}
    ~ScopedValue() { m_variable = std::move(m_before); }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;

private:
    T& m_variable;
    T m_before;
};

template <class T, class Value>
ScopedValue(T&, Value&&) -> ScopedValue<T>;
