#pragma once

#include <windows.h>

#include <cstdio>
#include <string>

/// How long the start of this process has taken so far, by phases: milliseconds by the clock since the system made the
/// process, and what its threads had of a processor.
class StartClock {
public:
    /// Ends the first phase: all before the program's own first line.
    StartClock() { End("process"); }

    /// The phase from the end of the one before until now.
    void End(const char* phase) {
        const Times now = Now();
        m_phases += (m_phases.empty() ? "\"" : ", \"") + std::string(phase) + "\": " + Text(now.wall - m_last.wall);
        m_last = now;
    }
    /// One line of JSON.
    void Print(const char* kind, int commands) const {
        std::printf("{\"kind\": \"%s\", \"commands\": %d, \"wall\": %s, \"cpu\": %s, \"phases\": {%s}}\n", kind,
                    commands, Text(m_last.wall).c_str(), Text(m_last.cpu).c_str(), m_phases.c_str());
        std::fflush(stdout);
    }

private:
    struct Times {
        double wall = 0, cpu = 0; // milliseconds
    };

    static double Milliseconds(const FILETIME& time) {
        constexpr double kTicks = 10'000;
        return static_cast<double>((static_cast<ULONGLONG>(time.dwHighDateTime) << 32) | time.dwLowDateTime) / kTicks;
    }
    static Times Now() {
        FILETIME made, ended, kernel, user, now;
        ::GetProcessTimes(::GetCurrentProcess(), &made, &ended, &kernel, &user);
        ::GetSystemTimePreciseAsFileTime(&now);
        return {Milliseconds(now) - Milliseconds(made), Milliseconds(kernel) + Milliseconds(user)};
    }
    static std::string Text(double milliseconds) {
        char text[32];
        std::snprintf(text, sizeof(text), "%.2f", milliseconds);
        return text;
    }

    Times m_last;
    std::string m_phases;
};
