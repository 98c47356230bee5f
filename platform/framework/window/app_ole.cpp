#include "afxdisp.h"
#include "window/thread_state.h"

#include <ole2.h>

BOOL AFXAPI AfxOleInit() {
    fx::ThreadState& thread = fx::CurrentThread();
    if (!thread.hasOle) {
        const HRESULT result = ::OleInitialize(nullptr);
        thread.hasOle = SUCCEEDED(result);
    }
    return thread.hasOle;
}

void fx::EndOle(ThreadState& thread) {
    if (std::exchange(thread.hasOle, false)) {
        ::OleUninitialize();
    }
}

void AFXAPI AfxEnableControlContainer() {}
