// The edit of a combo box on a toolbar: what is typed, and the keys that choose.
#include "afxtoolbarcomboboxbutton.h"

#include "afxtoolbarmenubutton.h"
#include "toolbar/hosted_control.h"
#include "toolbar/metrics.h"

#include <algorithm>
#include <memory>

IMPLEMENT_DYNAMIC(CMFCToolBarComboBoxEdit, CEdit)

BEGIN_MESSAGE_MAP(CMFCToolBarComboBoxEdit, CEdit)
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_CONTEXTMENU()
ON_CONTROL_REFLECT(EN_CHANGE, &CMFCToolBarComboBoxEdit::OnChange)
END_MESSAGE_MAP()

namespace {

/// Items that Page Up and Page Down pass over.
constexpr int kPage = 8;

} // namespace

CMFCToolBarComboBoxEdit::CMFCToolBarComboBoxEdit(CMFCToolBarComboBoxButton& combo) : m_combo(combo) {}
CMFCToolBarComboBoxEdit::~CMFCToolBarComboBoxEdit() = default;

BOOL CMFCToolBarComboBoxEdit::PreTranslateMessage(MSG* pMsg) {
    const bool isKey = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    if (pMsg->hwnd == m_hWnd && isKey && m_combo.OnEditKey(*pMsg)) {
        return TRUE; // the key may have been the end of this window
    }
    if (pMsg->hwnd == m_hWnd && toolbar::IsKeyOfEdit(*pMsg)) {
        toolbar::GiveKeyToEdit(*pMsg);
        return TRUE;
    }
    return CEdit::PreTranslateMessage(pMsg);
}

void CMFCToolBarComboBoxEdit::OnChange() { m_combo.OnEditChange(); }

void CMFCToolBarComboBoxEdit::OnSetFocus(CWnd* pOldWnd) {
    CEdit::OnSetFocus(pOldWnd);
    m_combo.OnEditFocus(true, pOldWnd->GetSafeHwnd());
}

void CMFCToolBarComboBoxEdit::OnKillFocus(CWnd* pNewWnd) {
    CEdit::OnKillFocus(pNewWnd);
    m_combo.OnEditFocus(false, pNewWnd->GetSafeHwnd());
}

void CMFCToolBarComboBoxEdit::OnContextMenu(CWnd* pWnd, CPoint point) {
    if (!toolbar::ShowEditMenu(m_combo.GetContextMenuID(), *this, point)) {
        CEdit::OnContextMenu(pWnd, point);
    }
}

// ---- the button's side

// While its list is open the combo box may have the focus, in a window that nobody sees.
BOOL CMFCToolBarComboBoxButton::PreTranslateControlMessage(MSG* pMsg) {
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    if (!isKey || !m_pOwnEdit || pMsg->hwnd == m_pOwnEdit->m_hWnd) {
        return FALSE;
    }
    MSG forEdit = *pMsg;
    forEdit.hwnd = m_pOwnEdit->m_hWnd;
    return m_pOwnEdit->PreTranslateMessage(&forEdit);
}

CMFCToolBarComboBoxEdit* CMFCToolBarComboBoxButton::CreateEdit(CWnd* pWndParent, const CRect& rect, DWORD dwEditStyle) {
    auto edit = std::make_unique<CMFCToolBarComboBoxEdit>(*this);
    return edit->Create(dwEditStyle, rect, pWndParent, m_nID) ? edit.release() : nullptr;
}

void CMFCToolBarComboBoxButton::MakeEdit(CWnd& parent) {
    const bool hasText = (m_pWndCombo->GetStyle() & CBS_DROPDOWNLIST) == CBS_DROPDOWN;
    if (!hasText || !IsFlatMode()) {
        return;
    }
    CMFCToolBarComboBoxEdit* const edit = CreateEdit(&parent, CRect(0, 0, 0, 0), WS_CHILD | ES_AUTOHSCROLL);
    if (!edit) {
        return;
    }
    m_pOwnEdit = edit;
    m_pWndEdit.reset(edit);
    toolbar::HostControl(parent, edit->m_hWnd, toolbar::Hears::Control);
    edit->SetFont(&afxGlobalData.fontRegular);
}

// Where the combo box has its own edit.
void CMFCToolBarComboBoxButton::PlaceEdit() {
    COMBOBOXINFO info{};
    m_pWndCombo->GetComboBoxInfo(&info);
    CRect place(info.rcItem);
    place.OffsetRect(GetComboRect().TopLeft());
    CClientDC context(m_pOwnEdit);
    CFont* const before = context.SelectObject(&afxGlobalData.fontRegular);
    TEXTMETRIC metrics{};
    context.GetTextMetrics(&metrics);
    context.SelectObject(before);
    place.left += toolbar::Scaled(1);
    // An edit of one line has its text at the top.
    place.top += std::max<int>(0, (place.Height() - metrics.tmHeight) / 2);
    place.bottom = std::min<LONG>(place.bottom, place.top + metrics.tmHeight);
    m_pOwnEdit->SetWindowPos(&CWnd::wndTop, place.left, place.top, place.Width(), place.Height(), SWP_NOACTIVATE);
}

void CMFCToolBarComboBoxButton::ShowTextInEdit() {
    if (!m_pOwnEdit || !m_pOwnEdit->m_hWnd || m_isTyped) {
        return;
    }
    CString shown;
    m_pOwnEdit->GetWindowText(shown);
    if (shown == m_strEdit) {
        return;
    }
    m_isTyped = true; // the change that follows is not the user's
    m_pOwnEdit->SetWindowText(m_strEdit);
    m_isTyped = false;
    if (::GetFocus() == m_pOwnEdit->m_hWnd) {
        m_pOwnEdit->SetSel(0, -1);
    }
}

// As if the combo box had said it. The button may be gone afterwards.
void CMFCToolBarComboBoxButton::Notify(int code) {
    if (CMFCToolBar* const bar = DYNAMIC_DOWNCAST(CMFCToolBar, GetParentWnd()); bar && GetHwnd()) {
        toolbar::RouteNotification(*bar, GetHwnd(), MAKEWPARAM(m_nID, code));
    }
}

void CMFCToolBarComboBoxButton::OnEditChange() {
    if (m_isTyped || !m_pOwnEdit) {
        return;
    }
    // Whoever asks the combo box itself gets what was typed as well; that it says so too must not count twice.
    CString text;
    m_pOwnEdit->GetWindowText(text);
    m_isQuiet = true;
    m_pWndCombo->SetWindowText(text);
    m_isQuiet = false;
    Notify(CBN_EDITCHANGE);
}

void CMFCToolBarComboBoxButton::OnEditFocus(bool hasFocus, HWND other) {
    if (!m_pOwnEdit || IsOwnerOf(other)) {
        return;
    }
    if (hasFocus) {
        m_strBefore = m_strEdit;
    } else if (IsDroppedDown()) {
        CloseList();
    }
    Notify(hasFocus ? CBN_SETFOCUS : CBN_KILLFOCUS);
}

// Closes the list without a choice.
void CMFCToolBarComboBoxButton::CloseList() {
    m_isQuiet = true;
    m_pWndCombo->SetCurSel(m_iSelIndex);
    m_pWndCombo->ShowDropDown(FALSE);
    m_isQuiet = false;
    const HWND focus = ::GetFocus();
    if (focus == m_pWndCombo->m_hWnd || ::IsChild(m_pWndCombo->m_hWnd, focus)) {
        m_pOwnEdit->SetFocus(); // the combo box has taken it for its list
    }
}

bool CMFCToolBarComboBoxButton::OnEditKey(const MSG& message) {
    if (!ShowsCombo()) {
        return false;
    }
    const auto key = static_cast<UINT>(message.wParam);
    const bool isArrow = key == VK_UP || key == VK_DOWN;
    if ((message.message == WM_SYSKEYDOWN && isArrow) || (message.message == WM_KEYDOWN && key == VK_F4)) {
        IsDroppedDown() ? CloseList() : m_pWndCombo->ShowDropDown(TRUE);
        return true;
    }
    if (message.message == WM_SYSKEYDOWN || ::GetKeyState(VK_CONTROL) < 0) {
        return false;
    }
    const int selected = m_pWndCombo->GetCurSel();
    switch (key) {
    case VK_RETURN:
        return OnEnter();
    case VK_ESCAPE:
        return OnEscape();
    case VK_UP:
        WalkTo(std::max(selected - 1, 0));
        return true;
    case VK_DOWN:
        WalkTo(selected + 1);
        return true;
    case VK_PRIOR:
        WalkTo(std::max(selected - kPage, 0));
        return true;
    case VK_NEXT:
        WalkTo(std::max(selected, 0) + kPage);
        return true;
    default:
        return false;
    }
}

// In the open list a walk only looks; in the closed one it chooses.
void CMFCToolBarComboBoxButton::WalkTo(int index) {
    const int target = std::min(index, static_cast<int>(GetCount()) - 1);
    if (target < 0 || target == m_pWndCombo->GetCurSel()) {
        return;
    }
    m_pWndCombo->SetCurSel(target);
    Notify(IsDroppedDown() ? CBN_SELCHANGE : CBN_SELENDOK);
}

bool CMFCToolBarComboBoxButton::OnEnter() {
    if (IsDroppedDown()) {
        const int chosen = m_pWndCombo->GetCurSel();
        CloseList();
        m_pWndCombo->SetCurSel(chosen);
        if (chosen >= 0) {
            Notify(CBN_SELENDOK);
            return true;
        }
    }
    m_strBefore = m_strEdit;
    m_pOwnEdit->SetSel(0, -1);
    const CString text = m_strEdit;
    CObList buttons;
    CMFCToolBar::GetCommandButtons(m_nID, buttons);
    for (POSITION position = buttons.GetHeadPosition(); position;) {
        auto* const combo = DYNAMIC_DOWNCAST(CMFCToolBarComboBoxButton, buttons.GetNext(position));
        if (combo && combo != this) {
            combo->SetText(text);
        }
    }
    if (CMFCToolBar* const bar = DYNAMIC_DOWNCAST(CMFCToolBar, GetParentWnd())) {
        bar->ProcessCommand(this); // whose handler may destroy the bar
    }
    return true;
}

bool CMFCToolBarComboBoxButton::OnEscape() {
    if (IsDroppedDown()) {
        CloseList();
        return true;
    }
    SetText(m_strBefore);
    if (CFrameWnd* const frame = m_pOwnEdit->GetTopLevelFrame()) {
        frame->SetFocus();
    }
    return true;
}

BOOL CMFCToolBarComboBoxButton::ExportToMenuButton(CMFCToolBarMenuButton& menuButton) const {
    CString text;
    if (m_nID != 0 && text.LoadString(m_nID)) {
        const int lineEnd = text.Find(L'\n');
        menuButton.m_strText = lineEnd >= 0 ? text.Mid(lineEnd + 1) : text;
    }
    return TRUE;
}
