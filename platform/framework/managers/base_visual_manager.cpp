#include "afxvisualmanager.h"

#include "afxglobals.h"

#include <vssym32.h>

IMPLEMENT_DYNAMIC(CMFCBaseVisualManager, CObject)

CMFCBaseVisualManager::CMFCBaseVisualManager() = default;

CMFCBaseVisualManager::~CMFCBaseVisualManager() { CleanUpThemes(); }

void CMFCBaseVisualManager::CleanUpThemes() {
    for (HTHEME* theme : {&m_hThemeButton, &m_hThemeCombo}) {
        if (*theme != nullptr) {
            CloseThemeData(*theme);
        }
        *theme = nullptr;
    }
}

void CMFCBaseVisualManager::UpdateSystemColors() { CleanUpThemes(); }

HTHEME CMFCBaseVisualManager::ButtonTheme() {
    if (m_hThemeButton == nullptr) {
        m_hThemeButton = OpenThemeData(nullptr, L"BUTTON");
    }
    return m_hThemeButton;
}

HTHEME CMFCBaseVisualManager::ComboTheme() {
    if (m_hThemeCombo == nullptr) {
        m_hThemeCombo = OpenThemeData(nullptr, L"COMBOBOX");
    }
    return m_hThemeCombo;
}

BOOL CMFCBaseVisualManager::DrawCheckBox(CDC* pDC, CRect rect, BOOL bHighlighted, int nState, BOOL bEnabled,
                                         BOOL bPressed) {
    if (ButtonTheme() == nullptr) {
        return FALSE;
    }
    // Four states each for unchecked, checked and mixed, one after another.
    const int look = !bEnabled ? 3 : bPressed ? 2 : bHighlighted ? 1 : 0;
    const int state = CBS_UNCHECKEDNORMAL + 4 * (nState < 0 || nState > 2 ? 0 : nState) + look;
    return SUCCEEDED(DrawThemeBackground(m_hThemeButton, *pDC, BP_CHECKBOX, state, rect, nullptr));
}

BOOL CMFCBaseVisualManager::DrawRadioButton(CDC* pDC, CRect rect, BOOL bHighlighted, BOOL bChecked, BOOL bEnabled,
                                            BOOL bPressed) {
    if (ButtonTheme() == nullptr) {
        return FALSE;
    }
    const int look = !bEnabled ? 3 : bPressed ? 2 : bHighlighted ? 1 : 0;
    const int state = RBS_UNCHECKEDNORMAL + (bChecked ? 4 : 0) + look;
    return SUCCEEDED(DrawThemeBackground(m_hThemeButton, *pDC, BP_RADIOBUTTON, state, rect, nullptr));
}

BOOL CMFCBaseVisualManager::DrawComboBorder(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped,
                                            BOOL bIsHighlighted) {
    if (ComboTheme() == nullptr) {
        return FALSE;
    }
    const int state = bDisabled ? CBB_DISABLED : bIsDropped || bIsHighlighted ? CBB_HOT : CBB_NORMAL;
    return SUCCEEDED(DrawThemeBackground(m_hThemeCombo, *pDC, CP_BORDER, state, rect, nullptr));
}

BOOL CMFCBaseVisualManager::DrawComboDropButton(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped,
                                                BOOL bIsHighlighted) {
    if (ComboTheme() == nullptr) {
        return FALSE;
    }
    const int state = bDisabled ? CBXS_DISABLED : bIsDropped ? CBXS_PRESSED : bIsHighlighted ? CBXS_HOT : CBXS_NORMAL;
    return SUCCEEDED(DrawThemeBackground(m_hThemeCombo, *pDC, CP_DROPDOWNBUTTON, state, rect, nullptr));
}

BOOL CMFCBaseVisualManager::DrawPushButton(CDC* pDC, CRect rect, CMFCButton*, UINT uiState) {
    if (ButtonTheme() == nullptr) {
        return FALSE;
    }
    const int state = uiState & ODS_DISABLED ? PBS_DISABLED : uiState & ODS_SELECTED ? PBS_PRESSED : PBS_NORMAL;
    return SUCCEEDED(DrawThemeBackground(m_hThemeButton, *pDC, BP_PUSHBUTTON, state, rect, nullptr));
}

void CMFCBaseVisualManager::FillReBarPane(CDC* pDC, CBasePane*, CRect rectClient) {
    pDC->FillSolidRect(rectClient, afxGlobalData.clrBarFace);
}
