#pragma once

// CImageList: images of one size in one handle.

#include "fx/archive.h"
#include "fx/dc.h"

/// Owns its handle after Create or Attach and destroys it; a temporary one from FromHandle does not. Sizes are pixels,
/// unscaled. Icons and bitmaps that are added stay the caller's.
class FRAMEWORK_API CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)
public:
    HIMAGELIST m_hImageList = nullptr;

    CImageList() = default;
    ~CImageList() override;

    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL DeleteImageList();

    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    /// A merged image of two.
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy);
    /// A copy of a list.
    BOOL Create(CImageList* pImageList);

    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    BOOL SetImageCount(UINT uNewCount) { return ::ImageList_SetImageCount(m_hImageList, uNewCount); }
    COLORREF SetBkColor(COLORREF cr) { return ::ImageList_SetBkColor(m_hImageList, cr); }
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
        return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
    }

    /// Index of the (first) new image, -1 on failure.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon); }
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon); }
    BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE);
    /// The caller destroys the icon.
    HICON ExtractIcon(int nImage) { return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL); }
    BOOL SetOverlayImage(int nImage, int nOverlay) {
        return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
    }

    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    BOOL DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle = ILD_NORMAL,
                      DWORD dwRop = SRCCOPY, COLORREF rgbBack = CLR_DEFAULT, COLORREF rgbFore = CLR_DEFAULT,
                      DWORD fState = ILS_NORMAL, DWORD Frame = 0, COLORREF crEffect = CLR_DEFAULT);

    /// The bytes that ImageList_Write makes, with their count in front. FALSE leaves the list as it was.
    BOOL Read(CArchive* pArchive);
    BOOL Write(CArchive* pArchive);

    BOOL BeginDrag(int nImage, CPoint ptHotSpot) {
        return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
    }
    static void PASCAL EndDrag() { ::ImageList_EndDrag(); }
    static BOOL PASCAL DragMove(CPoint pt) { return ::ImageList_DragMove(pt.x, pt.y); }
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot) {
        return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
    }
    static BOOL PASCAL DragShowNolock(BOOL bShow) { return ::ImageList_DragShowNolock(bShow); }
    static CImageList* PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot);
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* pWndLock);

    void Dump(CDumpContext& dc) const override;
    void AssertValid() const override;
};
