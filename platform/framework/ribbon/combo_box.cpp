// A combo box's items and selection.
#include <afxribboncombobox.h>

#include <afxglobals.h>
#include <afxribbonbar.h>

#include <algorithm>
#include <utility>

#include "fx/scoped_change.h"

IMPLEMENT_DYNCREATE(CMFCRibbonComboBox, CMFCRibbonEdit)

namespace {
constexpr int kUsualListHeight = 250; // at 96 DPI
}

CMFCRibbonComboBox::CMFCRibbonComboBox() : m_life(std::make_shared<BOOL>(TRUE)) {}

CMFCRibbonComboBox::CMFCRibbonComboBox(UINT nID, BOOL bHasEditBox, int nWidth, LPCTSTR lpszLabel, int nImage)
    : CMFCRibbonEdit(nID, nWidth, lpszLabel, nImage),
      m_bHasEditBox(bHasEditBox),
      m_life(std::make_shared<BOOL>(TRUE)) {}

CMFCRibbonComboBox::~CMFCRibbonComboBox() {
    CMFCDropDownListBox* list = GetDropDownList();
    m_pPopup = nullptr;
    m_bIsDroppedDown = FALSE;
    m_life.reset();
    if (list != nullptr) {
        list->OnParentComboDestroyed();
    }
}

// ---- items

INT_PTR CMFCRibbonComboBox::AddItem(LPCTSTR lpszItem, DWORD_PTR dwData) {
    if (lpszItem == nullptr) {
        return -1;
    }
    m_items.push_back({lpszItem, dwData});
    if (CMFCDropDownListBox* list = GetDropDownList(); list != nullptr) {
        list->AddString(lpszItem);
    }
    return GetCount() - 1;
}

BOOL CMFCRibbonComboBox::DeleteItem(int iIndex) {
    if (!IsItem(iIndex)) {
        return FALSE;
    }
    m_items.erase(m_items.begin() + iIndex);
    const BOOL wasSelected = iIndex == m_nSelected;
    if (iIndex <= m_nSelected) {
        m_nSelected = wasSelected ? -1 : m_nSelected - 1;
    }
    // What was typed stays.
    if (wasSelected && !m_bHasEditBox) {
        SetEditText(L"");
    }
    CloseDropDown();
    return TRUE;
}

BOOL CMFCRibbonComboBox::DeleteItem(DWORD_PTR dwData) { return DeleteItem(FindData(dwData)); }

BOOL CMFCRibbonComboBox::DeleteItem(LPCTSTR lpszText) { return DeleteItem(FindItem(lpszText)); }

void CMFCRibbonComboBox::RemoveAllItems() {
    m_items.clear();
    m_nSelected = -1;
    SetEditText(L"");
    CloseDropDown();
}

LPCTSTR CMFCRibbonComboBox::GetItem(int iIndex) const {
    return IsItem(iIndex) ? static_cast<LPCTSTR>(m_items[static_cast<std::size_t>(iIndex)].text) : nullptr;
}

DWORD_PTR CMFCRibbonComboBox::GetItemData(int iIndex) const {
    return IsItem(iIndex) ? m_items[static_cast<std::size_t>(iIndex)].data : 0;
}

int CMFCRibbonComboBox::FindItem(LPCTSTR lpszText) const {
    if (lpszText == nullptr) {
        return -1;
    }
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [lpszText](const Item& item) { return item.text == lpszText; });
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

int CMFCRibbonComboBox::FindData(DWORD_PTR dwData) const {
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [dwData](const Item& item) { return item.data == dwData; });
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

// ---- selection

BOOL CMFCRibbonComboBox::SelectItem(int iIndex) {
    if (iIndex != -1 && !IsItem(iIndex)) {
        return FALSE;
    }
    const CString text = GetItem(iIndex);
    TakeSelection(iIndex, text);
    ShowSelectionInCopies();
    return TRUE;
}

BOOL CMFCRibbonComboBox::SelectItem(DWORD_PTR dwData) {
    const int index = FindData(dwData);
    return index >= 0 && SelectItem(index);
}

BOOL CMFCRibbonComboBox::SelectItem(LPCTSTR lpszText) {
    const int index = FindItem(lpszText);
    return index >= 0 && SelectItem(index);
}

// A copy may lack items that were added to the element later; it shows the text all the same.
void CMFCRibbonComboBox::TakeSelection(int index, const CString& text) {
    const BOOL isSameItem = IsItem(index) && m_items[static_cast<std::size_t>(index)].text == text;
    const int selected = isSameItem ? index : index < 0 ? -1 : FindItem(text);
    const BOOL changes = selected != m_nSelected;
    m_nSelected = selected;
    const fx::ScopedChange<BOOL> face(m_bRedrawsFace, TRUE);
    SetEditText(text);
    if (changes) {
        Redraw();
    }
}

void CMFCRibbonComboBox::ShowSelectionInCopies() {
    CMFCRibbonBar* bar = GetTopLevelRibbonBar();
    if (bar == nullptr || m_nID == 0) {
        return;
    }
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    bar->GetElementsByID(m_nID, elements);
    for (INT_PTR i = 0; i < elements.GetSize(); ++i) {
        auto* copy = DYNAMIC_DOWNCAST(CMFCRibbonComboBox, elements[i]);
        if (copy != nullptr && copy != this) {
            copy->TakeSelection(m_nSelected, m_strEdit);
        }
    }
}

// Closing the pop-ups around the element tells the host, and the command's handler may do anything.
void CMFCRibbonComboBox::OnSelectItem(int nItem) {
    if (!IsItem(nItem) || !SelectItem(nItem)) {
        return;
    }
    const std::weak_ptr<BOOL> life = m_life;
    LeaveEditWindow();
    if (!life.expired()) {
        CloseParentMenus();
    }
    if (!life.expired()) {
        NotifyCommand(m_bDelaysCommand);
    }
}

// ---- copies and size

void CMFCRibbonComboBox::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonEdit::CopyFrom(src);
    const auto* combo = dynamic_cast<const CMFCRibbonComboBox*>(&src);
    if (combo == nullptr || combo == this) {
        return;
    }
    m_items = combo->m_items;
    m_nSelected = combo->m_nSelected;
    m_nDropDownHeight = combo->m_nDropDownHeight;
    m_bHasEditBox = combo->m_bHasEditBox;
    m_bResizeList = combo->m_bResizeList;
    CloseDropDown();
}

int CMFCRibbonComboBox::GetDropDownHeight() {
    return m_nDropDownHeight > 0 ? m_nDropDownHeight : afxGlobalData.ScalePixels(kUsualListHeight);
}

CSize CMFCRibbonComboBox::GetIntermediateSize(CDC* pDC) { return CMFCRibbonEdit::GetIntermediateSize(pDC); }

BOOL CMFCRibbonComboBox::CanBeAddedToQuickAccessToolBar() const {
    return CMFCRibbonBaseElement::CanBeAddedToQuickAccessToolBar();
}
