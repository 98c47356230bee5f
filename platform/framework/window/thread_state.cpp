#include "window/thread_state.h"

#include "gdi/gdi_maps.h"

namespace fx {
namespace {

std::unique_ptr<CWnd> MakeTemporaryWindow(HWND window, CRuntimeClass* kind) {
    std::unique_ptr<CWnd> wnd(static_cast<CWnd*>(kind->CreateObject()));
    if (wnd != nullptr) {
        wnd->m_hWnd = window;
    }
    return wnd;
}

std::unique_ptr<CMenu> MakeTemporaryMenu(HMENU menu, CRuntimeClass*) {
    auto object = std::make_unique<CMenu>();
    object->m_hMenu = menu;
    return object;
}

void ReleaseWindow(CWnd& wnd) { wnd.m_hWnd = nullptr; }
void ReleaseMenu(CMenu& menu) { menu.m_hMenu = nullptr; }

} // namespace

ThreadState::ThreadState() : windows(MakeTemporaryWindow, ReleaseWindow), menus(MakeTemporaryMenu, ReleaseMenu) {}

ThreadState& CurrentThread() {
    static thread_local ThreadState state;
    return state;
}

void DeleteReleasedTemporaries() {
    ThreadState& state = CurrentThread();
    state.windows.DeleteReleasedTemp(HandlerDepth());
    state.menus.DeleteReleasedTemp(HandlerDepth());
    DeleteReleasedGdiObjects();
}

} // namespace fx
