#pragma once

#include <afxwin.h>

/// Draws gradients, shadows, blended and greyed areas on a device context. Rectangles are in the context's logical
/// units; functions that return BOOL return FALSE when a bitmap could not be made or the rectangle is empty, and draw
/// nothing.
class FRAMEWORK_API CDrawingManager : public CObject {
public:
    CDrawingManager(CDC& dc);
    ~CDrawingManager() override;

    /// From top to bottom (bHorz) or left to right, the first and last percents flat.
    void FillGradient(CRect rect, COLORREF colorStart, COLORREF colorFinish, BOOL bHorz = TRUE,
                      int nStartFlatPercentage = 0, int nEndFlatPercentage = 0);
    /// Along the direction nAngle in degrees, 0 from left to right, counter-clockwise.
    void FillGradient2(CRect rect, COLORREF colorStart, COLORREF colorFinish, int nAngle = 0);
    /// Two gradients, the first over nPercentage of the rectangle.
    void Fill4ColorsGradient(CRect rect, COLORREF colorStart1, COLORREF colorFinish1, COLORREF colorStart2,
                             COLORREF colorFinish2, BOOL bHorz = TRUE, int nPercentage = 50);
    /// A frame nWidth pixels wide whose colour runs from start to finish and back along nAngle; clrFace fills the
    /// inside.
    BOOL DrawGradientRing(CRect rect, COLORREF colorStart, COLORREF colorFinish, COLORREF colorBorder, int nAngle,
                          int nWidth, COLORREF clrFace = (COLORREF)-1);
    /// Shadow nDepth pixels wide along the bottom and one side. The bitmaps, when given, receive what it covers, and
    /// are drawn from when they are already filled, so that a second draw does not darken the first.
    BOOL DrawShadow(CRect rect, int nDepth, int iMinBrightness = 100, int iMaxBrightness = 50,
                    CBitmap* pBmpSaveBottom = NULL, CBitmap* pBmpSaveRight = NULL, COLORREF clrBase = (COLORREF)-1,
                    BOOL bRightShadow = TRUE);
    /// Grey version of what is there: nPercentage of the grey's brightness, or (-1) an embossed look in clrDisabled.
    BOOL GrayRect(CRect rect, int nPercentage = -1, COLORREF clrTransparent = (COLORREF)-1,
                  COLORREF clrDisabled = (COLORREF)-1);
    /// Lightens to nPercentage, or (-1) towards the highlight colour; clrBlend mixes with a colour instead.
    BOOL HighlightRect(CRect rect, int nPercentage = -1, COLORREF clrTransparent = (COLORREF)-1, int nTolerance = 0,
                       COLORREF clrBlend = (COLORREF)-1);
    void MirrorRect(CRect rect, BOOL bHorz = TRUE);
    void DrawAlpha(CDC* pDstDC, const CRect& rectDst, CDC* pSrcDC, const CRect& rectSrc);
    /// The whole bitmap in dcSrc, which is as wide as rectDest is high, turned by 90 degrees.
    void DrawRotated(CRect rectDest, CDC& dcSrc, BOOL bClockWise);
    /// The colour (COLORREF)-1 leaves the inside or the line out.
    void DrawEllipse(const CRect& rect, COLORREF clrFill, COLORREF clrLine);
    void DrawRect(const CRect& rect, COLORREF clrFill, COLORREF clrLine);
    void DrawLine(int x1, int y1, int x2, int y2, COLORREF clrLine);

    /// Top-down 32-bit bitmap; the caller deletes it. NULL when it cannot be made.
    static HBITMAP __stdcall CreateBitmap_32(const CSize& size, void** pBits);
    /// 32-bit copy; pixels of clrTransparent become fully transparent, all others opaque (-1: no such colour).
    static HBITMAP __stdcall CreateBitmap_32(HBITMAP bitmap, COLORREF clrTransparent = (COLORREF)-1);
    /// nDepth*2 square bitmap of a shadow's corner pieces, caller deletes.
    static HBITMAP __stdcall PrepareShadowMask(int nDepth, COLORREF clrBase, int iMinBrightness = 0,
                                               int iMaxBrightness = 100);

    // Colour arithmetic; H in degrees for HSV, 0 to 1 for HSL; S, L and V from 0 to 1.
    static COLORREF __stdcall PixelAlpha(COLORREF srcPixel, int percent);
    static COLORREF __stdcall PixelAlpha(COLORREF srcPixel, double percentR, double percentG, double percentB);
    static COLORREF __stdcall PixelAlpha(COLORREF srcPixel, COLORREF dstPixel, int percent);
    static COLORREF __stdcall SmartMixColors(COLORREF color1, COLORREF color2, double dblLumRatio = 1., int k1 = 1,
                                             int k2 = 1);
    static COLORREF __stdcall HLStoRGB_ONE(double H, double L, double S);
    static COLORREF __stdcall HLStoRGB_TWO(double H, double L, double S);
    static COLORREF __stdcall HSVtoRGB(double H, double S, double V);
    static double __stdcall HuetoRGB(double m1, double m2, double h);
    static BYTE __stdcall HueToRGB(float rm1, float rm2, float rh);
    static void __stdcall RGBtoHSL(COLORREF rgb, double* H, double* S, double* L);
    static void __stdcall RGBtoHSV(COLORREF rgb, double* H, double* S, double* V);

    // Pixels of a bottom-up 32-bit bitmap; y counts from its bottom row.
    static void __stdcall SetPixel(COLORREF* pBits, int cx, int cy, int x, int y, COLORREF color);
    static void __stdcall SetAlphaPixel(COLORREF* pBits, CRect rect, int x, int y, int percent, int iShadowSize,
                                        COLORREF clrBase = (COLORREF)-1, BOOL bIsRight = TRUE);

protected:
    CDC& m_dc;
};
