#include "afx.h"

#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class StdioFile : public ::testing::Test {
protected:
    CString Path() const { return (folder.Path() / "text.txt").c_str(); }

    void Put(const std::string& bytes) const {
        CFile file(Path(), CFile::modeCreate | CFile::modeWrite);
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    }
    std::string Bytes() const {
        CFile file(Path(), CFile::modeRead);
        std::string bytes(static_cast<std::size_t>(file.GetLength()), '\0');
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }

    TemporaryDirectory folder;
};

} // namespace

TEST_F(StdioFile, WritesTextWithTheLineEndsOfTextFiles) {
    CStdioFile file(Path(), CFile::modeCreate | CFile::modeWrite | CFile::typeText);
    file.WriteString(L"one\n");
    file.WriteString(L"two\n");
    file.Close();
    EXPECT_EQ(Bytes(), "one\r\ntwo\r\n");
}

TEST_F(StdioFile, ReadsLinesOfAnyLengthWithoutTheirEnds) {
    const std::string lengthy(1000, 'x');
    Put("one\r\n\r\n" + lengthy + "\r\nlast");
    CStdioFile file(Path(), CFile::modeRead);
    CString line;
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"one");
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"");
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line.GetLength(), 1000);
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"last");
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_EQ(line, L"");
}

TEST_F(StdioFile, ReadsIntoABufferAsMuchAsItHolds) {
    Put("abcdef\r\ng");
    CStdioFile file(Path(), CFile::modeRead);
    wchar_t buffer[5] = {};
    EXPECT_STREQ(file.ReadString(buffer, 5), L"abcd");
    EXPECT_STREQ(file.ReadString(buffer, 5), L"ef\n");
    EXPECT_STREQ(file.ReadString(buffer, 5), L"g");
    EXPECT_EQ(file.ReadString(buffer, 5), nullptr);
}

TEST_F(StdioFile, LeavesTheBytesOfABinaryFileAsTheyAre) {
    CStdioFile file(Path(), CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
    file.Write("a\nb", 3);
    EXPECT_EQ(file.GetLength(), 3U);
    EXPECT_EQ(file.GetPosition(), 3U);
    EXPECT_EQ(file.Seek(-2, CFile::end), 1U);
    char read[4] = {};
    EXPECT_EQ(file.Read(read, 4), 2U);
    EXPECT_STREQ(read, "\nb");
    file.SetLength(1);
    file.Close();
    EXPECT_EQ(Bytes(), "a");
}

TEST_F(StdioFile, AppendsWhereItIsToldTo) {
    Put("one\r\n");
    CStdioFile file(Path(), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite);
    file.SeekToEnd();
    file.WriteString(L"two\n");
    file.Flush();
    file.Close();
    EXPECT_EQ(Bytes(), "one\r\ntwo\r\n");
}

TEST_F(StdioFile, TellsWhyItCannotBeOpened) {
    CStdioFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(Path(), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(file.m_pStream, nullptr);
    EXPECT_THROW(CStdioFile(Path(), CFile::modeRead), CFileException*);
}

TEST_F(StdioFile, CannotBeCopiedOrLocked) {
    CStdioFile file(Path(), CFile::modeCreate | CFile::modeWrite);
    EXPECT_THROW(file.Duplicate(), CNotSupportedException*);
    EXPECT_THROW(file.LockRange(0, 1), CNotSupportedException*);
    EXPECT_THROW(file.UnlockRange(0, 1), CNotSupportedException*);
}

TEST_F(StdioFile, LeavesAStreamOpenThatWasGivenToIt) {
    FILE* const stream = _wfopen(Path(), L"wt");
    ASSERT_NE(stream, nullptr);
    {
        CStdioFile file(stream);
        file.WriteString(L"kept\n");
    }
    EXPECT_GE(std::fputws(L"open\n", stream), 0);
    EXPECT_EQ(std::fclose(stream), 0);
    EXPECT_EQ(Bytes(), "kept\r\nopen\r\n");
}

TEST_F(StdioFile, IsClosedWhenItGoes) {
    { CStdioFile(Path(), CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive).WriteString(L"x"); }
    EXPECT_EQ(Bytes(), "x");
}
