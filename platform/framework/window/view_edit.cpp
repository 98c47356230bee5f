#include "afxwin.h"
#include "fx/archive.h"
#include "fx/control_view.h"
#include "fx/edit_control.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

IMPLEMENT_DYNCREATE(CEditView, CCtrlView)

BEGIN_MESSAGE_MAP(CEditView, CCtrlView)
ON_WM_CREATE()
ON_CONTROL_REFLECT(EN_CHANGE, &CEditView::OnEditChange)
ON_COMMAND_EX(ID_EDIT_CUT, &CEditView::OnEditCommand)
ON_COMMAND_EX(ID_EDIT_COPY, &CEditView::OnEditCommand)
ON_COMMAND_EX(ID_EDIT_PASTE, &CEditView::OnEditCommand)
ON_COMMAND_EX(ID_EDIT_CLEAR, &CEditView::OnEditCommand)
ON_COMMAND_EX(ID_EDIT_UNDO, &CEditView::OnEditCommand)
ON_COMMAND_EX(ID_EDIT_SELECT_ALL, &CEditView::OnEditCommand)
ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, &CEditView::OnUpdateNeedSel)
ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CEditView::OnUpdateNeedSel)
ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR, &CEditView::OnUpdateNeedSel)
ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, &CEditView::OnUpdateNeedClip)
ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CEditView::OnUpdateEditUndo)
ON_UPDATE_COMMAND_UI(ID_EDIT_SELECT_ALL, &CEditView::OnUpdateNeedText)
END_MESSAGE_MAP()

namespace {

std::wstring InOneCase(std::wstring_view text) {
    std::wstring result(text);
    ::CharLowerBuffW(result.data(), static_cast<DWORD>(result.size()));
    return result;
}

} // namespace

const DWORD CEditView::dwStyleDefault =
    AFX_WS_DEFAULT_VIEW | WS_HSCROLL | WS_VSCROLL | ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_MULTILINE | ES_NOHIDESEL;

CEditView::CEditView() : CCtrlView(L"EDIT", dwStyleDefault), m_control(std::make_unique<CEdit>()) {}

CEditView::~CEditView() { m_control->m_hWnd = nullptr; }

CEdit& CEditView::GetEditCtrl() const {
    m_control->m_hWnd = m_hWnd;
    return *m_control;
}

int CEditView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CCtrlView::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    GetEditCtrl().SetLimitText(0); // as much as there is memory for
    return 0;
}

UINT CEditView::GetBufferLength() const { return static_cast<UINT>(GetWindowTextLength()); }

LPCTSTR CEditView::LockBuffer() const {
    GetWindowText(m_locked);
    return m_locked;
}

void CEditView::UnlockBuffer() const { m_locked.Empty(); }

void CEditView::GetSelectedText(CString& strResult) const {
    int start = 0;
    int end = 0;
    GetEditCtrl().GetSel(start, end);
    CString text;
    GetWindowText(text);
    strResult = text.Mid(start, end - start);
}

void CEditView::Show(LPCTSTR text) {
    m_isReading = true;
    SetWindowText(text);
    GetEditCtrl().SetModify(FALSE);
    m_isReading = false;
}

void CEditView::SerializeRaw(CArchive& ar) {
    if (ar.IsStoring()) {
        CString text;
        GetWindowText(text);
        ar.Write(text.GetString(), static_cast<UINT>(text.GetLength()) * sizeof(wchar_t));
        return;
    }
    std::string bytes;
    std::array<char, 4096> part{};
    UINT count = 0;
    do {
        count = ar.Read(part.data(), static_cast<UINT>(part.size()));
        bytes.append(part.data(), count);
    } while (count == part.size());
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    std::copy_n(bytes.data(), text.size() * sizeof(wchar_t), reinterpret_cast<char*>(text.data()));
    Show(text.c_str());
}

void CEditView::Serialize(CArchive& ar) {
    CString text;
    if (ar.IsStoring()) {
        GetWindowText(text);
        ar << text;
    } else {
        ar >> text;
        Show(text);
    }
}

void CEditView::SetTabStops(int nTabStops) {
    GetEditCtrl().SetTabStops(nTabStops);
    Invalidate();
}

BOOL CEditView::FindText(LPCTSTR lpszFind, BOOL bNext, BOOL bCase) {
    CString shown;
    GetWindowText(shown);
    const std::wstring text = bCase ? std::wstring(shown.GetString()) : InOneCase(shown.GetString());
    const std::wstring wanted = bCase ? std::wstring(lpszFind) : InOneCase(lpszFind);
    int start = 0;
    int end = 0;
    GetEditCtrl().GetSel(start, end);
    std::size_t found = std::wstring::npos;
    if (bNext) {
        found = text.find(wanted, static_cast<std::size_t>(end));
    } else if (const std::size_t before = static_cast<std::size_t>(start); before >= wanted.size()) {
        found = text.rfind(wanted, before - wanted.size());
    }
    if (wanted.empty() || found == std::wstring::npos) {
        return FALSE;
    }
    GetEditCtrl().SetSel(static_cast<int>(found), static_cast<int>(found + wanted.size()));
    return TRUE;
}

void CEditView::OnEditChange() {
    if (CDocument* const document = GetDocument(); document != nullptr && !m_isReading) {
        document->SetModifiedFlag();
    }
}

BOOL CEditView::OnEditCommand(UINT nID) {
    CEdit& edit = GetEditCtrl();
    switch (nID) {
    case ID_EDIT_CUT:
        edit.Cut();
        return TRUE;
    case ID_EDIT_COPY:
        edit.Copy();
        return TRUE;
    case ID_EDIT_PASTE:
        edit.Paste();
        return TRUE;
    case ID_EDIT_CLEAR:
        edit.Clear();
        return TRUE;
    case ID_EDIT_UNDO:
        edit.Undo();
        return TRUE;
    case ID_EDIT_SELECT_ALL:
        edit.SetSel(0, -1);
        return TRUE;
    default:
        return FALSE;
    }
}

void CEditView::OnUpdateNeedSel(CCmdUI* pCmdUI) {
    int start = 0;
    int end = 0;
    GetEditCtrl().GetSel(start, end);
    pCmdUI->Enable(start != end);
}

void CEditView::OnUpdateNeedText(CCmdUI* pCmdUI) { pCmdUI->Enable(GetWindowTextLength() != 0); }

void CEditView::OnUpdateNeedClip(CCmdUI* pCmdUI) { pCmdUI->Enable(::IsClipboardFormatAvailable(CF_UNICODETEXT)); }

void CEditView::OnUpdateEditUndo(CCmdUI* pCmdUI) { pCmdUI->Enable(GetEditCtrl().CanUndo()); }
