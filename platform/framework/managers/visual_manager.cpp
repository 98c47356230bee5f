#include "afxvisualmanager.h"

#include <afxbasepane.h>

#include "afxglobals.h"
#include "visual/canvas.h"
#include "visual/system_skins.h"

#include <algorithm>
#include <vector>

IMPLEMENT_DYNCREATE(CMFCVisualManager, CMFCBaseVisualManager)

namespace {

CMFCVisualManager* g_manager = nullptr;
CRuntimeClass* g_managerClass = nullptr;

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

/// Top-level windows of this thread that the framework knows: its frames, floating panes and pop-ups.
std::vector<HWND> FrameworkWindows() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), &Collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [](HWND window) { return CWnd::FromHandlePermanent(window) == nullptr; });
    return windows;
}

} // namespace

CMFCVisualManager::CMFCVisualManager(BOOL bTemporary) : m_bTemporary(bTemporary) {
    if (!bTemporary && g_manager == nullptr) {
        g_manager = this;
    }
    CMFCVisualManager::OnUpdateSystemColors();
}

CMFCVisualManager::~CMFCVisualManager() {
    if (g_manager == this) {
        g_manager = nullptr;
    }
}

CMFCVisualManager* CMFCVisualManager::GetInstance() {
    if (g_manager == nullptr) {
        CRuntimeClass* const wanted = g_managerClass != nullptr ? g_managerClass : RUNTIME_CLASS(CMFCVisualManager);
        auto* const made = DYNAMIC_DOWNCAST(CMFCVisualManager, wanted->CreateObject());
        if (made != nullptr) {
            made->m_bAutoDestroy = TRUE;
            g_manager = made;
            made->OnUpdateSystemColors();
        }
    }
    return g_manager;
}

void CMFCVisualManager::SetDefaultManager(CRuntimeClass* pRTI) {
    if (pRTI != nullptr && !pRTI->IsDerivedFrom(RUNTIME_CLASS(CMFCVisualManager))) {
        ASSERT(FALSE);
        return;
    }
    g_managerClass = pRTI;
    DestroyInstance();
    afxGlobalData.UpdateSysColors();
    GetInstance();
    AdjustFrames();
    AdjustToolbars();
    RedrawAll();
}

void __stdcall CMFCVisualManager::DestroyInstance(BOOL bAutoDestroyOnly) {
    if (g_manager == nullptr || (bAutoDestroyOnly && !g_manager->m_bAutoDestroy)) {
        return;
    }
    // The destructor takes the pointer back.
    delete g_manager;
}

void CMFCVisualManager::RedrawAll() {
    for (const HWND window : FrameworkWindows()) {
        if (::IsWindow(window)) {
            ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
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
        std::vector<HWND> bars;
        EnumChildWindows(frame, &Collect, reinterpret_cast<LPARAM>(&bars));
        for (const HWND bar : bars) {
            CWnd* const window = CWnd::FromHandlePermanent(bar);
            if (window != nullptr && window->IsKindOf(RUNTIME_CLASS(CBasePane))) {
                ::SendMessageW(bar, AFX_WM_CHANGEVISUALMANAGER, 0, 0);
            }
        }
    }
}

const visual::Skin& CMFCVisualManager::GetSkin() const { return visual::SystemSkin(); }

void CMFCVisualManager::OnUpdateSystemColors() {
    UpdateSystemColors();
    visual::UpdateSystemSkins();
}

BOOL CMFCVisualManager::IsAutoDestroy() const { return m_bAutoDestroy; }
void CMFCVisualManager::SetMenuFlatLook(BOOL bMenuFlatLook) { m_bMenuFlatLook = bMenuFlatLook; }
BOOL CMFCVisualManager::IsMenuFlatLook() const { return m_bMenuFlatLook; }
void CMFCVisualManager::SetMenuShadowDepth(int nDepth) { m_nMenuShadowDepth = std::max(nDepth, 0); }
int CMFCVisualManager::GetMenuShadowDepth() const { return m_nMenuShadowDepth; }
void CMFCVisualManager::SetShadowHighlightedImage(BOOL bShadow) { m_bShadowHighlightedImage = bShadow; }
BOOL CMFCVisualManager::IsShadowHighlightedImage() const { return m_bShadowHighlightedImage; }
void CMFCVisualManager::SetEmbossDisabledImage(BOOL bEmboss) { m_bEmbossDisabledImage = bEmboss; }
BOOL CMFCVisualManager::IsEmbossDisabledImage() const { return m_bEmbossDisabledImage; }
void CMFCVisualManager::SetFadeInactiveImage(BOOL bFade) { m_bFadeInactiveImage = bFade; }
BOOL CMFCVisualManager::IsFadeInactiveImage() const { return m_bFadeInactiveImage; }
void CMFCVisualManager::EnableToolbarButtonFill(BOOL bEnable) { m_bEnableToolbarButtonFill = bEnable; }
BOOL CMFCVisualManager::IsToolbarButtonFillEnabled() const { return m_bEnableToolbarButtonFill; }
BOOL CMFCVisualManager::IsFrameMenuCheckedItems() const { return m_bFrameMenuCheckedItems; }
