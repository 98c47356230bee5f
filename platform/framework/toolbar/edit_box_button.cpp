// An edit of one line on a toolbar.
#include "afxtoolbareditboxbutton.h"

#include "afxtoolbar.h"
#include "afxvisualmanager.h"
#include "fx/handle_bits.h"
#include "toolbar/buttons_of.h"
#include "toolbar/field_look.h"
#include "toolbar/hosted_control.h"
#include "toolbar/metrics.h"

#include <algorithm>
#include <utility>
#include <vector>

using toolbar::Scaled;

IMPLEMENT_SERIAL(CMFCToolBarEditBoxButton, CMFCToolBarButton, VERSIONABLE_SCHEMA | 1)

namespace {

constexpr int kDefaultWidth = 150;
/// Between the border and the button's edges, and between the border and the text.
constexpr int kSideMargin = 2;
constexpr int kTextMargin = 2;

bool g_isFlat = true;

std::vector<CMFCToolBarEditBoxButton*> EditsOf(UINT command) {
    return toolbar::ButtonsOf<CMFCToolBarEditBoxButton>(command);
}

/// The edit that a button makes unless the host makes another.
class ToolBarEdit : public CEdit {
public:
    BOOL PreTranslateMessage(MSG* pMsg) override {
        if (pMsg->hwnd != m_hWnd) {
            return CEdit::PreTranslateMessage(pMsg);
        }
        if (pMsg->message == WM_KEYDOWN && (pMsg->wParam == VK_RETURN || pMsg->wParam == VK_ESCAPE)) {
            pMsg->wParam == VK_RETURN ? SendCommand() : GiveBack();
            return TRUE; // the command's handler may have destroyed this window
        }
        if (toolbar::IsKeyOfEdit(*pMsg)) {
            toolbar::GiveKeyToEdit(*pMsg);
            return TRUE;
        }
        return CEdit::PreTranslateMessage(pMsg);
    }

protected:
    afx_msg void OnSetFocus(CWnd* pOldWnd) {
        CEdit::OnSetFocus(pOldWnd);
        GetWindowText(m_before);
    }
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point) {
        CMFCToolBarEditBoxButton* const button = Button();
        if (!button || !toolbar::ShowEditMenu(button->GetContextMenuID(), *this, point)) {
            CEdit::OnContextMenu(pWnd, point);
        }
    }
    DECLARE_MESSAGE_MAP()

private:
    CMFCToolBar* Bar() const { return CMFCToolBar::FromHandlePermanent(::GetParent(m_hWnd)); }
    CMFCToolBarEditBoxButton* Button() const {
        const CMFCToolBar* const bar = Bar();
        return bar ? DYNAMIC_DOWNCAST(CMFCToolBarEditBoxButton, toolbar::ButtonWith(*bar, m_hWnd)) : nullptr;
    }
    void SendCommand() {
        GetWindowText(m_before);
        SetSel(0, -1);
        CMFCToolBar* const bar = Bar();
        if (CMFCToolBarEditBoxButton* const button = Button()) {
            bar->ProcessCommand(button);
        }
    }
    void GiveBack() {
        if (CMFCToolBarEditBoxButton* const button = Button()) {
            CMFCToolBarEditBoxButton::SetContentsAll(button->m_nID, m_before);
        }
        if (CFrameWnd* const frame = GetTopLevelFrame()) {
            frame->SetFocus();
        }
    }

    CString m_before; ///< what stood here when the focus came
};

BEGIN_MESSAGE_MAP(ToolBarEdit, CEdit)
ON_WM_SETFOCUS()
ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

} // namespace

CMFCToolBarEditBoxButton::CMFCToolBarEditBoxButton() = default;

CMFCToolBarEditBoxButton::CMFCToolBarEditBoxButton(UINT uiID, int iImage, DWORD dwStyle, int iWidth)
    : CMFCToolBarButton(uiID, iImage), m_dwStyle(dwStyle | WS_CHILD | WS_VISIBLE), m_iWidth(iWidth) {}

CMFCToolBarEditBoxButton::~CMFCToolBarEditBoxButton() { CloseEdit(); }

void CMFCToolBarEditBoxButton::SetFlatMode(BOOL bFlat) { g_isFlat = bFlat != FALSE; }
BOOL CMFCToolBarEditBoxButton::IsFlatMode() { return g_isFlat; }

// ---- the window

CEdit* CMFCToolBarEditBoxButton::CreateEdit(CWnd* pWndParent, const CRect& rect) {
    auto edit = std::make_unique<ToolBarEdit>();
    const DWORD border = g_isFlat ? 0 : WS_BORDER;
    return edit->Create(m_dwStyle | border, rect, pWndParent, m_nID) ? edit.release() : nullptr;
}

void CMFCToolBarEditBoxButton::OnChangeParentWnd(CWnd* pWndParent) {
    const bool isSame =
        m_pWndEdit && pWndParent && fx::IsSameHandle(::GetParent(m_pWndEdit->m_hWnd), pWndParent->GetSafeHwnd());
    CMFCToolBarButton::OnChangeParentWnd(pWndParent);
    if (isSame) {
        return;
    }
    CloseEdit();
    if (!pWndParent || !pWndParent->GetSafeHwnd()) {
        return;
    }
    m_pWndEdit.reset(CreateEdit(pWndParent, m_rect));
    if (!m_pWndEdit) {
        return;
    }
    toolbar::HostControl(*pWndParent, m_pWndEdit->m_hWnd);
    m_pWndEdit->SetFont(&afxGlobalData.fontRegular);
    m_pWndEdit->SetWindowText(m_strContents);
    EnableWindow(!IsDisabledState());
    PlaceEdit();
}

void CMFCToolBarEditBoxButton::CloseEdit() {
    // The window sends messages while it goes, which must find the button without it.
    const std::unique_ptr<CEdit> edit = std::move(m_pWndEdit);
    if (edit && edit->GetSafeHwnd()) {
        toolbar::ReleaseControl(edit->m_hWnd);
        edit->DestroyWindow();
    }
}

HWND CMFCToolBarEditBoxButton::GetHwnd() { return m_pWndEdit ? m_pWndEdit->GetSafeHwnd() : nullptr; }

BOOL CMFCToolBarEditBoxButton::HasFocus() const {
    return m_pWndEdit && m_pWndEdit->m_hWnd && ::GetFocus() == m_pWndEdit->m_hWnd;
}

BOOL CMFCToolBarEditBoxButton::IsOwnerOf(HWND hwnd) { return hwnd && GetHwnd() == hwnd; }
BOOL CMFCToolBarEditBoxButton::IsWindowVisible() { return GetHwnd() && ::IsWindowVisible(GetHwnd()); }

BOOL CMFCToolBarEditBoxButton::HaveHotBorder() const { return !ShowsEdit() || ::IsWindowVisible(m_pWndEdit->m_hWnd); }

void CMFCToolBarEditBoxButton::EnableWindow(BOOL bEnable) {
    if (GetHwnd() && (::IsWindowEnabled(GetHwnd()) != FALSE) != (bEnable != FALSE)) {
        m_pWndEdit->EnableWindow(bEnable);
    }
}

void CMFCToolBarEditBoxButton::SetStyle(UINT nStyle) {
    CMFCToolBarButton::SetStyle(nStyle);
    EnableWindow(!(nStyle & TBBS_DISABLED) && !CMFCToolBar::IsCustomizeMode());
}

void CMFCToolBarEditBoxButton::OnGlobalFontsChanged() {
    if (GetHwnd()) {
        m_pWndEdit->SetFont(&afxGlobalData.fontRegular);
        PlaceEdit();
    }
}

// ---- text

void CMFCToolBarEditBoxButton::SetContents(const CString& sContents) {
    if (m_strContents == sContents) {
        return;
    }
    m_strContents = sContents;
    if (GetHwnd()) {
        m_pWndEdit->SetWindowText(m_strContents);
    }
}

CMFCToolBarEditBoxButton* CMFCToolBarEditBoxButton::GetByCmd(UINT uiCmd) {
    const std::vector<CMFCToolBarEditBoxButton*> edits = EditsOf(uiCmd);
    return edits.empty() ? nullptr : edits.front();
}

CString CMFCToolBarEditBoxButton::GetContentsAll(UINT uiCmd) {
    const CMFCToolBarEditBoxButton* const edit = GetByCmd(uiCmd);
    return edit ? edit->m_strContents : CString();
}

BOOL CMFCToolBarEditBoxButton::SetContentsAll(UINT uiCmd, const CString& strContents) {
    const std::vector<CMFCToolBarEditBoxButton*> edits = EditsOf(uiCmd);
    for (CMFCToolBarEditBoxButton* const edit : edits) {
        edit->SetContents(strContents);
    }
    return !edits.empty();
}

BOOL CMFCToolBarEditBoxButton::NotifyCommand(int iNotifyCode) {
    if (!GetHwnd()) {
        return FALSE;
    }
    if (iNotifyCode == EN_UPDATE) {
        m_pWndEdit->GetWindowText(m_strContents);
        const CString contents = m_strContents;
        SetContentsAll(m_nID, contents);
    }
    return FALSE; // typing is no command, Enter is
}

void CMFCToolBarEditBoxButton::CopyFrom(const CMFCToolBarButton& src) {
    CMFCToolBarButton::CopyFrom(src);
    const auto* const source = DYNAMIC_DOWNCAST(CMFCToolBarEditBoxButton, &src);
    if (!source || source == this) {
        return;
    }
    m_dwStyle = source->m_dwStyle;
    m_iWidth = source->m_iWidth;
    m_uiMenuResID = source->m_uiMenuResID;
    SetContents(source->m_strContents);
}

void CMFCToolBarEditBoxButton::Serialize(CArchive& ar) {
    CMFCToolBarButton::Serialize(ar);
    if (!ar.IsLoading()) {
        ar << m_iWidth << m_dwStyle << m_strContents;
        return;
    }
    CString contents;
    ar >> m_iWidth >> m_dwStyle >> contents;
    m_dwStyle |= WS_CHILD;
    SetContents(contents);
}

// ---- place

int CMFCToolBarEditBoxButton::GetTextHeight() const {
    CClientDC context(m_pWndEdit.get());
    CFont* const before = context.SelectObject(&afxGlobalData.fontRegular);
    TEXTMETRIC metrics{};
    context.GetTextMetrics(&metrics);
    context.SelectObject(before);
    return metrics.tmHeight;
}

SIZE CMFCToolBarEditBoxButton::OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) {
    m_bHorz = bHorz;
    if (!ShowsEdit()) {
        ShowEdit();
        return CMFCToolBarButton::OnCalculateSize(pDC, sizeDefault, bHorz);
    }
    m_sizeText = CSize(0, 0);
    if (!m_bVisible || m_bIsHidden) {
        return CSize(0, 0);
    }
    if (m_bText && m_bTextBelow) {
        m_sizeText = MeasureText(pDC);
    }
    const int width = Scaled(m_iWidth > 0 ? m_iWidth : kDefaultWidth) + 2 * Scaled(kSideMargin);
    const int height = GetTextHeight() + 2 * (Scaled(kTextMargin) + 1) + static_cast<int>(m_sizeText.cy);
    return CSize(width, std::max<int>(sizeDefault.cy, height));
}

// Of the text, in the toolbar.
CRect CMFCToolBarEditBoxButton::GetEditRect() const {
    CRect rect = m_rect;
    rect.bottom -= m_sizeText.cy;
    rect.DeflateRect(Scaled(kSideMargin) + 1 + Scaled(kTextMargin), 0);
    const int height = GetTextHeight();
    rect.top += std::max(0, (rect.Height() - height) / 2);
    rect.bottom = rect.top + height;
    return rect;
}

void CMFCToolBarEditBoxButton::GetEditBorder(CRect& rectBorder) {
    rectBorder = CRect(0, 0, 0, 0);
    if (ShowsEdit()) {
        rectBorder = GetEditRect();
        rectBorder.InflateRect(1 + Scaled(kTextMargin), 1 + Scaled(kTextMargin));
    }
}

const CRect CMFCToolBarEditBoxButton::GetInvalidateRect() const {
    CRect rect = m_rect; // the label lies below the edit and may be wider
    const int beyond = (static_cast<int>(m_sizeText.cx) - rect.Width()) / 2;
    rect.InflateRect(std::max(0, beyond), 0);
    return rect;
}

void CMFCToolBarEditBoxButton::PlaceEdit() {
    ShowEdit();
    if (!GetHwnd() || !m_bHorz || m_rect.IsRectEmpty()) {
        return;
    }
    CRect place = GetEditRect();
    if (!g_isFlat) {
        place.InflateRect(1 + Scaled(kTextMargin), 1 + Scaled(kTextMargin));
    }
    m_pWndEdit->SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                             SWP_NOZORDER | SWP_NOACTIVATE);
}

void CMFCToolBarEditBoxButton::ShowEdit() {
    if (GetHwnd()) {
        // One for which its bar has no room has no place.
        toolbar::ShowControl(*m_pWndEdit, m_bHorz && !m_bIsHidden && m_bVisible && !m_rect.IsRectEmpty());
    }
}

void CMFCToolBarEditBoxButton::OnMove() { PlaceEdit(); }
void CMFCToolBarEditBoxButton::OnSize(int) { PlaceEdit(); }
void CMFCToolBarEditBoxButton::OnShow(BOOL) { ShowEdit(); }

// ---- drawing and input

void CMFCToolBarEditBoxButton::OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz,
                                      BOOL bCustomizeMode, BOOL bHighlight, BOOL bDrawBorder,
                                      BOOL bGrayDisabledButtons) {
    if (!ShowsEdit() || !bHorz) {
        CMFCToolBarButton::OnDraw(pDC, rect, pImages, bHorz, bCustomizeMode, bHighlight, bDrawBorder,
                                  bGrayDisabledButtons);
        return;
    }
    const BOOL isDisabled = IsDisabledState();
    const BOOL isHot = !isDisabled && (bHighlight || HasFocus());
    if (m_sizeText.cy > 0) {
        CRect label = rect;
        label.top = label.bottom - m_sizeText.cy;
        DrawButtonText(pDC, label, FALSE);
    }
    if (!g_isFlat) {
        return;
    }
    CRect border;
    GetEditBorder(border);
    toolbar::DrawField(*pDC, border, isDisabled != FALSE);
    CMFCVisualManager::GetInstance()->OnDrawEditBorder(pDC, border, isDisabled, isHot, this);
}

HBRUSH CMFCToolBarEditBoxButton::OnCtlColor(CDC* pDC, UINT) { return toolbar::ColorField(*pDC, IsDisabledState()); }

BOOL CMFCToolBarEditBoxButton::OnClick(CWnd*, BOOL) {
    if (!ShowsEdit() || IsDisabledState() || !::IsWindowVisible(GetHwnd())) {
        return FALSE;
    }
    m_pWndEdit->SetFocus();
    return TRUE;
}

BOOL CMFCToolBarEditBoxButton::OnUpdateToolTip(CWnd*, int, CToolTipCtrl& wndToolTip, CString& str) {
    if (!GetHwnd() || str.IsEmpty()) {
        return FALSE;
    }
    wndToolTip.AddTool(m_pWndEdit.get(), str);
    return TRUE;
}
