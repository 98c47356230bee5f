#include "afxtempl.h"

#include <gtest/gtest.h>

class CNode : public CObject {
    DECLARE_SERIAL(CNode)
public:
    CNode() { ++s_alive; }
    ~CNode() override { --s_alive; }
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << m_number << m_name << m_next;
        } else {
            m_schema = ar.GetObjectSchema();
            CObject* next = nullptr;
            ar >> m_number >> m_name >> next;
            m_next = STATIC_DOWNCAST(CNode, next);
        }
    }
    int m_number = 0;
    CString m_name;
    CNode* m_next = nullptr;
    UINT m_schema = 0;
    static inline int s_alive = 0;
};
IMPLEMENT_SERIAL(CNode, CObject, 3)

class COther : public CObject {
    DECLARE_SERIAL(COther)
};
IMPLEMENT_SERIAL(COther, CObject, VERSIONABLE_SCHEMA | 2)

class CUnstorable : public CObject {
    DECLARE_DYNCREATE(CUnstorable)
};
IMPLEMENT_DYNCREATE(CUnstorable, CObject)

namespace {

template <typename Write>
void StoreTo(CFile& file, Write write) {
    CArchive ar(&file, CArchive::store);
    write(ar);
    ar.Close();
}
template <typename Read>
void LoadFrom(CFile& file, Read read) {
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    read(ar);
    ar.Close();
}
template <typename Run>
int CauseOf(Run run) {
    try {
        run();
    } catch (CArchiveException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return CArchiveException::none;
}

TEST(Archive, EveryBasicTypeComesBack) {
    CMemFile file;
    StoreTo(file, [](CArchive& ar) {
        ar << BYTE(1) << WORD(2) << LONG(-3) << DWORD(4) << 1.5f << 2.5 << int(-6) << short(-7) << 'c' << L'w' << 8u
           << true << ULONGLONG(9) << LONGLONG(-10) << CString(L"w\x00EFde") << CStringA("narrow") << CRect(1, 2, 3, 4)
           << CPoint(5, 6) << CSize(7, 8);
    });
    LoadFrom(file, [](CArchive& ar) {
        BYTE byte;
        WORD word;
        LONG signedLong;
        DWORD unsignedLong;
        float single;
        double twice;
        int number;
        short little;
        char letter;
        wchar_t wide;
        unsigned natural;
        bool truth;
        ULONGLONG big;
        LONGLONG negative;
        CString text;
        CStringA narrow;
        CRect rect;
        CPoint point;
        CSize size;
        ar >> byte >> word >> signedLong >> unsignedLong >> single >> twice >> number >> little >> letter >> wide >>
            natural >> truth >> big >> negative >> text >> narrow >> rect >> point >> size;
        EXPECT_EQ(byte, 1);
        EXPECT_EQ(word, 2);
        EXPECT_EQ(signedLong, -3);
        EXPECT_EQ(unsignedLong, 4u);
        EXPECT_EQ(single, 1.5f);
        EXPECT_EQ(twice, 2.5);
        EXPECT_EQ(number, -6);
        EXPECT_EQ(little, -7);
        EXPECT_EQ(letter, 'c');
        EXPECT_EQ(wide, L'w');
        EXPECT_EQ(natural, 8u);
        EXPECT_TRUE(truth);
        EXPECT_EQ(big, 9u);
        EXPECT_EQ(negative, -10);
        EXPECT_STREQ(text, L"w\x00EFde");
        EXPECT_STREQ(narrow, "narrow");
        EXPECT_TRUE(rect == CRect(1, 2, 3, 4));
        EXPECT_TRUE(point == CPoint(5, 6));
        EXPECT_TRUE(size == CSize(7, 8));
    });
}

TEST(Archive, TextsConvertBetweenWidths) {
    CMemFile file;
    StoreTo(file, [](CArchive& ar) { ar << CStringA("abc") << CString(L"def"); });
    LoadFrom(file, [](CArchive& ar) {
        CString wide;
        CStringA narrow;
        ar >> wide >> narrow;
        EXPECT_STREQ(wide, L"abc");
        EXPECT_STREQ(narrow, "def");
    });
}

TEST(Archive, ObjectsComeBackWithTheirSharingAndCircles) {
    CMemFile file;
    CNode first;
    CNode second;
    first.m_number = 1;
    first.m_name = L"first";
    first.m_next = &second;
    second.m_number = 2;
    second.m_next = &first;
    StoreTo(file, [&](CArchive& ar) { ar << &first << &second << static_cast<CObject*>(nullptr); });
    LoadFrom(file, [](CArchive& ar) {
        CNode* one = nullptr;
        CNode* two = nullptr;
        CNode* none = nullptr;
        ar >> one >> two >> none;
        ASSERT_NE(one, nullptr);
        EXPECT_EQ(one->m_number, 1);
        EXPECT_STREQ(one->m_name, L"first");
        EXPECT_EQ(one->m_schema, 3u);
        EXPECT_EQ(one->m_next, two);
        EXPECT_EQ(two->m_next, one);
        EXPECT_EQ(none, nullptr);
        delete one;
        delete two;
    });
}

TEST(Archive, WorksOnADiskFileWithASmallBuffer) {
    wchar_t folder[MAX_PATH];
    wchar_t name[MAX_PATH];
    ASSERT_NE(::GetTempPathW(MAX_PATH, folder), 0u);
    ASSERT_NE(::GetTempFileNameW(folder, L"bar", 0, name), 0u);
    {
        CFile file(name, CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store, 128);
        for (int index = 0; index < 1000; ++index) {
            ar << index;
        }
    }
    {
        CFile file(name, CFile::modeRead | CFile::shareDenyWrite);
        EXPECT_EQ(file.GetLength(), 4000u);
        CArchive ar(&file, CArchive::load, 128);
        int number = 0;
        for (int index = 0; index < 1000; ++index) {
            ar >> number;
            ASSERT_EQ(number, index);
        }
        EXPECT_EQ(CauseOf([&] { ar >> number; }), CArchiveException::endOfFile);
    }
    CFile::Remove(name);
    EXPECT_THROW(CFile(name, CFile::modeRead), CFileException*);
}

TEST(Archive, AReaderClosesOnAFileThatMayNotBeWritten) {
    wchar_t folder[MAX_PATH] = {}, path[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    ::GetTempFileNameW(folder, L"ar", 0, path);
    {
        CFile file(path, CFile::modeCreate | CFile::modeWrite);
        CArchive archive(&file, CArchive::store);
        archive << 42;
        archive.Close();
    }
    {
        CFile file(path, CFile::modeRead | CFile::shareDenyWrite);
        CArchive archive(&file, CArchive::load);
        int number = 0;
        archive >> number;
        EXPECT_NO_THROW(archive.Close());
        EXPECT_EQ(number, 42);
    }
    CFile::Remove(path);
}

TEST(Archive, ClosingAReaderLeavesTheFileBehindWhatWasRead) {
    CMemFile file;
    StoreTo(file, [](CArchive& ar) { ar << 1 << 2; });
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    int number = 0;
    ar >> number;
    ar.Close();
    EXPECT_EQ(file.GetPosition(), sizeof(int));
}

TEST(Archive, WrongDirectionAndWrongClassThrow) {
    CMemFile file;
    StoreTo(file, [](CArchive& ar) {
        int number = 0;
        EXPECT_EQ(CauseOf([&] { ar >> number; }), CArchiveException::writeOnly);
        COther other;
        ar << &other;
    });
    LoadFrom(file, [](CArchive& ar) {
        EXPECT_EQ(CauseOf([&] { ar << 1; }), CArchiveException::readOnly);
        EXPECT_EQ(CauseOf([&] { ar.ReadObject(RUNTIME_CLASS(CNode)); }), CArchiveException::badClass);
    });
    StoreTo(file, [](CArchive& ar) {
        CUnstorable object;
        EXPECT_THROW(ar << &object, CNotSupportedException*);
    });
}

TEST(Archive, ADifferentSchemaIsRefusedUnlessTheClassReadsOldOnes) {
    const auto stored = [](const char* name, WORD schema) {
        auto file = std::make_unique<CMemFile>();
        StoreTo(*file, [&](CArchive& ar) {
            ar << WORD(0xFFFF) << schema << WORD(strlen(name));
            ar.Write(name, static_cast<INT>(strlen(name)));
        });
        return file;
    };
    LoadFrom(*stored("CNode", 2),
             [](CArchive& ar) { EXPECT_EQ(CauseOf([&] { ar.ReadObject(nullptr); }), CArchiveException::badSchema); });
    LoadFrom(*stored("COther", 1), [](CArchive& ar) { delete ar.ReadObject(RUNTIME_CLASS(COther)); });
    LoadFrom(*stored("CNoSuchClass", 1),
             [](CArchive& ar) { EXPECT_EQ(CauseOf([&] { ar.ReadObject(nullptr); }), CArchiveException::badClass); });
}

TEST(Archive, DamagedReferencesAreRefused) {
    for (const WORD tag : {WORD(5), WORD(0x8005), WORD(0x8000)}) {
        CMemFile file;
        StoreTo(file, [&](CArchive& ar) { ar << tag; });
        LoadFrom(file, [](CArchive& ar) {
            EXPECT_EQ(CauseOf([&] { ar.ReadObject(nullptr); }), CArchiveException::badIndex);
        });
    }
}

TEST(Archive, AnObjectThatFailsToLoadIsDeleted) {
    CMemFile file;
    const int before = CNode::s_alive;
    StoreTo(file, [](CArchive& ar) {
        CNode node;
        node.m_name = L"a name that will be cut off";
        ar << &node;
    });
    file.SetLength(file.GetLength() - 10);
    LoadFrom(file,
             [](CArchive& ar) { EXPECT_EQ(CauseOf([&] { ar.ReadObject(nullptr); }), CArchiveException::endOfFile); });
    EXPECT_EQ(CNode::s_alive, before);
}

TEST(Archive, CollectionsSerialise) {
    CMemFile file;
    StoreTo(file, [](CArchive& ar) {
        CStringArray texts;
        texts.Add(L"a");
        texts.Add(L"b");
        texts.Serialize(ar);
        CMapStringToString map;
        map[L"key"] = L"value";
        map.Serialize(ar);
        CArray<RECT, const RECT&> rects;
        rects.Add(CRect(1, 2, 3, 4));
        rects.Serialize(ar);
        CList<int, int> numbers;
        numbers.AddTail(5);
        numbers.AddTail(6);
        numbers.Serialize(ar);
    });
    LoadFrom(file, [](CArchive& ar) {
        CStringArray texts;
        texts.Serialize(ar);
        ASSERT_EQ(texts.GetSize(), 2);
        EXPECT_STREQ(texts[1], L"b");
        CMapStringToString map;
        map.Serialize(ar);
        EXPECT_STREQ(map[L"key"], L"value");
        CArray<RECT, const RECT&> rects;
        rects.Serialize(ar);
        ASSERT_EQ(rects.GetSize(), 1);
        EXPECT_EQ(rects[0].bottom, 4);
        CList<int, int> numbers;
        numbers.Serialize(ar);
        ASSERT_EQ(numbers.GetCount(), 2);
        EXPECT_EQ(numbers.GetTail(), 6);
    });
}

TEST(Archive, LinesOfText) {
    CMemFile file;
    StoreTo(file, [](CArchive& ar) { ar.WriteString(L"one\r\ntwo\nlast"); });
    LoadFrom(file, [](CArchive& ar) {
        CString line;
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_STREQ(line, L"one");
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_STREQ(line, L"two");
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_STREQ(line, L"last");
        EXPECT_FALSE(ar.ReadString(line));
    });
}

TEST(MemoryFile, FixedMemoryDoesNotGrow) {
    BYTE memory[4] = {1, 2, 3, 4};
    CMemFile file(memory, sizeof(memory));
    BYTE byte = 0;
    EXPECT_EQ(file.Read(&byte, 1), 1u);
    EXPECT_EQ(byte, 1);
    EXPECT_EQ(file.SeekToEnd(), 4u);
    EXPECT_EQ(file.Read(&byte, 1), 0u);
    EXPECT_THROW(file.Write(&byte, 1), CFileException*);
    EXPECT_THROW(file.Seek(-9, CFile::current), CFileException*);
}

TEST(MemoryFile, SeekingPastTheEndFillsWithZeros) {
    CMemFile file;
    file.Seek(3, CFile::begin);
    file.Write("x", 1);
    EXPECT_EQ(file.GetLength(), 4u);
    BYTE* const bytes = file.Detach();
    EXPECT_EQ(bytes[0], 0);
    EXPECT_EQ(bytes[3], 'x');
    free(bytes);
}

TEST(File, NamesAndErrors) {
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(L"Z:\\no\\such\\folder\\file.txt", CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::badPath);
    file.SetFilePath(L"C:\\folder\\name.part.txt");
    EXPECT_STREQ(file.GetFileName(), L"name.part.txt");
    EXPECT_STREQ(file.GetFileTitle(), L"name.part");
}

} // namespace
