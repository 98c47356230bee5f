#pragma once

#include "barwright_api.h"

#include <afxmenubar.h>

/// The menu bar of the host's frame with a menu of its own at the right edge, for help and the like. The bar is built
/// from the frame's menu (CreateFromMenu); the first popup of the right-hand menu then comes last, as one more button
/// that stays at the right edge however wide the bar is. Nothing of it is kept in the user's settings: it is always
/// what the menus say now.
///
/// The host makes it in its frame, gives it the right-hand menu first and then the menu, which may be one that
/// CDynMenuCreater has built. Both menus stay the host's; after a change, CreateFromMenu with `forceUpdate` reads them
/// again. One bar of this class per process: where the right-hand button lies is known once for all of them.
class BARWRIGHT_API CMfcMenubarEx : public CMFCMenuBar {
public:
    CMfcMenubarEx();
    ~CMfcMenubarEx() override;

    /// The class of the buttons, that of the right-hand one too: CMFCToolBarMenuButton or one derived from it.
    void SetMenuButtonRTC(CRuntimeClass* menuButtonClass);

    /// Shown from the next CreateFromMenu on. A handle that is no menu changes nothing.
    void SetRightHMenu(HMENU menu);
    /// Loads the menu resource, which then stays for the life of the process. Nothing changes where there is none.
    void SetRightHMenu(int resourceId);

    /// Builds the bar, and its right-hand button when there is a right-hand menu. Throws CInvalidArgException*, after
    /// the bar has been built, when the first item of that menu has no popup.
    void CreateFromMenu(HMENU menu, BOOL isDefaultMenu = FALSE, BOOL forceUpdate = FALSE) override;
    void AdjustLocations() override;

    /// Both do nothing and answer FALSE.
    BOOL LoadState(LPCTSTR profileName = NULL, int index = -1, UINT id = static_cast<UINT>(-1)) override;
    BOOL SaveState(LPCTSTR profileName = NULL, int index = -1, UINT id = static_cast<UINT>(-1)) override;

    HMENU m_hRightMenu = NULL; ///< The host's; NULL until one is set.
    /// Index of the right-hand button; -1: there is none.
    static int s_nRightBtnIndex;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    void AddRightButton();
    CRuntimeClass* GetRightButtonClass() const;

    /// Follows the button when one before it has come or gone.
    void FollowRightButton();

    CRuntimeClass* m_menuButtonClass = nullptr; ///< Null while none was chosen here.
    CMFCToolBarButton* m_rightButton = nullptr; ///< Null: this bar has none, or it is gone. Compared, never touched.
    int m_rightIndex = -1;                      ///< Where it was when the bar last looked.
};
