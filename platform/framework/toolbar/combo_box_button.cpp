// The window of a combo box on a toolbar: place, drawing, input.
#include "afxtoolbarcomboboxbutton.h"

#include "afxtoolbar.h"
#include "afxvisualmanager.h"
#include "fx/handle_bits.h"
#include "toolbar/combo_face.h"
#include "toolbar/field_look.h"
#include "toolbar/hosted_control.h"
#include "toolbar/metrics.h"

#include <algorithm>
#include <utility>

using toolbar::Scaled;

IMPLEMENT_SERIAL(CMFCToolBarComboBoxButton, CMFCToolBarButton, VERSIONABLE_SCHEMA | 1)

namespace {

constexpr int defaultWidth = 150;
constexpr int defaultDropDownHeight = 150;
/// Between the combo and the button's edges.
constexpr int sideMargin = 2;

bool g_isFlat = true;
bool g_isCentered = true;

bool HasComboFocus(const CComboBox& combo) {
    const HWND focus = ::GetFocus();
    return focus && (focus == combo.m_hWnd || ::IsChild(combo.m_hWnd, focus));
}

} // namespace

CMFCToolBarComboBoxButton::CMFCToolBarComboBoxButton() = default;

CMFCToolBarComboBoxButton::CMFCToolBarComboBoxButton(UINT uiID, int iImage, DWORD dwStyle, int iWidth)
    : CMFCToolBarButton(uiID, iImage), m_dwStyle(dwStyle), m_iWidth(iWidth) {}

CMFCToolBarComboBoxButton::~CMFCToolBarComboBoxButton() { CloseCombo(); }

void CMFCToolBarComboBoxButton::SetFlatMode(BOOL bFlat) { g_isFlat = bFlat != FALSE; }
BOOL CMFCToolBarComboBoxButton::IsFlatMode() { return g_isFlat; }
void CMFCToolBarComboBoxButton::SetCenterVert(BOOL bCenterVert) { g_isCentered = bCenterVert != FALSE; }
BOOL CMFCToolBarComboBoxButton::IsCenterVert() { return g_isCentered; }

// ---- the window

CComboBox* CMFCToolBarComboBoxButton::CreateCombo(CWnd* pWndParent, const CRect& rect) {
    auto combo = std::make_unique<CComboBox>();
    return combo->Create(m_dwStyle | WS_CHILD | WS_VSCROLL | CBS_AUTOHSCROLL, rect, pWndParent, m_nID) ? combo.release()
                                                                                                       : nullptr;
}

void CMFCToolBarComboBoxButton::OnChangeParentWnd(CWnd* pWndParent) {
    const bool isSame =
        m_pWndCombo && pWndParent && fx::IsSameHandle(::GetParent(m_pWndCombo->m_hWnd), pWndParent->GetSafeHwnd());
    CMFCToolBarButton::OnChangeParentWnd(pWndParent);
    if (isSame) {
        return;
    }
    CloseCombo();
    if (pWndParent && pWndParent->GetSafeHwnd()) {
        MakeCombo(*pWndParent);
    }
}

void CMFCToolBarComboBoxButton::MakeCombo(CWnd& parent) {
    const int dropHeight = Scaled(m_nDropDownHeight > 0 ? m_nDropDownHeight : defaultDropDownHeight);
    CRect rect = m_rect;
    rect.right = rect.left + Scaled(m_iWidth > 0 ? m_iWidth : defaultWidth);
    rect.bottom = rect.top + dropHeight;
    m_pWndCombo.reset(CreateCombo(&parent, rect));
    if (!m_pWndCombo) {
        return;
    }
    toolbar::HostControl(parent, m_pWndCombo->m_hWnd);
    m_rectPlaced.SetRectEmpty();
    toolbar::DrawFaceOf(m_pWndCombo->m_hWnd);
    m_pWndCombo->SetFont(&afxGlobalData.fontRegular);
    MakeEdit(parent);
    FillCombo();
    EnableWindow(!IsDisabledState());
}

void CMFCToolBarComboBoxButton::CloseCombo() {
    // The windows send messages while they go, which must find the button without them.
    const std::unique_ptr<CEdit> edit = std::move(m_pWndEdit);
    if (std::exchange(m_pOwnEdit, nullptr) && edit->GetSafeHwnd()) {
        toolbar::ReleaseControl(edit->m_hWnd);
        edit->DestroyWindow();
    }
    const std::unique_ptr<CComboBox> combo = std::move(m_pWndCombo);
    if (combo && combo->GetSafeHwnd()) {
        toolbar::ReleaseControl(combo->m_hWnd);
        combo->DestroyWindow();
    }
}

void CMFCToolBarComboBoxButton::FillCombo() {
    if (!m_pWndCombo) {
        return;
    }
    m_pWndCombo->ResetContent();
    for (const Item& item : m_items) {
        m_pWndCombo->SetItemData(m_pWndCombo->AddString(item.text), item.data);
    }
    ShowSelection();
}

CEdit* CMFCToolBarComboBoxButton::GetEditCtrl() {
    if (m_pWndEdit || !m_pWndCombo || (m_pWndCombo->GetStyle() & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST) {
        return m_pWndEdit.get();
    }
    COMBOBOXINFO info{};
    if (m_pWndCombo->GetComboBoxInfo(&info) && info.hwndItem && info.hwndItem != m_pWndCombo->m_hWnd) {
        auto edit = std::make_unique<CEdit>();
        if (edit->SubclassWindow(info.hwndItem)) {
            m_pWndEdit = std::move(edit);
        }
    }
    return m_pWndEdit.get();
}

HWND CMFCToolBarComboBoxButton::GetHwnd() { return m_pWndCombo ? m_pWndCombo->GetSafeHwnd() : nullptr; }

BOOL CMFCToolBarComboBoxButton::HasFocus() const {
    const bool hasEditFocus = m_pOwnEdit && m_pOwnEdit->m_hWnd && ::GetFocus() == m_pOwnEdit->m_hWnd;
    return hasEditFocus || (m_pWndCombo && m_pWndCombo->GetSafeHwnd() && HasComboFocus(*m_pWndCombo));
}

BOOL CMFCToolBarComboBoxButton::IsOwnerOf(HWND hwnd) {
    const HWND combo = GetHwnd();
    return combo && hwnd && (combo == hwnd || ::IsChild(combo, hwnd) || (m_pOwnEdit && m_pOwnEdit->m_hWnd == hwnd));
}

BOOL CMFCToolBarComboBoxButton::IsWindowVisible() { return GetHwnd() && ::IsWindowVisible(GetHwnd()); }

BOOL CMFCToolBarComboBoxButton::IsDroppedDown() const {
    return m_pWndCombo && m_pWndCombo->GetSafeHwnd() && m_pWndCombo->GetDroppedState();
}

void CMFCToolBarComboBoxButton::EnableWindow(BOOL bEnable) {
    if (GetHwnd() && (::IsWindowEnabled(GetHwnd()) != FALSE) != (bEnable != FALSE)) {
        m_pWndCombo->EnableWindow(bEnable);
        if (m_pOwnEdit && m_pOwnEdit->m_hWnd) {
            m_pOwnEdit->EnableWindow(bEnable);
        }
    }
}

void CMFCToolBarComboBoxButton::SetStyle(UINT nStyle) {
    CMFCToolBarButton::SetStyle(nStyle);
    EnableWindow(!(nStyle & TBBS_DISABLED) && !CMFCToolBar::IsCustomizeMode());
}

void CMFCToolBarComboBoxButton::SetDropDownHeight(int nHeight) {
    m_nDropDownHeight = nHeight;
    m_rectPlaced.SetRectEmpty();
    PlaceCombo();
}

void CMFCToolBarComboBoxButton::OnGlobalFontsChanged() {
    if (GetHwnd()) {
        m_pWndCombo->SetFont(&afxGlobalData.fontRegular);
        if (m_pOwnEdit && m_pOwnEdit->m_hWnd) {
            m_pOwnEdit->SetFont(&afxGlobalData.fontRegular);
        }
        m_rectPlaced.SetRectEmpty();
    }
}

// ---- place

SIZE CMFCToolBarComboBoxButton::OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) {
    m_bHorz = bHorz;
    if (!ShowsCombo()) {
        ShowCombo();
        return CMFCToolBarButton::OnCalculateSize(pDC, sizeDefault, bHorz);
    }
    m_sizeText = CSize(0, 0);
    if (!m_bVisible || m_bIsHidden) {
        return CSize(0, 0);
    }
    CRect window;
    m_pWndCombo->GetWindowRect(&window);
    return CSize(Scaled(m_iWidth > 0 ? m_iWidth : defaultWidth) + 2 * Scaled(sideMargin),
                 std::max<int>(sizeDefault.cy, window.Height()));
}

// Of the closed combo, in the toolbar.
CRect CMFCToolBarComboBoxButton::GetComboRect() const {
    CRect window;
    m_pWndCombo->GetWindowRect(&window);
    const int height = window.Height();
    const int top = g_isCentered ? m_rect.top + std::max(0, (m_rect.Height() - height) / 2) : m_rect.top;
    return CRect(m_rect.left + Scaled(sideMargin), top, m_rect.right - Scaled(sideMargin), top + height);
}

void CMFCToolBarComboBoxButton::PlaceCombo() {
    if (!GetHwnd()) {
        return;
    }
    ShowCombo();
    if (!m_bHorz || m_rect.IsRectEmpty() || m_rectPlaced == m_rect) {
        return;
    }
    m_rectPlaced = m_rect;
    const CRect place = GetComboRect();
    // A combo box takes its height from its font; the given one is that of the open list.
    const int dropHeight = Scaled(m_nDropDownHeight > 0 ? m_nDropDownHeight : defaultDropDownHeight);
    m_pWndCombo->SetWindowPos(nullptr, place.left, place.top, place.Width(), dropHeight, SWP_NOZORDER | SWP_NOACTIVATE);
    COMBOBOXINFO info{};
    const CRect item = m_pWndCombo->GetComboBoxInfo(&info) ? CRect(info.rcItem) : CRect(0, 0, 0, 0);
    if (HasOwnEdit()) {
        // Nothing of the combo box shows but its list.
        m_pWndCombo->SetWindowRgn(::CreateRectRgn(0, 0, 0, 0), TRUE);
        PlaceEdit();
        return;
    }
    // Border and drop button are the toolbar's to draw and to be pressed on.
    const bool isFace = g_isFlat && !item.IsRectEmpty();
    m_pWndCombo->SetWindowRgn(isFace ? toolbar::FaceRegion(item, place.Size()) : nullptr, TRUE);
}

void CMFCToolBarComboBoxButton::ShowCombo() {
    if (!GetHwnd()) {
        return;
    }
    // One for which its bar has no room has no place.
    const bool isWanted = m_bHorz && !m_bIsHidden && m_bVisible && !m_rect.IsRectEmpty();
    toolbar::ShowControl(*m_pWndCombo, isWanted);
    if (m_pOwnEdit && m_pOwnEdit->m_hWnd) {
        toolbar::ShowControl(*m_pOwnEdit, isWanted);
    }
}

void CMFCToolBarComboBoxButton::OnMove() { PlaceCombo(); }
void CMFCToolBarComboBoxButton::OnSize(int) { PlaceCombo(); }
void CMFCToolBarComboBoxButton::OnShow(BOOL) { ShowCombo(); }

// ---- drawing

void CMFCToolBarComboBoxButton::OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz,
                                       BOOL bCustomizeMode, BOOL bHighlight, BOOL bDrawBorder,
                                       BOOL bGrayDisabledButtons) {
    if (!ShowsCombo() || !bHorz) {
        CMFCToolBarButton::OnDraw(pDC, rect, pImages, bHorz, bCustomizeMode, bHighlight, bDrawBorder,
                                  bGrayDisabledButtons);
        return;
    }
    if (!g_isFlat) {
        return;
    }
    const BOOL isDisabled = IsDisabledState();
    const BOOL isDropped = IsDroppedDown();
    const BOOL isHot = !isDisabled && (bHighlight || HasFocus());
    const CRect border = GetComboRect();
    toolbar::DrawField(*pDC, border, isDisabled != FALSE);
    CRect drop = border;
    drop.DeflateRect(1, 1);
    drop.left = std::max<LONG>(drop.left, drop.right - ::GetSystemMetrics(SM_CXVSCROLL));
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    manager->OnDrawComboDropButton(pDC, drop, isDisabled, isDropped, isHot, this);
    manager->OnDrawComboBorder(pDC, border, isDisabled, isDropped, isHot, this);
}

HBRUSH CMFCToolBarComboBoxButton::OnCtlColor(CDC* pDC, UINT nCtlColor) {
    return nCtlColor == CTLCOLOR_LISTBOX ? toolbar::ColorList(*pDC) : toolbar::ColorField(*pDC, IsDisabledState());
}

// ---- input

BOOL CMFCToolBarComboBoxButton::OnClick(CWnd*, BOOL) {
    // Presses on a combo box that the program has disabled come to the bar.
    if (!ShowsCombo() || !g_isFlat || IsDisabledState() || !m_pWndCombo->IsWindowEnabled()) {
        return FALSE;
    }
    CWnd* const field = HasOwnEdit() ? static_cast<CWnd*>(m_pOwnEdit) : m_pWndCombo.get();
    field->SetFocus();
    if (!ShowsCombo()) {
        return TRUE; // whoever heard of the focus has taken the bar away
    }
    if (m_pWndCombo->GetDroppedState() && HasOwnEdit()) {
        CloseList();
    } else {
        m_pWndCombo->ShowDropDown(!m_pWndCombo->GetDroppedState());
    }
    return TRUE;
}

BOOL CMFCToolBarComboBoxButton::NotifyCommand(int iNotifyCode) {
    if (!GetHwnd() || m_isQuiet) {
        return FALSE;
    }
    if (iNotifyCode == CBN_EDITCHANGE) {
        const bool isTypedInOwn = HasOwnEdit() && !HasComboFocus(*m_pWndCombo);
        (isTypedInOwn ? static_cast<CWnd*>(m_pOwnEdit) : m_pWndCombo.get())->GetWindowText(m_strEdit);
        ShowTextInEdit();
        m_iSelIndex = FindItem(m_strEdit);
        return FALSE;
    }
    if (iNotifyCode == CBN_CLOSEUP && HasOwnEdit() && HasComboFocus(*m_pWndCombo)) {
        m_pOwnEdit->SetFocus(); // the combo box has taken it for its list
        return FALSE;
    }
    if (iNotifyCode != CBN_SELENDOK) {
        return FALSE;
    }
    const int selected = m_pWndCombo->GetCurSel();
    if (selected < 0) {
        return FALSE;
    }
    m_iSelIndex = selected;
    m_isTyped = false;
    m_pWndCombo->GetLBText(selected, m_strEdit);
    SelectItemAll(m_nID, m_strEdit.GetString());
    return TRUE;
}
