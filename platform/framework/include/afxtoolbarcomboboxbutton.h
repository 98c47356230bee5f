#pragma once

#include "afxtoolbarbutton.h"

#include <memory>
#include <vector>

/// A toolbar button that is a combo box. It keeps the items, so that copies of the button have them too, and gives them
/// to a combo box of its own that is a child of the toolbar while the bar lies horizontally; in a vertical bar an
/// ordinary button stands in its place. The buttons with one command in all toolbars select along with each other.
///
/// A choice goes to the toolbar's owner as the command; every notification of the combo box goes there as well, as
/// WM_COMMAND with its code. In the flat mode the visual manager draws border and drop button, and a press on the
/// button opens the list. Lengths given and answered are pixels at 96 DPI.
class FRAMEWORK_API CMFCToolBarComboBoxButton : public CMFCToolBarButton {
    DECLARE_SERIAL(CMFCToolBarComboBoxButton)

public:
    CMFCToolBarComboBoxButton();
    /// dwStyle: styles of the combo box. iWidth: 0 for the default width.
    CMFCToolBarComboBoxButton(UINT uiID, int iImage, DWORD dwStyle = CBS_DROPDOWNLIST, int iWidth = 0);
    ~CMFCToolBarComboBoxButton() override;

    // Items
    /// Appends an item, unless there is one with that text; its index.
    virtual INT_PTR AddItem(LPCTSTR lpszItem, DWORD_PTR dwData = 0);
    /// Inserts it where Compare says.
    virtual INT_PTR AddSortedItem(LPCTSTR lpszItem, DWORD_PTR dwData = 0);
    /// Below, at or above 0, as the first text stands before, with or behind the second.
    virtual int Compare(LPCTSTR lpszItem1, LPCTSTR lpszItem2);
    BOOL DeleteItem(int iIndex);
    BOOL DeleteItem(DWORD_PTR dwData);
    BOOL DeleteItem(LPCTSTR lpszText);
    void RemoveAllItems();
    INT_PTR GetCount() const { return static_cast<INT_PTR>(m_items.size()); }
    /// -1: there is none.
    int FindItem(LPCTSTR lpszText) const;
    /// -1 means the selected item. NULL, and 0, when there is none.
    LPCTSTR GetItem(int iIndex = -1) const;
    DWORD_PTR GetItemData(int iIndex = -1) const;
    int GetCurSel() const { return m_iSelIndex; }
    /// FALSE: no such item. bNotify: the owner gets the command.
    BOOL SelectItem(int iIndex, BOOL bNotify = TRUE);
    BOOL SelectItem(DWORD_PTR dwData);
    BOOL SelectItem(LPCTSTR lpszText);
    /// What the combo shows.
    LPCTSTR GetText() const { return m_strEdit; }
    void SetText(LPCTSTR lpszText);

    // The first button with the command in any toolbar.
    /// bIsFocus: only one that has the focus.
    static CMFCToolBarComboBoxButton* GetByCmd(UINT uiCmd, BOOL bIsFocus = FALSE);
    static int GetCountAll(UINT uiCmd);
    static int GetCurSelAll(UINT uiCmd);
    static LPCTSTR GetItemAll(UINT uiCmd, int iIndex = -1);
    static DWORD_PTR GetItemDataAll(UINT uiCmd, int iIndex = -1);
    static LPCTSTR GetTextAll(UINT uiCmd);
    /// Selects in all of them without a command. FALSE: none could.
    static BOOL SelectItemAll(UINT uiCmd, int iIndex);
    static BOOL SelectItemAll(UINT uiCmd, DWORD_PTR dwData);
    static BOOL SelectItemAll(UINT uiCmd, LPCTSTR lpszText);

    // The window
    /// NULL while the button lies in no toolbar that has a window, and in a vertical one.
    CComboBox* GetComboBox() const { return m_pWndCombo.get(); }
    /// NULL for a list without a text that can be edited.
    virtual CEdit* GetEditCtrl();
    HWND GetHwnd() override;
    BOOL HasFocus() const override;
    BOOL IsOwnerOf(HWND hwnd) override;
    BOOL IsWindowVisible() override;
    void EnableWindow(BOOL bEnable = TRUE) override;
    void SetStyle(UINT nStyle) override;
    void SetDropDownHeight(int nHeight);
    BOOL CanBeStretched() const override { return TRUE; }
    BOOL IsDroppedDown() const override;
    /// The buttons of menus that a right click in the combo's text shows; only kept.
    void SetContextMenuID(UINT uiResID) { m_uiMenuResID = uiResID; }
    UINT GetContextMenuID() { return m_uiMenuResID; }
    BOOL IsRibbonButton() const { return m_bIsRibbon; }

    static void SetFlatMode(BOOL bFlat = TRUE);
    static BOOL IsFlatMode();
    /// Whether the combo stands in the middle of a higher bar, else at its top.
    static void SetCenterVert(BOOL bCenterVert = TRUE);
    static BOOL IsCenterVert();

    void CopyFrom(const CMFCToolBarButton& src) override;
    void Serialize(CArchive& ar) override;
    SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) override;
    void OnChangeParentWnd(CWnd* pWndParent) override;
    void OnMove() override;
    void OnSize(int iSize) override;
    void OnShow(BOOL bShow) override;
    void OnGlobalFontsChanged() override;
    void OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz = TRUE, BOOL bCustomizeMode = FALSE,
                BOOL bHighlight = FALSE, BOOL bDrawBorder = TRUE, BOOL bGrayDisabledButtons = TRUE) override;
    HBRUSH OnCtlColor(CDC* pDC, UINT nCtlColor) override;
    BOOL OnClick(CWnd* pWnd, BOOL bDelay = TRUE) override;
    /// TRUE: what a press on it does is done by then; the command follows a choice only.
    BOOL OnClickUp() override { return ShowsCombo(); }
    /// TRUE: the user has chosen, which the owner gets as the command.
    BOOL NotifyCommand(int iNotifyCode) override;

protected:
    /// Makes the combo box as a child of the toolbar; NULL when it cannot. The button takes the object over.
    virtual CComboBox* CreateCombo(CWnd* pWndParent, const CRect& rect);
    /// Items that a derived class owns the data of: before they go away, and after CopyFrom has copied them.
    virtual void ClearData() {}
    virtual void DuplicateData() {}

    /// Styles of the combo box, as they were given; width and height of the open list at 96 DPI.
    DWORD m_dwStyle = CBS_DROPDOWNLIST;
    int m_iWidth = 0;
    int m_nDropDownHeight = 0;
    int m_iSelIndex = -1;
    CString m_strEdit;
    UINT m_uiMenuResID = 0;
    BOOL m_bIsRibbon = FALSE;

private:
    struct Item {
        CString text;
        DWORD_PTR data;
    };

    void MakeCombo(CWnd& parent);
    void FillCombo();
    void PlaceCombo();
    void ShowCombo();
    void ShowSelection();
    void CloseCombo();
    CRect GetComboRect() const;
    bool ShowsCombo() const { return m_pWndCombo && m_bHorz; }

    std::vector<Item> m_items;
    std::unique_ptr<CComboBox> m_pWndCombo;
    std::unique_ptr<CEdit> m_pWndEdit;
    CRect m_rectPlaced{0, 0, 0, 0}; ///< where the window was put last
};
