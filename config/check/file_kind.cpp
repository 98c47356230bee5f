#include "config/check/file_kind.h"

#include <varnhold/letter_case.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr ConfigurationKind kKinds[] = {ConfigurationKind::Ribbon, ConfigurationKind::Menu,
                                        ConfigurationKind::ToolBars};

constexpr std::wstring_view kShortcuts = L"keys";

/// What the name of a file in cfg says that it is.
struct NameStart {
    std::wstring_view start;
    ConfigurationKind kind;
    /// Whether every program builds a bar of it; otherwise it is one that programs name themselves.
    bool isShown;
};
// Shortcuts come last: their texts are those of the elements before them.
const NameStart kNameStarts[] = {
    {FileNameStart(ConfigurationKind::Ribbon), ConfigurationKind::Ribbon, true},
    {L"status", ConfigurationKind::Ribbon, false},
    {FileNameStart(ConfigurationKind::Menu), ConfigurationKind::Menu, true},
    {FileNameStart(ConfigurationKind::ToolBars), ConfigurationKind::ToolBars, true},
    {kShortcuts, ConfigurationKind::Menu, false},
};

constexpr std::wstring_view kExtension = L".xml";

constexpr std::wstring_view kEditorsEnding = L".txt";

bool StartsWith(std::wstring_view name, std::wstring_view start) {
    return varnhold::EqualsIgnoringCase(name.substr(0, start.size()), start);
}

std::wstring_view NameIn(std::wstring_view path) { return path.substr(path.find_last_of(L"\\/") + 1); }

/// In cfg, by the beginning of the name and then by name.
std::vector<std::wstring> FilesThatEndIn(const InstallationFiles& files, std::wstring_view end, bool areShownAlone) {
    std::vector<std::wstring> found;
    for (const NameStart& one : kNameStarts) {
        for (const std::wstring& name : files.FilesIn(L"cfg")) {
            if ((one.isShown || !areShownAlone) && EndsWith(name, end) && StartsWith(name, one.start)) {
                found.push_back(L"cfg\\" + name);
            }
        }
    }
    return found;
}

} // namespace

std::vector<std::wstring> ShownFiles(const InstallationFiles& files) { return FilesThatEndIn(files, kExtension, true); }

std::vector<std::wstring> ConfigurationFiles(const InstallationFiles& files) {
    return FilesThatEndIn(files, kExtension, false);
}

std::vector<std::wstring> FilesOfOtherEndings(const InstallationFiles& files) {
    return FilesThatEndIn(files, std::wstring(kExtension) + std::wstring(kEditorsEnding), false);
}

bool EndsWith(std::wstring_view name, std::wstring_view end) {
    return name.size() > end.size() && varnhold::EqualsIgnoringCase(name.substr(name.size() - end.size()), end);
}

bool IsTableName(std::wstring_view name) { return EndsWith(name, L".xlf"); }

std::optional<ConfigurationKind> KindNamed(std::wstring_view name) {
    const auto* const found = std::ranges::find(kKinds, name, FileNameStart);
    return found == std::end(kKinds) ? std::nullopt : std::optional(*found);
}

ConfigurationKind KindOfFile(const std::wstring& fullPath) {
    const auto* const found = std::ranges::find_if(
        kNameStarts, [&fullPath](const NameStart& one) { return StartsWith(NameIn(fullPath), one.start); });
    if (found != std::end(kNameStarts)) {
        return found->kind;
    }
    CXmlDocumentWrapper document;
    document.Load(fullPath);
    return KindByAttributes(varnhold::XmlCursor(document));
}

bool IsShortcutFile(const std::wstring& fullPath) { return StartsWith(NameIn(fullPath), kShortcuts); }
