#include "attribute_guide.h"
#include "config/check/configuration_check.h"
#include "extract.h"
#include "model.h"
#include "options.h"
#include "reports.h"
#include "schema.h"
#include "table_schema.h"

#include <varnhold/strings.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace {

enum ExitCode { Clean = 0, HasFindings = 1, WrongUsage = 2 };

void Print(const std::string& text, std::FILE* stream) { std::fwrite(text.data(), 1, text.size(), stream); }

std::string ReportOf(const std::vector<Diagnostic>& findings, const BarcheckOptions& options) {
    switch (options.format) {
    case ReportFormat::Json:
        return JsonReport(findings);
    case ReportFormat::Sarif:
        return SarifReport(findings, options.folder);
    case ReportFormat::Github:
        return GithubReport(findings, options.folder);
    case ReportFormat::Text:
        break;
    }
    return TextReport(findings, options.directory);
}

int Check(const BarcheckOptions& options) {
    const std::vector<Diagnostic> findings = CheckConfiguration({options.directory, options.files, options.language});
    Print(ReportOf(findings, options), stdout);
    if (!findings.empty() && options.format == ReportFormat::Text) {
        std::fflush(stdout);
        Print("barcheck: " + Summary(findings) + "\n", stderr);
    }
    const bool counts = std::ranges::any_of(findings, [&](const Diagnostic& finding) {
        return options.isStrict || finding.severity != DiagnosticSeverity::Note;
    });
    return counts ? HasFindings : Clean;
}

int Extract(const BarcheckOptions& options) {
    std::wstring message;
    const bool isWritten = ExtractTexts(options, message);
    Print((isWritten ? "" : "barcheck: ") + wstring2String(message) + "\n", isWritten ? stdout : stderr);
    return isWritten ? Clean : HasFindings;
}

std::filesystem::path NativePath(const std::wstring& path) {
#ifdef _WIN32
    return path;
#else
    return wstring2String(path);
#endif
}

/// False, with a line on standard error, when the list cannot be read or a model not written.
bool WriteModels(const BarcheckOptions& options) {
    std::ifstream list(NativePath(options.list), std::ios::binary);
    bool isWritten = list.is_open();
    for (std::string line; isWritten && std::getline(list, line);) {
        const std::size_t tab = line.find('\t');
        isWritten = tab != std::string::npos && tab > 0;
        if (isWritten) {
            std::wstring directory = string2wstring(line.substr(0, tab));
            if (directory.back() != L'/' && directory.back() != L'\\') {
                directory += L'/';
            }
            std::ofstream file(NativePath(string2wstring(line.substr(tab + 1))), std::ios::binary);
            file << ModelOf(directory, options.language).dump(2) << '\n';
            isWritten = file.flush().good();
        }
        if (!isWritten) {
            Print("barcheck: not written: " + line + "\n", stderr);
        }
    }
    return isWritten;
}

int Run(const std::vector<std::wstring>& arguments) {
    std::wstring error;
    const std::optional<BarcheckOptions> options = ParseBarcheckOptions(arguments, error);
    if (!options) {
        Print("barcheck: " + wstring2String(error) + "\n" + BarcheckUsage(), stderr);
        return WrongUsage;
    }
    switch (options->task) {
    case BarcheckOptions::Task::Help:
        Print(BarcheckUsage(), stdout);
        return Clean;
    case BarcheckOptions::Task::Guide:
        Print(DiagnosticsGuide(), stdout);
        return Clean;
    case BarcheckOptions::Task::Attributes:
        Print(AttributeReference(), stdout);
        return Clean;
    case BarcheckOptions::Task::Extract:
        return Extract(*options);
    case BarcheckOptions::Task::Model:
        Print(ModelOf(options->directory, options->language).dump(2) + "\n", stdout);
        return Clean;
    case BarcheckOptions::Task::Schema:
        Print(options->schema ? SchemaOf(*options->schema) : std::string(TableSchema()), stdout);
        return Clean;
    case BarcheckOptions::Task::Models:
        return WriteModels(*options) ? Clean : WrongUsage;
    case BarcheckOptions::Task::Check:
        break;
    }
    return Check(*options);
}

} // namespace

#ifdef _WIN32
int wmain(int count, wchar_t** arguments) {
    ::_setmode(::_fileno(stdout), _O_BINARY); // the same bytes on every system
    return Run({arguments + 1, arguments + count});
}
#else
int main(int count, char** arguments) {
    std::vector<std::wstring> wide;
    for (int i = 1; i < count; ++i) {
        wide.push_back(string2wstring(arguments[i]));
    }
    return Run(wide);
}
#endif
