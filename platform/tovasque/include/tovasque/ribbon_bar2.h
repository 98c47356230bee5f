#pragma once

#include "tovasque_api.h"

#include <afxribbonbar.h>

/// The host's ribbon bar below the library's extended one: what a skin and a context menu need of every such bar. The
/// frame owns it, as any bar; it lives in the user-interface thread.
class TOVASQUE_API CMFCRibbonBar2 : public CMFCRibbonBar {
    DECLARE_DYNAMIC(CMFCRibbonBar2)

public:
    /// Nonzero: the bar takes the place of the frame's caption.
    explicit CMFCRibbonBar2(int nReplaceFrameCaption = TRUE);
    ~CMFCRibbonBar2() override;

    /// The context-menu switch, on at first. While it is off no right click and no menu key opens a menu on the bar.
    void EnableContextMenu(BOOL bEnable = TRUE) { m_bContextMenu = bEnable; }
    BOOL IsContextMenuEnabled() const { return m_bContextMenu; }

    /// The number of the skin that was chosen last; 0 at first.
    int GetSkinStyle() const { return m_nSkinStyle; }
    /// The flag that came with it; FALSE at first.
    BOOL GetSkinFlag() const { return m_bSkinFlag; }

    /// The colour of texts on the bar in the present skin, for hosts that draw there; (COLORREF)-1 until it is set. The
    /// elements' own texts have the visual manager's colours.
    void SetTextColor(COLORREF clrText) { m_clrText = clrText; }
    COLORREF GetTextColor() const { return m_clrText; }

    /// Chooses a skin by its number. Any number is taken: this class only keeps it and the flag and draws the bar
    /// again; a derived bar brings the skin's visual manager into force and decides what numbers it knows.
    virtual void ChangeSkinColor(int nStyle, bool bFlag);

    BOOL OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    BOOL m_bContextMenu = TRUE;
    int m_nSkinStyle = 0;
    BOOL m_bSkinFlag = FALSE;
    COLORREF m_clrText = static_cast<COLORREF>(-1);
};
