#include "core/module.h"

namespace {
HINSTANCE g_instance = nullptr;
}

HINSTANCE FrameworkInstance() noexcept { return g_instance; }

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        g_instance = instance;
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}
