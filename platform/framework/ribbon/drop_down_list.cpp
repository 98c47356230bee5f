// The list that a combo box drops down.
#include <afxribboncombobox.h>

#include <afxglobals.h>
#include <afxribbonbar.h>

#include "popups/row_text.h"
#include "ribbon/keyboard.h"
#include "toolbar/menu_row.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNCREATE(CMFCDropDownListBox, CMFCPopupMenu)

BEGIN_MESSAGE_MAP(CMFCDropDownListBox, CMFCPopupMenu)
ON_WM_CLOSE()
END_MESSAGE_MAP()

namespace {

constexpr int kMostMeasured = 300; // texts, the longest ones
constexpr int kOverhang = 2;       // letters may be drawn beyond their width, at 96 DPI
constexpr int kRowsAboveSelection = 2;
constexpr LPARAM kIsRepeated = 1 << 30; // of a key's message: it was down before

bool IsMirrored(const CWnd* window) {
    return window != nullptr && window->GetSafeHwnd() != nullptr && (window->GetExStyle() & WS_EX_LAYOUTRTL) != 0;
}

} // namespace

CMFCDropDownListBox::CMFCDropDownListBox() : CMFCDropDownListBox(nullptr) {}

CMFCDropDownListBox::CMFCDropDownListBox(CMFCRibbonComboBox* pParentCombo)
    : m_pCombo(pParentCombo), m_life(std::make_shared<BOOL>(TRUE)) {
    EnableScrollBar();
}

// The window goes first, while there are rows.
CMFCDropDownListBox::~CMFCDropDownListBox() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
}

// ---- rows

int CMFCDropDownListBox::AddString(LPCTSTR lpszItem) {
    if (lpszItem == nullptr) {
        return -1;
    }
    m_rows.emplace_back(lpszItem);
    if (m_hWnd != nullptr) {
        GetMenuBar()->OnRowAdded();
    }
    return GetCount() - 1;
}

BOOL CMFCDropDownListBox::GetText(int nIndex, CString& strText) const {
    if (nIndex < 0 || nIndex >= GetCount()) {
        return FALSE;
    }
    strText = m_rows[static_cast<std::size_t>(nIndex)];
    return TRUE;
}

void CMFCDropDownListBox::ResetContent() {
    m_rows.clear();
    m_nCurSel = -1;
    if (m_hWnd != nullptr) {
        GetMenuBar()->OnRowsChanged();
    }
}

BOOL CMFCDropDownListBox::SetCurSel(int nIndex) {
    if (nIndex < -1 || nIndex >= GetCount()) {
        return FALSE;
    }
    m_nCurSel = nIndex;
    if (m_hWnd != nullptr) {
        GetMenuBar()->SetHotRow(nIndex);
    }
    return TRUE;
}

int CMFCDropDownListBox::GetCurSel() const {
    return m_hWnd != nullptr ? const_cast<CMFCDropDownListBox*>(this)->GetMenuBar()->GetHotRow() : m_nCurSel;
}

// Rows may have been added beside the element's items.
CString CMFCDropDownListBox::GetRowText(int row) const {
    const CString& text = m_rows[static_cast<std::size_t>(row)];
    const LPCTSTR item = m_pCombo != nullptr ? m_pCombo->GetItem(row) : nullptr;
    return item != nullptr && text == item ? m_pCombo->GetShownItemText(row) : text;
}

int CMFCDropDownListBox::MeasureText(CDC& dc, int row, const CString& text) {
    const CMFCPopupMenuBar& bar = *GetMenuBar();
    const int textWidth =
        static_cast<int>(dc.GetTextExtent(toolbar::ShownText(text)).cx) + afxGlobalData.ScalePixels(kOverhang);
    const CSize size(toolbar::MenuRowWidth(textWidth, bar.GetRowMetrics()), bar.GetRowHeight());
    const int wanted = m_pCombo != nullptr ? m_pCombo->GetDropListItemWidth(&dc, row, size) : size.cx;
    return std::min(wanted, ::GetSystemMetrics(SM_CXSCREEN) / 2);
}

// Measuring every text of a long list would be seen when it opens: the longest by their characters are near enough.
int CMFCDropDownListBox::MeasureRows(CDC& dc) {
    std::vector<std::pair<int, CString>> longest;
    longest.reserve(m_rows.size());
    for (int row = 0; row < GetCount(); ++row) {
        longest.emplace_back(row, GetRowText(row));
    }
    const std::size_t measured = std::min<std::size_t>(longest.size(), kMostMeasured);
    const auto end = longest.begin() + static_cast<std::ptrdiff_t>(measured);
    const auto isLonger = [](const auto& left, const auto& right) {
        return left.second.GetLength() > right.second.GetLength();
    };
    if (end != longest.end()) {
        std::nth_element(longest.begin(), end, longest.end(), isLonger);
    }
    int width = 0;
    for (auto row = longest.begin(); row != end; ++row) {
        width = std::max(width, MeasureText(dc, row->first, row->second));
    }
    return width;
}

int CMFCDropDownListBox::MeasureRow(CDC& dc, int row) { return MeasureText(dc, row, GetRowText(row)); }

BOOL CMFCDropDownListBox::DrawRow(CDC& dc, int row, CMFCToolBarMenuButton& button, BOOL isHot) {
    return m_pCombo != nullptr && m_pCombo->OnDrawDropListItem(&dc, row, &button, isHot);
}

// ---- the window

BOOL CMFCDropDownListBox::Track(CPoint point, CWnd* pWndOwner) {
    SetRightAlign(m_pCombo != nullptr && IsMirrored(m_pCombo->GetParentWnd()));
    const std::weak_ptr<BOOL> life = m_life;
    return Create(pWndOwner, point.x, point.y, nullptr, FALSE, TRUE) && !life.expired();
}

BOOL CMFCDropDownListBox::PreCreateWindow(CREATESTRUCT& cs) {
    cs.dwExStyle |= IsRightAlign() ? WS_EX_LAYOUTRTL : 0;
    return CMFCPopupMenu::PreCreateWindow(cs);
}

BOOL CMFCDropDownListBox::InitMenuBar() {
    CMFCPopupMenuBar* bar = GetMenuBar();
    if (bar == nullptr) {
        return FALSE;
    }
    bar->SetRows(this);
    if (!CMFCPopupMenu::InitMenuBar()) {
        return FALSE;
    }
    bar->SetHotRow(m_nCurSel);
    bar->SetOffset(std::max(0, m_nCurSel - kRowsAboveSelection) * bar->GetRowHeight());
    return TRUE;
}

CWnd* CMFCDropDownListBox::GetParentArea(CRect& rectParentBtn) {
    if (m_pCombo == nullptr) {
        return CMFCPopupMenu::GetParentArea(rectParentBtn);
    }
    rectParentBtn = m_pCombo->GetRect();
    return m_pCombo->GetParentWnd();
}

CRect CMFCDropDownListBox::GetAvoidedArea() {
    CWnd* parent = m_pCombo != nullptr ? m_pCombo->GetParentWnd() : nullptr;
    if (parent == nullptr || m_pCombo->GetCommandRect().IsRectEmpty()) {
        return CMFCPopupMenu::GetAvoidedArea();
    }
    CRect area;
    area.UnionRect(m_pCombo->GetCommandRect(), m_pCombo->GetMenuRect());
    parent->ClientToScreen(area);
    return area;
}

void CMFCDropDownListBox::OnParentComboDestroyed() {
    m_pCombo = nullptr;
    SetParentRibbonElement(nullptr);
    CloseMenu();
}

void CMFCDropDownListBox::OnClose() {
    const std::weak_ptr<BOOL> life = m_life;
    if (std::exchange(m_bToldHot, FALSE) && m_pCombo != nullptr) {
        m_pCombo->NotifyHighlightListItem(-1);
    }
    if (!life.expired()) {
        CMFCPopupMenu::OnClose();
    }
}

// ---- input

BOOL CMFCDropDownListBox::IsEditFocused() const {
    return m_pCombo != nullptr && m_pCombo->HasEditBox() && m_pCombo->HasFocus();
}

BOOL CMFCDropDownListBox::OnListKey(UINT nMessage, UINT nChar) {
    const BOOL isKey = nMessage == WM_KEYDOWN || nMessage == WM_SYSKEYDOWN;
    // Alt may be the first half of Alt and an arrow, which closes the list as it opens it.
    if (isKey && nChar == VK_MENU) {
        return TRUE;
    }
    if (nMessage == WM_SYSKEYDOWN && nChar == VK_F4) {
        CloseAll();
        return TRUE;
    }
    if (nMessage == WM_SYSKEYDOWN && (nChar == VK_UP || nChar == VK_DOWN)) {
        CloseMenu();
        return TRUE;
    }
    if (isKey && nChar == VK_RETURN && GetCurSel() < 0 && IsEditFocused()) {
        // The text that was typed counts.
        CMFCRibbonComboBox* combo = m_pCombo;
        const std::weak_ptr<BOOL> life = combo->m_life;
        CloseMenu();
        if (!life.expired()) {
            combo->ProcessKey(nChar);
        }
        return TRUE;
    }
    return CMFCPopupMenu::OnChainKey(nMessage, nChar);
}

// A choice has told the keyboard of its end before: what is closed by a key otherwise goes back to where it was opened.
BOOL CMFCDropDownListBox::OnChainKey(UINT nMessage, UINT nChar) {
    CMFCRibbonComboBox* combo = m_pCombo;
    const std::weak_ptr<BOOL> life = combo != nullptr ? combo->m_life : nullptr;
    const BOOL isUsed = OnListKey(nMessage, nChar);
    if (life.expired() || combo->IsDroppedDown()) {
        return isUsed;
    }
    if (RibbonBarHost* bar = combo->GetBarHost()) {
        bar->GetElementKeys().LeaveList();
    }
    return isUsed;
}

// What a held key repeats neither switches once more nor opens the list again. Alt and F4 mean the frame.
CMFCPopupMenu::ChainInput CMFCDropDownListBox::OnChainMessage(const MSG& message) {
    const bool isWithAlt = message.message == WM_SYSKEYDOWN;
    const bool switches = message.message == WM_KEYDOWN && message.wParam == VK_SPACE &&
                          (!IsEditFocused() || ::GetKeyState(VK_CONTROL) < 0);
    const bool opensAndCloses = isWithAlt && (message.wParam == VK_UP || message.wParam == VK_DOWN);
    if ((switches || opensAndCloses) && (message.lParam & kIsRepeated) != 0) {
        return ChainInput::Used;
    }
    const bool closesFrame = isWithAlt && message.wParam == VK_F4;
    const ChainInput input = CMFCPopupMenu::OnChainMessage(message);
    return closesFrame ? ChainInput::ForWindow : input;
}

BOOL CMFCDropDownListBox::ToggleRow(int row) { return m_pCombo != nullptr && m_pCombo->OnToggleDropListItem(row); }

// While the list opens nothing has become hot that was not selected before.
void CMFCDropDownListBox::OnChangeHot(int nHot) {
    if (!IsShown() || m_pCombo == nullptr) {
        return;
    }
    m_bToldHot = TRUE;
    m_pCombo->NotifyAccessibility(EVENT_OBJECT_VALUECHANGE);
    m_pCombo->NotifyHighlightListItem(nHot); // the host may end the list
}

void CMFCDropDownListBox::OnChooseItem(UINT nIndex) {
    CMFCRibbonComboBox* combo = m_pCombo;
    const std::weak_ptr<BOOL> life = combo != nullptr ? combo->m_life : nullptr;
    CloseMenu();
    if (!life.expired()) {
        combo->OnSelectItem(static_cast<int>(nIndex));
    }
}
