#pragma once

#include "varnhold/varnhold_api.h"

#include <mutex>
#include <string>

/// Recursive mutex that carries a name for diagnostics. May be locked again by the thread that holds it.
class VARNHOLD_API xrecursive_mutex {
public:
    /// Holds the mutex from construction to destruction.
    class scoped_lock {
    public:
        explicit scoped_lock(xrecursive_mutex& mutex) : m_lock(mutex.m_mutex) {}

    private:
        std::lock_guard<std::recursive_mutex> m_lock;
    };

    xrecursive_mutex() = default;
    explicit xrecursive_mutex(const char* prompt);
    xrecursive_mutex(const xrecursive_mutex&) = delete;
    xrecursive_mutex& operator=(const xrecursive_mutex&) = delete;

    /// Names the mutex. Not guarded: name it before other threads see it.
    void setPrompt(const char* prompt);
    const std::string& getPrompt() const noexcept { return m_prompt; }

    void lock() { m_mutex.lock(); }
    bool try_lock() { return m_mutex.try_lock(); }
    void unlock() { m_mutex.unlock(); }

private:
    mutable std::recursive_mutex m_mutex;
    std::string m_prompt;
};
