#pragma once

// Exceptions travel as pointers: whoever catches one calls Delete() (the CATCH macros do it) or throws it on.

#include "fx/object.h"
#include "fx/string.h"

class FRAMEWORK_API AFX_NOVTABLE CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException() : CException(TRUE) {}
    /// TRUE for objects made with new; FALSE for static ones, which Delete() leaves alone.
    explicit CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}

    void Delete();
    /// Up to nMaxError characters with the zero. FALSE: there is no message, lpszError is "".
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const;
    /// Shows the message, or the string resource nMessageID when there is none; returns the chosen button.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

private:
    BOOL m_bAutoDelete;
};

/// An exception whose message is a fixed text, and of which a static object serves when memory is out.
class FRAMEWORK_API AFX_NOVTABLE CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException() = default;
    explicit CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

protected:
    virtual LPCTSTR GetMessageText() const { return nullptr; }
};

class FRAMEWORK_API CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException() = default;
    explicit CMemoryException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

protected:
    LPCTSTR GetMessageText() const override;
};

class FRAMEWORK_API CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException() = default;
    explicit CNotSupportedException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

protected:
    LPCTSTR GetMessageText() const override;
};

class FRAMEWORK_API CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException() = default;
    explicit CInvalidArgException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

protected:
    LPCTSTR GetMessageText() const override;
};

class FRAMEWORK_API CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException() = default;
    explicit CResourceException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

protected:
    LPCTSTR GetMessageText() const override;
};

/// Stops an operation that has already told the user; it has no message of its own.
class FRAMEWORK_API CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException() = default;
    explicit CUserException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
};

class FRAMEWORK_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    CFileException(int cause = CFileException::none, LONG lOsError = -1, LPCTSTR lpszArchiveName = nullptr);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;

    static int PASCAL OsErrorToException(LONG lOsError);
    static int PASCAL ErrnoToException(int nErrno);
    [[noreturn]] static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = nullptr);
    [[noreturn]] static void PASCAL ThrowErrno(int nErrno, LPCTSTR lpszFileName = nullptr);
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

class FRAMEWORK_API CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum { none, genericException, readOnly, endOfFile, writeOnly, badIndex, badClass, badSchema };

    CArchiveException(int cause = CArchiveException::none, LPCTSTR lpszArchiveName = nullptr);

    int m_cause;
    CString m_strFileName;

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowResourceException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowUserException();
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                             LPCTSTR lpszFileName = nullptr);
[[noreturn]] FRAMEWORK_API void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName = nullptr);

namespace fx {
/// Shows an exception's message. The part that knows the application's message box replaces it; the default is a plain
/// message box. Returns the handler before.
typedef int (*ReportErrorHandler)(LPCTSTR text, UINT type, UINT helpId);
FRAMEWORK_API ReportErrorHandler SetReportErrorHandler(ReportErrorHandler handler) noexcept;

/// Deletes a caught exception at the end of its CATCH block unless the block throws it on.
class CaughtException {
public:
    explicit CaughtException(CException* exception) noexcept : m_exception(exception) {}
    ~CaughtException() {
        if (m_exception != nullptr) {
            m_exception->Delete();
        }
    }
    CaughtException(const CaughtException&) = delete;
    CaughtException& operator=(const CaughtException&) = delete;
    void Keep() noexcept { m_exception = nullptr; }

private:
    CException* m_exception;
};
} // namespace fx

// The blocks of the macros delete the exception themselves; THROW_LAST passes the same one on.
#define TRY try {
#define CATCH(class_name, e)                                                                                           \
    }                                                                                                                  \
    catch (class_name * e) {                                                                                           \
        fx::CaughtException caught_exception_(e);
#define AND_CATCH(class_name, e) CATCH(class_name, e)
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH }
#define END_CATCH_ALL }
#define END_TRY                                                                                                        \
    }                                                                                                                  \
    catch (CException * e) {                                                                                           \
        e->Delete();                                                                                                   \
    }
#define THROW(e) throw e
#define THROW_LAST() (caught_exception_.Keep(), throw)
