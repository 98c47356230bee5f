#include "config/check/translation_extract.h"

#include "config/check/file_kind.h"
#include "config/element_kind.h"

#include <algorithm>
#include <cwchar>

namespace {

/// Follows the elements of a file and knows what is around each.
class Surroundings {
public:
    void Enter(const GatheredElement& gathered) {
        if (m_file != gathered.file) {
            m_file = gathered.file;
            m_tab.clear();
            m_panel.clear();
            m_popups.clear();
        }
        const MetElement& element = gathered.element;
        const std::wstring keyword(element.ValueOf(AttributeUse::Keyword));
        if (element.role == ElementRole::Category) {
            m_tab = keyword;
        } else if (element.role == ElementRole::Panel) {
            m_panel = keyword;
        } else if (element.role == ElementRole::Popup || element.role == ElementRole::MenuItem) {
            constexpr std::size_t topDepth = 2;
            m_popups.resize(element.depth - topDepth);
            m_path = Joined();
            m_popups.push_back(keyword);
        }
    }

    std::wstring Describe(const MetElement& element) const {
        switch (element.role) {
        case ElementRole::Category:
            return L"tab";
        case ElementRole::Panel:
            return L"tab " + m_tab + L", caption of a panel: one line below it";
        case ElementRole::RibbonElement:
        case ElementRole::SubItem:
            return L"tab " + m_tab + L", panel " + m_panel + L", " + DescribeKind(element);
        case ElementRole::StatusButton:
            return L"status bar";
        case ElementRole::Popup:
        case ElementRole::MenuItem:
            if (IsShortcutFile(*m_file)) {
                return L"name of a command with a shortcut, in no menu";
            }
            return (m_path.empty() ? L"menu bar" : L"menu " + m_path) +
                   (element.role == ElementRole::Popup ? std::wstring(L", popup") : std::wstring(L", item"));
        default:
            return L"";
        }
    }

private:
    std::wstring Joined() const {
        std::wstring path;
        for (const std::wstring& popup : m_popups) {
            path += (path.empty() ? L"" : L" > ") + popup;
        }
        return path;
    }

    static std::wstring DescribeKind(const MetElement& element) {
        switch (KindOfElement(element.ValueOf(AttributeUse::Type))) {
        case ElementKind::Button:
            if (element.role == ElementRole::SubItem) {
                return L"item of a button or group: one line";
            }
            return element.ValueOf(AttributeUse::Size) == L"16" ? L"small button: one line"
                                                                : L"large button: two lines";
        case ElementKind::Edit: {
            constexpr long usual = 50;
            const long width = std::wcstol(std::wstring(element.ValueOf(AttributeUse::Width)).c_str(), nullptr, 10);
            return L"field: " + std::to_wstring(width < 1 ? usual : width) + L" pixels at 100 %";
        }
        case ElementKind::Label:
            return L"label: one line";
        case ElementKind::Slider:
            return L"slider";
        case ElementKind::Group:
            return L"group, not shown";
        default:
            return L"combo";
        }
    }

    const std::wstring* m_file = nullptr;
    std::wstring m_tab;
    std::wstring m_panel;
    std::vector<std::wstring> m_popups;
    std::wstring m_path;
};

bool HasTranslatedTexts(const MetElement& element) {
    return !element.isPassedOver && element.role != ElementRole::Row && element.role != ElementRole::QuickAccessItem &&
           element.role < ElementRole::ToolBarGroup;
}

} // namespace

std::vector<AskedText> CollectAskedTexts(std::span<const GatheredElement> elements, const std::wstring& directory) {
    std::vector<AskedText> asked;
    std::set<std::wstring> seen;
    Surroundings around;
    for (const GatheredElement& gathered : elements) {
        const MetElement& element = gathered.element;
        around.Enter(gathered);
        const std::wstring keyword(element.ValueOf(AttributeUse::Keyword));
        if (keyword.empty() || !HasTranslatedTexts(element)) {
            continue;
        }
        std::wstring file = gathered.file->substr(gathered.file->starts_with(directory) ? directory.size() : 0);
        std::ranges::replace(file, L'\\', L'/');
        const std::wstring place = file + L", " + around.Describe(element);
        if (element.Has(AttributeUse::Name) && seen.insert(keyword).second) {
            asked.push_back({keyword, place});
        }
        if (element.Has(AttributeUse::ToolTip) && seen.insert(keyword + L".tooltip").second) {
            asked.push_back({keyword + L".tooltip", place + L"; its tooltip"});
        }
    }
    return asked;
}
