#include "afxwin.h"
#include "fx/system_dialogs.h"

IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd) {
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.lpLogFont = &m_lf;
    m_cf.lpszStyle = m_styleName;
    m_cf.Flags = dwFlags;
    if (lplfInitial != nullptr) {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter != nullptr) {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal() {
    m_cf.hwndOwner = CWnd::GetSafeOwner(m_pParentWnd, nullptr)->GetSafeHwnd();
    const LOGFONT before = m_lf;
    const BOOL isChosen = ::ChooseFontW(&m_cf);
    m_cf.hwndOwner = nullptr;
    if (!isChosen) {
        m_lf = before; // some systems write what was shown at last
    }
    return isChosen ? IDOK : IDCANCEL;
}
