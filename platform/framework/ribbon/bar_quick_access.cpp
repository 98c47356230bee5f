// The quick access toolbar as the bar's hosts and users change it.
#include "afxribbonbar.h"

#include <algorithm>
#include <unordered_map>

#include "fx/registered_messages.h"
#include "fx/window_guard.h"
#include "ribbon/bar_menus.h"
#include "ribbon/bar_parts.h"
#include "ribbon/element_walk.h"
#include "ribbon/shown_text.h"

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

namespace {

// As the text of a row: only a text of the element itself has a mark.
CString NameOf(const CMFCRibbonBaseElement& element) {
    const CString text = element.GetShownText();
    return text.IsEmpty() ? ribbon::MarkedText(element.GetToolTipText()) : text;
}

} // namespace

void CMFCRibbonBar::SetQuickAccessCommands(const CList<UINT, UINT>& lstCommands, BOOL bRecalcLayout) {
    m_parts->quickAccessChosen = true;
    m_parts->quickAccess.SetCommands(this, lstCommands);
    MarkLayoutDirty();
    if (bRecalcLayout) {
        EnsureLayout();
    }
}

void CMFCRibbonBar::GetQuickAccessCommands(CList<UINT, UINT>& lstCommands) {
    m_parts->quickAccess.GetCommands(lstCommands);
}

void CMFCRibbonBar::SetQuickAccessDefaultState(const CMFCRibbonQuickAccessToolBarDefaultState& state) {
    m_parts->quickAccessDefault.CopyFrom(state);
    if (!m_parts->quickAccessChosen) {
        ApplyDefaultQuickAccess();
    }
    MarkLayoutDirty();
}

void CMFCRibbonBar::ApplyDefaultQuickAccess() {
    CList<UINT, UINT> visible;
    m_parts->quickAccessDefault.GetVisibleCommands(visible);
    std::unordered_map<UINT, CMFCRibbonBaseElement*> originals;
    for (POSITION position = visible.GetHeadPosition(); position != nullptr;) {
        originals.emplace(visible.GetNext(position), nullptr);
    }
    FindQuickAccessOriginals(originals);
    m_parts->quickAccess.SetCommands(visible, originals);
    m_parts->quickAccessMissing.clear();
    for (const auto& [id, original] : originals) {
        if (id != 0 && original == nullptr) {
            m_parts->quickAccessMissing.push_back(id);
        }
    }
}

void CMFCRibbonBar::CompleteDefaultQuickAccess() {
    if (m_parts->quickAccessChosen || m_parts->quickAccessMissing.empty()) {
        return;
    }
    std::unordered_map<UINT, CMFCRibbonBaseElement*> missing;
    for (const UINT id : m_parts->quickAccessMissing) {
        missing.emplace(id, nullptr);
    }
    FindQuickAccessOriginals(missing);
    if (std::any_of(missing.begin(), missing.end(), [](const auto& one) { return one.second != nullptr; })) {
        ApplyDefaultQuickAccess();
    }
}

// The default state brings the copy back with the next element of that id.
void CMFCRibbonBar::ForgetQuickAccessOriginal(const CMFCRibbonBaseElement& element) {
    if (m_parts->quickAccess.OnOriginalDestroyed(&element) && !m_parts->quickAccessChosen) {
        m_parts->quickAccessMissing.push_back(element.GetID());
    }
}

// ---- what it copies

CMFCRibbonBaseElement* CMFCRibbonBar::FindElement(const std::function<bool(CMFCRibbonBaseElement&)>& fits) const {
    ElementArray elements;
    const auto firstOf = [&]() -> CMFCRibbonBaseElement* {
        for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
            if (CMFCRibbonBaseElement* found = ribbon::FirstWithin(*elements[index], fits)) {
                return found;
            }
        }
        return nullptr;
    };
    for (const auto& category : m_parts->categories) {
        category->GetElements(elements);
        if (CMFCRibbonBaseElement* found = firstOf()) {
            return found;
        }
    }
    elements.RemoveAll();
    for (const auto& element : m_parts->tabElements) {
        elements.Add(element.get());
    }
    if (m_parts->applicationButton != nullptr) {
        elements.Add(m_parts->applicationButton);
    }
    if (CMFCRibbonBaseElement* found = firstOf()) {
        return found;
    }
    elements.RemoveAll();
    if (m_parts->mainCategory != nullptr) {
        m_parts->mainCategory->GetElements(elements);
    }
    return firstOf();
}

void CMFCRibbonBar::FindQuickAccessOriginals(std::unordered_map<UINT, CMFCRibbonBaseElement*>& originals) const {
    originals.erase(0); // a separator
    std::size_t open = originals.size();
    FindElement([&](CMFCRibbonBaseElement& element) {
        const auto wanted = originals.find(element.GetID());
        if (wanted != originals.end() && wanted->second == nullptr && element.CanBeAddedToQuickAccessToolBar()) {
            wanted->second = &element;
            --open;
        }
        return open == 0;
    });
}

CMFCRibbonBaseElement* CMFCRibbonBar::FindQuickAccessOriginal(UINT uiCmdID) const {
    return FindElement([uiCmdID](CMFCRibbonBaseElement& element) {
        return element.GetID() == uiCmdID && element.CanBeAddedToQuickAccessToolBar();
    });
}

CMFCRibbonBaseElement* CMFCRibbonBar::GetQuickAccessSource(CMFCRibbonBaseElement* pElement) const {
    const bool isCopy = pElement != nullptr && m_parts->quickAccess.Find(pElement) != nullptr;
    return isCopy ? pElement->GetOriginal() : pElement;
}

void CMFCRibbonBar::SetQuickAccessToolbarOnTop(BOOL bOnTop) {
    m_parts->quickAccessOnTop = bOnTop != FALSE;
    MarkLayoutDirty();
}

BOOL CMFCRibbonBar::IsQuickAccessToolbarOnTop() const { return m_parts->quickAccessOnTop; }

BOOL CMFCRibbonBar::IsQATEmpty() const { return m_parts->quickAccess.IsEmpty(); }

CRect CMFCRibbonBar::GetQuickAccessToolbarLocation() const { return m_parts->quickAccess.GetRect(); }

CRect CMFCRibbonBar::GetQATCommandsLocation() const { return m_parts->quickAccess.GetCommandsRect(); }

CMFCRibbonBaseElement* CMFCRibbonBar::GetQATDroppedDown() { return m_parts->quickAccess.GetDroppedDown(); }

void CMFCRibbonBar::ToggleQuickAccessCommand(UINT uiCmdID) {
    CMFCRibbonQuickAccessToolBar& toolbar = m_parts->quickAccess;
    m_parts->quickAccessChosen = true;
    if (CMFCRibbonBaseElement* copy = toolbar.FindCopyByID(uiCmdID)) {
        toolbar.Remove(copy);
    } else {
        toolbar.Add(FindQuickAccessOriginal(uiCmdID));
    }
    MarkLayoutDirty();
}

void CMFCRibbonBar::AddPlaceOfQuickAccess(RibbonMenu& menu) {
    menu.AddCommand(
        RibbonText(m_parts->quickAccessOnTop ? RibbonTextId::QuickAccessBelow : RibbonTextId::QuickAccessAbove),
        [this] { SetQuickAccessToolbarOnTop(!m_parts->quickAccessOnTop); });
    menu.AddCheck(RibbonText(RibbonTextId::Minimize), m_parts->minimized, [this] { ToggleMimimizeState(); });
}

// The commands of the default state, those in the toolbar checked; then where the toolbar lies.
BOOL CMFCRibbonBar::OnShowRibbonQATMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) {
    const CArray<UINT, UINT>& commands = m_parts->quickAccessDefault.GetCommands();
    RibbonMenu menu;
    menu.AddHeading(RibbonText(RibbonTextId::QuickAccessCustomize));
    std::unordered_map<UINT, CMFCRibbonBaseElement*> originals;
    for (INT_PTR index = 0; index < commands.GetSize(); ++index) {
        originals.emplace(commands[index], nullptr);
    }
    FindQuickAccessOriginals(originals);
    for (INT_PTR index = 0; index < commands.GetSize(); ++index) {
        const UINT id = commands[index];
        const auto original = originals.find(id);
        if (original != originals.end() && original->second != nullptr) {
            menu.AddCheck(NameOf(*original->second), m_parts->quickAccess.FindCopyByID(id) != nullptr,
                          [this, id] { ToggleQuickAccessCommand(id); });
        }
    }
    menu.AddSeparator();
    AddPlaceOfQuickAccess(menu);
    return menu.Track(CPoint(x, y), pWnd, pHit);
}

// A frame may have a dialog of its own for it; without one the toolbar's menu offers the commands.
BOOL CMFCRibbonBar::AskFrameToCustomize() {
    CFrameWnd* frame = GetTopLevelFrame();
    return frame != nullptr && frame->SendMessage(AFX_WM_ON_RIBBON_CUSTOMIZE, 0, reinterpret_cast<LPARAM>(this)) != 0;
}

// The element may go while the menu is open; nothing is done with it then.
BOOL CMFCRibbonBar::OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) {
    RibbonMenu menu;
    m_parts->menuSubject = pHit;
    if (pHit != nullptr && pHit->IsQATMode()) {
        menu.AddCommand(RibbonText(RibbonTextId::QuickAccessRemove), [this] {
            m_parts->quickAccessChosen = true;
            m_parts->quickAccess.Remove(m_parts->menuSubject);
            MarkLayoutDirty();
        });
    } else if (pHit != nullptr && pHit->CanBeAddedToQuickAccessToolBar()) {
        const CMFCRibbonBaseElement* source = GetQuickAccessSource(pHit);
        const bool canAdd = source != nullptr && !m_parts->quickAccess.HasCopyOf(source);
        menu.AddCommand(RibbonText(RibbonTextId::QuickAccessAdd), canAdd, [this] {
            m_parts->quickAccessChosen = true;
            m_parts->quickAccess.Add(GetQuickAccessSource(m_parts->menuSubject));
            MarkLayoutDirty();
        });
    }
    menu.AddCommand(RibbonText(RibbonTextId::CustomizeDialog), [this, x, y] {
        const fx::WindowGuard guard(this);
        if (!AskFrameToCustomize() && guard.IsAlive()) {
            OnShowRibbonQATMenu(this, x, y, nullptr);
        }
    });
    menu.AddSeparator();
    AddPlaceOfQuickAccess(menu);
    return menu.Track(CPoint(x, y), pWnd);
}
