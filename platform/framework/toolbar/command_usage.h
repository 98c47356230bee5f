#pragma once

#include <cstdint>
#include <map>

namespace toolbar {

/// How often each command was chosen in menus. A plain value, without windows.
class CommandUsage {
public:
    /// Nothing is rare before so many choices; from then on what makes up less than the percentage of them.
    struct Options {
        std::uint64_t startCount = 0;
        std::uint64_t leastPercentage = 5;
    };

    void Add(std::uint32_t command) { Add(command, 1); }
    void Add(std::uint32_t command, std::uint64_t times);
    bool IsRare(std::uint32_t command, const Options& options) const;
    const std::map<std::uint32_t, std::uint64_t>& Counts() const { return m_counts; }

private:
    std::map<std::uint32_t, std::uint64_t> m_counts;
    std::uint64_t m_total = 0;
};

/// What was counted in the menus so far, of all commands.
bool HasCommandUsage();
void ForgetCommandUsage();

} // namespace toolbar
