#include "gdi/dc_calls.h"

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) { return ::TextOut(m_hDC, x, y, lpszString, nCount); }
BOOL CDC::TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount, LPINT lpDxWidths) {
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}
BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths) {
    return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
}
CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions,
                         int nTabOrigin) {
    return CSize(static_cast<DWORD>(
        ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin)));
}
CSize CDC::TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions,
                         int nTabOrigin) {
    return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}
int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    if ((nFormat & DT_MODIFYSTRING) == 0) {
        return DrawText(str, str.GetLength(), lpRect, nFormat);
    }
    // Windows may write up to four characters more into the text; the string itself must not change.
    CString copy(str.GetString(), str.GetLength());
    const int result = DrawText(copy.GetBuffer(str.GetLength() + 4), str.GetLength(), lpRect, nFormat);
    copy.ReleaseBuffer();
    return result;
}
int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams) {
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}
int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams) {
    CString copy(str.GetString(), str.GetLength());
    const int result = DrawTextEx(copy.GetBuffer(str.GetLength() + 4), str.GetLength(), lpRect, nFormat, lpDTParams);
    copy.ReleaseBuffer();
    return result;
}
BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount, int x,
                     int y, int nWidth, int nHeight) {
    return ::GrayString(m_hDC, SafeHandle(pBrush), lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    SIZE size = {0, 0};
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &size);
    return size;
}
CSize CDC::GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const {
    SIZE size = {0, 0};
    ::GetTextExtentPoint32(m_hDC, lpszString, nCount, &size);
    return size;
}
CSize CDC::GetOutputTextExtent(const CString& str) const { return GetOutputTextExtent(str, str.GetLength()); }
CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const {
    return CSize(::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}
CSize CDC::GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const {
    return GetTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}
CSize CDC::GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                                     LPINT lpnTabStopPositions) const {
    return CSize(::GetTabbedTextExtent(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}
CSize CDC::GetOutputTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const {
    return GetOutputTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}
BOOL CDC::GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx, LPSIZE lpSize) const {
    return ::GetTextExtentExPointI(m_hAttribDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
}
BOOL CDC::GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const {
    return ::GetTextExtentPointI(m_hAttribDC, pgiIn, cgi, lpSize);
}

UINT CDC::SetTextAlign(UINT nFlags) {
    return OnBothContexts(*this, UINT(GDI_ERROR), [=](HDC dc) { return ::SetTextAlign(dc, nFlags); });
}
UINT CDC::GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
int CDC::SetTextJustification(int nBreakExtra, int nBreakCount) {
    return OnBothContexts(*this, 0, [=](HDC dc) { return int(::SetTextJustification(dc, nBreakExtra, nBreakCount)); });
}
int CDC::SetTextCharacterExtra(int nCharExtra) {
    return OnBothContexts(*this, int(0x80000000), [=](HDC dc) { return ::SetTextCharacterExtra(dc, nCharExtra); });
}
int CDC::GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }

int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const { return ::GetTextFace(m_hAttribDC, nCount, lpszFacename); }
int CDC::GetTextFace(CString& rString) const {
    const int size = ::GetTextFace(m_hAttribDC, 0, nullptr);
    const int result = GetTextFace(size, rString.GetBuffer(size));
    rString.ReleaseBuffer();
    return result;
}
BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hAttribDC, lpMetrics); }
BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hDC, lpMetrics); }
UINT CDC::GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const {
    return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
}
BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
    return ::GetCharWidth32(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}
BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const {
    return ::GetCharWidthFloat(m_hAttribDC, nFirstChar, nLastChar, lpFloatBuffer);
}
BOOL CDC::GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const {
    return ::GetCharWidthI(m_hAttribDC, giFirst, cgi, pgi, lpBuffer);
}
BOOL CDC::GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
    return ::GetCharWidth32(m_hDC, nFirstChar, nLastChar, lpBuffer);
}
BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const {
    return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
}
BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const {
    return ::GetCharABCWidthsFloat(m_hAttribDC, nFirstChar, nLastChar, lpABCF);
}
BOOL CDC::GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const {
    return ::GetCharABCWidthsI(m_hAttribDC, giFirst, cgi, pgi, lpabc);
}
DWORD CDC::GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                                 DWORD dwFlags) const {
    return ::GetCharacterPlacement(m_hAttribDC, lpString, nCount, nMaxExtent, lpResults, dwFlags);
}
DWORD CDC::GetCharacterPlacement(CString& str, int nMaxExtent, LPGCP_RESULTS lpResults, DWORD dwFlags) const {
    return GetCharacterPlacement(str, str.GetLength(), nMaxExtent, lpResults, dwFlags);
}
CSize CDC::GetAspectRatioFilter() const {
    SIZE size = {0, 0};
    ::GetAspectRatioFilterEx(m_hAttribDC, &size);
    return size;
}
DWORD CDC::GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const {
    return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
}
DWORD CDC::GetFontLanguageInfo() const { return ::GetFontLanguageInfo(m_hAttribDC); }
DWORD CDC::GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                           const MAT2* lpmat2) const {
    return ::GetGlyphOutline(m_hAttribDC, nChar, nFormat, lpgm, cbBuffer, lpBuffer, lpmat2);
}
int CDC::GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const {
    return static_cast<int>(::GetKerningPairs(m_hAttribDC, static_cast<DWORD>(nPairs), lpkrnpair));
}
