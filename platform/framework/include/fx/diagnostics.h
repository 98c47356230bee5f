#pragma once

// ASSERT, VERIFY, ENSURE, TRACE. In a build with NDEBUG, ASSERT and TRACE vanish; ENSURE stays: it throws in
// every build, so that callers can rely on it.

#include "fx/base.h"
#include "fx/format.h"

/// Decides what a failed check does. The default writes file and line to standard error and to the debugger, then ends
/// the process with code 3; it never opens a window. Return true to continue after the failed check.
typedef bool (*AFX_ASSERT_HANDLER)(const char* fileName, int line, const char* text);
/// Installs a handler, null for the default; returns the one before.
FRAMEWORK_API AFX_ASSERT_HANDLER AfxSetAssertHandler(AFX_ASSERT_HANDLER handler) noexcept;

FRAMEWORK_API void AfxReportFailedAssert(const char* fileName, int line, const char* text);
FRAMEWORK_API void AfxDebugBreak();
[[noreturn]] FRAMEWORK_API void AfxAbort();
FRAMEWORK_API void AfxAssertValidObject(const CObject* object, const char* fileName, int line);
/// False for null and for addresses that are not readable (or not writable, when bReadWrite is set).
FRAMEWORK_API BOOL AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);
FRAMEWORK_API BOOL AfxIsValidString(LPCSTR lpsz, int nLength = -1);
FRAMEWORK_API BOOL AfxIsValidString(LPCWSTR lpsz, int nLength = -1);

// Declared here as well because ENSURE needs them before fx/exceptions.h.
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowMemoryException();

namespace fx {
FRAMEWORK_API void WriteTrace(const std::wstring& text);

template <typename... Args>
void Trace(LPCWSTR format, const Args&... args) {
    WriteTrace(FormatText(format, args...));
}
template <typename... Args>
void Trace(LPCSTR format, const Args&... args) {
    WriteTrace(WidenText(FormatText(format, args...)));
}
template <typename... Args>
void Trace(DWORD /*category*/, UINT /*level*/, LPCWSTR format, const Args&... args) {
    Trace(format, args...);
}
template <typename... Args>
void Trace(DWORD /*category*/, UINT /*level*/, LPCSTR format, const Args&... args) {
    Trace(format, args...);
}
} // namespace fx

#if FX_CHECKED_BUILD
#define ASSERT(f) ((f) ? (void)0 : AfxReportFailedAssert(__FILE__, __LINE__, #f))
#define VERIFY(f) ASSERT(f)
#define TRACE(...) fx::Trace(__VA_ARGS__)
#define DEBUG_ONLY(f) (f)
#define ASSERT_VALID(pOb) AfxAssertValidObject(pOb, __FILE__, __LINE__)
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define TRACE(...) ((void)0)
#define DEBUG_ONLY(f) ((void)0)
#define ASSERT_VALID(pOb) ((void)0)
#endif
#define ASSERT_POINTER(p, type) ASSERT((p) != nullptr && AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) ASSERT((p) == nullptr || AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define ENSURE_THROW(cond, exception)                                                                                  \
    do {                                                                                                               \
        if (!(cond)) [[unlikely]] {                                                                                    \
            TRACE("%s(%d): argument refused: %s\n", __FILE__, __LINE__, #cond);                                        \
            exception;                                                                                                 \
        }                                                                                                              \
    } while (false)
#define ENSURE(cond) ENSURE_THROW(cond, AfxThrowInvalidArgException())
#define ENSURE_ARG(cond) ENSURE_THROW(cond, AfxThrowInvalidArgException())
#define ENSURE_VALID_THROW(pOb, exception)                                                                             \
    do {                                                                                                               \
        ENSURE_THROW((pOb) != nullptr, exception);                                                                     \
        ASSERT_VALID(pOb);                                                                                             \
    } while (false)
#define ENSURE_VALID(pOb) ENSURE_VALID_THROW(pOb, AfxThrowInvalidArgException())
#define TRACE0(sz) TRACE("%s", sz)
#define TRACE1(sz, p1) TRACE(sz, p1)
#define TRACE2(sz, p1, p2) TRACE(sz, p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(sz, p1, p2, p3)

// A host writes "#define new DEBUG_NEW" in its sources; allocation is the ordinary one.
#define DEBUG_NEW new
#define THIS_FILE __FILE__
