#pragma once

#include <memory>

#include "afxPane.h"
#include "afxtempl.h"
#include "fx/frame.h"

class CFrameWnd;
class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonButton;
class CMFCRibbonCategory;
class CMFCRibbonMainPanel;
class CMFCRibbonPanel;
class CMFCRibbonPanelMenu;
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
class FRAMEWORK_API CMFCRibbonPanelMenuBar : public CPane {
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

    BOOL IsMenuMode() const;
    BOOL IsMainPanel() const;
    virtual BOOL IsRibbonPanel() const { return TRUE; }
    virtual BOOL IsRibbonPanelInRegularMode() const;
    /// Ordinary menu look: every row has a small image.
    void SetDefaultMenuLook(BOOL bSet = TRUE);
    BOOL IsDefaultMenuLook() const;

    // For the rows.
    /// pButton: NULL for the widest row.
    int GetImageColumnWidth(const CMFCRibbonButton* pButton = NULL) const;
    BOOL HasLargeRows(const CMFCRibbonButton* pButton) const;

    /// The element under the pointer or chosen by the keyboard.
    CMFCRibbonBaseElement* GetHighlighted() const;
    void Highlight(CMFCRibbonBaseElement* pElement);
    void HighlightFirst();
    /// A key's virtual code. FALSE: the key has no meaning here.
    BOOL OnKey(UINT nChar);
    /// A letter: a mnemonic, else the beginning of a text.
    BOOL OnLetter(UINT nUpperChar);
    BOOL Scroll(int nRows);

    // For the pop-up and the elements.
    CMFCRibbonPanelMenu* GetMenu() const;
    RibbonPopupLook GetLook() const;
    /// The bar takes ownership; before it is shown.
    void AddOwnElement(std::unique_ptr<CMFCRibbonBaseElement> element);
    void MarkLayoutDirty();
    /// Lays out for a screen area and answers the size that it takes.
    CSize CalcContentSize(CSize room);
    void GiveBack();
    void OnElementDestroyed(CMFCRibbonBaseElement* pElement);
    void UpdateElements(CFrameWnd* pTarget, BOOL bDisableIfNoHndler);
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    void DoPaint(CDC* pDC) override;

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
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    DECLARE_MESSAGE_MAP()

private:
    void EnsureLayout();
    CSize ArrangeMenu(CDC* pDC, CSize room);
    CSize ArrangeLines(CDC* pDC, CSize room);
    CSize ArrangePanel(CDC* pDC, CSize room);
    CSize ArrangeCategory(CDC* pDC);
    CSize ArrangeMainPanel(CDC* pDC, CSize room);
    void PlaceElement(CDC* pDC, CMFCRibbonBaseElement& element, const CRect& rect);
    void DrawElements(CDC* pDC);
    void SetHot(CMFCRibbonBaseElement* pElement);
    void OpenHot();
    void CancelPress();
    void CollectStops(ElementArray& stops) const;
    BOOL MoveHot(UINT nChar);
    BOOL Step(int direction);
    BOOL StepTowards(UINT nChar);
    void ShowRowOf(CMFCRibbonBaseElement* pElement);
    enum class Choice { Command, Menu };
    void Activate(CMFCRibbonBaseElement* pElement, Choice choice);

    static void GiveBackElement(const RibbonLoan& loan, const RibbonPanelMenuParts& parts);
    void OnPanelDestroyed(CMFCRibbonPanel* pPanel);
    void OnCategoryDestroyed();
    friend class CMFCRibbonPanel;
    friend class CMFCRibbonCategory;

    // Shared with functions that run host code: what they look at afterwards outlives this object.
    std::shared_ptr<RibbonPanelMenuParts> m_parts;
};

/// A pop-up of the ribbon: of a collapsed panel, a button's menu or sub-items, a minimised category, the quick access
/// toolbar's rest, or the application menu. Made with new and opened; from then on it owns itself and goes after it was
/// dismissed.
class FRAMEWORK_API CMFCRibbonPanelMenu : public CFrameWnd {
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

    CMFCRibbonPanelMenuBar& GetRibbonMenuBar() { return m_wndRibbonBar; }
    CMFCRibbonPanel* GetPanel() const { return m_wndRibbonBar.GetPanel(); }
    BOOL IsMenuMode() const { return m_wndRibbonBar.IsMenuMode(); }

    /// Opens beside the element, whose pop-up it becomes, in place of any other. FALSE: the window could not be made;
    /// the object is gone then.
    BOOL OpenFor(CMFCRibbonBaseElement* pElement, Side side);
    /// Opens beside an area of the window, in client pixels. pElement may be NULL.
    BOOL OpenAt(CWnd* pParent, const CRect& area, Side side, CMFCRibbonBaseElement* pElement = NULL);

    /// As Dismiss, when nothing was chosen: the keyboard goes back to what opened it.
    void GoBack();
    /// Hides it and all that were opened from it, gives the elements back; the window goes later, when none of its
    /// message handlers runs any more.
    void Dismiss();
    void DismissChildren();
    static void DismissAll();
    /// The pop-up opened last; NULL when none is open.
    static CMFCRibbonPanelMenu* GetDeepest();
    static BOOL IsAnyOpen() { return GetDeepest() != NULL; }
    CMFCRibbonPanelMenu* GetParentMenu() const { return m_parentMenu; }
    CMFCRibbonBaseElement* GetOpener() const { return m_opener; }
    /// TRUE: the window belongs to one of the open pop-ups.
    static BOOL IsPopupWindow(HWND hWnd);
    void OnParentElementDestroyed();
    /// The content has changed its size.
    void FitToContent();
    CFrameWnd* GetCommandFrame() const;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateWindows(CWnd* pParent);
    int BorderSize() const;
    void Place();
    void TakeOutOfChain();
    void EnterKeyboard();
    void LeaveKeyboard();
    static BOOL FilterMessage(MSG* pMsg);
    static BOOL FilterKey(const MSG& message);
    static void OnPressOutside(const MSG& message);

    CMFCRibbonPanelMenuBar m_wndRibbonBar;
    CMFCRibbonBaseElement* m_opener = nullptr;
    CMFCRibbonPanelMenu* m_parentMenu = nullptr;
    CRect m_area{0, 0, 0, 0}; // screen
    Side m_side = Side::Below;
    HWND m_owner = nullptr;
    bool m_isDismissed = false;
    bool m_goesBack = false;
    CMFCRibbonBar* m_bar = nullptr; // whose pop-up it is; dismisses it before it goes
};
