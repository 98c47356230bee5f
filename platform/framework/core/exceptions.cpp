#include "fx/exceptions.h"

#include <atomic>
#include <cerrno>
#include <iterator>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

BOOL CopyMessage(LPCTSTR text, LPTSTR target, UINT size) {
    if (target == nullptr || size == 0) {
        return FALSE;
    }
    ::lstrcpyn(target, text == nullptr ? L"" : text, static_cast<int>(size));
    return target[0] != 0;
}

int ShowPlainMessage(LPCTSTR text, UINT type, UINT) { return ::MessageBox(::GetActiveWindow(), text, nullptr, type); }

std::atomic<fx::ReportErrorHandler> g_reportError{&ShowPlainMessage};

// These need no memory when they are thrown.
template <class Exception>
[[noreturn]] void ThrowStatic() {
    static Exception exception(FALSE);
    throw &exception;
}

struct OsError {
    LONG number;
    int cause;
};
constexpr OsError osErrors[] = {
    {ERROR_SUCCESS, CFileException::none},
    {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
    {ERROR_INVALID_NAME, CFileException::fileNotFound},
    {ERROR_PATH_NOT_FOUND, CFileException::badPath},
    {ERROR_BAD_PATHNAME, CFileException::badPath},
    {ERROR_INVALID_DRIVE, CFileException::badPath},
    {ERROR_DIRECTORY, CFileException::badPath},
    {ERROR_BAD_NETPATH, CFileException::badPath},
    {ERROR_FILENAME_EXCED_RANGE, CFileException::badPath},
    {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
    {ERROR_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_WRITE_PROTECT, CFileException::accessDenied},
    {ERROR_ALREADY_EXISTS, CFileException::accessDenied},
    {ERROR_FILE_EXISTS, CFileException::accessDenied},
    {ERROR_NETWORK_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_INVALID_HANDLE, CFileException::invalidFile},
    {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
    {ERROR_CANNOT_MAKE, CFileException::directoryFull},
    {ERROR_SEEK, CFileException::badSeek},
    {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
    {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
    {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
    {ERROR_NOT_LOCKED, CFileException::lockViolation},
    {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
    {ERROR_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_EOF, CFileException::endOfFile},
    {ERROR_CRC, CFileException::hardIO},
    {ERROR_NOT_READY, CFileException::hardIO},
    {ERROR_WRITE_FAULT, CFileException::hardIO},
    {ERROR_READ_FAULT, CFileException::hardIO},
    {ERROR_IO_DEVICE, CFileException::hardIO},
};
constexpr OsError cErrors[] = {
    {0, CFileException::none},
    {ENOENT, CFileException::fileNotFound},
    {EACCES, CFileException::accessDenied},
    {EPERM, CFileException::accessDenied},
    {EEXIST, CFileException::accessDenied},
    {EBADF, CFileException::invalidFile},
    {EDOM, CFileException::invalidFile},
    {EMFILE, CFileException::tooManyOpenFiles},
    {ENFILE, CFileException::tooManyOpenFiles},
    {ENOSPC, CFileException::diskFull},
    {EIO, CFileException::hardIO},
    {ESPIPE, CFileException::badSeek},
    {ENOTDIR, CFileException::badPath},
    {ENAMETOOLONG, CFileException::badPath},
};
template <std::size_t size>
int CauseOf(const OsError (&table)[size], LONG number) {
    for (const OsError& entry : table) {
        if (entry.number == number) {
            return entry.cause;
        }
    }
    return CFileException::genericException;
}

constexpr LPCTSTR fileMessages[] = {
    L"No error occurred.",
    L"An error occurred while accessing %1.",
    L"%1 was not found.",
    L"%1 contains an incorrect path.",
    L"%1 could not be opened because there are too many open files.",
    L"Access to %1 was denied.",
    L"An incorrect file handle was associated with %1.",
    L"%1 could not be removed because it is the current directory.",
    L"%1 could not be created because the directory is full.",
    L"Seek failed on %1.",
    L"A hardware I/O error was reported while accessing %1.",
    L"A sharing violation occurred while accessing %1.",
    L"A locking violation occurred while accessing %1.",
    L"Disk full while accessing %1.",
    L"An attempt was made to access %1 past its end.",
};
constexpr LPCTSTR archiveMessages[] = {
    L"No error occurred.",
    L"An error occurred while accessing %1.",
    L"An attempt was made to write to the reading %1.",
    L"An attempt was made to access %1 past its end.",
    L"An attempt was made to read from the writing %1.",
    L"%1 has a bad format.",
    L"%1 contains an unexpected object.",
    L"%1 contains an incorrect schema.",
};
template <std::size_t size>
BOOL CopyCauseMessage(const LPCTSTR (&table)[size], int cause, const CString& name, LPTSTR target, UINT length) {
    const int index = cause >= 0 && cause < static_cast<int>(size) ? cause : 1;
    return CopyMessage(fx::MessageText(table[index], name.IsEmpty() ? L"an unnamed file" : name.GetString()).c_str(),
                       target, length);
}

} // namespace

void CException::Delete() {
    if (m_bAutoDelete) {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr) {
        *pnHelpContext = 0;
    }
    return CopyMessage(nullptr, lpszError, nMaxError);
}

int CException::ReportError(UINT nType, UINT nMessageID) {
    WCHAR message[512];
    UINT help = 0;
    CString text;
    if (GetErrorMessage(message, static_cast<UINT>(std::size(message)), &help)) {
        text = message;
    } else if (nMessageID == 0 || !text.LoadString(nMessageID)) {
        text = L"An error occurred.";
    }
    return g_reportError.load()(text, nType, help);
}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr) {
        *pnHelpContext = 0;
    }
    return CopyMessage(GetMessageText(), lpszError, nMaxError);
}

LPCTSTR CMemoryException::GetMessageText() const { return L"Out of memory."; }
LPCTSTR CNotSupportedException::GetMessageText() const { return L"An unsupported operation was attempted."; }
LPCTSTR CInvalidArgException::GetMessageText() const { return L"An invalid argument was encountered."; }
LPCTSTR CResourceException::GetMessageText() const { return L"A required resource was unavailable."; }

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName) {}

int PASCAL CFileException::OsErrorToException(LONG lOsError) { return CauseOf(osErrors, lOsError); }
int PASCAL CFileException::ErrnoToException(int nErrno) { return CauseOf(cErrors, nErrno); }

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName) {
    AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

void PASCAL CFileException::ThrowErrno(int nErrno, LPCTSTR lpszFileName) {
    AfxThrowFileException(ErrnoToException(nErrno), nErrno, lpszFileName);
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr) {
        *pnHelpContext = 0;
    }
    return CopyCauseMessage(fileMessages, m_cause, m_strFileName, lpszError, nMaxError);
}

CArchiveException::CArchiveException(int cause, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_strFileName(lpszArchiveName) {}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr) {
        *pnHelpContext = 0;
    }
    return CopyCauseMessage(archiveMessages, m_cause, m_strFileName, lpszError, nMaxError);
}

void AFXAPI AfxThrowMemoryException() { ThrowStatic<CMemoryException>(); }
void AFXAPI AfxThrowNotSupportedException() { ThrowStatic<CNotSupportedException>(); }
void AFXAPI AfxThrowInvalidArgException() { ThrowStatic<CInvalidArgException>(); }
void AFXAPI AfxThrowResourceException() { ThrowStatic<CResourceException>(); }
void AFXAPI AfxThrowUserException() { ThrowStatic<CUserException>(); }

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName) {
    throw new CFileException(cause, lOsError, lpszFileName);
}

void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName) {
    throw new CArchiveException(cause, lpszArchiveName);
}

namespace fx {
ReportErrorHandler SetReportErrorHandler(ReportErrorHandler handler) noexcept {
    return g_reportError.exchange(handler == nullptr ? &ShowPlainMessage : handler);
}
} // namespace fx
