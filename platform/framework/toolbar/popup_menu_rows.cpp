// A pop-up's bar as a list: rows that are computed, not kept.
#include "toolbar/popup_menu_rows.h"

#include "afxpopupmenu.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/window_dc.h"
#include "fx/window_guard.h"
#include "popups/row_keys.h"
#include "popups/row_text.h"
#include "toolbar/menu_row.h"

#include <algorithm>
#include <utility>

namespace {

// As in every list: left and right go to the neighbours too, and Tab leaves.
std::optional<toolbar::RowStep> ListStepOf(UINT key) {
    switch (key) {
    case VK_RIGHT:
        return toolbar::RowStep::Next;
    case VK_LEFT:
        return toolbar::RowStep::Previous;
    case VK_TAB:
        return std::nullopt;
    default:
        return toolbar::RowStepOf(key);
    }
}

} // namespace

void CMFCPopupMenuBar::SetRows(toolbar::PopupRows* pRows) {
    m_rows.reset();
    if (pRows) {
        m_rows = std::make_unique<Rows>();
        m_rows->source = pRows;
        m_rows->button.m_pWndParent = this;
        m_rows->button.m_bText = TRUE;
    }
    m_bDropDownListMode = pRows != nullptr;
    m_iHighlighted = -1;
    m_iOffset = 0;
}

int CMFCPopupMenuBar::GetRowCount() const { return m_rows ? m_rows->source->GetRowCount() : 0; }

toolbar::RowGeometry CMFCPopupMenuBar::GetRowGeometry() const {
    return {GetRowCount(), std::max(1, GetRowHeight()), m_iOffset};
}

CRect CMFCPopupMenuBar::GetRowRect(int nRow) const {
    const toolbar::RowGeometry rows = GetRowGeometry();
    if (!m_hWnd || !rows.IsRow(nRow)) {
        return CRect(0, 0, 0, 0);
    }
    CRect client;
    GetClientRect(&client);
    return CRect(CPoint(0, rows.TopOf(nRow)), CSize(client.Width(), rows.height));
}

void CMFCPopupMenuBar::InvalidateRow(int nRow) {
    CRect client;
    CRect shown;
    if (m_hWnd) {
        GetClientRect(&client);
    }
    if (shown.IntersectRect(client, GetRowRect(nRow))) {
        InvalidateRect(shown);
    }
}

int CMFCPopupMenuBar::HitTest(CPoint point) {
    if (!m_rows) {
        return CMFCToolBar::HitTest(point);
    }
    CRect client;
    GetClientRect(&client);
    return client.PtInRect(point) ? GetRowGeometry().RowAt(point.y) : -1;
}

void CMFCPopupMenuBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    if (m_rows) {
        *lpRect = GetRowRect(nIndex);
    } else {
        CMFCToolBar::GetItemRect(nIndex, lpRect);
    }
}

void CMFCPopupMenuBar::GetInvalidateItemRect(int nIndex, LPRECT lpRect) const {
    if (m_rows) {
        *lpRect = GetRowRect(nIndex);
    } else {
        CMFCToolBar::GetInvalidateItemRect(nIndex, lpRect);
    }
}

int CMFCPopupMenuBar::GetPageHeight(int nHeight) const {
    if (!m_rows) {
        return std::max(0, nHeight);
    }
    const toolbar::RowGeometry rows = GetRowGeometry();
    return rows.RowsPerPage(nHeight) * rows.height;
}

int CMFCPopupMenuBar::GetLowestOffset(int nHeight) {
    return m_rows ? GetRowGeometry().LowestOffset(nHeight) : std::max(0, static_cast<int>(CalcSize(TRUE).cy) - nHeight);
}

CSize CMFCPopupMenuBar::CalcRows() {
    if (m_rows->width < 0) {
        CClientDC dc(m_hWnd ? this : nullptr);
        CFont* const former = SelectToolBarFont(&dc, TRUE);
        m_rows->width = m_rows->source->MeasureRows(dc);
        if (former) {
            dc.SelectObject(former);
        }
    }
    m_nContentHeight = GetRowGeometry().ContentHeight();
    return CSize(m_rows->width, m_nContentHeight);
}

void CMFCPopupMenuBar::OnRowsChanged() {
    if (!m_rows) {
        return;
    }
    m_rows->width = -1;
    m_rows->firstAdded = -1;
    m_rows->typed.Forget();
    m_iHighlighted = std::min(m_iHighlighted, GetRowCount() - 1);
    AdjustLayout();
}

// What scrolls already keeps its height: it has time.
void CMFCPopupMenuBar::OnRowAdded() {
    if (!m_rows) {
        return;
    }
    const bool isWaiting = m_rows->firstAdded >= 0;
    if (!isWaiting) {
        m_rows->firstAdded = GetRowCount() - 1;
    }
    const CMFCPopupMenu* const popup = GetParentPopup();
    if (!popup || !popup->IsScrollable()) {
        LayOutAddedRows();
    } else if (!isWaiting) {
        PostMessage(WM_TIMER, Rows::addedTimer);
    }
}

// Another width moves everything; otherwise the scroll bar alone knows of other rows.
void CMFCPopupMenuBar::LayOutAddedRows() {
    CMFCPopupMenu* const popup = GetParentPopup();
    const int first = m_rows ? std::exchange(m_rows->firstAdded, -1) : -1;
    if (first < 0 || !popup) {
        return;
    }
    const int before = m_rows->width;
    if (before >= 0) {
        CClientDC dc(this);
        CFont* const former = SelectToolBarFont(&dc, TRUE);
        for (int row = first; row < GetRowCount(); ++row) {
            m_rows->width = std::max(m_rows->width, m_rows->source->MeasureRow(dc, row));
        }
        if (former) {
            dc.SelectObject(former);
        }
    }
    if (m_rows->width != before || !popup->IsScrollable()) {
        AdjustLayout();
        return;
    }
    CalcRows();
    CRect client;
    GetClientRect(&client);
    popup->UpdateScrollRange(client.Height());
    Invalidate();
}

// ---- drawing

void CMFCPopupMenuBar::PaintRows(CDC* pDC) {
    CRect clip;
    pDC->GetClipBox(&clip);
    CFont* const former = SelectToolBarFont(pDC, TRUE);
    const toolbar::RowSpan shown = toolbar::RowsBetween(GetRowGeometry(), clip.top, clip.bottom);
    for (int row = shown.first; row < shown.end; ++row) {
        PaintRow(pDC, row);
    }
    if (former) {
        pDC->SelectObject(former);
    }
}

void CMFCPopupMenuBar::PaintRow(CDC* pDC, int nRow) {
    CMFCToolBarMenuButton& button = m_rows->button;
    button.m_rect = GetRowRect(nRow);
    button.m_strText = toolbar::ShownText(m_rows->source->GetRowText(nRow));
    const BOOL isHot = nRow == m_iHighlighted;
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    if (isHot) {
        CRect face = button.m_rect;
        face.DeflateRect(1, 0);
        COLORREF unused = 0;
        manager->OnHighlightMenuItem(pDC, &button, face, unused);
    }
    const fx::TextColour colour(*pDC, manager->GetMenuItemTextColor(&button, isHot, FALSE));
    if (m_rows->source->DrawRow(*pDC, nRow, button, isHot)) {
        return;
    }
    CRect label = toolbar::LayOutMenuRow(button.m_rect, GetRowMetrics()).text;
    pDC->DrawText(button.m_strText, label, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

// ---- input

void CMFCPopupMenuBar::SetHotRow(int nRow) {
    if (!m_rows) {
        return;
    }
    const int row = GetRowGeometry().IsRow(nRow) ? nRow : -1;
    MakeVisible(row);
    SetHighlighted(row);
}

void CMFCPopupMenuBar::ChooseRow(int nRow) {
    if (GetRowGeometry().IsRow(nRow)) {
        m_nLastCommandIndex = nRow;
        m_rows->source->ChooseRow(nRow);
    }
}

BOOL CMFCPopupMenuBar::OnToggleRow(int nRow) { return m_rows && m_rows->source->ToggleRow(nRow); }

// An edit field above the list keeps the keys that move within its text.
BOOL CMFCPopupMenuBar::OnRowKey(UINT nChar) {
    CMFCPopupMenu* popup = GetParentPopup();
    const BOOL isEditing = popup->IsEditFocused();
    CRect client;
    GetClientRect(&client);
    if (const auto step = ListStepOf(nChar)) {
        const bool isInText =
            step == toolbar::RowStep::First || step == toolbar::RowStep::Last || nChar == VK_LEFT || nChar == VK_RIGHT;
        if (isEditing && isInText) {
            return FALSE;
        }
        const int page = std::max(1, GetRowGeometry().RowsPerPage(client.Height()) - 1);
        SetHotRow(toolbar::WalkRows({GetRowCount(), m_iHighlighted, toolbar::RowEnds::Stop, page}, *step,
                                    [](int) { return true; }));
        return TRUE;
    }
    switch (nChar) {
    case VK_ESCAPE:
        popup->m_bEscClose = TRUE;
        popup->CloseMenu();
        return TRUE;
    case VK_F4:
    case VK_TAB:
        popup->CloseMenu();
        return TRUE;
    case VK_RETURN:
        if (m_iHighlighted >= 0) {
            ChooseItem(m_iHighlighted);
        } else {
            popup->CloseMenu();
        }
        return TRUE;
    case VK_SPACE:
        return (!isEditing || ::GetKeyState(VK_CONTROL) < 0) && ToggleHotRow();
    default:
        return FALSE;
    }
}

// In the middle of a word a space belongs to it, unless it comes with Ctrl.
BOOL CMFCPopupMenuBar::ToggleHotRow() {
    const bool isInWord = ::GetKeyState(VK_CONTROL) >= 0 && m_rows->typed.IsGoingOn(::GetTickCount64());
    if (m_iHighlighted < 0 || isInWord) {
        return FALSE;
    }
    const fx::WindowGuard guard(this);
    const int row = m_iHighlighted;
    const BOOL isUsed = OnToggleRow(row);
    if (isUsed && guard.IsAlive()) {
        InvalidateRow(row);
    }
    return isUsed;
}

BOOL CMFCPopupMenuBar::OnRowChar(UINT nChar) {
    const std::uint64_t now = ::GetTickCount64();
    // A space begins no word.
    if (nChar < L' ' || (nChar == L' ' && !m_rows->typed.IsGoingOn(now))) {
        return TRUE;
    }
    const toolbar::PopupRows& source = *m_rows->source;
    const int row = m_rows->typed.Type(
        static_cast<wchar_t>(nChar), ::GetTickCount64(), m_iHighlighted, GetRowCount(),
        [&source](int index, const std::wstring& text) { return toolbar::StartsWith(source.GetRowText(index), text); });
    if (row >= 0) {
        SetHotRow(row);
    }
    return TRUE;
}
