#include "afx.h"
#include "atltime.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace {

TEST(Time, PartsAreLocal) {
    const CTime time(2024, 2, 29, 13, 5, 59);
    EXPECT_EQ(time.GetYear(), 2024);
    EXPECT_EQ(time.GetMonth(), 2);
    EXPECT_EQ(time.GetDay(), 29);
    EXPECT_EQ(time.GetHour(), 13);
    EXPECT_EQ(time.GetMinute(), 5);
    EXPECT_EQ(time.GetSecond(), 59);
    EXPECT_EQ(time.GetDayOfWeek(), 5) << "a Thursday; 1 is Sunday";
    SYSTEMTIME parts = {};
    ASSERT_TRUE(time.GetAsSystemTime(parts));
    EXPECT_EQ(parts.wYear, 2024);
    EXPECT_EQ(parts.wMilliseconds, 0);
    EXPECT_EQ(CTime(parts), time);
}

TEST(Time, PartsOutsideOfTheirRangesAreRefused) {
    for (const auto& make : {+[] { return CTime(1969, 1, 1, 0, 0, 0); }, +[] { return CTime(3001, 1, 1, 0, 0, 0); },
                             +[] { return CTime(2024, 13, 1, 0, 0, 0); }, +[] { return CTime(2024, 1, 0, 0, 0, 0); },
                             +[] { return CTime(2024, 1, 1, 24, 0, 0); }, +[] { return CTime(2024, 1, 1, 0, 60, 0); },
                             +[] { return CTime(2024, 1, 1, 0, 0, -1); }}) {
        EXPECT_THROW(make(), CInvalidArgException*);
    }
}

TEST(Time, FileTimesAndDosTimesConvert) {
    EXPECT_EQ(CTime(FILETIME{0xD53E8000, 0x019DB1DE}).GetTime(), 0) << "1970 in file time";
    SYSTEMTIME utc = {2001, 9, 0, 9, 1, 46, 40, 0};
    FILETIME file = {};
    ASSERT_TRUE(::SystemTimeToFileTime(&utc, &file));
    EXPECT_EQ(CTime(file).GetTime(), 1'000'000'000);
    EXPECT_EQ(CTime(static_cast<WORD>(44 << 9 | 2 << 5 | 29), static_cast<WORD>(13 << 11 | 5 << 5 | 29)),
              CTime(2024, 2, 29, 13, 5, 58));
    EXPECT_EQ(CTime(SYSTEMTIME{}).GetTime(), 0);
}

TEST(Time, FormatsInLocalAndUniversalTime) {
    const CTime time(2024, 2, 29, 13, 5, 59);
    EXPECT_STREQ(time.Format(L"%Y-%m-%d %H:%M:%S %%"), L"2024-02-29 13:05:59 %");
    EXPECT_STREQ(time.Format(L""), L"");
    EXPECT_STREQ(CTime(1'000'000'000).FormatGmt(L"%Y-%m-%d %H:%M:%S"), L"2001-09-09 01:46:40");
    CString format;
    for (int i = 0; i < 200; ++i) {
        format += L"%Y";
    }
    EXPECT_EQ(time.Format(format).GetLength(), 800) << "long texts fit";
}

TEST(Time, NowIsNow) {
    const auto before = std::time(nullptr);
    const CTime now = CTime::GetCurrentTime();
    EXPECT_GE(now.GetTime(), before);
    EXPECT_LE(now.GetTime(), std::time(nullptr));
}

TEST(Time, DifferencesAreSpans) {
    const CTime early(2024, 2, 28, 12, 0, 0);
    CTime late(2024, 3, 1, 13, 30, 15);
    const CTimeSpan span = late - early;
    EXPECT_EQ(span.GetDays(), 2);
    EXPECT_EQ(span.GetHours(), 1);
    EXPECT_EQ(span.GetTotalHours(), 49);
    EXPECT_EQ(span.GetMinutes(), 30);
    EXPECT_EQ(span.GetTotalMinutes(), 49 * 60 + 30);
    EXPECT_EQ(span.GetSeconds(), 15);
    EXPECT_EQ(early + span, late);
    EXPECT_EQ(late - span, early);
    late -= span;
    EXPECT_EQ(late, early);
    EXPECT_LT(early, early + CTimeSpan(0, 0, 0, 1));
    EXPECT_EQ(CTimeSpan(1, 2, 3, 4).Format(L"%D d %H:%M:%S %%"), CString(L"1 d 02:03:04 %"));
    EXPECT_EQ(CTimeSpan(-1, 0, 0, 0).GetDays(), -1);
    EXPECT_THROW(CTimeSpan(1).Format(L"%q"), CInvalidArgException*);
}

TEST(Time, IsStoredInEightBytes) {
    CMemFile file;
    CTime time(2024, 2, 29, 13, 5, 59);
    CTimeSpan span(1, 2, 3, 4);
    {
        CArchive archive(&file, CArchive::store);
        time.Serialize64(archive);
        span.Serialize64(archive);
    }
    EXPECT_EQ(file.GetLength(), 16u);
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    CTime readTime;
    CTimeSpan readSpan;
    readTime.Serialize64(archive);
    readSpan.Serialize64(archive);
    EXPECT_EQ(readTime, time);
    EXPECT_EQ(readSpan, span);
}

/// A file of five bytes in the folder for temporary files, gone with the test.
class FileStatus : public testing::Test {
protected:
    void SetUp() override {
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPath(MAX_PATH, folder);
        ASSERT_NE(::GetTempFileName(folder, L"fst", 0, m_name), 0u);
        CFile file(m_name, CFile::modeCreate | CFile::modeWrite);
        file.Write("12345", 5);
    }
    void TearDown() override {
        ::SetFileAttributes(m_name, FILE_ATTRIBUTE_NORMAL);
        ::DeleteFile(m_name);
    }
    wchar_t m_name[MAX_PATH] = {};
};

TEST_F(FileStatus, TellsSizeNameAndTimes) {
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(m_name, status));
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_STREQ(status.m_szFullName, m_name);
    EXPECT_LE(std::llabs((CTime::GetCurrentTime() - status.m_mtime).GetTotalSeconds()), 60);
    EXPECT_EQ(status.m_attribute & CFile::readOnly, 0);
    CFileStatus open;
    const CFile file(m_name, CFile::modeRead);
    ASSERT_TRUE(file.GetStatus(open));
    EXPECT_EQ(open.m_size, 5u);
    EXPECT_EQ(open.m_mtime, status.m_mtime);
    EXPECT_FALSE(CFile().GetStatus(open));
    EXPECT_FALSE(CFile::GetStatus(L"no such file", status));
}

TEST_F(FileStatus, AttributesAndTimesAreSet) {
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(m_name, status));
    status.m_mtime = CTime(2020, 7, 1, 12, 0, 0);
    status.m_attribute |= CFile::readOnly;
    CFile::SetStatus(m_name, status);
    CFileStatus read;
    ASSERT_TRUE(CFile::GetStatus(m_name, read));
    EXPECT_EQ(read.m_mtime, status.m_mtime);
    EXPECT_NE(read.m_attribute & CFile::readOnly, 0);

    // Without a time the attributes alone change, of a read-only file as well.
    read.m_mtime = 0;
    read.m_attribute = CFile::normal;
    CFile::SetStatus(m_name, read);
    ASSERT_TRUE(CFile::GetStatus(m_name, read));
    EXPECT_EQ(read.m_mtime, status.m_mtime);
    EXPECT_EQ(read.m_attribute & CFile::readOnly, 0);
}

TEST_F(FileStatus, OfAMissingFileCannotBeSet) {
    try {
        CFile::SetStatus(L"no such file", CFileStatus());
        FAIL() << "it must throw";
    } catch (CFileException* exception) {
        EXPECT_EQ(exception->m_cause, CFileException::fileNotFound);
        exception->Delete();
    }
}

} // namespace
