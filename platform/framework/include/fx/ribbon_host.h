#pragma once

#include <vector>

#include <afxtempl.h>
#include <afxwin.h>

class CMFCRibbonBaseElement;
class CMFCRibbonButton;
class CMFCRibbonCategory;
class CMFCRibbonEdit;
class CMFCRibbonPanel;
class CMFCRibbonPanelMenu;
class CMFCRibbonTab;
struct RibbonMetrics;

// What the elements of a ribbon, its panels and its categories ask of those who show them. They own these interfaces:
// the bar and the pop-ups implement them, and are known to elements by nothing else. None of them is destroyed through
// its interface.

/// What shows elements: the bar, or a pop-up that has them on loan. Points are client pixels of its window.
class RibbonElementHost {
public:
    /// An element has another size or visibility: everything is laid out before it is next drawn or hit-tested.
    virtual void MarkLayoutDirty() = 0;
    /// The element goes, or leaves: nothing may look at it any more.
    virtual void OnElementDestroyed(CMFCRibbonBaseElement* pElement) = 0;
    /// For assistive programs: an event (EVENT_OBJECT_) of the element.
    virtual void NotifyElementEvent(DWORD event, CMFCRibbonBaseElement& element) = 0;
    /// A tooltip that is shown says what is no longer so.
    virtual void HideTip() = 0;
    /// The pointer is in the edit window of an element, or has left it.
    virtual void OnEditPointer(CMFCRibbonEdit& edit, BOOL bInside, CPoint point) = 0;

protected:
    ~RibbonElementHost() = default;
};

/// The keyboard of a bar, as elements see it.
class RibbonElementKeys {
public:
    /// The letters of the element's key tip: `given`, or what its level's texts give.
    virtual CString KeysOf(const CMFCRibbonBaseElement& element, bool isMenu, const CString& given) = 0;
    /// Texts, keys or elements have changed.
    virtual void Forget() = 0;
    /// An edit has taken a key with Alt: the release of Alt means nothing.
    virtual void OnAltIsUsed() = 0;
    /// The focus comes to an edit's window, from `former`; or it goes to `next`.
    virtual void OnEditFocusCame(HWND former) = 0;
    virtual void OnFocusWent(HWND next) = 0;
    /// Takes the focus from an edit that is left for what surrounds it. False: the keyboard is not active.
    virtual bool TakeFocusBack() = 0;
    /// Ends the keyboard; the focus returns to where it was.
    virtual void GiveFocusBack() = 0;
    /// A key has closed the list of an element without a choice.
    virtual void LeaveList() = 0;

    // For pop-ups.
    virtual bool IsActive() const = 0;
    /// Number of the level whose tips are shown, from 0; -1 while none are.
    virtual int GetLevel() const = 0;
    /// A key while the keyboard is active. True: it was taken.
    virtual bool OnKeyDown(const MSG& message) = 0;
    /// A pop-up opens, and closes; goesBack: without a choice, so that the level below is shown again.
    virtual void EnterPopup(CWnd& popup, CObject* object, const std::vector<CMFCRibbonBaseElement*>& elements) = 0;
    virtual void LeavePopup(const CWnd& popup, bool goesBack) = 0;

protected:
    ~RibbonElementKeys() = default;
};

/// How a bar shows tooltips, and its pop-ups with it. Widths are scaled; 0: as wide as the text.
struct RibbonTips {
    bool areShown = true;
    bool haveDescriptions = true;
    int widthRegular = 0;
    int widthLargeImage = 0;
};

/// The bar that an element belongs to, wherever it is shown.
class RibbonBarHost : public RibbonElementHost {
public:
    virtual RibbonElementKeys& GetElementKeys() = 0;
    virtual const RibbonMetrics& GetMetrics() const = 0;
    /// Texts are shown that were measured otherwise: everything is measured anew before the next paint.
    virtual void MarkMeasuresDirty() = 0;
    /// Only the tabs are shown, and the panels in pop-ups.
    virtual bool IsMinimized() const = 0;
    virtual bool HasWindows7Look() const = 0;
    virtual RibbonTips GetTips() const = 0;
    /// The tab of a category was pressed.
    virtual void OnTabPressed(CMFCRibbonTab& tab) = 0;
    /// The tab shows its category in a pop-up.
    virtual void OpenCategory(CMFCRibbonTab& tab) = 0;
    /// The tab row scrolls by one tab.
    virtual void ScrollTabs(BOOL bLeft) = 0;
    /// A panel is about to go: nothing may look at it, and what shows its elements ends while they are all there. Host
    /// code may run.
    virtual void OnPanelGoing(CMFCRibbonPanel& panel) = 0;

protected:
    ~RibbonBarHost() = default;
};

/// A pop-up that has elements on loan.
class RibbonPopupHost : public RibbonElementHost {
public:
    /// The element under the pointer or chosen by the keyboard.
    virtual CMFCRibbonBaseElement* GetHighlighted() const = 0;
    /// For the rows. pButton: NULL for the widest row.
    virtual int GetImageColumnWidth(const CMFCRibbonButton* pButton = NULL) const = 0;
    virtual BOOL HasLargeRows(const CMFCRibbonButton* pButton) const = 0;
    /// The window that closes when the pop-up does; NULL when there is none.
    virtual HWND GetPopupWindow() const = 0;
    /// What it shows goes.
    virtual void OnPanelDestroyed(CMFCRibbonPanel* pPanel) = 0;
    virtual void OnCategoryDestroyed() = 0;

protected:
    ~RibbonPopupHost() = default;
};

/// What the pointer's controller works on: a window that shows elements.
class RibbonPointerTarget {
public:
    /// Hands the press to the element. Host code may run, and end the window.
    virtual void TellPressed(CMFCRibbonBaseElement& element, CPoint point) = 0;
    /// Another element is under the pointer, or none; both have been told.
    virtual void OnHotChanged(CMFCRibbonBaseElement* pHot) = 0;

protected:
    ~RibbonPointerTarget() = default;
};

/// A category, as its elements see it.
class RibbonSection {
public:
    virtual void MarkLayoutDirty() = 0;
    /// Of the category's lists, scaled.
    virtual CSize GetElementImageSize(BOOL bIsLargeImage) const = 0;

protected:
    ~RibbonSection() = default;
};

/// Opens pop-ups for elements and panels; the pop-ups' side provides it while the library is loaded.
class RibbonPopups {
public:
    using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;
    enum class Side { Below, BelowAtRight, Beside };
    enum class Look { Ribbon, PlainMenu };

    /// Shows the items beside the element that opens them.
    virtual void OpenItems(CMFCRibbonBaseElement& opener, const ElementArray& items, Side side, Look look) = 0;
    /// Shows the panel's elements; NULL: the pop-up could not be made.
    virtual CMFCRibbonPanelMenu* OpenPanel(CMFCRibbonPanel& panel, CMFCRibbonBaseElement& opener) = 0;
    /// Closes every open pop-up, whatever its kind.
    virtual void DismissAll() = 0;

    static RibbonPopups& Get();
    static void Provide(RibbonPopups& popups);

protected:
    ~RibbonPopups() = default;
};
