#include "fx/form_view.h"

#include "afxext.h"
#include "afxwin.h"
#include "window/frame_keys.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

BEGIN_MESSAGE_MAP(CFormView, CScrollView)
ON_WM_CREATE()
END_MESSAGE_MAP()

namespace {

/// FALSE for WM_INITDIALOG: a view does not take the focus while it is made.
INT_PTR CALLBACK EmptyFormProc(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

HWND MakeWindow(LPCTSTR name, HWND parent) {
    const HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC resource = ::FindResourceW(module, name, RT_DIALOG);
    const HGLOBAL loaded = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    const auto* const form = loaded != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
    return form != nullptr ? ::CreateDialogIndirectParamW(module, form, parent, EmptyFormProc, 0) : nullptr;
}

} // namespace

CFormView::CFormView(LPCTSTR lpszTemplateName) : m_template(lpszTemplateName) {}
CFormView::CFormView(UINT nIDTemplate) : CFormView(MAKEINTRESOURCE(nIDTemplate)) {}

BOOL CFormView::Create(LPCTSTR, LPCTSTR, DWORD dwRequestedStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                       CCreateContext* pContext) {
    m_creation = pContext;
    bool hasAttached = false;
    HWND window = nullptr;
    {
        const fx::WindowCreationHook hook(this);
        window = MakeWindow(m_template, pParentWnd->GetSafeHwnd());
        hasAttached = hook.HasAttached() != FALSE;
    }
    if (window == nullptr) {
        if (!hasAttached) {
            PostNcDestroy();
        }
        return FALSE;
    }
    m_creation = nullptr;
    if ((GetStyle() & WS_CHILD) == 0) {
        DestroyWindow(); // a pop-up cannot be a part of its frame
        return FALSE;
    }
    CRect form;
    GetClientRect(&form);
    SetScrollSizes(MM_TEXT, form.Size());
    ModifyStyle(WS_CAPTION, 0);
    ModifyStyleEx(0, (dwRequestedStyle & WS_BORDER) != 0 ? WS_EX_CLIENTEDGE : 0, SWP_FRAMECHANGED);
    SetDlgCtrlID(static_cast<int>(nID));
    const UINT show = (dwRequestedStyle & WS_VISIBLE) != 0 ? SWP_SHOWWINDOW : 0u;
    SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | show);
    return TRUE;
}

// A dialog window is not given what its creator wants to hand down.
int CFormView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    LPVOID const before = std::exchange(lpCreateStruct->lpCreateParams, m_creation);
    const int result = CScrollView::OnCreate(lpCreateStruct);
    lpCreateStruct->lpCreateParams = before;
    return result;
}

void CFormView::OnInitialUpdate() {
    UpdateData(FALSE);
    m_isFilled = TRUE;
    CScrollView::OnInitialUpdate();
}

void CFormView::OnDraw(CDC*) {}

BOOL CFormView::PreTranslateMessage(MSG* pMsg) {
    if (CScrollView::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    return fx::TranslateDialogInput(m_hWnd, *pMsg, &::IsDialogMessageW);
}
