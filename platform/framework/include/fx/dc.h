#pragma once

// CDC: a device context. Coordinates are logical units of the context (pixels, scaled by the host's monitor, unless a
// map mode is set). Straight calls of GDI keep GDI's results: FALSE, 0, null, CLR_INVALID or ERROR on failure.

#include "fx/gdi_objects.h"

class CWnd;

/// Draws on m_hDC and asks m_hAttribDC for attributes; the two are the same except while a preview or metafile is made.
/// A context that was created or attached is deleted by the destructor. The objects selected into it stay the caller's.
class FRAMEWORK_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)
public:
    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    BOOL m_bPrinting = FALSE;

    CDC() = default;
    ~CDC() override;
    operator HDC() const { return m_hDC; }
    static CDC* PASCAL FromHandlePermanent(HDC hDC);

    // Handle and life. DeleteDC fails on a context that is not this object's own to delete.
    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HDC hDC);
    HDC Detach();
    virtual void SetAttribDC(HDC hDC);
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC();
    virtual void ReleaseOutputDC();
    HDC GetSafeHdc() const;
    CWnd* GetWindow() const;
    BOOL IsPrinting() const;
    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();
    BOOL ResetDC(const DEVMODE* lpDevMode);
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);

    // Selected objects. Each SelectObject returns the object before, which may be a temporary one, or null on failure.
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    int SelectObject(CRgn* pRgn);
    CGdiObject* SelectObject(CGdiObject* pObject);
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette();
    void UpdateColors();
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CPalette* GetCurrentPalette() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    static CBrush* PASCAL GetHalftoneBrush();
    int EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData);

    // Attributes: setters return the value before.
    int GetDeviceCaps(int nIndex) const;
    COLORREF GetNearestColor(COLORREF crColor) const;
    virtual COLORREF SetBkColor(COLORREF crColor);
    COLORREF GetBkColor() const;
    int SetBkMode(int nBkMode);
    int GetBkMode() const;
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetTextColor() const;
    int SetPolyFillMode(int nPolyFillMode);
    int GetPolyFillMode() const;
    int SetROP2(int nDrawMode);
    int GetROP2() const;
    int SetStretchBltMode(int nStretchMode);
    int GetStretchBltMode() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point);
    CPoint GetBrushOrg() const;
    COLORREF SetDCBrushColor(COLORREF crColor);
    COLORREF GetDCBrushColor() const;
    COLORREF SetDCPenColor(COLORREF crColor);
    COLORREF GetDCPenColor() const;
    int SetArcDirection(int nArcDirection);
    int GetArcDirection() const;
    BOOL SetMiterLimit(float fMiterLimit);
    float GetMiterLimit() const;
    BOOL SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust);
    BOOL GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const;
    UINT SetBoundsRect(LPCRECT lpRectBounds, UINT flags);
    UINT GetBoundsRect(LPRECT lpRectBounds, UINT flags);
    DWORD SetMapperFlags(DWORD dwFlag);

    // Coordinates. LPtoDP and DPtoLP of a size keep its sign out: the result is never negative.
    int SetGraphicsMode(int iMode);
    int GetGraphicsMode() const;
    BOOL SetWorldTransform(const XFORM& rXform);
    BOOL ModifyWorldTransform(const XFORM& rXform, DWORD iMode);
    BOOL GetWorldTransform(XFORM& rXform) const;
    DWORD SetLayout(DWORD dwLayout);
    DWORD GetLayout() const;
    virtual int SetMapMode(int nMapMode);
    int GetMapMode() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point);
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CPoint GetViewportOrg() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size);
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CSize GetViewportExt() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point);
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    CPoint GetWindowOrg() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size);
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);
    CSize GetWindowExt() const;
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const;
    void DPtoLP(LPRECT lpRect) const;
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const;
    void LPtoDP(LPRECT lpRect) const;
    void LPtoDP(LPSIZE lpSize) const;
    void DPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoDP(LPSIZE lpSize) const;
    void LPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoLP(LPSIZE lpSize) const;

    // Clipping.
    virtual int GetClipBox(LPRECT lpRect) const;
    virtual BOOL PtVisible(int x, int y) const;
    BOOL PtVisible(POINT point) const;
    virtual BOOL RectVisible(LPCRECT lpRect) const;
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    int ExcludeUpdateRgn(CWnd* pWnd);
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size);
    BOOL SelectClipPath(int nMode);

    // Regions.
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight);
    BOOL InvertRgn(CRgn* pRgn);
    BOOL PaintRgn(CRgn* pRgn);

    // Lines and shapes.
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point);
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point);
    CPoint GetCurrentPosition() const;
    BOOL AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle);
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT lpRect);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Polygon(LPPOINT lpPoints, int nCount);
    BOOL PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount);
    BOOL Polyline(LPPOINT lpPoints, int nCount);
    BOOL PolylineTo(const POINT* lpPoints, int nCount);
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount);
    BOOL PolyBezier(const POINT* lpPoints, int nCount);
    BOOL PolyBezierTo(const POINT* lpPoints, int nCount);
    BOOL PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect);
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL RoundRect(LPCRECT lpRect, POINT point);

    // Filling and decoration.
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect);
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags);
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);
    void DrawFocusRect(LPCRECT lpRect);
    void DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush = nullptr,
                      CBrush* pBrushLast = nullptr);
    BOOL DrawIcon(int x, int y, HICON hIcon);
    BOOL DrawIcon(POINT point, HICON hIcon);
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE, int nTextLen = 0,
                   HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                   CBrush* pBrush);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, CBrush* pBrush);
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode);
    BOOL FloodFill(int x, int y, COLORREF crColor);
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType);
    COLORREF SetPixel(int x, int y, COLORREF crColor);
    COLORREF SetPixel(POINT point, COLORREF crColor);
    BOOL SetPixelV(int x, int y, COLORREF crColor);
    BOOL SetPixelV(POINT point, COLORREF crColor);
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const;

    // Bitmaps.
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);
    BOOL MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap, int xMask,
                 int yMask, DWORD dwRop);
    BOOL PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight, CBitmap& maskBitmap,
                int xMask, int yMask);
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend);
    BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                        int nSrcWidth, int nSrcHeight, UINT clrTransparent);
    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate, LPRECT lpRectUpdate);

    // Text. A count of -1 for DrawText means up to the terminating zero.
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str);
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths);
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    CSize TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions, int nTabOrigin);
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams);
    int DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams);
    virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount,
                            int x, int y, int nWidth, int nHeight);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const;
    CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const;
    CSize GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const;
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetOutputTextExtent(const CString& str) const;
    CSize GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const;
    CSize GetOutputTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const;
    BOOL GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx, LPSIZE lpSize) const;
    BOOL GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const;
    UINT SetTextAlign(UINT nFlags);
    UINT GetTextAlign() const;
    int SetTextJustification(int nBreakExtra, int nBreakCount);
    int SetTextCharacterExtra(int nCharExtra);
    int GetTextCharacterExtra() const;
    int GetTextFace(int nCount, LPTSTR lpszFacename) const;
    int GetTextFace(CString& rString) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const;
    BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const;
    UINT GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const;
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const;
    BOOL GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const;
    BOOL GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const;
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const;
    BOOL GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const;
    DWORD GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                                DWORD dwFlags) const;
    DWORD GetCharacterPlacement(CString& str, int nMaxExtent, LPGCP_RESULTS lpResults, DWORD dwFlags) const;
    CSize GetAspectRatioFilter() const;
    DWORD GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const;
    DWORD GetFontLanguageInfo() const;
    DWORD GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                          const MAT2* lpmat2) const;
    int GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const;

    // Paths.
    BOOL AbortPath();
    BOOL BeginPath();
    BOOL CloseFigure();
    BOOL EndPath();
    BOOL FillPath();
    BOOL FlattenPath();
    int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const;
    BOOL StrokeAndFillPath();
    BOOL StrokePath();
    BOOL WidenPath();

    // Printing and metafiles.
    BOOL QueryAbort() const;
    int SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int));
    int AbortDoc();
    int StartDoc(LPDOCINFO lpDocInfo);
    int StartDoc(LPCTSTR lpszDocName);
    int StartPage();
    int EndPage();
    int EndDoc();
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData);
    int Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData);
    int DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData);
    BOOL PlayMetaFile(HMETAFILE hMF);
    BOOL PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds);
    BOOL AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData);

    void Dump(CDumpContext& dc) const override;
    void AssertValid() const override;

private:
    template <class Wrapper>
    Wrapper* SelectAs(const CGdiObject* object);

    BOOL(CALLBACK* m_abortProc)(HDC, int) = nullptr;
};
