#pragma once

#include <afxwin.h>

/// Which image of the shared lists a command has in menus and toolbars: one entry for CMFCToolBar::GetImages and one
/// for CMFCToolBar::GetUserImages. One object for the process, GetCmdMgr(); used by the thread that owns the windows.
class FRAMEWORK_API CCommandManager {
public:
    /// Index in the images, or in the user's; -1 when the command has none. Without bUserImage only the shared images
    /// count.
    int GetCmdImage(UINT uiCmd, BOOL bUserImage = FALSE) const;
    /// -1 says that the command has no image, and is kept. Id 0 has none and changes nothing.
    void SetCmdImage(UINT uiCmd, int iImage, BOOL bUserImage);
    void ClearCmdImage(UINT uiCmd);
    void ClearAllCmdImages();

private:
    CMap<UINT, UINT, int, int> m_images;
    CMap<UINT, UINT, int, int> m_userImages;
};

FRAMEWORK_API CCommandManager* GetCmdMgr();
