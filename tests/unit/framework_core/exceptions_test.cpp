#include "afx.h"

#include <gtest/gtest.h>

namespace {

template <class Exception>
CString MessageOf(const Exception& exception) {
    WCHAR text[256];
    exception.GetErrorMessage(text, 256);
    return text;
}

TEST(Exceptions, ThrownPointersAreCaughtByBaseClass) {
    const auto classOf = [](void (*thrower)()) {
        try {
            thrower();
        } catch (CException* exception) {
            const CRuntimeClass* const runtimeClass = exception->GetRuntimeClass();
            exception->Delete();
            return runtimeClass;
        }
        return static_cast<const CRuntimeClass*>(nullptr);
    };
    EXPECT_EQ(classOf([] { AfxThrowMemoryException(); }), RUNTIME_CLASS(CMemoryException));
    EXPECT_EQ(classOf([] { AfxThrowNotSupportedException(); }), RUNTIME_CLASS(CNotSupportedException));
    EXPECT_EQ(classOf([] { AfxThrowInvalidArgException(); }), RUNTIME_CLASS(CInvalidArgException));
    EXPECT_EQ(classOf([] { AfxThrowResourceException(); }), RUNTIME_CLASS(CResourceException));
    EXPECT_EQ(classOf([] { AfxThrowUserException(); }), RUNTIME_CLASS(CUserException));
    EXPECT_EQ(classOf([] { AfxThrowFileException(CFileException::diskFull); }), RUNTIME_CLASS(CFileException));
    EXPECT_EQ(classOf([] { AfxThrowArchiveException(CArchiveException::badClass); }), RUNTIME_CLASS(CArchiveException));
}

TEST(Exceptions, StaticOnesSurviveDelete) {
    for (int round = 0; round < 3; ++round) {
        try {
            AfxThrowMemoryException();
        } catch (CMemoryException* exception) {
            EXPECT_STREQ(MessageOf(*exception), L"Out of memory.");
            exception->Delete();
        }
    }
}

class CountedException : public CException {
public:
    ~CountedException() override { ++s_deleted; }
    static inline int s_deleted = 0;
};

TEST(Exceptions, MacrosDeleteWhatTheyCatchOnce) {
    CountedException::s_deleted = 0;
    bool isCaught = false;
    TRY { throw new CountedException; }
    CATCH(CMemoryException, e) { ADD_FAILURE(); }
    AND_CATCH_ALL(e) { isCaught = true; }
    END_CATCH_ALL
    EXPECT_TRUE(isCaught);
    EXPECT_EQ(CountedException::s_deleted, 1);
}

TEST(Exceptions, ThrowLastPassesTheSameExceptionOn) {
    CountedException::s_deleted = 0;
    CException* first = nullptr;
    try {
        TRY { throw new CountedException; }
        CATCH(CountedException, e) {
            first = e;
            THROW_LAST();
        }
        END_CATCH
    } catch (CException* exception) {
        EXPECT_EQ(exception, first);
        EXPECT_EQ(CountedException::s_deleted, 0);
        exception->Delete();
    }
    EXPECT_EQ(CountedException::s_deleted, 1);
}

TEST(Exceptions, MessagesNameTheFileAndFitTheBuffer) {
    const CFileException exception(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, L"C:\\x.txt");
    EXPECT_STREQ(MessageOf(exception), L"C:\\x.txt was not found.");
    WCHAR small[5];
    EXPECT_TRUE(exception.GetErrorMessage(small, 5));
    EXPECT_STREQ(small, L"C:\\x");
    EXPECT_TRUE(MessageOf(CUserException()).IsEmpty());
}

TEST(Exceptions, SystemErrorsBecomeCauses) {
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_SHARING_VIOLATION), CFileException::sharingViolation);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_PATH_NOT_FOUND), CFileException::badPath);
    EXPECT_EQ(CFileException::OsErrorToException(987654), CFileException::genericException);
    EXPECT_EQ(CFileException::ErrnoToException(ENOENT), CFileException::fileNotFound);
}

int g_reports = 0;
CString g_reported;

TEST(Exceptions, ReportErrorGoesThroughTheHandler) {
    const fx::ReportErrorHandler before = fx::SetReportErrorHandler([](LPCTSTR text, UINT type, UINT) {
        ++g_reports;
        g_reported = text;
        return static_cast<int>(type);
    });
    CNotSupportedException exception;
    EXPECT_EQ(exception.ReportError(MB_YESNO), MB_YESNO);
    EXPECT_STREQ(g_reported, L"An unsupported operation was attempted.");
    CUserException silent;
    silent.ReportError(MB_OK, 1000);
    EXPECT_STREQ(g_reported, L"A text of the resources");
    fx::SetReportErrorHandler(before);
    EXPECT_EQ(g_reports, 2);
}

} // namespace
