#include "config/check/file_kind.h"

#include <varnhold/letter_case.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr ConfigurationKind kKinds[] = {ConfigurationKind::Ribbon, ConfigurationKind::Menu,
                                        ConfigurationKind::ToolBars};
constexpr std::wstring_view kExtension = L".xml";

bool StartsWith(std::wstring_view name, std::wstring_view start) {
    return varnhold::EqualsIgnoringCase(name.substr(0, start.size()), start);
}

} // namespace

std::vector<std::wstring> ConfigurationFiles(const InstallationFiles& files) {
    std::vector<std::wstring> found;
    for (const ConfigurationKind kind : kKinds) {
        for (const std::wstring& name : files.FilesIn(L"cfg")) {
            const bool isXml = name.size() > kExtension.size() &&
                               varnhold::EqualsIgnoringCase(
                                   std::wstring_view(name).substr(name.size() - kExtension.size()), kExtension);
            if (isXml && StartsWith(name, FileNameStart(kind))) {
                found.push_back(L"cfg\\" + name);
            }
        }
    }
    return found;
}

bool IsTableName(std::wstring_view name) {
    constexpr std::wstring_view extension = L".xlf";
    return name.size() > extension.size() &&
           varnhold::EqualsIgnoringCase(name.substr(name.size() - extension.size()), extension);
}

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
