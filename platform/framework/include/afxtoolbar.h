#pragma once

#include "afxbasetoolbar.h"
#include "afxtoolbarbutton.h"
#include "afxtoolbarimages.h"

#include <memory>

class CMFCCustomizeButton;
class CMFCPopupMenu;
class CMFCToolBarMenuButton;
class CToolTipCtrl;

namespace toolbar {
class ButtonDrag;
class OfferedBars;
} // namespace toolbar

/// What a drop does: DROPEFFECT_NONE, DROPEFFECT_COPY, DROPEFFECT_MOVE of <ole2.h>.
using DROPEFFECT = DWORD;

/// A bar of buttons with images, separators and menus. It owns its buttons. Images come from lists that all toolbars
/// and menus of the process share; a locked button takes its own toolbar's. Commands go to the bar's owner as
/// WM_COMMAND, and the owner's update handlers enable and check the buttons when the application is idle. Sizes given
/// to and answered by the static functions are pixels at 96 DPI; rectangles of buttons are device pixels.
class FRAMEWORK_API CMFCToolBar : public CMFCBaseToolBar {
    DECLARE_DYNCREATE(CMFCToolBar)

public:
    CMFCToolBar();
    ~CMFCToolBar() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE, UINT nID = AFX_IDW_TOOLBAR);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT, DWORD dwStyle = AFX_DEFAULT_TOOLBAR_STYLE,
                          CRect rcBorders = CRect(1, 1, 1, 1), UINT nID = AFX_IDW_TOOLBAR);
    using CMFCBaseToolBar::Create;
    using CMFCBaseToolBar::CreateEx;
    static CMFCToolBar* __stdcall FromHandlePermanent(HWND hwnd);
    /// Every toolbar that has a window; menus are not among them.
    static const CObList& GetAllToolbars();

    // Buttons. An index counts all buttons, separators and hidden ones too; -1 or one beyond the end appends.
    /// Keeps a copy, made by the class's CreateObject and CopyFrom. The answer is the new button's index, -1 on
    /// failure.
    virtual int InsertButton(const CMFCToolBarButton& button, INT_PTR iInsertAt = -1);
    /// Takes the object over, also when it fails with -1.
    virtual int InsertButton(CMFCToolBarButton* pButton, int iInsertAt = -1);
    /// A separator may begin a bar.
    virtual int InsertSeparator(INT_PTR iInsertAt = -1);
    /// Separators that the button leaves without use go with it, so that later indexes can shift.
    virtual BOOL RemoveButton(int iIndex);
    virtual void RemoveAllButtons();
    /// Puts a copy of `button` in the place of the first button (or all) with that command; the number replaced.
    int ReplaceButton(UINT uiCmd, const CMFCToolBarButton& button, BOOL bAll = FALSE);
    /// lpIDArray: commands, ID_SEPARATOR (0) for separators. Images are numbered in order unless bRemapImages is FALSE.
    virtual BOOL SetButtons(const UINT* lpIDArray, int nIDCount, BOOL bRemapImages = TRUE);
    const CObList& GetAllButtons() const { return m_Buttons; }
    int GetCount() const { return static_cast<int>(m_Buttons.GetCount()); }
    CMFCToolBarButton* GetButton(int iIndex) const;
    int ButtonToIndex(const CMFCToolBarButton* pButton) const;
    int CommandToIndex(UINT nIDFind, int iIndexFirst = 0) const;
    UINT GetItemID(int nIndex) const;
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    virtual void GetInvalidateItemRect(int nIndex, LPRECT lpRect) const;
    /// -1 beside the buttons and on separators.
    virtual int HitTest(CPoint point);
    void GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const;
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    UINT GetButtonStyle(int nIndex) const;
    virtual void SetButtonStyle(int nIndex, UINT nStyle);
    CString GetButtonText(int nIndex) const;
    void GetButtonText(int nIndex, CString& rString) const;
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
    /// bShowText, bShowImage: what the button at the index shows.
    void SetToolBarBtnText(UINT nBtnIndex, LPCTSTR szText = NULL, BOOL bShowText = TRUE, BOOL bShowImage = TRUE);
    /// Buttons with that command in all toolbars; their number.
    static int GetCommandButtons(UINT uiCmd, CObList& listButtons);
    static int GetDefaultImage(UINT uiID);

    // Sizes
    /// For all toolbars. A button is at least 7 pixels wider and 6 higher than an image.
    static void __stdcall SetSizes(SIZE sizeButton, SIZE sizeImage);
    static void __stdcall SetMenuSizes(SIZE sizeButton, SIZE sizeImage);
    void SetLockedSizes(SIZE sizeButton, SIZE sizeImage, BOOL bDontScale = FALSE);
    void SetHeight(int cyHeight);
    CSize GetButtonSize() const;
    CSize GetImageSize() const;
    CSize GetLockedImageSize() const { return m_sizeImageLocked; }
    static CSize GetMenuButtonSize();
    static CSize GetMenuImageSize();
    virtual int GetRowHeight() const;
    virtual int GetColumnWidth() const;
    virtual BOOL IsButtonExtraSizeAvailable() const { return TRUE; }

    // Layout
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    CSize CalcSize(BOOL bVertDock) override;
    /// The size of the bar with that width (bVert: height). A floating one breaks its buttons into rows for it and
    /// answers what they need.
    CSize StretchPane(int nLength, BOOL bVert) override;
    /// Gripper and the button for the rest.
    void GetMinSize(CSize& size) const override;
    /// Where the button lies that opens a menu of the buttons for which a docked bar has no room; empty: all have room.
    CRect GetOverflowRect() const { return m_rectOverflow; }
    /// Opens that menu. FALSE: all buttons have room.
    BOOL OpenOverflowMenu();
    /// Measures and places the buttons, and lets the frame lay the bar out.
    void AdjustLayout() override;
    void AdjustSize();
    /// Gives every button its rectangle within the window as it is.
    virtual void AdjustLocations();
    /// Breaks the buttons into rows no wider than nWidth; the number of rows.
    int WrapToolBar(int nWidth, int nHeight = 32767, CDC* pDC = NULL, int nColumnWidth = -1, int nRowHeight = -1);
    void EnableDocking(DWORD dwAlignment) override;
    BOOL IsFloating() const override { return CMFCBaseToolBar::IsFloating(); }
    BOOL CanBeClosed() const override { return CMFCBaseToolBar::CanBeClosed(); }
    /// While it floats its buttons break into other rows.
    BOOL CanBeResized() const override { return (GetPaneStyle() & CBRS_SIZE_FIXED) == 0; }
    BOOL CanFocus() const override { return FALSE; }
    void EnableTextLabels(BOOL bEnable = TRUE);
    BOOL AreTextLabels() const { return m_bTextLabels; }
    virtual BOOL AllowChangeTextLabels() const { return TRUE; }

    // Images
    /// For every toolbar, and one index for a command in all of them (see CCommandManager).
    static CMFCToolBarImages* GetImages() { return &m_Images; }
    static CMFCToolBarImages* GetColdImages() { return &m_ColdImages; }
    static CMFCToolBarImages* __stdcall GetDisabledImages() { return &m_DisabledImages; }
    static CMFCToolBarImages* GetMenuImages() { return &m_MenuImages; }
    static CMFCToolBarImages* __stdcall GetDisabledMenuImages() { return &m_DisabledMenuImages; }
    static CMFCToolBarImages* GetLargeImages() { return &m_LargeImages; }
    static CMFCToolBarImages* GetLargeColdImages() { return &m_LargeColdImages; }
    static CMFCToolBarImages* GetLargeDisabledImages() { return &m_LargeDisabledImages; }
    static CMFCToolBarImages* GetUserImages() { return m_pUserImages; }
    /// FALSE, and nothing changed, when the images' size is not the toolbars' image size. The list stays the caller's;
    /// NULL takes it away.
    static BOOL SetUserImages(CMFCToolBarImages* pUserImages);
    CMFCToolBarImages* GetLockedImages() { return &m_ImagesLocked; }
    CMFCToolBarImages* GetLockedColdImages() { return &m_ColdImagesLocked; }
    CMFCToolBarImages* GetLockedDisabledImages() { return &m_DisabledImagesLocked; }
    CMFCToolBarImages* GetLockedMenuImages() { return &m_MenuImagesLocked; }
    static void CleanUpImages();
    void CleanUpLockedImages();
    static void __stdcall ResetAllImages();
    int GetImagesOffset() const { return m_iImagesOffset; }
    /// The bar takes images of its own and leaves the shared ones.
    BOOL IsLocked() const { return m_bLocked; }
    virtual BOOL LoadBitmap(UINT uiResID, UINT uiColdResID = 0, UINT uiMenuResID = 0, BOOL bLocked = FALSE,
                            UINT uiDisabledResID = 0, UINT uiMenuDisabledResID = 0);
    /// Buttons from a resource of type "TOOLBAR", images from the bitmap with the same id. The hot bitmap shows on the
    /// button under the pointer, the cold one on the others.
    virtual BOOL LoadToolBar(UINT uiResID, UINT uiColdResID = 0, UINT uiMenuResID = 0, BOOL bLocked = FALSE,
                             UINT uiDisabledResID = 0, UINT uiMenuDisabledResID = 0, UINT uiHotResID = 0);
    UINT GetResourceID() const { return m_uiOriginalResID; }
    /// Draws the images anew in the current colours.
    void UpdateImagesColor();
    static void SetLargeIcons(BOOL bLargeIcons = TRUE);
    static BOOL IsLargeIcons() { return m_bLargeIcons; }

    // Looks
    void SetGrayDisabledButtons(BOOL bGrayDisabledButtons) { m_bGrayDisabledButtons = bGrayDisabledButtons; }
    BOOL GetGrayDisabledButtons() const { return m_bGrayDisabledButtons; }
    void SetHotBorder(BOOL bShowHotBorder) { m_bShowHotBorder = bShowHotBorder; }
    BOOL GetHotBorder() const { return m_bShowHotBorder; }
    static void SetHotTextColor(COLORREF clrText) { m_clrTextHot = clrText; }
    static COLORREF GetHotTextColor();
    static void SetShowTooltips(BOOL bValue) { m_bShowTooltips = bValue; }
    static BOOL GetShowTooltips() { return m_bShowTooltips; }
    /// The keys of a button's command behind the text of its tooltip.
    static void SetShowShortcutKeys(BOOL bValue) { m_bShowShortcutKeys = bValue; }
    static BOOL GetShowShortcutKeys() { return m_bShowShortcutKeys; }
    virtual void OnChangeVisualManager();
    virtual void OnGlobalFontsChanged();
    virtual void OnFillBackground(CDC*) {}

    // Input and state
    CMFCToolBarButton* InvalidateButton(int nIndex);
    void UpdateButton(int nIndex);
    CMFCToolBarButton* GetHighlightedButton() const { return GetButton(m_iHighlighted); }
    BOOL IsButtonHighlighted(int iButton) const { return m_iHighlighted == iButton; }
    BOOL SetHot(CMFCToolBarButton* pMenuButton);
    /// The bar's button whose menu is open; pIndex takes its index.
    CMFCToolBarMenuButton* GetDroppedDownMenu(int* pIndex = NULL) const;
    virtual void OnChangeHot(int) {}
    /// Closes menus and gives back the highlight.
    virtual void Deactivate();
    /// Mnemonics in the buttons' texts are underlined.
    virtual BOOL ShowsMnemonics() const { return FALSE; }
    virtual BOOL NextMenu() { return FALSE; }
    virtual BOOL PrevMenu() { return FALSE; }
    /// A character typed while the bar has the keyboard: the button whose text has it as mnemonic. TRUE: found.
    virtual BOOL TranslateChar(UINT nChar);
    /// Sends the button's command to the owner. FALSE: it is disabled or has none.
    BOOL ProcessCommand(CMFCToolBarButton* pButton);
    static BOOL IsLastCommandFromButton(CMFCToolBarButton* pButton) { return pButton == m_pLastCommandButton; }
    void SetRouteCommandsViaFrame(BOOL bValue) { m_bRouteCommandsViaFrame = bValue; }
    BOOL GetRouteCommandsViaFrame() { return m_bRouteCommandsViaFrame; }
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    virtual BOOL OnSetDefaultButtonText(CMFCToolBarButton* pButton);

    // Customising. The user moves a button by dragging it with Alt held, copies it with Ctrl and Alt, and removes it by
    // dropping it beside the toolbars; in the customize mode without Alt, and buttons send no commands then. Over a
    // button with a menu, that of a menu bar too, the menu opens and takes the button among its items; in the customize
    // mode items are dragged out of open menus as well. A right click there offers a menu for the button. Locked bars,
    // the buttons of menu bars and protected commands (CMFCToolBarButton::SetProtectedCommands) stay as they are. Esc,
    // or the loss of the mouse, ends a drag without a change.
    static void EnableQuickCustomization(BOOL bEnable = TRUE);
    static BOOL IsCustomizeMode();
    /// FALSE: it was so already.
    static BOOL __stdcall SetCustomizeMode(BOOL bSet = TRUE);
    /// A button is being dragged with Alt.
    static BOOL __stdcall IsAltCustomizeMode();
    BOOL IsDragButton(const CMFCToolBarButton* pButton) const;
    /// A dragged button, or an item of one's menu, is about to leave the bar. FALSE: it stays.
    virtual BOOL OnBeforeRemoveButton(CMFCToolBarButton* pButton, DROPEFFECT dropEffect);
    /// The button at the end of the bar. iCustomizeCmd -1: it is there while buttons have no room, as without this
    /// call; otherwise always, and its menu ends with that command. bQuickCustomize: the menu lets the user choose
    /// which buttons the bar shows.
    void EnableCustomizeButton(BOOL bEnable, int iCustomizeCmd, const CString& strCustomizeText,
                               BOOL bQuickCustomize = TRUE);
    void EnableCustomizeButton(BOOL bEnable, int iCustomizeCmd, UINT uiCustomizeTextResId, BOOL bQuickCustomize = TRUE);
    BOOL IsExistCustomizeButton() { return m_bCustomizeButton; }
    /// The bar's own, <afxcustomizebutton.h>, until it is disabled; NULL: it has none.
    CMFCCustomizeButton* GetCustomizeButton() { return m_customizeButton.get(); }
    BOOL IsAddRemoveQuickCustomize() { return m_bCustomizeButton && m_bQuickCustomize; }

    /// Told after the original buttons are back.
    virtual void OnReset() {}
    /// The buttons as the program gave them; its handler of AFX_WM_RESETTOOLBAR may exchange some. FALSE: CanBeRestored
    /// says that there are none.
    virtual BOOL RestoreOriginalState();
    /// RestoreOriginalState of every toolbar that can be restored; none is deleted.
    static void __stdcall ResetAll();
    void SetOrigButtons(const CObList& lstOrigButtons);
    /// Copies of the buttons before the user changes any: those of SetButtons, or those of the first change.
    const CObList& GetOrigButtons() const { return m_OrigButtons; }
    /// The same after AFX_WM_RESETTOOLBAR has exchanged some.
    const CObList& GetOrigResetButtons() const { return m_OrigResetButtons; }

    // Menus that hide what is seldom used (CMFCMenuBar::SetRecentlyUsedMenus), until the user asks for all of it.
    /// Basic commands are shown always.
    static void __stdcall AddBasicCommand(UINT uiCmd);
    static void __stdcall SetBasicCommands(CList<UINT, UINT>& lstCommands);
    static const CList<UINT, UINT>& GetBasicCommands();
    static BOOL IsBasicCommand(UINT uiCmd);
    /// A choice in a menu counts one.
    static void __stdcall AddCommandUsage(UINT uiCommand);
    /// Nothing is hidden before nStartCount choices; from then on what makes up less than nMinUsagePercentage of them.
    /// FALSE, and nothing changed: the percentage is 100 or more.
    static BOOL SetCommandUsageOptions(UINT nStartCount, UINT nMinUsagePercentage = 5);
    static BOOL IsCommandRarelyUsed(UINT uiCmd);
    /// Commands that the user cannot give: menus do not show them, buttons are disabled.
    static void SetNonPermittedCommands(CList<UINT, UINT>& lstCommands);
    static BOOL IsCommandPermitted(UINT uiCmd);

    /// Large images alone; FALSE when nothing was kept.
    static BOOL __stdcall LoadLargeIconsState(LPCTSTR lpszProfileName = NULL);
    static BOOL __stdcall SaveLargeIconsState(LPCTSTR lpszProfileName = NULL);
    /// What holds for all toolbars (large images, tooltips, counted commands), below the application's registry
    /// section.
    static BOOL LoadParameters(LPCTSTR lpszProfileName = NULL);
    static BOOL __stdcall SaveParameters(LPCTSTR lpszProfileName = NULL);

    // Settings
    /// The buttons as the user left them, below the application's registry section; FALSE when there is nothing.
    BOOL LoadState(LPCTSTR lpszProfileName = NULL, int nIndex = -1, UINT uiID = (UINT)-1) override;
    BOOL SaveState(LPCTSTR lpszProfileName = NULL, int nIndex = -1, UINT uiID = (UINT)-1) override;
    virtual BOOL RemoveStateFromRegistry(LPCTSTR lpszProfileName = NULL, int nIndex = -1, UINT uiID = (UINT)-1);
    void Serialize(CArchive& ar) override;
    virtual BOOL CanBeRestored() const { return m_OrigButtons.GetCount() != 0; }
    /// The user has made it: neither a resource nor a file describes it.
    BOOL IsUserDefined() const { return m_uiOriginalResID == 0 && !m_bFromConfig; }
    void SetPermament(BOOL bPermament = TRUE) { m_bPermament = bPermament; }

    BOOL PreTranslateMessage(MSG* pMsg) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

    // The framework's own: shared images, buttons and flags that derived bars use.
    static CMFCToolBarImages m_Images;
    CObList m_Buttons;          ///< CMFCToolBarButton, owned
    BOOL m_bFromConfig = FALSE; ///< built from a file: its buttons are not saved with the user's settings
    BOOL m_bRoundShape = FALSE; ///< the window has a region that the visual manager shaped
    /// What a docked bar does after a change of the visual manager: measures, and takes its place again.
    void AdjustDockedLayout();

protected:
    void DoPaint(CDC* pDC) override;
    virtual BOOL DrawButton(CDC* pDC, CMFCToolBarButton* pButton, CMFCToolBarImages* pImages, BOOL bHighlighted,
                            BOOL bDrawDisabledImages);
    virtual void DrawSeparator(CDC* pDC, const CRect& rect, BOOL bHorz);
    /// TRUE: strTTText is the tooltip.
    virtual BOOL OnUserToolTip(CMFCToolBarButton* pButton, CString& strTTText) const;
    /// Something else than ProcessCommand happens to a click. TRUE: done.
    virtual BOOL OnSendCommand(const CMFCToolBarButton*) { return FALSE; }
    /// The menu that the button had opened is gone. bByEscape: the user left it to come back to the bar.
    virtual void OnMenuClosed(CMFCToolBarMenuButton*, BOOL) {}
    /// A fitting command for the owner: the window that gets WM_COMMAND.
    virtual CWnd* GetCommandTarget() const;
    virtual int CalcMaxButtonHeight();
    virtual BOOL AllowShowOnList() const { return TRUE; }
    virtual BOOL IsPureMenuButton(CMFCToolBarButton* pButton) const;
    /// Font for texts; the caller restores what was selected.
    virtual CFont* SelectToolBarFont(CDC* pDC, BOOL bHorz) const;
    /// The list for a button's image, prepared to draw; null when it has none.
    CMFCToolBarImages* GetImageList(const CMFCToolBarButton& button, BOOL bHot) const;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg LRESULT OnSetButtonSize(WPARAM, LPARAM);
    afx_msg BOOL OnNeedTipText(UINT id, NMHDR* pNMH, LRESULT* pResult);
    afx_msg LRESULT OnUpdateToolTips(WPARAM wp, LPARAM lp);
    DECLARE_MESSAGE_MAP()

    /// Lets the button be hot (-1: none) and tells OnChangeHot.
    void SetHighlighted(int iIndex);
    /// Takes a click on the button at the index; `this` may be gone afterwards.
    void ClickButton(int iIndex, BOOL bSendCommand);
    void MeasureButtons(CDC* pDC, BOOL bHorz);
    CSize PlaceButtons(int nWidth, BOOL bHorz, BOOL bMove);
    /// Takes the buttons that go beyond the docked bar's length out of it.
    void CutOverflow(BOOL bHorz);
    void DrawOverflow(CDC* pDC, BOOL bHorz);
    /// The button at the end is there always.
    bool HasCustomizeMenu() const { return m_bCustomizeButton && m_iCustomizeCmd > 0; }
    void InsertCustomizeRows(CMFCPopupMenu& menu);
    /// The overflow button takes the mouse, or lets it go.
    BOOL OnOverflowMouse(UINT nMessage, CPoint point);
    void DropSeparatorsAround(int iIndex);
    /// The tooltip of the kind and look that the tooltip manager has for toolbars.
    void CreateToolBarTooltip();
    /// Loads a bitmap of the images' other looks so that each has the index of its image: where an earlier bar had no
    /// such bitmap, its images stand in.
    BOOL LoadBeside(CMFCToolBarImages& others, UINT uiResID);
    /// Lets the tooltip's one tool lie on the button under the point; `this` is not told of it.
    void PlaceTooltip(CPoint point);
    /// The buttons of an archive in place of the bar's. Throws, and changes nothing, when they are damaged.
    void ReadButtons(CArchive& ar);
    void AttachButton(CMFCToolBarButton* pButton, int iIndex);
    CMFCToolBarImages* GetButtonImages(const CMFCToolBarButton& button) const;

    /// A press begins to drag a button. FALSE: it is an ordinary press.
    BOOL BeginButtonDrag(CPoint point);
    /// Where the button in the user's hand would come to lie.
    void DrawDropMark(CDC* pDC);
    /// Before the first change by the user.
    void KeepOriginalButtons();
    void TellReset();

    CObList m_OrigButtons, m_OrigResetButtons; ///< owned copies
    BOOL m_bCustomizeButton = FALSE;
    std::unique_ptr<CMFCCustomizeButton> m_customizeButton; ///< while there is one
    BOOL m_bQuickCustomize = FALSE;
    int m_iCustomizeCmd = -1; ///< the command at the end of the menu of the button of the rest
    CString m_strCustomizeText;
    CMFCToolBarImages m_ImagesLocked, m_ColdImagesLocked, m_DisabledImagesLocked, m_MenuImagesLocked;
    CSize m_sizeButtonLocked{0, 0}, m_sizeImageLocked{0, 0};
    int m_iHighlighted = -1;
    int m_iButtonCapture = -1; ///< pressed with the mouse
    int m_iHot = -1;
    int m_iImagesOffset = 0;
    int m_cyHeight = 0; ///< set by SetHeight, else 0
    UINT m_uiOriginalResID = 0;
    DWORD m_dwCtrlStyle = TBSTYLE_FLAT;
    BOOL m_bLocked = FALSE;
    BOOL m_bTextLabels = FALSE;
    BOOL m_bGrayDisabledButtons = TRUE;
    BOOL m_bShowHotBorder = TRUE;
    BOOL m_bRouteCommandsViaFrame = FALSE;
    BOOL m_bPermament = FALSE;
    BOOL m_bMenuMode = FALSE; ///< a pop-up menu's bar
    BOOL m_bTracked = FALSE;  ///< WM_MOUSELEAVE is on order
    CPoint m_ptLastMouse{-1, -1};
    CString m_strToolTip;            ///< kept while a tooltip shows it
    CToolTipCtrl* m_pToolTip = NULL; ///< the tooltip manager's; a menu's bar has none
    int m_iTooltipButton = -1;       ///< index of the button that the tooltip's tool lies on
    CMFCToolBarImages m_HotImagesLocked;
    CRect m_rectOverflow{0, 0, 0, 0};
    int m_iFirstOverflow = -1; ///< the first button without room, -1: all have
    BOOL m_bOverflowHot = FALSE;

    static CMFCToolBarImages m_ColdImages, m_DisabledImages, m_MenuImages, m_DisabledMenuImages;
    static CMFCToolBarImages m_LargeImages, m_LargeColdImages, m_LargeDisabledImages;
    static CMFCToolBarImages m_HotImages;
    static CMFCToolBarImages* m_pUserImages;
    static CSize m_sizeButton, m_sizeImage, m_sizeMenuButton, m_sizeMenuImage;
    static COLORREF m_clrTextHot;
    static BOOL m_bShowTooltips;
    static BOOL m_bShowShortcutKeys;
    static BOOL m_bLargeIcons;
    static const CMFCToolBarButton* m_pLastCommandButton;

    friend class toolbar::ButtonDrag;
    friend class toolbar::OfferedBars;
    friend class CMFCToolBarButton;
    friend class CMFCToolBarMenuButton;
    friend class CMFCPopupMenu;
};
