#pragma once

#include <memory>
#include <vector>

#include "afxpopupmenu.h"
#include "afxtempl.h"
#include "fx/ribbon_host.h"

class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonButton;
class CMFCRibbonCategory;
class CMFCRibbonMainPanel;
class CMFCRibbonPanel;
class CMFCRibbonPanelMenu;
class RibbonAccess;
struct RibbonLoan;
struct RibbonPanelMenuParts;

/// How a ribbon pop-up shows its elements.
enum class RibbonPopupLook {
    Menu,     // rows one below the other
    Lines,    // side by side, as in a toolbar
    Panel,    // as in the ribbon, with the panel's caption
    Category, // all panels of a category
    MainPanel // commands at the left, recent files at the right, buttons at the bottom
};

/// What a ribbon pop-up shows. The elements are not its own: they are lent to it while it is open, with its window as
/// their parent window, and go back to their container, unchanged, when it closes. Points and rectangles are client
/// pixels of this window. Part of its pop-up.
class FRAMEWORK_API CMFCRibbonPanelMenuBar : public CMFCPopupMenuBar,
                                             public RibbonPopupHost,
                                             public RibbonPointerTarget {
    DECLARE_DYNCREATE(CMFCRibbonPanelMenuBar)

public:
    using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

    CMFCRibbonPanelMenuBar();
    explicit CMFCRibbonPanelMenuBar(CMFCRibbonPanel* pPanel);
    /// size: of the room for the panels.
    CMFCRibbonPanelMenuBar(CMFCRibbonCategory* pCategory, CSize size);
    /// bIsFloatyMode: side by side instead of one below the other.
    CMFCRibbonPanelMenuBar(const ElementArray& arButtons, BOOL bIsFloatyMode = FALSE);
    ~CMFCRibbonPanelMenuBar() override;

    /// The element under the point, a button of a group rather than the group; NULL when there is none.
    CMFCRibbonBaseElement* HitTest(CPoint point) const;
    /// Position of the element under the point in the panel or list, -1 when there is none.
    virtual int HitTestEx(CPoint point) const;
    /// The panel that is shown; of a list of elements the panel made for it.
    CMFCRibbonPanel* GetPanel() const;
    CMFCRibbonCategory* GetCategory() const;
    /// The element shown here whose original, or which itself, is the given one; NULL when there is none.
    virtual CMFCRibbonBaseElement* FindByOrigin(CMFCRibbonBaseElement* pOrigin) const;
    void GetElements(ElementArray& arElements) const;
    /// Top level, in order, hidden ones and those scrolled out of view too; empty for a category.
    const std::vector<CMFCRibbonBaseElement*>& GetShown() const;

    BOOL IsMenuMode() const;
    BOOL IsMainPanel() const;
    BOOL IsRibbonPanel() const override { return TRUE; }
    BOOL IsRibbonPanelInRegularMode() const override;
    /// Ordinary menu look: every row has a small image.
    void SetDefaultMenuLook(BOOL bSet = TRUE);
    BOOL IsDefaultMenuLook() const;

    // For the rows.
    /// pButton: NULL for the widest row.
    int GetImageColumnWidth(const CMFCRibbonButton* pButton = NULL) const override;
    BOOL HasLargeRows(const CMFCRibbonButton* pButton) const override;

    /// The element under the pointer or chosen by the keyboard.
    CMFCRibbonBaseElement* GetHighlighted() const override;
    void Highlight(CMFCRibbonBaseElement* pElement);
    void HighlightFirst();
    /// A key's virtual code. FALSE: the key has no meaning here.
    BOOL OnKey(UINT nChar) override;
    /// The highlighted element has something to drop down, by F4 or Alt with an arrow. In a menu look that is no row's
    /// menu, which opens by the arrow beside it.
    BOOL CanDropDown() const;
    /// Drops it down. The host is told, and may end this. FALSE: there is nothing.
    BOOL DropDown();
    /// A letter: a mnemonic, else the beginning of a text.
    BOOL OnLetter(UINT nUpperChar);
    BOOL TranslateChar(UINT nChar) override;
    BOOL OnWheel(short zDelta) override;
    void SelectFirstItem() override { HighlightFirst(); }
    BOOL Scroll(int nRows);

    // For the pop-up and the elements.
    CMFCRibbonPanelMenu* GetMenu() const;
    /// The ribbon bar whose pop-up it is; NULL when there is none.
    CMFCRibbonBar* GetRibbonBar() const;
    /// NULL until the pointer was over an element, and where the ribbon bar shows no tooltips.
    CToolTipCtrl* GetToolTipCtrl() const;
    RibbonPopupLook GetLook() const;
    /// The bar takes ownership; before it is shown.
    void AddOwnElement(std::unique_ptr<CMFCRibbonBaseElement> element);
    void MarkLayoutDirty() override;
    void EnsureLayout();
    RibbonAccess& GetAccess();
    void NotifyElementEvent(DWORD event, CMFCRibbonBaseElement& element) override;
    /// Lays out for a screen area and answers the size that it takes.
    CSize CalcContentSize(CSize room);
    void GiveBack();
    void OnElementDestroyed(CMFCRibbonBaseElement* pElement) override;
    void HideTip() override;
    void OnEditPointer(CMFCRibbonEdit& edit, BOOL bInside, CPoint point) override;
    HWND GetPopupWindow() const override;
    void OnPanelDestroyed(CMFCRibbonPanel* pPanel) override;
    void OnCategoryDestroyed() override;
    void TellPressed(CMFCRibbonBaseElement& element, CPoint point) override;
    void OnHotChanged(CMFCRibbonBaseElement* pHot) override;
    void UpdateElements(CFrameWnd* pTarget, BOOL bDisableIfNoHndler);
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void DoPaint(CDC* pDC) override;
    void AdjustLayout() override;
    void AdjustLocations() override {}
    CSize CalcSize(BOOL bVertDock) override;

protected:
    friend class CMFCRibbonPanelMenu;
    BOOL CreateBar(CWnd* pParent);
    void SetOpener(const CMFCRibbonBaseElement& opener);
    void Lend();
    void LendElement(CMFCRibbonBaseElement* pElement);

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAccessAction(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnNeedTipText(UINT id, NMHDR* pNMH, LRESULT* pResult);
    afx_msg LRESULT OnUpdateToolTips(WPARAM wp, LPARAM lp);
    DECLARE_MESSAGE_MAP()

private:
    CSize ArrangeMenu(CDC* pDC, CSize room);
    CSize ArrangeLines(CDC* pDC, CSize room);
    CSize ArrangePanel(CDC* pDC, CSize room);
    CSize ArrangeCategory(CDC* pDC);
    CSize ArrangeMainPanel(CDC* pDC, CSize room);
    void PlaceElement(CDC* pDC, CMFCRibbonBaseElement& element, const CRect& rect);
    void DrawElements(CDC* pDC);
    void OpenHot();
    /// TRUE: a strip that scrolls is there.
    BOOL ScrollFromStrip(CPoint point);
    void LightStripAt(CPoint point);
    RibbonTips GetBarTips() const;
    void CreateTooltip();
    void PlaceTooltip();
    void PopTooltip();
    void CancelPress();
    CMFCRibbonBaseElement* GetElementUnder(CPoint point);
    void ReleaseOver(CPoint point);
    void CollectStops(ElementArray& stops) const;
    BOOL OfferKey(UINT nChar);
    BOOL MoveHot(UINT nChar);
    BOOL StepTowards(UINT nChar);
    void ShowRowOf(CMFCRibbonBaseElement* pElement);
    enum class Choice { Command, Menu };
    void Activate(CMFCRibbonBaseElement* pElement, Choice choice);

    static void GiveBackElement(const RibbonLoan& loan, const RibbonPanelMenuParts& parts);

    // Shared with functions that run host code: what they look at afterwards outlives this object.
    std::shared_ptr<RibbonPanelMenuParts> m_parts;
};

/// A pop-up of the ribbon: of a collapsed panel, a button's menu or sub-items, a minimised category, the quick access
/// toolbar's rest, or the application menu. A pop-up menu like every other, in the same chain; only its window outlives
/// its closing by a moment, so that an element may close it from inside its own handlers.
class FRAMEWORK_API CMFCRibbonPanelMenu : public CMFCPopupMenu {
    DECLARE_DYNCREATE(CMFCRibbonPanelMenu)

public:
    using ElementArray = CMFCRibbonPanelMenuBar::ElementArray;
    /// Where it opens beside the area of what opens it, when there is room.
    enum class Side { Below, BelowAtRight, Beside };

    CMFCRibbonPanelMenu();
    explicit CMFCRibbonPanelMenu(CMFCRibbonPanel* pPanel);
    CMFCRibbonPanelMenu(CMFCRibbonCategory* pCategory, CSize size);
    CMFCRibbonPanelMenu(const ElementArray& arButtons, BOOL bIsFloatyMode = FALSE);
    ~CMFCRibbonPanelMenu() override;

    CMFCPopupMenuBar* GetMenuBar() override { return &m_wndRibbonBar; }
    CMFCRibbonPanelMenuBar& GetRibbonMenuBar() { return m_wndRibbonBar; }
    CMFCRibbonPanel* GetPanel() const { return m_wndRibbonBar.GetPanel(); }
    BOOL IsMenuMode() const { return m_wndRibbonBar.IsMenuMode(); }

    /// Opens beside the element, whose pop-up it becomes, in place of any other. FALSE: it was not shown; the object is
    /// gone, or goes by itself.
    BOOL OpenFor(CMFCRibbonBaseElement* pElement, Side side);
    /// Opens beside an area of the window, in client pixels; an empty area is a point that no press is kept from.
    /// pElement may be NULL.
    BOOL OpenAt(CWnd* pParent, const CRect& area, Side side, CMFCRibbonBaseElement* pElement = NULL);

    /// As Dismiss, when nothing was chosen: the keyboard goes back to what opened it.
    void GoBack();
    /// Hides it and all that were opened from it, gives the elements back; the window goes later, when none of its
    /// message handlers runs any more.
    void Dismiss();
    void DismissChildren();
    /// Closes every open pop-up, whatever its kind.
    static void DismissAll();
    /// The ribbon pop-up opened last; NULL when none is open.
    static CMFCRibbonPanelMenu* GetDeepest();
    static BOOL IsAnyOpen() { return GetDeepest() != NULL; }
    /// One that elements of the bar opened, or that belongs to the bar, is open, whatever its kind.
    static BOOL IsAnyOpenOf(const CMFCRibbonBar& bar);
    /// The one that shows the category, or was opened from it, which none before it was; NULL when none.
    static CMFCRibbonPanelMenu* GetOutermostOf(const CMFCRibbonCategory& category);
    /// The ribbon pop-up that it was opened from; NULL when none.
    CMFCRibbonPanelMenu* GetParentMenu() const;
    CMFCRibbonBaseElement* GetOpener() const { return GetParentRibbonElement(); }
    CMFCRibbonBar* GetRibbonBar() const { return m_bar; }
    /// TRUE: the window belongs to one of the open pop-ups.
    static BOOL IsPopupWindow(HWND hWnd);
    /// The content has changed its size.
    void FitToContent();
    CFrameWnd* GetCommandFrame() const { return GetOwnerFrame(); }

    // CMFCPopupMenu
    CWnd* GetParentArea(CRect& rectParentBtn) override;
    int GetBorderSize() const override;
    ChainInput OnChainMessage(const MSG& message) override;
    BOOL IsClosedByOpener(const MSG& message) const override;

protected:
    BOOL InitMenuBar() override;
    void OnOpened() override;
    void Place() override;
    void PlaceBar() override;
    void DrawFrame(CDC* pDC) override;

    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    DECLARE_MESSAGE_MAP()

private:
    ChainInput OnKeyMessage(const MSG& message);
    ChainInput OnAltMessage(const MSG& message);
    void GiveFocusToOwner();
    void EnterKeyboard();
    void LeaveKeyboard();

    CMFCRibbonPanelMenuBar m_wndRibbonBar;
    CRect m_area{0, 0, 0, 0}; // screen
    Side m_side = Side::Below;
    bool m_isDismissed = false;
    bool m_goesBack = false;
    enum class Alt { Free, Alone, WithArrow };
    Alt m_alt = Alt::Free;          // a press of Alt that was kept from the frame: what came of it
    CMFCRibbonBar* m_bar = nullptr; // whose pop-up it is; dismisses it before it goes
};
