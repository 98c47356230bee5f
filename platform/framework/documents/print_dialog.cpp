#include "fx/print.h"

#include "afxwin.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)

namespace {

/// A block of the system's movable memory, while it is read.
template <class T>
class LockedBlock {
public:
    explicit LockedBlock(HGLOBAL block)
        : m_block(block), m_data(block != nullptr ? static_cast<T*>(::GlobalLock(block)) : nullptr) {}
    ~LockedBlock() {
        if (m_data != nullptr) {
            ::GlobalUnlock(m_block);
        }
    }
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;

    explicit operator bool() const { return m_data != nullptr; }
    T* operator->() const { return m_data; }
    T* Get() const { return m_data; }

private:
    HGLOBAL m_block;
    T* m_data;
};

constexpr UINT kNoLastPage = 0xFFFF;

} // namespace

CCommonDialog::CCommonDialog(CWnd* pParentWnd) { m_pParentWnd = pParentWnd; }

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd) {
    m_pd.lStructSize = sizeof(m_pd);
    m_pd.Flags = bPrintSetupOnly ? dwFlags | PD_PRINTSETUP : (dwFlags & ~static_cast<DWORD>(PD_RETURNIC)) | PD_RETURNDC;
}

INT_PTR CPrintDialog::DoModal() {
    m_pd.hwndOwner = CWnd::GetSafeOwner(m_pParentWnd, nullptr)->GetSafeHwnd();
    const INT_PTR result = ::PrintDlgW(&m_pd) ? IDOK : IDCANCEL;
    m_pd.hwndOwner = nullptr;
    return result;
}

BOOL CPrintDialog::GetDefaults() {
    m_pd.Flags |= PD_RETURNDEFAULT;
    const BOOL isFound = ::PrintDlgW(&m_pd);
    m_pd.Flags &= ~static_cast<DWORD>(PD_RETURNDEFAULT);
    return isFound;
}

HDC CPrintDialog::CreatePrinterDC() {
    const LockedBlock<DEVMODE> settings(m_pd.hDevMode);
    const CString device = GetDeviceName();
    m_pd.hDC = device.IsEmpty() ? nullptr : ::CreateDCW(GetDriverName(), device, nullptr, settings.Get());
    return m_pd.hDC;
}

CString CPrintDialog::DeviceText(WORD DEVNAMES::*offset) const {
    const LockedBlock<DEVNAMES> names(m_pd.hDevNames);
    return names ? CString(reinterpret_cast<LPCTSTR>(names.Get()) + names.Get()->*offset) : CString();
}

CString CPrintDialog::GetDriverName() const { return DeviceText(&DEVNAMES::wDriverOffset); }
CString CPrintDialog::GetDeviceName() const { return DeviceText(&DEVNAMES::wDeviceOffset); }
CString CPrintDialog::GetPortName() const { return DeviceText(&DEVNAMES::wOutputOffset); }

LPDEVMODE CPrintDialog::GetDevMode() const {
    return m_pd.hDevMode != nullptr ? static_cast<LPDEVMODE>(::GlobalLock(m_pd.hDevMode)) : nullptr;
}

int CPrintDialog::GetCopies() const {
    const LockedBlock<DEVMODE> settings(m_pd.hDevMode);
    return (m_pd.Flags & PD_USEDEVMODECOPIES) != 0 && settings ? settings->dmCopies : m_pd.nCopies;
}

CPrintInfo::CPrintInfo() : m_pPD(new CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION)) {
    SetMinPage(1);
    SetMaxPage(kNoLastPage);
}

CPrintInfo::~CPrintInfo() {
    if (m_pPD->m_pd.hDC != nullptr) {
        ::DeleteDC(m_pPD->m_pd.hDC);
    }
    ::GlobalFree(m_pPD->m_pd.hDevMode);
    ::GlobalFree(m_pPD->m_pd.hDevNames);
    delete m_pPD;
}

void CPrintInfo::SetMinPage(UINT nMinPage) { m_pPD->m_pd.nMinPage = static_cast<WORD>(nMinPage); }
void CPrintInfo::SetMaxPage(UINT nMaxPage) { m_pPD->m_pd.nMaxPage = static_cast<WORD>(nMaxPage); }
UINT CPrintInfo::GetMinPage() const { return m_pPD->m_pd.nMinPage; }
UINT CPrintInfo::GetMaxPage() const { return m_pPD->m_pd.nMaxPage; }
UINT CPrintInfo::GetFromPage() const { return m_pPD->m_pd.nFromPage; }
UINT CPrintInfo::GetToPage() const { return m_pPD->m_pd.nToPage; }

// ---- the application's printer

BOOL CWinApp::GetPrinterDeviceDefaults(PRINTDLGW* pPrintDlg) {
    if (m_hDevNames == nullptr) {
        CPrintDialog system(TRUE);
        if (system.GetDefaults()) {
            SelectPrinter(system.m_pd.hDevNames, system.m_pd.hDevMode);
        }
    }
    pPrintDlg->hDevNames = m_hDevNames;
    pPrintDlg->hDevMode = m_hDevMode;
    return m_hDevNames != nullptr;
}

BOOL CWinApp::CreatePrinterDC(CDC& dc) {
    CPrintDialog printer(TRUE);
    return GetPrinterDeviceDefaults(&printer.m_pd) && dc.Attach(printer.CreatePrinterDC());
}

void CWinApp::OnFilePrintSetup() {
    CPrintDialog dialog(TRUE);
    dialog.m_pd.hDevNames = m_hDevNames;
    dialog.m_pd.hDevMode = m_hDevMode;
    dialog.DoModal();
    // It may have moved the blocks, left or not.
    SelectPrinter(dialog.m_pd.hDevNames, dialog.m_pd.hDevMode, FALSE);
}
