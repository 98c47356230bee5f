#pragma once

#include "fx/image_list.h"
#include "fx/wnd.h"

/// A push button, check box, radio button, group box or owner-drawn button. Every member is one message or call of the
/// control; results are the control's own.
class FRAMEWORK_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    CButton();
    ~CButton() override;

    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    HBITMAP GetBitmap() const;
    UINT GetButtonStyle() const;
    int GetCheck() const;
    HCURSOR GetCursor();
    HICON GetIcon() const;
    BOOL GetIdealSize(SIZE* psize);
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    CString GetNote() const;
    BOOL GetNote(LPTSTR lpszNote, UINT* cchNote) const;
    UINT GetNoteLength() const;
    TCHAR GetSplitGlyph() const;
    CImageList* GetSplitImageList() const;
    BOOL GetSplitInfo(PBUTTON_SPLITINFO pInfo) const;
    BOOL GetSplitSize(LPSIZE pSize) const;
    UINT GetSplitStyle() const;
    UINT GetState() const;
    BOOL GetTextMargin(RECT* pmargin);
    HBITMAP SetBitmap(HBITMAP hBitmap);
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);
    void SetCheck(int nCheck);
    HCURSOR SetCursor(HCURSOR hCursor);
    BOOL SetDropDownState(BOOL fDropDown);
    HICON SetIcon(HICON hIcon);
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL SetNote(LPCTSTR lpszNote);
    BOOL SetSplitGlyph(TCHAR chGlyph);
    BOOL SetSplitImageList(CImageList* pSplitImageList);
    BOOL SetSplitInfo(PBUTTON_SPLITINFO pInfo);
    BOOL SetSplitSize(LPSIZE pSize);
    BOOL SetSplitStyle(UINT uSplitStyle);
    void SetState(BOOL bHighlight);
    BOOL SetTextMargin(RECT* pmargin);
    BOOL SetElevationRequired(BOOL fElevationRequired);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
