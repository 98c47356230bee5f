#include "interface.h"

#include "afxcoll.h"
#include "afxtempl.h"

// The classes of fixed types share the templates' code, so their members are asked by what a call answers.
#define ARRAY_MEMBERS(Type, Argument)                                                                                  \
    BASE(CObject);                                                                                                     \
    MADE_FROM();                                                                                                       \
    ANSWERS(INT_PTR, Add, Argument);                                                                                   \
    ANSWERS(INT_PTR, Append, const Class&);                                                                            \
    ANSWERS(void, Copy, const Class&);                                                                                 \
    ANSWERS(Type&, ElementAt, INT_PTR);                                                                                \
    ANSWERS(void, FreeExtra);                                                                                          \
    ANSWERS(Type, GetAt, INT_PTR);                                                                                     \
    ANSWERS(INT_PTR, GetCount);                                                                                        \
    ANSWERS(INT_PTR, GetSize);                                                                                         \
    ANSWERS(INT_PTR, GetUpperBound);                                                                                   \
    ANSWERS(void, InsertAt, INT_PTR, Argument);                                                                        \
    ANSWERS(void, InsertAt, INT_PTR, Argument, INT_PTR);                                                               \
    ANSWERS(void, InsertAt, INT_PTR, Class*);                                                                          \
    ANSWERS(BOOL, IsEmpty);                                                                                            \
    ANSWERS(void, RemoveAll);                                                                                          \
    ANSWERS(void, RemoveAt, INT_PTR);                                                                                  \
    ANSWERS(void, RemoveAt, INT_PTR, INT_PTR);                                                                         \
    ANSWERS(void, SetAt, INT_PTR, Argument);                                                                           \
    ANSWERS(void, SetAtGrow, INT_PTR, Argument);                                                                       \
    ANSWERS(void, SetSize, INT_PTR);                                                                                   \
    ANSWERS(void, SetSize, INT_PTR, INT_PTR);                                                                          \
    ANSWERS(Type&, operator[], INT_PTR)

#define LIST_MEMBERS(Type, Argument)                                                                                   \
    BASE(CObject);                                                                                                     \
    MADE_FROM();                                                                                                       \
    MADE_FROM(INT_PTR);                                                                                                \
    ANSWERS(POSITION, AddHead, Argument);                                                                              \
    ANSWERS(void, AddHead, Class*);                                                                                    \
    ANSWERS(POSITION, AddTail, Argument);                                                                              \
    ANSWERS(void, AddTail, Class*);                                                                                    \
    ANSWERS(POSITION, Find, Argument);                                                                                 \
    ANSWERS(POSITION, Find, Argument, POSITION);                                                                       \
    ANSWERS(POSITION, FindIndex, INT_PTR);                                                                             \
    ANSWERS(Type&, GetAt, POSITION);                                                                                   \
    ANSWERS(INT_PTR, GetCount);                                                                                        \
    ANSWERS(Type&, GetHead);                                                                                           \
    ANSWERS(POSITION, GetHeadPosition);                                                                                \
    ANSWERS(Type&, GetNext, POSITION&);                                                                                \
    ANSWERS(Type&, GetPrev, POSITION&);                                                                                \
    ANSWERS(INT_PTR, GetSize);                                                                                         \
    ANSWERS(Type&, GetTail);                                                                                           \
    ANSWERS(POSITION, GetTailPosition);                                                                                \
    ANSWERS(POSITION, InsertAfter, POSITION, Argument);                                                                \
    ANSWERS(POSITION, InsertBefore, POSITION, Argument);                                                               \
    ANSWERS(BOOL, IsEmpty);                                                                                            \
    ANSWERS(void, RemoveAll);                                                                                          \
    ANSWERS(void, RemoveAt, POSITION);                                                                                 \
    ANSWERS(Type, RemoveHead);                                                                                         \
    ANSWERS(Type, RemoveTail);                                                                                         \
    ANSWERS(void, SetAt, POSITION, Argument)

#define MAP_MEMBERS(Key, KeyArgument, Value, ValueArgument)                                                            \
    BASE(CObject);                                                                                                     \
    MADE_FROM();                                                                                                       \
    MADE_FROM(INT_PTR);                                                                                                \
    ANSWERS(INT_PTR, GetCount);                                                                                        \
    ANSWERS(INT_PTR, GetSize);                                                                                         \
    ANSWERS(UINT, GetHashTableSize);                                                                                   \
    ANSWERS(void, GetNextAssoc, POSITION&, Key&, Value&);                                                              \
    ANSWERS(POSITION, GetStartPosition);                                                                               \
    ANSWERS(void, InitHashTable, UINT);                                                                                \
    ANSWERS(void, InitHashTable, UINT, BOOL);                                                                          \
    ANSWERS(BOOL, IsEmpty);                                                                                            \
    ANSWERS(BOOL, Lookup, KeyArgument, Value&);                                                                        \
    ANSWERS(void, RemoveAll);                                                                                          \
    ANSWERS(BOOL, RemoveKey, KeyArgument);                                                                             \
    ANSWERS(void, SetAt, KeyArgument, ValueArgument);                                                                  \
    ANSWERS(Value&, operator[], KeyArgument)

#define PAIR_MEMBERS(KeyArgument)                                                                                      \
    ANSWERS(Class::CPair*, PGetFirstAssoc);                                                                            \
    ANSWERS(Class::CPair*, PGetNextAssoc, const Class::CPair*);                                                        \
    ANSWERS(Class::CPair*, PLookup, KeyArgument);                                                                      \
    static_assert(std::is_same_v<decltype(std::declval<const Class&>().PGetFirstAssoc()), const Class::CPair*>);       \
    static_assert(std::is_same_v<decltype(std::declval<const Class&>().PLookup(std::declval<KeyArgument>())),          \
                                 const Class::CPair*>)

using NumberArray = CArray<int, int>;
using NumberList = CList<int, int>;
using NumberMap = CMap<int, int, long, long>;
using ClassArray = CTypedPtrArray<CObArray, CFile*>;
using ClassList = CTypedPtrList<CObList, CFile*>;
using ClassMap = CTypedPtrMap<CMapPtrToPtr, void*, CFile*>;

INTERFACE_OF(NumberArray) {
    ARRAY_MEMBERS(int, int);
    MEMBER(int&, ElementAt, (INT_PTR));
    MEMBER(const int&, ElementAt, (INT_PTR) const);
    MEMBER(int&, GetAt, (INT_PTR));
    MEMBER(const int&, GetAt, (INT_PTR) const);
    MEMBER(const int*, GetData, () const);
    MEMBER(int*, GetData, ());
    MEMBER(const int&, operator[], (INT_PTR) const);
    MEMBER(void, InsertAt, (INT_PTR, NumberArray*));
}
INTERFACE_OF(NumberList) {
    LIST_MEMBERS(int, int);
    MEMBER(const int&, GetAt, (POSITION) const);
    MEMBER(const int&, GetHead, () const);
    MEMBER(const int&, GetNext, (POSITION&) const);
    MEMBER(const int&, GetPrev, (POSITION&) const);
    MEMBER(const int&, GetTail, () const);
    MEMBER(void, AddTail, (NumberList*));
}
INTERFACE_OF(NumberMap) {
    MAP_MEMBERS(int, int, long, long);
    PAIR_MEMBERS(int);
}

INTERFACE_OF(CByteArray) {
    ARRAY_MEMBERS(BYTE, BYTE);
    ANSWERS(BYTE*, GetData);
}
INTERFACE_OF(CWordArray) {
    ARRAY_MEMBERS(WORD, WORD);
    ANSWERS(WORD*, GetData);
}
INTERFACE_OF(CDWordArray) {
    ARRAY_MEMBERS(DWORD, DWORD);
    ANSWERS(DWORD*, GetData);
}
INTERFACE_OF(CUIntArray) {
    ARRAY_MEMBERS(UINT, UINT);
    ANSWERS(UINT*, GetData);
}
INTERFACE_OF(CPtrArray) {
    ARRAY_MEMBERS(void*, void*);
    ANSWERS(void**, GetData);
}
INTERFACE_OF(CObArray) {
    ARRAY_MEMBERS(CObject*, CObject*);
    ANSWERS(CObject**, GetData);
}
INTERFACE_OF(CStringArray) {
    ARRAY_MEMBERS(CString, LPCTSTR);
    ANSWERS(CString*, GetData);
}
INTERFACE_OF(ClassArray) { ARRAY_MEMBERS(CFile*, CFile*); }

INTERFACE_OF(CObList) { LIST_MEMBERS(CObject*, CObject*); }
INTERFACE_OF(CPtrList) { LIST_MEMBERS(void*, void*); }
INTERFACE_OF(CStringList) { LIST_MEMBERS(CString, LPCTSTR); }
INTERFACE_OF(ClassList) { LIST_MEMBERS(CFile*, CFile*); }

INTERFACE_OF(CMapPtrToPtr) {
    MAP_MEMBERS(void*, void*, void*, void*);
    ANSWERS(UINT, HashKey, void*);
}
INTERFACE_OF(CMapWordToPtr) {
    MAP_MEMBERS(WORD, WORD, void*, void*);
    ANSWERS(UINT, HashKey, WORD);
}
INTERFACE_OF(CMapStringToPtr) {
    MAP_MEMBERS(CString, LPCTSTR, void*, void*);
    ANSWERS(UINT, HashKey, LPCTSTR);
    ANSWERS(BOOL, LookupKey, LPCTSTR, LPCTSTR&);
}
INTERFACE_OF(CMapStringToString) {
    MAP_MEMBERS(CString, LPCTSTR, CString, LPCTSTR);
    PAIR_MEMBERS(LPCTSTR);
    ANSWERS(UINT, HashKey, LPCTSTR);
    ANSWERS(BOOL, LookupKey, LPCTSTR, LPCTSTR&);
}
INTERFACE_OF(ClassMap) {
    ANSWERS(void, GetNextAssoc, POSITION&, void*&, CFile*&);
    ANSWERS(BOOL, Lookup, void*, CFile*&);
    ANSWERS(BOOL, RemoveKey, void*);
    ANSWERS(void, SetAt, void*, CFile*);
    ANSWERS(CFile*&, operator[], void*);
}
