#include "configuration_watch.h"

#include <varnhold/letter_case.h>

#include <algorithm>
#include <vector>

namespace {

std::wstring Folded(const std::wstring& path) {
    std::wstring folded = path;
    std::ranges::transform(folded, folded.begin(),
                           [](wchar_t c) { return c == L'/' ? L'\\' : varnhold::LowerAscii(c); });
    return folded;
}

struct KnownBeginning {
    const wchar_t* beginning;
    ConfigurationFileKind kind;
};
constexpr KnownBeginning kBeginnings[] = {
    {L"cfg\\ribbon", ConfigurationFileKind::Ribbon},
    {L"cfg\\menu", ConfigurationFileKind::Menu},
    {L"cfg\\toolbar", ConfigurationFileKind::ToolBars},
};

} // namespace

ConfigurationFileKind KindOfConfigurationFile(const std::wstring& path) {
    const std::wstring folded = Folded(path);
    if (folded.ends_with(L".ico")) {
        return ConfigurationFileKind::Icon;
    }
    if (folded.ends_with(L".xlf") && folded.starts_with(L"lang\\") && std::ranges::count(folded, L'\\') == 2) {
        return ConfigurationFileKind::Texts;
    }
    if (folded.ends_with(L".xml") && std::ranges::count(folded, L'\\') == 1) {
        for (const KnownBeginning& known : kBeginnings) {
            if (folded.starts_with(known.beginning)) {
                return known.kind;
            }
        }
    }
    return ConfigurationFileKind::Other;
}

bool ConfigurationChange::Has(ConfigurationFileKind kind) const {
    return std::ranges::any_of(files,
                               [kind](const std::wstring& file) { return KindOfConfigurationFile(file) == kind; });
}
