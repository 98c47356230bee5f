#include "gdi/dc_calls.h"

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}
BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, SafeHandle(pSrcDC), xSrc, ySrc, dwRop);
}
BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, SafeHandle(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight, dwRop);
}
BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                  int xMask, int yMask, DWORD dwRop) {
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, SafeHandle(pSrcDC), xSrc, ySrc, maskBitmap, xMask, yMask, dwRop);
}
BOOL CDC::PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight, CBitmap& maskBitmap,
                 int xMask, int yMask) {
    return ::PlgBlt(m_hDC, lpPoint, SafeHandle(pSrcDC), xSrc, ySrc, nWidth, nHeight, maskBitmap, xMask, yMask);
}
BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend) {
    return ::AlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, SafeHandle(pSrcDC), xSrc, ySrc, nSrcWidth,
                        nSrcHeight, blend);
}
BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                         int nSrcWidth, int nSrcHeight, UINT clrTransparent) {
    return ::TransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, SafeHandle(pSrcDC), xSrc, ySrc, nSrcWidth,
                            nSrcHeight, clrTransparent);
}
BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate, LPRECT lpRectUpdate) {
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, SafeHandle(pRgnUpdate), lpRectUpdate);
}
