#pragma once

#include "config/check/configuration_check.h"

#include <optional>
#include <string>
#include <vector>

enum class ReportFormat { Text, Json, Sarif, Github };

/// What the program was asked for.
struct BarcheckOptions {
    enum class Task { Check, Extract, Model, Models, Guide, Attributes, Schema, Help };
    Task task = Task::Check;
    /// Installation directory, with its closing separator.
    std::wstring directory;
    /// The same with "/", where it was given relative to the working directory and is another one; otherwise empty.
    std::wstring folder;
    /// Relative to the directory; none: those that are there.
    std::vector<std::wstring> files;
    ReportFormat format = ReportFormat::Text;
    /// Notes count as findings.
    bool isStrict = false;
    std::wstring language;
    /// The kind of file that a schema is wanted for; none: translation tables.
    std::optional<ConfigurationKind> schema;
    /// The file that lists directories and the files of their models.
    std::wstring list;
    /// The language whose table is to be written.
    std::wstring extract;
};

/// Nothing, with a line in `error`, on wrong usage.
std::optional<BarcheckOptions> ParseBarcheckOptions(const std::vector<std::wstring>& arguments, std::wstring& error);

const char* BarcheckUsage();
