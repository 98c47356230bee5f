#pragma once

#include "barwright_api.h"

#include <tovasque/ribbon_bar2.h>

#include <list>
#include <map>
#include <set>
#include <string>

/// The host frame's ribbon bar. Beside what its base does it knows paths, the host's working modes: each shows one
/// range of neighbouring categories and has a quick access toolbar of its own. A click on the tab of a
/// CMFCRibbonCategoryEx is a command, a right click shows the host's menu, and tooltips also say the text of the
/// command as CMenuIdMgr knows it.
///
/// The frame owns the bar, as any bar; it lives in the user-interface thread. Paths are kept in memory only: the host
/// declares them with setPath when it has built its categories, and calls UpdateCurQATollBar before it shows another
/// path, so that what the user changed in the quick access toolbar is there again later.
class BARWRIGHT_API CMFCRibbonBarEx : public CMFCRibbonBar2 {
    DECLARE_DYNAMIC(CMFCRibbonBarEx)

public:
    /// Nonzero: the bar takes the place of the frame's caption.
    explicit CMFCRibbonBarEx(int nReplaceFrameCaption = TRUE);
    ~CMFCRibbonBarEx() override;

    /// Declares a path: the positions of its first and its last category and the commands of its quick access toolbar.
    /// A known path keeps its positions and takes the commands. Positions are not checked: those that no category has
    /// show nothing.
    void setPath(const std::wstring& name, int first, int last, const std::list<unsigned int>& commands);
    bool havPath(const std::wstring& name) const;
    /// The names of all paths, and the commands that one of them has when it is not shown; none for an unknown name.
    std::list<std::wstring> Paths() const;
    std::list<unsigned int> PathCommands(const std::wstring& name) const;
    /// The path that is shown; empty until ShowPath first succeeded.
    const std::wstring& Path() const { return m_strCurPath; }

    /// Shows the categories of a path and hides all others, and makes the path's commands the quick access toolbar. The
    /// category that was active when the path was left is active again, at first the path's first one; where
    /// `categories` is given and a category of the path has a name in it, that one is, the last of several. False for
    /// an unknown name: all stays as it was, but the path that is shown remembers its active category even so.
    bool ShowPath(const std::wstring& name, const std::set<std::wstring>* categories = nullptr);

    /// Remembers the commands of the quick access toolbar as it is now for the path that is shown, before the first
    /// ShowPath for the path `fallback`; for an empty name nothing is remembered.
    void UpdateCurQATollBar(const std::wstring& fallback);
    /// Does nothing: quick access toolbars are kept in memory only.
    void SaveQAToolBar();

    /// The menu of right clicks on the bar, null for none. The host owns it and keeps it while the bar has it. Its
    /// commands go to the application's main window.
    void setHMenu(HMENU menu);

    /// The element under the mouse cursor, in an open pop-up of the ribbon or on the bar; null when there is none.
    /// Nonzero: and it must be enabled.
    CMFCRibbonBaseElement* GetCursonOn(int mustBeEnabled);

    /// Brings a skin into force in the whole program: 1 is silver, any other number black. The flag is kept with the
    /// skin's visual manager, for the host. Windows are drawn again at once, so the host may end the bar meanwhile.
    void ChangeSkinColor(int nStyle, bool bFlag) override;

    /// Shows the host's menu (setHMenu) at a point of the screen and returns when it has closed. What was chosen is
    /// posted to the main window as a command, 0 when nothing was. Then the element, where the menu was raised on one
    /// of the bar, gives notice of its own command. Always FALSE. The host may end the bar meanwhile.
    BOOL OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) override;
    void OnPaneContextMenu(CWnd* pParentFrame, CPoint point) override;
    void OnElementDestroyed(CMFCRibbonBaseElement* pElement) override;

protected:
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg BOOL OnNeedTipText(UINT id, NMHDR* pNMH, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    friend class CKeptRibbonStates;

    /// Positions of categories; `active` is the one that was active when the path was left.
    struct PathRange {
        int first;
        int last;
        int active;
    };

    void RememberActiveCategory();
    void ShowQuickAccess(const std::wstring& path);
    /// The black skin's tooltips, after something else has changed their colours.
    void RestoreTooltipColors() const;
    CString TipOf(CMFCRibbonBaseElement& element) const;

    std::wstring m_strCurPath;
    std::map<std::wstring, PathRange> m_mapPathRange;
    std::map<std::wstring, std::list<unsigned int>> m_mapPathQACmds;
    HMENU m_hContextMenu = nullptr;

    CMFCRibbonBaseElement* m_menuSubject = nullptr; ///< Whose context menu is open; null when it has gone meanwhile.
    CString m_tipText;                              ///< Lent to the tooltip control while it shows.
};
