#include "afxtempl.h"

#include <gtest/gtest.h>

namespace {

std::wstring Joined(const CStringList& list) {
    std::wstring text;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
        text += list.GetNext(position);
    }
    return text;
}

TEST(List, KeepsOrderAtBothEnds) {
    CStringList list;
    list.AddTail(L"b");
    list.AddHead(L"a");
    list.AddTail(L"c");
    EXPECT_EQ(Joined(list), L"abc");
    EXPECT_STREQ(list.GetHead(), L"a");
    EXPECT_STREQ(list.GetTail(), L"c");
    POSITION position = list.GetTailPosition();
    EXPECT_STREQ(list.GetPrev(position), L"c");
    EXPECT_STREQ(list.GetPrev(position), L"b");
    EXPECT_STREQ(list.RemoveHead(), L"a");
    EXPECT_STREQ(list.RemoveTail(), L"c");
    EXPECT_EQ(list.GetCount(), 1);
}

TEST(List, ElementsMayBeRemovedWhileIterating) {
    CList<int, int> list;
    for (int number = 0; number < 10; ++number) {
        list.AddTail(number);
    }
    for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
        const POSITION current = position;
        if (list.GetNext(position) % 2 == 0) {
            list.RemoveAt(current);
        }
    }
    EXPECT_EQ(list.GetCount(), 5);
    int sum = 0;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
        sum += list.GetNext(position);
    }
    EXPECT_EQ(sum, 25);
}

TEST(List, InsertsAroundAPosition) {
    CStringList list;
    const POSITION middle = list.AddTail(L"m");
    list.InsertBefore(middle, L"b");
    list.InsertAfter(middle, L"a");
    list.InsertBefore(nullptr, L"<");
    list.InsertAfter(nullptr, L">");
    EXPECT_EQ(Joined(list), L"<bma>");
    list.SetAt(middle, L"M");
    EXPECT_STREQ(list.GetAt(middle), L"M");
}

TEST(List, FindsByValueAndIndex) {
    CList<int, int> list;
    for (int number : {5, 7, 5}) {
        list.AddTail(number);
    }
    const POSITION first = list.Find(5);
    EXPECT_EQ(first, list.GetHeadPosition());
    EXPECT_EQ(list.Find(5, first), list.GetTailPosition());
    EXPECT_EQ(list.Find(9), nullptr);
    EXPECT_EQ(list.GetAt(list.FindIndex(1)), 7);
    EXPECT_EQ(list.FindIndex(3), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
}

TEST(List, AnotherListIsAddedInItsOrder) {
    CStringList list;
    list.AddTail(L"x");
    CStringList other;
    other.AddTail(L"1");
    other.AddTail(L"2");
    list.AddHead(&other);
    list.AddTail(&other);
    EXPECT_EQ(Joined(list), L"12x12");
    list.AddTail(&list);
    EXPECT_EQ(Joined(list), L"12x1212x12");
}

TEST(List, EmptyListsThrow) {
    CObList list;
    EXPECT_THROW(list.GetHead(), CInvalidArgException*);
    EXPECT_THROW(list.RemoveTail(), CInvalidArgException*);
    EXPECT_THROW(list.RemoveAt(nullptr), CInvalidArgException*);
}

TEST(Map, GrowsItsTableAndKeepsEveryPair) {
    CMap<int, int, int, int> map;
    for (int key = 0; key < 10000; ++key) {
        map[key] = key * 2;
    }
    EXPECT_EQ(map.GetCount(), 10000);
    EXPECT_GE(map.GetHashTableSize(), 5000u);
    int value = 0;
    for (int key = 0; key < 10000; ++key) {
        ASSERT_TRUE(map.Lookup(key, value));
        ASSERT_EQ(value, key * 2);
    }
    EXPECT_FALSE(map.Lookup(10000, value));
    EXPECT_EQ(value, 19998);
}

TEST(Map, PairsKeepTheirAddressWhenTheTableGrows) {
    CMap<CString, LPCTSTR, int, int> map;
    map.SetAt(L"first", 1);
    auto* const pair = map.PLookup(L"first");
    for (int key = 0; key < 1000; ++key) {
        CString name;
        name.Format(L"key %d", key);
        map[name] = key;
    }
    EXPECT_EQ(map.PLookup(L"first"), pair);
    EXPECT_EQ(pair->value, 1);
    EXPECT_STREQ(pair->key, L"first");
}

TEST(Map, RemovingWhileIteratingVisitsEachPairOnce) {
    CMap<int, int, int, int> map;
    for (int key = 0; key < 100; ++key) {
        map[key] = 1;
    }
    int visited = 0;
    for (POSITION position = map.GetStartPosition(); position != nullptr;) {
        int key = 0;
        int value = 0;
        map.GetNextAssoc(position, key, value);
        visited += value;
        map.RemoveKey(key);
    }
    EXPECT_EQ(visited, 100);
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(map.GetStartPosition(), nullptr);
}

TEST(Map, IndexingAddsAnEmptyValue) {
    CMapStringToString map;
    EXPECT_TRUE(map[L"new"].IsEmpty());
    EXPECT_EQ(map.GetCount(), 1);
    map[L"new"] = L"value";
    map.SetAt(L"new", L"other");
    CString value;
    EXPECT_TRUE(map.Lookup(L"new", value));
    EXPECT_STREQ(value, L"other");
    EXPECT_FALSE(map.Lookup(L"NEW", value));
    LPCTSTR key = nullptr;
    EXPECT_TRUE(map.LookupKey(L"new", key));
    EXPECT_STREQ(key, L"new");
    EXPECT_FALSE(map.RemoveKey(L"absent"));
    EXPECT_TRUE(map.RemoveKey(L"new"));
}

TEST(Map, TextKeysHashByContent) {
    const std::wstring first = L"same text";
    const std::wstring second = L"same text";
    EXPECT_EQ(HashKey<LPCWSTR>(first.c_str()), HashKey<LPCWSTR>(second.c_str()));
    EXPECT_EQ(HashKey<LPCWSTR>(first.c_str()), HashKey<const CString&>(CString(first.c_str())));
    EXPECT_NE(HashKey<LPCWSTR>(L"a"), HashKey<LPCWSTR>(L"b"));
    EXPECT_EQ(HashKey<LPCSTR>("x"), HashKey<const CStringA&>(CStringA("x")));
}

TEST(Map, TypedMapsCastTheirValues) {
    int number = 5;
    CTypedPtrMap<CMapStringToPtr, CString, int*> byName;
    byName.SetAt(L"five", &number);
    int* found = nullptr;
    EXPECT_TRUE(byName.Lookup(L"five", found));
    EXPECT_EQ(found, &number);
    byName[L"five"] = nullptr;
    EXPECT_TRUE(byName.Lookup(L"five", found));
    EXPECT_EQ(found, nullptr);
    CTypedPtrMap<CMapWordToPtr, UINT, int*> byNumber;
    byNumber.SetAt(7, &number);
    POSITION position = byNumber.GetStartPosition();
    UINT key = 0;
    byNumber.GetNextAssoc(position, key, found);
    EXPECT_EQ(key, 7u);
    EXPECT_EQ(found, &number);
}

TEST(Map, TheTableIsSizedBeforeTheFirstElementOnly) {
    CMapPtrToPtr map;
    map.InitHashTable(101);
    EXPECT_EQ(map.GetHashTableSize(), 101u);
    map[nullptr] = nullptr;
    const AFX_ASSERT_HANDLER before = AfxSetAssertHandler([](const char*, int, const char*) { return true; });
    EXPECT_THROW(map.InitHashTable(11), CInvalidArgException*);
    AfxSetAssertHandler(before);
}

} // namespace
