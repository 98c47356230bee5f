#include "options.h"

#include "option_table.h"

#include <afxwin.h>

#include <algorithm>
#include <filesystem>

namespace {

constexpr int kLargest = 16384;
constexpr int kMostTimes = 1'000'000;
constexpr int kLowestScale = 50; // percent
constexpr int kHighestScale = 400;

/// cfg\KIND*.xml of the directory in name order, as paths relative to it. Letter case says nothing, as in the file
/// system; `kind` is in capitals.
std::vector<std::wstring> FindFiles(const std::wstring& directory, const CString& kind) {
    std::vector<std::wstring> files;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(directory) / L"cfg", error)) {
        const std::wstring name = entry.path().filename().wstring();
        const CString folded = CString(name.c_str()).MakeUpper();
        if (entry.is_regular_file(error) && folded.Left(kind.GetLength()) == kind && folded.Right(4) == L".XML") {
            files.push_back(L"cfg\\" + name);
        }
    }
    std::sort(files.begin(), files.end(), [](const std::wstring& left, const std::wstring& right) {
        return CString(left.c_str()).CompareNoCase(right.c_str()) < 0;
    });
    return files;
}

} // namespace

const wchar_t* BarviewUsage() {
    return L"usage: barview DIR [--ribbon FILE]... [--menu FILE] [--toolbars FILE] [--lang LANG]\n"
           L"               [--skin black|silver] [--size WxH]\n"
           L"               [--scale PERCENT] [--category NAME] [--path NAME] [--app NAME] [--screenshot OUT.png]\n"
           L"               [--dump OUT.json] [--watch [--changes N]]\n"
           L"       barview --batch LIST [--lang LANG] [--skin black|silver] [--size WxH] [--scale PERCENT]\n"
           L"Shows the bars that the configuration in the installation directory DIR builds. Without --ribbon, "
           L"--menu\n"
           L"or --toolbars it takes cfg\\ribbon*.xml, cfg\\menu*.xml or cfg\\toolbar*.xml in name order. With "
           L"--screenshot or --dump it leaves when "
           L"they are written.\n"
           L"Exit code: 0, 1 when a file could not be loaded or written, when there is no ribbon file, or no "
           L"category, path\n"
           L"or status row of that name, 2 on wrong usage. The categories of each ribbon file are a path, named as the "
           L"file is "
           L"without\n"
           L"its extension; --app names the ribbon file whose status row is shown in a status bar. Each line of LIST\n"
           L"is a directory, a tab and the file for its dump; each directory is built as if it were the first.\n"
           L"--watch builds the bars anew whose files below DIR change, and writes --screenshot and --dump again each "
           L"time;\n"
           L"a broken file leaves what is shown as it is, and the caption says what is wrong. --changes leaves after N "
           L"of them.\n";
}

std::optional<BarviewOptions> ParseBarviewOptions(const std::vector<std::wstring>& arguments, std::wstring& error) {
    BarviewOptions options;
    std::vector<std::wstring> directories;
    const bool isUnderstood = OptionTable()
                                  .AddTexts(L"--ribbon", options.ribbonFiles)
                                  .Add(L"--menu",
                                       [&options](const std::wstring& file) {
                                           options.menuFiles = {file};
                                           return !file.empty();
                                       })
                                  .Add(L"--toolbars",
                                       [&options](const std::wstring& file) {
                                           options.toolBarFiles = {file};
                                           return !file.empty();
                                       })
                                  .AddText(L"--lang", options.language)
                                  .AddChoice(L"--skin", {L"black", L"silver"}, options.skin)
                                  .AddSize(L"--size", kLargest, options.width, options.height)
                                  .AddNumber(L"--scale", kLowestScale, kHighestScale, options.scalePercent)
                                  .AddText(L"--category", options.category)
                                  .AddText(L"--path", options.path)
                                  .AddText(L"--app", options.application)
                                  .AddText(L"--screenshot", options.screenshot)
                                  .AddText(L"--dump", options.dump)
                                  .AddText(L"--batch", options.batch)
                                  .AddFlag(L"--watch", options.isWatching)
                                  .AddNumber(L"--changes", 1, kMostTimes, options.changes)
                                  .Read(arguments, 1, directories, error);
    if (!isUnderstood) {
        return std::nullopt;
    }
    std::wstring directory = directories.empty() ? L"" : directories.front();
    if (!options.batch.empty()) {
        if (directory.empty() && options.screenshot.empty() && options.dump.empty()) {
            return options;
        }
        error = L"--batch takes directories and outputs from its list";
        return std::nullopt;
    }
    if (directory.empty()) {
        error = L"the installation directory is missing";
        return std::nullopt;
    }
    std::error_code ignored;
    if (!std::filesystem::is_directory(directory, ignored)) {
        error = L"no such directory: " + directory;
        return std::nullopt;
    }
    if (directory.back() != L'\\' && directory.back() != L'/') {
        directory += L'\\';
    }
    TakeDirectory(directory, options);
    return options;
}

void TakeDirectory(const std::wstring& directory, BarviewOptions& options) {
    options.directory = directory;
    if (options.ribbonFiles.empty()) {
        options.ribbonFiles = FindFiles(options.directory, L"RIBBON");
    }
    if (options.menuFiles.empty()) {
        options.menuFiles = FindFiles(options.directory, L"MENU");
    }
    if (options.toolBarFiles.empty()) {
        options.toolBarFiles = FindFiles(options.directory, L"TOOLBAR");
    }
}
