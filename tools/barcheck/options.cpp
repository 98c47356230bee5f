#include "options.h"

#include "config/check/file_kind.h"
#include "option_table.h"

#include <varnhold/strings.h>

#include <algorithm>
#include <filesystem>

namespace {

struct FormatName {
    std::wstring_view name;
    ReportFormat format;
};
constexpr FormatName kFormats[] = {
    {L"text", ReportFormat::Text},
    {L"json", ReportFormat::Json},
    {L"sarif", ReportFormat::Sarif},
    {L"github", ReportFormat::Github},
};

/// A language's code is the name of a folder.
bool IsCode(const std::wstring& value) {
    return !value.empty() && value.find_first_of(L"\\/:") == std::wstring::npos && value.front() != L'.';
}

OptionTable OptionsOf(BarcheckOptions& options) {
    using Task = BarcheckOptions::Task;
    const auto setFormat = [&options](const std::wstring& value) {
        const auto* const found = std::ranges::find(kFormats, value, &FormatName::name);
        if (found != std::end(kFormats)) {
            options.format = found->format;
        }
        return found != std::end(kFormats);
    };
    const auto setLanguage = [&options](const std::wstring& value) {
        options.language = value;
        return IsCode(value);
    };
    const auto setExtract = [&options](const std::wstring& value) {
        options.task = Task::Extract;
        options.extract = value;
        return IsCode(value);
    };
    const auto setModels = [&options](const std::wstring& value) {
        options.task = Task::Models;
        options.list = value;
        return !value.empty();
    };
    const auto setSchema = [&options](const std::wstring& value) {
        options.task = Task::Schema;
        options.schema = KindNamed(value);
        return options.schema || value == L"table";
    };
    const auto doTask = [&options](Task task) { return [&options, task] { options.task = task; }; };
    OptionTable table;
    table.Add(L"--format", setFormat)
        .Add(L"--lang", setLanguage)
        .Add(L"--extract", setExtract)
        .Add(L"--models", setModels)
        .Add(L"--schema", setSchema)
        .AddFlag(L"--strict", options.isStrict)
        .AddSwitch(L"--model", doTask(Task::Model))
        .AddSwitch(L"--guide", doTask(Task::Guide))
        .AddSwitch(L"--attributes", doTask(Task::Attributes))
        .AddSwitch(L"--help", doTask(Task::Help))
        .AddSwitch(L"-h", doTask(Task::Help));
    return table;
}

#ifdef _WIN32
constexpr wchar_t kSeparator = L'\\';
std::filesystem::path NativePath(const std::wstring& path) { return path; }
std::wstring WidePath(const std::filesystem::path& path) { return path.native(); }
#else
constexpr wchar_t kSeparator = L'/';
std::filesystem::path NativePath(const std::wstring& path) { return wstring2String(path); }
std::wstring WidePath(const std::filesystem::path& path) { return string2wstring(path.native()); }
#endif

/// A file as a shell completes it, absolute or relative to the working directory, becomes relative to the installation
/// directory that it lies in; any other stays.
std::wstring RelativeToDirectory(const std::wstring& file, const std::wstring& directory) {
    std::error_code error;
    const std::filesystem::path path = NativePath(file);
    const std::filesystem::path base = NativePath(directory);
    if (file.empty() || (path.is_relative() && std::filesystem::exists(base / path, error)) ||
        !std::filesystem::exists(path, error)) {
        return file;
    }
    const std::filesystem::path relative = std::filesystem::proximate(path, base, error);
    const bool isInside = !error && relative.is_relative() && *relative.begin() != "..";
    return isInside ? WidePath(relative) : file;
}

/// See BarcheckOptions.
std::wstring FolderOf(const std::wstring& directory) {
    const std::filesystem::path path = NativePath(directory).lexically_normal();
    std::wstring folder = path.is_absolute() || path.has_root_path() || path == "." ? std::wstring() : WidePath(path);
    std::ranges::replace(folder, kSeparator, L'/');
    return folder == L"./" ? std::wstring() : folder;
}

bool CheckDirectory(BarcheckOptions& options, std::wstring& error) {
    std::error_code ignored;
    if (options.directory.empty()) {
        error = L"the installation directory is missing";
        return false;
    }
    if (!std::filesystem::is_directory(NativePath(options.directory), ignored)) {
        error = L"no such directory: " + options.directory;
        return false;
    }
    if (options.directory.back() != kSeparator && options.directory.back() != L'/') {
        options.directory += kSeparator;
    }
    return true;
}

} // namespace

std::optional<BarcheckOptions> ParseBarcheckOptions(const std::vector<std::wstring>& arguments, std::wstring& error) {
    BarcheckOptions options;
    std::vector<std::wstring> words;
    if (!OptionsOf(options).Read(arguments, OptionTable::kAnyNumber, words, error)) {
        return std::nullopt;
    }
    if (!words.empty()) {
        options.directory = words.front();
        options.files.assign(words.begin() + 1, words.end());
    }
    const bool needsDirectory =
        options.task != BarcheckOptions::Task::Guide && options.task != BarcheckOptions::Task::Attributes &&
        options.task != BarcheckOptions::Task::Schema && options.task != BarcheckOptions::Task::Help &&
        options.task != BarcheckOptions::Task::Models;
    if (needsDirectory && !CheckDirectory(options, error)) {
        return std::nullopt;
    }
    if (needsDirectory) {
        options.folder = FolderOf(options.directory);
        for (std::wstring& file : options.files) {
            file = RelativeToDirectory(file, options.directory);
        }
    }
    return options;
}

const char* BarcheckUsage() {
    return "usage: barcheck DIR [FILE...] [--format text|json|sarif|github] [--strict] [--lang LANG]\n"
           "       barcheck DIR [FILE...] --extract LANG\n"
           "       barcheck DIR --model [--lang LANG]\n"
           "       barcheck --models LIST [--lang LANG]\n"
           "       barcheck --schema ribbon|menu|toolbar|table\n"
           "       barcheck --guide | --attributes | --help\n"
           "Says what is wrong with the configuration of the installation directory DIR: its ribbon, menu and toolbar\n"
           "files, the translation tables below lang and the icons that the files name. It reads them as the library\n"
           "does. Without a FILE (relative to DIR) it takes cfg\\ribbon*.xml, cfg\\menu*.xml and cfg\\toolbar*.xml, "
           "and\n"
           "what programs name besides: cfg\\status*.xml (ribbon files) and cfg\\keys*.xml (menu files with "
           "shortcuts). "
           "Of a\n"
           "FILE of another name the attributes say what it is; one that ends in .xlf is a translation table.\n"
           "  --format  text: FILE:LINE:COLUMN: SEVERITY: TEXT [CODE], the line and a caret below it; json; sarif "
           "(2.1.0);\n"
           "            github: commands that mark the places in a pull request\n"
           "  --strict  notes count as findings\n"
           "  --lang    only the tables of this language\n"
           "  --extract writes the table lang\\LANG, or completes the one that is there, with all texts that the files "
           "ask\n"
           "            for and a note where each stands; marks those that no file uses\n"
           "  --model   what the files build, in the form of barview's dump: commands, elements, menus, shortcuts, "
           "toolbars\n"
           "  --models  the same of many directories: each line of LIST is DIR, a tab, and the file that it goes to\n"
           "  --schema  an XML schema for this kind of file, as in docs/schemas\n"
           "  --guide   what every code means, as in docs/diagnostics.md\n"
           "  --attributes  every attribute of the files, as in docs/attributes.md\n"
           "  --help    this text; so does -h\n"
           "Exit code: 0 nothing but notes, 1 findings, or a table that was not written, 2 wrong usage.\n";
}
