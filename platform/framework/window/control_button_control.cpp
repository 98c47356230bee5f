#include "fx/button_control.h"

#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CButton, CWnd)

CButton::CButton() = default;

CButton::~CButton() { DestroyWindow(); }

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

HBITMAP CButton::GetBitmap() const { return Send<HBITMAP>(*this, BM_GETIMAGE, IMAGE_BITMAP); }

UINT CButton::GetButtonStyle() const { return GetStyle() & 0xFFFF; }

int CButton::GetCheck() const { return Send<int>(*this, BM_GETCHECK); }

HCURSOR CButton::GetCursor() { return Send<HCURSOR>(*this, BM_GETIMAGE, IMAGE_CURSOR); }

HICON CButton::GetIcon() const { return Send<HICON>(*this, BM_GETIMAGE, IMAGE_ICON); }

BOOL CButton::GetIdealSize(SIZE* psize) { return Send<BOOL>(*this, BCM_GETIDEALSIZE, 0, psize); }

BOOL CButton::GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) {
    return Send<BOOL>(*this, BCM_GETIMAGELIST, 0, pbuttonImagelist);
}

CString CButton::GetNote() const {
    UINT length = GetNoteLength() + 1;
    std::vector<wchar_t> text(length);
    GetNote(text.data(), &length);
    return CString(text.data());
}

BOOL CButton::GetNote(LPTSTR lpszNote, UINT* cchNote) const {
    return Send<BOOL>(*this, BCM_GETNOTE, cchNote, lpszNote);
}

UINT CButton::GetNoteLength() const { return Send<UINT>(*this, BCM_GETNOTELENGTH); }

TCHAR CButton::GetSplitGlyph() const {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_GLYPH;
    return GetSplitInfo(&info) ? static_cast<TCHAR>(reinterpret_cast<UINT_PTR>(info.himlGlyph)) : TCHAR(0);
}

CImageList* CButton::GetSplitImageList() const {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_IMAGE;
    return GetSplitInfo(&info) ? CImageList::FromHandle(info.himlGlyph) : nullptr;
}

BOOL CButton::GetSplitInfo(PBUTTON_SPLITINFO pInfo) const { return Send<BOOL>(*this, BCM_GETSPLITINFO, 0, pInfo); }

BOOL CButton::GetSplitSize(LPSIZE pSize) const {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_SIZE;
    if (!GetSplitInfo(&info)) {
        return FALSE;
    }
    *pSize = info.size;
    return TRUE;
}

UINT CButton::GetSplitStyle() const {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_STYLE;
    return GetSplitInfo(&info) ? info.uSplitStyle : 0;
}

UINT CButton::GetState() const { return Send<UINT>(*this, BM_GETSTATE); }

BOOL CButton::GetTextMargin(RECT* pmargin) { return Send<BOOL>(*this, BCM_GETTEXTMARGIN, 0, pmargin); }

HBITMAP CButton::SetBitmap(HBITMAP hBitmap) { return Send<HBITMAP>(*this, BM_SETIMAGE, IMAGE_BITMAP, hBitmap); }

void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw) { Send(*this, BM_SETSTYLE, nStyle, bRedraw); }

void CButton::SetCheck(int nCheck) { Send(*this, BM_SETCHECK, nCheck); }

HCURSOR CButton::SetCursor(HCURSOR hCursor) { return Send<HCURSOR>(*this, BM_SETIMAGE, IMAGE_CURSOR, hCursor); }

BOOL CButton::SetDropDownState(BOOL fDropDown) { return Send<BOOL>(*this, BCM_SETDROPDOWNSTATE, fDropDown); }

HICON CButton::SetIcon(HICON hIcon) { return Send<HICON>(*this, BM_SETIMAGE, IMAGE_ICON, hIcon); }

BOOL CButton::SetImageList(PBUTTON_IMAGELIST pbuttonImagelist) {
    return Send<BOOL>(*this, BCM_SETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::SetNote(LPCTSTR lpszNote) { return Send<BOOL>(*this, BCM_SETNOTE, 0, lpszNote); }

BOOL CButton::SetSplitGlyph(TCHAR chGlyph) {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_GLYPH;
    info.himlGlyph = reinterpret_cast<HIMAGELIST>(static_cast<UINT_PTR>(chGlyph));
    return SetSplitInfo(&info);
}

BOOL CButton::SetSplitImageList(CImageList* pSplitImageList) {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_IMAGE;
    info.himlGlyph = HandleOf(pSplitImageList);
    return SetSplitInfo(&info);
}

BOOL CButton::SetSplitInfo(PBUTTON_SPLITINFO pInfo) { return Send<BOOL>(*this, BCM_SETSPLITINFO, 0, pInfo); }

BOOL CButton::SetSplitSize(LPSIZE pSize) {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_SIZE;
    info.size = *pSize;
    return SetSplitInfo(&info);
}

BOOL CButton::SetSplitStyle(UINT uSplitStyle) {
    BUTTON_SPLITINFO info{};
    info.mask = BCSIF_STYLE;
    info.uSplitStyle = uSplitStyle;
    return SetSplitInfo(&info);
}

void CButton::SetState(BOOL bHighlight) { Send(*this, BM_SETSTATE, bHighlight); }

BOOL CButton::SetTextMargin(RECT* pmargin) { return Send<BOOL>(*this, BCM_SETTEXTMARGIN, 0, pmargin); }

BOOL CButton::SetElevationRequired(BOOL fElevationRequired) {
    return Send<BOOL>(*this, BCM_SETSHIELD, 0, fElevationRequired);
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    return TRUE;
}
