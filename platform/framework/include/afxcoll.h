#pragma once
// Programs ask by this name whether the header was included.
#define __AFXCOLL_H__

// The collections of fixed types. Collections of pointers never delete what is pointed at.

#include "afx.h"
#include "fx/array.h"
#include "fx/list.h"
#include "fx/map.h"

class FRAMEWORK_API CByteArray : public CArray<BYTE, BYTE> {
    DECLARE_SERIAL(CByteArray)
};
class FRAMEWORK_API CWordArray : public CArray<WORD, WORD> {
    DECLARE_SERIAL(CWordArray)
};
class FRAMEWORK_API CDWordArray : public CArray<DWORD, DWORD> {
    DECLARE_SERIAL(CDWordArray)
};
class FRAMEWORK_API CUIntArray : public CArray<UINT, UINT> {
    DECLARE_DYNAMIC(CUIntArray)
};
class FRAMEWORK_API CPtrArray : public CArray<void*, void*> {
    DECLARE_DYNAMIC(CPtrArray)
};
class FRAMEWORK_API CObArray : public CArray<CObject*, CObject*> {
    DECLARE_SERIAL(CObArray)
};
class FRAMEWORK_API CStringArray : public CArray<CString, const CString&> {
    DECLARE_SERIAL(CStringArray)
};

class FRAMEWORK_API CPtrList : public CList<void*, void*> {
    DECLARE_DYNAMIC(CPtrList)
public:
    using CList::CList;
};
class FRAMEWORK_API CObList : public CList<CObject*, CObject*> {
    DECLARE_SERIAL(CObList)
public:
    using CList::CList;
};
class FRAMEWORK_API CStringList : public CList<CString, const CString&> {
    DECLARE_SERIAL(CStringList)
public:
    using CList::CList;
};

namespace fx {
/// The common part of the maps: the type names that the typed templates use, and the member HashKey.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class FixedMap : public CMap<KEY, ARG_KEY, VALUE, ARG_VALUE> {
public:
    typedef KEY BASE_KEY;
    typedef ARG_KEY BASE_ARG_KEY;
    typedef VALUE BASE_VALUE;
    typedef ARG_VALUE BASE_ARG_VALUE;
    using CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CMap;
    UINT HashKey(ARG_KEY key) const { return ::HashKey<ARG_KEY>(key); }
};

template <class VALUE, class ARG_VALUE>
class StringMap : public FixedMap<CString, LPCTSTR, VALUE, ARG_VALUE> {
public:
    using FixedMap<CString, LPCTSTR, VALUE, ARG_VALUE>::FixedMap;
    /// The map's own copy of the key.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const {
        const auto* const pair = this->PLookup(key);
        if (pair != nullptr) {
            rKey = pair->key;
        }
        return pair != nullptr;
    }
};
} // namespace fx

class FRAMEWORK_API CMapWordToOb : public fx::FixedMap<WORD, WORD, CObject*, CObject*> {
    DECLARE_SERIAL(CMapWordToOb)
public:
    using FixedMap::FixedMap;
};
class FRAMEWORK_API CMapWordToPtr : public fx::FixedMap<WORD, WORD, void*, void*> {
    DECLARE_DYNAMIC(CMapWordToPtr)
public:
    using FixedMap::FixedMap;
};
class FRAMEWORK_API CMapPtrToWord : public fx::FixedMap<void*, void*, WORD, WORD> {
    DECLARE_DYNAMIC(CMapPtrToWord)
public:
    using FixedMap::FixedMap;
};
class FRAMEWORK_API CMapPtrToPtr : public fx::FixedMap<void*, void*, void*, void*> {
    DECLARE_DYNAMIC(CMapPtrToPtr)
public:
    using FixedMap::FixedMap;
};
class FRAMEWORK_API CMapStringToPtr : public fx::StringMap<void*, void*> {
    DECLARE_DYNAMIC(CMapStringToPtr)
public:
    using StringMap::StringMap;
};
class FRAMEWORK_API CMapStringToOb : public fx::StringMap<CObject*, CObject*> {
    DECLARE_SERIAL(CMapStringToOb)
public:
    using StringMap::StringMap;
};
class FRAMEWORK_API CMapStringToString : public fx::StringMap<CString, LPCTSTR> {
    DECLARE_SERIAL(CMapStringToString)
public:
    using StringMap::StringMap;
};
