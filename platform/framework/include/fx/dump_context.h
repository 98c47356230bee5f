#pragma once

// CDumpContext: readable text about objects, for the debugger or a file.

#include "fx/file.h"

class FRAMEWORK_API CDumpContext {
public:
    /// Null: the debugger's output. The file is the caller's and receives text of the ANSI code page.
    explicit CDumpContext(CFile* pFile = nullptr) noexcept : m_file(pFile) {}
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    /// 0: objects name only themselves; above: they dump what they hold too.
    int GetDepth() const { return m_depth; }
    void SetDepth(int nNewDepth) { m_depth = nNewDepth; }
    void Flush();

    CDumpContext& operator<<(LPCTSTR lpsz);
    CDumpContext& operator<<(LPCSTR lpsz);
    CDumpContext& operator<<(const void* lp);
    CDumpContext& operator<<(const CObject* pOb);
    CDumpContext& operator<<(const CObject& ob) { return *this << &ob; }
    CDumpContext& operator<<(BYTE by) { return *this << static_cast<UINT>(by); }
    CDumpContext& operator<<(WORD w) { return *this << static_cast<UINT>(w); }
    CDumpContext& operator<<(UINT u);
    CDumpContext& operator<<(LONG l) { return *this << static_cast<LONGLONG>(l); }
    CDumpContext& operator<<(DWORD dw) { return *this << static_cast<ULONGLONG>(dw); }
    CDumpContext& operator<<(float f) { return *this << static_cast<double>(f); }
    CDumpContext& operator<<(double d);
    CDumpContext& operator<<(int n) { return *this << static_cast<LONGLONG>(n); }
    CDumpContext& operator<<(LONGLONG n);
    CDumpContext& operator<<(ULONGLONG n);
    CDumpContext& operator<<(HWND h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HDC h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HMENU h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HACCEL h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HFONT h) { return *this << static_cast<const void*>(h); }

    template <typename Integer>
    CDumpContext& DumpAsHex(Integer value) {
        return *this << fx::FormatText(L"0x%0*X", static_cast<int>(2 * sizeof(Integer)), value).c_str();
    }
    /// nBytes bytes in lines of nWidth, each after the text lpszLine (which may hold one %X for the address).
    void HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth);

private:
    CFile* m_file;
    int m_depth = 0;
};

/// Writes to the debugger's output.
FRAMEWORK_API extern CDumpContext afxDump;
FRAMEWORK_API void AFXAPI AfxDump(const CObject* pOb);
