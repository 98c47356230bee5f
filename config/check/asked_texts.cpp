#include "config/check/translation_extract.h"

#include "config/check/file_kind.h"
#include "config/element_kind.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace {

/// Where a text stands, and what the drawing gives it there.
struct PlaceAndRoom {
    std::wstring place;
    /// Empty where there is nothing to be said of it.
    std::wstring room;
};

/// In tooltips of all elements.
constexpr std::wstring_view kToolTipRoom = L"broken into lines";

std::wstring NoteOf(const std::wstring& place, std::wstring_view room) {
    return room.empty() ? place : place + L": " + std::wstring(room);
}

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

    PlaceAndRoom Describe(const MetElement& element) const {
        switch (element.role) {
        case ElementRole::Category:
            return {L"tab", L"one line, cut where all tabs have no room in the window"};
        case ElementRole::Panel:
            return {L"tab " + m_tab + L", caption of a panel", L"one line below it"};
        case ElementRole::RibbonElement:
        case ElementRole::SubItem: {
            PlaceAndRoom described = DescribeKind(element);
            described.place.insert(0, L"tab " + m_tab + L", panel " + m_panel + L", ");
            return described;
        }
        case ElementRole::StatusButton:
            return DescribeStatus(element);
        case ElementRole::Popup:
        case ElementRole::MenuItem:
            if (IsShortcutFile(*m_file)) {
                return {L"name of a command with a shortcut, in no menu", L""};
            }
            return DescribeMenu(element);
        default:
            return {};
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

    PlaceAndRoom DescribeMenu(const MetElement& element) const {
        const bool isPopup = element.role == ElementRole::Popup;
        std::wstring place = m_path.empty() ? L"menu bar" : L"menu " + m_path;
        place += isPopup ? L", popup" : L", item";
        return {std::move(place),
                element.Has(AttributeUse::HotKey) ? L"one line, with the shortcut behind it" : L"one line"};
    }

    /// What is neither label nor slider is a button.
    static PlaceAndRoom DescribeStatus(const MetElement& element) {
        switch (KindOfElement(element.ValueOf(AttributeUse::Type))) {
        case ElementKind::Label:
            return {L"status bar, label", L"one line; left out where the bar has no room"};
        case ElementKind::Slider:
            return {L"status bar, slider", L"not drawn, but read out"};
        default:
            return {L"status bar, button", L"one line; left out where the bar has no room"};
        }
    }

    static PlaceAndRoom DescribeKind(const MetElement& element) {
        switch (KindOfElement(element.ValueOf(AttributeUse::Type))) {
        case ElementKind::Button:
            if (element.role == ElementRole::SubItem) {
                return {L"item of a button or group", L"one line"};
            }
            return element.ValueOf(AttributeUse::Size) == L"16" ? PlaceAndRoom{L"small button", L"one line"}
                                                                : PlaceAndRoom{L"large button", L"two lines"};
        case ElementKind::Edit: {
            constexpr long usual = 50;
            const long width = std::wcstol(std::wstring(element.ValueOf(AttributeUse::Width)).c_str(), nullptr, 10);
            return {L"field", std::to_wstring(width < 1 ? usual : width) + L" pixels at 100 %"};
        }
        case ElementKind::Label:
            return {L"label", L"one line"};
        case ElementKind::Slider:
            return {L"slider", L"not drawn, but read out"};
        case ElementKind::Group:
            return {L"group", L"not shown"};
        default:
            return {L"combo", L"one line in front of its list"};
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
    std::map<std::wstring, std::size_t> indices;
    const auto ask = [&](const GatheredElement& gathered, const std::wstring& key, std::wstring note) {
        const auto [found, isNew] = indices.try_emplace(key, asked.size());
        if (isNew) {
            asked.push_back({key, {}});
        } else if (IsShortcutFile(*gathered.file)) {
            return; // nobody sees it there, and these files come last
        }
        std::vector<std::wstring>& places = asked[found->second].places;
        if (std::ranges::find(places, note) == places.end()) {
            places.push_back(std::move(note));
        }
    };
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
        const PlaceAndRoom described = around.Describe(element);
        const std::wstring place = file + L", " + described.place;
        if (element.Has(AttributeUse::Name)) {
            ask(gathered, keyword, NoteOf(place, described.room));
        }
        if (element.Has(AttributeUse::ToolTip)) {
            ask(gathered, keyword + L".tooltip", NoteOf(place + L"; its tooltip", kToolTipRoom));
        }
    }
    return asked;
}
