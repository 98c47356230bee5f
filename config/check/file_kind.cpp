#include "config/check/file_kind.h"

#include "config/depth_walker.h"
#include "config/menu_attributes.h"
#include "config/ribbon_attributes.h"
#include "config/toolbar_file.h"

#include <varnhold/letter_case.h>

#include <algorithm>
#include <array>

namespace {

struct KindName {
    std::wstring_view start;
    ConfigurationKind kind;
};
constexpr KindName kKindNames[] = {
    {L"ribbon", ConfigurationKind::Ribbon},
    {L"menu", ConfigurationKind::Menu},
    {L"toolbar", ConfigurationKind::ToolBars},
};
constexpr std::wstring_view kExtension = L".xml";

bool StartsWith(std::wstring_view name, std::wstring_view start) {
    return varnhold::EqualsIgnoringCase(name.substr(0, start.size()), start);
}

bool Knows(std::span<const AttributeRule> rules, std::string_view name) {
    return std::ranges::any_of(
        rules, [name](const AttributeRule& rule) { return varnhold::EqualsIgnoringCase(rule.name, name); });
}

ConfigurationKind KindByAttributes(const std::wstring& fullPath) {
    CXmlDocumentWrapper document;
    document.Load(fullPath);
    const std::array<std::span<const AttributeRule>, 3> rules = {RibbonAttributeRules(), MenuAttributeRules(),
                                                                 ToolBarAttributeRules()};
    std::array<std::size_t, 3> votes{};
    WalkBelow(varnhold::XmlCursor(document), [&](varnhold::XmlCursor& element, std::size_t /*depth*/) {
        for (const varnhold::XmlAttributeView& written : element.ReadAttributes()) {
            const auto known = [&](const auto& kind) { return Knows(kind, written.name); };
            if (std::ranges::count_if(rules, known) == 1) {
                ++votes[static_cast<std::size_t>(std::ranges::find_if(rules, known) - rules.begin())];
            }
        }
        return true;
    });
    return static_cast<ConfigurationKind>(std::ranges::max_element(votes) - votes.begin());
}

} // namespace

std::vector<std::wstring> ConfigurationFiles(const InstallationFiles& files) {
    std::vector<std::wstring> found;
    for (const KindName& kind : kKindNames) {
        for (const std::wstring& name : files.FilesIn(L"cfg")) {
            const bool isXml = name.size() > kExtension.size() &&
                               varnhold::EqualsIgnoringCase(
                                   std::wstring_view(name).substr(name.size() - kExtension.size()), kExtension);
            if (isXml && StartsWith(name, kind.start)) {
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
    const auto* const found = std::ranges::find(kKindNames, name, &KindName::start);
    return found == std::end(kKindNames) ? std::nullopt : std::optional(found->kind);
}

ConfigurationKind KindOfFile(const std::wstring& fullPath) {
    const std::wstring_view name = std::wstring_view(fullPath).substr(fullPath.find_last_of(L"\\/") + 1);
    for (const KindName& kind : kKindNames) {
        if (StartsWith(name, kind.start)) {
            return kind.kind;
        }
    }
    return KindByAttributes(fullPath);
}
