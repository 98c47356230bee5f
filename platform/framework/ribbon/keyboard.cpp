// Key tips: their levels, the letters and the messages that lead through them.
#include "ribbon/keyboard.h"

#include <algorithm>
#include <cwctype>
#include <utility>

#include "afxribbonbar.h"
#include "ribbon/bar_parts.h"
#include "ribbon/key_letters.h"

namespace {

using ribbon::KeyTipWish;

bool IsHeld(int key) { return ::GetKeyState(key) < 0; }

// What a key writes: in the layout that is on, and on the key itself, so that Latin letters work in every layout.
std::wstring CharactersOf(UINT key) {
    std::wstring characters;
    if (const UINT written = ::MapVirtualKeyW(key, MAPVK_VK_TO_CHAR) & 0xFFFF; written > L' ') {
        characters += static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(written)));
    }
    const bool isPlain = (key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9');
    if (isPlain && characters != std::wstring(1, static_cast<wchar_t>(key))) {
        characters += static_cast<wchar_t>(key);
    }
    if (key >= VK_NUMPAD0 && key <= VK_NUMPAD9) {
        characters = static_cast<wchar_t>(L'0' + (key - VK_NUMPAD0));
    }
    return characters;
}

KeyTipWish WishOf(const CMFCRibbonKeyTip& tip) {
    const CMFCRibbonBaseElement& element = *tip.GetElement();
    CString text = element.GetShownText();
    if (const auto* tab = dynamic_cast<const CMFCRibbonTab*>(&element); tab != nullptr) {
        text = tab->GetParentCategory()->GetName();
    } else if (text.IsEmpty()) {
        text = element.GetToolTipText();
    }
    const auto* button = dynamic_cast<const CMFCRibbonButton*>(&element);
    if (text.IsEmpty() && button != nullptr && button->IsApplicationButton()) {
        text = L"File";
    }
    const LPCTSTR keys = tip.IsMenu() ? element.GetMenuKeys() : element.GetKeys();
    return {keys, static_cast<LPCTSTR>(text)};
}

bool StartsWith(const CString& keys, const std::wstring& typed) {
    return std::wstring_view(keys, static_cast<std::size_t>(keys.GetLength())).substr(0, typed.size()) == typed;
}

} // namespace

RibbonKeyboard::RibbonKeyboard(CMFCRibbonBar& bar) : m_bar(bar) {}

RibbonKeyboard::~RibbonKeyboard() = default;

void RibbonKeyboard::EnableTips(bool enable) {
    m_areTipsEnabled = enable;
    if (!enable && m_areTipsShown) {
        Deactivate(Focus::GiveBack);
    }
}

int RibbonKeyboard::GetLevel() const { return m_areTipsShown ? static_cast<int>(m_levels.size()) - 1 : -1; }

CObject* RibbonKeyboard::GetCurrent() const { return GetLevel() >= 0 ? m_levels.back().object : nullptr; }

CObject* RibbonKeyboard::GetParent() const { return GetLevel() > 0 ? m_levels[m_levels.size() - 2].object : nullptr; }

// ---- levels

void RibbonKeyboard::Append(CMFCRibbonBaseElement& element, Tips& tips) {
    CArray<CMFCRibbonKeyTip*, CMFCRibbonKeyTip*> added;
    element.AddToKeyList(added);
    for (INT_PTR place = 0; place < added.GetSize(); ++place) {
        tips.emplace_back(added[place]);
    }
}

void RibbonKeyboard::AppendLaunchButton(CMFCRibbonPanel& panel, Tips& tips) {
    if (panel.HasLaunchButton()) {
        Append(panel.GetLaunchButton(), tips);
    }
}

void RibbonKeyboard::Assign(Tips& tips, std::size_t first) {
    std::vector<KeyTipWish> wishes;
    for (std::size_t place = first; place < tips.size(); ++place) {
        wishes.push_back(WishOf(*tips[place]));
    }
    const std::vector<std::wstring> keys = ribbon::AssignKeyTips(wishes);
    for (std::size_t place = first; place < tips.size(); ++place) {
        tips[place]->SetKeys(keys[place - first].c_str());
    }
}

// Letters for what stands on the bar, digits for the quick access toolbar. Hidden tabs keep their letters, so that
// those of the others do not change when they appear.
void RibbonKeyboard::CollectBar(Tips& tips) const {
    const RibbonBarParts& parts = *m_bar.m_parts;
    for (int place = 0; place < parts.quickAccess.GetCount(); ++place) {
        Append(*parts.quickAccess.GetButton(place), tips);
    }
    const std::size_t commands = tips.size();
    for (std::size_t place = 0; place < commands; ++place) {
        tips[place]->SetKeys(ribbon::QuickAccessKeyTip(place).c_str());
    }
    if (parts.applicationButton != nullptr) {
        Append(*parts.applicationButton, tips);
    }
    for (const auto& category : parts.categories) {
        Append(category->m_Tab, tips);
    }
    for (const auto& element : parts.tabElements) {
        Append(*element, tips);
    }
    Assign(tips, commands);
}

// The elements and the buttons for which their panels may collapse: the letters do not depend on the width.
void RibbonKeyboard::CollectCategory(CMFCRibbonCategory& category, Tips& tips) {
    for (int index = 0; index < category.GetPanelCount(); ++index) {
        CMFCRibbonPanel& panel = *category.GetPanel(index);
        for (int place = 0; place < panel.GetCount(); ++place) {
            Append(*panel.GetElement(place), tips);
        }
    }
    for (int index = 0; index < category.GetPanelCount(); ++index) {
        AppendLaunchButton(*category.GetPanel(index), tips);
    }
    for (int index = 0; index < category.GetPanelCount(); ++index) {
        Append(category.GetPanel(index)->GetDefaultButton(), tips);
    }
    Assign(tips, 0);
}

RibbonKeyboard::Level RibbonKeyboard::MakeLevel(CObject* object) const {
    Level level{object, &m_bar, nullptr, {}};
    if (auto* category = DYNAMIC_DOWNCAST(CMFCRibbonCategory, object)) {
        level.anchor = &category->m_Tab;
        CollectCategory(*category, level.tips);
    } else if (auto* panel = DYNAMIC_DOWNCAST(CMFCRibbonPanel, object)) {
        level.anchor = &panel->GetDefaultButton();
        for (int place = 0; place < panel->GetCount(); ++place) {
            Append(*panel->GetElement(place), level.tips);
        }
        AppendLaunchButton(*panel, level.tips);
        Assign(level.tips, 0);
    } else {
        level.object = &m_bar;
        CollectBar(level.tips);
    }
    return level;
}

void RibbonKeyboard::PushLevel(CObject* object) {
    m_typed.clear();
    if (!m_levels.empty()) {
        for (const auto& tip : m_levels.back().tips) {
            tip->Hide();
        }
    }
    m_levels.push_back(MakeLevel(object));
}

void RibbonKeyboard::PopLevel() {
    m_typed.clear();
    m_levels.pop_back();
}

void RibbonKeyboard::ShowLevel(CObject* object) {
    if (m_bar.GetSafeHwnd() == nullptr || !m_areTipsEnabled) {
        return;
    }
    m_bar.EnsureLayout();
    m_levels.clear();
    PushLevel(&m_bar);
    if (object != &m_bar && object != nullptr) {
        PushLevel(object);
    }
    m_areTipsShown = true;
    ShowMatchingTips();
}

void RibbonKeyboard::ShowTips() {
    if (m_levels.empty()) {
        ShowLevel(&m_bar);
    } else if (m_areTipsEnabled) {
        m_areTipsShown = true;
        ShowMatchingTips();
    }
}

void RibbonKeyboard::HideTips() {
    m_isInList = false;
    if (!m_areTipsShown) {
        return;
    }
    m_areTipsShown = false;
    m_typed.clear();
    for (const Level& level : m_levels) {
        for (const auto& tip : level.tips) {
            tip->Hide();
        }
    }
    m_bar.Invalidate(FALSE);
}

void RibbonKeyboard::ShowMatchingTips() {
    if (!m_areTipsShown || m_levels.empty()) {
        return;
    }
    for (const auto& tip : m_levels.back().tips) {
        if (StartsWith(tip->GetKeys(), m_typed)) {
            tip->Show();
        } else {
            tip->Hide();
        }
    }
}

void RibbonKeyboard::OnLayoutChanged() { ShowMatchingTips(); }

bool RibbonKeyboard::IsPopupOnTop() const { return !m_levels.empty() && m_levels.back().window != &m_bar; }

// Elements of a panel that has scrolled out of view, or of a minimised bar, can be called without being seen. Those of
// a collapsed panel are the business of its pop-up.
bool RibbonKeyboard::IsReachable(const CMFCRibbonKeyTip& tip) const {
    const CMFCRibbonBaseElement& element = *tip.GetElement();
    if (!element.IsVisible() || tip.GetKeys().IsEmpty()) {
        return false;
    }
    if (!element.GetRect().IsRectEmpty()) {
        return true;
    }
    const CMFCRibbonPanel* panel = element.GetParentPanel();
    const auto* button = dynamic_cast<const CMFCRibbonButton*>(&element);
    const bool standsForPanel = button != nullptr && button->IsDefaultPanelButton();
    return panel != nullptr && !standsForPanel && panel->GetRect().IsRectEmpty() && !panel->IsCollapsed();
}

// ---- letters

bool RibbonKeyboard::TypeKey(UINT key) {
    for (const wchar_t character : CharactersOf(key)) {
        if (Type(character)) {
            return true;
        }
    }
    return false;
}

// A command may end the keyboard: nothing follows it.
bool RibbonKeyboard::Type(wchar_t character) {
    if (m_levels.empty()) {
        return false;
    }
    const std::wstring typed = m_typed + character;
    bool isBeginning = false;
    for (const auto& tip : m_levels.back().tips) {
        if (!IsReachable(*tip) || !StartsWith(tip->GetKeys(), typed)) {
            continue;
        }
        isBeginning = true;
        if (static_cast<std::size_t>(tip->GetKeys().GetLength()) == typed.size()) {
            if (tip->GetElement()->IsDisabled()) {
                ::MessageBeep(MB_OK);
                m_typed.clear();
                ShowMatchingTips();
            } else {
                Execute(*tip->GetElement(), tip->IsMenu() != FALSE);
            }
            return true;
        }
    }
    if (isBeginning) {
        m_typed = typed;
        ShowMatchingTips();
    }
    return isBeginning;
}

bool RibbonKeyboard::OnCharacter(wchar_t character) {
    const auto capital = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(character)));
    if (m_areTipsShown) {
        return Type(capital);
    }
    if (!CanStart()) {
        return false;
    }
    m_bar.EnsureLayout();
    const Level level = MakeLevel(&m_bar);
    const bool leadsOn = std::any_of(level.tips.begin(), level.tips.end(), [this, capital](const auto& tip) {
        return IsReachable(*tip) && tip->GetKeys()[0] == capital;
    });
    if (!leadsOn) {
        return false;
    }
    Activate();
    ShowLevel(&m_bar);
    return Type(capital);
}

void RibbonKeyboard::GoBack() {
    if (!m_areTipsShown) {
        Deactivate(Focus::GiveBack);
    } else if (!m_typed.empty()) {
        m_typed.clear();
        ShowMatchingTips();
    } else if (m_levels.size() > 1) {
        PopLevel();
        ShowMatchingTips();
    } else {
        Deactivate(Focus::GiveBack);
    }
}

CString RibbonKeyboard::KeysOf(const CMFCRibbonBaseElement& element, bool isMenu, const CString& given) {
    const auto find = [&element, isMenu](const Tips& tips) -> const CMFCRibbonKeyTip* {
        for (const auto& tip : tips) {
            if (tip->GetElement() == &element && (tip->IsMenu() != FALSE) == isMenu) {
                return tip.get();
            }
        }
        return nullptr;
    };
    for (auto level = m_levels.rbegin(); level != m_levels.rend(); ++level) {
        if (const CMFCRibbonKeyTip* tip = find(level->tips)) {
            return tip->GetKeys();
        }
    }
    const auto key = std::make_pair(&element, isMenu);
    if (const auto known = m_known.find(key); known != m_known.end()) {
        return known->second;
    }
    CMFCRibbonCategory* category = element.GetParentPanel() != nullptr ? element.GetParentCategory() : nullptr;
    const Level level = category != nullptr ? MakeLevel(category) : MakeLevel(&m_bar);
    for (const auto& tip : level.tips) {
        m_known[{tip->GetElement(), tip->IsMenu() != FALSE}] = tip->GetKeys();
    }
    // What is in no level, as a sub-item whose pop-up is closed, has the keys that it was given.
    return m_known.emplace(key, given).first->second;
}

void RibbonKeyboard::OnElementDestroyed(const CMFCRibbonBaseElement& element) {
    Forget();
    if (m_target == &element) {
        m_target = nullptr;
    }
    for (std::size_t place = 0; place < m_levels.size(); ++place) {
        if (m_levels[place].anchor == &element) {
            // The level that showed its elements goes with them.
            m_levels.resize(place);
            m_typed.clear();
            break;
        }
        std::erase_if(m_levels[place].tips, [&element](const auto& tip) { return tip->GetElement() == &element; });
    }
    m_areTipsShown = m_areTipsShown && !m_levels.empty();
}

// ---- messages

// Alt and F10 are the ribbon's in a frame without a menu of its own, while nobody holds the mouse.
bool RibbonKeyboard::CanStart() const {
    const CWnd* frame = m_bar.GetTopLevelFrame();
    return m_areTipsEnabled && m_bar.GetSafeHwnd() != nullptr && m_bar.IsWindowVisible() && frame != nullptr &&
           frame->IsWindowEnabled() && ::GetMenu(frame->GetSafeHwnd()) == nullptr && ::GetCapture() == nullptr &&
           (m_bar.GetHideFlags() & AFX_RIBBONBAR_HIDE_ALL) == 0;
}

bool RibbonKeyboard::OnSysKeyDown(UINT key, LPARAM flags) {
    constexpr LPARAM kAltHeld = LPARAM{1} << 29;
    constexpr LPARAM kRepeats = LPARAM{1} << 30;
    const bool isPlainF10 = key == VK_F10 && !IsHeld(VK_SHIFT) && !IsHeld(VK_CONTROL) && (flags & kAltHeld) == 0;
    m_isAltPending = m_isAltPending && key == VK_MENU;
    if (key == VK_MENU || isPlainF10) {
        if ((flags & kRepeats) != 0) {
            return m_swallowedUp == key;
        }
        m_swallowedUp = 0; // a pop-up may have taken the release that was waited for
        const bool isInEdit = HoldsFocus() && ::GetFocus() != m_bar.GetSafeHwnd();
        const CMFCRibbonBaseElement* focused = m_bar.GetFocused();
        const bool mayOpen = isInEdit || (focused != nullptr && focused->HasDropDown());
        if (m_isActive && mayOpen && !m_areTipsShown && key == VK_MENU) {
            // It may be the first half of Alt and an arrow, which opens what drops down.
            m_isAltPending = true;
            return false;
        }
        if (m_isActive) {
            Deactivate(Focus::GiveBack);
        } else if (key == VK_MENU || !CanStart()) {
            m_isAltPending = key == VK_MENU && CanStart();
            return false;
        } else {
            Activate();
            ShowLevel(&m_bar);
        }
        m_swallowedUp = key;
        return true;
    }
    if ((flags & kAltHeld) == 0) {
        return false;
    }
    if (m_isActive && key == VK_DOWN) {
        OnAltIsUsed();
        if (CMFCRibbonBaseElement* focused = m_bar.GetFocused(); focused != nullptr && focused->HasDropDown()) {
            HideTips();
            OpenMenu(*focused, true);
        }
        return true;
    }
    for (const wchar_t character : CharactersOf(key)) {
        // The release of Alt belongs to this letter, and the letter's command may end the bar.
        const UINT former = std::exchange(m_swallowedUp, static_cast<UINT>(VK_MENU));
        if (OnCharacter(character)) {
            return true;
        }
        m_swallowedUp = former;
    }
    return false;
}

bool RibbonKeyboard::OnSysKeyUp(UINT key) {
    if (m_swallowedUp == key) {
        m_swallowedUp = 0;
        return true;
    }
    if (key != VK_MENU || !std::exchange(m_isAltPending, false)) {
        return false;
    }
    if (m_isActive) {
        Deactivate(Focus::GiveBack);
        return true;
    }
    if (!CanStart()) {
        return false;
    }
    Activate();
    ShowLevel(&m_bar);
    return true;
}

bool RibbonKeyboard::OnKeyDown(const MSG& message) {
    const auto key = static_cast<UINT>(message.wParam);
    m_isAltPending = false;
    if (!m_isActive || key == VK_CONTROL || key == VK_SHIFT) {
        return false;
    }
    const bool isInEdit = message.hwnd != m_bar.GetSafeHwnd() && m_bar.IsChild(CWnd::FromHandle(message.hwnd));
    if (IsHeld(VK_CONTROL)) {
        // A shortcut means the document, unless it means the text in an edit.
        if (!isInEdit) {
            Deactivate(Focus::GiveBack);
        }
        return false;
    }
    if (isInEdit) {
        return OnKeyInEdit(key);
    }
    if (IsPopupOnTop() && (!m_areTipsShown || CharactersOf(key).empty())) {
        // The pop-up's own keys. Arrows walk; what walks shows no tips.
        if (key != VK_ESCAPE) {
            HideTips();
        }
        return false;
    }
    const HWND window = m_bar.GetSafeHwnd();
    if (!m_areTipsShown && (HandKeyToFocused(key) || !::IsWindow(window))) {
        return true;
    }
    switch (key) {
    case VK_ESCAPE:
        GoBack();
        return true;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        HideTips();
        return OnArrow(key);
    case VK_TAB:
        HideTips();
        MoveInOrder(!IsHeld(VK_SHIFT));
        return true;
    case VK_HOME:
    case VK_END:
        HideTips();
        MoveToEnd(key == VK_END);
        return true;
    case VK_RETURN:
    case VK_SPACE:
        HideTips();
        if (CMFCRibbonBaseElement* focused = m_bar.GetFocused()) {
            Execute(*focused, false);
        }
        return true;
    case VK_F4:
        if (CMFCRibbonBaseElement* focused = m_bar.GetFocused(); focused != nullptr && focused->HasDropDown()) {
            HideTips();
            OpenMenu(*focused, true);
        }
        return true;
    case VK_F6:
        GoToNextPane(!IsHeld(VK_SHIFT));
        return true;
    default:
        break;
    }
    if (CharactersOf(key).empty()) {
        return false;
    }
    if (!m_areTipsShown || !TypeKey(key)) {
        ::MessageBeep(MB_OK);
    }
    return true;
}

// An edit keeps its letters and what moves its caret; Enter and Escape it has taken before.
bool RibbonKeyboard::OnKeyInEdit(UINT key) {
    switch (key) {
    case VK_UP:
    case VK_DOWN:
        return OnArrow(key);
    case VK_TAB:
        MoveInOrder(!IsHeld(VK_SHIFT));
        return true;
    case VK_F6:
        GoToNextPane(!IsHeld(VK_SHIFT));
        return true;
    default:
        return false;
    }
}

void RibbonKeyboard::OnMouseButton(HWND window) {
    m_isAltPending = false;
    if (!m_isActive) {
        return;
    }
    // A click beside an edit's text, on its drop button for example, is still the edit's.
    const bool isInEdit = HoldsFocus() && ::GetFocus() != m_bar.GetSafeHwnd();
    if (isInEdit && (window == m_bar.GetSafeHwnd() || ::IsChild(m_bar.GetSafeHwnd(), window))) {
        HideTips();
        return;
    }
    if (IsPopupOnTop() && window == m_levels.back().window->GetSafeHwnd()) {
        HideTips();
        return;
    }
    Deactivate(Focus::GiveBack);
}
