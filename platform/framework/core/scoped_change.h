#pragma once

#include <utility>

namespace fx {

/// Gives a variable another value for a scope, however the scope is left.
template <class T>
class [[nodiscard]] ScopedChange {
public:
    ScopedChange(T& variable, T value) : m_variable(variable), m_before(std::exchange(variable, value)) {}
    ~ScopedChange() { m_variable = m_before; }
    ScopedChange(const ScopedChange&) = delete;
    ScopedChange& operator=(const ScopedChange&) = delete;

private:
    T& m_variable;
    T m_before;
};

} // namespace fx
