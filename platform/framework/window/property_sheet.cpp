#include "afxdlgs.h"

#include "window/disabled_owner.h"
#include "window/frame_keys.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
END_MESSAGE_MAP()

namespace {

/// The sheet whose window the system is making for this thread: its callback tells nothing else.
thread_local CPropertySheet* t_made = nullptr;

class Making {
public:
    explicit Making(CPropertySheet* sheet) : m_before(std::exchange(t_made, sheet)) {}
    ~Making() { t_made = m_before; }
    Making(const Making&) = delete;
    Making& operator=(const Making&) = delete;

private:
    CPropertySheet* m_before;
};

constexpr int kStandardButtons[] = {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP};

constexpr DWORD kModelessStyle = DS_MODALFRAME | DS_CONTEXTHELP | WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE;

CString CaptionOf(UINT id) {
    CString caption;
    if (id == 0 || !caption.LoadString(id)) {
        caption.Empty();
    }
    return caption;
}

} // namespace

CPropertySheet::CPropertySheet() { Construct(L""); }

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) {
    Construct(nIDCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) {
    Construct(pszCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    Construct(nIDCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    Construct(pszCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheet::~CPropertySheet() { DestroyWindow(); }

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) {
    Construct(CaptionOf(nIDCaption), pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) {
    m_caption = pszCaption;
    m_pParentWnd = pParentWnd;
    m_psh = {};
    m_psh.dwSize = sizeof(m_psh);
    m_psh.nStartPage = iSelectPage;
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    Construct(CaptionOf(nIDCaption), pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    Construct(pszCaption, pParentWnd, iSelectPage);
    m_psh.hbmWatermark = hbmWatermark;
    m_psh.hplWatermark = hpalWatermark;
    m_psh.hbmHeader = hbmHeader;
    m_psh.dwFlags |= (hbmWatermark != nullptr ? PSH_USEHBMWATERMARK | PSH_WATERMARK : 0u) |
                     (hpalWatermark != nullptr ? PSH_USEHPLWATERMARK : 0u) |
                     (hbmHeader != nullptr ? PSH_USEHBMHEADER | PSH_HEADER : 0u);
}

// ---- the window

// Its object takes the window over while the system makes it: the pages that come after it find their sheet.
int CALLBACK CPropertySheet::SheetProc(HWND window, UINT message, LPARAM lParam) noexcept {
    if (t_made == nullptr) {
        return 0;
    }
    if (message == PSCB_PRECREATE) {
        // Of the form with more fields both styles stand behind version, signature and help id.
        auto* const plain = reinterpret_cast<DLGTEMPLATE*>(lParam);
        auto* const words = reinterpret_cast<WORD*>(lParam);
        const bool isExtended = words[0] == 1 && words[1] == 0xFFFF;
        constexpr std::size_t kExtendedStyleField = 2;
        auto* const fields = reinterpret_cast<DWORD*>(lParam);
        DWORD& exStyle = isExtended ? fields[kExtendedStyleField] : plain->dwExtendedStyle;
        DWORD& style = isExtended ? fields[kExtendedStyleField + 1] : plain->style;
        if (t_made->m_style != 0) {
            style = (style & DS_SETFONT) | (t_made->m_style & ~static_cast<DWORD>(WS_VISIBLE));
        }
        // The system asks the process alone for windows without an owner.
        DWORD layout = 0;
        if (::GetProcessDefaultLayout(&layout) && (layout & LAYOUT_RTL) != 0) {
            exStyle |= WS_EX_LAYOUTRTL;
        }
    } else if (message == PSCB_INITIALIZED && t_made->m_hWnd == nullptr) {
        t_made->SubclassWindow(window);
    }
    return 0;
}

bool CPropertySheet::Make(CWnd* owner, DWORD style, DWORD exStyle) {
    std::vector<HPROPSHEETPAGE> handles;
    for (CPropertyPage* const page : m_pages) {
        if (const HPROPSHEETPAGE handle = page->MakeHandle()) {
            handles.push_back(handle);
        }
    }
    if (handles.empty() || handles.size() != m_pages.size()) {
        std::ranges::for_each(handles, ::DestroyPropertySheetPage);
        return false;
    }
    m_style = style;
    PROPSHEETHEADER header = m_psh;
    header.dwFlags |= PSH_MODELESS | PSH_USECALLBACK;
    header.hwndParent = owner->GetSafeHwnd();
    header.hInstance = AfxGetInstanceHandle();
    header.pszCaption = m_caption;
    header.nPages = static_cast<UINT>(handles.size());
    header.phpage = handles.data();
    header.pfnCallback = &CPropertySheet::SheetProc;
    header.nStartPage = std::min(header.nStartPage, header.nPages - 1);
    INT_PTR made = 0;
    {
        const Making making(this);
        made = ::PropertySheetW(&header);
    }
    if (made == 0 || made == -1 || m_hWnd == nullptr) {
        return false;
    }
    if (exStyle != 0) {
        ModifyStyleEx(0, exStyle);
    }
    if (CTabCtrl* const tabs = GetTabControl(); tabs != nullptr && !m_bStacked) {
        tabs->ModifyStyle(TCS_MULTILINE, TCS_SINGLELINE);
    }
    return true;
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) {
    const DWORD style = dwStyle == static_cast<DWORD>(-1) ? kModelessStyle : dwStyle;
    if (!Make(pParentWnd, style, dwExStyle)) {
        return FALSE;
    }
    CutButtons();
    const HWND window = m_hWnd;
    OnInitDialog();
    if (::IsWindow(window) && (style & WS_VISIBLE) != 0) {
        ::ShowWindow(window, SW_SHOW);
    }
    return ::IsWindow(window);
}

// The system has made room for them: the window ends below the tabs as far as they are from its side.
void CPropertySheet::CutButtons() {
    for (const int id : kStandardButtons) {
        if (const HWND button = ::GetDlgItem(m_hWnd, id)) {
            ::ShowWindow(button, SW_HIDE);
            ::EnableWindow(button, FALSE);
        }
    }
    CRect tabs(0, 0, 0, 0);
    CRect client;
    CRect window;
    if (const CTabCtrl* const control = GetTabControl()) {
        control->GetWindowRect(&tabs);
        ScreenToClient(&tabs);
    }
    GetClientRect(&client);
    GetWindowRect(&window);
    const int surplus = client.bottom - (tabs.bottom + tabs.left);
    if (!tabs.IsRectEmpty() && surplus > 0) {
        SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - surplus,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

BOOL CPropertySheet::OnInitDialog() { return TRUE; }

INT_PTR CPropertySheet::DoModal() {
    fx::DisabledOwner owner(m_pParentWnd);
    m_nModalResult = -1;
    m_isModal = true;
    const auto end = [&] {
        owner.Enable(m_hWnd);
        m_isModal = false;
        DestroyWindow();
    };
    try {
        if (Make(owner.Get(), 0, 0)) {
            RunModal();
        }
    } catch (...) {
        end();
        throw;
    }
    end();
    return m_nModalResult;
}

void CPropertySheet::RunModal() {
    const HWND window = m_hWnd;
    m_ending = IDCANCEL;
    m_nModalResult = IDCANCEL;
    OnInitDialog();
    if (!::IsWindow(window) || !m_isModal) {
        return;
    }
    ShowWindow(SW_SHOW);
    const int result = RunModalLoop();
    m_nModalResult = result > 0 ? result : m_ending;
}

// The system has closed the sheet when it has no page in front any more; the window waits to be destroyed.
BOOL CPropertySheet::ContinueModal() {
    return CWnd::ContinueModal() && ::SendMessageW(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0) != 0;
}

void CPropertySheet::EndDialog(int nEndID) {
    if (!m_isModal) {
        DestroyWindow();
        return;
    }
    m_ending = nEndID;
    if (m_isInModalLoop) {
        EndModalLoop(nEndID);
    } else {
        m_isModal = false; // the loop never begins
        m_nModalResult = nEndID;
    }
}

void CPropertySheet::NoteEnding(UINT message, WPARAM wParam) {
    struct Press {
        UINT message;
        UINT value;
        int answer;
    };
    static constexpr Press kPresses[] = {
        {WM_COMMAND, IDOK, IDOK},
        {WM_COMMAND, IDCANCEL, IDCANCEL},
        {WM_COMMAND, ID_WIZFINISH, ID_WIZFINISH},
        {PSM_PRESSBUTTON, PSBTN_OK, IDOK},
        {PSM_PRESSBUTTON, PSBTN_CANCEL, IDCANCEL},
        {PSM_PRESSBUTTON, PSBTN_FINISH, ID_WIZFINISH},
    };
    const UINT value = LOWORD(wParam);
    for (const Press& press : kPresses) {
        if (press.message == message && press.value == value) {
            m_ending = press.answer;
        }
    }
}

LRESULT CPropertySheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    NoteEnding(message, wParam);
    return CWnd::WindowProc(message, wParam, lParam);
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    return fx::TranslateDialogInput(m_hWnd, *pMsg, [](HWND sheet, MSG* message) -> BOOL {
        return PropSheet_IsDialogMessage(sheet, message) ? TRUE : FALSE;
    });
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    // As in a dialog: only the program's commands go on.
    constexpr UINT firstProgramCommand = 0x8000;
    constexpr UINT firstSystemCommand = 0xF000;
    const bool isCommand = nCode == CN_COMMAND || nCode == CN_UPDATE_COMMAND_UI;
    if (!isCommand || nID < firstProgramCommand || nID >= firstSystemCommand) {
        return FALSE;
    }
    CWnd* const owner = GetParent();
    if (owner != nullptr && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
