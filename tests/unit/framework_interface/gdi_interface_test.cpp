#include "interface.h"

#include "afxcmn.h"
#include "afxwin.h"

INTERFACE_OF(CGdiObject) {
    BASE(CObject);
    MADE_FROM();
    MEMBER(BOOL, Attach, (HGDIOBJ));
    MEMBER(BOOL, CreateStockObject, (int));
    MEMBER(BOOL, DeleteObject, ());
    STATIC(void, DeleteTempMap, ());
    MEMBER(HGDIOBJ, Detach, ());
    STATIC(CGdiObject*, FromHandle, (HGDIOBJ));
    MEMBER(int, GetObject, (int, LPVOID) const);
    MEMBER(UINT, GetObjectType, () const);
    MEMBER(HGDIOBJ, GetSafeHandle, () const);
    MEMBER(BOOL, UnrealizeObject, ());
    MEMBER(BOOL, operator!=, (const CGdiObject&) const);
    MEMBER(BOOL, operator==, (const CGdiObject&) const);
    MEMBER(HGDIOBJ, operator HGDIOBJ, () const);
    DATA(HGDIOBJ, m_hObject);
}

INTERFACE_OF(CPen) {
    BASE(CGdiObject);
    MADE_FROM();
    MADE_FROM(int, int, COLORREF);
    MADE_FROM(int, int, const LOGBRUSH*, int, const DWORD*);
    MEMBER(BOOL, CreatePen, (int, int, COLORREF));
    MEMBER(BOOL, CreatePen, (int, int, const LOGBRUSH*, int, const DWORD*));
    CALL(CreatePen, int, int, const LOGBRUSH*);
    MEMBER(BOOL, CreatePenIndirect, (LPLOGPEN));
    STATIC(CPen*, FromHandle, (HPEN));
    MEMBER(int, GetExtLogPen, (EXTLOGPEN*));
    MEMBER(int, GetLogPen, (LOGPEN*));
    MEMBER(HPEN, operator HPEN, () const);
}

INTERFACE_OF(CBrush) {
    BASE(CGdiObject);
    MADE_FROM();
    MADE_FROM(COLORREF);
    MADE_FROM(int, COLORREF);
    MADE_FROM(CBitmap*);
    MEMBER(BOOL, CreateBrushIndirect, (const LOGBRUSH*));
    MEMBER(BOOL, CreateDIBPatternBrush, (HGLOBAL, UINT));
    MEMBER(BOOL, CreateDIBPatternBrush, (const void*, UINT));
    MEMBER(BOOL, CreateHatchBrush, (int, COLORREF));
    MEMBER(BOOL, CreatePatternBrush, (CBitmap*));
    MEMBER(BOOL, CreateSolidBrush, (COLORREF));
    MEMBER(BOOL, CreateSysColorBrush, (int));
    STATIC(CBrush*, FromHandle, (HBRUSH));
    MEMBER(int, GetLogBrush, (LOGBRUSH*));
    MEMBER(HBRUSH, operator HBRUSH, () const);
}

INTERFACE_OF(CFont) {
    BASE(CGdiObject);
    MADE_FROM();
    MEMBER(BOOL, CreateFont, (int, int, int, int, int, BYTE, BYTE, BYTE, BYTE, BYTE, BYTE, BYTE, BYTE, LPCTSTR));
    MEMBER(BOOL, CreateFontIndirect, (const LOGFONT*));
    MEMBER(BOOL, CreatePointFont, (int, LPCTSTR, CDC*));
    CALL(CreatePointFont, int, LPCTSTR);
    MEMBER(BOOL, CreatePointFontIndirect, (const LOGFONT*, CDC*));
    CALL(CreatePointFontIndirect, const LOGFONT*);
    STATIC(CFont*, FromHandle, (HFONT));
    MEMBER(int, GetLogFont, (LOGFONT*));
    MEMBER(HFONT, operator HFONT, () const);
}

INTERFACE_OF(CBitmap) {
    BASE(CGdiObject);
    MADE_FROM();
    MEMBER(BOOL, CreateBitmap, (int, int, UINT, UINT, const void*));
    MEMBER(BOOL, CreateBitmapIndirect, (LPBITMAP));
    MEMBER(BOOL, CreateCompatibleBitmap, (CDC*, int, int));
    MEMBER(BOOL, CreateDiscardableBitmap, (CDC*, int, int));
    STATIC(CBitmap*, FromHandle, (HBITMAP));
    MEMBER(int, GetBitmap, (BITMAP*));
    MEMBER(DWORD, GetBitmapBits, (DWORD, LPVOID) const);
    MEMBER(CSize, GetBitmapDimension, () const);
    MEMBER(BOOL, LoadBitmap, (LPCTSTR));
    MEMBER(BOOL, LoadBitmap, (UINT));
    MEMBER(BOOL, LoadMappedBitmap, (UINT, UINT, LPCOLORMAP, int));
    CALL(LoadMappedBitmap, UINT);
    MEMBER(BOOL, LoadOEMBitmap, (UINT));
    MEMBER(DWORD, SetBitmapBits, (DWORD, const void*));
    MEMBER(CSize, SetBitmapDimension, (int, int));
    MEMBER(HBITMAP, operator HBITMAP, () const);
}

INTERFACE_OF(CPalette) {
    BASE(CGdiObject);
    MADE_FROM();
    MEMBER(void, AnimatePalette, (UINT, UINT, LPPALETTEENTRY));
    MEMBER(BOOL, CreateHalftonePalette, (CDC*));
    MEMBER(BOOL, CreatePalette, (LPLOGPALETTE));
    STATIC(CPalette*, FromHandle, (HPALETTE));
    MEMBER(int, GetEntryCount, ());
    MEMBER(UINT, GetNearestPaletteIndex, (COLORREF) const);
    MEMBER(UINT, GetPaletteEntries, (UINT, UINT, LPPALETTEENTRY) const);
    MEMBER(BOOL, ResizePalette, (UINT));
    MEMBER(UINT, SetPaletteEntries, (UINT, UINT, LPPALETTEENTRY));
    MEMBER(HPALETTE, operator HPALETTE, () const);
}

INTERFACE_OF(CRgn) {
    BASE(CGdiObject);
    MADE_FROM();
    MEMBER(int, CombineRgn, (CRgn*, CRgn*, int));
    MEMBER(int, CopyRgn, (CRgn*));
    MEMBER(BOOL, CreateEllipticRgn, (int, int, int, int));
    MEMBER(BOOL, CreateEllipticRgnIndirect, (LPCRECT));
    MEMBER(BOOL, CreateFromData, (const XFORM*, int, const RGNDATA*));
    MEMBER(BOOL, CreateFromPath, (CDC*));
    MEMBER(BOOL, CreatePolygonRgn, (LPPOINT, int, int));
    MEMBER(BOOL, CreatePolyPolygonRgn, (LPPOINT, LPINT, int, int));
    MEMBER(BOOL, CreateRectRgn, (int, int, int, int));
    MEMBER(BOOL, CreateRectRgnIndirect, (LPCRECT));
    MEMBER(BOOL, CreateRoundRectRgn, (int, int, int, int, int, int));
    MEMBER(BOOL, EqualRgn, (CRgn*) const);
    STATIC(CRgn*, FromHandle, (HRGN));
    MEMBER(int, GetRegionData, (LPRGNDATA, int) const);
    MEMBER(int, GetRgnBox, (LPRECT) const);
    MEMBER(int, OffsetRgn, (int, int));
    MEMBER(int, OffsetRgn, (POINT));
    MEMBER(BOOL, PtInRegion, (int, int) const);
    MEMBER(BOOL, PtInRegion, (POINT) const);
    MEMBER(BOOL, RectInRegion, (LPCRECT) const);
    MEMBER(void, SetRectRgn, (int, int, int, int));
    MEMBER(void, SetRectRgn, (LPCRECT));
    MEMBER(HRGN, operator HRGN, () const);
}

INTERFACE_OF(CClientDC) {
    BASE(CDC);
    MADE_FROM(CWnd*);
}

PROTECTED_INTERFACE_OF(CClientDC) { DATA(HWND, m_hWnd); }

INTERFACE_OF(CPaintDC) {
    BASE(CDC);
    MADE_FROM(CWnd*);
    DATA(PAINTSTRUCT, m_ps);
}

PROTECTED_INTERFACE_OF(CPaintDC) { DATA(HWND, m_hWnd); }

INTERFACE_OF(CWindowDC) {
    BASE(CDC);
    MADE_FROM(CWnd*);
}

PROTECTED_INTERFACE_OF(CWindowDC) { DATA(HWND, m_hWnd); }

INTERFACE_OF(CImageList) {
    BASE(CObject);
    MADE_FROM();
    MEMBER(int, Add, (CBitmap*, CBitmap*));
    MEMBER(int, Add, (CBitmap*, COLORREF));
    MEMBER(int, Add, (HICON));
    MEMBER(BOOL, Attach, (HIMAGELIST));
    MEMBER(BOOL, BeginDrag, (int, CPoint));
    MEMBER(BOOL, Copy, (int, int, UINT));
    CALL(Copy, int, int);
    MEMBER(BOOL, Copy, (int, CImageList*, int, UINT));
    CALL(Copy, int, CImageList*, int);
    MEMBER(BOOL, Create, (int, int, UINT, int, int));
    MEMBER(BOOL, Create, (UINT, int, int, COLORREF));
    MEMBER(BOOL, Create, (LPCTSTR, int, int, COLORREF));
    MEMBER(BOOL, Create, (CImageList&, int, CImageList&, int, int, int));
    MEMBER(BOOL, Create, (CImageList*));
    MEMBER(BOOL, DeleteImageList, ());
    STATIC(void, DeleteTempMap, ());
    MEMBER(HIMAGELIST, Detach, ());
    STATIC(BOOL, DragEnter, (CWnd*, CPoint));
    STATIC(BOOL, DragLeave, (CWnd*));
    STATIC(BOOL, DragMove, (CPoint));
    STATIC(BOOL, DragShowNolock, (BOOL));
    MEMBER(BOOL, Draw, (CDC*, int, POINT, UINT));
    MEMBER(BOOL, DrawEx, (CDC*, int, POINT, SIZE, COLORREF, COLORREF, UINT));
    MEMBER(BOOL, DrawIndirect, (IMAGELISTDRAWPARAMS*));
    MEMBER(BOOL, DrawIndirect,
           (CDC*, int, POINT, SIZE, POINT, UINT, DWORD, COLORREF, COLORREF, DWORD, DWORD, COLORREF));
    CALL(DrawIndirect, CDC*, int, POINT, SIZE, POINT);
    STATIC(void, EndDrag, ());
    MEMBER(HICON, ExtractIcon, (int));
    STATIC(CImageList*, FromHandle, (HIMAGELIST));
    STATIC(CImageList*, FromHandlePermanent, (HIMAGELIST));
    MEMBER(COLORREF, GetBkColor, () const);
    STATIC(CImageList*, GetDragImage, (LPPOINT, LPPOINT));
    MEMBER(int, GetImageCount, () const);
    MEMBER(BOOL, GetImageInfo, (int, IMAGEINFO*) const);
    MEMBER(HIMAGELIST, GetSafeHandle, () const);
    MEMBER(BOOL, Read, (CArchive*));
    MEMBER(BOOL, Remove, (int));
    MEMBER(BOOL, Replace, (int, CBitmap*, CBitmap*));
    MEMBER(int, Replace, (int, HICON));
    MEMBER(COLORREF, SetBkColor, (COLORREF));
    MEMBER(BOOL, SetDragCursorImage, (int, CPoint));
    MEMBER(BOOL, SetImageCount, (UINT));
    MEMBER(BOOL, SetOverlayImage, (int, int));
    MEMBER(BOOL, Write, (CArchive*));
    MEMBER(HIMAGELIST, operator HIMAGELIST, () const);
    NAMED(m_hImageList);
}
