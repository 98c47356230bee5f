#include "afxdialogex.h"

IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
ON_WM_SIZE()
END_MESSAGE_MAP()

CDialogEx::CDialogEx() = default;

CDialogEx::CDialogEx(UINT nIDTemplate, CWnd* pParent) : CDialog(nIDTemplate, pParent) {}

CDialogEx::CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd) : CDialog(lpszTemplateName, pParentWnd) {}

CDialogEx::~CDialogEx() {
    DestroyWindow();
    ReleaseBitmap();
    if (m_brush) {
        ::DeleteObject(m_brush);
    }
}

void CDialogEx::ReleaseBitmap() {
    if (m_bitmap && m_isBitmapOwned) {
        ::DeleteObject(m_bitmap);
    }
    m_bitmap = nullptr;
    m_isBitmapOwned = false;
}

void CDialogEx::SetBackgroundColor(COLORREF color, BOOL bRepaint) {
    if (m_brush) {
        ::DeleteObject(m_brush);
        m_brush = nullptr;
    }
    m_color = color;
    if (color != static_cast<COLORREF>(-1)) {
        m_brush = ::CreateSolidBrush(color);
    }
    if (bRepaint && m_hWnd) {
        Invalidate();
        UpdateWindow();
    }
}

void CDialogEx::SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location, BOOL bAutoDestroy, BOOL bRepaint) {
    ReleaseBitmap();
    m_bitmap = hBitmap;
    m_isBitmapOwned = bAutoDestroy != FALSE;
    m_location = location;
    if (bRepaint && m_hWnd) {
        Invalidate();
        UpdateWindow();
    }
}

BOOL CDialogEx::SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location, BOOL bRepaint) {
    HBITMAP bitmap = nullptr;
    if (uiBmpResId != 0) {
        const LPCTSTR resource = MAKEINTRESOURCE(uiBmpResId);
        bitmap = ::LoadBitmapW(AfxFindResourceHandle(resource, RT_BITMAP), resource);
        if (!bitmap) {
            return FALSE;
        }
    }
    SetBackgroundImage(bitmap, location, TRUE, bRepaint);
    return TRUE;
}

BOOL CDialogEx::OnEraseBkgnd(CDC* pDC) {
    if (!m_brush && !m_bitmap) {
        return CDialog::OnEraseBkgnd(pDC);
    }
    CRect client;
    GetClientRect(&client);
    ::FillRect(pDC->m_hDC, &client, m_brush ? m_brush : ::GetSysColorBrush(COLOR_3DFACE));
    BITMAP bitmap{};
    if (!m_bitmap || !::GetObjectW(m_bitmap, sizeof bitmap, &bitmap)) {
        return TRUE;
    }
    const HDC source = ::CreateCompatibleDC(pDC->m_hDC);
    const HGDIOBJ former = ::SelectObject(source, m_bitmap);
    const int right = client.right - bitmap.bmWidth;
    const int bottom = client.bottom - bitmap.bmHeight;
    const bool isRight = m_location == BACKGR_TOPRIGHT || m_location == BACKGR_BOTTOMRIGHT;
    const bool isBottom = m_location == BACKGR_BOTTOMLEFT || m_location == BACKGR_BOTTOMRIGHT;
    const int endX = m_location == BACKGR_TILE ? client.right : 1;
    const int endY = m_location == BACKGR_TILE ? client.bottom : 1;
    for (int y = 0; y < endY; y += bitmap.bmHeight) {
        for (int x = 0; x < endX; x += bitmap.bmWidth) {
            ::BitBlt(pDC->m_hDC, isRight ? right : x, isBottom ? bottom : y, bitmap.bmWidth, bitmap.bmHeight, source, 0,
                     0, SRCCOPY);
        }
    }
    ::SelectObject(source, former);
    ::DeleteDC(source);
    return TRUE;
}

HBRUSH CDialogEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    if (m_brush && (nCtlColor == CTLCOLOR_STATIC || nCtlColor == CTLCOLOR_DLG)) {
        pDC->SetBkMode(TRANSPARENT);
        return m_brush;
    }
    return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
}

void CDialogEx::OnSize(UINT nType, int cx, int cy) {
    CDialog::OnSize(nType, cx, cy);
    const bool movesWithSize = m_bitmap && m_location != BACKGR_TILE && m_location != BACKGR_TOPLEFT;
    if (movesWithSize) {
        Invalidate();
    }
}
