#include "fx/archive.h"

#include "fx/scoped_change.h"

#include <algorithm>
#include <climits>
#include <unordered_map>
#include <vector>

// The tags in front of objects: 0 is the null object, 0xFFFF a class seen for the first time, a set top bit a class
// seen before; anything else is the number of an object seen before. Numbers that need more bits follow 0x7FFF as 32
// bits.
namespace {
constexpr WORD nullTag = 0;
constexpr WORD newClassTag = 0xFFFF;
constexpr WORD classFlag = 0x8000;
constexpr WORD bigTag = 0x7FFF;
constexpr DWORD bigClassFlag = 0x80000000;
constexpr DWORD greatestNumber = 0x3FFFFFFE;
constexpr UINT unknownSchema = static_cast<UINT>(-1);
constexpr UINT versionMask = ~static_cast<UINT>(VERSIONABLE_SCHEMA);
} // namespace

/// What an archive has seen so far. Objects and classes are numbered together, from 1.
struct CArchive::Objects {
    std::unordered_map<const void*, DWORD> stored;
    std::vector<const void*> loaded{nullptr};
    std::unordered_map<const CRuntimeClass*, UINT> schemas;
    DWORD next = 1;
    int ownedDepth = 0; ///< calls of ReadOwnedObject that run
};

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_file(pFile), m_mode(nMode), m_bufferSize(nBufSize < 128 ? 128 : nBufSize), m_objects(new Objects) {
    ENSURE(pFile != nullptr);
    if (lpBuf == nullptr || nBufSize < 128) {
        m_ownBuffer = std::make_unique<BYTE[]>(static_cast<std::size_t>(m_bufferSize));
        lpBuf = m_ownBuffer.get();
    }
    m_buffer = m_place = static_cast<BYTE*>(lpBuf);
    m_limit = IsLoading() ? m_buffer : m_buffer + m_bufferSize;
}

CArchive::~CArchive() {
    if (m_file != nullptr && (m_mode & bNoFlushOnDelete) == 0) {
        try {
            Close();
        } catch (CException* exception) {
            // A destructor cannot report it; whoever must know calls Close.
            TRACE("an archive could not be written to its file\n");
            exception->Delete();
        }
    }
}

void CArchive::Fail(int cause) const {
    AfxThrowArchiveException(cause, m_file == nullptr ? CString() : m_file->GetFilePath());
}

UINT CArchive::GetObjectSchema() {
    const UINT schema = m_objectSchema;
    m_objectSchema = unknownSchema;
    return schema;
}

UINT CArchive::Fill() {
    const UINT count = m_file->Read(m_buffer, static_cast<UINT>(m_bufferSize));
    m_place = m_buffer;
    m_limit = m_buffer + count;
    return count;
}

UINT CArchive::Read(void* lpBuf, UINT nMax) {
    if (IsStoring()) {
        Fail(CArchiveException::writeOnly);
    }
    BYTE* target = static_cast<BYTE*>(lpBuf);
    UINT left = nMax;
    while (left > 0 && (m_place != m_limit || Fill() > 0)) {
        const UINT count = std::min(left, static_cast<UINT>(m_limit - m_place));
        std::memcpy(target, m_place, count);
        m_place += count;
        target += count;
        left -= count;
    }
    return nMax - left;
}

void CArchive::ReadExactly(void* target, UINT size) {
    if (Read(target, size) != size) {
        Fail(CArchiveException::endOfFile);
    }
}

void CArchive::Write(const void* lpBuf, INT nMax) {
    if (IsLoading()) {
        Fail(CArchiveException::readOnly);
    }
    const BYTE* source = static_cast<const BYTE*>(lpBuf);
    for (INT left = nMax; left > 0;) {
        if (m_place == m_limit) {
            m_file->Write(m_buffer, static_cast<UINT>(m_bufferSize));
            m_place = m_buffer;
        }
        const INT count = std::min(left, static_cast<INT>(m_limit - m_place));
        std::memcpy(m_place, source, static_cast<std::size_t>(count));
        m_place += count;
        source += count;
        left -= count;
    }
}

void CArchive::Flush() {
    if (IsLoading()) {
        // The file goes back to the place that the reader has reached.
        if (m_place != m_limit) {
            m_file->Seek(-(m_limit - m_place), CFile::current);
        }
        m_place = m_limit = m_buffer;
        return;
    }
    m_file->Write(m_buffer, static_cast<UINT>(m_place - m_buffer));
    m_place = m_buffer;
}

void CArchive::Close() {
    if (m_file != nullptr) {
        Flush();
        if (IsStoring()) {
            m_file->Flush(); // which takes the right to write
        }
        m_file = nullptr;
    }
}

void CArchive::Abort() { m_file = nullptr; }

void CArchive::WriteString(LPCTSTR lpsz) {
    ENSURE(lpsz != nullptr);
    Write(lpsz, static_cast<INT>(std::wcslen(lpsz) * sizeof(TCHAR)));
}

LPTSTR CArchive::ReadString(LPTSTR lpsz, UINT nMax) {
    ENSURE(lpsz != nullptr && nMax > 0);
    UINT length = 0;
    TCHAR character = 0;
    while (length + 1 < nMax && Read(&character, sizeof(character)) == sizeof(character)) {
        if (character == L'\n') {
            lpsz[length] = 0;
            return lpsz;
        }
        if (character != L'\r') {
            lpsz[length++] = character;
        }
    }
    lpsz[length] = 0;
    return length == 0 ? nullptr : lpsz;
}

BOOL CArchive::ReadString(CString& rString) {
    rString.Empty();
    TCHAR character = 0;
    bool hasRead = false;
    while (Read(&character, sizeof(character)) == sizeof(character)) {
        hasRead = true;
        if (character == L'\n') {
            break;
        }
        if (character != L'\r') {
            rString.AppendChar(character);
        }
    }
    return hasRead;
}

// A text is: bytes per character, count of characters, characters.
void CArchive::WriteText(const wchar_t* text, int length) {
    *this << static_cast<BYTE>(sizeof(wchar_t)) << static_cast<DWORD>(length);
    Write(text, length * static_cast<INT>(sizeof(wchar_t)));
}

void CArchive::WriteText(const char* text, int length) {
    *this << static_cast<BYTE>(sizeof(char)) << static_cast<DWORD>(length);
    Write(text, length);
}

namespace {
// In pieces: a damaged length must end at the end of the file, not in an allocation of gigabytes.
template <typename Char>
bool ReadPieces(CArchive& ar, std::basic_string<Char>& text, DWORD length) {
    constexpr DWORD piece = 4096;
    while (text.size() < length) {
        const DWORD before = static_cast<DWORD>(text.size());
        const DWORD count = std::min(piece, length - before);
        text.resize(before + count);
        if (ar.Read(text.data() + before, count * sizeof(Char)) != count * sizeof(Char)) {
            return false;
        }
    }
    return true;
}
template <typename Char, typename Other>
bool ReadAnyText(CArchive& ar, std::basic_string<Char>& text, int& cause) {
    BYTE width = 0;
    DWORD length = 0;
    ar >> width >> length;
    text.clear();
    cause = CArchiveException::endOfFile;
    if (length > INT_MAX) {
        cause = CArchiveException::badIndex;
        return false;
    }
    if (width == sizeof(Char)) {
        return ReadPieces(ar, text, length);
    }
    std::basic_string<Other> other;
    if (width != sizeof(Other)) {
        cause = CArchiveException::badIndex;
        return false;
    }
    const bool isWhole = ReadPieces(ar, other, length);
    text = fx::ToWidth(other.data(), static_cast<int>(other.size()), static_cast<const Char*>(nullptr));
    return isWhole;
}
} // namespace

void CArchive::ReadText(std::wstring& text) {
    int cause = 0;
    if (!ReadAnyText<wchar_t, char>(*this, text, cause)) {
        Fail(cause);
    }
}

void CArchive::ReadText(std::string& text) {
    int cause = 0;
    if (!ReadAnyText<char, wchar_t>(*this, text, cause)) {
        Fail(cause);
    }
}

void CArchive::WriteTag(DWORD index, bool isClass) {
    if (index < bigTag) {
        *this << static_cast<WORD>(index | (isClass ? classFlag : 0));
    } else {
        *this << bigTag << (index | (isClass ? bigClassFlag : 0));
    }
}

void CArchive::MapObject(const CObject* pOb) {
    if (m_objects->next > greatestNumber) {
        Fail(CArchiveException::badIndex);
    }
    const DWORD number = m_objects->next++;
    if (IsStoring()) {
        if (pOb != nullptr) {
            m_objects->stored.emplace(pOb, number);
        }
    } else {
        m_objects->loaded.push_back(pOb);
    }
}

void CArchive::WriteObject(const CObject* pOb) {
    if (pOb == nullptr) {
        *this << nullTag;
        return;
    }
    if (const auto known = m_objects->stored.find(pOb); known != m_objects->stored.end()) {
        WriteTag(known->second, false);
        return;
    }
    const CRuntimeClass* const runtimeClass = pOb->GetRuntimeClass();
    WriteClass(runtimeClass);
    MapObject(pOb);
    const_cast<CObject*>(pOb)->Serialize(*this);
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef) {
    if (pClassRef->m_wSchema == 0xFFFF) {
        TRACE("%s cannot be serialised\n", pClassRef->m_lpszClassName);
        AfxThrowNotSupportedException();
    }
    if (const auto known = m_objects->stored.find(pClassRef); known != m_objects->stored.end()) {
        WriteTag(known->second, true);
        return;
    }
    *this << newClassTag;
    pClassRef->Store(*this);
    m_objects->stored.emplace(pClassRef, m_objects->next++);
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema, DWORD* pObTag) {
    WORD word = 0;
    *this >> word;
    DWORD number = word & ~static_cast<DWORD>(classFlag);
    bool isClass = (word & classFlag) != 0;
    if (word == bigTag) {
        *this >> number;
        isClass = (number & bigClassFlag) != 0;
        number &= ~bigClassFlag;
    }
    if (!isClass) {
        if (pObTag == nullptr) {
            Fail(CArchiveException::badIndex);
        }
        *pObTag = number;
        return nullptr;
    }

    CRuntimeClass* runtimeClass = nullptr;
    if (word == newClassTag) {
        UINT schema = 0;
        runtimeClass = CRuntimeClass::Load(*this, &schema);
        if (runtimeClass == nullptr) {
            Fail(CArchiveException::badClass);
        }
        const UINT own = runtimeClass->m_wSchema;
        if ((own & versionMask) != schema && (own & VERSIONABLE_SCHEMA) == 0) {
            Fail(CArchiveException::badSchema);
        }
        m_objects->schemas[runtimeClass] = schema;
        m_objects->loaded.push_back(runtimeClass);
        ++m_objects->next;
    } else {
        if (number == 0 || number >= m_objects->loaded.size()) {
            Fail(CArchiveException::badIndex);
        }
        runtimeClass = static_cast<CRuntimeClass*>(const_cast<void*>(m_objects->loaded[number]));
        if (m_objects->schemas.find(runtimeClass) == m_objects->schemas.end()) {
            Fail(CArchiveException::badIndex);
        }
    }
    if (pClassRefRequested != nullptr && !runtimeClass->IsDerivedFrom(pClassRefRequested)) {
        Fail(CArchiveException::badClass);
    }
    const UINT schema = m_objects->schemas[runtimeClass];
    if (pSchema != nullptr) {
        *pSchema = schema;
    } else {
        m_objectSchema = schema;
    }
    return runtimeClass;
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass) {
    UINT schema = 0;
    DWORD number = 0;
    CRuntimeClass* const runtimeClass = ReadClass(pClass, &schema, &number);
    if (runtimeClass == nullptr) {
        if (number >= m_objects->loaded.size() ||
            m_objects->schemas.count(static_cast<const CRuntimeClass*>(m_objects->loaded[number])) != 0) {
            Fail(CArchiveException::badIndex);
        }
        CObject* const known = static_cast<CObject*>(const_cast<void*>(m_objects->loaded[number]));
        if (known != nullptr && pClass != nullptr && !known->IsKindOf(pClass)) {
            Fail(CArchiveException::badClass);
        }
        return known;
    }
    std::unique_ptr<CObject> object(runtimeClass->CreateObject());
    if (object == nullptr) {
        AfxThrowMemoryException();
    }
    const std::size_t place = m_objects->loaded.size();
    MapObject(object.get());
    const UINT before = m_objectSchema;
    m_objectSchema = schema;
    try {
        object->Serialize(*this);
    } catch (...) {
        m_objects->loaded[place] = nullptr; // whoever goes on reading must not be given it
        throw;
    }
    m_objectSchema = before;
    return object.release();
}

CObject* fx::ArchiveChecks::ReadOwnedObject(CArchive& ar, const CRuntimeClass* pClass) {
    CArchive::Objects& objects = *ar.m_objects;
    if (objects.ownedDepth >= kDeepestOwnedObject) {
        ar.Fail(CArchiveException::badIndex);
    }
    const ScopedChange deeper(objects.ownedDepth, objects.ownedDepth + 1);
    const std::size_t before = objects.loaded.size();
    CObject* const object = ar.ReadObject(pClass);
    if (objects.loaded.size() == before) {
        ar.Fail(CArchiveException::badIndex);
    }
    return object;
}

void fx::ArchiveChecks::RequireElements(CArchive& ar, ULONGLONG count) {
    if (ar.m_file == nullptr) {
        ar.Fail(CArchiveException::endOfFile);
    }
    ULONGLONG left = static_cast<ULONGLONG>(ar.m_limit - ar.m_place);
    if (count <= left) {
        return;
    }
    try {
        const ULONGLONG length = ar.m_file->GetLength();
        const ULONGLONG place = ar.m_file->GetPosition();
        left += length > place ? length - place : 0;
    } catch (CFileException* withoutLength) {
        withoutLength->Delete();
        return;
    }
    if (count > left) {
        ar.Fail(CArchiveException::endOfFile);
    }
}

void CArchive::SerializeClass(const CRuntimeClass* pClassRef) {
    if (IsStoring()) {
        WriteClass(pClassRef);
    } else {
        ReadClass(pClassRef);
    }
}

void CArchive::SetLoadParams(UINT nGrowBy) { m_objects->loaded.reserve(nGrowBy); }
void CArchive::SetStoreParams(UINT nHashSize, UINT) { m_objects->stored.reserve(nHashSize); }

CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect) {
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}
CArchive& AFXAPI operator<<(CArchive& ar, POINT point) { return ar << point.x << point.y; }
CArchive& AFXAPI operator<<(CArchive& ar, SIZE size) { return ar << size.cx << size.cy; }
CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect) {
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}
CArchive& AFXAPI operator>>(CArchive& ar, POINT& point) { return ar >> point.x >> point.y; }
CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size) { return ar >> size.cx >> size.cy; }
