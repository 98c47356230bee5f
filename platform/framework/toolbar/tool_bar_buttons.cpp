// A toolbar's list of buttons.
#include "afxtoolbar.h"

#include "afxcommandmanager.h"
#include "afxpopupmenubar.h"
#include "fx/window_guard.h"
#include "toolbar/default_images.h"

#include <algorithm>
#include <memory>

namespace {

/// A point that no button lies at: the tooltip lets go of the button that it was shown for.
const CPoint kNoButton(-1, -1);

bool IsSeparator(const CMFCToolBarButton* button) { return button && (button->m_nStyle & TBBS_SEPARATOR) != 0; }

std::unique_ptr<CMFCToolBarButton> MakeCopy(const CMFCToolBarButton& button) {
    std::unique_ptr<CMFCToolBarButton> copy(static_cast<CMFCToolBarButton*>(button.GetRuntimeClass()->CreateObject()));
    if (copy) {
        copy->CopyFrom(button);
    }
    return copy;
}

} // namespace

int CMFCToolBar::InsertButton(const CMFCToolBarButton& button, INT_PTR iInsertAt) {
    std::unique_ptr<CMFCToolBarButton> copy = MakeCopy(button);
    return copy ? InsertButton(copy.release(), static_cast<int>(iInsertAt)) : -1;
}

int CMFCToolBar::InsertButton(CMFCToolBarButton* pButton, int iInsertAt) {
    if (!pButton) {
        return -1;
    }
    const int count = GetCount();
    const int index = iInsertAt < 0 || iInsertAt > count ? count : iInsertAt;
    AttachButton(pButton, index);
    return index;
}

void CMFCToolBar::AttachButton(CMFCToolBarButton* pButton, int iIndex) {
    POSITION place = iIndex < GetCount() ? m_Buttons.FindIndex(iIndex) : nullptr;
    if (place) {
        m_Buttons.InsertBefore(place, pButton);
    } else {
        m_Buttons.AddTail(pButton);
    }
    if (m_iHighlighted >= iIndex) {
        ++m_iHighlighted;
    }
    if (m_iButtonCapture >= iIndex) {
        ++m_iButtonCapture;
    }
    pButton->m_bText = pButton->m_bText || m_bTextLabels;
    if (m_hWnd) {
        pButton->OnChangeParentWnd(this);
    } else {
        pButton->m_pWndParent = this;
    }
    if (CFrameWnd* frame = static_cast<CFrameWnd*>(m_pDockSiteFrame)) {
        frame->DelayRecalcLayout();
    }
}

int CMFCToolBar::InsertSeparator(INT_PTR iInsertAt) {
    auto separator = std::make_unique<CMFCToolBarButton>();
    separator->m_nStyle = TBBS_SEPARATOR;
    separator->m_bImage = FALSE;
    return InsertButton(separator.release(), static_cast<int>(iInsertAt));
}

BOOL CMFCToolBar::RemoveButton(int iIndex) {
    POSITION position = iIndex >= 0 ? m_Buttons.FindIndex(iIndex) : nullptr;
    if (!position) {
        return FALSE;
    }
    PlaceTooltip(kNoButton);
    std::unique_ptr<CMFCToolBarButton> button(static_cast<CMFCToolBarButton*>(m_Buttons.GetAt(position)));
    m_Buttons.RemoveAt(position);
    if (m_pLastCommandButton == button.get()) {
        m_pLastCommandButton = nullptr;
    }
    m_iHighlighted = m_iHighlighted == iIndex ? -1 : m_iHighlighted - (m_iHighlighted > iIndex ? 1 : 0);
    m_iButtonCapture = m_iButtonCapture == iIndex ? -1 : m_iButtonCapture - (m_iButtonCapture > iIndex ? 1 : 0);
    const bool wasSeparator = IsSeparator(button.get());
    button->OnChangeParentWnd(nullptr);
    button.reset();
    if (!wasSeparator) {
        DropSeparatorsAround(iIndex);
    }
    if (CFrameWnd* frame = static_cast<CFrameWnd*>(m_pDockSiteFrame)) {
        frame->DelayRecalcLayout();
    }
    return TRUE;
}

// The button at iIndex is gone: what stands there now is the one behind it.
void CMFCToolBar::DropSeparatorsAround(int iIndex) {
    const bool isBefore = iIndex > 0 && IsSeparator(GetButton(iIndex - 1));
    const bool isBehind = IsSeparator(GetButton(iIndex));
    const bool isFirst = iIndex == 0;
    const bool isLast = iIndex == GetCount();
    if (isBehind && (isBefore || isFirst)) {
        RemoveButton(iIndex);
    } else if (isBefore && isLast) {
        RemoveButton(iIndex - 1);
    }
}

void CMFCToolBar::RemoveAllButtons() {
    PlaceTooltip(kNoButton);
    m_iHighlighted = -1;
    m_iButtonCapture = -1;
    const bool hasWindow = m_hWnd != nullptr;
    const fx::WindowGuard guard(this);
    while (!m_Buttons.IsEmpty()) {
        std::unique_ptr<CMFCToolBarButton> button(static_cast<CMFCToolBarButton*>(m_Buttons.RemoveHead()));
        if (m_pLastCommandButton == button.get()) {
            m_pLastCommandButton = nullptr;
        }
        if (m_hWnd) {
            button->OnChangeParentWnd(nullptr);
        }
        if (hasWindow && guard.IsGone()) {
            return; // whoever heard that the button's menu has closed has destroyed the bar
        }
    }
}

int CMFCToolBar::ReplaceButton(UINT uiCmd, const CMFCToolBarButton& button, BOOL bAll) {
    PlaceTooltip(kNoButton);
    int replaced = 0;
    for (int i = CommandToIndex(uiCmd); i >= 0; i = CommandToIndex(uiCmd, i + 1)) {
        std::unique_ptr<CMFCToolBarButton> copy = MakeCopy(button);
        if (!copy) {
            break;
        }
        POSITION position = m_Buttons.FindIndex(i);
        std::unique_ptr<CMFCToolBarButton> former(static_cast<CMFCToolBarButton*>(m_Buttons.GetAt(position)));
        if (m_pLastCommandButton == former.get()) {
            m_pLastCommandButton = nullptr;
        }
        copy->m_rect = former->m_rect;
        CMFCToolBarButton* const placed = copy.release();
        m_Buttons.SetAt(position, placed);
        if (m_hWnd) {
            former->OnChangeParentWnd(nullptr);
            placed->OnChangeParentWnd(this);
        } else {
            placed->m_pWndParent = this;
        }
        ++replaced;
        if (!bAll) {
            break;
        }
    }
    if (replaced > 0 && m_hWnd) {
        AdjustLayout();
    }
    return replaced;
}

BOOL CMFCToolBar::SetButtons(const UINT* lpIDArray, int nIDCount, BOOL bRemapImages) {
    if (!lpIDArray || nIDCount < 0) {
        return FALSE;
    }
    RemoveAllButtons();
    int image = m_iImagesOffset;
    for (int i = 0; i < nIDCount; ++i) {
        const UINT id = lpIDArray[i];
        if (id == ID_SEPARATOR) {
            InsertSeparator();
            continue;
        }
        if (!m_bLocked && bRemapImages) {
            toolbar::SetDefaultImage(id, image);
        }
        const int shown = bRemapImages ? image++ : GetDefaultImage(id);
        InsertButton(CMFCToolBarButton(id, shown, nullptr, FALSE, m_bLocked));
    }
    SetOrigButtons(m_Buttons);
    TellReset();
    return TRUE;
}

CMFCToolBarButton* CMFCToolBar::GetButton(int iIndex) const {
    POSITION position = iIndex >= 0 && iIndex < GetCount() ? m_Buttons.FindIndex(iIndex) : nullptr;
    return position ? static_cast<CMFCToolBarButton*>(m_Buttons.GetAt(position)) : nullptr;
}

int CMFCToolBar::ButtonToIndex(const CMFCToolBarButton* pButton) const {
    int index = 0;
    for (POSITION position = m_Buttons.GetHeadPosition(); position; ++index) {
        if (m_Buttons.GetNext(position) == pButton) {
            return index;
        }
    }
    return -1;
}

int CMFCToolBar::CommandToIndex(UINT nIDFind, int iIndexFirst) const {
    int index = 0;
    for (POSITION position = m_Buttons.GetHeadPosition(); position; ++index) {
        const auto* button = static_cast<const CMFCToolBarButton*>(m_Buttons.GetNext(position));
        if (index >= iIndexFirst && button->m_nID == nIDFind && (nIDFind != 0 || !IsSeparator(button))) {
            return index;
        }
    }
    return -1;
}

UINT CMFCToolBar::GetItemID(int nIndex) const {
    const CMFCToolBarButton* button = GetButton(nIndex);
    return button ? button->m_nID : 0;
}

void CMFCToolBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    const CMFCToolBarButton* button = GetButton(nIndex);
    *lpRect = button ? static_cast<const RECT&>(button->Rect()) : RECT{0, 0, 0, 0};
}

void CMFCToolBar::GetInvalidateItemRect(int nIndex, LPRECT lpRect) const {
    const CMFCToolBarButton* button = GetButton(nIndex);
    *lpRect = button ? static_cast<RECT>(button->GetInvalidateRect()) : RECT{0, 0, 0, 0};
}

int CMFCToolBar::HitTest(CPoint point) {
    int index = 0;
    for (POSITION position = m_Buttons.GetHeadPosition(); position; ++index) {
        const auto* button = static_cast<const CMFCToolBarButton*>(m_Buttons.GetNext(position));
        if (button->Rect().PtInRect(point) && !button->IsHidden() && button->IsVisible()) {
            return IsSeparator(button) ? -1 : index;
        }
    }
    return -1;
}

void CMFCToolBar::GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const {
    const CMFCToolBarButton* button = GetButton(nIndex);
    nID = button ? button->m_nID : 0;
    nStyle = button ? button->m_nStyle : 0;
    iImage = button ? button->GetImage() : -1;
}

void CMFCToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage) {
    CMFCToolBarButton* button = GetButton(nIndex);
    if (!button) {
        return;
    }
    const bool changesSize =
        ((button->m_nStyle ^ nStyle) & TBBS_SEPARATOR) != 0 || (button->GetImage() < 0) != (iImage < 0);
    button->m_nID = nID;
    button->SetImage(iImage);
    button->SetStyle(nStyle);
    if (changesSize && m_hWnd) {
        AdjustLayout();
    }
    InvalidateButton(nIndex);
}

UINT CMFCToolBar::GetButtonStyle(int nIndex) const {
    const CMFCToolBarButton* button = GetButton(nIndex);
    return button ? button->m_nStyle : 0;
}

void CMFCToolBar::SetButtonStyle(int nIndex, UINT nStyle) {
    CMFCToolBarButton* button = GetButton(nIndex);
    if (button && button->m_nStyle != nStyle) {
        button->SetStyle(nStyle);
        InvalidateButton(nIndex);
    }
}

CString CMFCToolBar::GetButtonText(int nIndex) const {
    const CMFCToolBarButton* button = GetButton(nIndex);
    return button ? button->m_strText : CString();
}

void CMFCToolBar::GetButtonText(int nIndex, CString& rString) const { rString = GetButtonText(nIndex); }

BOOL CMFCToolBar::SetButtonText(int nIndex, LPCTSTR lpszText) {
    CMFCToolBarButton* button = GetButton(nIndex);
    if (!button) {
        return FALSE;
    }
    button->m_strText = lpszText ? lpszText : L"";
    return TRUE;
}

void CMFCToolBar::SetToolBarBtnText(UINT nBtnIndex, LPCTSTR szText, BOOL bShowText, BOOL bShowImage) {
    CMFCToolBarButton* button = GetButton(static_cast<int>(nBtnIndex));
    if (!button) {
        return;
    }
    if (szText) {
        button->m_strText = szText;
    } else if (bShowText && button->m_strText.IsEmpty()) {
        OnSetDefaultButtonText(button);
    }
    button->m_bText = bShowText;
    button->m_bImage = bShowImage;
    if (m_hWnd) {
        AdjustLayout();
    }
}

int CMFCToolBar::GetCommandButtons(UINT uiCmd, CObList& listButtons) {
    listButtons.RemoveAll();
    for (POSITION position = GetAllToolbars().GetHeadPosition(); uiCmd != 0 && position;) {
        const auto* bar = static_cast<const CMFCToolBar*>(GetAllToolbars().GetNext(position));
        for (POSITION item = bar->m_Buttons.GetHeadPosition(); item;) {
            CObject* button = const_cast<CObject*>(static_cast<const CObject*>(bar->m_Buttons.GetNext(item)));
            if (static_cast<CMFCToolBarButton*>(button)->m_nID == uiCmd) {
                listButtons.AddTail(button);
            }
        }
    }
    return static_cast<int>(listButtons.GetCount());
}
