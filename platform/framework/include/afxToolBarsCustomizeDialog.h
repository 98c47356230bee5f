#pragma once

#include "afxdlgs.h"

#include <memory>
#include <vector>

class CMFCToolBarButton;
class CUserTool;

namespace toolbar {
class CommandCatalog;
}

/// What the dialog offers. Animations play nowhere; who asks for them gets none. Captions keep their ampersands with
/// and without AFX_CUSTOMIZE_MENUAMPERS; AFX_CUSTOMIZE_CONTEXT_HELP gives the caption the button of WS_EX_CONTEXTHELP.
#define AFX_CUSTOMIZE_MENU_SHADOWS 0x0001
#define AFX_CUSTOMIZE_TEXT_LABELS 0x0002
#define AFX_CUSTOMIZE_MENU_ANIMATIONS 0x0004
#define AFX_CUSTOMIZE_NOHELP 0x0008
#define AFX_CUSTOMIZE_NO_LARGE_ICONS 0x0010
#define AFX_CUSTOMIZE_CONTEXT_HELP 0x0020
#define AFX_CUSTOMIZE_NOTOOLS 0x0040
#define AFX_CUSTOMIZE_MENUAMPERS 0x0080

/// Lets the user change the toolbars and the keys of a frame: pages for commands, which are dragged from a list into
/// toolbars, for toolbars, for the user's tools (after CWinAppEx::EnableUserTools, without AFX_CUSTOMIZE_NOTOOLS), for
/// keys, for menus and for options. While it is open the toolbars are in the customize mode
/// (CMFCToolBar::IsCustomizeMode): their buttons are dragged within and between bars and, beside all of them, away, and
/// send no commands. Modeless; made with new, it deletes itself with its window:
///
///     auto* dialog = new CMFCToolBarsCustomizeDialog(this, TRUE);
///     dialog->EnableUserDefinedToolbars();
///     dialog->Create();
///
/// The frame hears AFX_WM_CUSTOMIZETOOLBAR with TRUE before it opens and with FALSE after it has closed, and
/// AFX_WM_CUSTOMIZEHELP (page in front, this) for F1 and the Help button.
class FRAMEWORK_API CMFCToolBarsCustomizeDialog : public CPropertySheet {
    DECLARE_DYNAMIC(CMFCToolBarsCustomizeDialog)

public:
    /// bAutoSetFromMenus: the commands of the frame's menu are offered, with its popups as categories.
    /// plistCustomPages: classes derived from CPropertyPage that can be created dynamically; their pages come behind
    /// the dialog's own.
    CMFCToolBarsCustomizeDialog(CFrameWnd* pWndParentFrame, BOOL bAutoSetFromMenus = FALSE,
                                UINT uiFlags = (AFX_CUSTOMIZE_MENU_SHADOWS | AFX_CUSTOMIZE_TEXT_LABELS |
                                                AFX_CUSTOMIZE_MENU_ANIMATIONS | AFX_CUSTOMIZE_NOHELP),
                                CList<CRuntimeClass*, CRuntimeClass*>* plistCustomPages = NULL);
    ~CMFCToolBarsCustomizeDialog() override;

    // The commands that are offered. A category comes into being with its first command; names are compared exactly.
    // The dialog keeps copies.
    /// Left out: separators, recent files, commands that are not permitted, and those that the category has already.
    /// iInsertBefore: an index in the category, -1: at the end.
    void AddButton(UINT uiCategoryId, const CMFCToolBarButton& button, int iInsertBefore = -1);
    void AddButton(LPCTSTR lpszCategory, const CMFCToolBarButton& button, int iInsertBefore = -1);
    /// AddMenuCommands of a menu resource. FALSE: there is none.
    BOOL AddMenu(UINT uiMenuResId);
    /// lpszCategory NULL: each popup of the menu is a category with its name. bPopup: popups are offered as well, as
    /// buttons with a menu. lpszMenuPath: is put before the commands' names.
    void AddMenuCommands(const CMenu* pMenu, BOOL bPopup, LPCTSTR lpszCategory = NULL, LPCTSTR lpszMenuPath = NULL);
    /// The buttons of a toolbar resource. FALSE: there is none.
    BOOL AddToolBar(UINT uiCategoryId, UINT uiToolbarResId);
    BOOL AddToolBar(LPCTSTR lpszCategory, UINT uiToolbarResId);
    /// The index that the command had in the category; -1: it was not there.
    int RemoveButton(UINT uiCategoryId, UINT uiCmdId);
    int RemoveButton(LPCTSTR lpszCategory, UINT uiCmdId);
    /// A copy of the button takes the place of every one with that command.
    void ReplaceButton(UINT uiCmd, const CMFCToolBarButton& button);
    /// FALSE: there is none of the old name, or one of the new.
    BOOL RenameCategory(LPCTSTR lpszCategoryOld, LPCTSTR lpszCategoryNew);
    /// The category of the commands that users make; it comes last. FALSE: there is no category of that name.
    BOOL SetUserCategory(LPCTSTR lpszCategory);

    /// In the dialog's order. bAddEmpty: also those without commands.
    void FillCategoriesComboBox(CComboBox& wndCategory, BOOL bAddEmpty = TRUE) const;
    void FillCategoriesListBox(CListBox& wndCategory, BOOL bAddEmpty = TRUE) const;
    /// Each command once, by name; the item data are the dialog's CMFCToolBarButton.
    virtual void FillAllCommandsList(CListBox& wndListOfCommands) const;
    /// Without mnemonics; NULL: the dialog does not know the command. Valid until the commands change.
    LPCTSTR GetCommandName(UINT uiCmd) const;
    /// How many of the buttons have that text.
    int GetCountInCategory(LPCTSTR lpszItemName, const CObList& lstCommands) const;

    /// The user may make toolbars of his own, name and delete them.
    void EnableUserDefinedToolbars(BOOL bEnable = TRUE) { m_bUserToolBars = bEnable; }
    BOOL AreUserDefinedToolbarsEnabled() const { return m_bUserToolBars; }
    UINT GetFlags() const { return m_uiFlags; }

    /// FALSE: there is a dialog already, or the window could not be made; this object is deleted then as well.
    virtual BOOL Create();
    BOOL OnInitDialog() override;
    void PostNcDestroy() override;

    /// The user wants to change the image of a button. TRUE: the bitmap has changed. Shows CMFCImageEditorDialog; a
    /// program that has an editor of its own overrides this.
    virtual BOOL OnEditToolbarMenuImage(CWnd* pWndParent, CBitmap& bitmap, int nBitsPerPixel);

    // The framework's own.
    const toolbar::CommandCatalog& Catalog() const { return *m_catalog; }
    /// NULL when the frame is gone.
    CFrameWnd* Frame() const;
    BOOL AskAssignKey(ACCEL& key) { return OnAssignKey(&key); }
    BOOL AskToolsValidity(const CObList& tools) { return CheckToolsValidity(tools); }
    void TellToolsPage() { OnInitToolsPage(); }
    void TellBeforeChange(CUserTool& tool) { OnBeforeChangeTool(&tool); }
    void TellAfterChange(CUserTool& tool) { OnAfterChangeTool(&tool); }
    /// The dialog that is open; NULL: none is.
    static CMFCToolBarsCustomizeDialog* Current();

protected:
    /// The user has chosen the key for a command; it may be changed. FALSE: it is not assigned.
    virtual BOOL OnAssignKey(ACCEL* pAccel);
    /// The user leaves the page of tools or closes the dialog. FALSE: the page stays, and the override has said why.
    virtual BOOL CheckToolsValidity(const CObList& lstTools);
    /// The page of tools is about to be shown for the first time.
    virtual void OnInitToolsPage();
    /// What the tool is made of is about to change, and has changed.
    virtual void OnBeforeChangeTool(CUserTool* pSelTool);
    virtual void OnAfterChangeTool(CUserTool* pSelTool);

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnClose();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);
    DECLARE_MESSAGE_MAP()

private:
    /// A sheet's own way to its window, which this one takes itself. No default arguments, so that Create() is one.
    BOOL Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) override;

    void AddFrameMenu();
    void AddPages(const CList<CRuntimeClass*, CRuntimeClass*>* custom);
    /// A row with Help and Close below the pages.
    void PlaceButtons();
    void TellHelp();
    /// FALSE: a tool is not valid; its page is in front then.
    BOOL MayClose();

    std::unique_ptr<toolbar::CommandCatalog> m_catalog;
    std::vector<std::unique_ptr<CPropertyPage>> m_ownPages;
    CPropertyPage* m_toolsPage = NULL; ///< one of the own pages; NULL: there are no tools
    HWND m_frame = NULL;               ///< may go while the dialog is open
    BOOL m_bUserToolBars = FALSE;
    BOOL m_bFromMenus = FALSE;
    bool m_isOpen = false; ///< the frame has heard that it opens
    UINT m_uiFlags = 0;
};
