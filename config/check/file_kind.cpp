#include "config/check/file_kind.h"

#include <varnhold/letter_case.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr ConfigurationKind kKinds[] = {ConfigurationKind::Ribbon, ConfigurationKind::Menu,
                                        ConfigurationKind::ToolBars};
constexpr std::wstring_view kExtension = L".xml";

constexpr std::wstring_view kEditorsEnding = L".txt";

bool StartsWith(std::wstring_view name, std::wstring_view start) {
    return varnhold::EqualsIgnoringCase(name.substr(0, start.size()), start);
}

/// In cfg, by kind and then by name.
std::vector<std::wstring> FilesThatEndIn(const InstallationFiles& files, std::wstring_view end) {
    std::vector<std::wstring> found;
    for (const ConfigurationKind kind : kKinds) {
        for (const std::wstring& name : files.FilesIn(L"cfg")) {
            if (EndsWith(name, end) && StartsWith(name, FileNameStart(kind))) {
                found.push_back(L"cfg\\" + name);
            }
        }
    }
    return found;
}

} // namespace

std::vector<std::wstring> ConfigurationFiles(const InstallationFiles& files) {
    return FilesThatEndIn(files, kExtension);
}

std::vector<std::wstring> FilesOfOtherEndings(const InstallationFiles& files) {
    return FilesThatEndIn(files, std::wstring(kExtension) + std::wstring(kEditorsEnding));
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
    const std::wstring_view name = std::wstring_view(fullPath).substr(fullPath.find_last_of(L"\\/") + 1);
    for (const ConfigurationKind kind : kKinds) {
        if (StartsWith(name, FileNameStart(kind))) {
            return kind;
        }
    }
    CXmlDocumentWrapper document;
    document.Load(fullPath);
    return KindByAttributes(varnhold::XmlCursor(document));
}
