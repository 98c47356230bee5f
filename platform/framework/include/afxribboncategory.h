#pragma once

#include <memory>

#include "afxRibbonPanel.h"
#include "afxtoolbarimages.h"
#include "fx/ribbon_colors.h"
#include "fx/ribbon_host.h"

struct RibbonCategoryParts;

/// The tab of a category: what the bar's hit test gives over it. Its parent category is the category that it opens.
class FRAMEWORK_API CMFCRibbonTab : public CMFCRibbonBaseElement {
    DECLARE_DYNCREATE(CMFCRibbonTab)

public:
    CMFCRibbonTab();

    CSize GetRegularSize(CDC* pDC) override;
    CString GetToolTipText() const override;
    void OnDraw(CDC* pDC) override;
    void OnLButtonDown(CPoint point) override;
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    /// Shows the category of a minimised bar in a pop-up.
    void OnShowPopupMenu() override;

    BOOL IsSelected() const;
    /// The row has no room for the whole text; drawing ends it with dots and the tooltip shows it.
    BOOL IsTruncated() const { return m_bIsTrancated; }

    void SetTruncated(BOOL bIsTruncated) { m_bIsTrancated = bIsTruncated; }

protected:
    BOOL m_bIsTrancated = FALSE;
};

/// One of the two buttons that scroll a category whose collapsed panels still need more than the bar's width.
class FRAMEWORK_API CRibbonCategoryScroll : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CRibbonCategoryScroll)

public:
    CRibbonCategoryScroll();

    BOOL IsLeftScroll() const { return m_bIsLeft; }
    void SetLeftScroll(BOOL bIsLeft) { m_bIsLeft = bIsLeft; }
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    void OnDraw(CDC* pDC) override;
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;

protected:
    void OnClick(CPoint point) override;

private:
    BOOL m_bIsLeft = FALSE;
};

/// A page of the ribbon bar: a tab and a row of panels. Made by CMFCRibbonBar::AddCategory, owned by its bar; owns its
/// panels. Rectangles are in the bar's client pixels, empty while the category is not active.
class FRAMEWORK_API CMFCRibbonCategory : public CObject, public RibbonSection {
    DECLARE_DYNCREATE(CMFCRibbonCategory)

protected:
    /// For dynamic creation; the bar initialises the object afterwards.
    CMFCRibbonCategory();
    CMFCRibbonCategory(CMFCRibbonBar* pParenrRibbonBar, LPCTSTR lpszName, UINT uiSmallImagesResID,
                       UINT uiLargeImagesResID, CSize sizeSmallImage = CSize(16, 16),
                       CSize sizeLargeImage = CSize(32, 32));

public:
    ~CMFCRibbonCategory() override;

    /// The panel belongs to the category. A run-time class that is not a panel's gives NULL.
    CMFCRibbonPanel* AddPanel(LPCTSTR lpszPanelName, HICON hIcon = 0, CRuntimeClass* pRTI = NULL);
    int GetPanelCount() const;
    /// NULL for a position that does not exist.
    CMFCRibbonPanel* GetPanel(int nIndex);
    int GetPanelIndex(const CMFCRibbonPanel* pPanel) const;
    CMFCRibbonPanel* GetPanelFromPoint(CPoint point) const;
    CMFCRibbonPanel* FindPanelWithElem(const CMFCRibbonBaseElement* pElement);
    BOOL RemovePanel(int nIndex, BOOL bDelete = TRUE);
    /// An element that only customising and searches see; the category owns it.
    void AddHidden(CMFCRibbonBaseElement* pElem);

    LPCTSTR GetName() const { return m_strName; }
    void SetName(LPCTSTR lpszName);
    void SetKeys(LPCTSTR lpszKeys);
    void SetData(DWORD_PTR dwData) { m_dwData = dwData; }
    DWORD_PTR GetData() const { return m_dwData; }
    void SetTabColor(AFX_RibbonCategoryColor color);
    AFX_RibbonCategoryColor GetTabColor() const { return m_Color; }
    UINT GetContextID() const { return m_uiContextID; }

    CMFCRibbonBaseElement* FindByID(UINT uiCmdID, BOOL bVisibleOnly = TRUE) const;
    CMFCRibbonBaseElement* FindByData(DWORD_PTR dwData, BOOL bVisibleOnly = TRUE) const;
    void GetElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements);
    void GetElementsByID(UINT uiCmdID, CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements);
    void GetVisibleElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements);
    void GetItemIDsList(CList<UINT, UINT>& lstItems, BOOL bHiddenOnly = FALSE) const;
    CMFCRibbonBaseElement* GetFirstVisibleElement() const;
    CMFCRibbonBaseElement* GetLastVisibleElement() const;
    CMFCRibbonBaseElement* GetDroppedDown();
    CMFCRibbonBaseElement* GetFocused();
    CMFCRibbonBaseElement* GetHighlighted();

    CMFCToolBarImages& GetSmallImages() { return m_SmallImages; }
    CMFCToolBarImages& GetLargeImages() { return m_LargeImages; }
    CSize GetImageSize(BOOL bIsLargeImage) const;
    int GetImageCount(BOOL bIsLargeImage) const;

    BOOL IsActive() const { return m_bIsActive; }
    BOOL IsVisible() const { return m_bIsVisible; }
    BOOL IsWindows7Look() const;
    CRect GetRect() const { return m_rect; }
    CRect GetTabRect() const { return m_Tab.GetRect(); }
    const CMFCRibbonTab& GetTab() const { return m_Tab; }
    CMFCRibbonTab& GetTab() { return m_Tab; }
    /// Panels lie out of view on that side, and a button scrolls to them.
    BOOL HasScrollButton(BOOL bLeft) const { return !(bLeft ? m_ScrollLeft : m_ScrollRight).GetRect().IsRectEmpty(); }
    /// Height of panels with their captions; the same for every category of the bar.
    int GetMaxHeight(CDC* pDC);
    int GetTextTopLine() const;
    CMFCRibbonBar* GetParentRibbonBar() const { return m_pParentRibbonBar; }
    CMFCRibbonPanelMenuBar* GetParentMenuBar() const { return m_pParentMenuBar; }
    CMFCRibbonBaseElement* GetParentButton() const { return m_ParentButton; }

    CMFCRibbonBaseElement* HitTest(CPoint point, BOOL bCheckPanelCaption = FALSE) const;
    /// Position of the element under the point among all elements of the category, -1 when there is none.
    int HitTestEx(CPoint point) const;
    CMFCRibbonBaseElement* HitTestScrollButtons(CPoint point) const;
    /// Moves the hot mark from the old panel (may be NULL) to the one under the point, which is returned.
    CMFCRibbonPanel* HighlightPanel(CMFCRibbonPanel* pHLPanel, CPoint point);
    /// Positions of panels in the order in which they give up width; a position may stand several times.
    void SetCollapseOrder(const CArray<int, int>& arCollapseOrder);

    virtual void RecalcLayout(CDC* pDC);
    virtual void ReposPanels(CDC* pDC);
    virtual BOOL OnScrollHorz(BOOL bScrollLeft, int nScrollOffset = 0);
    virtual void OnDraw(CDC* pDC);
    virtual BOOL OnDrawImage(CDC* pDC, CRect rect, CMFCRibbonBaseElement* pElement, BOOL bIsLargeImage,
                             BOOL nImageIndex, BOOL bCenter);
    virtual CMFCRibbonBaseElement* OnLButtonDown(CPoint point);
    virtual void OnLButtonUp(CPoint point);
    virtual void OnMouseMove(CPoint point);
    virtual void OnCancelMode();
    /// A key (virtual code) while an element of the category has the keyboard, in the bar or in a pop-up. FALSE: no
    /// element has a use for it, and the walk through the ribbon gets it.
    virtual BOOL OnKey(UINT nChar);
    virtual void OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler);

    // Extension points of this framework: what shows the category uses them.
    CMFCRibbonTab& GetTabElement() { return m_Tab; }
    CRibbonCategoryScroll& GetScrollLeft() { return m_ScrollLeft; }
    CRibbonCategoryScroll& GetScrollRight() { return m_ScrollRight; }
    /// The pop-up that shows the category; NULL when the bar does.
    void SetParentMenuBar(CMFCRibbonPanelMenuBar* pMenuBar) { m_pParentMenuBar = pMenuBar; }
    void SetRect(const CRect& rect) { m_rect = rect; }
    /// What AddCategory was given, for an object that was created dynamically. Once, before anything else.
    void CommonInit(CMFCRibbonBar* pParentRibbonBar = NULL, LPCTSTR lpszName = NULL, UINT uiSmallImagesResID = 0,
                    UINT uiLargeImagesResID = 0, CSize sizeSmallImage = CSize(16, 16),
                    CSize sizeLargeImage = CSize(32, 32));
    /// The bar's part of activating, showing and placing: hosts call the bar's functions, which see to the rest.
    virtual void SetActive(BOOL bIsActive = TRUE);
    void SetVisible(BOOL bIsVisible) { m_bIsVisible = bIsVisible; }
    /// 0: a category of no context.
    void SetContextID(UINT uiContextID) { m_uiContextID = uiContextID; }
    /// Panels are measured only where something has changed since the last time.
    void PlaceAt(const CRect& rect, CDC* pDC);
    void HideElements(CDC* pDC);
    /// The panels are measured anew with the next layout.
    void MarkLayoutDirty() override;
    void ForgetMeasures();
    CSize GetElementImageSize(BOOL bIsLargeImage) const override;

protected:
    CString m_strName;
    CRect m_rect;
    CMFCRibbonTab m_Tab;
    CRibbonCategoryScroll m_ScrollLeft;
    CRibbonCategoryScroll m_ScrollRight;
    CMFCRibbonBar* m_pParentRibbonBar = nullptr;
    CMFCRibbonPanelMenuBar* m_pParentMenuBar = nullptr;
    CMFCRibbonBaseElement* m_ParentButton = nullptr;
    CMFCToolBarImages m_SmallImages;
    CMFCToolBarImages m_LargeImages;
    CSize m_sizeSmallImage{16, 16};
    CSize m_sizeLargeImage{32, 32};
    BOOL m_bIsActive = FALSE;
    BOOL m_bIsVisible = TRUE;
    AFX_RibbonCategoryColor m_Color = AFX_CategoryColor_None;
    UINT m_uiContextID = 0;
    DWORD_PTR m_dwData = 0;

private:
    void LoadImages();

    std::unique_ptr<RibbonCategoryParts> m_parts;
};
