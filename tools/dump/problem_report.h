#pragma once

#include "configuration_problems.h"

#include <map>
#include <string>
#include <vector>

/// What people read of the problems of configuration files: the place, which editors and terminals make a link, the
/// line with a caret below the place, and how to mend it. Each file is read once as long as this lives.
class ProblemReport {
public:
    /// `directory`: where the problems' files lie, with its closing separator.
    explicit ProblemReport(std::wstring directory) : m_directory(std::move(directory)) {}

    /// "file:line:column: severity: text [code]" and the lines below it, each with its closing line break. The file is
    /// shown relative to the directory, with "/"; so are those of related places.
    std::wstring Of(const ConfigurationProblem& problem);
    /// The same in a few words: "file:line:column: text".
    std::wstring InShort(const ConfigurationProblem& problem) const;

private:
    std::wstring RelativeName(const std::wstring& file) const;
    /// Empty for a line that there is not. `file`: relative.
    std::wstring LineOf(const std::wstring& file, std::size_t line);

    std::wstring m_directory;
    /// UTF-8, by the relative name of the file.
    std::map<std::wstring, std::vector<std::string>> m_lines;
};
