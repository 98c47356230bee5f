#include "afxvisualmanager.h"

#include <afxbasepane.h>
#include <afxRibbonEdit.h>

#include "afxglobals.h"
#include "fx/paint_round.h"
#include "fx/window_freeze.h"
#include "visual/canvas.h"
#include "visual/manager_instance.h"
#include "visual/system_skins.h"
#include "window/thread_windows.h"

#include <algorithm>
#include <vector>

IMPLEMENT_DYNCREATE(CMFCVisualManager, CMFCBaseVisualManager)

namespace {

CRuntimeClass* g_managerClass = nullptr; ///< as the host chose; null: the default

CMFCVisualManager* MakeManager() {
    CRuntimeClass* const wanted = g_managerClass != nullptr ? g_managerClass : RUNTIME_CLASS(CMFCVisualManager);
    return DYNAMIC_DOWNCAST(CMFCVisualManager, wanted->CreateObject());
}

// As the library is loaded, before there is anything to draw.
[[maybe_unused]] const bool g_isMakerSet = (visual::SetManagerMaker(&MakeManager), true);

/// Top-level windows of this thread that the framework knows: its frames, floating panes and pop-ups.
std::vector<HWND> FrameworkWindows() {
    std::vector<HWND> windows = fx::ThreadWindows();
    std::erase_if(windows, [](HWND window) { return CWnd::FromHandlePermanent(window) == nullptr; });
    return windows;
}

} // namespace

CMFCVisualManager::CMFCVisualManager(BOOL bTemporary) : m_bTemporary(bTemporary) {
    if (!bTemporary && visual::StandingManager() == nullptr) {
        visual::SetStandingManager(this);
    }
    CMFCVisualManager::OnUpdateSystemColors();
}

CMFCVisualManager::~CMFCVisualManager() {
    if (visual::StandingManager() == this) {
        visual::SetStandingManager(nullptr);
    }
}

void CMFCVisualManager::SetDefaultManager(CRuntimeClass* pRTI) {
    if (pRTI != nullptr && !pRTI->IsDerivedFrom(RUNTIME_CLASS(CMFCVisualManager))) {
        ASSERT(FALSE);
        return;
    }
    const fx::WindowFreeze freeze;
    g_managerClass = pRTI;
    DestroyInstance();
    afxGlobalData.UpdateSysColors();
    GetInstance();
    AdjustFrames();
    AdjustToolbars();
    RedrawAll();
}

void __stdcall CMFCVisualManager::DestroyInstance(BOOL bAutoDestroyOnly) {
    CMFCVisualManager* const manager = visual::StandingManager();
    if (manager == nullptr || (bAutoDestroyOnly && !manager->m_bAutoDestroy)) {
        return;
    }
    // The destructor takes the pointer back.
    delete manager;
}

void CMFCVisualManager::RedrawAll() {
    // A painting that asks for all to be painted anew would be asked again by it, and so on: it comes after this one.
    const UINT now = fx::IsPainting() ? 0 : RDW_UPDATENOW;
    for (const HWND window : FrameworkWindows()) {
        if (::IsWindow(window)) {
            ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | now);
        }
    }
}

void __stdcall CMFCVisualManager::AdjustFrames() {
    for (const HWND window : FrameworkWindows()) {
        if (::IsWindow(window)) {
            ::SendMessageW(window, AFX_WM_CHANGEVISUALMANAGER, 0, 0);
        }
    }
}

void __stdcall CMFCVisualManager::AdjustToolbars() {
    for (const HWND frame : FrameworkWindows()) {
        for (const HWND bar : fx::DescendantsOf(frame)) {
            CWnd* const window = CWnd::FromHandlePermanent(bar);
            if (window != nullptr && window->IsKindOf(RUNTIME_CLASS(CBasePane))) {
                ::SendMessageW(bar, AFX_WM_CHANGEVISUALMANAGER, 0, 0);
            } else if (const auto* const field = DYNAMIC_DOWNCAST(CMFCRibbonRichEditCtrl, window)) {
                // It keeps the colours that it was given.
                CMFCRibbonEdit& edit = field->GetOwnerRibbonEdit();
                edit.OnHighlight(edit.IsHighlighted());
            }
        }
    }
}

const visual::Skin& CMFCVisualManager::GetSkin() const { return visual::SystemSkin(); }

void CMFCVisualManager::OnUpdateSystemColors() {
    UpdateSystemColors();
    visual::UpdateSystemSkins();
}
