#pragma once

// Which module resources are taken from, and the extension DLLs that take part in the search.

#include "fx/base.h"

struct AFX_MODULE_STATE;

/// The application's module.
FRAMEWORK_API HINSTANCE AFXAPI AfxGetInstanceHandle();
/// Where resources are looked for first; the application's module unless set.
FRAMEWORK_API HINSTANCE AFXAPI AfxGetResourceHandle();
FRAMEWORK_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
/// Order: resource handle, extension DLLs (latest first), the framework's own resources. Answers the resource handle
/// when none of them has the resource.
FRAMEWORK_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);

/// State of an extension DLL, a static object of that DLL.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

/// Makes the extension DLL take part in resource searches. Called from its DllMain at attach; FALSE fails the load.
FRAMEWORK_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
FRAMEWORK_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// Switches the calling thread's resource handle for a scope to a DLL's own module; other threads keep theirs. What
/// AfxSetResourceHandle is given meanwhile stays with that module.
class FRAMEWORK_API AFX_MAINTAIN_STATE2 {
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState) noexcept;
    ~AFX_MAINTAIN_STATE2();
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

private:
    AFX_MODULE_STATE* m_before;
};
struct AFX_MODULE_STATE {
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
};

extern "C" IMAGE_DOS_HEADER __ImageBase;
/// State of the module that this call is compiled into: its handle, as instance and for resources.
inline AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    static AFX_MODULE_STATE state{reinterpret_cast<HINSTANCE>(&__ImageBase), reinterpret_cast<HINSTANCE>(&__ImageBase)};
    return &state;
}
#define AFX_MANAGE_STATE(pModuleState) AFX_MAINTAIN_STATE2 managed_module_state_(pModuleState);
