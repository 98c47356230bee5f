#include "fx/file.h"

#include <cwchar>

// What the directory says of a file.

namespace {

constexpr DWORD knownAttributes = CFile::readOnly | CFile::hidden | CFile::system | CFile::directory | CFile::archive;

FILETIME FileTimeOf(CTime time) {
    FILETIME result = {};
    SYSTEMTIME local = {};
    FILETIME localTime = {};
    if (time.GetTime() != 0 && time.GetAsSystemTime(local) && ::SystemTimeToFileTime(&local, &localTime)) {
        // By the rules of that day, not of today.
        SYSTEMTIME utc = {};
        ::TzSpecificLocalTimeToSystemTime(nullptr, &local, &utc);
        ::SystemTimeToFileTime(&utc, &result);
    }
    return result;
}

void Fill(CFileStatus& status, const FILETIME& made, const FILETIME& changed, const FILETIME& read, DWORD attributes) {
    status.m_ctime = CTime(made);
    status.m_mtime = CTime(changed);
    status.m_atime = CTime(read);
    status.m_attribute = static_cast<BYTE>(attributes & knownAttributes);
}

void SetName(CFileStatus& status, LPCTSTR name) {
    wchar_t full[_MAX_PATH] = {};
    const DWORD length = ::GetFullPathName(name, _MAX_PATH, full, nullptr);
    std::wcsncpy(status.m_szFullName, length != 0 && length < _MAX_PATH ? full : name, _MAX_PATH - 1);
    status.m_szFullName[_MAX_PATH - 1] = L'\0';
}

[[noreturn]] void ThrowLastError(LPCTSTR name) {
    CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), name);
}

void SetTimes(LPCTSTR name, const CFileStatus& status) {
    const HANDLE file = ::CreateFile(name, FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                     OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        ThrowLastError(name);
    }
    const FILETIME made = FileTimeOf(status.m_ctime);
    const FILETIME changed = FileTimeOf(status.m_mtime);
    const FILETIME read = FileTimeOf(status.m_atime);
    const auto orNull = [](const FILETIME& time) {
        return time.dwHighDateTime != 0 || time.dwLowDateTime != 0 ? &time : nullptr;
    };
    const BOOL isSet = ::SetFileTime(file, orNull(made), orNull(read), orNull(changed));
    const DWORD error = ::GetLastError();
    ::CloseHandle(file);
    if (!isSet) {
        ::SetLastError(error);
        ThrowLastError(name);
    }
}

} // namespace

BOOL CFile::GetStatus(CFileStatus& rStatus) const {
    BY_HANDLE_FILE_INFORMATION info = {};
    if (m_hFile == hFileNull || !::GetFileInformationByHandle(m_hFile, &info)) {
        return FALSE;
    }
    Fill(rStatus, info.ftCreationTime, info.ftLastWriteTime, info.ftLastAccessTime, info.dwFileAttributes);
    rStatus.m_size = static_cast<ULONGLONG>(info.nFileSizeHigh) << 32 | info.nFileSizeLow;
    SetName(rStatus, m_strFileName);
    return TRUE;
}

BOOL PASCAL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus) {
    WIN32_FILE_ATTRIBUTE_DATA info = {};
    if (lpszFileName == nullptr || !::GetFileAttributesEx(lpszFileName, GetFileExInfoStandard, &info)) {
        return FALSE;
    }
    Fill(rStatus, info.ftCreationTime, info.ftLastWriteTime, info.ftLastAccessTime, info.dwFileAttributes);
    rStatus.m_size = static_cast<ULONGLONG>(info.nFileSizeHigh) << 32 | info.nFileSizeLow;
    SetName(rStatus, lpszFileName);
    return TRUE;
}

void PASCAL CFile::SetStatus(LPCTSTR lpszFileName, const CFileStatus& status) {
    const DWORD before = ::GetFileAttributes(lpszFileName);
    if (before == INVALID_FILE_ATTRIBUTES) {
        ThrowLastError(lpszFileName);
    }
    // A file that is to be changed must not be read-only meanwhile.
    const auto setAttributes = [lpszFileName](DWORD attributes) {
        if (!::SetFileAttributes(lpszFileName, attributes != 0 ? attributes : FILE_ATTRIBUTE_NORMAL)) {
            ThrowLastError(lpszFileName);
        }
    };
    if ((before & readOnly) != 0 && (status.m_attribute != before || status.m_mtime.GetTime() != 0)) {
        setAttributes(before & ~static_cast<DWORD>(readOnly));
    }
    if (status.m_mtime.GetTime() != 0) {
        SetTimes(lpszFileName, status);
    }
    setAttributes(status.m_attribute & ~static_cast<DWORD>(directory | volume));
}
