#pragma once

#include <afxvisualmanageroffice2003.h>

/// Gradients, light inner borders and rounded corners in one of four colour styles. While the display has no more than
/// 8 bits per pixel or is in a high-contrast mode the manager draws as its base class does.
class FRAMEWORK_API CMFCVisualManagerOffice2007 : public CMFCVisualManagerOffice2003 {
    DECLARE_DYNCREATE(CMFCVisualManagerOffice2007)

public:
    enum Style { Office2007_LunaBlue = 0, Office2007_ObsidianBlack = 1, Office2007_Aqua = 2, Office2007_Silver = 3 };

    CMFCVisualManagerOffice2007();
    ~CMFCVisualManagerOffice2007() override;

    /// Process-wide. Set it before SetDefaultManager; on a manager in use it takes effect with the next RedrawAll.
    /// FALSE, and nothing changed, for a number that is no style.
    static BOOL __stdcall SetStyle(Style style, LPCTSTR lpszPath = NULL);
    static Style __stdcall GetStyle();
    /// Back to blue.
    static void __stdcall CleanStyle();
    /// Kept for hosts: the styles are drawn by code and need no resources.
    static void __stdcall SetResourceHandle(HINSTANCE hinstRes);

    BOOL IsRibbonPresent(CWnd* pWnd) const;
    CMFCRibbonBar* GetRibbonBar(CWnd* pWnd) const;

    BOOL GetToolTipInfo(CMFCToolTipInfo& params, UINT nType = (UINT)(-1)) override;
    CSize GetNcBtnSize(BOOL bSmall) const override;
    BOOL IsHighlightWholeMenuItem() override { return TRUE; }
    BOOL IsOwnerDrawMenuCheck() override { return TRUE; }
    BOOL IsLayeredRibbonKeyTip() const override { return FALSE; }
    void OnDrawMenuBorder(CDC* pDC, CMFCPopupMenu* pMenu, CRect rect) override;
    void OnDrawSeparator(CDC* pDC, CBasePane* pBar, CRect rect, BOOL bIsHoriz) override;
    void OnUpdateSystemColors() override;

protected:
    const visual::Skin& GetSkin() const override;
    /// FALSE on displays that cannot show the style.
    BOOL CanDrawStyle() const;
};
