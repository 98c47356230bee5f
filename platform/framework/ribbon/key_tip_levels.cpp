#include "ribbon/key_tip_levels.h"

#include <algorithm>

#include "afxribbonbar.h"
#include "ribbon/bar_parts.h"
#include "ribbon/key_letters.h"

namespace {

using ribbon::KeyTipWish;

KeyTipWish WishOf(const CMFCRibbonKeyTip& tip) {
    const CMFCRibbonBaseElement& element = *tip.GetElement();
    CString text = element.GetShownText();
    if (const auto* tab = dynamic_cast<const CMFCRibbonTab*>(&element); tab != nullptr) {
        text = tab->GetParentCategory()->GetName();
    } else if (text.IsEmpty()) {
        text = element.GetToolTipText();
    }
    // A text from a menu carries its short-cut behind a tab.
    if (const int end = text.Find(L'\t'); end >= 0) {
        text.Truncate(end);
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

// Elements of a panel that has scrolled out of view, or of a minimised bar, can be called without being seen. Those of
// a collapsed panel are the business of its pop-up.
bool IsReachable(const CMFCRibbonKeyTip& tip) {
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

} // namespace

// ---- what a level consists of

void RibbonKeyTipLevels::Append(CMFCRibbonBaseElement& element, Tips& tips) {
    CArray<CMFCRibbonKeyTip*, CMFCRibbonKeyTip*> added;
    element.AddToKeyList(added);
    for (INT_PTR place = 0; place < added.GetSize(); ++place) {
        tips.emplace_back(added[place]);
    }
}

void RibbonKeyTipLevels::AppendLaunchButton(CMFCRibbonPanel& panel, Tips& tips) {
    if (panel.HasLaunchButton()) {
        Append(panel.GetLaunchButton(), tips);
    }
}

void RibbonKeyTipLevels::Assign(Tips& tips, std::size_t first) {
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
void RibbonKeyTipLevels::CollectBar(Tips& tips) const {
    for (int place = 0; place < m_parts.quickAccess.GetCount(); ++place) {
        Append(*m_parts.quickAccess.GetButton(place), tips);
    }
    const std::size_t commands = tips.size();
    for (std::size_t place = 0; place < commands; ++place) {
        tips[place]->SetKeys(ribbon::QuickAccessKeyTip(place).c_str());
    }
    if (m_parts.applicationButton != nullptr) {
        Append(*m_parts.applicationButton, tips);
    }
    for (const auto& category : m_parts.categories) {
        Append(category->GetTab(), tips);
    }
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> own;
    m_bar.GetBarElements(own);
    for (INT_PTR place = 0; place < own.GetSize(); ++place) {
        Append(*own[place], tips);
    }
    Assign(tips, commands);
}

// The elements and the buttons for which their panels may collapse: the letters do not depend on the width.
void RibbonKeyTipLevels::CollectCategory(CMFCRibbonCategory& category, Tips& tips) {
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

void RibbonKeyTipLevels::CollectPanel(CMFCRibbonPanel& panel, Tips& tips) {
    for (int place = 0; place < panel.GetCount(); ++place) {
        Append(*panel.GetElement(place), tips);
    }
    AppendLaunchButton(panel, tips);
    Assign(tips, 0);
}

RibbonKeyTipLevels::Level RibbonKeyTipLevels::MakeLevel(CObject* object) const {
    Level level{object, nullptr, nullptr, {}};
    if (auto* category = DYNAMIC_DOWNCAST(CMFCRibbonCategory, object)) {
        level.anchor = &category->GetTab();
        CollectCategory(*category, level.tips);
    } else if (auto* panel = DYNAMIC_DOWNCAST(CMFCRibbonPanel, object)) {
        level.anchor = &panel->GetDefaultButton();
        CollectPanel(*panel, level.tips);
    } else {
        level.object = &m_bar;
        CollectBar(level.tips);
    }
    return level;
}

// ---- the stack

CObject* RibbonKeyTipLevels::GetObject(std::size_t below) const {
    return below < m_levels.size() ? m_levels[m_levels.size() - 1 - below].object : nullptr;
}

CWnd* RibbonKeyTipLevels::GetPopup() const { return m_levels.empty() ? nullptr : m_levels.back().popup; }

void RibbonKeyTipLevels::Push(Level level) {
    m_typed.clear();
    Hide();
    m_levels.push_back(std::move(level));
}

void RibbonKeyTipLevels::Push(CObject* object) { Push(MakeLevel(object)); }

void RibbonKeyTipLevels::PushPopup(CWnd& popup, CObject* object, const Elements& elements) {
    Level level{object, &popup, nullptr, {}};
    for (CMFCRibbonBaseElement* element : elements) {
        Append(*element, level.tips);
    }
    Assign(level.tips, 0);
    Push(std::move(level));
}

void RibbonKeyTipLevels::Pop() {
    m_typed.clear();
    m_levels.pop_back();
}

bool RibbonKeyTipLevels::RemovePopup(const CWnd& popup) {
    const auto level = std::find_if(m_levels.begin(), m_levels.end(),
                                    [&popup](const Level& candidate) { return candidate.popup == &popup; });
    if (level == m_levels.end()) {
        return false;
    }
    m_levels.erase(level, m_levels.end());
    m_typed.clear();
    return true;
}

void RibbonKeyTipLevels::Clear() {
    m_typed.clear();
    m_levels.clear();
}

void RibbonKeyTipLevels::OnElementDestroyed(const CMFCRibbonBaseElement& element) {
    Forget();
    const auto gone = std::find_if(m_levels.begin(), m_levels.end(),
                                   [&element](const Level& level) { return level.anchor == &element; });
    if (gone != m_levels.end()) {
        // The level that showed its elements goes with them.
        m_levels.erase(gone, m_levels.end());
        m_typed.clear();
    }
    for (Level& level : m_levels) {
        std::erase_if(level.tips, [&element](const auto& tip) { return tip->GetElement() == &element; });
    }
}

// ---- tips on the screen

void RibbonKeyTipLevels::Show() {
    if (m_levels.empty()) {
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

void RibbonKeyTipLevels::Hide() {
    for (const Level& level : m_levels) {
        for (const auto& tip : level.tips) {
            tip->Hide();
        }
    }
}

// ---- letters

RibbonKeyTipLevels::Typed RibbonKeyTipLevels::Type(wchar_t capital) {
    if (m_levels.empty()) {
        return {};
    }
    const std::wstring typed = m_typed + capital;
    Typed result;
    for (const auto& tip : m_levels.back().tips) {
        if (!IsReachable(*tip) || !StartsWith(tip->GetKeys(), typed)) {
            continue;
        }
        result.match = Match::Beginning;
        if (static_cast<std::size_t>(tip->GetKeys().GetLength()) == typed.size()) {
            return {Match::Whole, tip->GetElement(), tip->IsMenu() != FALSE};
        }
    }
    if (result.match == Match::Beginning) {
        m_typed = typed;
    }
    return result;
}

bool RibbonKeyTipLevels::LeadsOn(wchar_t capital) const {
    const Level level = MakeLevel(&m_bar);
    return std::any_of(level.tips.begin(), level.tips.end(),
                       [capital](const auto& tip) { return IsReachable(*tip) && tip->GetKeys()[0] == capital; });
}

const CMFCRibbonKeyTip* RibbonKeyTipLevels::FindTip(const Tips& tips, const CMFCRibbonBaseElement& element,
                                                    bool isMenu) {
    const auto found = std::find_if(tips.begin(), tips.end(), [&element, isMenu](const auto& tip) {
        return tip->GetElement() == &element && (tip->IsMenu() != FALSE) == isMenu;
    });
    return found != tips.end() ? found->get() : nullptr;
}

CString RibbonKeyTipLevels::KeysOf(const CMFCRibbonBaseElement& element, bool isMenu, const CString& given) {
    for (auto level = m_levels.rbegin(); level != m_levels.rend(); ++level) {
        if (const CMFCRibbonKeyTip* tip = FindTip(level->tips, element, isMenu)) {
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
