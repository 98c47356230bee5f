#include "fx/file.h"

#include "core/file_path.h"

#include <memory>

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace {

DWORD ShareMode(UINT flags) {
    switch (flags & 0x70) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD Access(UINT flags) {
    switch (flags & 0x3) {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD Disposition(UINT flags) {
    if ((flags & CFile::modeCreate) == 0) {
        return OPEN_EXISTING;
    }
    return (flags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD Attributes(UINT flags) {
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    attributes |= (flags & CFile::osNoBuffer) != 0 ? FILE_FLAG_NO_BUFFERING : 0;
    attributes |= (flags & CFile::osWriteThrough) != 0 ? FILE_FLAG_WRITE_THROUGH : 0;
    attributes |= (flags & CFile::osRandomAccess) != 0 ? FILE_FLAG_RANDOM_ACCESS : 0;
    attributes |= (flags & CFile::osSequentialScan) != 0 ? FILE_FLAG_SEQUENTIAL_SCAN : 0;
    return attributes;
}

[[noreturn]] void ThrowLastError(LPCTSTR name) {
    CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), name);
}

} // namespace

CFile::CFile(HANDLE hFile) : m_hFile(hFile) {}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException error;
    if (!CFile::Open(lpszFileName, nOpenFlags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
    }
}

CFile::~CFile() {
    if (m_hFile != hFileNull && m_bCloseOnDelete) {
        CFile::Abort();
    }
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    ENSURE(lpszFileName != nullptr);
    ASSERT(m_hFile == hFileNull);
    SECURITY_ATTRIBUTES security = {sizeof(security), nullptr, (nOpenFlags & modeNoInherit) == 0};
    m_strFileName = fx::FullPathOf(lpszFileName);
    m_hFile = ::CreateFile(lpszFileName, Access(nOpenFlags), ShareMode(nOpenFlags), &security, Disposition(nOpenFlags),
                           Attributes(nOpenFlags), nullptr);
    m_bCloseOnDelete = m_hFile != hFileNull;
    if (m_hFile == hFileNull && pError != nullptr) {
        pError->m_lOsError = static_cast<LONG>(::GetLastError());
        pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
        pError->m_strFileName = lpszFileName;
    }
    return m_hFile != hFileNull;
}

CFile* CFile::Duplicate() const {
    auto copy = std::make_unique<CFile>();
    if (!::DuplicateHandle(::GetCurrentProcess(), m_hFile, ::GetCurrentProcess(), &copy->m_hFile, 0, FALSE,
                           DUPLICATE_SAME_ACCESS)) {
        ThrowLastError(m_strFileName);
    }
    copy->m_bCloseOnDelete = TRUE;
    copy->m_strFileName = m_strFileName;
    return copy.release();
}

ULONGLONG CFile::GetPosition() const {
    LARGE_INTEGER position = {};
    if (!::SetFilePointerEx(m_hFile, LARGE_INTEGER{}, &position, FILE_CURRENT)) {
        ThrowLastError(m_strFileName);
    }
    return static_cast<ULONGLONG>(position.QuadPart);
}

CString CFile::GetFilePath() const { return m_strFileName; }

CString CFile::GetFileName() const { return m_strFileName.Mid(m_strFileName.ReverseFind(L'\\') + 1); }

CString CFile::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}

void CFile::SetFilePath(LPCTSTR lpszNewName) { m_strFileName = lpszNewName; }

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom) {
    LARGE_INTEGER offset;
    offset.QuadPart = lOff;
    LARGE_INTEGER position = {};
    if (!::SetFilePointerEx(m_hFile, offset, &position, nFrom)) {
        ThrowLastError(m_strFileName);
    }
    return static_cast<ULONGLONG>(position.QuadPart);
}

void CFile::SetLength(ULONGLONG dwNewLen) {
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
    if (!::SetEndOfFile(m_hFile)) {
        ThrowLastError(m_strFileName);
    }
}

ULONGLONG CFile::GetLength() const {
    LARGE_INTEGER size = {};
    if (!::GetFileSizeEx(m_hFile, &size)) {
        ThrowLastError(m_strFileName);
    }
    return static_cast<ULONGLONG>(size.QuadPart);
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    if (nCount == 0) {
        return 0;
    }
    ENSURE(lpBuf != nullptr);
    DWORD read = 0;
    if (!::ReadFile(m_hFile, lpBuf, nCount, &read, nullptr)) {
        ThrowLastError(m_strFileName);
    }
    return read;
}

void CFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0) {
        return;
    }
    ENSURE(lpBuf != nullptr);
    DWORD written = 0;
    if (!::WriteFile(m_hFile, lpBuf, nCount, &written, nullptr)) {
        ThrowLastError(m_strFileName);
    }
    if (written != nCount) {
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
    }
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    if (!::LockFile(m_hFile, static_cast<DWORD>(dwPos), static_cast<DWORD>(dwPos >> 32), static_cast<DWORD>(dwCount),
                    static_cast<DWORD>(dwCount >> 32))) {
        ThrowLastError(m_strFileName);
    }
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    if (!::UnlockFile(m_hFile, static_cast<DWORD>(dwPos), static_cast<DWORD>(dwPos >> 32), static_cast<DWORD>(dwCount),
                      static_cast<DWORD>(dwCount >> 32))) {
        ThrowLastError(m_strFileName);
    }
}

void CFile::Abort() {
    if (m_hFile != hFileNull) {
        ::CloseHandle(m_hFile);
        m_hFile = hFileNull;
    }
    m_strFileName.Empty();
    m_bCloseOnDelete = FALSE;
}

void CFile::Flush() {
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile)) {
        ThrowLastError(m_strFileName);
    }
}

void CFile::Close() {
    const HANDLE file = m_hFile;
    const CString name = m_strFileName;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (file != hFileNull && !::CloseHandle(file)) {
        ThrowLastError(name);
    }
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName) {
    if (!::MoveFile(lpszOldName, lpszNewName)) {
        ThrowLastError(lpszOldName);
    }
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName) {
    if (!::DeleteFile(lpszFileName)) {
        ThrowLastError(lpszFileName);
    }
}
