#pragma once

#include <boost/function.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace varnhold {

/// The texts of one language: section, then unit key.
class LanguageTables {
public:
    typedef boost::function<void(const std::wstring& problem)> ProblemSink;

    /// Adds the texts of one XLIFF 2 file. False when it cannot be read or is no such file; what is wrong, also with a
    /// single unit, is told to the sink.
    bool AddFile(const std::wstring& path, const std::wstring& language, const ProblemSink& sink);

    /// Null when there is no such entry. An entry may be an empty text.
    const std::wstring* Find(std::string_view section, std::string_view key) const;

private:
    struct Hash {
        typedef void is_transparent;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };
    typedef std::unordered_map<std::string, std::wstring, Hash, std::equal_to<>> Section;

    friend class TableFiller;
    std::unordered_map<std::string, Section, Hash, std::equal_to<>> m_sections;
};

} // namespace varnhold
