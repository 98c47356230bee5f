#include "fx/module_state.h"

#include "core/module.h"

#include <algorithm>
#include <atomic>
#include <vector>

namespace {

std::atomic<HINSTANCE> g_resources{nullptr};

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
    const HINSTANCE set = g_resources.load();
    return set == nullptr ? AfxGetInstanceHandle() : set;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) { g_resources.store(hInstResource); }

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
    : m_before(g_resources.exchange(pModuleState->m_hCurrentResourceHandle)) {}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2() { g_resources.store(m_before); }
