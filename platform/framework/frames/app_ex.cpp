#include "afxwinappex.h"

#include "afxcontextmenumanager.h"
#include "afxframewndex.h"
#include "afxkeyboardmanager.h"
#include "afxMDIFrameWndEx.h"
#include "afxtoolbar.h"
#include "afxtooltipmanager.h"
#include "afxusertoolsmanager.h"
#include "core/framework_text.h"
#include "fx/state_store.h"
#include "toolbar/customize_texts.h"

#include <algorithm>
#include <new>

IMPLEMENT_DYNAMIC(CWinAppEx, CWinApp)

namespace {

constexpr LPCTSTR WindowPlacementSection = L"WindowPlacement";
constexpr LPCTSTR DefaultRegistryBase = L"Workspace";

/// Serialises an object into bytes and back through an archive in memory.
std::vector<BYTE> StoreObject(CObject& object) {
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    object.Serialize(archive);
    archive.Close();
    const UINT size = static_cast<UINT>(file.GetLength());
    std::vector<BYTE> bytes(size);
    file.SeekToBegin();
    file.Read(bytes.data(), size);
    return bytes;
}

/// The sections of the application as bars see them.
class SectionStore final : public fx::StateStore {
public:
    explicit SectionStore(CWinAppEx& application) : m_application(application) {}
    int ReadInt(LPCTSTR section, LPCTSTR entry, int missing) override {
        return m_application.GetSectionInt(section, entry, missing);
    }
    BOOL WriteInt(LPCTSTR section, LPCTSTR entry, int value) override {
        return m_application.WriteSectionInt(section, entry, value);
    }
    BOOL HasEntry(LPCTSTR section, LPCTSTR entry) override {
        if (m_application.m_pszRegistryKey == nullptr) {
            return FALSE;
        }
        const HKEY application = m_application.GetAppRegistryKey();
        const LSTATUS found = ::RegGetValueW(application, m_application.GetRegSectionPath(section), entry, RRF_RT_ANY,
                                             nullptr, nullptr, nullptr);
        ::RegCloseKey(application);
        return found == ERROR_SUCCESS;
    }
    BOOL HasObject(LPCTSTR section, LPCTSTR entry) override {
        LPBYTE data = nullptr;
        UINT size = 0;
        const BOOL exists = m_application.GetSectionBinary(section, entry, &data, &size);
        const std::unique_ptr<BYTE[]> bytes(data);
        return exists;
    }
    BOOL ReadObject(LPCTSTR section, LPCTSTR entry, CObject& object) override {
        return m_application.GetSectionObject(section, entry, object);
    }
    BOOL WriteObject(LPCTSTR section, LPCTSTR entry, CObject& object) override {
        return m_application.WriteSectionObject(section, entry, object);
    }
    BOOL DeleteSection(LPCTSTR section) override {
        return m_application.CleanState(m_application.GetRegSectionPath(section));
    }

private:
    CWinAppEx& m_application;
};

} // namespace

struct CWinAppEx::Managers {
    explicit Managers(CWinAppEx& application) : store(application) {}

    SectionStore store;
    std::unique_ptr<CKeyboardManager> keyboard;
    std::unique_ptr<CTooltipManager> toolTip;
    std::unique_ptr<CContextMenuManager> contextMenus;
    std::unique_ptr<CUserToolsManager> userTools;
};

CWinAppEx::CWinAppEx(BOOL bResourceSmartUpdate)
    : m_bResourceSmartUpdate(bResourceSmartUpdate), m_managers(std::make_unique<Managers>(*this)) {
    SetRegistryBase();
}

CWinAppEx::~CWinAppEx() = default;

int CWinAppEx::ExitInstance() {
    m_managers = std::make_unique<Managers>(*this);
    return CWinApp::ExitInstance();
}

BOOL CWinAppEx::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWinApp::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CUserToolsManager* const tools = afxUserToolsManager;
    if (tools == nullptr || tools->FindTool(nID) == nullptr) {
        return FALSE;
    }
    if (nCode == CN_UPDATE_COMMAND_UI) {
        static_cast<CCmdUI*>(pExtra)->Enable();
        return TRUE;
    }
    if (nCode == CN_COMMAND && pHandlerInfo == nullptr) {
        const CString program = tools->FindTool(nID)->GetCommand();
        if (!tools->InvokeTool(nID)) {
            CString text;
            text.Format(FrameworkText(toolbar::kToolFailedText), static_cast<LPCTSTR>(program));
            AfxMessageBox(text, MB_OK | MB_ICONEXCLAMATION);
        }
    }
    return nCode == CN_COMMAND;
}

LPCTSTR CWinAppEx::SetRegistryBase(LPCTSTR lpszSectionName) {
    m_strRegSection = lpszSectionName != nullptr ? lpszSectionName : DefaultRegistryBase;
    return m_strRegSection;
}

LPCTSTR CWinAppEx::GetRegistryBase() { return m_strRegSection; }

CString CWinAppEx::GetRegSectionPath(LPCTSTR szSectionAdd) {
    CString path = m_strRegSection;
    if (szSectionAdd != nullptr && *szSectionAdd != 0) {
        path += L"\\";
        path += szSectionAdd;
    }
    return path;
}

int CWinAppEx::GetInt(LPCTSTR lpszEntry, int nDefault) { return GetSectionInt(L"", lpszEntry, nDefault); }
CString CWinAppEx::GetString(LPCTSTR lpszEntry, LPCTSTR lpzDefault) {
    return GetSectionString(L"", lpszEntry, lpzDefault);
}
BOOL CWinAppEx::GetBinary(LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    return GetSectionBinary(L"", lpszEntry, ppData, pBytes);
}
BOOL CWinAppEx::GetObject(LPCTSTR lpszEntry, CObject& obj) { return GetSectionObject(L"", lpszEntry, obj); }
BOOL CWinAppEx::WriteInt(LPCTSTR lpszEntry, int nValue) { return WriteSectionInt(L"", lpszEntry, nValue); }
BOOL CWinAppEx::WriteString(LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    return WriteSectionString(L"", lpszEntry, lpszValue);
}
BOOL CWinAppEx::WriteBinary(LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    return WriteSectionBinary(L"", lpszEntry, pData, nBytes);
}
BOOL CWinAppEx::WriteObject(LPCTSTR lpszEntry, CObject& obj) { return WriteSectionObject(L"", lpszEntry, obj); }

int CWinAppEx::GetSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nDefault) {
    return static_cast<int>(GetProfileInt(GetRegSectionPath(lpszSubSection), lpszEntry, nDefault));
}
CString CWinAppEx::GetSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    return GetProfileString(GetRegSectionPath(lpszSubSection), lpszEntry, lpszDefault);
}
BOOL CWinAppEx::GetSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    return GetProfileBinary(GetRegSectionPath(lpszSubSection), lpszEntry, ppData, pBytes);
}
BOOL CWinAppEx::WriteSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nValue) {
    return WriteProfileInt(GetRegSectionPath(lpszSubSection), lpszEntry, nValue);
}
BOOL CWinAppEx::WriteSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    return WriteProfileString(GetRegSectionPath(lpszSubSection), lpszEntry, lpszValue);
}
BOOL CWinAppEx::WriteSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    return WriteProfileBinary(GetRegSectionPath(lpszSubSection), lpszEntry, pData, nBytes);
}

BOOL CWinAppEx::GetSectionObject(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, CObject& obj) {
    LPBYTE data = nullptr;
    UINT size = 0;
    if (!GetSectionBinary(lpszSubSection, lpszEntry, &data, &size)) {
        return FALSE;
    }
    const std::unique_ptr<BYTE[]> bytes(data);
    try {
        CMemFile file(bytes.get(), size);
        CArchive archive(&file, CArchive::load);
        obj.Serialize(archive);
        return TRUE;
    } catch (CException* e) {
        // Written by another version, or damaged: as if it were not there.
        e->Delete();
        return FALSE;
    } catch (const std::bad_alloc&) {
        return FALSE; // a damaged count asks for more than there is
    }
}

BOOL CWinAppEx::WriteSectionObject(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, CObject& obj) {
    std::vector<BYTE> bytes = StoreObject(obj);
    return WriteSectionBinary(lpszSubSection, lpszEntry, bytes.data(), static_cast<UINT>(bytes.size()));
}

BOOL CWinAppEx::IsStateExists(LPCTSTR lpszSectionName) {
    if (m_pszRegistryKey == nullptr) {
        return FALSE;
    }
    const HKEY application = GetAppRegistryKey();
    HKEY section = nullptr;
    const bool exists =
        ::RegOpenKeyEx(application, GetRegSectionPath(lpszSectionName), 0, KEY_READ, &section) == ERROR_SUCCESS;
    if (exists) {
        ::RegCloseKey(section);
    }
    ::RegCloseKey(application);
    return exists;
}

BOOL CWinAppEx::CleanState(LPCTSTR lpszSectionName) {
    if (m_pszRegistryKey == nullptr) {
        return FALSE;
    }
    const HKEY application = GetAppRegistryKey();
    const CString section = lpszSectionName != nullptr ? CString(lpszSectionName) : GetRegSectionPath();
    const LONG result = DelRegTree(application, section);
    ::RegCloseKey(application);
    return result == ERROR_SUCCESS;
}

BOOL CWinAppEx::InitKeyboardManager() {
    if (m_managers->keyboard != nullptr) {
        return FALSE;
    }
    m_managers->keyboard = std::make_unique<CKeyboardManager>();
    return TRUE;
}

BOOL CWinAppEx::InitTooltipManager() {
    if (m_managers->toolTip != nullptr) {
        return FALSE;
    }
    m_managers->toolTip = std::make_unique<CTooltipManager>();
    return TRUE;
}

BOOL CWinAppEx::InitContextMenuManager() {
    if (m_managers->contextMenus != nullptr) {
        return FALSE;
    }
    m_managers->contextMenus = std::make_unique<CContextMenuManager>();
    return TRUE;
}

fx::StateStore* CWinAppEx::GetStateStore() { return &m_managers->store; }

CKeyboardManager* CWinAppEx::GetKeyboardManager() {
    InitKeyboardManager();
    return m_managers->keyboard.get();
}

CTooltipManager* CWinAppEx::GetTooltipManager() {
    InitTooltipManager();
    return m_managers->toolTip.get();
}

CContextMenuManager* CWinAppEx::GetContextMenuManager() {
    InitContextMenuManager();
    return m_managers->contextMenus.get();
}

BOOL CWinAppEx::EnableUserTools(const UINT uiCmdToolsDummy, const UINT uiCmdFirst, const UINT uiCmdLast,
                                CRuntimeClass* pToolRTC, UINT uArgMenuID, UINT uInitDirMenuID) {
    const bool isOfTools = pToolRTC != nullptr && pToolRTC->IsDerivedFrom(RUNTIME_CLASS(CUserTool));
    if (m_managers->userTools != nullptr || uiCmdToolsDummy == 0 || uiCmdFirst == 0 || uiCmdLast < uiCmdFirst ||
        !isOfTools) {
        return FALSE;
    }
    m_managers->userTools = std::make_unique<CUserToolsManager>(uiCmdToolsDummy, uiCmdFirst, uiCmdLast, pToolRTC,
                                                                uArgMenuID, uInitDirMenuID);
    return TRUE;
}

CUserToolsManager* CWinAppEx::GetUserToolsManager() { return m_managers->userTools.get(); }

BOOL CWinAppEx::ShowPopupMenu(UINT uiMenuResId, const CPoint& point, CWnd* pWnd) {
    return GetContextMenuManager()->ShowPopupMenu(uiMenuResId, point.x, point.y, pWnd);
}

BOOL CWinAppEx::LoadState(LPCTSTR lpszSectionName, CFrameImpl* pFrameImpl) {
    if (lpszSectionName != nullptr) {
        SetRegistryBase(lpszSectionName);
    }
    PreLoadState();
    CMFCToolBar::LoadParameters();
    if (m_managers->userTools != nullptr) {
        m_managers->userTools->LoadState();
    }
    const BOOL isLoaded = pFrameImpl == nullptr || pFrameImpl->LoadState();
    if (m_bLoadWindowPlacement && pFrameImpl != nullptr) {
        ReloadWindowPlacement(pFrameImpl->Frame());
    }
    LoadCustomState();
    return isLoaded;
}

BOOL CWinAppEx::LoadState(CMDIFrameWndEx* pFrame, LPCTSTR lpszSectionName) {
    return LoadState(lpszSectionName, &pFrame->GetFrameImpl());
}

BOOL CWinAppEx::LoadState(CFrameWndEx* pFrame, LPCTSTR lpszSectionName) {
    return LoadState(lpszSectionName, &pFrame->GetFrameImpl());
}

BOOL CWinAppEx::SaveState(LPCTSTR lpszSectionName, CFrameImpl* pFrameImpl) {
    if (lpszSectionName != nullptr) {
        SetRegistryBase(lpszSectionName);
    }
    PreSaveState();
    BOOL isSaved = CMFCToolBar::SaveParameters();
    if (m_managers->userTools != nullptr) {
        isSaved &= m_managers->userTools->SaveState();
    }
    if (pFrameImpl != nullptr) {
        isSaved &= pFrameImpl->SaveState();
        KeepFramePlacement(*pFrameImpl->Frame());
    }
    SaveCustomState();
    return isSaved;
}

BOOL CWinAppEx::SaveState(CMDIFrameWndEx* pFrame, LPCTSTR lpszSectionName) {
    return SaveState(lpszSectionName, &pFrame->GetFrameImpl());
}

BOOL CWinAppEx::SaveState(CFrameWndEx* pFrame, LPCTSTR lpszSectionName) {
    return SaveState(lpszSectionName, &pFrame->GetFrameImpl());
}

void CWinAppEx::OnClosingMainFrame(CFrameImpl* pFrameImpl) { SaveState(nullptr, pFrameImpl); }

BOOL CWinAppEx::OnViewDoubleClick(CWnd*, int) { return FALSE; }
BOOL CWinAppEx::OnWorkspaceIdle(CWnd*) { return FALSE; }

namespace {

/// On the monitor that has most of it, or the nearest one, and no larger than what that leaves free.
CRect OnAMonitor(CRect place) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    if (!::GetMonitorInfoW(::MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &monitor)) {
        return place;
    }
    // Places of top-level windows are told from the corner of the work area.
    const CRect whole(monitor.rcMonitor);
    CRect room(monitor.rcWork);
    room.OffsetRect(whole.TopLeft() - room.TopLeft());
    const CSize size(std::min(place.Width(), room.Width()), std::min(place.Height(), room.Height()));
    const CPoint corner(std::clamp<LONG>(place.left, room.left, room.right - size.cx),
                        std::clamp<LONG>(place.top, room.top, room.bottom - size.cy));
    return CRect(corner, size);
}

} // namespace

void CWinAppEx::KeepFramePlacement(const CFrameWnd& frame) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof(placement);
    if (frame.m_hWnd != nullptr && ::GetWindowPlacement(frame.m_hWnd, &placement)) {
        // Nobody wants to begin with a button in the task bar.
        const bool wasMaximized = placement.showCmd == SW_SHOWMINIMIZED && (placement.flags & WPF_RESTORETOMAXIMIZED);
        const bool isMaximized = wasMaximized || placement.showCmd == SW_SHOWMAXIMIZED;
        StoreWindowPlacement(placement.rcNormalPosition, static_cast<int>(placement.flags),
                             isMaximized ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL);
    }
}

BOOL CWinAppEx::ReloadWindowPlacement(CFrameWnd* pFrame) {
    CRect place;
    int flags = 0;
    int show = SW_SHOWNORMAL;
    if (pFrame == nullptr || pFrame->m_hWnd == nullptr || !LoadWindowPlacement(place, flags, show) ||
        place.Width() <= 0 || place.Height() <= 0) {
        return FALSE;
    }
    const bool isMaximized = show == SW_SHOWMAXIMIZED;
    const bool isShown = pFrame->IsWindowVisible() != FALSE;
    m_nCmdShow = isMaximized ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
    WINDOWPLACEMENT placement{};
    placement.length = sizeof(placement);
    placement.showCmd = static_cast<UINT>(isShown ? m_nCmdShow : SW_HIDE);
    placement.rcNormalPosition = OnAMonitor(place);
    return ::SetWindowPlacement(pFrame->m_hWnd, &placement);
}

BOOL CWinAppEx::LoadWindowPlacement(CRect& rectNormalPosition, int& nFlags, int& nShowCmd) {
    const CString section = GetRegSectionPath(WindowPlacementSection);
    constexpr int Missing = INT_MIN;
    LPBYTE data = nullptr;
    UINT size = 0;
    if (!GetProfileBinary(section, L"Rect", &data, &size)) {
        return FALSE;
    }
    const std::unique_ptr<BYTE[]> bytes(data);
    const int flags = static_cast<int>(GetProfileInt(section, L"Flags", Missing));
    const int show = static_cast<int>(GetProfileInt(section, L"ShowCmd", Missing));
    if (size != sizeof(RECT) || flags == Missing || show == Missing) {
        return FALSE;
    }
    rectNormalPosition = *reinterpret_cast<const RECT*>(bytes.get());
    nFlags = flags;
    nShowCmd = show;
    return TRUE;
}

BOOL CWinAppEx::StoreWindowPlacement(const CRect& rectNormalPosition, int nFlags, int nShowCmd) {
    const CString section = GetRegSectionPath(WindowPlacementSection);
    RECT rect = rectNormalPosition;
    return WriteProfileBinary(section, L"Rect", reinterpret_cast<LPBYTE>(&rect), sizeof(rect)) &&
           WriteProfileInt(section, L"Flags", nFlags) && WriteProfileInt(section, L"ShowCmd", nShowCmd);
}
