#include "config/accelerators.h"

#include <afxkeyboardmanager.h>
#include <afxwinappex.h>

namespace {

CWinAppEx* ExtendedApp() { return DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp()); }

} // namespace

CFrameWnd* FrameWithAccelerators() {
    const CWinThread* const thread = AfxGetThread();
    auto* const frame = thread ? DYNAMIC_DOWNCAST(CFrameWnd, thread->m_pMainWnd) : nullptr;
    return frame && frame->m_hAccelTable ? frame : nullptr;
}

std::vector<ACCEL> AcceleratorsOf(const CFrameWnd& frame) {
    std::vector<ACCEL> entries(static_cast<std::size_t>(::CopyAcceleratorTableW(frame.m_hAccelTable, nullptr, 0)));
    const int copied = ::CopyAcceleratorTableW(frame.m_hAccelTable, entries.data(), static_cast<int>(entries.size()));
    entries.resize(static_cast<std::size_t>(copied));
    return entries;
}

bool TakesAccelerators() { return ExtendedApp() != nullptr; }

void InstallAccelerators(const ACCEL* entries, int count) {
    CWinAppEx* const app = ExtendedApp();
    if (!app || count <= 0) {
        return;
    }
    // The manager takes the table over unless it has no frame to give it to.
    const HACCEL table = ::CreateAcceleratorTableW(const_cast<ACCEL*>(entries), count);
    if (table && !app->GetKeyboardManager()->UpdateAccelTable(nullptr, table)) {
        ::DestroyAcceleratorTable(table);
    }
}
