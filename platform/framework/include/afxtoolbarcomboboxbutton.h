#pragma once

#include "afxtoolbarbutton.h"

#include <memory>
#include <vector>

class CMFCToolBarComboBoxButton;

/// The edit of a combo box button with a text that can be typed (CBS_DROPDOWN) in the flat mode. It is a child of the
/// toolbar and lies over the combo box. Enter sends the button's command with what stands in it, Esc gives back what
/// stood there before and the focus to the frame; Up, Down, Page Up and Page Down choose another item, F4 and Alt with
/// an arrow open the list. No accelerator of the frame takes what is typed.
class FRAMEWORK_API CMFCToolBarComboBoxEdit : public CEdit {
    DECLARE_DYNAMIC(CMFCToolBarComboBoxEdit)

public:
    /// The combo must outlive the edit.
    explicit CMFCToolBarComboBoxEdit(CMFCToolBarComboBoxButton& combo);
    ~CMFCToolBarComboBoxEdit() override;

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    afx_msg void OnChange();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    DECLARE_MESSAGE_MAP()

    CMFCToolBarComboBoxButton& m_combo;
};

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
    /// Appends an item; one that has the text already takes the data instead. Its index.
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
    /// CB_ERR when there is no such button.
    static DWORD_PTR GetItemDataAll(UINT uiCmd, int iIndex = -1);
    /// The same as a pointer: NULL when there is no such button, (void*)-1 when there is no such item.
    static void* GetItemDataPtrAll(UINT uiCmd, int iIndex = -1);
    static LPCTSTR GetTextAll(UINT uiCmd);
    /// Selects in all of them without a command. FALSE: none could.
    static BOOL SelectItemAll(UINT uiCmd, int iIndex);
    static BOOL SelectItemAll(UINT uiCmd, DWORD_PTR dwData);
    static BOOL SelectItemAll(UINT uiCmd, LPCTSTR lpszText);

    // The window
    /// NULL while the button lies in no toolbar that has a window, and in a vertical one.
    CComboBox* GetComboBox() const { return m_pWndCombo.get(); }
    /// In the flat mode what CreateEdit made, else the combo box's own; NULL for a list without a text that can be
    /// edited.
    virtual CEdit* GetEditCtrl();
    /// Makes the edit of a CBS_DROPDOWN combo as a child of the toolbar; NULL when it cannot: the combo box then shows
    /// its own. The button takes the object over, and gives it font and place.
    virtual CMFCToolBarComboBoxEdit* CreateEdit(CWnd* pWndParent, const CRect& rect, DWORD dwEditStyle);
    /// What stands before the text that a user is to type; empty here.
    virtual CString GetPrompt() const { return CString(); }
    HWND GetHwnd() override;
    BOOL HasFocus() const override;
    BOOL IsOwnerOf(HWND hwnd) override;
    BOOL IsWindowVisible() override;
    void EnableWindow(BOOL bEnable = TRUE) override;
    void SetStyle(UINT nStyle) override;
    void SetDropDownHeight(int nHeight);
    BOOL CanBeStretched() const override { return TRUE; }
    BOOL IsDroppedDown() const override;
    /// The menu resource that a right click in the combo's edit shows (by the context menu manager); 0: none.
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
    /// Keys for the combo box's own windows are the edit's, where CreateEdit has made one.
    BOOL PreTranslateControlMessage(MSG* pMsg) override;
    BOOL ExportToMenuButton(CMFCToolBarMenuButton& menuButton) const override;

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

    friend class CMFCToolBarComboBoxEdit;

    void MakeCombo(CWnd& parent);
    void MakeEdit(CWnd& parent);
    void PlaceEdit();
    /// What the user types or does in the edit.
    void OnEditChange();
    void OnEditFocus(bool hasFocus, HWND other);
    /// TRUE: the key was the combo's; the button may be gone.
    bool OnEditKey(const MSG& message);
    bool OnEnter();
    bool OnEscape();
    void WalkTo(int index);
    void CloseList();
    void ShowTextInEdit();
    void Notify(int code);
    void FillCombo();
    void PlaceCombo();
    void ShowCombo();
    void ShowSelection();
    void CloseCombo();
    CRect GetComboRect() const;
    bool ShowsCombo() const { return m_pWndCombo && m_bHorz; }
    /// The button, not the combo box, has the edit.
    bool HasOwnEdit() const { return m_pOwnEdit != nullptr; }

    std::vector<Item> m_items;
    std::unique_ptr<CComboBox> m_pWndCombo;
    std::unique_ptr<CEdit> m_pWndEdit;
    CMFCToolBarComboBoxEdit* m_pOwnEdit = nullptr; ///< m_pWndEdit, when CreateEdit made it
    CString m_strBefore;                           ///< what stood in the edit when it got the focus
    CRect m_rectPlaced{0, 0, 0, 0};                ///< where the window was put last
    bool m_isTyped = false;                        ///< the edit holds what the user typed: it must not be changed now
    bool m_isQuiet = false;                        ///< what the combo box says now is not the user's choice
};
