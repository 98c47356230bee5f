// Counts in an archive that is damaged: nothing is made room for that the bytes left cannot be.
#include "afxtempl.h"

#include <gtest/gtest.h>

namespace {

struct Nothing {};

} // namespace

/// Elements that take no byte at all: a count of them would never come to an end of the file.
template <>
void AFXAPI SerializeElements<Nothing>(CArchive&, Nothing*, INT_PTR) {}

namespace {

/// A file that claims `count` elements and holds `bytes` bytes of them.
class DamagedCount : public ::testing::Test {
protected:
    /// The cause of the archive's exception; CArchiveException::none when it loads.
    template <class Collection>
    static int Load(Collection& collection, ULONGLONG count, int bytes) {
        CMemFile file;
        CArchive writer(&file, CArchive::store);
        writer << count;
        for (int i = 0; i < bytes; ++i) {
            writer << static_cast<BYTE>(0);
        }
        writer.Close();
        file.SeekToBegin();
        CArchive reader(&file, CArchive::load);
        try {
            collection.Serialize(reader);
            return CArchiveException::none;
        } catch (CArchiveException* damaged) {
            const int cause = damaged->m_cause;
            damaged->Delete();
            return cause;
        }
    }
};

TEST_F(DamagedCount, OfAnArrayMakesNoRoom) {
    CDWordArray numbers;
    EXPECT_EQ(Load(numbers, 0x10000000, 4), CArchiveException::endOfFile);
    EXPECT_EQ(numbers.GetSize(), 0);
    CByteArray bytes;
    EXPECT_EQ(Load(bytes, 11, 10), CArchiveException::endOfFile);
    EXPECT_EQ(bytes.GetSize(), 0);
    EXPECT_EQ(Load(bytes, 10, 10), CArchiveException::none);
    EXPECT_EQ(bytes.GetSize(), 10);
}

TEST_F(DamagedCount, BeyondEveryNumberOfElementsIsTheSame) {
    CStringArray texts;
    EXPECT_EQ(Load(texts, ~0ULL, 100), CArchiveException::endOfFile);
    EXPECT_EQ(texts.GetSize(), 0);
}

TEST_F(DamagedCount, OfAListAddsNothing) {
    CList<BYTE, BYTE> bytes;
    EXPECT_EQ(Load(bytes, 11, 10), CArchiveException::endOfFile);
    EXPECT_EQ(bytes.GetCount(), 0);
    CList<Nothing, const Nothing&> nothings;
    EXPECT_EQ(Load(nothings, 1'000'000, 10), CArchiveException::endOfFile);
    EXPECT_EQ(nothings.GetCount(), 0);
}

TEST_F(DamagedCount, OfAMapAddsNothing) {
    CMap<BYTE, BYTE, BYTE, BYTE> pairs;
    EXPECT_EQ(Load(pairs, 11, 10), CArchiveException::endOfFile);
    EXPECT_EQ(pairs.GetCount(), 0);
}

TEST_F(DamagedCount, IsMeasuredAgainstTheFileNotTheBuffer) {
    CByteArray bytes;
    EXPECT_EQ(Load(bytes, 100'000, 100'000), CArchiveException::none);
    EXPECT_EQ(bytes.GetSize(), 100'000);
}

/// A pipe's kind of file.
class WithoutLength : public CMemFile {
public:
    ULONGLONG GetLength() const override { AfxThrowFileException(CFileException::genericException); }
};

TEST_F(DamagedCount, OfAFileWithoutALengthIsTriedAndEndsAtItsEnd) {
    WithoutLength file;
    CArchive writer(&file, CArchive::store);
    writer << 5000ULL;
    for (int i = 0; i < 5000; ++i) {
        writer << static_cast<BYTE>(i);
    }
    writer.Close();
    file.SeekToBegin();
    CArchive reader(&file, CArchive::load);
    CByteArray bytes;
    bytes.Serialize(reader);
    EXPECT_EQ(bytes.GetSize(), 5000);
}

} // namespace
