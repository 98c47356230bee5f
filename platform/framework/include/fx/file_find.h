#pragma once

// CFileFind: goes through the files of a folder that fit a pattern.
//
//     CFileFind finder;
//     BOOL isMore = finder.FindFile(L"maps\\*.json");
//     while (isMore) {
//         isMore = finder.FindNextFile();
//         Open(finder.GetFilePath());
//     }

#include "atltime.h"
#include "fx/object.h"
#include "fx/string.h"

class FRAMEWORK_API CFileFind : public CObject {
    DECLARE_DYNAMIC(CFileFind)
public:
    CFileFind() = default;
    ~CFileFind() override;
    CFileFind(const CFileFind&) = delete;
    CFileFind& operator=(const CFileFind&) = delete;

    /// Begins a search; NULL: of all files of the current folder. FALSE: nothing fits, GetLastError tells why. What was
    /// found is told after FindNextFile. dwUnused is 0.
    virtual BOOL FindFile(LPCTSTR pstrName = nullptr, DWORD dwUnused = 0);
    /// Goes on to the next file, the first time to the first. FALSE: there is none behind it.
    virtual BOOL FindNextFile();
    /// Ends the search; another one may begin.
    void Close();

    // Of the file that FindNextFile has come to.
    virtual CString GetFileName() const;
    /// The name without its last extension.
    virtual CString GetFileTitle() const;
    /// With all folders.
    virtual CString GetFilePath() const;
    /// As file://...
    virtual CString GetFileURL() const;
    /// The folder of the search, with its last backslash.
    virtual CString GetRoot() const;
    /// In bytes.
    ULONGLONG GetLength() const;
    // FALSE where the file system does not keep the time.
    virtual BOOL GetCreationTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetCreationTime(CTime& refTime) const;
    virtual BOOL GetLastAccessTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastAccessTime(CTime& refTime) const;
    virtual BOOL GetLastWriteTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastWriteTime(CTime& refTime) const;
    /// Whether the file has all attributes of the mask (FILE_ATTRIBUTE_ values).
    virtual BOOL MatchesMask(DWORD dwMask) const;
    /// "." or "..".
    virtual BOOL IsDots() const;
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsCompressed() const { return MatchesMask(FILE_ATTRIBUTE_COMPRESSED); }
    BOOL IsSystem() const { return MatchesMask(FILE_ATTRIBUTE_SYSTEM); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsTemporary() const { return MatchesMask(FILE_ATTRIBUTE_TEMPORARY); }
    BOOL IsNormal() const { return MatchesMask(FILE_ATTRIBUTE_NORMAL); }
    BOOL IsArchived() const { return MatchesMask(FILE_ATTRIBUTE_ARCHIVE); }

protected:
    /// The search is closed.
    virtual void CloseContext();

private:
    BOOL IsFound() const { return m_search != INVALID_HANDLE_VALUE && m_isFound; }

    HANDLE m_search = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW m_found = {};
    WIN32_FIND_DATAW m_next = {};
    BOOL m_isFound = FALSE; // m_found is a file
    BOOL m_isNext = FALSE;  // and m_next the one behind it
    CString m_root;
};
