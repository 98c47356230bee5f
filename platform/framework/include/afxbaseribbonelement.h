#pragma once

#include "framework_api.h"

#include <vector>

#include <afxtempl.h>
#include <afxwin.h>

#include "fx/ribbon_cmd_ui.h"

class CAccessibilityData;

class CFrameWnd;
class CMFCRibbonBar;
class CMFCRibbonButtonsGroup;
class CMFCRibbonCategory;
class CMFCRibbonKeyTip;
class CMFCRibbonPanel;
class CMFCRibbonPanelMenuBar;
class RibbonBarHost;
class RibbonElementHost;

// What a panel, a group, a quick access toolbar or a status bar shows: the base of every ribbon element. An element has
// no window of its own; it draws itself into and takes mouse input from its parent window, in whose client
// co-ordinates (scaled pixels) its rectangle and all points are. Its container owns it.
class FRAMEWORK_API CMFCRibbonBaseElement : public CObject {
    DECLARE_DYNAMIC(CMFCRibbonBaseElement)

public:
    enum RibbonElementLocation {
        RibbonElementNotInGroup = -1,
        RibbonElementSingleInGroup,
        RibbonElementFirstInGroup,
        RibbonElementMiddleInGroup,
        RibbonElementLastInGroup
    };
    enum RibbonImageType { RibbonImageLarge, RibbonImageSmall };

    CMFCRibbonBaseElement();
    CMFCRibbonBaseElement(const CMFCRibbonBaseElement&) = delete;
    CMFCRibbonBaseElement& operator=(const CMFCRibbonBaseElement&) = delete;
    ~CMFCRibbonBaseElement() override;

    // Identity and texts. SetText splits "text\nkeys"; a text without the part keeps the keys.
    virtual void SetID(UINT nID);
    UINT GetID() const { return m_nID; }
    virtual UINT GetNotifyID();
    virtual void SetText(LPCTSTR lpszText);
    LPCTSTR GetText() const { return m_strText; }
    // The text that the user reads, also in tips, menus and key tips: where it is drawn translated, the translation.
    virtual CString GetShownText() const { return m_strText; }
    virtual void SetKeys(LPCTSTR lpszKeys, LPCTSTR lpszMenuKeys = nullptr);
    LPCTSTR GetKeys() const { return m_strKeys; }
    LPCTSTR GetMenuKeys() const { return m_strMenuKeys; }
    virtual void SetToolTipText(LPCTSTR lpszText);
    virtual CString GetToolTipText() const;
    virtual void SetDescription(LPCTSTR lpszText);
    virtual CString GetDescription() const;
    virtual void UpdateTooltipInfo();
    void SetData(DWORD_PTR dwData) { m_dwData = dwData; }
    DWORD_PTR GetData() const { return m_dwData; }

    // Copies every state that was configured; position, parents, highlight and the link to the original stay.
    virtual void CopyFrom(const CMFCRibbonBaseElement& src);
    // Takes over what CopyFrom leaves out (enabled, checked, visible) and makes the source, or the source's original,
    // the original of this element.
    void CopyStateFrom(CMFCRibbonBaseElement* pSource);
    // When the original goes, what had it takes that one's original instead, mostly none.
    virtual void SetOriginal(CMFCRibbonBaseElement* pOriginal);
    CMFCRibbonBaseElement* GetOriginal() const { return m_pOriginal; }

    // Parents; none is owned. The parent window is the one set by SetParentWnd, else the ribbon bar.
    virtual void SetParentCategory(CMFCRibbonCategory* pParent);
    CMFCRibbonCategory* GetParentCategory() const { return m_pParentCategory; }
    virtual void SetParentPanel(CMFCRibbonPanel* pPanel);
    virtual CMFCRibbonPanel* GetParentPanel() const;
    virtual void SetParentRibbonBar(CMFCRibbonBar* pRibbonBar);
    CMFCRibbonBar* GetParentRibbonBar() const;
    virtual CMFCRibbonBar* GetTopLevelRibbonBar() const;
    virtual void SetParentWnd(CWnd* pParentWnd);
    virtual CWnd* GetParentWnd() const;
    // The pop-up that shows the element now, null while its own container does.
    virtual void SetParentMenu(CMFCRibbonPanelMenuBar* pMenuBar) { m_pParentMenu = pMenuBar; }
    CMFCRibbonPanelMenuBar* GetParentMenu() const { return m_pParentMenu; }
    // The window set by SetParentWnd, null when there is none.
    CWnd* GetOwnParentWnd() const { return m_pParentWnd; }
    // What shows the element: the pop-up, else its bar; null when there is none. And the bar, its original's where it
    // has none itself.
    RibbonElementHost* GetHost() const;
    RibbonBarHost* GetBarHost() const;
    void SetParentGroup(CMFCRibbonButtonsGroup* pGroup) { m_pParentGroup = pGroup; }
    CMFCRibbonButtonsGroup* GetParentGroup() const { return m_pParentGroup; }

    // Rectangle and size. GetSize answers the size in the current mode; sizes are scaled pixels.
    void SetRect(CRect rect) { m_rect = rect; }
    CRect GetRect() const { return m_rect; }
    virtual CSize GetSize(CDC* pDC);
    virtual CSize GetRegularSize(CDC* pDC) = 0;
    virtual CSize GetIntermediateSize(CDC* pDC);
    virtual CSize GetCompactSize(CDC* pDC);
    /// The least width that the element can do with beside its text, in scaled pixels; 0 when it keeps its width.
    virtual int GetNarrowestWidth(CDC* pDC);
    virtual CSize GetImageSize(RibbonImageType type) const;
    virtual void OnCalcTextSize(CDC* pDC);
    virtual void CleanUpSizes();
    virtual void OnAfterChangeRect(CDC* pDC);
    virtual BOOL CanBeStretched();
    virtual BOOL CanBeStretchedHorizontally();
    virtual void StretchHorizontally();
    virtual BOOL StretchToWholeRow(CDC* pDC, int nHeight);
    virtual BOOL CanBeCompacted() const;
    virtual BOOL IsWholeRowHeight() const;
    virtual BOOL IsAlignByColumn() const;

    // Size mode. A mode that the element does not have counts as the next smaller one that it has.
    virtual BOOL HasLargeMode() const;
    virtual BOOL HasIntermediateMode() const;
    virtual BOOL HasCompactMode() const;
    virtual void SetInitialMode(BOOL bOneRow = FALSE);
    virtual void SetCompactMode(BOOL bCompactMode = TRUE);
    virtual void SetIntermediateMode(BOOL bIntermediateMode = TRUE);
    BOOL IsLargeMode() const { return !m_bCompactMode && !m_bIntermediateMode; }
    BOOL IsIntermediateMode() const { return m_bIntermediateMode && !m_bCompactMode; }
    BOOL IsCompactMode() const { return m_bCompactMode; }
    virtual BOOL IsAlwaysLargeImage() const;
    virtual void SetTextAlwaysOnRight(BOOL bSet = TRUE);
    BOOL IsTextAlwaysOnRight() const { return m_bTextAlwaysOnRight; }

    // Drawing. OnDraw paints the element's rectangle.
    virtual void OnDraw(CDC* pDC) = 0;
    virtual void DrawImage(CDC* pDC, RibbonImageType type, CRect rectImage);
    // Draws the element's image in a row of a menu. FALSE: it has none.
    virtual BOOL OnDrawMenuImage(CDC* pDC, CRect rect);
    virtual void Redraw();

    // State.
    void SetVisible(BOOL bIsVisible);
    BOOL IsVisible() const { return m_bIsVisible; }
    virtual BOOL IsDisabled() const { return m_bIsDisabled; }
    virtual BOOL IsChecked() const { return m_bIsChecked; }
    BOOL IsRadio() const { return m_bIsRadio; }
    virtual BOOL IsHighlighted() const { return m_bIsHighlighted; }
    virtual BOOL IsPressed() const { return m_bIsPressed; }
    virtual BOOL IsFocused() const { return m_bIsFocused; }
    virtual BOOL HasFocus() const { return m_bIsFocused; }
    virtual BOOL IsDroppedDown() const { return m_bIsDroppedDown; }
    virtual BOOL IsSeparator() const { return FALSE; }
    virtual BOOL IsTabStop() const { return TRUE; }
    virtual BOOL IsGalleryIcon() const { return FALSE; }
    virtual BOOL IsShowTooltipOnBottom() const { return TRUE; }
    virtual BOOL HasMenu() const { return FALSE; }
    // OnKey(TRUE) opens something: a menu or a list.
    virtual BOOL HasDropDown() const { return HasMenu(); }
    virtual BOOL IsAutoRepeatMode(int& nDelay) const;
    BOOL IsMenuMode() const { return m_bIsMenuMode; }
    BOOL IsQATMode() const { return m_bIsQATMode; }
    BOOL IsShowGroupBorder() const { return m_bShowGroupBorder; }
    RibbonElementLocation GetLocationInGroup() const { return m_Location; }
    void SetDefaultMenuLook(BOOL bIsDefaultMenuLook = TRUE) { m_bIsDefaultMenuLook = bIsDefaultMenuLook; }
    BOOL IsDefaultMenuLook() const { return m_bIsDefaultMenuLook; }
    virtual BOOL CanBeAddedToQuickAccessToolBar() const;
    virtual UINT GetQuickAccessToolBarID() const { return m_nID; }

    // Search. Each looks at the element itself and at what it holds; null when there is none.
    virtual CMFCRibbonBaseElement* HitTest(CPoint point);
    virtual CMFCRibbonBaseElement* Find(const CMFCRibbonBaseElement* pElement);
    virtual CMFCRibbonBaseElement* FindByID(UINT uiCmdID);
    virtual CMFCRibbonBaseElement* FindByData(DWORD_PTR dwData);
    virtual CMFCRibbonBaseElement* FindByOriginal(CMFCRibbonBaseElement* pOriginal);
    virtual CMFCRibbonBaseElement* GetDroppedDown();
    virtual CMFCRibbonBaseElement* GetHighlighted();
    virtual CMFCRibbonBaseElement* GetPressed();
    virtual void GetElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements);
    virtual void GetElementsByID(UINT uiCmdID, CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements);

    // Key tips. AddToKeyList gives new tips to the caller. The rectangle is in client pixels of the parent window, the
    // size is scaled; both are empty without letters. bIsMenu: the tip of a split button's menu.
    virtual void AddToKeyList(CArray<CMFCRibbonKeyTip*, CMFCRibbonKeyTip*>& arElems);
    virtual CRect GetKeyTipRect(CDC* pDC, BOOL bIsMenu);
    virtual CSize GetKeyTipSize(CDC* pDC);
    virtual void OnDrawKeyTip(CDC* pDC, const CRect& rect, BOOL bIsMenu);
    // The letters in force: those that were given, else the ones chosen from the text.
    CString GetKeyTipText(BOOL bIsMenu) const;

    // Accessibility. SetACCData describes the element to assistive programs; pParent is the window whose client pixels
    // its rectangle has. An element whose inside has no elements of its own, as a drop list's rows, serves them by
    // number from 0: how many there are now, the description of one (rectangle in screen pixels), its default action.
    // FALSE: there is no such row, or it has no action.
    virtual BOOL SetACCData(CWnd* pParent, CAccessibilityData& data);
    virtual int GetACCRowCount() const { return 0; }
    virtual BOOL SetACCRowData(int /*nRow*/, CAccessibilityData& /*data*/) { return FALSE; }
    virtual BOOL OnACCRowDefaultAction(int /*nRow*/) { return FALSE; }
    // A value that an assistive program sets. FALSE: the element takes none, or not this one.
    virtual BOOL PutACCValue(LPCTSTR /*lpszValue*/) { return FALSE; }
    // Tells assistive programs of an event (EVENT_OBJECT_) of the element.
    void NotifyAccessibility(DWORD dwEvent);

    // Commands. WM_COMMAND goes to the owner of the ribbon bar; with delay it is posted. FALSE: nothing was sent
    // because the element is disabled, has no command id or no window.
    BOOL NotifyCommand(BOOL bWithDelay = FALSE);
    // Closes what the element has open and, later, the pop-up that it lies in. The id plays no part.
    void PostMenuCommand(UINT uiCmdId);
    // The window that receives the element's commands and its other messages to the host; null when there is none.
    CWnd* GetCommandTarget() const;
    // Tells the window that receives the commands that the list of this element has a row hot, -1 for none.
    virtual void NotifyHighlightListItem(int nIndex);
    virtual void OnShowPopupMenu();
    virtual void ClosePopupMenu();
    virtual void DestroyCtrl();
    // For derived bars, before they notify for an element; -11: a context menu was shown on it.
    virtual void OnMenuCommandHook(int nCommand);

    // Input and changes of state, called by the containers.
    virtual void OnMouseMove(CPoint point);
    virtual void OnLButtonDown(CPoint point);
    virtual void OnLButtonUp(CPoint point);
    virtual void OnLButtonDblClk(CPoint point);
    // TRUE: keep repeating.
    virtual BOOL OnAutoRepeat();
    virtual BOOL OnKey(BOOL bIsMenuKey);
    virtual BOOL OnMenuKey(UINT nUpperChar);
    virtual void OnHighlight(BOOL bHighlight);
    // Another element of the pop-up that shows this one is hot; null: none is.
    virtual void OnChangeMenuHighlight(CMFCRibbonPanelMenuBar* pPanelMenuBar, CMFCRibbonBaseElement* pHot);
    virtual void OnEnable(BOOL bEnable);
    virtual void OnCheck(BOOL bCheck);
    virtual void OnShow(BOOL bShow);
    virtual void OnRTLChanged(BOOL bIsRTL);
    virtual void OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler);

    // For containers: set the state and tell the element (OnHighlight, OnEnable, OnCheck, OnSetFocus) where it changed.
    void SetHighlighted(BOOL bHighlighted);
    virtual void SetPressed(BOOL bPressed);
    void SetFocused(BOOL bFocused);
    void SetDisabled(BOOL bDisabled);
    void SetChecked(BOOL bChecked, BOOL bIsRadio = FALSE);
    // The pop-up that the element has dropped down, null when it closes; not owned.
    virtual void SetDroppedDown(CWnd* pPopup);
    CWnd* GetPopup() const { return m_pPopup; }
    void SetLocationInGroup(RibbonElementLocation location) { m_Location = location; }
    void SetShowGroupBorder(BOOL bShow) { m_bShowGroupBorder = bShow; }
    void SetMenuMode(BOOL bMenuMode) { m_bIsMenuMode = bMenuMode; }
    void SetQATMode(BOOL bQATMode) { m_bIsQATMode = bQATMode; }
    BOOL ProcessKey(UINT nChar) { return OnProcessKey(nChar); }

protected:
    virtual BOOL OnProcessKey(UINT nChar);
    virtual void OnSetFocus(BOOL bSet);
    // The element's size or visibility has changed: whatever holds it lays itself out before it is next drawn.
    void MarkLayoutDirty();
    // Closes the pop-ups that show the element, before its command is sent.
    void CloseParentMenus();
    // The elements whose original this one is.
    std::vector<CMFCRibbonBaseElement*> CollectCopies() const;

    UINT m_nID = 0;
    CString m_strText;
    CString m_strToolTip;
    CString m_strDescription;
    CString m_strKeys;
    CString m_strMenuKeys;
    DWORD_PTR m_dwData = 0;

    CRect m_rect;
    CSize m_szMargin; // text margins, scaled
    RibbonElementLocation m_Location = RibbonElementNotInGroup;

    BOOL m_bCompactMode = FALSE;
    BOOL m_bIntermediateMode = FALSE;
    BOOL m_bTextAlwaysOnRight = FALSE;
    BOOL m_bIsVisible = TRUE;
    BOOL m_bIsDisabled = FALSE;
    BOOL m_bIsChecked = FALSE;
    BOOL m_bIsRadio = FALSE;
    BOOL m_bIsHighlighted = FALSE;
    BOOL m_bIsPressed = FALSE;
    BOOL m_bIsFocused = FALSE;
    BOOL m_bIsDroppedDown = FALSE;
    BOOL m_bIsMenuMode = FALSE;
    BOOL m_bIsQATMode = FALSE;
    BOOL m_bShowGroupBorder = FALSE;
    BOOL m_bIsDefaultMenuLook = FALSE;

    CMFCRibbonCategory* m_pParentCategory = nullptr;
    CMFCRibbonPanel* m_pParentPanel = nullptr;
    CMFCRibbonButtonsGroup* m_pParentGroup = nullptr;
    CMFCRibbonBar* m_pRibbonBar = nullptr;
    CWnd* m_pParentWnd = nullptr;
    CMFCRibbonPanelMenuBar* m_pParentMenu = nullptr;
    CWnd* m_pPopup = nullptr;

private:
    CMFCRibbonBaseElement* m_pOriginal = nullptr;
    CMFCRibbonBaseElement* m_pFirstCopy = nullptr; // of a list of all whose original this one is
    CMFCRibbonBaseElement* m_pNextCopy = nullptr;  // the neighbours in the original's list
    CMFCRibbonBaseElement* m_pPreviousCopy = nullptr;
};

// A thin line between elements: vertical and as high as its row, or horizontal in menus.
class FRAMEWORK_API CMFCRibbonSeparator : public CMFCRibbonBaseElement {
    DECLARE_DYNCREATE(CMFCRibbonSeparator)

public:
    CMFCRibbonSeparator(BOOL bIsHoriz = FALSE);

    BOOL IsHorizontal() const { return m_bIsHoriz; }
    BOOL IsWholeRowHeight() const override { return !m_bIsHoriz; }
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }

protected:
    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    CSize GetRegularSize(CDC* pDC) override;
    BOOL IsSeparator() const override { return TRUE; }
    BOOL IsTabStop() const override { return FALSE; }
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    void OnDraw(CDC* pDC) override;

    BOOL m_bIsHoriz = FALSE;
};
