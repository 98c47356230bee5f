// Keys and mouse over a menu bar.
#include "afxmenubar.h"

#include "afxpopupmenu.h"
#include "core/letters.h"
#include "fx/window_guard.h"
#include "popups/user_settings.h"
#include "toolbar/help_field.h"
#include "toolbar/key_direction.h"
#include "toolbar/metrics.h"
#include "window/mouse_messages.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr LPARAM altIsHeld = LPARAM{1} << 29;
constexpr LPARAM isRepeated = LPARAM{1} << 30;

bool IsHeld(int key) { return ::GetKeyState(key) < 0; }

/// A button that the arrows come to.
bool IsOnTheWay(const CMFCToolBarButton* button) {
    return button && !(button->m_nStyle & (TBBS_SEPARATOR | TBBS_DISABLED)) && !button->IsHidden() &&
           button->IsVisible() && !DYNAMIC_DOWNCAST(CMFCToolBarMenuButtonsButton, button) &&
           !DYNAMIC_DOWNCAST(CMFCToolBarSystemMenuButton, button);
}

/// The field for help has the keyboard for itself, and no menu.
bool IsField(const CMFCToolBarButton* button) { return dynamic_cast<const toolbar::HelpField*>(button) != nullptr; }

bool IsModifier(WPARAM key) { return key == VK_SHIFT || key == VK_CONTROL; }

} // namespace

BOOL CMFCMenuBar::ShowsMnemonics() const { return m_isKeyboardActive || toolbar::AlwaysShowsMnemonics(); }

BOOL CMFCMenuBar::PreTranslateMessage(MSG* pMsg) { return CMFCToolBar::PreTranslateMessage(pMsg); }

int CMFCMenuBar::FindNext(int from, int step) const {
    const int count = GetCount();
    // Before the first step nothing is hot: the way begins at an end.
    int index = from < 0 ? (step > 0 ? -1 : count) : from;
    for (int i = 0; i < count; ++i) {
        index = (index + step + count) % count;
        if (IsOnTheWay(GetButton(index))) {
            return index;
        }
    }
    return -1;
}

// ---- the keyboard's state

bool CMFCMenuBar::CanStartKeyboard() const { return ::GetCapture() == nullptr && FindNext(-1, 1) >= 0; }

void CMFCMenuBar::BeginKeyboard(int index) {
    m_isKeyboardActive = true;
    SetHighlighted(index);
    Invalidate();
}

void CMFCMenuBar::EndKeyboard() {
    if (!m_isKeyboardActive) {
        return;
    }
    m_isKeyboardActive = false;
    SetHighlighted(-1);
    if (m_hWnd) {
        Invalidate();
    }
}

void CMFCMenuBar::Deactivate() {
    m_isKeyboardActive = false;
    CMFCToolBar::Deactivate();
    if (m_hWnd) {
        Invalidate();
    }
}

void CMFCMenuBar::OnMenuClosed(CMFCToolBarMenuButton* pButton, BOOL bByEscape) {
    if (m_isSwitching) {
        return;
    }
    if (bByEscape) {
        BeginKeyboard(ButtonToIndex(pButton));
    } else {
        EndKeyboard();
        SetHighlighted(-1); // the mouse comes again when it is above a button
    }
}

// ---- menus of the buttons

void CMFCMenuBar::OpenMenu(int index) {
    auto* button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetButton(index));
    if (IsOnTheWay(button) && !button->IsDroppedDown()) {
        button->OpenPopupMenu();
    }
}

void CMFCMenuBar::SwitchTo(int index) {
    const fx::WindowGuard guard(this);
    const bool wasSwitching = std::exchange(m_isSwitching, true);
    if (CMFCToolBarMenuButton* open = GetDroppedDownMenu()) {
        open->OnCancelMode();
    }
    if (guard.IsGone()) {
        return; // the frame heard that the menu has closed
    }
    SetHighlighted(index);
    m_isSwitching = wasSwitching;
    OpenMenu(index);
}

BOOL CMFCMenuBar::StepMenu(int step) {
    int open = -1;
    GetDroppedDownMenu(&open);
    int next = FindNext(open >= 0 ? open : m_iHighlighted, step);
    if (IsField(GetButton(next))) {
        next = FindNext(next, step);
    }
    if (next < 0) {
        return FALSE;
    }
    m_isKeyboardActive = true;
    SwitchTo(next);
    return TRUE;
}

BOOL CMFCMenuBar::NextMenu() { return StepMenu(1); }
BOOL CMFCMenuBar::PrevMenu() { return StepMenu(-1); }

// While a menu is open, the pointer over another button opens that one's.
void CMFCMenuBar::OnChangeHot(int iHot) {
    if (m_isSwitching || !IsOnTheWay(GetButton(iHot)) || IsField(GetButton(iHot))) {
        return;
    }
    int open = -1;
    if (GetDroppedDownMenu(&open) && open != iHot) {
        m_isKeyboardActive = false; // from now on it is the mouse
        SwitchTo(iHot);
    }
}

BOOL CMFCMenuBar::TranslateChar(UINT nChar) {
    const wchar_t wanted = fx::UpperCase(static_cast<wchar_t>(nChar));
    std::vector<int> found;
    for (int i = 0; i < GetCount(); ++i) {
        const CMFCToolBarButton* button = GetButton(i);
        if (IsOnTheWay(button) && toolbar::MnemonicOf(button->m_strText) == wanted) {
            found.push_back(i);
        }
    }
    if (found.empty()) {
        return FALSE;
    }
    // Among several the next becomes hot.
    const auto next = std::find_if(found.begin(), found.end(), [this](int index) { return index > m_iHighlighted; });
    const int index = next == found.end() ? found.front() : *next;
    const fx::WindowGuard guard(this);
    BeginKeyboard(index);
    if (found.size() == 1 && guard.IsAlive()) {
        OnWalkKey(VK_RETURN);
    }
    return TRUE;
}

// ---- keys from the frame

BOOL CMFCMenuBar::OnWalkKey(UINT key) {
    CMFCToolBarButton* const button = GetButton(m_iHighlighted);
    auto* const field = dynamic_cast<toolbar::HelpField*>(button);
    if (field && (key == VK_RETURN || key == VK_DOWN || key == VK_UP)) {
        CEdit* const edit = field->Combo().GetEditCtrl();
        EndKeyboard();
        if (edit && edit->GetSafeHwnd()) {
            edit->SetFocus();
        }
        return TRUE;
    }
    key = toolbar::KeyFromTheLeft(*this, key);
    switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_TAB: {
        const bool isBack = key == VK_LEFT || (key == VK_TAB && IsHeld(VK_SHIFT));
        SetHighlighted(FindNext(m_iHighlighted, isBack ? -1 : 1));
        return TRUE;
    }
    case VK_HOME:
        SetHighlighted(FindNext(-1, 1));
        return TRUE;
    case VK_END:
        SetHighlighted(FindNext(-1, -1));
        return TRUE;
    case VK_ESCAPE:
        EndKeyboard();
        return TRUE;
    case VK_UP:
    case VK_DOWN:
        OpenMenu(m_iHighlighted);
        return TRUE;
    case VK_RETURN:
        if (IsOnTheWay(button) && !IsPureMenuButton(button)) {
            const int chosen = m_iHighlighted;
            EndKeyboard();
            ClickButton(chosen, TRUE);
        } else {
            OpenMenu(m_iHighlighted);
        }
        return TRUE;
    default:
        return FALSE;
    }
}

BOOL CMFCMenuBar::OnActiveKey(const MSG& message) {
    if (!m_isKeyboardActive || CMFCPopupMenu::GetActiveMenu()) {
        return FALSE;
    }
    const auto key = static_cast<UINT>(message.wParam);
    switch (message.message) {
    case WM_KEYDOWN:
        if (IsHeld(VK_CONTROL) && !IsModifier(key)) {
            EndKeyboard(); // a shortcut works as ever
            return FALSE;
        }
        if (!OnWalkKey(key)) {
            ::TranslateMessage(&message); // it may be a mnemonic
        }
        return TRUE;
    case WM_SYSKEYDOWN:
        if (key == VK_MENU || (key == VK_F10 && !(message.lParam & altIsHeld))) {
            if (!(message.lParam & isRepeated)) {
                EndKeyboard();
                m_awaitsF10Up = key == VK_F10;
            }
            return TRUE;
        }
        if (key == VK_SPACE || (key >= VK_F1 && key <= VK_F24)) {
            EndKeyboard();
            return FALSE; // the system's: its menu, the end of the window
        }
        ::TranslateMessage(&message);
        return TRUE;
    case WM_CHAR:
    case WM_SYSCHAR:
        if (!TranslateChar(key)) {
            ::MessageBeep(MB_OK);
        }
        return TRUE;
    default:
        if (fx::IsMouseButtonDown(message.message) && message.hwnd != m_hWnd) {
            EndKeyboard();
        }
        return FALSE;
    }
}

BOOL CMFCMenuBar::OnStartKey(const MSG& message) {
    const bool isPlain = !IsHeld(VK_SHIFT) && !IsHeld(VK_CONTROL);
    if (message.wParam == VK_MENU) {
        if (!(message.lParam & isRepeated)) {
            m_isAltAlone = isPlain && CanStartKeyboard();
        }
        return m_isAltAlone;
    }
    m_isAltAlone = false;
    if (message.wParam != VK_F10 || !isPlain || (message.lParam & altIsHeld) || !CanStartKeyboard()) {
        return FALSE;
    }
    m_awaitsF10Up = true;
    BeginKeyboard(FindNext(-1, 1));
    return TRUE;
}

BOOL CMFCMenuBar::OnFrameKey(const MSG& message) {
    switch (message.message) {
    case WM_SYSKEYDOWN:
        return OnStartKey(message);
    case WM_SYSKEYUP:
    case WM_KEYUP:
        if (message.wParam == VK_MENU && std::exchange(m_isAltAlone, false)) {
            BeginKeyboard(FindNext(-1, 1));
            return TRUE;
        }
        return message.wParam == VK_F10 && std::exchange(m_awaitsF10Up, false);
    case WM_SYSCHAR:
        return message.wParam != VK_SPACE && CanStartKeyboard() && TranslateChar(static_cast<UINT>(message.wParam));
    default:
        m_isAltAlone = m_isAltAlone && message.message != WM_KEYDOWN && !fx::IsMouseButtonDown(message.message);
        return FALSE;
    }
}

// ---- mouse

void CMFCMenuBar::OnLButtonDown(UINT nFlags, CPoint point) {
    // The menu that this opens is one of the mouse.
    m_isKeyboardActive = false;
    Invalidate();
    CMFCToolBar::OnLButtonDown(nFlags, point);
}

// Beside the buttons what is hot stays so while a menu is open or the keyboard is at work.
void CMFCMenuBar::OnMouseMove(UINT nFlags, CPoint point) {
    const bool keepsHot = m_isKeyboardActive || GetDroppedDownMenu();
    if (!keepsHot || IsOnTheWay(GetButton(HitTest(point)))) {
        CMFCToolBar::OnMouseMove(nFlags, point);
    }
}

void CMFCMenuBar::OnMouseLeave() {
    if (!m_isKeyboardActive && !GetDroppedDownMenu()) {
        CMFCToolBar::OnMouseLeave();
    }
    m_bTracked = FALSE;
}
