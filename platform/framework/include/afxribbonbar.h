#pragma once

#include <functional>
#include <memory>
#include <unordered_map>

#include "afxPane.h"
#include "afxribboncategory.h"
#include "afxribbonquickaccesstoolbar.h"
#include "fx/accessibility_data.h"
#include "fx/ribbon_host.h"

class CMFCRibbonMainPanel;
class CMFCToolTipCtrl;
class CToolTipCtrl;
class RibbonAccess;
class RibbonKeyboard;
struct RibbonBarParts;

/// Parts of the bar that are hidden now; see CMFCRibbonBar::GetHideFlags.
inline constexpr DWORD AFX_RIBBONBAR_HIDE_ELEMENTS = 0x0001;
inline constexpr DWORD AFX_RIBBONBAR_HIDE_ALL = 0x0002;

/// The button at the left end of the caption and tab rows. Belongs to the host; the bar keeps a pointer only.
class FRAMEWORK_API CMFCRibbonApplicationButton : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonApplicationButton)

public:
    CMFCRibbonApplicationButton();
    CMFCRibbonApplicationButton(UINT uiBmpResID);
    /// The bitmap is copied.
    CMFCRibbonApplicationButton(HBITMAP hBmp);

    void SetImage(UINT uiBmpResID);
    void SetImage(HBITMAP hBmp);

    BOOL IsApplicationButton() const override { return TRUE; }
    /// The bar's main category, where it has one.
    BOOL HasMenu() const override;
    void OnShowPopupMenu() override;
    void DrawImage(CDC* pDC, RibbonImageType type, CRect rectImage) override;
    void OnDraw(CDC* pDC) override;

private:
    CMFCToolBarImages m_Image;
};

/// The caption above the tabs of a context category.
class FRAMEWORK_API CMFCRibbonContextCaption : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonContextCaption)

public:
    CMFCRibbonContextCaption();
    void SetContext(UINT uiContextID, AFX_RibbonCategoryColor color) {
        m_uiContextID = uiContextID;
        m_Color = color;
    }
    void SetRightTabX(int nRightTabX) { m_nRightTabX = nRightTabX; }
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    AFX_RibbonCategoryColor GetColor() const { return m_Color; }
    int GetRightTabX() const { return m_nRightTabX; }
    void OnDraw(CDC* pDC) override;

protected:
    /// A click activates the first category of the context.
    void OnClick(CPoint point) override;

private:
    AFX_RibbonCategoryColor m_Color = AFX_CategoryColor_None;
    UINT m_uiContextID = 0;
    int m_nRightTabX = -1;
};

/// A window button (SC_MINIMIZE, SC_MAXIMIZE or SC_CLOSE) in the bar: the frame's own at the end of the caption, or
/// those of a maximised MDI child at the end of the tab row. A click posts the system command to its window.
class FRAMEWORK_API CMFCRibbonCaptionButton : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonCaptionButton)

public:
    CMFCRibbonCaptionButton();
    /// hwndMDIChild NULL: the frame of the bar.
    CMFCRibbonCaptionButton(UINT uiSysCmd, HWND hwndMDIChild);

    HWND GetMDIChild() const { return m_hwndMDIChild; }
    UINT GetCommand() const { return m_uiSysCmd; }
    /// What a click does now: SC_RESTORE instead of SC_MAXIMIZE for a maximised window.
    UINT GetSystemCommand() const;

    CSize GetRegularSize(CDC* pDC) override;
    CString GetToolTipText() const override;
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    void OnDraw(CDC* pDC) override;

protected:
    void OnClick(CPoint point) override;

private:
    HWND TargetWindow() const;

    UINT m_uiSysCmd = 0;
    HWND m_hwndMDIChild = nullptr;
};

/// The ribbon bar of a frame: tabs, categories of panels, quick access toolbar, application button. It docks to the
/// frame's top and owns its categories. All rectangles and points are client pixels of the bar, already scaled.
class FRAMEWORK_API CMFCRibbonBar : public CPane, public RibbonBarHost, public RibbonPointerTarget {
    DECLARE_DYNAMIC(CMFCRibbonBar)

public:
    CMFCRibbonBar(BOOL bReplaceFrameCaption = TRUE);
    ~CMFCRibbonBar() override;

    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP, UINT nID = AFX_IDW_RIBBON_BAR);
    BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                  UINT nID = AFX_IDW_RIBBON_BAR);

    BOOL IsFrameRibbon() const override { return TRUE; }

    // Categories. Positions count all categories, shown or not.
    CMFCRibbonCategory* AddCategory(LPCTSTR lpszName, UINT uiSmallImagesResID, UINT uiLargeImagesResID,
                                    CSize sizeSmallImage = CSize(16, 16), CSize sizeLargeImage = CSize(32, 32),
                                    int nInsertAt = -1, CRuntimeClass* pRTI = NULL);
    CMFCRibbonCategory* AddContextCategory(LPCTSTR lpszName, LPCTSTR lpszContextName, UINT uiContextID,
                                           AFX_RibbonCategoryColor clrContext, UINT uiSmallImagesResID,
                                           UINT uiLargeImagesResID, CSize sizeSmallImage = CSize(16, 16),
                                           CSize sizeLargeImage = CSize(32, 32), CRuntimeClass* pRTI = NULL);
    /// The application menu, which the application button opens; it is none of the categories that have tabs. A former
    /// one is deleted.
    CMFCRibbonMainPanel* AddMainCategory(LPCTSTR lpszName, UINT uiSmallImagesResID, UINT uiLargeImagesResID,
                                         CSize sizeSmallImage = CSize(16, 16), CSize sizeLargeImage = CSize(32, 32));
    CMFCRibbonCategory* GetMainCategory() const;
    void ShowContextCategories(UINT uiContextID, BOOL bShow = TRUE);
    BOOL ActivateContextCategory(UINT uiContextID);
    /// TRUE when at least one was shown before.
    BOOL HideAllContextCategories();
    BOOL GetContextName(UINT uiContextID, CString& strName) const;
    BOOL RemoveCategory(int nIndex);
    void RemoveAllCategories();
    void ShowCategory(int nIndex, BOOL bShow = TRUE);
    /// FALSE for a category that is not shown or not of this bar.
    BOOL SetActiveCategory(CMFCRibbonCategory* pCategory, BOOL bForceRestore = FALSE);
    CMFCRibbonCategory* GetActiveCategory() const;
    CMFCRibbonCategory* GetCategory(int nIndex) const;
    int GetCategoryCount() const;
    int GetVisibleCategoryCount() const;
    int GetCategoryIndex(CMFCRibbonCategory* pCategory) const;
    int FindCategoryIndexByData(DWORD dwData) const;
    int GetCategoryHeight() const;

    // Searches. Categories come first, then the quick access toolbar.
    CMFCRibbonBaseElement* FindByID(UINT uiCmdID, BOOL bVisibleOnly = TRUE, BOOL bExcludeQAT = FALSE) const;
    CMFCRibbonBaseElement* FindByData(DWORD_PTR dwData, BOOL bVisibleOnly = TRUE) const;
    void GetElementsByID(UINT uiCmdID, CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arButtons);
    void GetItemIDsList(CList<UINT, UINT>& lstItems, BOOL bHiddenOnly = FALSE) const;
    BOOL SetElementKeys(UINT uiCmdID, LPCTSTR lpszKeys, LPCTSTR lpszMenuKeys = NULL);
    virtual CMFCRibbonBaseElement* HitTest(CPoint point, BOOL bCheckActiveCategory = FALSE,
                                           BOOL bCheckPanelCaption = FALSE);
    virtual CMFCRibbonBaseElement* GetDroppedDown();
    virtual CMFCRibbonBaseElement* GetFocused();

    // Quick access toolbar, application button, elements right of the tabs.
    void SetQuickAccessCommands(const CList<UINT, UINT>& lstCommands, BOOL bRecalcLayout = TRUE);
    void GetQuickAccessCommands(CList<UINT, UINT>& lstCommands);
    void SetQuickAccessDefaultState(const CMFCRibbonQuickAccessToolBarDefaultState& state);
    void SetQuickAccessToolbarOnTop(BOOL bOnTop);
    BOOL IsQuickAccessToolbarOnTop() const;
    BOOL IsQATEmpty() const;
    CRect GetQuickAccessToolbarLocation() const;
    CRect GetQATCommandsLocation() const;
    CMFCRibbonBaseElement* GetQATDroppedDown();
    void SetApplicationButton(CMFCRibbonApplicationButton* pButton, CSize sizeButton);
    CMFCRibbonApplicationButton* GetApplicationButton() const;
    /// Takes ownership of the element.
    void AddToTabs(CMFCRibbonBaseElement* pElement);
    void RemoveAllFromTabs();

    // Layout and look.
    void RecalcLayout() override;
    void ForceRecalcLayout();
    DWORD GetHideFlags() const;
    void ToggleMimimizeState();
    int GetCaptionHeight() const override;
    BOOL IsReplaceFrameCaption() const;
    BOOL IsTransparentCaption() const;
    /// Shows the window buttons of a maximised MDI child at the end of the tab row, or takes them away.
    void SetMaximizeMode(BOOL bMax, CWnd* pWnd = NULL);
    /// The child whose buttons SetMaximizeMode shows when it gets no window.
    void SetActiveMDIChild(CWnd* pWnd);
    BOOL IsWindows7Look() const;
    void SetWindows7Look(BOOL bWindows7Look, BOOL bRecalc = TRUE);
    /// How much of their full width the tabs had to give up, in percent.
    int GetTabTrancateRatio() const;
    virtual BOOL IsMainRibbonBar() const { return TRUE; }
    virtual BOOL IsShowGroupBorder(CMFCRibbonButtonsGroup* pGroup) const;

    // Tooltips.
    void EnableToolTips(BOOL bEnable = TRUE, BOOL bEnableDescr = TRUE);
    BOOL IsToolTipEnabled() const;
    BOOL IsToolTipDescrEnabled() const;
    int GetTooltipFixedWidthRegular() const;
    int GetTooltipFixedWidthLargeImage() const;
    void SetTooltipFixedWidth(int nWidthRegular, int nWidthLargeImage);
    void PopTooltip();

    // Keyboard. Alt or F10 shows key tips in levels: the bar's own, then those of a category or pop-up; arrows move the
    // focus instead. Letters that were not given (SetKeys) are chosen from the texts.
    void EnableKeyTips(BOOL bEnable = TRUE);
    BOOL IsKeyTipEnabled() const;
    void ShowKeyTips();
    void HideKeyTips();
    /// -1 without key tips, 0 for those of the bar, from 1 for those that a key tip led to.
    int GetKeyboardNavigationLevel() const;
    /// Bar, category, panel or pop-up whose tips are shown, and the one before it; NULL when there is none.
    CObject* GetKeyboardNavLevelCurrent() const;
    CObject* GetKeyboardNavLevelParent() const;
    /// Shows the tips of the bar, a category or a panel; NULL ends the keyboard's way through the bar.
    void SetKeyboardNavigationLevel(CObject* pLevel, BOOL bSetFocus = TRUE);
    /// Ends it; the focus returns to where it was.
    void DeactivateKeyboardFocus(BOOL bSetFocus = TRUE);
    /// From the frame, with the parameters of the message. TRUE: the key was the bar's.
    BOOL OnSysKeyDown(CFrameWnd* pFrameWnd, WPARAM wParam, LPARAM lParam);
    BOOL OnSysKeyUp(CFrameWnd* pFrameWnd, WPARAM wParam, LPARAM lParam);
    /// A letter of a key tip; without tips one of the bar's own level.
    virtual BOOL TranslateChar(UINT nChar);

    /// Describes the bar (0) or one of its parts (from 1) to assistive programs, in m_AccData. FALSE: no such part.
    BOOL OnSetAccData(long lVal) override;

    // What a derived bar replaces.
    virtual void OnClickButton(CMFCRibbonButton* pButton, CPoint point);
    virtual BOOL OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit);
    virtual BOOL OnShowRibbonQATMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit);
    BOOL PreTranslateMessage(MSG* pMsg) override;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    BOOL CanFloat() const override { return FALSE; }
    BOOL CanBeClosed() const override { return FALSE; }
    BOOL IsResizable() const override { return FALSE; }
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    void OnPaneContextMenu(CWnd* pParentFrame, CPoint point) override;

    // Extension points of this framework: elements, categories and derived bars use them.
    CToolTipCtrl* GetToolTipCtrl() const { return m_pToolTip; }
    RibbonKeyboard& GetKeyboard();
    RibbonAccess& GetAccess();
    /// An element leaves the bar, or goes: key tips and assistive programs forget it.
    void ForgetElement(CMFCRibbonBaseElement& element);
    void NotifyElementEvent(DWORD event, CMFCRibbonBaseElement& element) override;
    const RibbonMetrics& GetMetrics() const override;
    /// What the bar shows has changed: it lays itself out before it is next drawn, hit-tested or updated.
    void MarkLayoutDirty() override;
    /// Texts are shown that were measured otherwise: everything is measured anew before the next paint. While the bar
    /// draws as well.
    void MarkMeasuresDirty() override;
    /// Lays out now if something changed since the last time.
    virtual void EnsureLayout();
    /// The elements that stand on the bar itself, in no category, in their order: those right of the tabs, or those of
    /// a status bar. What they hold is not among them.
    virtual void GetBarElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements) const;
    void OnElementDestroyed(CMFCRibbonBaseElement* pElement) override;
    void HideTip() override;
    void OnEditPointer(CMFCRibbonEdit& edit, BOOL bInside, CPoint point) override;
    RibbonElementKeys& GetElementKeys() override;
    bool IsMinimized() const override;
    bool HasWindows7Look() const override;
    RibbonTips GetTips() const override;
    void OnTabPressed(CMFCRibbonTab& tab) override;
    void OpenCategory(CMFCRibbonTab& tab) override;
    void OnPanelGoing(CMFCRibbonPanel& panel) override;
    void TellPressed(CMFCRibbonBaseElement& element, CPoint point) override;
    void OnHotChanged(CMFCRibbonBaseElement* pHot) override;
    /// What a point of the bar is for its frame: HTCAPTION, HTSYSMENU (the icon), else HTCLIENT.
    LRESULT HitTestCaption(CPoint point);
    /// The row that stands for the frame's caption; empty when the frame keeps its own.
    CRect GetCaptionRect() const { return m_rectCaption; }
    CRect GetCaptionIconRect() const;
    /// Whether the caption row shows the frame as the active one. The frame says so.
    void SetCaptionActive(bool isActive);
    bool IsCaptionActive() const;
    /// Title, activation or size of the frame have changed.
    void RedrawCaption();
    /// The tab row scrolls by one tab while the tabs have no room.
    void ScrollTabs(BOOL bLeft) override;
    /// Tells the owner that the user chose another category.
    void NotifyCategoryChanged();
    /// Fills in, for each id in it, the element that the quick access toolbar copies; one walk for all.
    void FindQuickAccessOriginals(std::unordered_map<UINT, CMFCRibbonBaseElement*>& originals) const;
    /// What the bar's own helpers work on.
    RibbonBarParts& GetParts() const { return *m_parts; }
    /// Paints the whole bar into the device context, as on the screen.
    void DoPaint(CDC* pDC) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnCancelMode();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAccessAction(WPARAM wParam, LPARAM lParam);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg BOOL OnNeedTipText(UINT id, NMHDR* pNMH, LRESULT* pResult);
    afx_msg LRESULT OnUpdateToolTips(WPARAM wp, LPARAM lp);

    /// Own tooltip control, made by the tooltip manager; NULL while tooltips are off.
    CToolTipCtrl* m_pToolTip = nullptr;
    /// Row above the tabs that stands for the frame's caption; empty when the frame keeps its own.
    CRect m_rectCaption;
    /// What OnSetAccData described last.
    CAccessibilityData m_AccData;

    // For derived bars that lay themselves out.
    /// Takes the metrics of the font and the scale that are in force.
    void UpdateMetrics();
    /// The height of the bar has changed, or its place: the frame lays out its panes.
    void AskFrameForRoom();
    /// After a layout: tooltip and key tips follow their elements.
    void OnLaidOut();
    /// What is under way in the bar ends, while all that it looks at is still there. Host code may run.
    void EndInput();

private:
    bool IsFrameTooSmall();
    void Measure(CDC* pDC);
    void Arrange(CDC* pDC);
    void ArrangeContextCaptions();
    void MeasureTabs(CDC* pDC);
    void MeasureCaption();
    void DrawCaption(CDC* pDC);
    void ArrangeCaptionButtons(CDC* pDC);
    void UpdateMaximizeMode();
    CMFCRibbonBaseElement* HitTestCaptionElements(CPoint point);
    void SetActiveWithoutCheck(CMFCRibbonCategory* category);
    CMFCRibbonCategory* FirstVisibleCategory() const;
    /// The first of all elements that fits, in the order of FindByID, without those of the quick access toolbar.
    CMFCRibbonBaseElement* FindElement(const std::function<bool(CMFCRibbonBaseElement&)>& fits) const;
    CMFCRibbonBaseElement* FindQuickAccessOriginal(UINT uiCmdID) const;
    /// What is copied when the user adds the element: a copy stands for its original. NULL: nothing.
    CMFCRibbonBaseElement* GetQuickAccessSource(CMFCRibbonBaseElement* pElement) const;
    void ApplyDefaultQuickAccess();
    /// Applies the default state again when an element has come that it had missed.
    void CompleteDefaultQuickAccess();
    void ForgetQuickAccessOriginal(const CMFCRibbonBaseElement& element);
    void ToggleQuickAccessCommand(UINT uiCmdID);
    void AddPlaceOfQuickAccess(class RibbonMenu& menu);
    /// Asks the frame to show its own dialog. FALSE: it has none.
    BOOL AskFrameToCustomize();
    void PressAt(CPoint point);
    void LightPanelAt(CPoint point);
    void CancelPress();
    void EndUseOf(const CMFCRibbonCategory& category);
    void PlaceTooltip();

    std::unique_ptr<RibbonBarParts> m_parts;
};
