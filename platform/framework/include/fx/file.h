#pragma once

// CFile: unbuffered binary files; CMemFile: the same interface on memory. Errors throw CFileException.

#include "atltime.h"
#include "fx/exceptions.h"

/// What a directory says of a file. Times of 0 are unknown.
struct CFileStatus {
    CTime m_ctime; ///< made
    CTime m_mtime; ///< changed last
    CTime m_atime; ///< read last
    ULONGLONG m_size = 0;
    BYTE m_attribute = 0; ///< CFile::Attribute
    TCHAR m_szFullName[_MAX_PATH] = {};
};

class FRAMEWORK_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags {
        modeRead = 0x00000,
        modeWrite = 0x00001,
        modeReadWrite = 0x00002,
        shareCompat = 0x00000,
        shareExclusive = 0x00010,
        shareDenyWrite = 0x00020,
        shareDenyRead = 0x00030,
        shareDenyNone = 0x00040,
        modeNoInherit = 0x00080,
        modeCreate = 0x01000,
        modeNoTruncate = 0x02000,
        typeText = 0x04000,
        typeBinary = 0x08000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum Attribute {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };
    enum SeekPosition { begin = 0x0, current = 0x1, end = 0x2 };

    static const HANDLE hFileNull;

    CFile() = default;
    /// The object does not close a handle given here unless Close is called.
    CFile(HANDLE hFile);
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    /// Closes a file that this object opened.
    ~CFile() override;

    operator HANDLE() const { return m_hFile; }

    /// FALSE when the file cannot be opened; pError then tells why.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    virtual CFile* Duplicate() const;
    virtual ULONGLONG GetPosition() const;
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const;
    virtual void SetFilePath(LPCTSTR lpszNewName);
    /// Returns the new place from the beginning, in bytes.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual ULONGLONG GetLength() const;
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    /// Fewer bytes than asked for mean that the end was reached.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    /// Closes without throwing.
    virtual void Abort();
    virtual void Flush();
    virtual void Close();

    static void PASCAL Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName);
    static void PASCAL Remove(LPCTSTR lpszFileName);
    /// FALSE when there is no such file, or no file is open.
    BOOL GetStatus(CFileStatus& rStatus) const;
    static BOOL PASCAL GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus);
    /// Sets the attributes and, when m_mtime is not 0, the times. Throws CFileException.
    static void PASCAL SetStatus(LPCTSTR lpszFileName, const CFileStatus& status);

    HANDLE m_hFile = INVALID_HANDLE_VALUE;

protected:
    BOOL m_bCloseOnDelete = FALSE;
    CString m_strFileName;
};

/// What the system shows as the name of the file, for captions and lists. nMax: the room in lpszTitle in characters.
/// 0: it is there; else the room that it needs, and nothing was written.
FRAMEWORK_API UINT AFXAPI AfxGetFileTitle(LPCTSTR lpszPathName, LPTSTR lpszTitle, UINT nMax);

class FRAMEWORK_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)
public:
    /// Grows in steps of at least nGrowBytes.
    explicit CMemFile(UINT nGrowBytes = 1024);
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    /// Uses the caller's memory. With nGrowBytes 0 it cannot grow, and the caller keeps owning it; otherwise it must
    /// come from malloc and is taken over.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Hands the memory over; the caller frees it with free(). The file is empty afterwards.
    BYTE* Detach();

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    CFile* Duplicate() const override;
    ULONGLONG GetPosition() const override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    void SetLength(ULONGLONG dwNewLen) override;
    ULONGLONG GetLength() const override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void Abort() override;
    void Flush() override;
    void Close() override;

private:
    void Reserve(std::size_t size);

    BYTE* m_buffer = nullptr;
    std::size_t m_capacity = 0;
    std::size_t m_length = 0;
    std::size_t m_position = 0;
    UINT m_growBytes = 0;
    bool m_ownsBuffer = true;
};
