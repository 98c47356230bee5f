#pragma once

#include "afxtoolbarimages.h"
#include "afxwin.h"

class CMFCToolBar;
class CMFCToolBarMenuButton;

/// Styles of a button, m_nStyle: a TBSTYLE_ value in the low word, TBBS_ states in the high word.
#ifndef TBBS_BUTTON
#define TBBS_BUTTON MAKELONG(TBSTYLE_BUTTON, 0)
#define TBBS_SEPARATOR MAKELONG(TBSTYLE_SEP, 0)
#define TBBS_CHECKBOX MAKELONG(TBSTYLE_CHECK, 0)
#define TBBS_GROUP MAKELONG(TBSTYLE_GROUP, 0)
#define TBBS_CHECKGROUP (TBBS_GROUP | TBBS_CHECKBOX)
#define TBBS_CHECKED MAKELONG(0, TBSTATE_CHECKED)
#define TBBS_PRESSED MAKELONG(0, TBSTATE_PRESSED)
#define TBBS_DISABLED MAKELONG(0, TBSTATE_ENABLED)
#define TBBS_INDETERMINATE MAKELONG(0, TBSTATE_INDETERMINATE)
#define TBBS_HIDDEN MAKELONG(0, TBSTATE_HIDDEN)
#endif
/// Ours alone: the line break that TBSTATE_WRAP means in the system's toolbar.
#ifndef TBBS_BREAK
#define TBBS_BREAK MAKELONG(0, 0x20)
#endif

/// What a toolbar or a menu shows as one item: image, text, or both. It has no window; its toolbar owns it, and all
/// rectangles are in the toolbar's client co-ordinates (pixels). Every derived class can be made by CreateObject and
/// takes everything that was configured over in CopyFrom, because toolbars keep copies.
class FRAMEWORK_API CMFCToolBarButton : public CObject {
    DECLARE_SERIAL(CMFCToolBarButton)

public:
    CMFCToolBarButton();
    /// iImage: index into the toolbar's locked images, the user's images (bUserButton) or the shared images; -1: none.
    CMFCToolBarButton(UINT uiID, int iImage, LPCTSTR lpszText = NULL, BOOL bUserButton = FALSE, BOOL bLocked = FALSE);
    ~CMFCToolBarButton() override;

    virtual void CopyFrom(const CMFCToolBarButton& src);
    /// Same class, command, image and, for buttons without a command, text.
    virtual BOOL CompareWith(const CMFCToolBarButton& other) const;
    void Serialize(CArchive& ar) override;

    // Image
    int GetImage() const { return m_bUserButton ? m_iUserImage : m_iImage; }
    /// Also tells the command manager, unless the button is locked.
    virtual void SetImage(int iImage);
    virtual void ResetImageToDefault();
    BOOL IsLocked() const { return m_bLocked; }
    BOOL IsDrawImage() const;
    BOOL IsDrawText() const { return m_bText && !m_strText.IsEmpty(); }

    // State
    virtual void SetStyle(UINT nStyle);
    virtual void SetRadio() {}
    virtual void EnableWindow(BOOL = TRUE) {}
    void SetVisible(BOOL bShow = TRUE) { m_bVisible = bShow; }
    BOOL IsVisible() const { return m_bVisible; }
    void Show(BOOL bShow);
    BOOL IsHidden() const { return m_bIsHidden; }
    virtual BOOL IsWindowVisible() { return !m_bIsHidden; }
    BOOL IsHorizontal() const { return m_bHorz; }
    virtual BOOL IsDroppedDown() const { return FALSE; }
    virtual BOOL IsEditable() const { return TRUE; }
    virtual BOOL IsExtraSize() const { return m_bExtraSize; }
    virtual BOOL IsFirstInGroup() const;
    virtual BOOL IsLastInGroup() const;
    virtual BOOL HaveHotBorder() const { return TRUE; }
    virtual BOOL HasFocus() const { return FALSE; }
    virtual BOOL IsOwnerOf(HWND) { return FALSE; }
    virtual HWND GetHwnd() { return NULL; }
    virtual BOOL CanBeStored() const { return TRUE; }
    virtual BOOL CanBeStretched() const { return FALSE; }
    virtual BOOL CanBeDropped(CMFCToolBar*) { return TRUE; }
    virtual BOOL ExportToMenuButton(CMFCToolBarMenuButton& menuButton) const;

    // Place
    const CRect& Rect() const { return m_rect; }
    void SetRect(const CRect rect);
    virtual const CRect GetInvalidateRect() const { return m_rect; }
    SIZE GetTextSize() const { return m_sizeText; }
    /// The toolbar that shows the button; NULL while it lies in none.
    CWnd* GetParentWnd() const { return m_pWndParent; }
    /// Measures with the font of pDC and remembers the text's size. sizeDefault: the toolbar's button size.
    virtual SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz);
    virtual void OnChangeParentWnd(CWnd* pWndParent);
    virtual void OnMove() {}
    virtual void OnSize(int) {}
    virtual void OnShow(BOOL) {}
    virtual void OnGlobalFontsChanged() {}

    // Drawing
    virtual void OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz = TRUE,
                        BOOL bCustomizeMode = FALSE, BOOL bHighlight = FALSE, BOOL bDrawBorder = TRUE,
                        BOOL bGrayDisabledButtons = TRUE);
    virtual HBRUSH OnCtlColor(CDC*, UINT) { return NULL; }

    // Input. TRUE: the click is done; nothing more happens.
    virtual BOOL OnClick(CWnd*, BOOL = TRUE) { return FALSE; }
    virtual BOOL OnClickUp() { return FALSE; }
    virtual void OnDblClk(CWnd*) {}
    virtual void OnCancelMode() {}
    virtual BOOL OnContextHelp(CWnd*) { return FALSE; }
    /// TRUE: a control inside the button sent the code and its owner has been told.
    virtual BOOL NotifyCommand(int) { return FALSE; }
    /// A message of the queue for a window inside the button (IsOwnerOf), before it is dispatched. TRUE: it is done.
    virtual BOOL PreTranslateControlMessage(MSG*) { return FALSE; }
    /// The user begins to drag it, or drops it on a toolbar, while buttons can be customised. FALSE: he may not.
    virtual BOOL OnBeforeDrag() const { return TRUE; }
    virtual BOOL OnBeforeDrop(CMFCToolBar*) { return TRUE; }
    /// The user is about to see the menu that the customize mode has for the button, which may change it. Commands that
    /// it adds go to the frame. TRUE: it has changed something.
    virtual BOOL OnCustomizeMenu(CMenu*) { return FALSE; }
    /// This copy has become a command that the customize dialog offers.
    virtual void OnAddToCustomizePage() {}
    /// Draws itself as a row of that dialog's list of commands, image and text; the width that it took. Text colour and
    /// background are those of pDC.
    virtual int OnDrawOnCustomizeList(CDC* pDC, const CRect& rect, BOOL bSelected);

    // Tooltips
    virtual BOOL OnGetCustomToolTipText(CString&) { return FALSE; }
    virtual BOOL OnToolHitTest(const CWnd*, TOOLINFO*) { return FALSE; }
    /// TRUE: the button has put its own windows into the tooltip.
    virtual BOOL OnUpdateToolTip(CWnd*, int, CToolTipCtrl&, CString&) { return FALSE; }

    static void SetProtectedCommands(const CList<UINT, UINT>& lstCmds);
    static const CList<UINT, UINT>& GetProtectedCommands();

    UINT m_nID = 0;
    UINT m_nStyle = TBBS_BUTTON;
    CString m_strText;
    BOOL m_bImage = TRUE;       ///< shows its image, if it has one
    BOOL m_bText = FALSE;       ///< shows its text
    BOOL m_bTextBelow = FALSE;  ///< text under the image
    BOOL m_bUserButton = FALSE; ///< the image is one of the user's
    BOOL m_bWholeText = TRUE;   ///< text is not cut to the button's width
    BOOL m_bWrap = FALSE;       ///< last of its row
    static BOOL m_bWrapText;    ///< text below an image breaks into lines

protected:
    // Steps of OnDraw, for buttons that draw one step their own way.
    void FillInterior(CDC* pDC, const CRect& rect, BOOL bHighlight);
    void DrawButtonBorder(CDC* pDC, const CRect& rect, BOOL bHighlight);
    /// Where an image of that size goes, and the room that is left for the text.
    struct Content {
        CRect image;
        CRect text;
    };
    Content PlaceContent(const CRect& rect, CSize sizeImage, BOOL bHorz) const;
    void DrawButtonText(CDC* pDC, const CRect& rectText, BOOL bHighlight);
    /// The text without the part behind a tabulator, and as it is shown, without marks of mnemonics.
    CString GetLabel() const;
    CString GetShownText() const;
    CSize MeasureText(CDC* pDC) const;
    /// Highlighted, pressed or checked, as visual managers ask for it.
    int GetButtonState(BOOL bHighlight) const;
    BOOL IsDisabledState() const { return (m_nStyle & TBBS_DISABLED) != 0; }

    CRect m_rect{0, 0, 0, 0};
    CSize m_sizeText{0, 0};
    int m_iImage = -1;
    int m_iUserImage = -1;
    BOOL m_bLocked = FALSE;
    BOOL m_bIsHidden = FALSE;
    BOOL m_bVisible = TRUE;
    BOOL m_bHorz = TRUE;
    BOOL m_bExtraSize = FALSE;
    BOOL m_bDisableFill = FALSE;
    CWnd* m_pWndParent = NULL;

    friend class CMFCToolBar;
    friend class CMFCPopupMenuBar;
};
