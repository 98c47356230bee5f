// The menu bar with a button at its right edge.
#include "menubar_ex.h"

#include <afxtoolbarcomboboxbutton.h>

#include <algorithm>
#include <memory>
#include <vector>

int CMfcMenubarEx::s_nRightBtnIndex = -1;

BEGIN_MESSAGE_MAP(CMfcMenubarEx, CMFCMenuBar)
ON_WM_LBUTTONDOWN()
ON_WM_PAINT()
END_MESSAGE_MAP()

namespace {

/// One of the bar's own special buttons, whose classes the interface names alone, as a button; null where it has none.
CMFCToolBarButton* ButtonOf(const CMFCMenuBar& bar, const void* special) {
    for (int i = 0; special != nullptr && i < bar.GetCount(); ++i) {
        if (bar.GetButton(i) == special) {
            return bar.GetButton(i);
        }
    }
    return nullptr;
}

/// The buttons of a maximised child, which lie at the bar's right edge.
std::vector<CMFCToolBarButton*> ChildsButtons(const CMFCMenuBar& bar) {
    std::vector<CMFCToolBarButton*> buttons;
    for (int i = 0; i < bar.GetSystemButtonsCount(); ++i) {
        if (CMFCToolBarButton* const button = ButtonOf(bar, bar.GetSystemButton(static_cast<UINT>(i), FALSE))) {
            buttons.push_back(button);
        }
    }
    return buttons;
}

void MoveToTheLeft(const std::vector<CMFCToolBarButton*>& buttons, int distance) {
    for (CMFCToolBarButton* const button : buttons) {
        CRect place = button->Rect();
        place.OffsetRect(-distance, 0);
        button->SetRect(place);
    }
}

/// Menus from resources, which bars go on showing until the process ends.
void Keep(std::unique_ptr<CMenu> menu) {
    static auto& kept = *new std::vector<std::unique_ptr<CMenu>>;
    kept.push_back(std::move(menu));
}

/// Moves the field in which help is asked for out of the way of what lies at the right edge: that button, and those of
/// a maximised child.
void MakeRoom(CMFCMenuBar& bar, const CRect& rightButton, const std::vector<CMFCToolBarButton*>& childsButtons) {
    CMFCToolBarComboBoxButton* const help = bar.GetHelpCombobox();
    if (help == nullptr) {
        return;
    }
    CRect end = rightButton;
    for (const CMFCToolBarButton* const button : childsButtons) {
        end.left = std::min(end.left, button->Rect().left);
    }
    CRect place = help->Rect();
    CRect shared;
    if (shared.IntersectRect(place, end)) {
        place.MoveToX(end.left - place.Width());
        help->SetRect(place);
    }
}

} // namespace

CMfcMenubarEx::CMfcMenubarEx() = default;

CMfcMenubarEx::~CMfcMenubarEx() { DestroyWindow(); }

void CMfcMenubarEx::SetMenuButtonRTC(CRuntimeClass* menuButtonClass) {
    CMFCMenuBar::SetMenuButtonRTC(menuButtonClass);
    m_menuButtonClass = menuButtonClass;
}

void CMfcMenubarEx::SetRightHMenu(HMENU menu) {
    if (menu != nullptr && ::IsMenu(menu)) {
        m_hRightMenu = menu;
    }
}

void CMfcMenubarEx::SetRightHMenu(int resourceId) {
    const LPCWSTR name = MAKEINTRESOURCEW(resourceId);
    const HMENU loaded = ::LoadMenuW(AfxFindResourceHandle(name, RT_MENU), name);
    if (loaded == nullptr) {
        return;
    }
    auto menu = std::make_unique<CMenu>();
    menu->Attach(loaded);
    Keep(std::move(menu));
    SetRightHMenu(loaded);
}

void CMfcMenubarEx::CreateFromMenu(HMENU menu, BOOL isDefaultMenu, BOOL forceUpdate) {
    FollowRightButton();
    m_rightButton = nullptr;
    // The first place is never that of the right-hand button beside others.
    if (s_nRightBtnIndex > 0) {
        RemoveButton(s_nRightBtnIndex);
        s_nRightBtnIndex = -1;
    }
    CMFCMenuBar::CreateFromMenu(menu, isDefaultMenu, forceUpdate);
    if (m_hRightMenu != nullptr && ::IsMenu(m_hRightMenu)) {
        AddRightButton();
    }
}

// Who knows the bar as a CMFCMenuBar alone chooses the class there: then its first button has it.
CRuntimeClass* CMfcMenubarEx::GetRightButtonClass() const {
    if (m_menuButtonClass != nullptr) {
        return m_menuButtonClass;
    }
    const bool isChilds = GetCount() > 0 && ButtonOf(*this, GetSystemMenu()) == GetButton(0);
    const auto* const first = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetButton(isChilds ? 1 : 0));
    return first != nullptr ? first->GetRuntimeClass() : RUNTIME_CLASS(CMFCToolBarMenuButton);
}

void CMfcMenubarEx::AddRightButton() {
    CMenu* const menu = CMenu::FromHandle(m_hRightMenu);
    CString text;
    menu->GetMenuString(0, text, MF_BYPOSITION);
    const CMenu* const popup = menu->GetSubMenu(0);
    ENSURE(popup != nullptr);
    const std::unique_ptr<CMFCToolBarMenuButton> button(
        static_cast<CMFCToolBarMenuButton*>(GetRightButtonClass()->CreateObject()));
    button->CreateFromMenu(popup->m_hMenu);
    button->m_strText = text;
    button->m_bText = TRUE;
    // Behind the menu's own, whose indexes the buttons of a maximised child do not change by coming and going.
    const int childsFirst = ButtonToIndex(ButtonOf(*this, GetSystemMenu()));
    s_nRightBtnIndex = InsertButton(*button, childsFirst); // a copy
    m_rightIndex = s_nRightBtnIndex;
    m_rightButton = GetButton(m_rightIndex);
    AdjustLayout();
    if (GetSafeHwnd() != nullptr) {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_FRAME);
    }
}

// The field in which help is asked for may stand before it. An index that another bar has set stays.
void CMfcMenubarEx::FollowRightButton() {
    const int index = m_rightButton != nullptr ? ButtonToIndex(m_rightButton) : -1;
    if (index >= 0 && index != m_rightIndex && s_nRightBtnIndex == m_rightIndex) {
        s_nRightBtnIndex = index;
    }
    m_rightIndex = index;
    m_rightButton = GetButton(index);
}

void CMfcMenubarEx::AdjustLocations() {
    CMFCMenuBar::AdjustLocations();
    FollowRightButton();
    CMFCToolBarButton* const button = GetButton(s_nRightBtnIndex);
    if (button == nullptr || GetSafeHwnd() == nullptr) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    CRect place = button->Rect();
    place.OffsetRect(client.right - place.right, 0);
    button->SetRect(place);
    if (IsHorizontal()) {
        const std::vector<CMFCToolBarButton*> childsButtons = ChildsButtons(*this);
        MoveToTheLeft(childsButtons, place.Width());
        if (GetHelpCombobox() != button) {
            MakeRoom(*this, place, childsButtons);
        }
    }
}

BOOL CMfcMenubarEx::LoadState(LPCTSTR /*profileName*/, int /*index*/, UINT /*id*/) { return FALSE; }

BOOL CMfcMenubarEx::SaveState(LPCTSTR /*profileName*/, int /*index*/, UINT /*id*/) { return FALSE; }

LRESULT CMfcMenubarEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return CMFCMenuBar::WindowProc(message, wParam, lParam);
}

void CMfcMenubarEx::OnLButtonDown(UINT flags, CPoint point) { CMFCMenuBar::OnLButtonDown(flags, point); }

void CMfcMenubarEx::OnPaint() { CMFCMenuBar::OnPaint(); }
