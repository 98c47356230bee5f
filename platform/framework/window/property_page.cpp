#include "afxdlgs.h"
#include "fx/handle_bits.h"

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

BEGIN_MESSAGE_MAP(CPropertyPage, CDialog)
END_MESSAGE_MAP()

/// What the sheet tells its pages, and what it wants to hear.
struct PageNotification {
    UINT code;
    LRESULT (*tell)(CPropertyPage& page);

    static const PageNotification* Find(UINT code);
};

namespace {

LRESULT Activate(CPropertyPage& page) { return page.OnSetActive() ? 0 : -1; }
LRESULT Deactivate(CPropertyPage& page) { return page.OnKillActive() ? FALSE : TRUE; }
LRESULT Apply(CPropertyPage& page) { return page.OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE; }
LRESULT QueryCancel(CPropertyPage& page) { return page.OnQueryCancel() ? FALSE : TRUE; }
LRESULT Finish(CPropertyPage& page) { return page.OnWizardFinish() ? FALSE : TRUE; }
LRESULT Back(CPropertyPage& page) { return page.OnWizardBack(); }
LRESULT Next(CPropertyPage& page) { return page.OnWizardNext(); }
LRESULT Reset(CPropertyPage& page) {
    page.OnReset();
    return 0;
}

constexpr PageNotification kNotifications[] = {
    {PSN_SETACTIVE, Activate}, {PSN_KILLACTIVE, Deactivate}, {PSN_APPLY, Apply},  {PSN_QUERYCANCEL, QueryCancel},
    {PSN_WIZFINISH, Finish},   {PSN_WIZBACK, Back},          {PSN_WIZNEXT, Next}, {PSN_RESET, Reset},
};

LPCTSTR NameOf(UINT id) { return MAKEINTRESOURCE(id); }

/// Empty where there is no text.
CString TextOf(UINT id) {
    CString text;
    if (id != 0 && !text.LoadString(id)) {
        text.Empty();
    }
    return text;
}

/// The flag goes with the text.
void PutText(PROPSHEETPAGE& page, LPCTSTR PROPSHEETPAGE::*field, DWORD flag, const CString& text) {
    page.*field = text;
    page.dwFlags = text.IsEmpty() ? page.dwFlags & ~flag : page.dwFlags | flag;
}

} // namespace

const PageNotification* PageNotification::Find(UINT code) {
    const auto* const found =
        std::ranges::find_if(kNotifications, [code](const PageNotification& row) { return row.code == code; });
    return found != std::end(kNotifications) ? found : nullptr;
}

CPropertyPage::CPropertyPage() { Construct(0u); }

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize)
    : CPropertyPage(NameOf(nIDTemplate), nIDCaption, dwSize) {}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, [[maybe_unused]] DWORD dwSize) {
    ASSERT(dwSize == sizeof(PROPSHEETPAGE));
    Construct(lpszTemplateName, nIDCaption);
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle,
                             DWORD dwSize)
    : CPropertyPage(NameOf(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, dwSize) {}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle,
                             [[maybe_unused]] DWORD dwSize) {
    ASSERT(dwSize == sizeof(PROPSHEETPAGE));
    Construct(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

CPropertyPage::~CPropertyPage() { DestroyWindow(); }

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption) { Construct(NameOf(nIDTemplate), nIDCaption, 0u); }

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption) {
    Construct(lpszTemplateName, nIDCaption, 0u);
}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle) {
    Construct(NameOf(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle) {
    m_lpszTemplateName = lpszTemplateName;
    m_psp = {};
    m_psp.dwSize = sizeof(m_psp);
    m_psp.pszTemplate = lpszTemplateName;
    TakeTexts(nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPage::TakeTexts(UINT caption, UINT headerTitle, UINT headerSubTitle) {
    m_caption = TextOf(caption);
    m_headerTitle = TextOf(headerTitle);
    m_headerSubTitle = TextOf(headerSubTitle);
    PutText(m_psp, &PROPSHEETPAGE::pszTitle, PSP_USETITLE, m_caption);
    PutText(m_psp, &PROPSHEETPAGE::pszHeaderTitle, PSP_USEHEADERTITLE, m_headerTitle);
    PutText(m_psp, &PROPSHEETPAGE::pszHeaderSubTitle, PSP_USEHEADERSUBTITLE, m_headerSubTitle);
}

HPROPSHEETPAGE CPropertyPage::MakeHandle() {
    PROPSHEETPAGE page = m_psp;
    page.pfnDlgProc = &CPropertyPage::PageProc;
    page.lParam = reinterpret_cast<LPARAM>(this);
    const bool isInMemory = (page.dwFlags & PSP_DLGINDIRECT) != 0;
    page.hInstance = isInMemory ? AfxGetInstanceHandle() : AfxFindResourceHandle(page.pszTemplate, RT_DIALOG);
    if (!isInMemory && ::FindResourceW(page.hInstance, page.pszTemplate, RT_DIALOG) == nullptr) {
        return nullptr; // the system would say so only when the page is shown
    }
    return ::CreatePropertySheetPageW(&page);
}

// The object takes the window over as its dialog begins; what the system sent before needs no handler.
INT_PTR CALLBACK CPropertyPage::PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_INITDIALOG) {
        return FALSE;
    }
    auto* const page = reinterpret_cast<CPropertyPage*>(reinterpret_cast<const PROPSHEETPAGE*>(lParam)->lParam);
    if (page->m_hWnd != nullptr || !page->SubclassWindow(window)) {
        return FALSE; // an object can be in one sheet only
    }
    return ::SendMessageW(window, WM_INITDIALOG, wParam, lParam);
}

namespace {

LRESULT Tell(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND sheet = page != nullptr ? ::GetParent(page) : nullptr;
    return sheet != nullptr ? ::SendMessageW(sheet, message, wParam, lParam) : 0;
}

} // namespace

void CPropertyPage::SetModified(BOOL bChanged) {
    Tell(m_hWnd, bChanged ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CPropertyPage::CancelToClose() { Tell(m_hWnd, PSM_CANCELTOCLOSE, 0, 0); }

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam) {
    return Tell(m_hWnd, PSM_QUERYSIBLINGS, wParam, lParam);
}

BOOL CPropertyPage::OnSetActive() { return TRUE; }
BOOL CPropertyPage::OnKillActive() { return UpdateData(TRUE); }
BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}
void CPropertyPage::OnOK() { SetModified(FALSE); }
void CPropertyPage::OnReset() { OnCancel(); }
void CPropertyPage::OnCancel() {}
BOOL CPropertyPage::OnQueryCancel() { return TRUE; }
LRESULT CPropertyPage::OnWizardBack() { return 0; }
LRESULT CPropertyPage::OnWizardNext() { return 0; }
BOOL CPropertyPage::OnWizardFinish() { return UpdateData(TRUE); }

// The sheet moves the focus among its pages' controls and its own.
BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg) { return CWnd::PreTranslateMessage(pMsg); }

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    const PageNotification* const known =
        fx::IsSameHandle(header.hwndFrom, ::GetParent(m_hWnd)) ? PageNotification::Find(header.code) : nullptr;
    if (known == nullptr) {
        return CDialog::OnNotify(wParam, lParam, pResult);
    }
    *pResult = known->tell(*this);
    return TRUE;
}
