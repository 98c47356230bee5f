#include "gdi/dc_calls.h"

BOOL CDC::QueryAbort() const { return m_abortProc == nullptr || m_abortProc(m_hDC, 0); }
int CDC::SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int)) {
    m_abortProc = lpfn;
    return ::SetAbortProc(m_hDC, lpfn);
}
int CDC::AbortDoc() { return ::AbortDoc(m_hDC); }
int CDC::StartDoc(LPDOCINFO lpDocInfo) { return ::StartDoc(m_hDC, lpDocInfo); }
int CDC::StartDoc(LPCTSTR lpszDocName) {
    DOCINFO info = {};
    info.cbSize = sizeof(info);
    info.lpszDocName = lpszDocName;
    return StartDoc(&info);
}
int CDC::StartPage() { return ::StartPage(m_hDC); }
int CDC::EndPage() { return ::EndPage(m_hDC); }
int CDC::EndDoc() { return ::EndDoc(m_hDC); }

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) {
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}
int CDC::Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData) {
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}
int CDC::DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData) {
    return ::DrawEscape(m_hDC, nEscape, nInputSize, lpszInputData);
}

BOOL CDC::PlayMetaFile(HMETAFILE hMF) { return ::PlayMetaFile(m_hDC, hMF); }
BOOL CDC::PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds) {
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}
BOOL CDC::AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData) {
    return ::GdiComment(m_hDC, nDataSize, pCommentData);
}
