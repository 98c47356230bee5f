// The pages of a property sheet, its title and its buttons.
#include "afxdlgs.h"

#include <algorithm>

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    ASSERT(pPage != nullptr);
    m_pages.push_back(pPage);
    if (m_hWnd == nullptr) {
        return;
    }
    const HPROPSHEETPAGE handle = pPage->MakeHandle();
    if (handle == nullptr || !SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle))) {
        m_pages.pop_back(); // the system shows as many as before
        AfxThrowMemoryException();
    }
}

void CPropertySheet::RemovePage(CPropertyPage* pPage) { RemovePage(GetPageIndex(pPage)); }

void CPropertySheet::RemovePage(int nPage) {
    if (GetPage(nPage) == nullptr) {
        return;
    }
    m_pages.erase(m_pages.begin() + nPage);
    if (m_hWnd != nullptr) {
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(nPage), 0);
    }
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const {
    return nPage >= 0 && nPage < GetPageCount() ? m_pages[static_cast<std::size_t>(nPage)] : nullptr;
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) {
    const auto found = std::ranges::find(m_pages, pPage);
    return found != m_pages.end() ? static_cast<int>(found - m_pages.begin()) : -1;
}

int CPropertySheet::GetActiveIndex() const {
    if (m_hWnd == nullptr) {
        return static_cast<int>(m_psh.nStartPage);
    }
    const auto front = reinterpret_cast<HWND>(::SendMessageW(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0));
    const auto isInFront = [front](const CPropertyPage* page) { return front != nullptr && page->m_hWnd == front; };
    const auto found = std::ranges::find_if(m_pages, isInFront);
    return found != m_pages.end() ? static_cast<int>(found - m_pages.begin()) : -1;
}

CPropertyPage* CPropertySheet::GetActivePage() const { return GetPage(GetActiveIndex()); }

BOOL CPropertySheet::SetActivePage(int nPage) {
    if (GetPage(nPage) == nullptr) {
        return FALSE;
    }
    if (m_hWnd == nullptr) {
        m_psh.nStartPage = static_cast<UINT>(nPage);
        return TRUE;
    }
    return SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(nPage), 0) != 0 && GetActiveIndex() == nPage;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage) { return SetActivePage(GetPageIndex(pPage)); }

CTabCtrl* CPropertySheet::GetTabControl() const {
    const auto tabs =
        m_hWnd != nullptr ? reinterpret_cast<HWND>(::SendMessageW(m_hWnd, PSM_GETTABCONTROL, 0, 0)) : nullptr;
    return tabs != nullptr ? static_cast<CTabCtrl*>(CWnd::FromHandle(tabs)) : nullptr;
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle) {
    m_caption = lpszText;
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPTITLE)) | nStyle;
    if (m_hWnd != nullptr) {
        SendMessage(PSM_SETTITLEW, nStyle, reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(m_caption)));
    }
}

void CPropertySheet::PressButton(int nButton) { SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(nButton), 0); }

void CPropertySheet::MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }

void CPropertySheet::SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; }

// Posted: a page says it in OnSetActive, after which the system sets the buttons itself.
void CPropertySheet::SetWizardButtons(DWORD dwFlags) {
    ::PostMessageW(m_hWnd, PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags));
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText) {
    ::SendMessageW(m_hWnd, PSM_SETFINISHTEXTW, 0, reinterpret_cast<LPARAM>(lpszText));
}
