#include "fx/stdio_file.h"

#include <cerrno>
#include <cwchar>
#include <fcntl.h>
#include <io.h>
#include <utility>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace {

const wchar_t* ModeOf(UINT flags) {
    const bool isBinary = (flags & CFile::typeBinary) != 0;
    switch (flags & (CFile::modeWrite | CFile::modeReadWrite)) {
    case CFile::modeWrite:
        return isBinary ? L"wb" : L"wt";
    case CFile::modeReadWrite:
        return isBinary ? L"r+b" : L"r+t";
    default:
        return isBinary ? L"rb" : L"rt";
    }
}

int DescriptorFlagsOf(UINT flags) { return (flags & CFile::typeBinary) != 0 ? _O_BINARY : _O_TEXT; }

HANDLE HandleOf(FILE* stream) { return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream))); }

void Require(bool isDone, LPCTSTR name) {
    if (!isDone) {
        CFileException::ThrowErrno(errno, name);
    }
}

} // namespace

CStdioFile::CStdioFile(FILE* pOpenStream) : CFile(HandleOf(pOpenStream)), m_pStream(pOpenStream) {}

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException error;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
    }
}

CStdioFile::~CStdioFile() {
    if (m_pStream != nullptr && m_bCloseOnDelete) {
        CStdioFile::Abort();
    }
}

// The stream takes the file over from the handle, so that sharing and creation are those of every other file.
BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    ASSERT(m_pStream == nullptr);
    if (!CFile::Open(lpszFileName, nOpenFlags, pError)) {
        return FALSE;
    }
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(m_hFile), DescriptorFlagsOf(nOpenFlags));
    m_pStream = descriptor >= 0 ? _wfdopen(descriptor, ModeOf(nOpenFlags)) : nullptr;
    if (m_pStream != nullptr) {
        return TRUE;
    }
    if (pError != nullptr) {
        pError->m_cause = CFileException::ErrnoToException(errno);
        pError->m_strFileName = lpszFileName;
    }
    if (descriptor >= 0) {
        _close(descriptor);
        m_hFile = hFileNull;
        m_bCloseOnDelete = FALSE;
    } else {
        CFile::Abort();
    }
    return FALSE;
}

void CStdioFile::WriteString(LPCTSTR lpsz) {
    ASSERT(m_pStream != nullptr && lpsz != nullptr);
    Require(std::fputws(lpsz, m_pStream) >= 0, m_strFileName);
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax) {
    ASSERT(m_pStream != nullptr && lpsz != nullptr);
    const LPTSTR read = std::fgetws(lpsz, static_cast<int>(nMax), m_pStream);
    Require(read != nullptr || std::ferror(m_pStream) == 0, m_strFileName);
    return read;
}

BOOL CStdioFile::ReadString(CString& rString) {
    constexpr UINT kPiece = 256;
    wchar_t piece[kPiece];
    rString.Empty();
    while (ReadString(piece, kPiece) != nullptr) {
        rString += piece;
        if (const int last = rString.GetLength() - 1; last >= 0 && rString[last] == L'\n') {
            rString.Truncate(last);
            return TRUE;
        }
    }
    return !rString.IsEmpty();
}

ULONGLONG CStdioFile::GetPosition() const {
    ASSERT(m_pStream != nullptr);
    const auto position = _ftelli64(m_pStream);
    Require(position >= 0, m_strFileName);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom) {
    ASSERT(m_pStream != nullptr);
    constexpr int kOrigins[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    ENSURE(nFrom <= end);
    if (_fseeki64(m_pStream, lOff, kOrigins[nFrom]) != 0) {
        AfxThrowFileException(CFileException::badSeek, static_cast<LONG>(_doserrno), m_strFileName);
    }
    return GetPosition();
}

ULONGLONG CStdioFile::GetLength() const {
    ASSERT(m_pStream != nullptr);
    Require(std::fflush(m_pStream) == 0, m_strFileName);
    return CFile::GetLength();
}

void CStdioFile::SetLength(ULONGLONG dwNewLen) {
    Flush();
    errno = _chsize_s(_fileno(m_pStream), static_cast<LONGLONG>(dwNewLen));
    Require(errno == 0, m_strFileName);
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount) {
    ASSERT(m_pStream != nullptr);
    if (nCount == 0) {
        return 0;
    }
    const std::size_t read = std::fread(lpBuf, 1, nCount, m_pStream);
    Require(read > 0 || std::ferror(m_pStream) == 0, m_strFileName);
    return static_cast<UINT>(read);
}

void CStdioFile::Write(const void* lpBuf, UINT nCount) {
    ASSERT(m_pStream != nullptr);
    Require(std::fwrite(lpBuf, 1, nCount, m_pStream) == nCount, m_strFileName);
}

void CStdioFile::Flush() {
    if (m_pStream != nullptr) {
        Require(std::fflush(m_pStream) == 0, m_strFileName);
    }
}

void CStdioFile::Close() {
    FILE* const stream = std::exchange(m_pStream, nullptr);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    Require(stream == nullptr || std::fclose(stream) == 0, m_strFileName);
    m_strFileName.Empty();
}

void CStdioFile::Abort() {
    if (m_pStream != nullptr && m_bCloseOnDelete) {
        std::fclose(m_pStream);
    }
    m_pStream = nullptr;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

CFile* CStdioFile::Duplicate() const { AfxThrowNotSupportedException(); }

void CStdioFile::LockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException(); }

void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG) { AfxThrowNotSupportedException(); }
