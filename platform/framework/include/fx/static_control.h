#pragma once

#include "fx/wnd.h"

/// A label, picture or owner-drawn rectangle. Every member is one message or call of the control; results are the
/// control's own.
class FRAMEWORK_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic();
    ~CStatic() override;

    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xffff);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    HBITMAP GetBitmap() const;
    HCURSOR GetCursor();
    HENHMETAFILE GetEnhMetaFile() const;
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HCURSOR SetCursor(HCURSOR hCursor);
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile);
    HICON SetIcon(HICON hIcon);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
