#pragma once

#include "afxribbonbar.h"

struct RibbonStatusBarParts;

/// A status bar of ribbon elements along a frame's lower edge: a main area at the left, an extended area at the right,
/// each in the order in which its elements were added, and the size grip of the frame. It owns its elements. The user
/// chooses from its context menu which of those that have a label are shown. In information mode a text stands in the
/// place of the main area.
///
/// Elements that have no room are not shown: of the extended area the leftmost ones, of the main area the rightmost.
/// All rectangles and points are client pixels of the bar, already scaled.
class FRAMEWORK_API CMFCRibbonStatusBar : public CMFCRibbonBar {
    DECLARE_DYNCREATE(CMFCRibbonStatusBar)

public:
    CMFCRibbonStatusBar();
    ~CMFCRibbonStatusBar() override;

    /// A frame that can be resized gets a size grip in the bar.
    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT nID = AFX_IDW_STATUS_BAR);
    /// dwCtrlStyle: SBARS_SIZEGRIP asks for the size grip in every frame.
    BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                  UINT nID = AFX_IDW_STATUS_BAR);

    // Elements. The bar takes ownership; the label names the element in the bar's context menu, an empty one keeps it
    // out of there.
    void AddElement(CMFCRibbonBaseElement* pElement, LPCTSTR lpszLabel, BOOL bIsVisible = TRUE);
    void AddExtendedElement(CMFCRibbonBaseElement* pElement, LPCTSTR lpszLabel, BOOL bIsVisible = TRUE);
    /// In the main area, not in the context menu.
    void AddDynamicElement(CMFCRibbonBaseElement* pElement);
    /// At the end of the main area. A separator without a shown element on both sides is not shown.
    void AddSeparator();
    /// Deletes the first element with the id, in the main area first. FALSE when there is none.
    BOOL RemoveElement(UINT uiID);
    void RemoveAll();

    int GetCount() const;
    /// NULL for an index that is negative or too large.
    CMFCRibbonBaseElement* GetElement(int nIndex);
    int GetExCount() const;
    /// NULL for an index that is negative or too large.
    CMFCRibbonBaseElement* GetExElement(int nIndex);
    /// The element itself with the id, hidden or not; main area first. NULL when there is none.
    CMFCRibbonBaseElement* FindElement(UINT uiID);
    /// The same, and what elements hold; bVisibleOnly: of shown ones only.
    CMFCRibbonBaseElement* FindByID(UINT uiCmdID, BOOL bVisibleOnly = TRUE);
    BOOL IsExtendedElement(CMFCRibbonBaseElement* pElement) const;

    // Information mode. NULL or an empty text ends it.
    void SetInformation(LPCTSTR lpszInfo);
    BOOL IsInformationMode() const { return !m_strInformation.IsEmpty(); }

    // Layout.
    void RecalcLayout() override;
    /// What is free between the main area and the extended one.
    int GetSpace() const { return m_nSpace; }
    /// The bar also stands for the frame's lower border.
    BOOL IsBottomFrame() const { return m_bIsBottomFrame; }
    /// From the first shown extended element to the right end, over the whole height. FALSE: none is shown.
    virtual BOOL GetExtendedArea(CRect& rect) const;
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;

    // CMFCRibbonBar
    BOOL IsFrameRibbon() const override { return FALSE; }
    BOOL IsMainRibbonBar() const override { return FALSE; }
    /// TRUE while one of its elements can have the focus.
    BOOL LeadsFocusItself() const override;
    BOOL DoesAllowDynInsertBefore() const override { return FALSE; }
    CMFCRibbonBaseElement* HitTest(CPoint point, BOOL bCheckActiveCategory = FALSE,
                                   BOOL bCheckPanelCaption = FALSE) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// The menu of the elements that have a label.
    BOOL OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) override;
    void EnsureLayout() override;
    void OnElementDestroyed(CMFCRibbonBaseElement* pElement) override;
    void GetBarElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements) const override;
    void DoPaint(CDC* pDC) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);

    virtual void OnDrawInformation(CDC* pDC, CString& strInfo, CRect rectInfo);

    // Extension points of this framework: what a derived bar's RecalcLayout needs to know and has to write.
    /// As wide as the grip is to be; 0: none, in a frame that is maximised or without the style SBARS_SIZEGRIP.
    int GetSizeGripWidth() const;

    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> m_arElements;         ///< of the main area, owned
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> m_arExtendedElements; ///< owned
    CString m_strInformation;
    CRect m_rectInformation;
    CRect m_rectSizeGrip;
    CRect m_rectBottomResize;      ///< where the frame's lower border is dragged; empty without a bottom frame
    int m_nSpace = 0;              ///< what GetSpace answers
    BOOL m_bIsBottomFrame = FALSE; ///< the bar covers the frame's lower border

private:
    enum class Area { Main, Extended };
    void Add(Area area, CMFCRibbonBaseElement* element, LPCTSTR label, BOOL isVisible);
    void SwitchElement(const CMFCRibbonBaseElement* element);
    UINT GripHitAt(CPoint point) const;

    std::unique_ptr<RibbonStatusBarParts> m_statusParts;
};
