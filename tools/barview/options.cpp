#include "options.h"

#include "option_table.h"

#include <afxwin.h>

#include <algorithm>
#include <filesystem>
#include <functional>

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

/// What stands between the commas.
std::vector<std::wstring> Pieces(const std::wstring& text) {
    std::vector<std::wstring> pieces(1);
    for (const wchar_t c : text) {
        if (c == L',') {
            pieces.emplace_back();
        } else {
            pieces.back() += c;
        }
    }
    return pieces;
}

/// Reads each piece as the table would read it alone, and keeps it in the list.
template <class Value>
OptionTable::Setter ListOf(std::vector<Value>& list, const std::function<bool(const std::wstring&, Value&)>& read) {
    return [&list, read](const std::wstring& text) {
        list.clear();
        for (const std::wstring& piece : Pieces(text)) {
            Value value{};
            if (!read(piece, value)) {
                return false;
            }
            list.push_back(std::move(value));
        }
        return true;
    };
}

bool ReadAlone(OptionTable& table, const std::wstring& value) {
    std::vector<std::wstring> words;
    std::wstring error;
    return table.Read({L"--value", value}, 0, words, error);
}

bool ReadSkin(const std::wstring& text, std::wstring& skin) {
    OptionTable table;
    return ReadAlone(table.AddChoice(L"--value", {L"black", L"silver"}, skin), text);
}
bool ReadLanguage(const std::wstring& text, std::wstring& language) {
    language = text;
    return !text.empty();
}
bool ReadScale(const std::wstring& text, int& scale) {
    OptionTable table;
    return ReadAlone(table.AddNumber(L"--value", kLowestScale, kHighestScale, scale), text);
}
bool ReadSize(const std::wstring& text, std::pair<int, int>& size) {
    OptionTable table;
    return ReadAlone(table.AddSize(L"--value", kLargest, size.first, size.second), text);
}

} // namespace

const wchar_t* BarviewUsage() {
    return L"usage: barview DIR [--ribbon FILE]... [--menu FILE] [--toolbars FILE] [--lang LANG]\n"
           L"               [--skin black|silver] [--size WxH]\n"
           L"               [--scale PERCENT] [--category NAME] [--path NAME] [--app NAME] [--screenshot OUT.png]\n"
           L"               [--dump OUT.json] [--watch [--changes N]]\n"
           L"       barview DIR --matrix OUT [--skins S,...] [--langs L,...] [--scales P,...] [--sizes WxH,...] "
           L"[--against "
           L"OTHER]\n"
           L"       barview --batch LIST [--lang LANG] [--skin black|silver] [--size WxH] [--scale PERCENT]\n"
           L"       barview --help\n"
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
           L"--matrix writes a picture of every tab in every combination and OUT\\index.html, which shows them side by "
           L"side.\n"
           L"Among the languages are pseudo (longer texts with marks, in brackets) and mirrored (from the right to the "
           L"left).\n"
           L"--against marks what is different in the installation directory OTHER.\n"
           L"--watch builds the bars anew whose files below DIR change, and writes --screenshot and --dump again each "
           L"time;\n"
           L"a broken file leaves its bars as they are, and caption and standard error say what is wrong. --changes "
           L"leaves after N\n"
           L"of them. --help writes this text.\n";
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
                                  .AddText(L"--matrix", options.matrix)
                                  .AddText(L"--against", options.against)
                                  .Add(L"--skins", ListOf<std::wstring>(options.skins, ReadSkin))
                                  .Add(L"--langs", ListOf<std::wstring>(options.languages, ReadLanguage))
                                  .Add(L"--scales", ListOf<int>(options.scales, ReadScale))
                                  .Add(L"--sizes", ListOf<std::pair<int, int>>(options.sizes, ReadSize))
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
    options.isRibbonNamed = !options.ribbonFiles.empty();
    options.isMenuNamed = !options.menuFiles.empty();
    options.areToolBarsNamed = !options.toolBarFiles.empty();
    FindUnnamedFiles(options);
}

void FindUnnamedFiles(BarviewOptions& options) {
    const auto find = [&options](bool isNamed, const wchar_t* kind, std::vector<std::wstring>& files) {
        std::vector<std::wstring> found = isNamed ? std::vector<std::wstring>() : FindFiles(options.directory, kind);
        if (!found.empty()) {
            files = std::move(found);
        }
    };
    find(options.isRibbonNamed, L"RIBBON", options.ribbonFiles);
    find(options.isMenuNamed, L"MENU", options.menuFiles);
    find(options.areToolBarsNamed, L"TOOLBAR", options.toolBarFiles);
}
