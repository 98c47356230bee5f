#pragma once

#include <afxpopupmenu.h>
#include <afxRibbonEdit.h>

#include "fx/popup_rows.h"

#include <memory>
#include <vector>

class CMFCDropDownListBox;

// A text field, or with bHasEditBox FALSE a face that shows the selected item, with a list of items that drops down. A
// choice in the list selects the item and sends the element's command. Two items may have the same text. Every element
// with the command's id shows the same selection: the copies in the quick access toolbar follow; items are each
// element's own.
//
// For derived classes: the edit area is m_rectCommand, the drop button m_rectMenu (client pixels of the parent window,
// empty before the first layout), the edit window m_pWndEdit, the text margins m_szMargin, the mark of an open list
// m_bIsDroppedDown (SetDroppedDown).
class FRAMEWORK_API CMFCRibbonComboBox : public CMFCRibbonEdit {
    DECLARE_DYNCREATE(CMFCRibbonComboBox)

public:
    // nWidth: of the edit area in pixels at 96 DPI, the drop button comes on top; -1: the usual width.
    CMFCRibbonComboBox(UINT nID, BOOL bHasEditBox = TRUE, int nWidth = -1, LPCTSTR lpszLabel = nullptr,
                       int nImage = -1);
    ~CMFCRibbonComboBox() override;

    // Items. The result of AddItem is the new item's index, which is the last; -1 for a null text, which adds nothing.
    // An open list takes a new item up; it closes when items are removed.
    virtual INT_PTR AddItem(LPCTSTR lpszItem, DWORD_PTR dwData = 0);
    // FALSE: there is no such item. By data or text the first one goes.
    BOOL DeleteItem(int iIndex);
    BOOL DeleteItem(DWORD_PTR dwData);
    BOOL DeleteItem(LPCTSTR lpszText);
    // Clears the text, too.
    void RemoveAllItems();
    INT_PTR GetCount() const { return static_cast<INT_PTR>(m_items.size()); }
    // Null for an index without an item.
    LPCTSTR GetItem(int iIndex) const;
    // An item's text as people read it in the list: the item's own, unless a derived class shows another. Typing finds
    // rows by it, the list is wide enough for it, assistive programs hear it. Empty for an index without an item.
    virtual CString GetShownItemText(int nIndex) const { return GetItem(nIndex); }
    // 0 for an index without an item.
    DWORD_PTR GetItemData(int iIndex) const;
    // The first item with exactly that text; -1 when there is none.
    int FindItem(LPCTSTR lpszText) const;

    // Selection. FALSE, and nothing changed: there is no such item. Index -1 selects none. No command is sent.
    BOOL SelectItem(int iIndex);
    BOOL SelectItem(DWORD_PTR dwData);
    BOOL SelectItem(LPCTSTR lpszText);
    // -1: none is selected.
    int GetCurSel() const { return m_nSelected; }
    // The user has chosen the item, and the list is closed. Selects it and sends the command, whose handler may delete
    // this element.
    virtual void OnSelectItem(int nItem);

    // The list
    BOOL HasEditBox() const { return m_bHasEditBox; }
    void EnableDropDownListResize(BOOL bEnable = FALSE) { m_bResizeList = bEnable; }
    BOOL IsResizeDropDownList() const { return m_bResizeList; }
    // The most that the list takes, border included, in device pixels; fewer items make it lower. Until a height above
    // 0 is set there is a usual one that grows with the scale.
    void SetDropDownHeight(int nHeight) { m_nDropDownHeight = nHeight; }
    int GetDropDownHeight();
    // Opens the list, or closes an open one. What another element has open is closed, and nothing opens then; a pop-up
    // that shows this element stays.
    void DropDownList() override;
    // Null while no list of this element is open.
    CMFCDropDownListBox* GetDropDownList() const;

    // The list's rows. The row's rectangle is pButton->Rect() in client pixels of the list's bar, whose button this is
    // (the same object for every row). Background and highlight are painted, the ribbon's font is selected, the row's
    // text colour is set and the text's background transparent. TRUE: drawn; FALSE: the list draws the item's text.
    virtual BOOL OnDrawDropListItem(CDC* /*pDC*/, int /*nIndex*/, CMFCToolBarMenuButton* /*pButton*/,
                                    BOOL /*bHighlight*/) {
        return FALSE;
    }
    // The width that an item's row needs (pixels; its height is the font's). sizeText: that of the item's own text with
    // its margins. Asked for the longest texts when the list opens.
    virtual int GetDropListItemWidth(CDC* /*pDC*/, int /*nIndex*/, CSize sizeText) { return sizeText.cx; }
    // The space bar on a row of the open list, with Ctrl where the text field has the focus; once however long it is
    // held. TRUE: it was used; the list stays open and draws the row anew. The handler of what is sent here may close
    // the list and delete this element.
    virtual BOOL OnToggleDropListItem(int /*nIndex*/) { return FALSE; }

    CSize GetIntermediateSize(CDC* pDC) override;
    BOOL CanBeAddedToQuickAccessToolBar() const override;
    BOOL HasDropDown() const override { return TRUE; }
    // The rows of its open list, too. A change of one item needs no more than the face and its row; -1: the face.
    void Redraw() override;
    void RedrawItem(int nIndex);
    BOOL IsHighlighted() const override { return CMFCRibbonEdit::IsHighlighted() || IsDroppedDown(); }
    // Everything but the place: text, items with data, selection, height, edit box and resizing. An edit window of this
    // element goes.
    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    void OnDraw(CDC* pDC) override;
    void OnAfterChangeRect(CDC* pDC) override;
    void OnEnable(BOOL bEnable) override;
    void OnShow(BOOL bShow) override;
    void OnLButtonDown(CPoint point) override;
    BOOL OnKey(BOOL bIsMenuKey) override;

    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    BOOL PutACCValue(LPCTSTR lpszValue) override;
    // The row of which value and state are told: the hot one of the open list, else the selected one; -1: none.
    int GetACCCurrentRow() const;
    int GetACCRowCount() const override { return static_cast<int>(m_items.size()); }
    BOOL SetACCRowData(int nRow, CAccessibilityData& data) override;
    BOOL OnACCRowDefaultAction(int nRow) override;

protected:
    CMFCRibbonComboBox();

    // ---- the parts of DropDownList, for derived classes
    // FALSE: nothing must open (disabled, no window, a hidden edit window), or something else was open and is closed
    // now. TRUE: OnShowPopupMenu was called.
    BOOL BeginDropDown();
    // Makes the list, fills it with the items, marks the element dropped down and opens it; from then on the list is
    // its window's. Without memory for it nothing opens. nMinWidth: of the list in device pixels, -1: the width of edit
    // area and drop button.
    void OpenDropDown(int nMinWidth = -1);
    // An empty list for this element: where a derived class has one of its own. Null: nothing opens.
    virtual std::unique_ptr<CMFCDropDownListBox> MakeDropDownList();
    // Where the list begins on the screen: below the edit area, or below the element when that is empty; at its left
    // edge, in a mirrored window at its right edge.
    CPoint GetDropDownPoint() const;

    // ---- the parts of OnDraw
    // OnDraw paints label, image, box and drop button, and has this paint the inside of the edit area unless an edit
    // window covers it. rectEdit: the edit area, to which the painting is clipped. Font, text colour and transparency
    // are set. The base draws the text.
    virtual void OnDrawSelectedItem(CDC* pDC, CRect rectEdit);

    int GetDropButtonWidth() const override;
    BOOL HasEditWindow() const override { return m_bHasEditBox; }
    BOOL OnProcessKey(UINT nChar) override;
    BOOL OnEditKey(UINT nChar) override;
    void OnEditChange() override;
    void OnEditFocus(BOOL bSet) override;
    void OnTextCommitted() override;

    BOOL m_bHasEditBox = TRUE;

private:
    friend class CMFCDropDownListBox;
    struct Item {
        CString text;
        DWORD_PTR data;
    };
    BOOL IsItem(int index) const { return index >= 0 && index < GetCount(); }
    int FindData(DWORD_PTR dwData) const;
    int FindShownItem(LPCTSTR lpszText) const;
    void TakeSelection(int index, const CString& text);
    void ShowSelectionInCopies();
    std::unique_ptr<CMFCDropDownListBox> MakeFilledList();
    void CloseDropDown();

    std::vector<Item> m_items;
    int m_nSelected = -1;
    int m_nDropDownHeight = 0;
    BOOL m_bResizeList = FALSE;
    BOOL m_bDelaysCommand = FALSE;
    BOOL m_bRedrawsFace = FALSE; // no more than that: the rows stay as they are
    // Gone when the element is: what outlives a call into the host looks here.
    std::shared_ptr<BOOL> m_life;
};

// A font of the system's.
class FRAMEWORK_API CMFCFontInfo : public CObject {
public:
    CMFCFontInfo(LPCTSTR lpszName, LPCTSTR lpszScript, BYTE nCharSet, BYTE nPitchAndFamily, int nType);

    // "Arial (Western)"; the name alone where there is no script.
    CString GetFullName() const;
    BOOL operator==(const CMFCFontInfo& other) const;

    const CString m_strName;
    const CString m_strScript; // as the system calls what the font can write
    const BYTE m_nCharSet;
    const BYTE m_nPitchAndFamily;
    const int m_nType; // TRUETYPE_FONTTYPE and so on
};

// A combo box of the system's fonts by name. With m_bDrawUsingFont each is written in itself in the list.
class FRAMEWORK_API CMFCRibbonFontComboBox : public CMFCRibbonComboBox {
    DECLARE_DYNCREATE(CMFCRibbonFontComboBox)

public:
    // For all of them: each row is written in its font, but for those of symbols.
    static inline BOOL m_bDrawUsingFont = FALSE;

    // Has the fonts at once. nFontType: any of DEVICE_FONTTYPE, RASTER_FONTTYPE and TRUETYPE_FONTTYPE; nCharSet:
    // DEFAULT_CHARSET takes all of them; nPitchAndFamily: FIXED_PITCH or VARIABLE_PITCH and a family, as in LOGFONT.
    CMFCRibbonFontComboBox(UINT nID, int nFontType = DEVICE_FONTTYPE | RASTER_FONTTYPE | TRUETYPE_FONTTYPE,
                           BYTE nCharSet = DEFAULT_CHARSET, BYTE nPitchAndFamily = DEFAULT_PITCH, int nWidth = -1);
    ~CMFCRibbonFontComboBox() override;

    // Other fonts. The text in the field stays, and is selected where it is among them.
    void BuildFonts(int nFontType = DEVICE_FONTTYPE | RASTER_FONTTYPE | TRUETYPE_FONTTYPE,
                    BYTE nCharSet = DEFAULT_CHARSET, BYTE nPitchAndFamily = DEFAULT_PITCH);
    // The same ones, as the system has them now.
    void RebuildFonts();
    // Selects a font by its name, in capitals or not. bExact: only one of that character set. FALSE, and nothing
    // changed: there is none.
    BOOL SetFont(LPCTSTR lpszName, BYTE nCharSet = DEFAULT_CHARSET, BOOL bExact = FALSE);
    // -1: the selected one. NULL: there is none. Good until the fonts are built anew.
    const CMFCFontInfo* GetFontDesc(int iIndex = -1) const;

    int GetFontType() const { return m_nFontType; }
    BYTE GetCharSet() const { return m_nCharSet; }
    BYTE GetPitchAndFamily() const { return m_nPitchAndFamily; }

    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    BOOL OnDrawDropListItem(CDC* pDC, int nIndex, CMFCToolBarMenuButton* pButton, BOOL bHighlight) override;
    int GetDropListItemWidth(CDC* pDC, int nIndex, CSize sizeText) override;

protected:
    CMFCRibbonFontComboBox();

private:
    int m_nFontType = DEVICE_FONTTYPE | RASTER_FONTTYPE | TRUETYPE_FONTTYPE;
    BYTE m_nCharSet = DEFAULT_CHARSET;
    BYTE m_nPitchAndFamily = DEFAULT_PITCH;
    std::vector<std::shared_ptr<const CMFCFontInfo>> m_fonts; // of the items, in their order
};

// The list that a combo box drops down: a pop-up with one row for each text, whatever their number. Made with new; from
// Track on the window owns the object. It never has the focus: with an edit box the keys that it does not use go to
// the edit window. A derived class may have a bar of its own (GetMenuBar), which needs to be no list: the rows are
// given to it (CMFCPopupMenuBar::SetRows) when the window is made.
class FRAMEWORK_API CMFCDropDownListBox : public CMFCPopupMenu, private toolbar::PopupRows {
    DECLARE_DYNCREATE(CMFCDropDownListBox)

public:
    CMFCDropDownListBox();
    // The element is asked to draw the rows and told what is chosen. It may go first.
    explicit CMFCDropDownListBox(CMFCRibbonComboBox* pParentCombo);
    ~CMFCDropDownListBox() override;

    // Index of the new row; -1 for a null text.
    int AddString(LPCTSTR lpszItem);
    int GetCount() const { return static_cast<int>(m_rows.size()); }
    // FALSE, and strText unchanged: there is no such row.
    BOOL GetText(int nIndex, CString& strText) const;
    void ResetContent();
    // The hot row while the list is open; -1: none. FALSE: there is no such row.
    BOOL SetCurSel(int nIndex);
    int GetCurSel() const;

    // Opens the list at the point (screen), in a mirrored parent ending there, and returns. FALSE: the object is gone.
    // Opening changes the size of the window before it is shown (IsShown), a user's hand afterwards.
    BOOL Track(CPoint point, CWnd* pWndOwner);

    CMFCRibbonComboBox* GetParentCombo() const { return m_pCombo; }
    // The element goes: the list closes and forgets it.
    virtual void OnParentComboDestroyed();

    CWnd* GetParentArea(CRect& rectParentBtn) override;
    BOOL IsEditFocused() const override;
    BOOL OnChainKey(UINT nMessage, UINT nChar) override;
    ChainInput OnChainMessage(const MSG& message) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL InitMenuBar() override;
    CRect GetAvoidedArea() override;
    void OnChangeHot(int nHot) override;
    // Closes the list and has the element select the row.
    void OnChooseItem(UINT nIndex) override;

    afx_msg void OnClose();
    DECLARE_MESSAGE_MAP()

private:
    BOOL OnListKey(UINT nMessage, UINT nChar);
    int GetRowCount() const override { return GetCount(); }
    CString GetRowText(int row) const override;
    int MeasureRows(CDC& dc) override;
    int MeasureRow(CDC& dc, int row) override;
    int MeasureText(CDC& dc, int row, const CString& text);
    BOOL DrawRow(CDC& dc, int row, CMFCToolBarMenuButton& button, BOOL isHot) override;
    void ChooseRow(int row) override { OnChooseItem(static_cast<UINT>(row)); }
    BOOL ToggleRow(int row) override;

    CMFCRibbonComboBox* m_pCombo = nullptr;
    std::vector<CString> m_rows;
    int m_nCurSel = -1; // until the bar is there
    BOOL m_bToldHot = FALSE;
    std::shared_ptr<BOOL> m_life;
};
