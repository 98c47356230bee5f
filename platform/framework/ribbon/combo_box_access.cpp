// What a combo box and its rows tell assistive programs.
#include <afxribboncombobox.h>

#include <oleacc.h>

#include "fx/accessibility_data.h"
#include "fx/item_marks.h"
#include "ribbon/access_texts.h"

namespace {

/// Answers whether the item has a check, and set.
bool AddMarks(const CMFCRibbonComboBox& combo, int index, CAccessibilityData& data) {
    const auto* const marks = dynamic_cast<const RibbonItemMarks*>(&combo);
    BOOL isChecked = FALSE;
    const CString words = marks != nullptr && index >= 0 ? marks->GetItemStateText(index, isChecked) : CString();
    if (!words.IsEmpty()) {
        data.m_strDescription += data.m_strDescription.IsEmpty() ? words : L", " + words;
    }
    return isChecked != FALSE;
}

} // namespace

bool fx::ShowItemMark(CMFCRibbonComboBox& combo, int index, bool isChanged) {
    const bool isOfAll = index < 0;
    if (isOfAll) {
        combo.Redraw();
    } else {
        combo.RedrawItem(index);
    }
    const int heard = combo.GetACCCurrentRow();
    if (!isChanged || heard < 0 || (!isOfAll && index != heard)) {
        return false;
    }
    combo.NotifyAccessibility(EVENT_OBJECT_STATECHANGE);
    combo.NotifyAccessibility(EVENT_OBJECT_DESCRIPTIONCHANGE); // the words stand there
    return true;
}

BOOL CMFCRibbonComboBox::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonEdit::SetACCData(pParent, data);
    const CMFCDropDownListBox* list = GetDropDownList();
    const int row = GetACCCurrentRow();
    // Whoever walks through the open list hears where it is. A text field is heard as it stands there.
    const bool isInList = list != nullptr && list->GetCurSel() == row;
    if (row >= 0 && (isInList || (!m_bHasEditBox && m_strEdit == GetItem(row)))) {
        data.m_strValue = GetShownItemText(row);
    }
    if (!m_bHasEditBox) {
        data.m_strDefaultAction = RibbonAccessText(RibbonAccessTextId::Open);
    }
    AddMarks(*this, row, data);
    return TRUE;
}

int CMFCRibbonComboBox::GetACCCurrentRow() const {
    const CMFCDropDownListBox* list = GetDropDownList();
    const int hot = list != nullptr ? list->GetCurSel() : -1;
    return IsItem(hot) ? hot : m_nSelected;
}

int CMFCRibbonComboBox::FindShownItem(LPCTSTR lpszText) const {
    for (int row = 0; lpszText != nullptr && row < GetACCRowCount(); ++row) {
        if (GetShownItemText(row) == lpszText) {
            return row;
        }
    }
    return -1;
}

// A value that an assistive program sets is typed, or chosen where nothing can be typed. It may be what was heard.
BOOL CMFCRibbonComboBox::PutACCValue(LPCTSTR lpszValue) {
    const int own = FindItem(lpszValue);
    const int shown = FindShownItem(lpszValue);
    if (!m_bHasEditBox) {
        return OnACCRowDefaultAction(shown >= 0 ? shown : own);
    }
    return CMFCRibbonEdit::PutACCValue(own < 0 && shown >= 0 ? GetItem(shown) : lpszValue);
}

BOOL CMFCRibbonComboBox::SetACCRowData(int nRow, CAccessibilityData& data) {
    if (!IsItem(nRow)) {
        return FALSE;
    }
    data = {};
    data.m_strName = GetShownItemText(nRow);
    data.m_nRole = ROLE_SYSTEM_LISTITEM;
    data.m_strDefaultAction = RibbonAccessText(RibbonAccessTextId::Switch);
    data.m_nState = STATE_SYSTEM_SELECTABLE | (nRow == m_nSelected ? STATE_SYSTEM_SELECTED : 0) |
                    (IsDisabled() ? STATE_SYSTEM_UNAVAILABLE : 0);
    CRect shown(0, 0, 0, 0);
    if (CMFCDropDownListBox* list = GetDropDownList(); list != nullptr && list->GetSafeHwnd() != nullptr) {
        CMFCPopupMenuBar& bar = *list->GetMenuBar();
        CRect client;
        bar.GetClientRect(client);
        shown.IntersectRect(client, bar.GetRowRect(nRow));
        if (!shown.IsRectEmpty()) {
            bar.ClientToScreen(shown);
        }
        data.m_nState |= STATE_SYSTEM_FOCUSABLE | (nRow == bar.GetHotRow() ? STATE_SYSTEM_FOCUSED : 0);
    }
    data.m_nState |= AddMarks(*this, nRow, data) ? STATE_SYSTEM_CHECKED : 0;
    data.m_rect = shown;
    if (shown.IsRectEmpty()) {
        data.m_nState |=
            GetDropDownList() != nullptr ? STATE_SYSTEM_OFFSCREEN : STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE;
    }
    return TRUE;
}

// The program that asks must not wait for what the command does.
BOOL CMFCRibbonComboBox::OnACCRowDefaultAction(int nRow) {
    if (!IsItem(nRow) || IsDisabled()) {
        return FALSE;
    }
    const std::weak_ptr<BOOL> life = m_life;
    CloseDropDown();
    if (life.expired()) {
        return TRUE;
    }
    m_bDelaysCommand = TRUE;
    OnSelectItem(nRow);
    if (!life.expired()) {
        m_bDelaysCommand = FALSE;
    }
    return TRUE;
}
