// The edit window of a ribbon edit, and how the element keeps it at its place and takes its text.
#include <afxRibbonEdit.h>

#include <afxglobals.h>
#include <afxribbonbar.h>
#include <afxribbonpanelmenu.h>
#include <afxvisualmanager.h>
#include <richedit.h>

#include <memory>

#include "ribbon/access_texts.h"
#include "ribbon/edit_unseen.h"
#include "ribbon/element_metrics.h"
#include <oleacc.h>

IMPLEMENT_DYNAMIC(CMFCRibbonRichEditCtrl, CRichEditCtrl)

BEGIN_MESSAGE_MAP(CMFCRibbonRichEditCtrl, CRichEditCtrl)
ON_WM_MOUSEMOVE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_MESSAGE(WM_MOUSELEAVE, &CMFCRibbonRichEditCtrl::OnMouseLeave)
ON_CONTROL_REFLECT(EN_CHANGE, &CMFCRibbonRichEditCtrl::OnChange)
END_MESSAGE_MAP()

namespace {

// Alt with an arrow is the edit's; what else Alt goes with means the frame.
bool IsKeyWithAlt(WPARAM key) { return key == VK_UP || key == VK_DOWN; }

} // namespace

CMFCRibbonRichEditCtrl::CMFCRibbonRichEditCtrl(CMFCRibbonEdit& edit) : m_edit(edit) {}

BOOL CMFCRibbonRichEditCtrl::PreTranslateMessage(MSG* pMsg) {
    // The key may send a command whose handler deletes this window.
    const bool isWithAlt = pMsg->message == WM_SYSKEYDOWN && IsKeyWithAlt(pMsg->wParam);
    const bool isKey = pMsg->message == WM_KEYDOWN || isWithAlt;
    if (RibbonBarHost* bar = m_edit.GetBarHost(); isWithAlt && bar != nullptr) {
        bar->GetElementKeys().OnAltIsUsed();
    }
    if (isKey && pMsg->hwnd == GetSafeHwnd() && m_edit.OnEditKey(static_cast<UINT>(pMsg->wParam))) {
        return TRUE;
    }
    return CRichEditCtrl::PreTranslateMessage(pMsg);
}

void CMFCRibbonRichEditCtrl::OnMouseMove(UINT nFlags, CPoint point) {
    CRichEditCtrl::OnMouseMove(nFlags, point);
    if (!m_bIsHighlighted) {
        TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, GetSafeHwnd(), 0};
        ::TrackMouseEvent(&track);
        m_bIsHighlighted = TRUE;
        m_edit.OnHighlight(TRUE);
    }
    TellParent(point);
}

LRESULT CMFCRibbonRichEditCtrl::OnMouseLeave(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    m_bIsHighlighted = FALSE;
    m_edit.OnHighlight(m_edit.IsHighlighted());
    TellParent(CPoint(-1, -1));
    return Default();
}

// Over this window the pointer is over the element: the parent lights it and shows its tooltip.
void CMFCRibbonRichEditCtrl::TellParent(CPoint point) {
    CWnd* parent = GetParent();
    ::MapWindowPoints(m_hWnd, parent->GetSafeHwnd(), &point, 1);
    if (auto* host = dynamic_cast<RibbonElementHost*>(parent)) {
        host->OnEditPointer(m_edit, m_bIsHighlighted, point);
    }
}

void CMFCRibbonRichEditCtrl::OnSetFocus(CWnd* pOldWnd) {
    CRichEditCtrl::OnSetFocus(pOldWnd);
    if (RibbonBarHost* bar = m_edit.GetBarHost()) {
        bar->GetElementKeys().OnEditFocusCame(pOldWnd->GetSafeHwnd());
    }
    m_edit.OnEditFocus(TRUE);
}

// The loss of the focus may send the command, whose handler may delete this window: it comes last.
void CMFCRibbonRichEditCtrl::OnKillFocus(CWnd* pNewWnd) {
    CRichEditCtrl::OnKillFocus(pNewWnd);
    if (RibbonBarHost* bar = m_edit.GetBarHost()) {
        bar->GetElementKeys().OnFocusWent(pNewWnd->GetSafeHwnd());
    }
    m_edit.OnEditFocus(FALSE);
}

void CMFCRibbonRichEditCtrl::OnChange() { m_edit.OnEditChange(); }

// ---- the element's side

CMFCRibbonRichEditCtrl* CMFCRibbonEdit::CreateEdit(CWnd* pWndParent, DWORD dwEditStyle) {
    auto window = std::make_unique<CMFCRibbonRichEditCtrl>(*this);
    if (!window->Create(dwEditStyle, m_rectText, pWndParent, m_nID)) {
        return nullptr;
    }
    ::SendMessageW(window->GetSafeHwnd(), EM_SETTEXTMODE, TM_PLAINTEXT, 0);
    window->SetFont(&afxGlobalData.fontRegular);
    window->SetEventMask(ENM_CHANGE);
    return window.release();
}

void CMFCRibbonEdit::DestroyCtrl() {
    CMFCRibbonRichEditCtrl* window = std::exchange(m_pWndEdit, nullptr);
    if (window == nullptr) {
        return;
    }
    if (window->GetSafeHwnd() != nullptr) {
        window->DestroyWindow();
    }
    delete window;
}

BOOL CMFCRibbonEdit::ShouldShowWindow() const {
    const CWnd* parent = GetParentWnd();
    return HasEditWindow() && IsVisible() && !m_rectText.IsRectEmpty() && parent != nullptr &&
           parent->GetSafeHwnd() != nullptr && (m_pParentCategory == nullptr || m_pParentCategory->IsActive());
}

void CMFCRibbonEdit::PlaceEditWindow() {
    // A window that was destroyed together with its parent is made anew.
    if (m_pWndEdit != nullptr && m_pWndEdit->GetSafeHwnd() == nullptr) {
        DestroyCtrl();
    }
    if (!ShouldShowWindow()) {
        if (m_pWndEdit != nullptr) {
            m_pWndEdit->ShowWindow(SW_HIDE);
        }
        return;
    }
    if (m_pWndEdit == nullptr) {
        m_pWndEdit = CreateEdit(GetParentWnd(), WS_CHILD | ES_AUTOHSCROLL | m_nAlign);
        m_nWindowTextHeight = afxGlobalData.GetCharacterHeight();
        if (m_pWndEdit == nullptr) {
            return;
        }
        m_pWndEdit->EnableWindow(!IsDisabled());
        ShowTextInWindow();
    }
    // Another scale, or other settings of the user's, have another font.
    if (m_nWindowTextHeight != afxGlobalData.GetCharacterHeight()) {
        m_nWindowTextHeight = afxGlobalData.GetCharacterHeight();
        m_pWndEdit->SetFont(&afxGlobalData.fontRegular);
    }
    const bool wasShown = (m_pWndEdit->GetStyle() & WS_VISIBLE) != 0;
    if (!wasShown) {
        UpdateWindowColors(); // before: new colours are painted
        MarkUnseen(*m_pWndEdit);
    }
    m_pWndEdit->SetWindowPos(nullptr, m_rectText.left, m_rectText.top, m_rectText.Width(), m_rectText.Height(),
                             SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW | (wasShown ? 0u : SWP_NOREDRAW));
    if (wasShown) {
        UpdateWindowColors();
    }
}

void CMFCRibbonEdit::ShowTextInWindow() {
    if (m_pWndEdit == nullptr || m_pWndEdit->GetSafeHwnd() == nullptr) {
        return;
    }
    m_bSettingText = TRUE;
    m_pWndEdit->SetWindowText(m_strEdit);
    m_bSettingText = FALSE;
}

// The window fills itself with one colour: what the visual manager paints in the middle of the edit area now.
void CMFCRibbonEdit::UpdateWindowColors() {
    if (m_pWndEdit == nullptr || m_pWndEdit->GetSafeHwnd() == nullptr || m_rectCommand.IsRectEmpty()) {
        return;
    }
    const CRect box(0, 0, m_rectCommand.Width(), m_rectCommand.Height());
    CDC memory;
    CBitmap bitmap;
    if (!memory.CreateCompatibleDC(nullptr) || !bitmap.CreateBitmap(box.Width(), box.Height(), 1, 32, nullptr)) {
        return;
    }
    CBitmap* old = memory.SelectObject(&bitmap);
    COLORREF text = afxGlobalData.clrWindowText;
    COLORREF selection = afxGlobalData.clrHilite;
    COLORREF selectedText = afxGlobalData.clrTextHilite;
    CMFCVisualManager::GetInstance()->OnFillRibbonEdit(&memory, m_pWndEdit, box, IsHighlighted(), FALSE, IsDisabled(),
                                                       text, selection, selectedText);
    const COLORREF background = memory.GetPixel(box.CenterPoint());
    memory.SelectObject(old);

    m_pWndEdit->SetBackgroundColor(FALSE, background);
    CHARFORMATW format{};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_COLOR;
    format.crTextColor = ribbon::TextColor(&memory, text, IsDisabled());
    m_bSettingText = TRUE;
    ::SendMessageW(m_pWndEdit->GetSafeHwnd(), EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
    ::SendMessageW(m_pWndEdit->GetSafeHwnd(), EM_SETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&format));
    m_bSettingText = FALSE;
}

// ---- from the window

void CMFCRibbonEdit::OnEditChange() {
    if (m_bSettingText || m_pWndEdit == nullptr) {
        return;
    }
    m_pWndEdit->GetWindowText(m_strEdit);
    NotifyAccessibility(EVENT_OBJECT_VALUECHANGE);
}

void CMFCRibbonEdit::OnEditFocus(BOOL bSet) {
    if (bSet && !m_bIsFocused) {
        NotifyAccessibility(EVENT_OBJECT_FOCUS);
    }
    m_bIsFocused = bSet;
    UpdateWindowColors();
    Redraw();
    if (!bSet) {
        CommitText();
    }
}

// Enter sends the command with whatever text there is; afterwards the host's window has the focus again.
BOOL CMFCRibbonEdit::OnEditKey(UINT nChar) {
    if (nChar != VK_RETURN && nChar != VK_ESCAPE) {
        return FALSE;
    }
    if (nChar == VK_ESCAPE) {
        RevertText();
    }
    m_strCommitted = m_strEdit;
    // In a pop-up the first Escape leaves the text, the next one the pop-up.
    RibbonBarHost* bar = nChar == VK_ESCAPE && m_pParentMenu != nullptr ? GetBarHost() : nullptr;
    if (bar != nullptr && bar->GetElementKeys().TakeFocusBack()) {
        return TRUE;
    }
    LeaveEditWindow();
    if (nChar == VK_RETURN) {
        CloseParentMenus();
        OnTextCommitted();
        NotifyCommand();
    }
    return TRUE;
}

void CMFCRibbonEdit::LeaveEditWindow() {
    if (RibbonBarHost* bar = GetBarHost()) {
        bar->GetElementKeys().GiveFocusBack();
    }
    if (CWnd* target = GetCommandTarget(); target != nullptr && HasFocus()) {
        target->SetFocus();
    }
}

void CMFCRibbonEdit::CommitText() {
    if (m_strEdit == m_strCommitted) {
        return;
    }
    m_strCommitted = m_strEdit;
    OnTextCommitted();
    NotifyCommand();
}

void CMFCRibbonEdit::RevertText() {
    m_strEdit = m_strCommitted;
    ShowTextInWindow();
}

// ---- for assistive programs

BOOL CMFCRibbonEdit::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonButton::SetACCData(pParent, data);
    data.m_nRole = GetDropButtonWidth() > 0 ? ROLE_SYSTEM_COMBOBOX : ROLE_SYSTEM_TEXT;
    data.m_strValue = m_strEdit;
    data.m_strDefaultAction = RibbonAccessText(RibbonAccessTextId::Edit);
    return TRUE;
}

// As if the text had been typed and left: the command follows.
BOOL CMFCRibbonEdit::PutACCValue(LPCTSTR lpszValue) {
    if (IsDisabled()) {
        return FALSE;
    }
    m_strEdit = lpszValue;
    ShowTextInWindow();
    Redraw();
    NotifyAccessibility(EVENT_OBJECT_VALUECHANGE);
    CommitText();
    return TRUE;
}
