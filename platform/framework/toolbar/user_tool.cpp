#include "afxusertool.h"

#include "afxglobals.h"
#include "fx/dc_scope.h"

#include <array>

IMPLEMENT_SERIAL(CUserTool, CObject, VERSIONABLE_SCHEMA | 1)

namespace {

/// The smallest value that says that a program was started.
constexpr INT_PTR kStarted = 33;

CSize SmallIcon() {
    const int side = afxGlobalData.ScalePixels(16);
    return CSize(side, side);
}

/// Where the system finds a program; the name as it is where it finds none.
CString FoundProgram(const CString& command) {
    std::array<wchar_t, MAX_PATH> path{};
    const DWORD length =
        ::SearchPathW(nullptr, command, L".exe", static_cast<DWORD>(path.size()), path.data(), nullptr);
    return length > 0 && length < path.size() ? CString(path.data()) : command;
}

/// The program's first icon in the size in which it is drawn; null: it has none.
HICON IconOf(const CString& program) {
    const CSize size = SmallIcon();
    HICON icon = nullptr;
    // The number of icons, and -1 for a file that holds none.
    const bool hasOne = ::PrivateExtractIconsW(program, 0, size.cx, size.cy, &icon, nullptr, 1, 0) == 1;
    return hasOne ? icon : nullptr;
}

} // namespace

CUserTool::CUserTool() = default;

CUserTool::~CUserTool() {
    if (m_hIcon != nullptr) {
        ::DestroyIcon(m_hIcon);
    }
}

BOOL CUserTool::Invoke() {
    if (m_strCommand.IsEmpty()) {
        return FALSE;
    }
    const HINSTANCE started = ::ShellExecuteW(
        AfxGetMainWnd()->GetSafeHwnd(), nullptr, m_strCommand, m_strArguments,
        m_strInitialDirectory.IsEmpty() ? nullptr : static_cast<LPCTSTR>(m_strInitialDirectory), SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(started) >= kStarted;
}

void CUserTool::SetCommand(LPCTSTR lpszCmd) {
    const CString command(lpszCmd);
    if (m_strCommand != command || m_hIcon == nullptr) {
        m_strCommand = command;
        SetToolIcon();
    }
}

HICON CUserTool::SetToolIcon() {
    if (m_hIcon != nullptr) {
        ::DestroyIcon(m_hIcon);
        m_hIcon = nullptr;
    }
    if (!m_strCommand.IsEmpty()) {
        m_hIcon = IconOf(FoundProgram(m_strCommand));
    }
    if (m_hIcon == nullptr) {
        m_hIcon = LoadDefaultIcon();
    }
    return m_hIcon;
}

HICON CUserTool::LoadDefaultIcon() {
    const CSize size = SmallIcon();
    const HICON shared = ::LoadIconW(nullptr, IDI_APPLICATION);
    return static_cast<HICON>(::CopyImage(shared, IMAGE_ICON, size.cx, size.cy, LR_COPYFROMRESOURCE));
}

void CUserTool::DrawToolIcon(CDC* pDC, const CRect& rectImage) {
    if (m_hIcon == nullptr) {
        return;
    }
    const CSize size = SmallIcon();
    const CPoint corner(rectImage.left + (rectImage.Width() - size.cx) / 2,
                        rectImage.top + (rectImage.Height() - size.cy) / 2);
    const fx::PictureScope place(*pDC, CRect(corner, size));
    ::DrawIconEx(pDC->GetSafeHdc(), place.Corner().x, place.Corner().y, m_hIcon, size.cx, size.cy, 0, nullptr,
                 DI_NORMAL);
}

void CUserTool::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (!ar.IsLoading()) {
        ar << m_strLabel << m_strCommand << m_strArguments << m_strInitialDirectory << static_cast<DWORD>(m_uiCmdId);
        return;
    }
    DWORD command = 0;
    ar >> m_strLabel >> m_strCommand >> m_strArguments >> m_strInitialDirectory >> command;
    m_uiCmdId = command;
    SetToolIcon();
}
