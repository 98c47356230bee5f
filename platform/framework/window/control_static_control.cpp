#include "fx/static_control.h"

#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CStatic, CWnd)

CStatic::CStatic() = default;

CStatic::~CStatic() { DestroyWindow(); }

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_STATIC, lpszText, dwStyle, rect, pParentWnd, nID);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}

HBITMAP CStatic::GetBitmap() const { return Send<HBITMAP>(*this, STM_GETIMAGE, IMAGE_BITMAP); }

HCURSOR CStatic::GetCursor() { return Send<HCURSOR>(*this, STM_GETIMAGE, IMAGE_CURSOR); }

HENHMETAFILE CStatic::GetEnhMetaFile() const { return Send<HENHMETAFILE>(*this, STM_GETIMAGE, IMAGE_ENHMETAFILE); }

HICON CStatic::GetIcon() const { return Send<HICON>(*this, STM_GETICON); }

HBITMAP CStatic::SetBitmap(HBITMAP hBitmap) { return Send<HBITMAP>(*this, STM_SETIMAGE, IMAGE_BITMAP, hBitmap); }

HCURSOR CStatic::SetCursor(HCURSOR hCursor) { return Send<HCURSOR>(*this, STM_SETIMAGE, IMAGE_CURSOR, hCursor); }

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE hMetaFile) {
    return Send<HENHMETAFILE>(*this, STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
}

HICON CStatic::SetIcon(HICON hIcon) { return Send<HICON>(*this, STM_SETICON, hIcon); }

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    return TRUE;
}
