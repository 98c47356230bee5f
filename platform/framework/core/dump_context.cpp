#include "fx/dump_context.h"

CDumpContext afxDump;

void CDumpContext::Flush() {
    if (m_file != nullptr) {
        m_file->Flush();
    }
}

CDumpContext& CDumpContext::operator<<(LPCTSTR lpsz) {
    if (lpsz == nullptr) {
        return *this << L"(null)";
    }
    if (m_file == nullptr) {
        ::OutputDebugString(lpsz);
    } else {
        const std::string text = fx::NarrowText(lpsz);
        m_file->Write(text.data(), static_cast<UINT>(text.size()));
    }
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCSTR lpsz) {
    return lpsz == nullptr ? *this << L"(null)" : *this << fx::WidenText(lpsz).c_str();
}

CDumpContext& CDumpContext::operator<<(const void* lp) { return *this << fx::FormatText(L"$%p", lp).c_str(); }

CDumpContext& CDumpContext::operator<<(const CObject* pOb) {
    if (pOb == nullptr) {
        return *this << L"null";
    }
    pOb->Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(UINT u) { return *this << static_cast<ULONGLONG>(u); }
CDumpContext& CDumpContext::operator<<(double d) { return *this << fx::FormatText(L"%g", d).c_str(); }
CDumpContext& CDumpContext::operator<<(LONGLONG n) { return *this << fx::FormatText(L"%lld", n).c_str(); }
CDumpContext& CDumpContext::operator<<(ULONGLONG n) { return *this << fx::FormatText(L"%llu", n).c_str(); }

void CDumpContext::HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth) {
    ENSURE(nWidth > 0 && (pby != nullptr || nBytes == 0));
    for (int index = 0; index < nBytes; ++index) {
        if (index % nWidth == 0) {
            *this << (index == 0 ? L"" : L"\n")
                  << fx::FormatText(lpszLine, reinterpret_cast<ULONG_PTR>(pby + index)).c_str();
        }
        *this << fx::FormatText(L" %02X", pby[index]).c_str();
    }
    *this << L"\n";
}

void AFXAPI AfxDump(const CObject* pOb) { afxDump << pOb << L"\n"; }
