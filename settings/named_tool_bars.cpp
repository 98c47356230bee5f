#include "dyn_toolbar_creater.h"
#include "user_settings.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace {

// Far from what resources, files and the framework number.
constexpr std::uint32_t kFirstNumber = 0x10000000;
constexpr std::uint32_t kNumbers = 0x40000000;

/// The same in every run and on every machine.
std::uint32_t HashOf(std::uint32_t hash, std::wstring_view text) {
    constexpr std::uint32_t prime = 16777619; // of the hash by Fowler, Noll and Vo
    for (const wchar_t character : text) {
        const std::uint32_t code = static_cast<std::uint16_t>(character);
        hash = (hash ^ (code & 0xFFU)) * prime;
        hash = (hash ^ (code >> 8U)) * prime;
    }
    return hash;
}

std::uint32_t NumberOf(const std::wstring& group, const std::wstring& name, int order) {
    constexpr std::uint32_t start = 2166136261;
    constexpr wchar_t divider = 0; // no text has it
    std::uint32_t hash = HashOf(start, group);
    hash = HashOf(hash, {&divider, 1});
    hash = HashOf(hash, name);
    hash = HashOf(hash, {&divider, 1});
    return kFirstNumber + HashOf(hash, std::to_wstring(order)) % kNumbers;
}

} // namespace

CNamedToolBars::CNamedToolBars(const CDynToolBarCreater& toolbars) {
    std::map<std::pair<std::wstring, std::wstring>, int> orders;
    std::set<std::uint32_t> taken;
    for (const auto& [group, bar] : toolbars.GetGroupedToolBars()) {
        const HWND window = bar->GetSafeHwnd();
        if (window == nullptr) {
            continue;
        }
        const std::wstring name = toolbars.GetName(bar);
        std::uint32_t number = NumberOf(group, name, orders[{group, name}]++);
        while (!taken.insert(number).second) {
            ++number;
        }
        m_bars.push_back({window, ::SetWindowLongPtrW(window, GWLP_ID, static_cast<LONG_PTR>(number))});
    }
}

CNamedToolBars::~CNamedToolBars() {
    for (const Bar& bar : m_bars) {
        if (::IsWindow(bar.window)) {
            ::SetWindowLongPtrW(bar.window, GWLP_ID, bar.number);
        }
    }
}
