#include "afxtempl.h"

#include <gtest/gtest.h>

namespace {

TEST(Array, AppendingIsLinear) {
    CArray<int, int> numbers;
    const int* place = nullptr;
    int moves = 0;
    for (int index = 0; index < 100000; ++index) {
        numbers.Add(index);
        moves += numbers.GetData() != place;
        place = numbers.GetData();
    }
    EXPECT_EQ(numbers.GetCount(), 100000);
    EXPECT_EQ(numbers[99999], 99999);
    EXPECT_LT(moves, 60);
}

TEST(Array, NewElementsAreValueInitialised) {
    CArray<int, int> numbers;
    numbers.SetSize(3);
    EXPECT_EQ(numbers[2], 0);
    numbers.SetAtGrow(5, 9);
    EXPECT_EQ(numbers.GetSize(), 6);
    EXPECT_EQ(numbers[4], 0);
    EXPECT_EQ(numbers.GetUpperBound(), 5);
    numbers.SetSize(1);
    numbers.SetSize(6);
    EXPECT_EQ(numbers[5], 0);
}

TEST(Array, InsertMovesAndPastTheEndFills) {
    CArray<int, int> numbers;
    numbers.Add(1);
    numbers.Add(2);
    numbers.InsertAt(1, 7, 2);
    EXPECT_EQ(numbers.GetSize(), 4);
    EXPECT_EQ(numbers[1], 7);
    EXPECT_EQ(numbers[2], 7);
    EXPECT_EQ(numbers[3], 2);
    numbers.InsertAt(6, 9);
    EXPECT_EQ(numbers.GetSize(), 7);
    EXPECT_EQ(numbers[5], 0);
    EXPECT_EQ(numbers[6], 9);
    CArray<int, int> others;
    others.Add(100);
    others.Add(101);
    numbers.InsertAt(0, &others);
    EXPECT_EQ(numbers[0], 100);
    EXPECT_EQ(numbers[2], 1);
}

TEST(Array, AnElementOfTheArrayItselfMayBeTheArgument) {
    CArray<CString, const CString&> texts;
    texts.Add(L"first");
    for (int index = 0; index < 100; ++index) {
        texts.Add(texts[0]);
    }
    EXPECT_STREQ(texts[100], L"first");
    texts[1] = L"second";
    texts.InsertAt(0, texts[1]);
    EXPECT_STREQ(texts[0], L"second");
    texts.Append(texts);
    EXPECT_EQ(texts.GetSize(), 204);
    EXPECT_STREQ(texts[102], L"second");
}

TEST(Array, RemovalClosesTheGap) {
    CStringArray texts;
    for (LPCTSTR text : {L"a", L"b", L"c", L"d"}) {
        texts.Add(text);
    }
    texts.RemoveAt(1, 2);
    EXPECT_EQ(texts.GetSize(), 2);
    EXPECT_STREQ(texts[1], L"d");
    texts.RemoveAll();
    EXPECT_TRUE(texts.IsEmpty());
    EXPECT_EQ(texts.GetUpperBound(), -1);
}

TEST(Array, BadIndexesThrow) {
    CUIntArray numbers;
    numbers.Add(1);
    EXPECT_THROW(numbers.GetAt(1), CInvalidArgException*);
    EXPECT_THROW(numbers[-1], CInvalidArgException*);
    EXPECT_THROW(numbers.SetAt(1, 2), CInvalidArgException*);
}

TEST(Array, CopyAndFreeExtra) {
    CDWordArray numbers;
    numbers.SetSize(0, 1000);
    numbers.Add(1);
    CDWordArray copy;
    copy.Copy(numbers);
    numbers[0] = 2;
    EXPECT_EQ(copy[0], 1u);
    const DWORD* const before = numbers.GetData();
    numbers.FreeExtra();
    EXPECT_NE(numbers.GetData(), before);
    EXPECT_EQ(numbers[0], 2u);
}

struct Counted {
    Counted() { ++s_alive; }
    Counted(const Counted&) { ++s_alive; }
    Counted& operator=(const Counted&) = default;
    ~Counted() { --s_alive; }
    static inline int s_alive = 0;
};

TEST(Array, EveryElementIsDestroyedOnce) {
    {
        CArray<Counted> array;
        for (int index = 0; index < 20; ++index) {
            array.Add(Counted());
        }
        array.RemoveAt(3, 5);
        array.InsertAt(2, Counted(), 4);
        array.SetSize(10);
        EXPECT_EQ(Counted::s_alive, 10);
    }
    EXPECT_EQ(Counted::s_alive, 0);
}

TEST(Array, TypedPointerArraysCastTheirElements) {
    CTypedPtrArray<CPtrArray, int*> pointers;
    int first = 1;
    int second = 2;
    pointers.Add(&first);
    pointers[0] = &second;
    EXPECT_EQ(*pointers.GetAt(0), 2);
    EXPECT_EQ(static_cast<CPtrArray&>(pointers).GetAt(0), &second);
    CTypedPtrArray<CObArray, CStringList*> objects;
    CStringList list;
    objects.SetAtGrow(2, &list);
    EXPECT_EQ(objects[2], &list);
    EXPECT_EQ(objects[0], nullptr);
}

} // namespace
