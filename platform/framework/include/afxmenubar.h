#pragma once

#include "afxtoolbar.h"
#include "afxtoolbarmenubutton.h"
#include "fx/menu_system_buttons.h"

#include <memory>

class CMFCToolBarComboBoxButton;

/// A frame's menu as a bar of buttons: each popup of the menu is a button that opens it, each item a button that sends
/// its command. Made in a frame, it takes the place of the frame's menu. The menu that it is built from stays the
/// caller's; the bar copies what it says, so that it is built again (CreateFromMenu with bForceUpdate) when the menu
/// has changed. States, and the items of recent files, are asked for as a popup opens (WM_INITMENUPOPUP).
///
/// The frame gives it the keys: Alt and F10 make it active, Alt with a letter opens the menu with that mnemonic, in an
/// active bar the arrows walk, letters open, Esc leaves. The focus stays where it is. While a menu is open, the pointer
/// over another button opens that one's.
///
/// All commands are shown always: nothing is hidden for lack of use.
class FRAMEWORK_API CMFCMenuBar : public CMFCToolBar {
    DECLARE_DYNCREATE(CMFCMenuBar)

public:
    CMFCMenuBar();
    ~CMFCMenuBar() override;

    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE, UINT nID = AFX_IDW_MENUBAR) override;
    BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE,
                  CRect rcBorders = CRect(1, 1, 1, 1), UINT nID = AFX_IDW_MENUBAR) override;
    using CMFCToolBar::Create;
    using CMFCToolBar::CreateEx;

    // The menu
    /// The bar shows the menu from now on; NULL, or a handle that is no menu: nothing. bDefaultMenu: it is what
    /// RestoreOriginalstate goes back to. The menu that is shown already is read again with bForceUpdate only.
    virtual void CreateFromMenu(HMENU hMenu, BOOL bDefaultMenu = FALSE, BOOL bForceUpdate = FALSE);
    HMENU GetHMenu() const { return m_hMenu; }
    HMENU GetDefaultMenu() const { return m_hDefaultMenu; }
    /// Of the frame's resources; 0 when its menu came from elsewhere.
    UINT GetDefaultMenuResId() const { return m_uiDefMenuResId; }
    void SetDefaultMenuResId(UINT uiResId) { m_uiDefMenuResId = uiResId; }
    /// The frame has loaded its menu from the resources.
    virtual void OnDefaultMenuLoaded(HMENU) {}
    CMFCToolBarButton* GetMenuItem(int iItem) const { return GetButton(iItem); }
    /// Builds the bar from the default menu. FALSE: there is none.
    virtual BOOL RestoreOriginalstate();
    BOOL RestoreOriginalState() override { return RestoreOriginalstate(); }
    BOOL CanBeRestored() const override;
    /// The class that buttons with a menu are made of, CMFCToolBarMenuButton or one derived from it. Before
    /// CreateFromMenu.
    void SetMenuButtonRTC(CRuntimeClass* pMenuButtonRTC);
    CRuntimeClass* GetMenuButtonRTC() const { return m_pMenuButtonRTC; }

    // A field at the right end of a horizontal bar in which the user asks for help.
    /// uiID: the command that the frame gets for Enter in it; 0: the field goes away. lpszPrompt: what stands in it
    /// while it is empty and inactive. nComboBoxWidth: pixels at 96 DPI.
    void EnableHelpCombobox(UINT uiID, LPCTSTR lpszPrompt = NULL, int nComboBoxWidth = 150);
    /// The field, its text what the user has typed; questions for its list are the program's to add. NULL: there is
    /// none. Valid until the bar is built anew, which keeps its text and its list.
    CMFCToolBarComboBoxButton* GetHelpCombobox();

    // Settings of all menus
    /// Whether items that cannot be chosen are shown hot below the pointer; they are not at first.
    static void HighlightDisabledItems(BOOL bHighlight = TRUE);
    static BOOL IsHighlightDisabledItems();
    /// Both are only kept.
    static void SetRecentlyUsedMenus(BOOL bOn = TRUE);
    static BOOL IsRecentlyUsedMenus();
    static void SetShowAllCommands(BOOL bShowAllCommands = TRUE);
    static BOOL IsShowAllCommands();
    static BOOL IsShowAllCommandsDelay() { return TRUE; }
    static void EnableMenuShadows(BOOL bEnable = TRUE);
    static BOOL IsMenuShadows();
    static BOOL SetMenuFont(LPLOGFONT lpLogFont, BOOL bHorz = TRUE);
    static const CFont& GetMenuFont(BOOL bHorz = TRUE);

    // An MDI child that is maximised has its system menu and its buttons in the bar.
    /// Puts them there or takes them away. pWnd: the child, NULL without bMax.
    void SetMaximizeMode(BOOL bMax, CWnd* pWnd = NULL, BOOL bRecalcLayout = TRUE);
    BOOL IsMaximizeMode() const { return m_hMaximizedChild != NULL; }
    int GetSystemButtonsCount() const;
    /// uiBtn: SC_MINIMIZE, SC_RESTORE or SC_CLOSE; without bByCommand their index from 0. NULL when there is none.
    CMFCToolBarMenuButtonsButton* GetSystemButton(UINT uiBtn, BOOL bByCommand = TRUE) const;
    CMFCToolBarSystemMenuButton* GetSystemMenu() const;

    // Place
    void AdjustLocations() override;
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    virtual CSize CalcLayout(DWORD dwMode, int nLength = -1);
    int GetRowHeight() const override;
    int GetColumnWidth() const override;
    int GetAvailableExpandSize() const override;
    BOOL IsButtonExtraSizeAvailable() const override { return FALSE; }
    BOOL AllowChangeTextLabels() const override { return FALSE; }
    BOOL AllowShowOnPaneMenu() const override { return FALSE; }
    BOOL CanBeClosed() const override { return FALSE; }
    /// Buttons show an arrow when they open a menu.
    void SetForceDownArrows(BOOL bValue);
    BOOL GetForceDownArrows() { return m_bForceDownArrows; }
    BOOL OnSetDefaultButtonText(CMFCToolBarButton* pButton) override;

    BOOL LoadState(LPCTSTR lpszProfileName = NULL, int nIndex = -1, UINT uiID = (UINT)-1) override;
    BOOL SaveState(LPCTSTR lpszProfileName = NULL, int nIndex = -1, UINT uiID = (UINT)-1) override;

    // Input
    BOOL PreTranslateMessage(MSG* pMsg) override;
    INT_PTR OnToolHitTest(CPoint, TOOLINFO*) const override { return -1; }
    void OnChangeHot(int iHot) override;
    BOOL NextMenu() override;
    BOOL PrevMenu() override;
    BOOL TranslateChar(UINT nChar) override;
    void Deactivate() override;
    /// Mnemonics are underlined: the keyboard is at work, or the user always wants them.
    BOOL ShowsMnemonics() const override;

    // The framework's own: keys that the frame takes from its queue. TRUE: the message is done.
    /// Before the accelerators: only while the bar is active.
    BOOL OnActiveKey(const MSG& message);
    /// After the accelerators: what makes the bar active.
    BOOL OnFrameKey(const MSG& message);
    BOOL IsKeyboardActive() const { return m_isKeyboardActive; }
    void EndKeyboard();

protected:
    BOOL OnSendCommand(const CMFCToolBarButton* pButton) override;
    int CalcMaxButtonHeight() override;
    CFont* SelectToolBarFont(CDC* pDC, BOOL bHorz) const override;
    void OnMenuClosed(CMFCToolBarMenuButton* pButton, BOOL bByEscape) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<CMFCToolBarMenuButton> MakeButton(HMENU menu, int position) const;
    void TakeMenuOfFrame();
    void BeginKeyboard(int index);
    bool CanStartKeyboard() const;
    BOOL OnStartKey(const MSG& message);
    BOOL OnWalkKey(UINT key);
    /// A step to the next button that can be chosen, around the ends; -1: there is none.
    int FindNext(int from, int step) const;
    BOOL StepMenu(int step);
    /// Closes the open menu and opens that of the button, or makes it hot when it has none. `this` may be gone
    /// afterwards.
    void SwitchTo(int index);
    void OpenMenu(int index);
    void PlaceSystemButtons();
    void PlaceHelpCombo();
    /// A copy of the field, which the bar does not have; null: there is none.
    std::unique_ptr<CMFCToolBarButton> CopyOfHelpCombo();
    CRect GetRoom() const;

    HMENU m_hMenu = NULL;
    HMENU m_hDefaultMenu = NULL;
    UINT m_uiDefMenuResId = 0;
    CRuntimeClass* m_pMenuButtonRTC;
    HWND m_hMaximizedChild = NULL;
    BOOL m_bForceDownArrows = FALSE;
    bool m_isKeyboardActive = false;
    bool m_isAltAlone = false; ///< Alt is down, and no other key since
    bool m_awaitsF10Up = false;
    bool m_isSwitching = false;
};
