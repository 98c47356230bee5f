#include "fx/module_state.h"

#include "core/module.h"

#include <algorithm>
#include <atomic>
#include <utility>
#include <vector>

namespace {

std::atomic<HINSTANCE> g_resources{nullptr};

/// The module whose code the calling thread runs, while a scope says so.
AFX_MODULE_STATE*& CurrentModule() noexcept {
    static thread_local AFX_MODULE_STATE* module = nullptr;
    return module;
}

// Filled from DllMain of extension DLLs.
SRWLOCK g_extensionLock = SRWLOCK_INIT;
std::vector<AFX_EXTENSION_MODULE*>& Extensions() {
    static std::vector<AFX_EXTENSION_MODULE*>* const extensions = new std::vector<AFX_EXTENSION_MODULE*>;
    return *extensions;
}

class ExtensionLock {
public:
    ExtensionLock() noexcept { ::AcquireSRWLockExclusive(&g_extensionLock); }
    ~ExtensionLock() { ::ReleaseSRWLockExclusive(&g_extensionLock); }
    ExtensionLock(const ExtensionLock&) = delete;
    ExtensionLock& operator=(const ExtensionLock&) = delete;
};

bool HasResource(HINSTANCE module, LPCTSTR name, LPCTSTR type) {
    return module != nullptr && ::FindResource(module, name, type) != nullptr;
}

} // namespace

HINSTANCE AFXAPI AfxGetInstanceHandle() { return ::GetModuleHandle(nullptr); }

HINSTANCE AFXAPI AfxGetResourceHandle() {
    if (const AFX_MODULE_STATE* module = CurrentModule()) {
        return module->m_hCurrentResourceHandle;
    }
    const HINSTANCE set = g_resources.load();
    return set == nullptr ? AfxGetInstanceHandle() : set;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    if (AFX_MODULE_STATE* module = CurrentModule()) {
        module->m_hCurrentResourceHandle = hInstResource;
    } else {
        g_resources.store(hInstResource);
    }
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    const HINSTANCE first = AfxGetResourceHandle();
    if (HasResource(first, lpszName, lpszType)) {
        return first;
    }
    {
        const ExtensionLock lock;
        const std::vector<AFX_EXTENSION_MODULE*>& extensions = Extensions();
        for (auto extension = extensions.rbegin(); extension != extensions.rend(); ++extension) {
            if (HasResource((*extension)->hResource, lpszName, lpszType)) {
                return (*extension)->hResource;
            }
        }
    }
    return HasResource(FrameworkInstance(), lpszName, lpszType) ? FrameworkInstance() : first;
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (state.bInitialized) {
        return TRUE;
    }
    state.hModule = hModule;
    state.hResource = hModule;
    state.bInitialized = TRUE;
    const ExtensionLock lock;
    Extensions().push_back(&state);
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL) {
    if (!state.bInitialized) {
        return;
    }
    state.bInitialized = FALSE;
    const ExtensionLock lock;
    std::vector<AFX_EXTENSION_MODULE*>& extensions = Extensions();
    extensions.erase(std::remove(extensions.begin(), extensions.end(), &state), extensions.end());
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState) noexcept
    : m_before(std::exchange(CurrentModule(), pModuleState)) {}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2() { CurrentModule() = m_before; }
