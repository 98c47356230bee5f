#pragma once

// CStdioFile: a file of the C library's streams, buffered, read and written as text line by line or as it is.

#include "fx/file.h"

#include <cstdio>

class FRAMEWORK_API CStdioFile : public CFile {
    DECLARE_DYNAMIC(CStdioFile)
public:
    CStdioFile() = default;
    /// The stream stays open when the object goes, unless Close is called.
    CStdioFile(FILE* pOpenStream);
    /// Throws CFileException where the file cannot be opened.
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    /// Closes a file that this object opened.
    ~CStdioFile() override;

    /// As text (line ends are LF in memory, CR LF in the file) unless nOpenFlags have typeBinary.
    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;

    /// Writes the text up to its NUL; a line end is the caller's to write. Throws CFileException.
    virtual void WriteString(LPCTSTR lpsz);
    /// One line with its LF, or the part of it that nMax characters and their NUL hold. NULL at the end of the file.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    /// One line of any length without its LF. FALSE at the end of the file.
    virtual BOOL ReadString(CString& rString);

    ULONGLONG GetPosition() const override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void Flush() override;
    void Close() override;
    void Abort() override;

    // A stream can be neither copied nor locked: CNotSupportedException.
    CFile* Duplicate() const override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;

    FILE* m_pStream = nullptr; ///< NULL while no file is open.
};
