#include "afxcoll.h"

IMPLEMENT_SERIAL(CByteArray, CObject, 0)
IMPLEMENT_SERIAL(CWordArray, CObject, 0)
IMPLEMENT_SERIAL(CDWordArray, CObject, 0)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_SERIAL(CObArray, CObject, 0)
IMPLEMENT_SERIAL(CStringArray, CObject, 0)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_SERIAL(CObList, CObject, 0)
IMPLEMENT_SERIAL(CStringList, CObject, 0)
IMPLEMENT_SERIAL(CMapWordToOb, CObject, 0)
IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_SERIAL(CMapStringToOb, CObject, 0)
IMPLEMENT_SERIAL(CMapStringToString, CObject, 0)

namespace fx {
namespace {
// FNV-1a: short keys, no state, no allocation.
template <typename Char>
UINT HashCharacters(const Char* text, std::size_t length) noexcept {
    UINT hash = 2166136261u;
    for (std::size_t index = 0; index < length; ++index) {
        hash = (hash ^ static_cast<std::make_unsigned_t<Char>>(text[index])) * 16777619u;
    }
    return hash;
}
} // namespace

UINT HashText(const char* text, std::size_t length) noexcept { return HashCharacters(text, length); }
UINT HashText(const wchar_t* text, std::size_t length) noexcept {
    return HashCharacters(reinterpret_cast<const std::uint16_t*>(text), length);
}
} // namespace fx
