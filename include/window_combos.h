#pragma once

#include "barwright_api.h"

#include <afxwin.h>

#include <unordered_map>
#include <vector>

/// Combo boxes with marks beside their items, for dialogs and toolbars. The host owns the object; the window belongs to
/// its parent, which must pass owner-draw messages back to its controls, as all windows of the framework do. What a
/// user changes goes to the combo's owner, else its parent (host_messages.h); the host may destroy the combo in any
/// message that it gets from it. User-interface thread only.

/// A combo box whose items each have a check box, on the closed face and in the list. A click on a box changes the
/// check and leaves the list open, as Space does; a double click on one in the list gives its check to all items.
/// WM_COMBO_CHECK_CHANGED tells the owner, then WM_COMMAND with code 0 tells the parent. Checks move with their items.
class BARWRIGHT_API CCheckComboBox : public CComboBox {
    DECLARE_DYNCREATE(CCheckComboBox)

public:
    CCheckComboBox();
    ~CCheckComboBox() override;

    /// Adds the styles of an owner-drawn combo with strings. `style` must hold one of the combo kinds.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override;

    /// The check before, 0 or 1; 0, and nothing happens, for an index without an item. `redraw` other than 0 paints the
    /// combo anew when the check has changed.
    int SetCheck(int index, int check, int redraw);
    /// 0 for an index without an item.
    int GetCheck(int index) const;
    void CheckAll(int check);

    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;

    /// A press on the closed face: on the check box it toggles the selected item, elsewhere the list opens.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    /// Whether a point of the client area is on the face's check box, which reaches over the whole height.
    bool IsInCheckZone(CPoint point) const;

protected:
    afx_msg BOOL OnDropDown();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg LRESULT OnCtlColorListBox(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAddString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnResetContent(WPARAM wParam, LPARAM lParam);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    class List;
    friend class List;

    int CheckZoneWidth() const;
    void RepaintList() const;
    void AddMissingStates();
    /// False: the combo is gone.
    bool Toggle(int index);

    std::vector<unsigned char> m_checks; // one for each item of the list
    HWND m_list = nullptr;               // none until its first opening
};

/// A combo box whose items each have a colour swatch and a light. Colours belong to positions; the light is a bit of
/// the item's data (0x4), and so is a lock that is not drawn (0x1 and 0x8, see CMFCMultiCombo). On the closed face a
/// press on the swatch sends WM_COMBO_COLOR_PICK and one on the light WM_COMBO_LIGHT_CHANGED, both for the selected
/// item: the host decides and changes the item itself. The pictures of the light are CQkMfc's.
class BARWRIGHT_API CMultiCombo : public CComboBox {
    DECLARE_DYNCREATE(CMultiCombo)

public:
    CMultiCombo();
    ~CMultiCombo() override;

    /// As CCheckComboBox.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override;

    /// Ignored below 0; the combo is not painted anew.
    void SetItemColor(int index, COLORREF color);
    /// 1 and the colour; 0, and `color` untouched, when the position was never given one.
    int GetItemColor(int index, COLORREF& color) const;
    void ClearItemColor();

    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;

    /// A press on the closed face: on a mark it asks the host, elsewhere the list opens.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    /// Whether a point of the client area is on the face's marks, which reach over the whole height: the first 46
    /// pixels.
    bool IsInMarkZone(CPoint point) const;

protected:
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg BOOL OnDropdown();
    afx_msg LRESULT OnCtlColorListBox(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    std::unordered_map<int, COLORREF> m_colors;
};

/// A combo box whose items each show a light alone: a press on it on the closed face switches the selected item's light
/// (bit 0x4 of its data) first and sends WM_VESCOMBO_LIGHT_CHANGED afterwards. Colours are kept and not drawn.
class BARWRIGHT_API CVesMultiCombo : public CComboBox {
    DECLARE_DYNCREATE(CVesMultiCombo)

public:
    CVesMultiCombo();
    ~CVesMultiCombo() override;

    /// As CCheckComboBox.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override;

    // As CMultiCombo.
    void SetItemColor(int index, COLORREF color);
    int GetItemColor(int index, COLORREF& color) const;

    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;

    /// A press on the closed face: on the light it switches the selected item, elsewhere the list opens.
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    /// Whether a point of the client area is on the face's light, which reaches over the whole height.
    bool IsInMarkZone(CPoint point) const;

protected:
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg BOOL OnDropdown();
    afx_msg LRESULT OnCtlColorListBox(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    std::unordered_map<int, COLORREF> m_colors;
};
