#include "fx/diagnostics.h"

#include "fx/object.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace {

std::atomic<AFX_ASSERT_HANDLER> g_assertHandler{nullptr};

template <typename Char>
BOOL IsReadableText(const Char* text, int length) {
    if (length >= 0) {
        return AfxIsValidAddress(text, static_cast<UINT_PTR>(length) * sizeof(Char), FALSE);
    }
    constexpr ULONG_PTR pageSize = 4096;
    // Page by page: the end is not known beforehand.
    for (const Char* place = text; AfxIsValidAddress(place, sizeof(Char), FALSE);) {
        const ULONG_PTR address = reinterpret_cast<ULONG_PTR>(place);
        const Char* const pageEnd = reinterpret_cast<const Char*>((address / pageSize + 1) * pageSize);
        for (; place < pageEnd; ++place) {
            if (*place == 0) {
                return TRUE;
            }
        }
    }
    return FALSE;
}

} // namespace

AFX_ASSERT_HANDLER AfxSetAssertHandler(AFX_ASSERT_HANDLER handler) noexcept {
    return g_assertHandler.exchange(handler);
}

void AfxReportFailedAssert(const char* fileName, int line, const char* text) {
    if (const AFX_ASSERT_HANDLER handler = g_assertHandler.load(); handler != nullptr) {
        if (handler(fileName, line, text)) {
            return;
        }
        AfxAbort();
    }
    const std::string message = fx::FormatText("%s(%d): check failed: %s\n", fileName, line, text);
    std::fputs(message.c_str(), stderr);
    std::fflush(stderr);
    ::OutputDebugStringA(message.c_str());
    if (::IsDebuggerPresent()) {
        AfxDebugBreak();
        return;
    }
    AfxAbort();
}

void AfxDebugBreak() { ::DebugBreak(); }

void AfxAbort() {
    // Not abort(): the C run-time library would open a message box in some hosts.
    ::TerminateProcess(::GetCurrentProcess(), 3);
    std::abort();
}

void AfxAssertValidObject(const CObject* object, const char* fileName, int line) {
    if (object == nullptr) {
        AfxReportFailedAssert(fileName, line, "the object is null");
    } else if (!AfxIsValidAddress(object, sizeof(CObject))) {
        AfxReportFailedAssert(fileName, line, "the object's memory is not accessible");
    } else {
        object->AssertValid();
    }
}

BOOL AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite) {
    constexpr DWORD writable = PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    constexpr DWORD readable = writable | PAGE_READONLY | PAGE_EXECUTE_READ;
    if (lp == nullptr) {
        return FALSE;
    }
    const BYTE* place = static_cast<const BYTE*>(lp);
    const BYTE* const end = place + (nBytes == 0 ? 1 : nBytes);
    while (place < end) {
        MEMORY_BASIC_INFORMATION region;
        if (::VirtualQuery(place, &region, sizeof(region)) == 0 || region.State != MEM_COMMIT ||
            (region.Protect & (bReadWrite ? writable : readable)) == 0 || (region.Protect & PAGE_GUARD) != 0) {
            return FALSE;
        }
        place = static_cast<const BYTE*>(region.BaseAddress) + region.RegionSize;
    }
    return TRUE;
}

BOOL AfxIsValidString(LPCSTR lpsz, int nLength) { return IsReadableText(lpsz, nLength); }
BOOL AfxIsValidString(LPCWSTR lpsz, int nLength) { return IsReadableText(lpsz, nLength); }

namespace fx {
void WriteTrace(const std::wstring& text) { ::OutputDebugStringW(text.c_str()); }
} // namespace fx
