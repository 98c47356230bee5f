#include "afxglobals.h"

#include "fx/geometry.h"

#include <algorithm>
#include <cmath>

AFX_GLOBAL_DATA afxGlobalData;

namespace {

void Recreate(CBrush& brush, COLORREF color) {
    brush.DeleteObject();
    brush.CreateSolidBrush(color);
}

void Recreate(CPen& pen, COLORREF color) {
    pen.DeleteObject();
    pen.CreatePen(PS_SOLID, 1, color);
}

} // namespace

AFX_GLOBAL_DATA::AFX_GLOBAL_DATA() { Resume(); }

AFX_GLOBAL_DATA::~AFX_GLOBAL_DATA() { CleanUp(); }

BOOL AFX_GLOBAL_DATA::Resume() {
    m_hcurHand = LoadCursor(nullptr, IDC_HAND);
    m_hcurStretch = LoadCursor(nullptr, IDC_SIZEWE);
    m_hcurStretchVert = LoadCursor(nullptr, IDC_SIZENS);
    m_hcurSizeAll = LoadCursor(nullptr, IDC_SIZEALL);
    OnSettingChange();
    return TRUE;
}

void AFX_GLOBAL_DATA::CleanUp() {
    for (CBrush* brush :
         {&brBtnFace, &brHilite, &brLight, &brBlack, &brActiveCaption, &brInactiveCaption, &brWindow, &brBarFace}) {
        brush->DeleteObject();
    }
    for (CPen* pen : {&penHilite, &penBarFace, &penBarShadow}) {
        pen->DeleteObject();
    }
    for (CFont* font : {&fontRegular, &fontTooltip, &fontBold, &fontDefaultGUIBold, &fontUnderline, &fontVert,
                        &fontVertCaption, &fontSmall}) {
        font->DeleteObject();
    }
}

void AFX_GLOBAL_DATA::OnSettingChange() {
    m_sizeSmallIcon = CSize(GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON));
    bIsRemoteSession = GetSystemMetrics(SM_REMOTESESSION) != 0;
    bIsWindows7 = TRUE;
    SystemParametersInfoW(SPI_GETMENUANIMATION, 0, &m_bMenuAnimation, 0);
    SystemParametersInfoW(SPI_GETMENUFADE, 0, &m_bMenuFadeEffect, 0);
    m_nDragFrameThicknessFloat = GetSystemMetrics(SM_CXSIZEFRAME);
    UpdateSysColors();
    UpdateFonts();
}

void AFX_GLOBAL_DATA::ReadHighContrast() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof(contrast);
    m_bIsBlackHighContrast = m_bIsWhiteHighContrast = FALSE;
    if (!SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) ||
        (contrast.dwFlags & HCF_HIGHCONTRASTON) == 0) {
        return;
    }
    const COLORREF face = GetSysColor(COLOR_3DFACE);
    const BOOL isDark = GetRValue(face) + GetGValue(face) + GetBValue(face) < 3 * 128;
    m_bIsBlackHighContrast = isDark;
    m_bIsWhiteHighContrast = !isDark;
}

void AFX_GLOBAL_DATA::UpdateSysColors() {
    const struct {
        COLORREF AFX_GLOBAL_DATA::*color;
        int index;
    } table[] = {
        {&AFX_GLOBAL_DATA::clrBtnFace, COLOR_3DFACE},
        {&AFX_GLOBAL_DATA::clrBtnShadow, COLOR_3DSHADOW},
        {&AFX_GLOBAL_DATA::clrBtnHilite, COLOR_3DHIGHLIGHT},
        {&AFX_GLOBAL_DATA::clrBtnDkShadow, COLOR_3DDKSHADOW},
        {&AFX_GLOBAL_DATA::clrBtnLight, COLOR_3DLIGHT},
        {&AFX_GLOBAL_DATA::clrBtnText, COLOR_BTNTEXT},
        {&AFX_GLOBAL_DATA::clrBarFace, COLOR_3DFACE},
        {&AFX_GLOBAL_DATA::clrBarShadow, COLOR_3DSHADOW},
        {&AFX_GLOBAL_DATA::clrBarHilite, COLOR_3DHIGHLIGHT},
        {&AFX_GLOBAL_DATA::clrBarDkShadow, COLOR_3DDKSHADOW},
        {&AFX_GLOBAL_DATA::clrBarLight, COLOR_3DLIGHT},
        {&AFX_GLOBAL_DATA::clrBarText, COLOR_BTNTEXT},
        {&AFX_GLOBAL_DATA::clrBarWindow, COLOR_WINDOW},
        {&AFX_GLOBAL_DATA::clrGrayedText, COLOR_GRAYTEXT},
        {&AFX_GLOBAL_DATA::clrWindow, COLOR_WINDOW},
        {&AFX_GLOBAL_DATA::clrWindowText, COLOR_WINDOWTEXT},
        {&AFX_GLOBAL_DATA::clrWindowFrame, COLOR_WINDOWFRAME},
        {&AFX_GLOBAL_DATA::clrCaptionText, COLOR_CAPTIONTEXT},
        {&AFX_GLOBAL_DATA::clrMenuText, COLOR_MENUTEXT},
        {&AFX_GLOBAL_DATA::clrHilite, COLOR_HIGHLIGHT},
        {&AFX_GLOBAL_DATA::clrTextHilite, COLOR_HIGHLIGHTTEXT},
        {&AFX_GLOBAL_DATA::clrHotText, COLOR_HOTLIGHT},
        {&AFX_GLOBAL_DATA::clrHotLinkText, COLOR_HOTLIGHT},
        {&AFX_GLOBAL_DATA::clrActiveCaption, COLOR_ACTIVECAPTION},
        {&AFX_GLOBAL_DATA::clrInactiveCaption, COLOR_INACTIVECAPTION},
        {&AFX_GLOBAL_DATA::clrInactiveCaptionText, COLOR_INACTIVECAPTIONTEXT},
        {&AFX_GLOBAL_DATA::clrActiveCaptionGradient, COLOR_GRADIENTACTIVECAPTION},
        {&AFX_GLOBAL_DATA::clrInactiveCaptionGradient, COLOR_GRADIENTINACTIVECAPTION},
        {&AFX_GLOBAL_DATA::clrActiveBorder, COLOR_ACTIVEBORDER},
        {&AFX_GLOBAL_DATA::clrInactiveBorder, COLOR_INACTIVEBORDER},
        {&AFX_GLOBAL_DATA::clrPrompt, COLOR_WINDOWTEXT},
    };
    for (const auto& row : table) {
        this->*row.color = GetSysColor(row.index);
    }

    const HDC screen = GetDC(nullptr);
    m_nBitsPerPixel = GetDeviceCaps(screen, BITSPIXEL) * GetDeviceCaps(screen, PLANES);
    ReleaseDC(nullptr, screen);
    ReadHighContrast();

    Recreate(brBtnFace, clrBtnFace);
    Recreate(brHilite, clrHilite);
    Recreate(brLight, clrBtnHilite);
    Recreate(brBlack, RGB(0, 0, 0));
    Recreate(brActiveCaption, clrActiveCaption);
    Recreate(brInactiveCaption, clrInactiveCaption);
    Recreate(brWindow, clrWindow);
    Recreate(brBarFace, clrBarFace);
    Recreate(penHilite, clrBtnHilite);
    Recreate(penBarFace, clrBarFace);
    Recreate(penBarShadow, clrBarShadow);
}

COLORREF AFX_GLOBAL_DATA::GetColor(int nColor) { return GetSysColor(nColor); }

HCURSOR AFX_GLOBAL_DATA::GetHandCursor() { return m_hcurHand; }

CString AFX_GLOBAL_DATA::RegisterWindowClass(LPCTSTR lpszClassNamePrefix) {
    const HINSTANCE instance = AfxGetInstanceHandle();
    CString name;
    name.Format(L"%s:%p", lpszClassNamePrefix, static_cast<void*>(instance));
    WNDCLASSW known{};
    if (GetClassInfoW(instance, name, &known)) {
        return name;
    }
    WNDCLASSW fresh{};
    fresh.style = CS_DBLCLKS;
    fresh.lpfnWndProc = DefWindowProcW;
    fresh.hInstance = instance;
    fresh.hCursor = LoadCursor(nullptr, IDC_ARROW);
    fresh.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
    fresh.lpszClassName = name;
    return RegisterClassW(&fresh) != 0 ? name : CString();
}

BOOL AFX_GLOBAL_DATA::SetLayeredAttrib(HWND hwnd, COLORREF crKey, BYTE bAlpha, DWORD dwFlags) {
    return SetLayeredWindowAttributes(hwnd, crKey, bAlpha, dwFlags);
}

BOOL AFX_GLOBAL_DATA::DrawParentBackground(CWnd* pWnd, CDC* pDC, LPRECT lpRect) {
    const HWND window = pWnd != nullptr ? pWnd->m_hWnd : nullptr, parent = ::GetParent(window);
    if (parent == nullptr) {
        return FALSE;
    }
    const int saved = ::SaveDC(*pDC);
    if (lpRect != nullptr) {
        ::IntersectClipRect(*pDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    POINT origin{};
    MapWindowPoints(window, parent, &origin, 1);
    OffsetViewportOrgEx(*pDC, -origin.x, -origin.y, nullptr);
    const LRESULT erased = ::SendMessageW(parent, WM_ERASEBKGND, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), 0);
    ::RestoreDC(*pDC, saved);
    return erased != 0;
}

int AFX_GLOBAL_DATA::GetShellAutohideBars() {
    int edges = 0;
    for (const UINT edge : {ABE_LEFT, ABE_TOP, ABE_RIGHT, ABE_BOTTOM}) {
        APPBARDATA bar{};
        bar.cbSize = sizeof(bar);
        bar.uEdge = edge;
        if (SHAppBarMessage(ABM_GETAUTOHIDEBAR, &bar) != 0) {
            edges |= 1 << edge;
        }
    }
    return edges;
}

BOOL AFX_GLOBAL_DATA::ExcludeTag(CString& strBuffer, LPCTSTR lpszTag, CString& strTag, BOOL bIsCharsList) {
    const CString opening = CString(L"<") + lpszTag + L">", closing = CString(L"</") + lpszTag + L">";
    const int from = strBuffer.Find(opening);
    if (from < 0) {
        return FALSE;
    }
    const int contents = from + opening.GetLength();
    const int to = strBuffer.Find(closing, contents);
    if (to < 0) {
        return FALSE;
    }
    strTag = strBuffer.Mid(contents, to - contents);
    if (bIsCharsList) {
        strTag.Replace(L"\\t", L"\t");
        strTag.Replace(L"\\n", L"\n");
        strTag.Replace(L"\\r", L"\r");
    }
    strBuffer = strBuffer.Left(from) + strBuffer.Mid(to + closing.GetLength());
    return TRUE;
}

void AFX_GLOBAL_DATA::EnableRibbonImageScale(BOOL bEnable) {
    m_bRibbonImageScaleEnabled = bEnable;
    UpdateFonts();
}

BOOL AFX_GLOBAL_DATA::SetRibbonImageScale(double dblScale) {
    if (dblScale != 0.0 && !(dblScale >= 1.0 && dblScale <= 4.0)) {
        return FALSE;
    }
    m_dblScaleSetByHost = dblScale;
    UpdateFonts();
    return TRUE;
}

int AFX_GLOBAL_DATA::ScalePixels(int n) const { return fx::Scaled(n, GetRibbonImageScale()); }

double AFX_GLOBAL_DATA::ScreenScale() const {
    if (m_nScreenDpi != 0) {
        return std::clamp(m_nScreenDpi / 96.0, 1.0, 4.0);
    }
    const HDC screen = GetDC(nullptr);
    const double scale = GetDeviceCaps(screen, LOGPIXELSX) / 96.0;
    ReleaseDC(nullptr, screen);
    return std::clamp(scale, 1.0, 4.0);
}
