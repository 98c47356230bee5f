#include "afxwin.h"
#include "fx/system_dialogs.h"

#include <algorithm>
#include <string>
#include <typeinfo>
#include <utility>

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace {

constexpr std::size_t kLongestPath = 32768;

/// The one that the system is making for this thread: its hook is told of nothing else.
thread_local CFileDialog* t_made = nullptr;

LPCTSTR TextBehind(LPCTSTR text) { return text + std::char_traits<wchar_t>::length(text) + 1; }

} // namespace

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD, BOOL bVistaStyle)
    : CCommonDialog(pParentWnd),
      m_isOpening(bOpenFileDialog),
      m_needsHook(!bVistaStyle),
      m_extension(lpszDefExt),
      m_file(kLongestPath) {
    if (lpszFilter != nullptr) {
        m_filter.assign(lpszFilter, lpszFilter + std::char_traits<wchar_t>::length(lpszFilter));
        std::ranges::replace(m_filter, L'|', L'\0');
        m_filter.insert(m_filter.end(), 2, L'\0');
    }
    if (lpszFileName != nullptr) {
        lstrcpynW(m_file.data(), lpszFileName, static_cast<int>(m_file.size()));
    }
    m_ofn.lStructSize = sizeof(m_ofn);
    m_ofn.lpstrFile = m_file.data();
    m_ofn.nMaxFile = static_cast<DWORD>(m_file.size());
    m_ofn.lpstrFilter = m_filter.empty() ? nullptr : m_filter.data();
    m_ofn.lpstrDefExt = m_extension.IsEmpty() ? nullptr : m_extension.GetString();
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLESIZING;
    m_ofn.hInstance = AfxGetResourceHandle();
}

CFileDialog::~CFileDialog() = default;

INT_PTR CFileDialog::DoModal() {
    m_ofn.hwndOwner = CWnd::GetSafeOwner(m_pParentWnd, nullptr)->GetSafeHwnd();
    // Only a derived class can have an ear for what the dialog tells; with a hook the system shows its older form.
    if ((m_needsHook || typeid(*this) != typeid(CFileDialog)) && m_ofn.lpfnHook == nullptr) {
        m_ofn.Flags |= OFN_ENABLEHOOK;
        m_ofn.lpfnHook = &CFileDialog::Hook;
    }
    CFileDialog* const outer = std::exchange(t_made, this);
    const BOOL isChosen = m_isOpening ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
    t_made = outer;
    m_ofn.hwndOwner = nullptr;
    return isChosen ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CFileDialog::Hook(HWND window, UINT message, WPARAM, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG && t_made != nullptr) {
        CFileDialog* const dialog = std::exchange(t_made, nullptr);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(dialog));
        dialog->Attach(window);
        return 0;
    }
    auto* const dialog = reinterpret_cast<CFileDialog*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (dialog == nullptr) {
        return 0;
    }
    if (message == WM_DESTROY) {
        ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        dialog->Detach();
    } else if (message == WM_NOTIFY) {
        const LRESULT answer = dialog->OnNotice(*reinterpret_cast<const OFNOTIFY*>(lParam));
        ::SetWindowLongPtrW(window, DWLP_MSGRESULT, answer);
        return answer != 0 ? 1 : 0;
    }
    return 0;
}

LRESULT CFileDialog::OnNotice(const OFNOTIFY& notice) {
    switch (notice.hdr.code) {
    case CDN_INITDONE:
        OnInitDone();
        break;
    case CDN_SELCHANGE:
        OnFileNameChange();
        break;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        break;
    case CDN_TYPECHANGE:
        OnTypeChange();
        break;
    case CDN_SHAREVIOLATION:
        return static_cast<LRESULT>(OnShareViolation(notice.pszFile));
    case CDN_FILEOK:
        return OnFileNameOK() ? 1 : 0;
    default:
        break;
    }
    return 0;
}

BOOL CFileDialog::OnFileNameOK() { return FALSE; }
UINT CFileDialog::OnShareViolation(LPCTSTR) { return OFN_SHAREWARN; }
void CFileDialog::OnInitDone() {}
void CFileDialog::OnFileNameChange() {}
void CFileDialog::OnFolderChange() {}
void CFileDialog::OnTypeChange() {}

CString CFileDialog::AskDialog(UINT message) const {
    std::vector<wchar_t> text(kLongestPath);
    const LRESULT length = ::SendMessageW(::GetParent(m_hWnd), message, static_cast<WPARAM>(text.size()),
                                          reinterpret_cast<LPARAM>(text.data()));
    return length > 0 ? CString(text.data()) : CString();
}

CString CFileDialog::GetPathName() const {
    if (m_hWnd != nullptr) {
        return AskDialog(CDM_GETFILEPATH);
    }
    POSITION first = GetStartPosition();
    return first != nullptr ? GetNextPathName(first) : CString();
}

CString CFileDialog::GetFileName() const {
    const CString path = GetPathName();
    return path.Mid(std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/')) + 1);
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int point = name.ReverseFind(L'.');
    return point >= 0 ? name.Mid(point + 1) : CString();
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int point = name.ReverseFind(L'.');
    return point >= 0 ? name.Left(point) : name;
}

CString CFileDialog::GetFolderPath() const {
    if (m_hWnd != nullptr) {
        return AskDialog(CDM_GETFOLDERPATH);
    }
    const CString path = GetPathName();
    return path.Left(std::max(path.ReverseFind(L'\\'), 0));
}

// One name is a whole path; of several the folder comes first and the names without it behind, up to an empty one.
POSITION CFileDialog::GetStartPosition() const {
    return m_ofn.lpstrFile[0] != 0 ? reinterpret_cast<POSITION>(m_ofn.lpstrFile) : nullptr;
}

CString CFileDialog::GetNextPathName(POSITION& pos) const {
    const auto* text = reinterpret_cast<LPCTSTR>(pos);
    CString first = m_ofn.lpstrFile;
    const LPCTSTR names = TextBehind(m_ofn.lpstrFile);
    if ((m_ofn.Flags & OFN_ALLOWMULTISELECT) == 0 || *names == 0) {
        pos = nullptr;
        return first;
    }
    const LPCTSTR name = text == m_ofn.lpstrFile ? names : text;
    const LPCTSTR next = TextBehind(name);
    pos = *next != 0 ? reinterpret_cast<POSITION>(const_cast<LPTSTR>(next)) : nullptr;
    return first.Right(1) == L"\\" ? first + name : first + L"\\" + name;
}

void CFileDialog::SetControlText(int nID, LPCSTR lpsz) { SetControlText(nID, CString(lpsz).GetString()); }

void CFileDialog::SetControlText(int nID, const wchar_t* lpsz) {
    ::SendMessageW(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID), reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID) {
    ::SendMessageW(::GetParent(m_hWnd), CDM_HIDECONTROL, static_cast<WPARAM>(nID), 0);
}

void CFileDialog::SetDefExt(LPCSTR lpsz) {
    m_extension = CString(lpsz);
    ::SendMessageW(::GetParent(m_hWnd), CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(m_extension.GetString()));
}

void CFileDialog::SetTemplate(UINT nWin3ID, UINT nWin4ID) {
    SetTemplate(MAKEINTRESOURCE(nWin3ID), MAKEINTRESOURCE(nWin4ID));
}

// The first is for dialogs of systems that are long gone.
void CFileDialog::SetTemplate(LPCTSTR, LPCTSTR lpWin4ID) {
    m_ofn.lpTemplateName = lpWin4ID;
    m_ofn.Flags |= OFN_ENABLETEMPLATE;
}
