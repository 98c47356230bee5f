#pragma once

#include <afxbaseribbonelement.h>

#include <memory>

namespace ribbon {
struct ButtonContent;
struct MenuRowContent;
struct TextBreak;
} // namespace ribbon

// A push button of a ribbon: image and text in three sizes, a command, and optionally a drop-down of sub-items or of a
// menu. With a default command the face is split into a command area and a menu area; without one the whole face opens
// the drop-down. Images are indexes into the parent category's image lists, or icons.
class FRAMEWORK_API CMFCRibbonButton : public CMFCRibbonBaseElement {
    DECLARE_DYNCREATE(CMFCRibbonButton)

public:
    CMFCRibbonButton();
    CMFCRibbonButton(UINT nID, LPCTSTR lpszText, int nSmallImageIndex = -1, int nLargeImageIndex = -1,
                     BOOL bAlwaysShowDescription = FALSE);
    // The icons stay the caller's unless bAutoDestroyIcon is set; a null small icon is drawn from the large one.
    CMFCRibbonButton(UINT nID, LPCTSTR lpszText, HICON hIcon, BOOL bAlwaysShowDescription = FALSE,
                     HICON hIconSmall = nullptr, BOOL bAutoDestroyIcon = FALSE, BOOL bAlphaBlendIcon = FALSE);
    ~CMFCRibbonButton() override;

    // Sub-items: the button owns them. An index of -1 or beyond the end appends.
    void AddSubItem(CMFCRibbonBaseElement* pSubItem, int nIndex = -1);
    const CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& GetSubItems() const { return m_arSubItems; }
    int FindSubItemIndexByID(UINT uiID) const;
    BOOL RemoveSubItem(int nIndex);
    void RemoveAllSubItems();
    // From now on this copy, and each copy in its menu, has the menu and the sub-items that its original is given.
    void FollowOriginal();

    // The items of a menu, submenus included, become sub-items behind those that there are, in place of those of a
    // former menu; null takes them away. The handle stays the caller's: before they open the host may change the menu
    // (WM_INITMENUPOPUP), and a changed one makes its items anew.
    void SetMenu(HMENU hMenu, BOOL bIsDefaultCommand = FALSE, BOOL bRightAlign = FALSE);
    // A menu resource, its popup when it has just one; the button keeps it. Unknown ids leave the button without.
    void SetMenu(UINT uiMenuResID, BOOL bIsDefaultCommand = FALSE, BOOL bRightAlign = FALSE);
    HMENU GetMenu() const { return m_hMenu; }
    BOOL HasMenu() const override;
    void SetDefaultCommand(BOOL bSet = TRUE);
    BOOL IsDefaultCommand() const { return m_bIsDefaultCommand; }
    void SetRightAlignMenu(BOOL bSet = TRUE) { m_bRightAlignMenu = bSet; }
    BOOL IsRightAlignMenu() const { return m_bRightAlignMenu; }
    BOOL IsMenuOnBottom() const;
    // The areas that open the drop-down and that send the command, as placed by the last OnAfterChangeRect.
    CRect GetMenuRect() const { return m_rectMenu; }
    CRect GetCommandRect() const { return m_rectCommand; }

    // Images.
    int GetImageIndex(BOOL bLargeImage) const { return bLargeImage ? m_nLargeImageIndex : m_nSmallImageIndex; }
    void SetImageIndex(int nIndex, BOOL bLargeImage);
    HICON GetIcon(BOOL bLargeIcon = TRUE) const;
    void SetAlwaysLargeImage(BOOL bSet = TRUE) { m_bIsAlwaysLargeImage = bSet; }
    BOOL IsAlwaysLargeImage() const override { return m_bIsAlwaysLargeImage; }
    BOOL IsLargeImage() const { return GetFaceImageType() == RibbonImageLarge; }
    BOOL IsAlwaysShowDescription() const { return m_bIsAlwaysShowDescription; }

    CSize GetRegularSize(CDC* pDC) override;
    CSize GetIntermediateSize(CDC* pDC) override;
    CSize GetCompactSize(CDC* pDC) override;
    CSize GetImageSize(RibbonImageType type) const override;
    int GetTextRowHeight() const;
    BOOL IsSingleLineText() const;
    BOOL HasLargeMode() const override;
    BOOL HasIntermediateMode() const override;
    BOOL HasCompactMode() const override;
    BOOL CanBeStretched() override;
    BOOL IsWholeRowHeight() const override;
    void CleanUpSizes() override;
    void OnCalcTextSize(CDC* pDC) override;
    void OnAfterChangeRect(CDC* pDC) override;

    void OnDraw(CDC* pDC) override;
    virtual void OnDrawBorder(CDC* pDC);
    virtual COLORREF OnFillBackground(CDC* pDC);
    void DrawImage(CDC* pDC, RibbonImageType type, CRect rectImage) override;
    // Two-line text below the image; answers its size. bCalcOnly: nothing is drawn.
    CSize DrawBottomText(CDC* pDC, BOOL bCalcOnly);
    virtual int DrawRibbonText(CDC* pDC, const CString& strText, CRect rectText, UINT uiDTFlags,
                               COLORREF clrText = static_cast<COLORREF>(-1));

    virtual BOOL IsAlwaysDrawBorder() const { return FALSE; }
    virtual BOOL IsApplicationButton() const { return FALSE; }
    virtual BOOL IsDefaultPanelButton() const { return FALSE; }
    virtual BOOL IsDrawTooltipImage() const { return TRUE; }
    virtual BOOL IsPopupDefaultMenuLook() const;
    virtual BOOL IsCommandAreaHighlighted() const;
    virtual BOOL IsMenuAreaHighlighted() const;

    CString GetToolTipText() const override;
    void SetParentCategory(CMFCRibbonCategory* pParent) override;
    void SetParentPanel(CMFCRibbonPanel* pPanel) override;
    void SetParentRibbonBar(CMFCRibbonBar* pRibbonBar) override;
    void SetOriginal(CMFCRibbonBaseElement* pOriginal) override;
    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    // Opens the menu or the sub-items in a pop-up beside the button and returns at once; closes it when it is open.
    void OnShowPopupMenu() override;
    BOOL OnDrawMenuImage(CDC* pDC, CRect rect) override;
    void ClosePopupMenu() override;

    void AddToKeyList(CArray<CMFCRibbonKeyTip*, CMFCRibbonKeyTip*>& arElems) override;
    CRect GetKeyTipRect(CDC* pDC, BOOL bIsMenu) override;
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;

    CMFCRibbonBaseElement* Find(const CMFCRibbonBaseElement* pElement) override;
    CMFCRibbonBaseElement* FindByID(UINT uiCmdID) override;
    CMFCRibbonBaseElement* FindByData(DWORD_PTR dwData) override;
    CMFCRibbonBaseElement* FindByOriginal(CMFCRibbonBaseElement* pOriginal) override;
    void GetElementsByID(UINT uiCmdID, CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements) override;

    void OnMouseMove(CPoint point) override;
    void OnLButtonDown(CPoint point) override;
    void OnLButtonUp(CPoint point) override;
    void OnHighlight(BOOL bHighlight) override;
    BOOL OnKey(BOOL bIsMenuKey) override;
    void OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    virtual void OnClick(CPoint point);
    BOOL OnProcessKey(UINT nChar) override;
    // What the face shows and where: the current mode, state and measures, for the text as it is now.
    struct Face;
    Face CollectFace(CDC* pDC) const;
    ribbon::ButtonContent CollectContent(CDC* pDC, BOOL bLarge, BOOL bImageOnly, ribbon::TextBreak& lines) const;
    CSize MeasureAs(CDC* pDC, BOOL bLarge, BOOL bImageOnly);
    BOOL IsSplit() const { return HasMenu() && m_bIsDefaultCommand; }
    BOOL ShowsLargeFace() const;
    // In a pop-up that lists its elements one below the other.
    BOOL ShowsMenuRow() const { return IsMenuMode() && m_pParentGroup == nullptr; }
    ribbon::MenuRowContent CollectMenuRow(CDC* pDC) const;
    void DrawMenuRow(CDC* pDC);
    void PlaceMenuRowParts(CDC* pDC);
    virtual RibbonImageType GetFaceImageType() const;
    void DrawFaceText(CDC* pDC, const Face& face, COLORREF clrText);
    // Asks for a new layout when the text that is drawn, in one line, is not the one that was measured.
    void CompareWithMeasured(CSize sizeDrawn);
    BOOL DrawIconImage(CDC* pDC, RibbonImageType type, CRect rectImage);
    BOOL DrawListImage(CDC* pDC, RibbonImageType type, CRect rectImage);
    void ReleaseIcons();
    void CopySubItems(const CMFCRibbonButton& src);
    void DeleteSubItems();
    void RemoveCopyOf(const CMFCRibbonBaseElement& item, int place);
    void OnSubItemsChanged(BOOL hadMenu);
    void TakeMenu(HMENU menu, const std::shared_ptr<CMenu>& loaded, BOOL isDefaultCommand, BOOL rightAlign);
    void OnMenuChanged();
    // The items as the menu is now: their states, or new ones when the menu has changed.
    void RefreshMenuItems();
    void MakeMenuItems();
    // Large only where there is a large image, or no small one either.
    RibbonImageType GetImageTypeFor(BOOL bLarge) const;
    std::vector<CMFCRibbonButton*> CollectFollowers() const;

    HICON m_hIcon = nullptr;
    HICON m_hIconSmall = nullptr;
    BOOL m_bAutoDestroyIcon = FALSE;
    BOOL m_bAlphaBlendIcon = FALSE;
    BOOL m_bIsAlwaysShowDescription = FALSE;
    int m_nSmallImageIndex = -1;
    int m_nLargeImageIndex = -1;
    BOOL m_bIsAlwaysLargeImage = FALSE;

    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> m_arSubItems;
    HMENU m_hMenu = nullptr;
    std::shared_ptr<CMenu> m_pLoadedMenu; // from the resources, shared by the button's copies
    CString m_strMenuContent;             // of the menu whose items are among the sub-items
    BOOL m_bIsDefaultCommand = FALSE;
    BOOL m_bAsksForLayout = FALSE; // the text is not the one that was measured
    BOOL m_bRightAlignMenu = FALSE;
    BOOL m_bFollowsOriginal = FALSE;
    BOOL m_bMenuAreaHighlighted = FALSE;

    CRect m_rectCommand;
    CRect m_rectMenu;
    CSize m_sizeTextRight;  // one line; scaled; empty until measured
    CSize m_sizeTextBottom; // broken over the two lines below a large image, the menu arrow counted
};
