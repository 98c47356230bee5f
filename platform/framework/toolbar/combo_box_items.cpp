// The items of a combo box on a toolbar.
#include "afxtoolbarcomboboxbutton.h"

#include "afxtoolbar.h"
#include "fx/archive.h"
#include "toolbar/buttons_of.h"

#include <algorithm>

INT_PTR CMFCToolBarComboBoxButton::AddItem(LPCTSTR lpszItem, DWORD_PTR dwData) {
    const CString text = lpszItem ? lpszItem : L"";
    if (const int found = FindItem(text); found >= 0) {
        m_items[static_cast<std::size_t>(found)].data = dwData;
        if (m_pWndCombo) {
            m_pWndCombo->SetItemData(found, dwData);
        }
        return found;
    }
    m_items.push_back({text, dwData});
    if (m_pWndCombo) {
        m_pWndCombo->SetItemData(m_pWndCombo->AddString(text), dwData);
    }
    return GetCount() - 1;
}

INT_PTR CMFCToolBarComboBoxButton::AddSortedItem(LPCTSTR lpszItem, DWORD_PTR dwData) {
    const CString text = lpszItem ? lpszItem : L"";
    const auto place = std::find_if(m_items.begin(), m_items.end(),
                                    [this, &text](const Item& item) { return Compare(text, item.text) < 0; });
    const auto index = static_cast<int>(place - m_items.begin());
    m_items.insert(place, {text, dwData});
    if (m_iSelIndex >= index) {
        ++m_iSelIndex;
    }
    if (m_pWndCombo) {
        m_pWndCombo->SetItemData(m_pWndCombo->InsertString(index, text), dwData);
    }
    return index;
}

int CMFCToolBarComboBoxButton::Compare(LPCTSTR lpszItem1, LPCTSTR lpszItem2) {
    return CString(lpszItem1).Compare(lpszItem2);
}

BOOL CMFCToolBarComboBoxButton::DeleteItem(int iIndex) {
    if (iIndex < 0 || iIndex >= GetCount()) {
        return FALSE;
    }
    m_items.erase(m_items.begin() + iIndex);
    if (m_pWndCombo) {
        m_pWndCombo->DeleteString(static_cast<UINT>(iIndex));
    }
    if (m_iSelIndex == iIndex) {
        m_iSelIndex = -1;
        m_strEdit.Empty();
        ShowTextInEdit();
    } else if (m_iSelIndex > iIndex) {
        --m_iSelIndex;
    }
    return TRUE;
}

BOOL CMFCToolBarComboBoxButton::DeleteItem(DWORD_PTR dwData) {
    const auto found = std::ranges::find(m_items, dwData, &Item::data);
    return found != m_items.end() && DeleteItem(static_cast<int>(found - m_items.begin()));
}

BOOL CMFCToolBarComboBoxButton::DeleteItem(LPCTSTR lpszText) { return DeleteItem(FindItem(lpszText)); }

void CMFCToolBarComboBoxButton::RemoveAllItems() {
    ClearData();
    m_items.clear();
    m_iSelIndex = -1;
    m_strEdit.Empty();
    if (m_pWndCombo) {
        m_pWndCombo->ResetContent();
    }
    ShowTextInEdit();
}

int CMFCToolBarComboBoxButton::FindItem(LPCTSTR lpszText) const {
    const CString text = lpszText ? lpszText : L"";
    const auto found = std::ranges::find(m_items, text, &Item::text);
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

LPCTSTR CMFCToolBarComboBoxButton::GetItem(int iIndex) const {
    const int index = iIndex == -1 ? m_iSelIndex : iIndex;
    return index >= 0 && index < GetCount() ? m_items[static_cast<std::size_t>(index)].text.GetString() : nullptr;
}

DWORD_PTR CMFCToolBarComboBoxButton::GetItemData(int iIndex) const {
    const int index = iIndex == -1 ? m_iSelIndex : iIndex;
    return index >= 0 && index < GetCount() ? m_items[static_cast<std::size_t>(index)].data : 0;
}

BOOL CMFCToolBarComboBoxButton::SelectItem(int iIndex, BOOL bNotify) {
    if (iIndex < -1 || iIndex >= GetCount()) {
        return FALSE;
    }
    m_iSelIndex = iIndex;
    m_strEdit = iIndex >= 0 ? m_items[static_cast<std::size_t>(iIndex)].text : CString();
    ShowSelection();
    auto* const bar = DYNAMIC_DOWNCAST(CMFCToolBar, GetParentWnd());
    if (bNotify && iIndex >= 0 && bar) {
        bar->ProcessCommand(this); // whose handler may destroy the bar
    }
    return TRUE;
}

BOOL CMFCToolBarComboBoxButton::SelectItem(DWORD_PTR dwData) {
    const auto found = std::ranges::find(m_items, dwData, &Item::data);
    return found != m_items.end() && SelectItem(static_cast<int>(found - m_items.begin()));
}

BOOL CMFCToolBarComboBoxButton::SelectItem(LPCTSTR lpszText) {
    const int found = FindItem(lpszText);
    return found >= 0 && SelectItem(found);
}

void CMFCToolBarComboBoxButton::SetText(LPCTSTR lpszText) {
    m_strEdit = lpszText ? lpszText : L"";
    m_iSelIndex = FindItem(m_strEdit);
    ShowSelection();
}

void CMFCToolBarComboBoxButton::ShowSelection() {
    if (!m_pWndCombo) {
        return;
    }
    m_pWndCombo->SetCurSel(m_iSelIndex);
    if (m_iSelIndex < 0 && GetEditCtrl()) {
        m_pWndCombo->SetWindowText(m_strEdit);
    }
    ShowTextInEdit();
}

void CMFCToolBarComboBoxButton::CopyFrom(const CMFCToolBarButton& src) {
    CMFCToolBarButton::CopyFrom(src);
    const auto* const source = DYNAMIC_DOWNCAST(CMFCToolBarComboBoxButton, &src);
    if (!source || source == this) {
        return;
    }
    m_items = source->m_items;
    m_dwStyle = source->m_dwStyle;
    m_iWidth = source->m_iWidth;
    m_nDropDownHeight = source->m_nDropDownHeight;
    m_iSelIndex = source->m_iSelIndex;
    m_strEdit = source->m_strEdit;
    m_uiMenuResID = source->m_uiMenuResID;
    m_bIsRibbon = source->m_bIsRibbon;
    DuplicateData();
    FillCombo();
}

void CMFCToolBarComboBoxButton::Serialize(CArchive& ar) {
    CMFCToolBarButton::Serialize(ar);
    if (!ar.IsLoading()) {
        ar << m_iWidth << m_dwStyle << m_nDropDownHeight << m_iSelIndex << m_strEdit
           << static_cast<DWORD>(m_items.size());
        for (const Item& item : m_items) {
            ar << item.text << static_cast<ULONGLONG>(item.data);
        }
        return;
    }
    DWORD count = 0;
    ar >> m_iWidth >> m_dwStyle >> m_nDropDownHeight >> m_iSelIndex >> m_strEdit >> count;
    fx::ArchiveChecks::RequireElements(ar, count);
    std::vector<Item> items;
    for (DWORD i = 0; i < count; ++i) {
        CString text;
        ULONGLONG data = 0;
        ar >> text >> data;
        items.push_back({text, static_cast<DWORD_PTR>(data)});
    }
    m_items.swap(items);
    if (m_iSelIndex < -1 || m_iSelIndex >= GetCount()) {
        m_iSelIndex = -1;
    }
    FillCombo();
}

// ---- the buttons with one command in all toolbars

namespace {

std::vector<CMFCToolBarComboBoxButton*> CombosOf(UINT command) {
    return toolbar::ButtonsOf<CMFCToolBarComboBoxButton>(command);
}

/// Selects in every combo the item that `find` answers. FALSE: none had it.
template <class Find>
BOOL SelectInAll(UINT command, Find find) {
    BOOL isSelected = FALSE;
    for (CMFCToolBarComboBoxButton* const combo : CombosOf(command)) {
        const int index = find(*combo);
        isSelected |= index >= 0 && combo->SelectItem(index, FALSE);
    }
    return isSelected;
}

} // namespace

CMFCToolBarComboBoxButton* CMFCToolBarComboBoxButton::GetByCmd(UINT uiCmd, BOOL bIsFocus) {
    for (CMFCToolBarComboBoxButton* const combo : CombosOf(uiCmd)) {
        if (!bIsFocus || combo->HasFocus()) {
            return combo;
        }
    }
    return nullptr;
}

int CMFCToolBarComboBoxButton::GetCountAll(UINT uiCmd) {
    const CMFCToolBarComboBoxButton* const combo = GetByCmd(uiCmd);
    return combo ? static_cast<int>(combo->GetCount()) : -1;
}

int CMFCToolBarComboBoxButton::GetCurSelAll(UINT uiCmd) {
    const CMFCToolBarComboBoxButton* const combo = GetByCmd(uiCmd);
    return combo ? combo->GetCurSel() : -1;
}

LPCTSTR CMFCToolBarComboBoxButton::GetItemAll(UINT uiCmd, int iIndex) {
    const CMFCToolBarComboBoxButton* const combo = GetByCmd(uiCmd);
    return combo ? combo->GetItem(iIndex) : nullptr;
}

DWORD_PTR CMFCToolBarComboBoxButton::GetItemDataAll(UINT uiCmd, int iIndex) {
    const CMFCToolBarComboBoxButton* const combo = GetByCmd(uiCmd);
    return combo ? combo->GetItemData(iIndex) : static_cast<DWORD_PTR>(CB_ERR);
}

void* CMFCToolBarComboBoxButton::GetItemDataPtrAll(UINT uiCmd, int iIndex) {
    const CMFCToolBarComboBoxButton* const combo = GetByCmd(uiCmd);
    const bool isMissing = combo && !combo->GetItem(iIndex);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): what the host gave as data
    return combo ? reinterpret_cast<void*>(isMissing ? static_cast<DWORD_PTR>(-1) : combo->GetItemData(iIndex))
                 : nullptr;
}

LPCTSTR CMFCToolBarComboBoxButton::GetTextAll(UINT uiCmd) {
    const CMFCToolBarComboBoxButton* const combo = GetByCmd(uiCmd);
    return combo ? combo->GetText() : nullptr;
}

BOOL CMFCToolBarComboBoxButton::SelectItemAll(UINT uiCmd, int iIndex) {
    return SelectInAll(uiCmd, [iIndex](const CMFCToolBarComboBoxButton&) { return iIndex; });
}

BOOL CMFCToolBarComboBoxButton::SelectItemAll(UINT uiCmd, DWORD_PTR dwData) {
    return SelectInAll(uiCmd, [dwData](const CMFCToolBarComboBoxButton& combo) {
        const auto found = std::ranges::find(combo.m_items, dwData, &Item::data);
        return found == combo.m_items.end() ? -1 : static_cast<int>(found - combo.m_items.begin());
    });
}

BOOL CMFCToolBarComboBoxButton::SelectItemAll(UINT uiCmd, LPCTSTR lpszText) {
    return SelectInAll(uiCmd, [lpszText](const CMFCToolBarComboBoxButton& combo) { return combo.FindItem(lpszText); });
}
