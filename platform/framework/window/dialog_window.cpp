#include "afxwin.h"
#include "window/disabled_owner.h"
#include "window/frame_keys.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
END_MESSAGE_MAP()

namespace {

/// Everything goes through the message map; the system only wants to hear that there is a procedure.
INT_PTR CALLBACK EmptyDialogProc(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

/// Whether the dialog's place is left open: position 0, 0 and no style that says where.
bool HasNoPlace(const DLGTEMPLATE& dialogTemplate) {
    // Of the form with more fields: version 1, signature, help id, extended style, style, count, position, size.
    struct ExtendedHead {
        WORD version;
        WORD signature;
        DWORD helpId;
        DWORD extendedStyle;
        DWORD style;
        WORD count;
        short x;
        short y;
    };
    const auto& extended = reinterpret_cast<const ExtendedHead&>(dialogTemplate);
    const bool isExtended = extended.version == 1 && extended.signature == 0xFFFF;
    const DWORD style = isExtended ? extended.style : dialogTemplate.style;
    const CPoint place(isExtended ? extended.x : dialogTemplate.x, isExtended ? extended.y : dialogTemplate.y);
    return place == CPoint(0, 0) && !(style & (WS_CHILD | DS_ABSALIGN | DS_CENTER | DS_CENTERMOUSE));
}

} // namespace

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {
    if (IS_INTRESOURCE(lpszTemplateName)) {
        m_nIDHelp = LOWORD(reinterpret_cast<UINT_PTR>(lpszTemplateName));
    }
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd) {}

CDialog::~CDialog() { DestroyWindow(); }

BOOL CDialog::PreCreateWindow(CREATESTRUCT&) {
    // A dialog window comes from a template, never from CreateEx.
    return FALSE;
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    m_lpszTemplateName = lpszTemplateName;
    if (IS_INTRESOURCE(lpszTemplateName) && m_nIDHelp == 0) {
        m_nIDHelp = LOWORD(reinterpret_cast<UINT_PTR>(lpszTemplateName));
    }
    return CreateFromResource(lpszTemplateName, pParentWnd ? pParentWnd : AfxGetMainWnd());
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) { return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd); }

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void*) {
    return lpDialogTemplate &&
           CreateFromTemplate(lpDialogTemplate, pParentWnd ? pParentWnd : AfxGetMainWnd(), AfxGetInstanceHandle());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    const auto* dialogTemplate = static_cast<LPCDLGTEMPLATE>(::LockResource(hDialogTemplate));
    return CreateIndirect(dialogTemplate, pParentWnd, nullptr);
}

bool CDialog::CreateFromResource(LPCTSTR name, CWnd* parent) {
    const HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC resource = ::FindResourceW(module, name, RT_DIALOG);
    const HGLOBAL loaded = resource ? ::LoadResource(module, resource) : nullptr;
    const auto* dialogTemplate = loaded ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
    return dialogTemplate && CreateFromTemplate(dialogTemplate, parent, module);
}

bool CDialog::CreateFromTemplate(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance) {
    m_hasEnded = false;
    m_hasNoPlace = dialogTemplate && HasNoPlace(*dialogTemplate);
    bool hasAttached = false;
    HWND window = nullptr;
    {
        const fx::WindowCreationHook hook(this);
        window = ::CreateDialogIndirectParamW(instance, dialogTemplate, parent->GetSafeHwnd(), EmptyDialogProc, 0);
        hasAttached = hook.HasAttached() != FALSE;
    }
    if (!window && !hasAttached) {
        PostNcDestroy();
    }
    return window != nullptr;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void*) {
    m_memoryTemplate = lpDialogTemplate;
    if (!m_pParentWnd) {
        m_pParentWnd = pParentWnd;
    }
    return lpDialogTemplate != nullptr;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    m_memoryHandle = hDialogTemplate;
    if (!m_pParentWnd) {
        m_pParentWnd = pParentWnd;
    }
    return hDialogTemplate != nullptr;
}

INT_PTR CDialog::DoModal() {
    fx::DisabledOwner owner(m_pParentWnd);
    m_nModalResult = -1;
    m_isModal = true;
    const auto end = [&] {
        if (m_hWnd) {
            SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        }
        owner.Enable(m_hWnd);
        m_isModal = false;
        DestroyWindow();
    };
    try {
        CreateAndRunModal(owner.Get());
    } catch (...) {
        end();
        throw;
    }
    end();
    return m_nModalResult;
}

void CDialog::CreateAndRunModal(CWnd* owner) {
    bool isCreated = false;
    if (m_memoryHandle || m_memoryTemplate) {
        const auto* dialogTemplate =
            m_memoryHandle ? static_cast<LPCDLGTEMPLATE>(::LockResource(m_memoryHandle)) : m_memoryTemplate;
        isCreated = CreateFromTemplate(dialogTemplate, owner, AfxGetInstanceHandle());
    } else {
        isCreated = CreateFromResource(m_lpszTemplateName, owner);
    }
    if (isCreated && !m_hasEnded) {
        RunModalLoop(MLF_SHOWONIDLE);
    }
}

void CDialog::EndDialog(int nResult) {
    m_hasEnded = true;
    m_nModalResult = nResult;
    if (m_isInModalLoop) {
        EndModalLoop(nResult);
    } else if (!m_isModal && m_hWnd) {
        ShowWindow(SW_HIDE);
    }
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    // The handler may destroy dialog and object.
    const HWND window = m_hWnd;
    const bool mayCentre = m_hasNoPlace;
    CRect before;
    ::GetWindowRect(window, &before);
    const BOOL result = OnInitDialog();
    CRect after;
    if (mayCentre && ::GetWindowRect(window, &after) && after.TopLeft() == before.TopLeft()) {
        CenterWindow();
    }
    return result;
}

BOOL CDialog::OnInitDialog() {
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM) {
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

void CDialog::OnSetFont(CFont*) {}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    return fx::TranslateDialogInput(m_hWnd, *pMsg, &::IsDialogMessageW);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    // Only commands go on: notifications of the dialog's own controls concern nobody else.
    constexpr UINT firstSystemCommand = 0xF000;
    const bool isCommand = nCode == CN_COMMAND || nCode == CN_UPDATE_COMMAND_UI;
    const bool isProgramCommand = nID >= 0x8000 && nID < firstSystemCommand;
    if (!isCommand || !isProgramCommand) {
        return FALSE;
    }
    CWnd* owner = GetParent();
    if (owner && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CWinThread* thread = AfxGetThread();
    return thread && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

DWORD CDialog::GetDefID() const { return static_cast<DWORD>(::SendMessageW(m_hWnd, DM_GETDEFID, 0, 0)); }

void CDialog::SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

void CDialog::NextDlgCtrl() const { ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 0, 0); }

void CDialog::PrevDlgCtrl() const { ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 1, 0); }

void CDialog::MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
