// A combo box's face, and what opens its list.
#include <afxribboncombobox.h>

#include <afxglobals.h>
#include <afxvisualmanager.h>

#include "fx/dc_scope.h"
#include "fx/item_marks.h"
#include "fx/scoped_change.h"
#include "popups/row_text.h"
#include "ribbon/element_metrics.h"

#include <new>

namespace {
constexpr int kDropButton = 14; // width at 96 DPI
constexpr int kTextSide = 3;    // between the edit area's frame and the text
} // namespace

int CMFCRibbonComboBox::GetDropButtonWidth() const { return afxGlobalData.ScalePixels(kDropButton); }

// ---- drawing

void CMFCRibbonComboBox::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty() || m_rectCommand.IsRectEmpty()) {
        return;
    }
    const ribbon::TextContext context(pDC);
    OnDrawLabelAndImage(pDC);
    CRect box;
    box.UnionRect(m_rectCommand, m_rectMenu);
    COLORREF text = afxGlobalData.clrWindowText;
    COLORREF selection = afxGlobalData.clrHilite;
    COLORREF selectedText = afxGlobalData.clrTextHilite;
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    manager->OnFillRibbonEdit(pDC, m_pWndEdit, box, IsHighlighted(), FALSE, IsDisabled(), text, selection,
                              selectedText);
    CRect button = m_rectMenu;
    button.DeflateRect(0, 1, 1, 1); // the box's frame goes round it
    if (!button.IsRectEmpty()) {
        manager->OnDrawComboDropButton(pDC, button, IsDisabled(), IsDroppedDown(), IsHighlighted(), nullptr);
    }
    if (m_pWndEdit == nullptr || !m_pWndEdit->IsWindowVisible()) {
        const fx::DcState state(*pDC);
        CRect inside = m_rectCommand;
        inside.DeflateRect(1, 1, 0, 1);
        pDC->IntersectClipRect(inside);
        pDC->SetTextColor(ribbon::TextColor(pDC, text, IsDisabled()));
        OnDrawSelectedItem(pDC, m_rectCommand);
    }
    OnDrawBorder(pDC);
}

void CMFCRibbonComboBox::OnDrawSelectedItem(CDC* pDC, CRect rectEdit) {
    const UINT align = m_nAlign == ES_CENTER ? DT_CENTER : m_nAlign == ES_RIGHT ? DT_RIGHT : DT_LEFT;
    rectEdit.DeflateRect(afxGlobalData.ScalePixels(kTextSide), 0);
    pDC->DrawText(toolbar::ShownText(m_strEdit), rectEdit,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | align);
}

void CMFCRibbonComboBox::Redraw() {
    CMFCRibbonEdit::Redraw();
    CMFCDropDownListBox* list = GetDropDownList();
    if (!m_bRedrawsFace && list != nullptr && list->GetMenuBar()->GetSafeHwnd() != nullptr) {
        list->GetMenuBar()->Invalidate();
    }
}

// Derived classes hear of every redraw by the virtual function.
void CMFCRibbonComboBox::RedrawItem(int nIndex) {
    {
        const fx::ScopedChange<BOOL> face(m_bRedrawsFace, TRUE);
        Redraw();
    }
    if (CMFCDropDownListBox* list = GetDropDownList(); list != nullptr) {
        list->GetMenuBar()->InvalidateRow(nIndex);
    }
}

// ---- opening

CMFCDropDownListBox* CMFCRibbonComboBox::GetDropDownList() const {
    return DYNAMIC_DOWNCAST(CMFCDropDownListBox, m_pPopup);
}

void CMFCRibbonComboBox::CloseDropDown() {
    if (GetDropDownList() != nullptr) {
        ClosePopupMenu();
    }
}

BOOL CMFCRibbonComboBox::BeginDropDown() {
    const CWnd* parent = GetParentWnd();
    if (IsDisabled() || parent == nullptr || parent->GetSafeHwnd() == nullptr) {
        return FALSE;
    }
    if (m_pWndEdit != nullptr && m_pWndEdit->GetSafeHwnd() != nullptr && !m_pWndEdit->IsWindowVisible()) {
        return FALSE;
    }
    CMFCPopupMenu* active = CMFCPopupMenu::GetActiveMenu();
    const BOOL showsElement = active != nullptr && ::IsChild(active->GetSafeHwnd(), parent->GetSafeHwnd());
    if (active != nullptr && !showsElement) {
        active->SendMessage(WM_CLOSE);
        return FALSE;
    }
    const std::weak_ptr<BOOL> life = m_life;
    OnShowPopupMenu();
    return !life.expired() && !IsDroppedDown();
}

void CMFCRibbonComboBox::DropDownList() {
    if (BeginDropDown()) {
        OpenDropDown();
    }
}

std::unique_ptr<CMFCDropDownListBox> CMFCRibbonComboBox::MakeDropDownList() {
    return std::make_unique<CMFCDropDownListBox>(this);
}

// Null when there is no memory for it.
std::unique_ptr<CMFCDropDownListBox> CMFCRibbonComboBox::MakeFilledList() {
    try {
        std::unique_ptr<CMFCDropDownListBox> list = MakeDropDownList();
        for (std::size_t i = 0; list != nullptr && i < m_items.size(); ++i) {
            list->AddString(m_items[i].text);
        }
        return list;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

CPoint CMFCRibbonComboBox::GetDropDownPoint() const {
    CRect area = m_rectCommand.IsRectEmpty() ? m_rect : m_rectCommand;
    const CWnd* parent = GetParentWnd();
    const BOOL isMirrored = (parent->GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    parent->ClientToScreen(area);
    return CPoint(isMirrored ? area.right : area.left, area.bottom);
}

void CMFCRibbonComboBox::OpenDropDown(int nMinWidth) {
    CMFCDropDownListBox* const pList = MakeFilledList().release();
    if (pList == nullptr) {
        return;
    }
    pList->SetParentRibbonElement(this);
    pList->SetCurSel(m_nSelected);
    pList->SetMaxHeight(GetDropDownHeight());
    // Marks and texts have the room of the whole element.
    const bool isMarked = dynamic_cast<const RibbonItemMarks*>(this) != nullptr;
    const int usual = isMarked ? m_rect.Width() : m_rectCommand.Width() + m_rectMenu.Width();
    pList->SetMinWidth(nMinWidth >= 0 ? nMinWidth : usual);
    if (m_bResizeList) {
        pList->EnableVertResize(2 * afxGlobalData.GetTextHeight());
    }
    SetDroppedDown(pList);
    const std::weak_ptr<BOOL> life = m_life;
    if (m_pWndEdit != nullptr && m_pWndEdit->GetSafeHwnd() != nullptr) {
        m_pWndEdit->SetFocus();
        if (!life.expired() && m_pWndEdit != nullptr) {
            m_pWndEdit->SetSel(0, -1);
        }
    }
    CWnd* owner = !life.expired() && GetDropDownList() == pList ? GetCommandTarget() : nullptr;
    if (owner == nullptr) {
        // The window that lost the focus told the host, who ended this; or there is nobody to open it for.
        delete pList;
        return;
    }
    pList->Track(GetDropDownPoint(), owner);
}

// ---- state and input

void CMFCRibbonComboBox::OnAfterChangeRect(CDC* pDC) {
    CMFCRibbonEdit::OnAfterChangeRect(pDC);
    if (m_rect.IsRectEmpty()) {
        CloseDropDown();
    }
}

void CMFCRibbonComboBox::OnEnable(BOOL bEnable) {
    CMFCRibbonEdit::OnEnable(bEnable);
    if (!bEnable) {
        CloseDropDown();
    }
}

void CMFCRibbonComboBox::OnShow(BOOL bShow) {
    CMFCRibbonEdit::OnShow(bShow);
    if (!bShow) {
        CloseDropDown();
    }
}

void CMFCRibbonComboBox::OnLButtonDown(CPoint point) {
    if (m_bHasEditBox) {
        CMFCRibbonEdit::OnLButtonDown(point);
    } else if (!IsDisabled() && m_rect.PtInRect(point)) {
        DropDownList();
    }
}

BOOL CMFCRibbonComboBox::OnKey(BOOL bIsMenuKey) {
    if (IsDisabled()) {
        return FALSE;
    }
    if (m_bHasEditBox && !bIsMenuKey) {
        OnSetFocus(TRUE);
    } else {
        DropDownList();
    }
    return TRUE;
}

BOOL CMFCRibbonComboBox::OnProcessKey(UINT nChar) {
    if (m_bHasEditBox) {
        return CMFCRibbonEdit::OnProcessKey(nChar);
    }
    const BOOL opens = nChar == VK_F4 || nChar == VK_DOWN || nChar == VK_RETURN || nChar == VK_SPACE;
    return opens && OnKey(TRUE);
}

// Up without Alt leads out of the edit window.
BOOL CMFCRibbonComboBox::OnEditKey(UINT nChar) {
    const BOOL opens = nChar == VK_F4 || nChar == VK_DOWN || (nChar == VK_UP && ::GetKeyState(VK_MENU) < 0);
    if (!opens) {
        return CMFCRibbonEdit::OnEditKey(nChar);
    }
    DropDownList();
    return TRUE;
}

// An open list goes to the first row that begins with what was typed.
void CMFCRibbonComboBox::OnEditChange() {
    const CString before = m_strEdit;
    CMFCRibbonEdit::OnEditChange();
    CMFCDropDownListBox* list = GetDropDownList();
    if (list == nullptr || m_strEdit == before) {
        return;
    }
    const std::wstring_view typed(m_strEdit, static_cast<std::size_t>(m_strEdit.GetLength()));
    int row = typed.empty() ? -1 : 0;
    // The text field takes an item by its own text, which may not be the one in the list.
    const auto begins = [this, typed](int item) {
        return toolbar::StartsWith(GetShownItemText(item), typed) ||
               toolbar::StartsWith(m_items[static_cast<std::size_t>(item)].text, typed);
    };
    while (row >= 0 && row < GetCount() && !begins(row)) {
        ++row;
    }
    list->GetMenuBar()->SetHotRow(row); // beyond the last: none
}

void CMFCRibbonComboBox::OnEditFocus(BOOL bSet) {
    const std::weak_ptr<BOOL> life = m_life;
    if (!bSet) {
        CloseDropDown();
    }
    if (!life.expired()) {
        CMFCRibbonEdit::OnEditFocus(bSet);
    }
}

void CMFCRibbonComboBox::OnTextCommitted() {
    m_nSelected = FindItem(m_strEdit);
    ShowSelectionInCopies();
}
