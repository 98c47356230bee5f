#pragma once

#include "barwright_api.h"

#include <afxtoolbarcomboboxbutton.h>

/// Combo boxes with marks on a toolbar (window_combos.h has the combo boxes themselves). Toolbars keep copies, so the
/// host asks CMFCToolBarComboBoxButton::GetByCmd for the one that is shown. The buttons keep no marks: every operation
/// reaches the combo box that the button has while its toolbar has a window, and does nothing, or answers false,
/// without one or with one of another class. An index outside the list is ignored and read as false; a text stands for
/// the first item with it. OnClick, which the toolbar calls for a press that its own window gets, is a press on the
/// combo's face: on a mark it does what the combo does there and is FALSE, elsewhere it opens the list and is TRUE.
/// CopyFrom copies the items and their data, and no marks. User-interface thread only.

/// A check box beside each item.
class BARWRIGHT_API CMFCCheckCombo : public CMFCToolBarComboBoxButton {
    DECLARE_SERIAL(CMFCCheckCombo)

public:
    CMFCCheckCombo();
    CMFCCheckCombo(UINT id, int image, DWORD style = CBS_DROPDOWNLIST, int width = 0);
    ~CMFCCheckCombo() override;

    /// The check before, 0 or 1.
    int SetCheck(int index, int check, int redraw);
    int SetCheck(const wchar_t* text, int check, int redraw);
    bool GetCheck(int index) const;
    bool GetCheck(const wchar_t* text) const;

    BOOL OnClick(CWnd* bar, BOOL delay = TRUE) override;
    void CopyFrom(const CMFCToolBarButton& src) override;
    void OnGlobalFontsChanged() override;

protected:
    CComboBox* CreateCombo(CWnd* bar, const CRect& rect) override;
};

/// A colour swatch and a light beside each item, and a lock that is not drawn.
class BARWRIGHT_API CMFCMultiCombo : public CMFCToolBarComboBoxButton {
    DECLARE_SERIAL(CMFCMultiCombo)

public:
    CMFCMultiCombo();
    CMFCMultiCombo(UINT id, int image, DWORD style = CBS_DROPDOWNLIST, int width = 0);
    ~CMFCMultiCombo() override;

    void SetLightOn(int index, bool on, bool redraw);
    void SetLightOn(const wchar_t* text, bool on, bool redraw);
    bool GetLightOn(int index) const;
    bool GetLightOn(const wchar_t* text) const;
    /// Both lock bits of the item's data are flipped when the lock differs: an item with one of them stays locked.
    void SetItemLock(int index, bool lock, bool redraw);
    void SetItemLock(const wchar_t* text, bool lock, bool redraw);
    bool GetItemLock(int index) const;
    bool GetItemLock(const wchar_t* text) const;
    /// Any index from 0, also one beyond the items.
    void SetItemColor(int index, COLORREF color, bool redraw);
    void SetItemColor(const wchar_t* text, COLORREF color, bool redraw);

    BOOL OnClick(CWnd* bar, BOOL delay = TRUE) override;
    void CopyFrom(const CMFCToolBarButton& src) override;
    void OnGlobalFontsChanged() override;

protected:
    CComboBox* CreateCombo(CWnd* bar, const CRect& rect) override;
};

/// A light beside each item.
class BARWRIGHT_API CMFCMultiCombo2 : public CMFCToolBarComboBoxButton {
    DECLARE_SERIAL(CMFCMultiCombo2)

public:
    CMFCMultiCombo2();
    CMFCMultiCombo2(UINT id, int image, DWORD style = CBS_DROPDOWNLIST, int width = 0);
    ~CMFCMultiCombo2() override;

    // As CMFCMultiCombo.
    void SetLightOn(int index, bool on, bool redraw);
    void SetLightOn(const wchar_t* text, bool on, bool redraw);
    bool GetLightOn(int index) const;
    bool GetLightOn(const wchar_t* text) const;
    void SetItemColor(int index, COLORREF color, bool redraw);
    void SetItemColor(const wchar_t* text, COLORREF color, bool redraw);

    BOOL OnClick(CWnd* bar, BOOL delay = TRUE) override;
    void CopyFrom(const CMFCToolBarButton& src) override;
    void OnGlobalFontsChanged() override;

protected:
    CComboBox* CreateCombo(CWnd* bar, const CRect& rect) override;
};

/// A plain combo box with a flag of the host's, which is kept and copied.
class BARWRIGHT_API CMFCToolBarComboBoxButtonEx : public CMFCToolBarComboBoxButton {
    DECLARE_SERIAL(CMFCToolBarComboBoxButtonEx)

public:
    CMFCToolBarComboBoxButtonEx();
    CMFCToolBarComboBoxButtonEx(UINT id, int image, DWORD style = CBS_DROPDOWNLIST, int width = 0);
    ~CMFCToolBarComboBoxButtonEx() override;

    void SetIsRibbonButton(int isRibbonButton) { m_isRibbonButton = isRibbonButton; }
    void CopyFrom(const CMFCToolBarButton& src) override;

protected:
    int m_isRibbonButton = 0;
};
