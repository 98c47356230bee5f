#pragma once

#include "ribbon_bar_ex.h"

/// The viewer's ribbon: an extended bar that says when its own context menu is open, and whose application button is as
/// high as the tabs in both skins.
class CViewerRibbon : public CMFCRibbonBarEx {
    DECLARE_DYNAMIC(CViewerRibbon)

public:
    explicit CViewerRibbon(int replacesCaption) : CMFCRibbonBarEx(replacesCaption) {}

    /// After a context menu the element that it was raised on gives notice of its command at once, by which a host may
    /// learn what was meant. True meanwhile: the command is not to be done.
    bool IsInContextMenu() const { return m_isInContextMenu; }

    /// The tooltip of the button at the end of the quick access toolbar; the framework's own would be taken for that of
    /// the button that changes the skin.
    void SetQuickAccessMenuTip(const CString& text);

    void ChangeSkinColor(int nStyle, bool bFlag) override;
    BOOL OnShowRibbonContextMenu(CWnd* window, int x, int y, CMFCRibbonBaseElement* hit) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool m_isInContextMenu = false;
    bool m_isBetweenSkins = false;
};
