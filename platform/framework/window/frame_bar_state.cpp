// Which control bars of a frame are shown, in the application's settings.
#include "afxext.h"
#include "fx/app.h"
#include "fx/frame.h"

namespace {

constexpr LPCTSTR kIdEntry = L"BarID";
constexpr LPCTSTR kVisibleEntry = L"Visible";
constexpr int kNone = -1;

CString SectionOf(LPCTSTR profile, int index) {
    CString section;
    section.Format(L"%s-Bar%d", profile != nullptr ? profile : L"", index);
    return section;
}

} // namespace

void CFrameWnd::SaveBarState(LPCTSTR lpszProfileName) const {
    CWinApp* const application = AfxGetApp();
    int index = 0;
    for (POSITION position = m_listControlBars.GetHeadPosition(); application != nullptr && position != nullptr;) {
        const auto* const bar = static_cast<const CControlBar*>(m_listControlBars.GetNext(position));
        const CString section = SectionOf(lpszProfileName, index++);
        application->WriteProfileInt(section, kIdEntry, bar->GetDlgCtrlID());
        application->WriteProfileInt(section, kVisibleEntry, bar->IsVisible());
    }
    if (application != nullptr) {
        application->WriteProfileString(SectionOf(lpszProfileName, index), nullptr, nullptr); // the list ends there
    }
}

void CFrameWnd::LoadBarState(LPCTSTR lpszProfileName) {
    CWinApp* const application = AfxGetApp();
    for (int index = 0; application != nullptr; ++index) {
        const CString section = SectionOf(lpszProfileName, index);
        const auto id = static_cast<int>(application->GetProfileInt(section, kIdEntry, kNone));
        const auto visible = static_cast<int>(application->GetProfileInt(section, kVisibleEntry, kNone));
        if (id == kNone) {
            return;
        }
        CControlBar* const bar = GetControlBar(static_cast<UINT>(id));
        if (bar != nullptr && (visible == TRUE || visible == FALSE)) {
            ShowControlBar(bar, visible, FALSE);
        }
    }
}
