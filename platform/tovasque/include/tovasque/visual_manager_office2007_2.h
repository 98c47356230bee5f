#pragma once

#include "tovasque_api.h"

#include "tovasque/skin_getters.h"

#include <afxtooltipctrl.h>
#include <afxvisualmanageroffice2007.h>

#include <array>
#include <memory>
#include <vector>

class CMFCPopupMenuBar;

namespace tovasque {
class SkinTable;

constexpr std::size_t kSkinImages = 16;

/// A getter by its name, and what it returned.
struct SkinColor {
    const char* getter;
    COLORREF value;
};
} // namespace tovasque

/// The visual manager below the library's skins: a flat look, painted from 16 pictures and the colours of the getters
/// (tovasque/skin_getters.h). The pictures are read once from the installation directory, when first drawn; one that
/// cannot be used leaves what it would paint to flat colours mixed from the getters. What each picture paints stands in
/// src/skin_images.cpp. On displays that cannot show the look the manager draws as its base class does.
///
/// The framework makes and owns the one in use (CMFCVisualManager::SetDefaultManager).
class TOVASQUE_API CMFCVisualManagerOffice20072 : public CMFCVisualManagerOffice2007 {
    DECLARE_DYNCREATE(CMFCVisualManagerOffice20072)

public:
    ~CMFCVisualManagerOffice20072() override;

    /// What each getter answers, in the order of TOVASQUE_SKIN_GETTERS.
    std::vector<tovasque::SkinColor> GetSkinColors();
    /// Paths relative to the installation directory; empty where the skin has no such picture.
    const std::array<CString, tovasque::kSkinImages>& GetSkinImages() const { return m_images; }
    const CString& GetDropDownIconPath() const { return m_strDropDownIcon; }
    /// Which accent goes with the colours: 0 a deep blue for light grounds, any other a light blue for dark ones.
    int GetBaseStyle() const { return m_nBaseStyle; }

    /// The look of tooltips. Whoever changes it changes that of all tooltips that follow the manager.
    CMFCToolTipInfo& GetToolTipInfo();
    BOOL GetToolTipInfo(CMFCToolTipInfo& params, UINT nType = (UINT)(-1)) override;

    /// What toolbars are filled with: one end and the other.
    struct ToolBarColors {
        COLORREF light;
        COLORREF dark;
    };
    ToolBarColors GetToolBarColors() const;
    void SetToolBarColors(const ToolBarColors& colors);

    /// FALSE: flat colours only, no pictures.
    void SetImageMode(BOOL bImages);
    BOOL IsImageMode() const { return m_bImageMode; }

    void OnUpdateSystemColors() override;
    void OnDrawRibbonCaption(CDC* pDC, CMFCRibbonBar* pBar, CRect rect, CRect rectText) override;
    /// A quick access toolbar above the tabs of a bar that is no caption lies on the title's ground, as in one that is.
    COLORREF OnDrawRibbonTabsFrame(CDC* pDC, CMFCRibbonBar* pWndRibbonBar, CRect rectTab) override;
    void OnFillBarBackground(CDC* pDC, CBasePane* pBar, CRect rectClient, CRect rectClip,
                             BOOL bNCArea = FALSE) override;
    void OnHighlightMenuItem(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rect, COLORREF& clrText) override;

    /// TRUE: the window's title stands in the middle of its row rather than of the room that is left.
    BOOL m_BCaptionCenter = FALSE;
    /// Set by a ribbon bar that has put this manager into force, with the flag that it was given.
    BOOL m_bIsSkin = FALSE;
    BOOL m_bSkinFlag = FALSE;

protected:
    CMFCVisualManagerOffice20072();

#define TOVASQUE_DECLARE(getter, red, green, blue) virtual COLORREF getter();
    TOVASQUE_SKIN_GETTERS(TOVASQUE_DECLARE)
#undef TOVASQUE_DECLARE

    /// For the constructors of derived skins.
    void SetSkinImages(const std::array<LPCTSTR, tovasque::kSkinImages>& paths);
    void SetDropDownIconPath(LPCTSTR lpszPath) { m_strDropDownIcon = lpszPath; }
    void SetBaseStyle(int nStyle);
    /// The platform's own: 0 blue, 1 black, 2 aqua, 3 silver.
    void SetPlatformStyle(int nStyle);
    int GetPlatformStyle() const;

    /// Rows of this drop list have dark texts, so it lies on the colour of text fields.
    virtual BOOL IsLightDropList(CMFCPopupMenuBar*) { return FALSE; }

    // The parts of pop-ups and separators that derived skins put together. Rectangles in client pixels.
    /// TRUE while the display can show the look and pictures are on.
    BOOL CanDrawImages() const;
    /// The outline of a pop-up at full strength.
    void DrawPopupBorder(CDC* pDC, CRect rect);
    /// Frames of galleries, of menus that can be resized and of those that scroll. FALSE: the menu has none, and
    /// nothing was drawn.
    BOOL DrawRibbonMenuFrame(CDC* pDC, CMFCPopupMenu* pMenu, CRect rect);
    /// `nWidth` lines inside the rectangle; the second colour, where there is one, for the right and lower sides.
    void DrawCustomBorder(CDC* pDC, CRect rect, int nWidth, COLORREF color, COLORREF second = (COLORREF)-1);
    /// A line in the middle of the rectangle.
    void DrawRibbonSeparator(CDC* pDC, CRect rect);
    /// Width of the above, in pixels.
    int GetRibbonSeparatorWidth() const;

    /// The line of a toolbar's separator: dark, and light beside it.
    ToolBarColors GetToolBarSeparatorColors() const;

    const visual::Skin& GetSkin() const override;

private:
    friend class tovasque::SkinTable;

    std::array<CString, tovasque::kSkinImages> m_images;
    CString m_strDropDownIcon;
    int m_nBaseStyle = 0;
    BOOL m_bImageMode = TRUE;
    std::unique_ptr<tovasque::SkinTable> m_table;
    std::unique_ptr<CMFCToolTipInfo> m_toolTipInfo; ///< made when first asked for, from the skin's colours
};
