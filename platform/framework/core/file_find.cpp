#include "fx/file_find.h"

#include "core/file_path.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFileFind, CObject)

namespace {

BOOL Tell(const FILETIME& kept, FILETIME* time) {
    ENSURE(time != nullptr);
    *time = kept;
    return kept.dwLowDateTime != 0 || kept.dwHighDateTime != 0;
}

BOOL Tell(const FILETIME& kept, CTime& time) {
    FILETIME known = {};
    if (!Tell(kept, &known)) {
        return FALSE;
    }
    time = CTime(known);
    return TRUE;
}

} // namespace

CFileFind::~CFileFind() { CFileFind::CloseContext(); }

BOOL CFileFind::FindFile(LPCTSTR pstrName, DWORD /*dwUnused*/) {
    Close();
    const LPCTSTR pattern = pstrName != nullptr ? pstrName : L"*.*";
    m_search = ::FindFirstFileW(pattern, &m_next);
    if (m_search == INVALID_HANDLE_VALUE) {
        return FALSE;
    }
    m_isNext = TRUE;
    const CString full = fx::FullPathOf(pattern);
    m_root = full.Left(full.GetLength() - fx::FileNameOf(full).GetLength());
    return TRUE;
}

BOOL CFileFind::FindNextFile() {
    if (m_search == INVALID_HANDLE_VALUE) {
        ::SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    m_isFound = std::exchange(m_isNext, FALSE);
    m_found = m_next;
    m_isNext = m_isFound && ::FindNextFileW(m_search, &m_next);
    return m_isNext;
}

void CFileFind::Close() {
    CloseContext();
    m_isFound = m_isNext = FALSE;
    m_root.Empty();
}

void CFileFind::CloseContext() {
    if (m_search != INVALID_HANDLE_VALUE) {
        ::FindClose(std::exchange(m_search, INVALID_HANDLE_VALUE));
    }
}

CString CFileFind::GetFileName() const {
    ASSERT(IsFound());
    return IsFound() ? CString(m_found.cFileName) : CString();
}

CString CFileFind::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}

CString CFileFind::GetFilePath() const { return GetRoot() + GetFileName(); }

CString CFileFind::GetFileURL() const { return L"file://" + GetFilePath(); }

CString CFileFind::GetRoot() const { return m_root; }

ULONGLONG CFileFind::GetLength() const {
    ASSERT(IsFound());
    return IsFound() ? static_cast<ULONGLONG>(m_found.nFileSizeHigh) << 32 | m_found.nFileSizeLow : 0;
}

BOOL CFileFind::GetCreationTime(FILETIME* pTimeStamp) const {
    return IsFound() && Tell(m_found.ftCreationTime, pTimeStamp);
}

BOOL CFileFind::GetCreationTime(CTime& refTime) const { return IsFound() && Tell(m_found.ftCreationTime, refTime); }

BOOL CFileFind::GetLastAccessTime(FILETIME* pTimeStamp) const {
    return IsFound() && Tell(m_found.ftLastAccessTime, pTimeStamp);
}

BOOL CFileFind::GetLastAccessTime(CTime& refTime) const { return IsFound() && Tell(m_found.ftLastAccessTime, refTime); }

BOOL CFileFind::GetLastWriteTime(FILETIME* pTimeStamp) const {
    return IsFound() && Tell(m_found.ftLastWriteTime, pTimeStamp);
}

BOOL CFileFind::GetLastWriteTime(CTime& refTime) const { return IsFound() && Tell(m_found.ftLastWriteTime, refTime); }

BOOL CFileFind::MatchesMask(DWORD dwMask) const {
    ASSERT(IsFound());
    return IsFound() && (m_found.dwFileAttributes & dwMask) == dwMask;
}

BOOL CFileFind::IsDots() const {
    const CString name = GetFileName();
    return IsDirectory() && (name == L"." || name == L"..");
}
